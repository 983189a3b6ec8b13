#include "apps/lumenform/form_view/simple_combo.h"

#include <QEvent>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

namespace lumenkit::lumenform {

SimpleCombo::SimpleCombo(const QStringList& items, const QString& text)
    : edit_(new LineEdit(text, this)), list_(new QListWidget(this)) {
    list_->addItems(items);
    list_->setFocusPolicy(Qt::NoFocus);  // the keys of the list work in the box
    edit_->setCursorPosition(0);
    setFocusProxy(edit_);
    setFocusPolicy(Qt::StrongFocus);
    SelectItemOf(text);
    connect(edit_, &QLineEdit::textEdited, this, &SimpleCombo::SelectItemOf);
    connect(list_, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { Choose(list_->row(item)); });
}

void SimpleCombo::SelectItemOf(const QString& text) {
    const QList<QListWidgetItem*> found = list_->findItems(text, Qt::MatchFixedString);
    list_->setCurrentItem(found.isEmpty() ? nullptr : found.first());
    if (found.isEmpty()) {
        list_->clearSelection();
    }
}

void SimpleCombo::Choose(int row) {
    list_->setCurrentRow(row);
    edit_->setText(list_->item(row)->text());
    edit_->selectAll();
    if (chosen_) {
        chosen_();
    }
}

void SimpleCombo::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        Arrange();
    }
}

// The box does not use these keys itself.
void SimpleCombo::keyPressEvent(QKeyEvent* event) {
    const bool goesDown = event->key() == Qt::Key_Down;
    if ((!goesDown && event->key() != Qt::Key_Up) || list_->count() == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int row = list_->currentRow() + (goesDown ? 1 : -1);
    if (row >= 0 && row < list_->count()) {
        Choose(row);
    }
}

void SimpleCombo::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

void SimpleCombo::Arrange() {
    const int box = std::min(edit_->sizeHint().height(), height());
    edit_->setGeometry(0, 0, width(), box);
    list_->setGeometry(0, box, width(), height() - box);
    list_->setVisible(height() > box);
}

}  // namespace lumenkit::lumenform
