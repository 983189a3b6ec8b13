#pragma once

#include "frame/host/application.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A component by the file that it was loaded from.
class Application final : public host::Application {
 public:
    explicit Application(HINSTANCE module) : module_(module) {}

    /// Raises 51 where the platform does not know the file.
    Text ExeName() override;

 private:
    HINSTANCE module_;
};

}  // namespace lumenkit::win32
