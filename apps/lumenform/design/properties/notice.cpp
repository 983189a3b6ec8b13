#include "apps/lumenform/design/properties/notice.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QStyle>

namespace lumenkit::lumenform {

Notice::Notice(QWidget* parent) : QFrame(parent), text_(new QLabel(this)) {
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    auto* const sign = new QLabel(this);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap({side, side}));
    sign->setAlignment(Qt::AlignTop);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setMinimumHeight(text_->fontMetrics().lineSpacing());
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(sign);
    layout->addWidget(text_, 1);
    hide();
}

void Notice::Say(const QString& text) {
    text_->setText(text);
    setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        QAccessibleEvent event(text_, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace lumenkit::lumenform
