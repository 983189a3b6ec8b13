#include "vlabel/vlabel.h"

#include <utility>

#include "frame/automation/raise_event.h"
#include "frame/checked_integer.h"
#include "frame/persisted_property.h"
#include "vlabel/spoken_caption.h"

namespace lumenkit {

namespace {

// Names and default values are part of the file format; do not change them.
namespace persisted {

constexpr PersistedProperty<Color> backColor{u"BackColor", Color::WindowBackground};
constexpr PersistedProperty<Color> foreColor{u"ForeColor", Color::ButtonText};
constexpr PersistedProperty<bool> enabled{u"Enabled", true};
constexpr TextView font = u"Font";  // default: null, so it is always written
constexpr PersistedProperty<std::int16_t> borderStyle{u"BorderStyle", 0};
constexpr PersistedProperty<bool> fontTransparent{u"FontTransparent", true};
constexpr PersistedProperty<std::int16_t> mousePointer{u"MousePointer", 0};
constexpr PersistedText caption{u"Caption", u"VLabel"};
constexpr PersistedProperty<bool> wordWrap{u"WordWrap", false};
constexpr PersistedProperty<std::int16_t> bulletIndent{u"BulletIndent", 0};
constexpr PersistedText bulletPrefix{u"BulletPrefix", u""};
constexpr PersistedProperty<bool> autoSize{u"AutoSize", false};
constexpr PersistedProperty<std::int16_t> backStyle{u"BackStyle", 0};

}  // namespace persisted

}  // namespace

VLabel::VLabel(const ControlHost& host)
    : surface_(host.surface),
      container_(host.container),
      ambient_(host.ambient),
      screen_(host.screen),
      errors_(host.application, host.interaction),
      module_(errors_, u"VLABEL"),
      renderer_(module_, surface_, settings_),
      automation_(vlabelInterface, this) {}

Text VLabel::SpokenText() const {
    return SpokenCaption(settings_.Caption, settings_.BulletPrefix);
}

// ---- Shared by the properties

// Reads a property of the surface.
template <typename Result, typename Read>
Result VLabel::Get(ProcedureName procedure, Read&& read) const {
    return module_.Function<Result>(procedure, [&](Result& result) { result = read(); });
}

template <typename Put>
void VLabel::Let(ProcedureName procedure, TextView property, Repaint repaint, Put&& put) {
    module_.Procedure(procedure, [&] {
        put();
        PropertyChanged(property, repaint);
    });
}

void VLabel::PropertyChanged(TextView property, Repaint repaint) {
    container_.PropertyChanged(property);
    if (repaint == Repaint::Yes && IsReady) {
        RefreshControl(false);
    }
}

void VLabel::RefreshControl(bool noRefresh) {
    module_.Procedure(u"RefreshControl", [&] {
        if (surface_.AutoRedraw()) {
            renderer_.DisplayCaption();
        }
        if (!noRefresh) {
            surface_.Refresh();
        }
    });
}

void VLabel::ApplyBackColour() {
    module_.Procedure(u"ApplyBackColour", [&] {
        surface_.SetBackColor(BackStyle != 0 ? ambient_.BackColor() : BackColor);
    });
}

// ---- Properties of the surface

Color VLabel::pGetForeColor() const {
    return Get<Color>(u"pGetForeColor", [&] { return surface_.ForeColor(); });
}

void VLabel::pLetForeColor(Color color) {
    Let(u"pLetForeColor", u"ForeColor", Repaint::Yes, [&] { surface_.SetForeColor(color); });
}

bool VLabel::pGetEnabled() const {
    return Get<bool>(u"pGetEnabled", [&] { return surface_.Enabled(); });
}

void VLabel::pLetEnabled(bool enabled) {
    Let(u"pLetEnabled", u"Enabled", Repaint::No, [&] { surface_.SetEnabled(enabled); });
}

host::FontRef VLabel::pGetFont() const {
    return Get<host::FontRef>(u"pGetFont", [&] { return surface_.CurrentFont(); });
}

void VLabel::pSetFont(host::FontRef font) {
    Let(u"pSetFont", u"Font", Repaint::Yes, [&] { surface_.SetCurrentFont(std::move(font)); });
}

std::int16_t VLabel::pGetBorderStyle() const {
    return Get<std::int16_t>(u"pGetBorderStyle", [&] { return surface_.BorderStyle(); });
}

void VLabel::pLetBorderStyle(std::int16_t style) {
    Let(u"pLetBorderStyle", u"BorderStyle", Repaint::No, [&] { surface_.SetBorderStyle(style); });
}

bool VLabel::pGetFontTransparent() const {
    return Get<bool>(u"pGetFontTransparent", [&] { return surface_.FontTransparent(); });
}

void VLabel::pLetFontTransparent(bool transparent) {
    Let(u"pLetFontTransparent", u"FontTransparent", Repaint::Yes,
        [&] { surface_.SetFontTransparent(transparent); });
}

std::int16_t VLabel::pGetMousePointer() const {
    return Get<std::int16_t>(u"pGetMousePointer", [&] { return surface_.Pointer(); });
}

void VLabel::pLetMousePointer(std::int16_t pointer) {
    Let(u"pLetMousePointer", u"MousePointer", Repaint::No, [&] { surface_.SetPointer(pointer); });
}

// ---- Properties of the control itself

void VLabel::pLetBackColor(Color color) {
    BackColor = color;
    ApplyBackColour();
    PropertyChanged(u"BackColor", Repaint::Yes);
}

void VLabel::pLetBackStyle(std::int16_t style) {
    BackStyle = style;
    ApplyBackColour();
    PropertyChanged(u"BackStyle", Repaint::Yes);
}

void VLabel::pLetCaption(TextView caption) {
    settings_.Caption = caption;
    container_.PropertyChanged(u"Caption");
    settings_.IsCompiled = false;
    if (IsReady) {
        RefreshControl(false);
    }
}

void VLabel::pLetWordWrap(bool wrap) {
    settings_.WordWrap = wrap;
    PropertyChanged(u"WordWrap", Repaint::Yes);
}

void VLabel::pLetBulletIndent(std::int16_t indent) {
    settings_.BulletIndent = indent;
    PropertyChanged(u"BulletIndent", Repaint::Yes);
}

void VLabel::pLetBulletPrefix(TextView prefix) {
    settings_.BulletPrefix = prefix;
    PropertyChanged(u"BulletPrefix", Repaint::Yes);
}

void VLabel::pLetAutoSize(bool autoSize) {
    AutoSize = autoSize;
    PropertyChanged(u"AutoSize", Repaint::No);
}

// ---- Methods

void VLabel::Refresh() {
    RefreshControl(false);
}

void VLabel::SetIdealSize() {
    module_.Procedure(u"SetIdealSize", [&] {
        if (settings_.WordWrap) {
            return;
        }
        float width = surface_.Width();
        float height = surface_.Height();
        renderer_.DisplayCaption();
        const float contentWidth = renderer_.Drawing().MaxLineX;
        const Int16 contentHeight = renderer_.Drawing().IdealHeight;
        const double pixelX = settings_.TwipsPerPixelX;
        const double pixelY = settings_.TwipsPerPixelY;
        // 16-bit arithmetic: it may overflow.
        const auto heightAbove = [&](Int16 pixels) {
            return static_cast<float>((contentHeight + pixels * settings_.TwipsPerPixelY).Value());
        };
        bool changed = false;
        const auto resize = [&](float& size, double newSize) {
            size = ToSingle(newSize);
            changed = true;
        };
        // A size one to two pixels above the content is kept, so that repeated calls do not change
        // it.
        if (ToSingle(contentWidth + pixelX) > width) {
            resize(width, contentWidth + pixelX * 1.1);
        }
        if (ToSingle(contentWidth + 2 * pixelX) < width) {
            resize(width, contentWidth + pixelX * 1.9);
        }
        if (height < heightAbove(1)) {
            resize(height, contentHeight.Value() + pixelY * 1.1);
        }
        if (height > heightAbove(2)) {
            resize(height, contentHeight.Value() + pixelY * 1.9);
        }
        if (changed) {
            surface_.Size(width, height);
        }
    });
}

Value VLabel::GetProperty(TextView PropertyName) {
    return module_.Function<Value>(u"GetProperty", [&](Value& result) {
        const Text name = LCase(PropertyName);
        if (name == u"width") {
            result = surface_.Width();
        } else if (name == u"height") {
            result = surface_.Height();
        }
    });
}

void VLabel::Test(TextView CaptionToVerify) {
    module_.Procedure(u"Test", [&] {
        NotTesting_ = false;
        pLetCaption(CaptionToVerify);
        NotTesting_ = true;
    });
}

// ---- Called by the container

void VLabel::UserControl_Initialize() {
    module_.Procedure(u"UserControl_Initialize", [&] {
        settings_.TwipsPerPixelX = screen_.TwipsPerPixelX();
        settings_.TwipsPerPixelY = screen_.TwipsPerPixelY();
        NotTesting_ = true;
    });
}

void VLabel::UserControl_InitProperties() {
    module_.Procedure(u"UserControl_InitProperties", [&] {
        surface_.SetCurrentFont(ambient_.AmbientFont());
        settings_.Caption = persisted::caption.defaultValue;
        settings_.IsCompiled = false;
        settings_.WordWrap = persisted::wordWrap.defaultValue;
        settings_.BulletIndent = persisted::bulletIndent.defaultValue;
        AutoSize = persisted::autoSize.defaultValue;
        BackColor = persisted::backColor.defaultValue;
        BackStyle = persisted::backStyle.defaultValue;
        ApplyBackColour();
    });
}

void VLabel::UserControl_ReadProperties(host::PropertyBag& bag) {
    module_.Procedure(u"UserControl_ReadProperties", [&] {
        IsReady = false;
        BackColor = persisted::backColor.Read(bag);
        surface_.SetForeColor(persisted::foreColor.Read(bag));
        surface_.SetEnabled(persisted::enabled.Read(bag));
        // Without a saved font, the surface keeps its design-time font.
        if (host::FontRef font = host::ToFont(bag.ReadProperty(persisted::font, ObjectRef()))) {
            surface_.SetCurrentFont(std::move(font));
        }
        surface_.SetBorderStyle(persisted::borderStyle.Read(bag));
        surface_.SetFontTransparent(persisted::fontTransparent.Read(bag));
        surface_.SetPointer(persisted::mousePointer.Read(bag));
        settings_.Caption = persisted::caption.Read(bag);
        settings_.WordWrap = persisted::wordWrap.Read(bag);
        settings_.BulletIndent = persisted::bulletIndent.Read(bag);
        settings_.BulletPrefix = persisted::bulletPrefix.Read(bag);
        AutoSize = persisted::autoSize.Read(bag);
        BackStyle = persisted::backStyle.Read(bag);
        settings_.IsCompiled = false;
        IsReady = true;
        ApplyBackColour();
    });
}

void VLabel::UserControl_WriteProperties(host::PropertyBag& bag) {
    module_.Procedure(u"UserControl_WriteProperties", [&] {
        persisted::backColor.Write(bag, BackColor);
        persisted::foreColor.Write(bag, surface_.ForeColor());
        persisted::enabled.Write(bag, surface_.Enabled());
        bag.WriteProperty(persisted::font, surface_.CurrentFont(), ObjectRef());
        persisted::borderStyle.Write(bag, surface_.BorderStyle());
        persisted::fontTransparent.Write(bag, surface_.FontTransparent());
        persisted::mousePointer.Write(bag, surface_.Pointer());
        persisted::caption.Write(bag, settings_.Caption);
        persisted::wordWrap.Write(bag, settings_.WordWrap);
        persisted::bulletIndent.Write(bag, settings_.BulletIndent);
        persisted::bulletPrefix.Write(bag, settings_.BulletPrefix);
        persisted::autoSize.Write(bag, AutoSize);
        persisted::backStyle.Write(bag, BackStyle);
    });
}

void VLabel::UserControl_Resize() {
    module_.Procedure(u"UserControl_Resize", [&] { RefreshControl(true); });
}

void VLabel::UserControl_Show() {
    module_.Procedure(u"UserControl_Show", [&] { RefreshControl(true); });
}

void VLabel::UserControl_Paint() {
    module_.Procedure(u"UserControl_Paint", [&] {
        renderer_.DisplayCaption();
        IsReady = true;
    });
}

void VLabel::UserControl_Click() {
    RaiseEvent(container_, static_cast<std::int32_t>(VLabelEvent::Click));
}

void VLabel::UserControl_DblClick() {
    RaiseEvent(container_, static_cast<std::int32_t>(VLabelEvent::DblClick));
}

void VLabel::UserControl_MouseDown(host::MouseArguments& mouse) {
    RaiseMouseEvent(u"UserControl_MouseDown", VLabelEvent::MouseDown, mouse);
}

void VLabel::UserControl_MouseMove(host::MouseArguments& mouse) {
    RaiseMouseEvent(u"UserControl_MouseMove", VLabelEvent::MouseMove, mouse);
}

void VLabel::UserControl_MouseUp(host::MouseArguments& mouse) {
    RaiseMouseEvent(u"UserControl_MouseUp", VLabelEvent::MouseUp, mouse);
}

void VLabel::RaiseMouseEvent(ProcedureName procedure, VLabelEvent event,
                             host::MouseArguments& mouse) {
    module_.Procedure(procedure, [&] {
        RaiseEvent(container_, static_cast<std::int32_t>(event), mouse.button, mouse.shift, mouse.x,
                   mouse.y);
    });
}

}  // namespace lumenkit
