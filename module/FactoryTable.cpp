#include "module/FactoryTable.h"

#include "looks/MXButton.h"

#include <array>
#include <cstring>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// One instance per type, built at load and destroyed at unload in reverse order.
MXButtonFactory s_buttonFactory;

// A type joins the module with one line here (and one in MoxieLook.scheme).
const std::array k_table{
    FactoryEntry{MXButton::WidgetTypeName, &s_buttonFactory},
};
} // namespace

const FactoryEntry* factoryTableBegin()
{
    return k_table.data();
}

const FactoryEntry* factoryTableEnd()
{
    return k_table.data() + k_table.size();
}

std::size_t factoryTableSize()
{
    return k_table.size();
}

WindowFactory* findModuleFactory(const char* typeName)
{
    for (const FactoryEntry& entry : k_table)
        if (std::strcmp(entry.typeName, typeName) == 0)
            return entry.factory;
    return nullptr;
}

} // namespace MoxieLook
} // namespace CEGUI
