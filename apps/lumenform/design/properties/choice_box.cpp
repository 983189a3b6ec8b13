#include "apps/lumenform/design/properties/choice_box.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

namespace lumenkit::lumenform {

ChoiceBox::ChoiceBox(QWidget* parent) : QComboBox(parent) {
    setAutoFillBackground(true);
    connect(this, &QComboBox::activated, this, [this] {
        if (!byKeys_) {
            Q_EMIT Picked();
        }
    });
}

void ChoiceBox::keyPressEvent(QKeyEvent* event) {
    const QScopedValueRollback byKeys(byKeys_, true);
    QComboBox::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();  // the delegate commits; the list must not start editing again
    }
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace lumenkit::lumenform
