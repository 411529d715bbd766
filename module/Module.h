// What a host's scheme (or the host itself) calls to bring the module's types in.
#pragma once

#include <CEGUI/FactoryModule.h>

//! CEGUI 0.8's window-set entry: a scheme's <WindowSet filename="CEGUIMoxieLook"/> calls it
//! and registers the types it names, or all of them, through the returned module.
extern "C" CEGUI::FactoryModule& getWindowFactoryModule();

//! Adds the module's factory for `type` to CEGUI's WindowFactoryManager. An unknown name
//! throws UnknownObjectException; a type registered twice meets the manager's own
//! AlreadyExistsException.
extern "C" void registerFactory(const CEGUI::String& type);
