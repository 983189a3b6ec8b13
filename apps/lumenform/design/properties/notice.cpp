#include "apps/lumenform/design/properties/notice.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

namespace {

const auto utf8Link = QLatin1String("utf8");
const auto pageLink = QLatin1String("page");

QString Link(QLatin1String target, const QString& title) {
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(target, title.toHtmlEscaped());
}

}  // namespace

Notice::Notice(QWidget* parent)
    : QFrame(parent), sign_(new QLabel(this)), text_(new QLabel(this)), links_(new QLabel(this)) {
    sign_->setAlignment(Qt::AlignTop);
    DrawSign();
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setMinimumHeight(text_->fontMetrics().lineSpacing());
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(sign_);
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

void Notice::DrawSign() {
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    const QIcon warning = ThemeIcon(QStringLiteral("dialog-warning"));
    sign_->setPixmap(warning.pixmap({side, side}, devicePixelRatioF()));
}

void Notice::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        DrawSign();
    }
}

}  // namespace lumenkit::lumenform
