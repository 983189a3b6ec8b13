#pragma once

#include "frame/host/application.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Describes a component by the file that it was loaded from.
class Application final : public host::Application {
 public:
    explicit Application(HINSTANCE module) : module_(module) {}

    /// Returns the name of the file without folder and extension. Raises 51 if the platform does
    /// not know the file.
    Text ExeName() override;

 private:
    HINSTANCE module_;
};

}  // namespace lumenkit::win32
