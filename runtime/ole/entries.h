// The control runtime's entries: a server's exports hand its class table to them and add nothing.
//
// They may be called on any thread and never throw. The table must live as long as the module.
#pragma once

#include "frame/class_table.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// The class factory of the class with this identifier. CLASS_E_CLASSNOTAVAILABLE when the table
/// has none, E_POINTER for no place to put it.
HRESULT VBDllGetClassObject(const ClassTable& classes, REFCLSID classId, REFIID interfaceId,
                            void** object) noexcept;

/// S_OK when no object of the table's classes is alive and no lock is held, else S_FALSE.
HRESULT VBDllCanUnloadNow(const ClassTable& classes) noexcept;

/// Registers the classes and the module's type libraries for all users. What was written is taken
/// back when it fails.
HRESULT VBDllRegisterServer(const ClassTable& classes) noexcept;

/// Removes what VBDllRegisterServer wrote. What is not there is no error.
HRESULT VBDllUnRegisterServer(const ClassTable& classes) noexcept;

/// What the module's entry point does when it is loaded and unloaded.
BOOL UserDllMain(const ClassTable& classes, HINSTANCE module, DWORD reason,
                 void* reserved) noexcept;

}  // namespace lumenkit::ole
