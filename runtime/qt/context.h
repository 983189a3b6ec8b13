#pragma once

#include "frame/class_table.h"
#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "runtime/qt/boundary.h"

namespace lumenkit::qt {

/// What all controls and pages of one program share. It, and everything that it refers to, must
/// outlive them.
struct Context {
    const ClassTable& classes;  ///< those that may be embedded
    host::Application& application;
    host::Interaction& interaction;
    /// Hears of errors that leave handlers of events, as those of a page do. Empty: they are lost.
    ErrorSink errors = {};
};

}  // namespace lumenkit::qt
