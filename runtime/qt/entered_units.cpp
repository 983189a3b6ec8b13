#include "runtime/qt/entered_units.h"

#include <QKeyEvent>

#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

namespace {

bool HoldsOnlyControl(const QKeyEvent& event) {
    const auto held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return held == Qt::ControlModifier;
}

}  // namespace

bool IsControlLetter(const QKeyEvent& event) {
    return HoldsOnlyControl(event) && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
}

Text EnteredBy(const QKeyEvent& event) {
    const bool control = HoldsOnlyControl(event);
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return {control ? key::lineFeed : key::enter};
        case Qt::Key_Backspace:
            return {control ? key::deleteWord : key::backspace};
        case Qt::Key_Tab:
            return {key::tabulator};
        case Qt::Key_Delete:
            return {};
        default:
            break;
    }
    if (IsControlLetter(event)) {
        return {static_cast<char16_t>(event.key() - Qt::Key_A + 1)};
    }
    const bool alt = event.modifiers().testFlag(Qt::AltModifier) &&
                     !event.modifiers().testFlag(Qt::ControlModifier);
    return alt ? Text() : ToText(event.text());
}

}  // namespace lumenkit::qt
