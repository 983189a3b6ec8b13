#include <QStyle>
#include <QStyleOptionToolButton>
#include <algorithm>
#include <utility>
#include <vector>

#include "apps/lumenform/form_view/likeness/bars.h"
#include "apps/lumenform/form_view/likeness/item_groups.h"
#include "apps/lumenform/form_view/likeness/list_pictures.h"
#include "apps/lumenform/form_view/likeness/painted.h"
#include "apps/lumenform/form_view/likeness/still.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

struct ToolButton {
    enum Style : std::int32_t { Plain, Check, Group, Separator, Gap, DropDown };

    Style style = Plain;
    QString caption;
    QPixmap picture;
    bool isEnabled = true;
    bool isPressed = false;
    int width = 0;  // of a gap; pixels
};

struct ToolBarContent {
    std::vector<ToolButton> buttons;
    QSize button;
    bool isFlat = false;
    bool isBesideText = false;  // the text is beside the picture and not below it
};

constexpr int separatorWidth = 8;
constexpr int arrowWidth = 12;

class ToolBarPainter {
 public:
    ToolBarPainter(const ToolBarContent& content, const QWidget& widget, QPainter& painter)
        : content_(content), widget_(widget), painter_(painter) {}

    // Buttons that do not fit begin a new row.
    void Paint() {
        constexpr int margin = 2;
        QPoint at(0, margin);
        painter_.setPen(widget_.palette().color(QPalette::Mid));
        painter_.drawLine(0, 0, widget_.width() - 1, 0);
        for (const ToolButton& button : content_.buttons) {
            const int width = WidthOf(button);
            if (at.x() > 0 && at.x() + width > widget_.width()) {
                at = QPoint(0, at.y() + content_.button.height());
            }
            if (at.y() >= widget_.height()) {
                return;
            }
            PaintButton(button, QRect(at, QSize(width, content_.button.height())));
            at.rx() += width;
        }
    }

 private:
    int WidthOf(const ToolButton& button) const {
        switch (button.style) {
            case ToolButton::Separator:
                return separatorWidth;
            case ToolButton::Gap:
                return button.width;
            case ToolButton::DropDown:
                return content_.button.width() + arrowWidth;
            default:
                return content_.button.width();
        }
    }

    void PaintButton(const ToolButton& button, const QRect& where) const {
        if (button.style == ToolButton::Gap) {
            return;
        }
        if (button.style == ToolButton::Separator) {
            QStyleOption line;
            line.initFrom(&widget_);
            line.rect = where.adjusted(0, 2, 0, -2);
            line.state |= QStyle::State_Horizontal;
            widget_.style()->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &line, &painter_,
                                           &widget_);
            return;
        }
        QStyleOptionToolButton option = OptionOf(button);
        option.rect = where;
        widget_.style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter_, &widget_);
    }

    QStyleOptionToolButton OptionOf(const ToolButton& button) const {
        QStyleOptionToolButton option;
        option.initFrom(&widget_);
        option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
        option.state.setFlag(QStyle::State_AutoRaise, content_.isFlat);
        option.state.setFlag(QStyle::State_Raised, !button.isPressed);
        option.state.setFlag(QStyle::State_On, button.isPressed);
        option.state.setFlag(QStyle::State_Enabled, widget_.isEnabled() && button.isEnabled);
        if (!button.isEnabled) {
            option.palette.setCurrentColorGroup(QPalette::Disabled);
        }
        option.subControls = QStyle::SC_ToolButton;
        if (button.style == ToolButton::DropDown) {
            option.subControls |= QStyle::SC_ToolButtonMenu;
            option.features = QStyleOptionToolButton::MenuButtonPopup;
        }
        option.text = button.caption;
        option.icon = button.picture;
        option.iconSize = button.picture.size();
        option.font = widget_.font();
        option.toolButtonStyle = button.picture.isNull()    ? Qt::ToolButtonTextOnly
                                 : button.caption.isEmpty() ? Qt::ToolButtonIconOnly
                                 : content_.isBesideText    ? Qt::ToolButtonTextBesideIcon
                                                            : Qt::ToolButtonTextUnderIcon;
        return option;
    }

    const ToolBarContent& content_;
    const QWidget& widget_;
    QPainter& painter_;
};

std::vector<ToolButton> ToolButtonsOf(const BlockReader& reader) {
    ListPictures pictures(reader);
    std::vector<ToolButton> buttons;
    for (const BlockReader& saved : NumberedGroups(reader, u"Buttons", u"Button")) {
        ToolButton button;
        button.style = static_cast<ToolButton::Style>(
            saved.Choice(u"Style", ToolButton::DropDown + 1, ToolButton::Plain));
        button.caption = qt::ToQString(saved.String(u"Caption"));
        button.picture = pictures.Of(saved, u"ImageIndex", u"ImageKey");
        button.isEnabled = saved.Flag(u"Enabled", true);
        button.isPressed = saved.Whole(u"Value", 0) == 1;
        button.width = PixelsOfExtent(saved.Number(u"Object.Width", 0));
        if (saved.Flag(u"Object.Visible", true)) {
            buttons.push_back(std::move(button));
        }
    }
    return buttons;
}

}  // namespace

PlainWidget MakeToolBar(const BlockReader& reader, const PlainSink& /*raise*/) {
    constexpr float usualWidth = 609;  // hundredths of a millimetre
    constexpr float usualHeight = 582;
    constexpr int smallest = 8;  // pixels
    const auto length = [&](TextView name, float otherwise) {
        return std::max(PixelsOfExtent(reader.Number(name, otherwise)), smallest);
    };
    ToolBarContent content;
    content.buttons = ToolButtonsOf(reader);
    content.button = {length(u"ButtonWidth", usualWidth), length(u"ButtonHeight", usualHeight)};
    content.isFlat = reader.Whole(u"Style", 0) == 1;
    content.isBesideText = reader.Whole(u"TextAlignment", 0) == 1;
    const auto paint = [content = std::move(content)](const QWidget& widget, QPainter& painter) {
        ToolBarPainter(content, widget, painter).Paint();
    };
    auto bar = std::make_unique<Painted>(QAccessible::ToolBar, paint);
    bar->setAutoFillBackground(true);
    return Likeness(reader, std::move(bar));
}

}  // namespace lumenkit::lumenform
