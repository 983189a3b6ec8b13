#include "runtime/qt/entered_units.h"

#include <QKeyEvent>

#include "runtime/qt/input.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

namespace {

bool HoldsOnlyControl(const QKeyEvent& event) {
    const auto held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return held == Qt::ControlModifier;
}

}  // namespace

bool IsMnemonic(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    const bool isAltGr = (held & (Qt::ControlModifier | Qt::GroupSwitchModifier)) != 0;
    return held.testFlag(Qt::AltModifier) && !isAltGr && !event.text().isEmpty();
}

bool IsUndoKey(const QKeyEvent& event) {
    const auto held = event.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier);
    return event.key() == Qt::Key_Backspace && held == Qt::AltModifier;
}

bool IsControlLetter(const QKeyEvent& event) {
    return HoldsOnlyControl(event) && LetterOf(event) != 0;
}

Text EnteredBy(const QKeyEvent& event) {
    const bool control = HoldsOnlyControl(event);
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return {control ? key::lineFeed : key::enter};
        case Qt::Key_Backspace:
            if (IsUndoKey(event)) {
                return {};
            }
            return {control ? key::deleteWord : key::backspace};
        case Qt::Key_Tab:
            return {key::tabulator};
        case Qt::Key_Delete:
            return {};
        default:
            break;
    }
    if (IsControlLetter(event)) {
        return {static_cast<char16_t>(LetterOf(event) - Qt::Key_A + 1)};
    }
    return IsMnemonic(event) ? Text() : ToText(event.text());
}

}  // namespace lumenkit::qt
