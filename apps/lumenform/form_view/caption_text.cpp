#include "apps/lumenform/form_view/caption_text.h"

#include <QStyle>

namespace lumenkit::lumenform {

namespace {

constexpr int wrapped = Qt::TextShowMnemonic | Qt::TextWordWrap;

QSize SizeOf(QPainter& painter, const CaptionText& caption) {
    const QRect endless(0, 0, caption.room.width(), QWIDGETSIZE_MAX);
    return painter
        .boundingRect(endless, wrapped | int{Qt::AlignLeft} | int{Qt::AlignTop}, caption.text)
        .size();
}

Qt::Alignment AlignmentFor(const CaptionText& caption, QSize size) {
    const Qt::Alignment across =
        size.width() > caption.room.width() ? Qt::AlignLeft : caption.across;
    return across | (size.height() > caption.room.height() ? Qt::AlignTop : Qt::AlignVCenter);
}

}  // namespace

QRect TextRect(QPainter& painter, const CaptionText& caption) {
    const QSize size = SizeOf(painter, caption);
    return QStyle::alignedRect(Qt::LeftToRight, AlignmentFor(caption, size),
                               size.boundedTo(caption.room.size()), caption.room);
}

void DrawCaption(QPainter& painter, const QWidget& widget, const CaptionText& caption,
                 const QPalette& palette, QPalette::ColorRole role) {
    const Qt::Alignment alignment = AlignmentFor(caption, SizeOf(painter, caption));
    const bool isEnabled = palette.currentColorGroup() != QPalette::Disabled;
    widget.style()->drawItemText(&painter, caption.room, wrapped | static_cast<int>(alignment),
                                 palette, isEnabled, caption.text, role);
}

}  // namespace lumenkit::lumenform
