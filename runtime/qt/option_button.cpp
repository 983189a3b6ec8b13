#include "runtime/qt/option_button.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <functional>

#include "frame/host/accepted_values.h"
#include "runtime/qt/option_buttons.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

// A radio button without Qt's grouping. Its callbacks ask the group to select it or to move to a
// neighbour.
class OptionWidget final : public QRadioButton {
 public:
    explicit OptionWidget(QWidget* parent) : QRadioButton(parent) { setAutoExclusive(false); }

    void SetMarkRight(bool right) {
        markRight_ = right;
        update();
    }

    std::function<void()> clicked_;
    std::function<void(int)> arrow_;  // -1 or 1

 protected:
    void nextCheckState() override {
        if (clicked_) {
            clicked_();
        }
    }

    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Up:
            case Qt::Key_Left:
                GoTo(-1);
                break;
            case Qt::Key_Down:
            case Qt::Key_Right:
                GoTo(1);
                break;
            default:
                QRadioButton::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent* event) override {
        if (!markRight_) {
            QRadioButton::paintEvent(event);
            return;
        }
        // Draw the mark at the right edge and the caption from the left edge.
        constexpr int gap = 4;
        constexpr int flags = Qt::TextShowMnemonic | Qt::AlignLeft | Qt::AlignVCenter;
        QPainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        option.direction = Qt::RightToLeft;
        const QRect mark = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
        option.rect = mark;
        style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &painter, this);
        const QRect room = rect().adjusted(0, 0, -mark.width() - gap, 0);
        style()->drawItemText(&painter, room, flags, palette(), isEnabled(), text(),
                              QPalette::WindowText);
        if (option.state.testFlag(QStyle::State_HasFocus)) {
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.rect = room;
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
        }
    }

 private:
    void GoTo(int direction) const {
        if (arrow_) {
            arrow_(direction);
        }
    }

    bool markRight_ = false;
};

OptionButton::OptionButton(Constituents& owner, const host::OptionButtonDesign& design,
                           OptionButtons& group)
    : BasicCaptioned(owner, design, design.caption), group_(group) {
    auto button = std::make_unique<OptionWidget>(&ParentFor(owner, design));
    button->clicked_ = [this] { HandleEvent(Errors(), [this] { group_.Choose(*this); }); };
    button->arrow_ = [this](int direction) {
        HandleEvent(Errors(), [this, direction] { group_.GoFrom(*this, direction); });
    };
    Adopt(std::move(button));
    ShowFont();
    ShowColors();
    ShowCaption();
}

OptionWidget& OptionButton::Button() const {
    return static_cast<OptionWidget&>(*Widget());
}

void OptionButton::Disconnect() {
    if (Widget() != nullptr) {
        Button().clicked_ = nullptr;
        Button().arrow_ = nullptr;
    }
}

void OptionButton::ShowCaption() {
    Button().setText(ToQString(CaptionNow()));
}

void OptionButton::SetVisible(bool visible) {
    BasicCaptioned::SetVisible(visible);
    group_.UpdateTabStops(*this);
}

void OptionButton::SetEnabled(bool enabled) {
    BasicCaptioned::SetEnabled(enabled);
    group_.UpdateTabStops(*this);
}

void OptionButton::Select(bool selected) {
    if (selected) {
        group_.Choose(*this);
    } else {
        Mark(false);
        group_.UpdateTabStops();
    }
}

void OptionButton::Mark(bool selected) {
    selected_ = selected;
    Button().setChecked(selected);
}

void OptionButton::SetTabStop(bool stops) {
    if (Owner().UserMode()) {
        Button().setFocusPolicy(stops ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void OptionButton::SetAlignment(std::int16_t alignment) {
    alignment_ = AcceptedNumber<std::int16_t>(alignment, 0, 1);
    Button().SetMarkRight(alignment == 1);
}

void OptionButton::SetForeColor(Color color) {
    foreColor_ = color;
    ShowColors();
}

void OptionButton::ShowColors() {
    const QPalette& base = Owner().Area().palette();
    if (foreColor_ == Color::ButtonText) {
        if (Button().testAttribute(Qt::WA_SetPalette)) {
            Button().setPalette({});  // the palette greys it when it is disabled
        }
        return;
    }
    QPalette palette = base;
    palette.setColor(QPalette::WindowText, ToQColor(foreColor_, base));
    Button().setPalette(palette);
}

}  // namespace lumenkit::qt
