#include "apps/lumenform/design/properties/filter_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

FilterBar::FilterBar(QWidget* parent)
    : QWidget(parent), field_(new QLineEdit(this)), groups_(new QToolButton(this)) {
    field_->setPlaceholderText(tr("Filter (Ctrl+F)"));
    field_->setAccessibleName(tr("Filter of the properties"));
    field_->addAction(ThemeIcon(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    field_->setClearButtonEnabled(true);
    field_->installEventFilter(this);
    groups_->setIcon(ThemeIcon(QStringLiteral("view-group")));
    groups_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    groups_->setText(tr("Groups"));
    groups_->setToolTip(tr("Group the properties, or sort them by name"));
    groups_->setCheckable(true);
    groups_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field_, 1);
    layout->addWidget(groups_);
    connect(field_, &QLineEdit::textChanged, this, &FilterBar::Filtered);
    connect(groups_, &QToolButton::toggled, this, &FilterBar::Grouped);
}

bool FilterBar::HandleKey(int key) {
    switch (key) {
        case Qt::Key_Escape:
            field_->clear();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Down:
            break;
        default:
            return false;
    }
    Q_EMIT Left();
    return true;
}

bool FilterBar::eventFilter(QObject* object, QEvent* event) {
    if (object != field_) {
        return QWidget::eventFilter(object, event);
    }
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
                event->accept();
            }
            return false;
        case QEvent::KeyPress:
            return HandleKey(static_cast<QKeyEvent*>(event)->key());
        default:
            return false;
    }
}

}  // namespace lumenkit::lumenform
