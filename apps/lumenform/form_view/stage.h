#pragma once

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

namespace lumenkit::form {

enum class Mode {
    Run,     ///< as the form's users see it
    Design,  ///< neither mouse nor keyboard reaches the controls; hidden ones are seen
};

/// Something that a control tells the program behind the form.
struct RaisedEvent {
    const forms::Block& block;
    TextView control;  ///< as code calls it: "VMemo1", "optSize(2)"
    TextView name;
    std::span<const Parameter> parameters;
    std::span<Value> arguments;  ///< as many as there are parameters; may be written to
};

/// What all controls of one form share. It outlives them.
struct Stage {
    const qt::Context& context;
    forms::Document& document;
    Mode mode = Mode::Run;
    std::function<void(const RaisedEvent&)> raise;  ///< empty: nobody listens
};

/// A form or control as those see it that lie in it.
struct Surroundings {
    QWidget& widget;
    Color backColor;
    std::shared_ptr<qt::Font> font;
    Scale scale;
};

}  // namespace lumenkit::form
