// What a host's scheme (or the host itself) calls to bring the module's types in.
#pragma once

#include <CEGUI/FactoryModule.h>

#if defined(__clang__)
// CEGUI looks this entry up by its C name and calls it as C++: the signature is CEGUI's.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif

//! CEGUI 0.8's window-set entry: a scheme's <WindowSet filename="CEGUIMoxieLook"/> calls it
//! and registers the types it names, or all of them, through the returned module.
extern "C" CEGUI::FactoryModule& getWindowFactoryModule();

#if defined(__clang__)
#pragma clang diagnostic pop
#endif

//! Adds the module's factory for `type` to CEGUI's WindowFactoryManager. An unknown name
//! throws UnknownObjectException; a type registered twice meets the manager's own
//! AlreadyExistsException.
extern "C" void registerFactory(const CEGUI::String& type);
