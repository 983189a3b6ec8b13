#pragma once

#include "frame/class_table.h"
#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "runtime/win32/font.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The objects that all controls and pages of one component share. The context and everything that
/// it refers to must outlive them.
struct Context {
    HINSTANCE module = nullptr;  ///< the module of the component, not of the program
    const ClassTable& classes;   ///< the classes that may be embedded
    FontMaker& fonts;
    host::Application& application;
    host::Interaction& interaction;
    /// The resolution of all controls and pages, whichever monitor shows them: twips that a control
    /// has read or computed are valid as long as it lives.
    Resolution resolution = Resolution::OfScreen();
};

}  // namespace lumenkit::win32
