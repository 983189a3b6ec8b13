#include "voptlist/voptlist.h"

#include <algorithm>
#include <array>

#include <lumenkit/widgets/voptlist.h>

#include "widgets/core/emit_change.h"
#include "widgets/core/program.h"
#include "widgets/core/properties.h"

namespace lumenkit::widgets {

namespace {

// The text of the selected item is its value too.
void EmitTextAndValue(ControlWidget& widget) {
    auto& list = static_cast<VOptList&>(widget);
    const QPointer<VOptList> alive(&list);
    const QString text = list.text();
    Q_EMIT list.textChanged(text);
    if (alive != nullptr) {
        Q_EMIT list.valueChanged(text);
    }
}

constexpr std::array listNotifications = {
    Notification{u"Text", EmitTextAndValue},
    Notification{u"BorderStyle", EmitChange<&VOptList::borderStyle, &VOptList::borderStyleChanged>},
    Notification{u"Caption", EmitChange<&VOptList::caption, &VOptList::captionChanged>},
    Notification{u"Contents", EmitChange<&VOptList::contents, &VOptList::contentsChanged>},
    Notification{u"ItemAlignment",
                 EmitChange<&VOptList::itemAlignment, &VOptList::itemAlignmentChanged>},
    Notification{u"ItemFontBold",
                 EmitChange<&VOptList::itemFontBold, &VOptList::itemFontBoldChanged>},
    Notification{u"ItemFontItalic",
                 EmitChange<&VOptList::itemFontItalic, &VOptList::itemFontItalicChanged>},
    Notification{u"ItemFontName",
                 EmitChange<&VOptList::itemFontName, &VOptList::itemFontNameChanged>},
    Notification{u"ItemFontSize",
                 EmitChange<&VOptList::itemFontSize, &VOptList::itemFontSizeChanged>},
    Notification{u"ItemForeColor",
                 EmitChange<&VOptList::itemForeColor, &VOptList::itemForeColorChanged>},
    Notification{u"LeftMargin", EmitChange<&VOptList::leftMargin, &VOptList::leftMarginChanged>},
    Notification{u"ListIndex", EmitChange<&VOptList::listIndex, &VOptList::listIndexChanged>},
    Notification{u"Spacing", EmitChange<&VOptList::spacing, &VOptList::spacingChanged>},
    Notification{u"TopMargin", EmitChange<&VOptList::topMargin, &VOptList::topMarginChanged>},
};

// Other contents may have other items in the place of the selected one.
constexpr std::array<TextView, 2> watchedOfList = {u"ListIndex", u"Text"};
constexpr std::array<TextView, 3> derivedOfList = {u"ListIndex", u"Text", u"Value"};
constexpr std::array<TextView, 3> savedOfList = {u"LeftMargin", u"Spacing", u"TopMargin"};

void RaiseListEvent(ControlWidget& widget, std::int32_t event, std::span<Value> /*arguments*/) {
    if (static_cast<VOptListEvent>(event) == VOptListEvent::Click) {
        Q_EMIT static_cast<VOptList&>(widget).click();
    }
}

// Room for the caption of the frame and for all buttons where the control has placed them.
QSize IdealListSize(ControlCore& core, int /*width*/) {
    constexpr int border = 8;
    qt::HostedControl& live = core.Live();
    QSize size(
        core.Owner().fontMetrics().horizontalAdvance(StringOf(core, u"Caption")) + 4 * border,
        core.Owner().fontMetrics().height() + 2 * border);
    for (const qt::Element* const element : live.Parts().All()) {
        const QWidget* const button = element->Widget();
        if (button == nullptr || element->Index() < 0 || button->isHidden()) {
            continue;
        }
        const QPoint end =
            button->mapTo(&live, QPoint(button->sizeHint().width(), button->height()));
        size = size.expandedTo(QSize(end.x() + border, end.y() + border));
    }
    return size;
}

const WidgetClass listClass = {
    .programmaticIdentifier = u"lumenkit.VOptList",
    .notifications = listNotifications,
    .raise = RaiseListEvent,
    .watched = watchedOfList,
    .derived = derivedOfList,
    .readAsSaved = savedOfList,
    .idealSize = IdealListSize,
    .wraps = nullptr,
};

}  // namespace

VOptList::VOptList(QWidget* parent)
    : ControlWidget(std::make_unique<ControlCore>(listClass, Program()), parent) {
    setFocusPolicy(Qt::StrongFocus);
}

VOptList::VOptList(const QString& contents, QWidget* parent) : VOptList(parent) {
    setContents(contents);
}

VOptList::~VOptList() = default;

QString VOptList::text() const {
    return StringOf(core(), u"Text");
}
void VOptList::setText(const QString& text) {
    core().WriteLater(u"Text", {qt::ToText(text)});
}
QString VOptList::value() const {
    return StringOf(core(), u"Value");
}

VOptList::BorderStyle VOptList::borderStyle() const {
    return static_cast<BorderStyle>(core().Get<std::int16_t>(u"BorderStyle"));
}
void VOptList::setBorderStyle(BorderStyle style) {
    PutNumber(core(), u"BorderStyle", style);
}

QString VOptList::caption() const {
    return StringOf(core(), u"Caption");
}
void VOptList::setCaption(const QString& caption) {
    PutString(core(), u"Caption", caption);
}

QString VOptList::contents() const {
    return StringOf(core(), u"Contents");
}
void VOptList::setContents(const QString& contents) {
    PutString(core(), u"Contents", contents);
}

VOptList::ItemAlignment VOptList::itemAlignment() const {
    return static_cast<ItemAlignment>(core().Get<std::int16_t>(u"ItemAlignment"));
}
void VOptList::setItemAlignment(ItemAlignment alignment) {
    PutNumber(core(), u"ItemAlignment", alignment);
}

bool VOptList::itemFontBold() const {
    return core().Get<bool>(u"ItemFontBold");
}
void VOptList::setItemFontBold(bool bold) {
    core().Write(u"ItemFontBold", bold);
}

bool VOptList::itemFontItalic() const {
    return core().Get<bool>(u"ItemFontItalic");
}
void VOptList::setItemFontItalic(bool italic) {
    core().Write(u"ItemFontItalic", italic);
}

QString VOptList::itemFontName() const {
    return StringOf(core(), u"ItemFontName");
}
void VOptList::setItemFontName(const QString& name) {
    PutString(core(), u"ItemFontName", name);
}

double VOptList::itemFontSize() const {
    return static_cast<double>(core().Get<float>(u"ItemFontSize"));
}
void VOptList::setItemFontSize(double points) {
    core().Write(u"ItemFontSize", static_cast<float>(points));
}

QColor VOptList::itemForeColor() const {
    return ColorOf(*this, core(), u"ItemForeColor");
}
void VOptList::setItemForeColor(const QColor& color) {
    PutColor(core(), u"ItemForeColor", ToColor(color));
}
uint VOptList::itemForeColorValue() const {
    return ColorValueOf(core(), u"ItemForeColor");
}
void VOptList::setItemForeColorValue(uint color) {
    PutColor(core(), u"ItemForeColor", static_cast<Color>(color));
}
void VOptList::resetItemForeColor() {
    PutColor(core(), u"ItemForeColor", Color::ButtonText);
}

double VOptList::leftMargin() const {
    return static_cast<double>(core().Get<float>(u"LeftMargin"));
}
void VOptList::setLeftMargin(double twips) {
    core().Write(u"LeftMargin", static_cast<float>(twips));
}

double VOptList::spacing() const {
    return static_cast<double>(core().Get<float>(u"Spacing"));
}
void VOptList::setSpacing(double twips) {
    core().Write(u"Spacing", static_cast<float>(twips));
}

double VOptList::topMargin() const {
    return static_cast<double>(core().Get<float>(u"TopMargin"));
}
void VOptList::setTopMargin(double twips) {
    core().Write(u"TopMargin", static_cast<float>(twips));
}

int VOptList::listIndex() const {
    return core().Get<std::int16_t>(u"ListIndex");
}
void VOptList::setListIndex(int index) {
    PutNumber(core(), u"ListIndex", index);
}

void VOptList::setItemCaption(int index, const QString& caption) {
    core().WriteLater(u"ItemCaption", {std::int32_t{index}, qt::ToText(caption)});
}

void VOptList::refresh() {
    core().Call(u"Refresh");
}

}  // namespace lumenkit::widgets
