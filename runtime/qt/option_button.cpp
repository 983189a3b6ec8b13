#include "runtime/qt/option_button.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QPainter>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <functional>
#include <memory>

#include "frame/host/accepted_values.h"
#include "runtime/qt/accessible.h"
#include "runtime/qt/mnemonic.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

// A radio button without Qt's grouping.
class OptionWidget final : public QRadioButton, public SelfDescribing {
 public:
    explicit OptionWidget(QWidget* parent) : QRadioButton(parent) { setAutoExclusive(false); }

    void SetMarkRight(bool right) {
        markRight_ = right;
        update();
    }

    QAccessibleInterface* NewDescription() override;

    std::function<void()> clicked_;
    std::function<void(bool forward)> arrow_;

 protected:
    void nextCheckState() override {
        if (clicked_) {
            clicked_();
        }
    }

    // The whole row is the button: styles accept clicks on the mark and the caption only, at the
    // places where they would draw them.
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }

    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Up:
            case Qt::Key_Left:
                CallArrow(false);
                break;
            case Qt::Key_Down:
            case Qt::Key_Right:
                CallArrow(true);
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
    void CallArrow(bool forward) const {
        if (arrow_) {
            arrow_(forward);
        }
    }

    bool markRight_ = false;
};

namespace {

// Qt takes a button without its grouping for a check box.
class OptionDescription final : public QAccessibleWidget {
 public:
    using Relations = QList<QPair<QAccessibleInterface*, QAccessible::Relation>>;

    explicit OptionDescription(OptionWidget& option)
        : QAccessibleWidget(&option, QAccessible::RadioButton), option_(option) {}

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
            case QAccessible::Name:
                return WithoutMnemonic(option_.text());
            case QAccessible::Accelerator:
                return QKeySequence::mnemonic(option_.text()).toString(QKeySequence::NativeText);
            default:
                return QAccessibleWidget::text(kind);
        }
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = option_.isChecked();
        return state;
    }
    // Qt would give each option the caption of its frame as its label.
    Relations relations(QAccessible::Relation match) const override {
        return QAccessibleWidget::relations(match & ~QAccessible::Relation(QAccessible::Label));
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (option_.isEnabled()) {
            names.prepend(toggleAction());
        }
        return names;
    }
    void doAction(const QString& name) override {
        if (name == toggleAction()) {
            option_.click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

 private:
    OptionWidget& option_;
};

}  // namespace

QAccessibleInterface* OptionWidget::NewDescription() {
    return std::make_unique<OptionDescription>(*this).release();
}

OptionButton::OptionButton(Elements& elements, const host::OptionButtonDesign& design,
                           OptionGroup& group)
    : BasicCaptioned(elements, design, design.caption), group_(group) {
    auto button = std::make_unique<OptionWidget>(&ParentFor(elements, design));
    button->clicked_ = [this] { HandleEvent(Errors(), [this] { group_.Choose(*this); }); };
    button->arrow_ = [this](bool forward) {
        HandleEvent(Errors(), [this, forward] { Step(forward); });
    };
    Adopt(std::move(button));
    ShowFont();
    ShowColors();
    ShowCaption();
    BecomeTabStop(false);
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
    group_.PlaceTabStop();
}

void OptionButton::SetEnabled(bool enabled) {
    BasicCaptioned::SetEnabled(enabled);
    group_.PlaceTabStop();
}

void OptionButton::Select(bool selected) {
    const Notifying notifying;
    if (selected) {
        group_.Choose(*this);
    } else {
        group_.Release(*this);
    }
}

// Moves the focus to a neighbour and chooses it.
void OptionButton::Step(bool forward) {
    OptionButton* const next = group_.Neighbour(*this, forward);
    if (next != nullptr && next != this) {
        next->Widget()->setFocus(Qt::OtherFocusReason);
        group_.Choose(*next);
    }
}

void OptionButton::Mark(bool selected) {
    Button().setChecked(selected);
}

void OptionButton::BecomeTabStop(bool stops) {
    if (UserMode()) {
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
    const QPalette& base = Area().palette();
    if (foreColor_ == Color::ButtonText) {
        if (Button().testAttribute(Qt::WA_SetPalette)) {
            Button().setPalette({});  // the palette greys it when it is disabled
        }
        return;
    }
    QPalette palette = base;
    for (const QPalette::ColorGroup usable : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(usable, QPalette::WindowText, ToQColor(foreColor_, base));
    }
    Button().setPalette(palette);  // a disabled button is grey
}

}  // namespace lumenkit::qt
