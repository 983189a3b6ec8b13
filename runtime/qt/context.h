#pragma once

#include "frame/class_table.h"
#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "runtime/qt/boundary.h"

namespace lumenkit::qt {

/// The objects that all controls and pages of one program share. The context and everything that it
/// refers to must outlive them.
struct Context {
    const ClassTable& classes;  ///< the classes that may be embedded
    host::Application& application;
    host::Interaction& interaction;
    /// Receives the errors that leave event handlers, such as those of a page. If empty, the errors
    /// are dropped.
    ErrorSink errors = {};
};

}  // namespace lumenkit::qt
