#include "vlabel/vlabel.h"

#include <array>
#include <cmath>

#include <lumenkit/widgets/vlabel.h>

#include "runtime/qt/pixels.h"
#include "widgets/core/emit_change.h"
#include "widgets/core/event_signals.h"
#include "widgets/core/program.h"
#include "widgets/core/properties.h"

namespace lumenkit::widgets {

namespace {

constexpr std::array labelNotifications = {
    Notification{u"Caption", EmitChange<&VLabel::caption, &VLabel::captionChanged>},
    Notification{u"BackColor", EmitChange<&VLabel::backColor, &VLabel::backColorChanged>},
    Notification{u"ForeColor", EmitChange<&VLabel::foreColor, &VLabel::foreColorChanged>},
    Notification{u"BackStyle", EmitChange<&VLabel::backStyle, &VLabel::backStyleChanged>},
    Notification{u"BorderStyle", EmitChange<&VLabel::borderStyle, &VLabel::borderStyleChanged>},
    Notification{u"FontTransparent",
                 EmitChange<&VLabel::fontTransparent, &VLabel::fontTransparentChanged>},
    Notification{u"MousePointer", EmitChange<&VLabel::mousePointer, &VLabel::mousePointerChanged>},
    Notification{u"WordWrap", EmitChange<&VLabel::wordWrap, &VLabel::wordWrapChanged>},
    Notification{u"BulletIndent", EmitChange<&VLabel::bulletIndent, &VLabel::bulletIndentChanged>},
    Notification{u"BulletPrefix", EmitChange<&VLabel::bulletPrefix, &VLabel::bulletPrefixChanged>},
    Notification{u"AutoSize", EmitChange<&VLabel::autoSize, &VLabel::autoSizeChanged>},
};

void RaiseLabelEvent(ControlWidget& widget, std::int32_t event, std::span<Value> arguments) {
    auto& label = static_cast<VLabel&>(widget);
    switch (static_cast<VLabelEvent>(event)) {
        case VLabelEvent::Click:
            Q_EMIT label.click();
            break;
        case VLabelEvent::DblClick:
            Q_EMIT label.dblClick();
            break;
        case VLabelEvent::MouseDown:
            EmitMouse(arguments, [&](MouseArguments* mouse) { Q_EMIT label.mouseDown(mouse); });
            break;
        case VLabelEvent::MouseMove:
            EmitMouse(arguments, [&](MouseArguments* mouse) { Q_EMIT label.mouseMove(mouse); });
            break;
        case VLabelEvent::MouseUp:
            EmitMouse(arguments, [&](MouseArguments* mouse) { Q_EMIT label.mouseUp(mouse); });
            break;
    }
}

bool WrapsLabel(ControlCore& core) {
    return core.Get<bool>(u"WordWrap");
}

// Painting outside of a paint event lays the caption out and draws nothing.
QSize DrawnSize(qt::HostedControl& live) {
    constexpr double room = 1.9;  // pixels, as SetIdealSize leaves when it shrinks the control
    live.GetControl().UserControl_Paint();
    const CaptionDrawing& drawing = static_cast<lumenkit::VLabel&>(live.GetControl()).Drawing();
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QSize border = live.size() - live.Drawing().Area().size();
    return border + QSize(static_cast<int>(std::ceil(drawing.MaxLineX / twips.x + room)),
                          static_cast<int>(std::ceil(drawing.IdealHeight / twips.y + room)));
}

QSize IdealLabelSize(ControlCore& core, int width) {
    constexpr int readable = 400;  // pixels: a wrapped label without a width becomes no wider
    constexpr int widest = 100000;
    constexpr int anyHeight = 100;
    QSize ideal;
    const auto measure = [&](qt::HostedControl& live) { ideal = DrawnSize(live); };
    if (!WrapsLabel(core)) {
        measure(core.Live());
        return ideal;
    }
    core.MeasureAt({width < 0 ? widest : width, anyHeight}, measure);
    if (width < 0 && ideal.width() > readable) {
        core.MeasureAt({readable, anyHeight}, measure);
    }
    return ideal;
}

const WidgetClass labelClass = {
    .programmaticIdentifier = u"lumenkit.VLabel",
    .notifications = labelNotifications,
    .raise = RaiseLabelEvent,
    .watched = {},
    .derived = {},
    .readAsSaved = {},
    .idealSize = IdealLabelSize,
    .wraps = WrapsLabel,
};

}  // namespace

VLabel::VLabel(QWidget* parent)
    : ControlWidget(std::make_unique<ControlCore>(labelClass, Program()), parent) {}

VLabel::VLabel(const QString& caption, QWidget* parent) : VLabel(parent) {
    setCaption(caption);
}

VLabel::~VLabel() = default;

QString VLabel::caption() const {
    return StringOf(core(), u"Caption");
}
void VLabel::setCaption(const QString& caption) {
    PutString(core(), u"Caption", caption);
}

QColor VLabel::backColor() const {
    return ColorOf(*this, core(), u"BackColor");
}
void VLabel::setBackColor(const QColor& color) {
    PutColor(core(), u"BackColor", ToColor(color));
}
uint VLabel::backColorValue() const {
    return ColorValueOf(core(), u"BackColor");
}
void VLabel::setBackColorValue(uint color) {
    PutColor(core(), u"BackColor", static_cast<Color>(color));
}
void VLabel::resetBackColor() {
    PutColor(core(), u"BackColor", Color::WindowBackground);
}

QColor VLabel::foreColor() const {
    return ColorOf(*this, core(), u"ForeColor");
}
void VLabel::setForeColor(const QColor& color) {
    PutColor(core(), u"ForeColor", ToColor(color));
}
uint VLabel::foreColorValue() const {
    return ColorValueOf(core(), u"ForeColor");
}
void VLabel::setForeColorValue(uint color) {
    PutColor(core(), u"ForeColor", static_cast<Color>(color));
}
void VLabel::resetForeColor() {
    PutColor(core(), u"ForeColor", Color::ButtonText);
}

VLabel::BackStyle VLabel::backStyle() const {
    return static_cast<BackStyle>(core().Get<std::int16_t>(u"BackStyle"));
}
void VLabel::setBackStyle(BackStyle style) {
    PutNumber(core(), u"BackStyle", style);
}

VLabel::BorderStyle VLabel::borderStyle() const {
    return static_cast<BorderStyle>(core().Get<std::int16_t>(u"BorderStyle"));
}
void VLabel::setBorderStyle(BorderStyle style) {
    PutNumber(core(), u"BorderStyle", style);
}

bool VLabel::fontTransparent() const {
    return core().Get<bool>(u"FontTransparent");
}
void VLabel::setFontTransparent(bool transparent) {
    core().Write(u"FontTransparent", transparent);
}

VLabel::MousePointer VLabel::mousePointer() const {
    return static_cast<MousePointer>(core().Get<std::int16_t>(u"MousePointer"));
}
void VLabel::setMousePointer(MousePointer pointer) {
    PutNumber(core(), u"MousePointer", pointer);
}

bool VLabel::wordWrap() const {
    return core().Get<bool>(u"WordWrap");
}
void VLabel::setWordWrap(bool wrap) {
    core().Write(u"WordWrap", wrap);
}

int VLabel::bulletIndent() const {
    return core().Get<std::int16_t>(u"BulletIndent");
}
void VLabel::setBulletIndent(int twips) {
    PutNumber(core(), u"BulletIndent", twips);
}

QString VLabel::bulletPrefix() const {
    return StringOf(core(), u"BulletPrefix");
}
void VLabel::setBulletPrefix(const QString& prefix) {
    PutString(core(), u"BulletPrefix", prefix);
}

bool VLabel::autoSize() const {
    return core().Get<bool>(u"AutoSize");
}
void VLabel::setAutoSize(bool on) {
    core().Write(u"AutoSize", on);
}

QString VLabel::plainText() const {
    return qt::ToQString(core().Live().GetControl().SpokenText())
        .replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

void VLabel::refresh() {
    core().Call(u"Refresh");
}

void VLabel::setIdealSize() {
    core().Call(u"SetIdealSize");
}

QVariant VLabel::getProperty(const QString& propertyName) const {
    const Value value = core().Call(u"GetProperty", {qt::ToText(propertyName)});
    return std::holds_alternative<Empty>(value) ? QVariant() : QVariant(ToDouble(value));
}

void VLabel::test(const QString& captionToVerify) {
    if (core().IsStarted()) {
        core().Call(u"Test", {qt::ToText(captionToVerify)});
    } else {
        setCaption(captionToVerify);
    }
}

}  // namespace lumenkit::widgets
