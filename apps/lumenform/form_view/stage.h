#pragma once

#include <QSizeF>
#include <QWidget>
#include <functional>
#include <memory>
#include <span>

#include "apps/lumenform/form_view/scale.h"
#include "forms/block.h"
#include "forms/document.h"
#include "frame/automation/interface_table.h"
#include "frame/color.h"
#include "frame/text.h"
#include "runtime/qt/context.h"
#include "runtime/qt/font.h"

namespace lumenkit::lumenform {

enum class Mode {
    Run,     ///< as the users of the form see it
    Design,  ///< controls get no mouse and keyboard input; hidden ones are visible
};

/// An event that a control raises.
struct ControlEvent {
    const forms::Block& block;
    TextView control;  ///< the name in code: "VMemo1", "optSize(2)"
    TextView name;
    std::span<const Parameter> parameters;
    std::span<Value> arguments;  ///< one per parameter; may be written to
};

/// The data that all controls of a form share. It must outlive them.
struct Stage {
    const qt::Context& context;
    forms::Document& document;
    Mode mode = Mode::Run;
    std::function<void(const ControlEvent&)> raise;  ///< empty: no listener
    /// Returns a picture of a user control of the same program, or null if the block is none.
    std::function<std::unique_ptr<QWidget>(const forms::Block&)> drawUserControl;
};

/// The properties that a form or control passes on to the controls it contains.
struct Surroundings {
    QWidget& widget;
    Color backColor;
    std::shared_ptr<qt::Font> font;
    Scale scale;
    QSizeF room = {};  ///< the size of a form or picture box inside its border, in twips
    float offset = 0;  ///< twips by which the form file moves the controls to the left
};

}  // namespace lumenkit::lumenform
