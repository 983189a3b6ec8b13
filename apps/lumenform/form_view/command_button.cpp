#include "apps/lumenform/form_view/command_button.h"

namespace lumenkit::form {

void CommandButton::SetKeys(Keys keys) {
    keys_ = keys;
    setDefault(keys.enter);
    setAutoDefault(true);  // Enter presses the one that has the keyboard
}

// Outside dialogs Qt takes every button that loses the keyboard for an ordinary one.
void CommandButton::focusOutEvent(QFocusEvent* event) {
    QPushButton::focusOutEvent(event);
    setDefault(keys_.enter);
}

bool CommandButton::IsPressedBy(int key) const {
    switch (key) {
        case Qt::Key_Enter:
        case Qt::Key_Return:
            return keys_.enter;
        case Qt::Key_Escape:
            return keys_.escape;
        default:
            return false;
    }
}

}  // namespace lumenkit::form
