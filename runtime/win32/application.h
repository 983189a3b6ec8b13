#pragma once

#include <string>

#include "frame/host/application.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns the full path of a module's file. Raises 51 if the platform does not know the file.
std::wstring PathOf(HINSTANCE module);

/// Describes a component by the file that it was loaded from.
class Application final : public host::Application {
 public:
    explicit Application(HINSTANCE module) : module_(module) {}

    /// Returns the name of the file without folder and extension. Raises 51 like PathOf.
    Text ExeName() override;

 private:
    HINSTANCE module_;
};

}  // namespace lumenkit::win32
