// The module's window types, in the order registration tests their names.
#pragma once

#include <cstddef>

namespace CEGUI
{
class WindowFactory;

namespace MoxieLook
{
struct FactoryEntry
{
    const char* typeName;
    WindowFactory* factory; //!< module-wide instance, alive for as long as the module
};

//! Every type the module makes, in table order.
const FactoryEntry* factoryTableBegin();
const FactoryEntry* factoryTableEnd();
std::size_t factoryTableSize();

//! The module's own factory for `typeName` (first match wins), or null.
WindowFactory* findModuleFactory(const char* typeName);

} // namespace MoxieLook
} // namespace CEGUI
