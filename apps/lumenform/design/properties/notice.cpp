#include "apps/lumenform/design/properties/notice.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

namespace lumenkit::lumenform {

namespace {

const auto utf8Link = QLatin1String("utf8");
const auto pageLink = QLatin1String("page");

QString Link(QLatin1String target, const QString& title) {
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(target, title.toHtmlEscaped());
}

}  // namespace

Notice::Notice(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), links_(new QLabel(this)) {
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
    auto* const texts = new QVBoxLayout;
    texts->addWidget(text_);
    texts->addWidget(links_);
    layout->addLayout(texts, 1);
    links_->setText(Link(utf8Link, tr("Write the form in UTF-8")) + QStringLiteral(" &nbsp; ") +
                    Link(pageLink, tr("Another code page…")));
    links_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(links_, &QLabel::linkActivated, this, [this](const QString& target) {
        if (target == utf8Link) {
            Q_EMIT Utf8Wanted();
        } else {
            Q_EMIT OtherPageWanted();
        }
    });
    hide();
}

void Notice::Say(const QString& text, bool offersEncodings) {
    text_->setText(text);
    links_->setVisible(offersEncodings && !text.isEmpty());
    setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        QAccessibleEvent event(text_, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace lumenkit::lumenform
