#include "runtime/qt/frame_widget.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <memory>

#include <qdrawutil.h>

#include "runtime/qt/mnemonic.h"

namespace lumenkit::qt {

namespace {

class FrameDescription final : public GroupDescription {
 public:
    explicit FrameDescription(FrameWidget& frame)
        : GroupDescription(frame, QAccessible::Grouping), frame_(frame) {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name) {
            return GroupDescription::text(kind);
        }
        const QString caption = frame_.ShownCaption();
        return caption.isEmpty() ? frame_.accessibleName() : caption;
    }

 private:
    FrameWidget& frame_;
};

}  // namespace

void FrameWidget::SetBordered(bool bordered) {
    bordered_ = bordered;
    update();
}

QString FrameWidget::ShownCaption() const {
    return bordered_ ? WithoutMnemonic(title()).trimmed() : QString();
}

QAccessibleInterface* FrameWidget::NewDescription() {
    return std::make_unique<FrameDescription>(*this).release();
}

void FrameWidget::paintEvent(QPaintEvent* /*event*/) {
    if (!bordered_) {
        return;
    }
    constexpr int captionLeft = 8;
    constexpr int gap = 2;
    constexpr int flags = Qt::TextShowMnemonic | Qt::AlignLeft | Qt::AlignTop;
    QPainter painter(this);
    const QSize textSize = fontMetrics().size(Qt::TextShowMnemonic, title());
    const QRect caption(captionLeft, 0, std::min(textSize.width(), width() - 2 * captionLeft),
                        textSize.height());
    if (!title().isEmpty()) {
        painter.setClipRegion(QRegion(rect()) - QRegion(caption.adjusted(-gap, 0, gap, 0)));
    }
    const int top = title().isEmpty() ? 0 : caption.height() / 2;
    qDrawShadeRect(&painter, rect().adjusted(0, top, 0, 0), palette(), true);
    painter.setClipRect(caption);
    style()->drawItemText(&painter, caption, flags, palette(), isEnabled(), title(),
                          QPalette::WindowText);
}

}  // namespace lumenkit::qt
