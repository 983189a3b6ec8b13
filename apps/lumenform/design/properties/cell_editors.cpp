#include "apps/lumenform/design/properties/cell_editors.h"

#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QWheelEvent>

#include "apps/lumenform/design/look/focus_look.h"

namespace lumenkit::lumenform {

namespace {

constexpr int frameWidth = 2;

}  // namespace

bool IsMore(const QKeyEvent& key) {
    return (key.key() == Qt::Key_F4 && key.modifiers() == Qt::NoModifier) ||
           (key.key() == Qt::Key_Down && key.modifiers().testFlag(Qt::AltModifier));
}

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

void ChoiceBox::paintEvent(QPaintEvent* event) {
    QComboBox::paintEvent(event);
    if (hasFocus()) {
        DrawFocusFrame(*this);
    }
}

ValueEditor::ValueEditor(bool hasMore, QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(this)), hasMore_(hasMore) {
    setAutoFillBackground(true);
    setFocusProxy(line_);
    line_->setFrame(false);
    line_->installEventFilter(this);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(frameWidth, frameWidth, frameWidth, frameWidth);
    layout->setSpacing(0);
    layout->addWidget(line_);
    if (hasMore) {
        auto* const more = new QToolButton(this);
        more->setText(QStringLiteral("..."));
        more->setAccessibleName(tr("More"));
        more->setToolTip(tr("More (F4)"));
        more->setFocusPolicy(Qt::NoFocus);
        more->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        layout->addWidget(more);
        connect(more, &QToolButton::clicked, this, &ValueEditor::MoreWanted);
    }
}

void ValueEditor::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (line_->hasFocus()) {
        DrawFocusFrame(*this);
    }
}

bool ValueEditor::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        update();
    }
    return QWidget::eventFilter(object, event);
}

}  // namespace lumenkit::lumenform
