#include "apps/lumenform/form_view/push_look.h"

#include <QIcon>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <algorithm>

#include <qdrawutil.h>

#include "apps/lumenform/form_view/caption_text.h"
#include "apps/lumenform/form_view/companion_records.h"
#include "apps/lumenform/form_view/look.h"

namespace lumenkit::lumenform {

namespace {

constexpr QStyle::State pressed = QStyle::State_Sunken | QStyle::State_On;

// A colour that is visibly different, for the pressed button.
QColor Shaded(const QColor& color) {
    constexpr int dark = 64;
    constexpr int shade = 120;
    constexpr int lift = 48;
    if (qGray(color.rgb()) >= dark) {
        return color.darker(shade);
    }
    return {color.red() + lift / 2, color.green() + lift / 2, color.blue() + lift / 2};
}

void DrawColoredFace(QPainter& painter, const QStyleOptionButton& option) {
    const QColor color = option.palette.color(QPalette::Window);
    const bool isPressed = (option.state & pressed) != QStyle::State_None;
    QRect face = option.rect;
    if (option.features.testFlag(QStyleOptionButton::DefaultButton)) {
        qDrawPlainRect(&painter, face, option.palette.color(QPalette::WindowText));
        face.adjust(1, 1, -1, -1);
    }
    const QBrush filling(isPressed ? Shaded(color) : color);
    qDrawWinButton(&painter, face, QPalette(color), isPressed, &filling);
}

// Draws a picture in the middle. One that does not fit begins at the left or at the top.
void DrawPicture(QPainter& painter, const QPixmap& picture, const QRect& room) {
    if (room.isEmpty()) {
        return;
    }
    const QRect shown = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                            picture.size().boundedTo(room.size()), room);
    painter.drawPixmap(shown.topLeft(), picture, QRect(QPoint(), shown.size()));
}

}  // namespace

bool IsGraphical(const BlockReader& reader) {
    return reader.Whole(u"Style", 0) == 1;
}

PushLook PushLook::Graphical(const BlockReader& reader) {
    PushLook look;
    look.picture_ = PictureIn(reader.Record(u"Picture"));
    look.downPicture_ = PictureIn(reader.Record(u"DownPicture"));
    look.disabledPicture_ = PictureIn(reader.Record(u"DisabledPicture"));
    look.hasColor_ = reader.ColorOf(u"BackColor", Color::ButtonFace) != Color::ButtonFace;
    look.hasTextColor_ = reader.ColorOf(u"ForeColor", Color::ButtonText) != Color::ButtonText;
    return look;
}

void PushLook::Draw(QPainter& painter, const QAbstractButton& button,
                    QStyleOptionButton option) const {
    if (option.state.testFlag(QStyle::State_NoChange)) {
        option.state |= QStyle::State_On;
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    if ((option.state & pressed) == QStyle::State_None) {
        option.state |= QStyle::State_Raised;
    }
    option.text.clear();
    option.icon = QIcon();
    DrawFace(painter, button, option);
    DrawContents(painter, button, option);
}

void PushLook::DrawFace(QPainter& painter, const QAbstractButton& button,
                        const QStyleOptionButton& option) const {
    QStyle& style = *button.style();
    if (!hasColor_) {
        style.drawControl(QStyle::CE_PushButton, &option, &painter, &button);
        return;
    }
    DrawColoredFace(painter, option);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.initFrom(&button);
        focus.rect = style.subElementRect(QStyle::SE_PushButtonFocusRect, &option, &button);
        focus.backgroundColor = option.palette.color(QPalette::Window);
        style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, &button);
    }
}

void PushLook::DrawContents(QPainter& painter, const QAbstractButton& button,
                            const QStyleOptionButton& option) const {
    constexpr int gap = 2;
    const bool isEnabled = option.palette.currentColorGroup() != QPalette::Disabled;
    const QPixmap picture = PictureFor(isEnabled, (option.state & pressed) != QStyle::State_None);
    CaptionText caption{
        .text = button.text(),
        .room = button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button),
        .across = Qt::AlignHCenter};
    if (!picture.isNull()) {
        // The picture and the caption are centred as one. The caption takes its lines first.
        const QRect all = caption.room;
        const int text = caption.text.isEmpty() ? 0 : TextRect(painter, caption).height();
        const int space = text == 0 ? 0 : gap;
        const int height = std::min(picture.height() + space + text, all.height());
        const QRect both(all.left(), all.top() + (all.height() - height) / 2, all.width(), height);
        caption.room = both.adjusted(0, both.height() - text, 0, 0);
        DrawPicture(painter, picture, both.adjusted(0, 0, 0, -text - space));
    }
    DrawCaption(painter, button, caption, TextPalette(option.palette), QPalette::ButtonText);
}

// A caption of the system's colour stays readable on the button's own background.
QPalette PushLook::TextPalette(const QPalette& palette) const {
    QPalette own = palette;
    const QColor back = palette.color(QPalette::Window);
    const bool isGrey = palette.currentColorGroup() == QPalette::Disabled;
    if (hasColor_ && !hasTextColor_ && !isGrey &&
        !IsReadable(palette.color(QPalette::ButtonText), back)) {
        own.setColor(palette.currentColorGroup(), QPalette::ButtonText, ReadableOn(back));
    }
    return own;
}

QPixmap PushLook::PictureFor(bool isEnabled, bool isPressed) const {
    if (!isEnabled && !disabledPicture_.isNull()) {
        return disabledPicture_;
    }
    const QPixmap& picture = isPressed && !downPicture_.isNull() ? downPicture_ : picture_;
    return isEnabled || picture.isNull() ? picture
                                         : QIcon(picture).pixmap(picture.size(), QIcon::Disabled);
}

}  // namespace lumenkit::lumenform
