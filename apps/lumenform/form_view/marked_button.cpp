#include "apps/lumenform/form_view/marked_button.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "apps/lumenform/form_view/caption_text.h"

namespace lumenkit::lumenform {

namespace {

// The parts of a style from which a kind of button is drawn.
struct Parts {
    QStyle::PrimitiveElement mark;
    QStyle::SubElement markRect;
    QStyle::SubElement captionRect;
};
constexpr Parts checkBoxParts = {QStyle::PE_IndicatorCheckBox, QStyle::SE_CheckBoxIndicator,
                                 QStyle::SE_CheckBoxContents};
constexpr Parts optionParts = {QStyle::PE_IndicatorRadioButton, QStyle::SE_RadioButtonIndicator,
                               QStyle::SE_RadioButtonContents};

// The mark has the system's colours, whatever the colours of the button are.
void DrawMark(QPainter& painter, const QAbstractButton& button, QStyleOptionButton option,
              const Parts& parts) {
    QPalette::ColorGroup group = option.palette.currentColorGroup();
    option.rect = button.style()->subElementRect(parts.markRect, &option, &button);
    if (option.state.testFlag(QStyle::State_NoChange)) {
        option.state &= ~(QStyle::State_NoChange | QStyle::State_Enabled);
        option.state |= QStyle::State_On;
        group = QPalette::Disabled;
    }
    option.palette = QApplication::palette(&button);
    option.palette.setCurrentColorGroup(group);
    button.style()->drawPrimitive(parts.mark, &option, &painter, &button);
}

void DrawFocus(QPainter& painter, const QAbstractButton& button, const QStyleOptionButton& option,
               const QRect& around) {
    QStyleOptionFocusRect focus;
    focus.initFrom(&button);
    focus.rect = around.adjusted(-1, -1, 1, 1).intersected(button.rect());
    focus.backgroundColor = option.palette.color(QPalette::Window);
    button.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, &button);
}

// The caption begins at the left on both sides of the mark.
void DrawMarked(QPainter& painter, const QAbstractButton& button, QStyleOptionButton option,
                const Parts& parts, bool isMarkRight) {
    option.direction = isMarkRight ? Qt::RightToLeft : Qt::LeftToRight;
    DrawMark(painter, button, option, parts);
    const CaptionText caption{
        .text = button.text(),
        .room = button.style()->subElementRect(parts.captionRect, &option, &button)};
    DrawCaption(painter, button, caption, option.palette, QPalette::WindowText);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        const QRect mark = button.style()->subElementRect(parts.markRect, &option, &button);
        DrawFocus(painter, button, option,
                  caption.text.isEmpty() ? mark : TextRect(painter, caption));
    }
}

void Draw(const MarkedLook& look, QAbstractButton& button, const QStyleOptionButton& option,
          const Parts& parts) {
    QPainter painter(&button);
    if (look.push) {
        look.push->Draw(painter, button, option);
    } else {
        DrawMarked(painter, button, option, parts, look.isMarkRight);
    }
}

}  // namespace

// Qt would step through all three states.
void CheckBox::nextCheckState() {
    setTristate(false);
    setChecked(!isChecked());
}

void CheckBox::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionButton option;
    initStyleOption(&option);
    Draw(look_, *this, option, checkBoxParts);
}

void OptionBox::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionButton option;
    initStyleOption(&option);
    Draw(look_, *this, option, optionParts);
}

}  // namespace lumenkit::lumenform
