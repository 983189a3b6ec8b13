#include "runtime/qt/frame.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyle>
#include <algorithm>

#include <qdrawutil.h>

#include "frame/host/accepted_values.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

// A group box as classic forms draw it: the caption stands in the border's upper line.
class FrameWidget final : public QGroupBox {
 public:
    using QGroupBox::QGroupBox;

    void SetBordered(bool bordered) {
        bordered_ = bordered;
        update();
    }

 protected:
    void paintEvent(QPaintEvent* /*event*/) override {
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

 private:
    bool bordered_ = true;
};

Frame::Frame(Constituents& owner, const host::CaptionDesign& design)
    : BasicCaptioned(owner, design, design.caption) {
    Adopt(std::make_unique<FrameWidget>(&ParentFor(owner, design)));
    ApplyFont();
    ShowCaption();
}

FrameWidget& Frame::Box() const {
    return static_cast<FrameWidget&>(*Widget());
}

void Frame::ShowCaption() {
    Box().setTitle(ToQString(CaptionNow()));
}

void Frame::SetBorderStyle(std::int16_t style) {
    borderStyle_ = AcceptedNumber<std::int16_t>(style, 0, 1);
    Box().SetBordered(style == 1);
}

}  // namespace lumenkit::qt
