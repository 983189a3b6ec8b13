#pragma once

#include "frame/class_table.h"
#include "frame/host/application.h"

namespace lumenkit::qt {

/// The application object. The component is linked into the program and has no separate file, so
/// its name is the library name of the class table.
class Application final : public host::Application {
 public:
    explicit Application(const ClassTable& classes) : exeName_(classes.libraryName) {}

    Text ExeName() override { return exeName_; }

 private:
    Text exeName_;
};

}  // namespace lumenkit::qt
