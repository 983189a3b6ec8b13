#include "apps/lumenform/form_view/command_button.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace lumenkit::lumenform {

void CommandButton::SetKeys(Keys keys) {
    keys_ = keys;
    setDefault(keys.enter);
    setAutoDefault(true);  // Enter clicks the button that has the focus
}

// Outside dialogs, Qt resets the default state of a button that loses the focus.
void CommandButton::focusOutEvent(QFocusEvent* event) {
    QPushButton::focusOutEvent(event);
    setDefault(keys_.enter);
}

void CommandButton::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    look_.Draw(painter, *this, option);
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

}  // namespace lumenkit::lumenform
