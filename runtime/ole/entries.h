// The entry points of the control runtime. A server's exports pass its class table to them and add
// nothing.
//
// They may be called on any thread and never throw. The table must live as long as the module.
#pragma once

#include "frame/class_table.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Returns the class factory of the class with this identifier. Returns CLASS_E_CLASSNOTAVAILABLE
/// if the table does not contain the class, and E_POINTER if `object` is null.
HRESULT VBDllGetClassObject(const ClassTable& classes, REFCLSID classId, REFIID interfaceId,
                            void** object) noexcept;

/// Returns S_OK if no object of the table's classes is alive and no lock is held, otherwise
/// S_FALSE.
HRESULT VBDllCanUnloadNow(const ClassTable& classes) noexcept;

/// Registers the classes and the module's type libraries for all users. If it fails, it removes all
/// of these entries again.
HRESULT VBDllRegisterServer(const ClassTable& classes) noexcept;

/// Removes the entries of VBDllRegisterServer that name this module. Entries of another copy or
/// bitness, and those that it needs too, are kept. Missing entries are not an error.
HRESULT VBDllUnRegisterServer(const ClassTable& classes) noexcept;

/// Called by the module's entry point when the module is loaded and unloaded.
BOOL UserDllMain(const ClassTable& classes, HINSTANCE module, DWORD reason,
                 void* reserved) noexcept;

}  // namespace lumenkit::ole
