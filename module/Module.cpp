#include "module/Module.h"

#include "module/FactoryTable.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/FactoryRegisterer.h>
#include <CEGUI/WindowFactoryManager.h>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// Adds and removes one of the module-wide factory instances on a scheme's behalf.
class FactoryRegistration : public FactoryRegisterer
{
public:
    explicit FactoryRegistration(const FactoryEntry& entry)
        : FactoryRegisterer(entry.typeName), d_factory(entry.factory)
    {
    }

    void unregisterFactory() const override
    {
        WindowFactoryManager::getSingleton().removeFactory(d_type);
    }

protected:
    void doFactoryAdd() const override
    {
        WindowFactoryManager::getSingleton().addFactory(d_factory);
    }

    bool isAlreadyRegistered() const override
    {
        return WindowFactoryManager::getSingleton().isFactoryPresent(d_type);
    }

private:
    WindowFactory* d_factory;
};

class MoxieLookFactoryModule : public FactoryModule
{
public:
    MoxieLookFactoryModule()
    {
        for (const FactoryEntry* entry = factoryTableBegin(); entry != factoryTableEnd(); ++entry)
            d_registry.push_back(new FactoryRegistration(*entry));
    }

    ~MoxieLookFactoryModule() override
    {
        for (FactoryRegisterer* registration : d_registry)
            delete registration;
    }
};
} // namespace
} // namespace MoxieLook
} // namespace CEGUI

CEGUI::FactoryModule& getWindowFactoryModule()
{
    static CEGUI::MoxieLook::MoxieLookFactoryModule module;
    return module;
}

void registerFactory(const CEGUI::String& type)
{
    using namespace CEGUI;
    for (const MoxieLook::FactoryEntry* entry = MoxieLook::factoryTableBegin();
         entry != MoxieLook::factoryTableEnd(); ++entry)
    {
        if (type == entry->typeName)
        {
            WindowFactoryManager::getSingleton().addFactory(entry->factory);
            return;
        }
    }
    throw UnknownObjectException("::registerFactory - The window factory for type '" + type +
                                 "' is not known in this module.");
}
