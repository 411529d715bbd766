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
        : FactoryRegisterer(entry.typeName), d_entry(entry)
    {
    }

    void unregisterFactory() const override { removeFromCegui(d_entry); }

protected:
    void doFactoryAdd() const override { addToCegui(d_entry); }

    bool isAlreadyRegistered() const override
    {
        return WindowFactoryManager::getSingleton().isFactoryPresent(d_type);
    }

private:
    const FactoryEntry& d_entry;
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
    if (const MoxieLook::FactoryEntry* entry = MoxieLook::findModuleEntry(type.c_str()))
    {
        MoxieLook::addToCegui(*entry);
        return;
    }
    throw UnknownObjectException("::registerFactory - The window factory for type '" + type +
                                 "' is not known in this module.");
}
