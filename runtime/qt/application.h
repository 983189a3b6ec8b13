#pragma once

#include "frame/class_table.h"
#include "frame/host/application.h"

namespace lumenkit::qt {

/// The component is linked into the program, so it has no file of its own: its name is the class
/// table's library.
class Application final : public host::Application {
 public:
    explicit Application(const ClassTable& classes) : exeName_(classes.libraryName) {}

    Text ExeName() override { return exeName_; }

 private:
    Text exeName_;
};

}  // namespace lumenkit::qt
