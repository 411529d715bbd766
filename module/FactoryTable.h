// The module's window types, in the order registration tests their names.
#pragma once

#include <cstddef>

namespace CEGUI
{
class WindowFactory;
class WindowRendererFactory;

namespace MoxieLook
{
struct FactoryEntry
{
    const char* typeName;
    WindowFactory* factory;          //!< module-wide instance, alive as long as the module
    WindowRendererFactory* renderer; //!< the forwarding renderer the look needs, or null
};

//! Every type the module makes, in table order.
const FactoryEntry* factoryTableBegin();
const FactoryEntry* factoryTableEnd();
std::size_t factoryTableSize();

//! The table's entry for `typeName` (first match wins), or null.
const FactoryEntry* findModuleEntry(const char* typeName);
//! The module's own factory for `typeName`, or null.
WindowFactory* findModuleFactory(const char* typeName);

//! Adds the type's factory to CEGUI, with its renderer factory if that is not there yet.
//! A type registered twice meets WindowFactoryManager's AlreadyExistsException.
void addToCegui(const FactoryEntry& entry);
//! Removes the type's factory, and its renderer factory once no registered type of the
//! module uses it any more.
void removeFromCegui(const FactoryEntry& entry);

} // namespace MoxieLook
} // namespace CEGUI
