#include "runtime/ole/control/control_core.h"

#include "frame/raised_flag.h"
#include "frame/runtime_error.h"
#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/objects/event_call.h"
#include "runtime/ole/values/result.h"
#include "runtime/win32/keyboard.h"

namespace lumenkit::ole {

namespace {

// The size of a control that no container has sized yet: 3000 by 1500 twips.
SIZE FirstSize(win32::Resolution resolution) {
    return {win32::ToPixels(3000, resolution.x), win32::ToPixels(1500, resolution.y)};
}

GUID EventInterface(const ClassDescriptor& type) {
    return type.eventTable == nullptr ? IID_NULL : GuidOf(type.eventTable->uniqueIdentifier);
}

// The names under which the size of a saved control is stored next to its properties.
constexpr TextView widthName = u"_ExtentX";
constexpr TextView heightName = u"_ExtentY";

// Returns nothing for a length that the bag does not contain or that cannot be used.
std::optional<LONG> SavedLength(SettingsBag& bag, TextView name, int pixelsPerInch) {
    try {
        const Value value = bag.ReadProperty(name, Empty{});
        if (std::holds_alternative<Empty>(value)) {
            return std::nullopt;
        }
        const LONG length = ToLong(value);
        if (!IsPossibleLength(length, pixelsPerInch)) {
            Raise(ErrorNumber::InvalidPropertyValue);
        }
        return length;
    } catch (const RuntimeError& error) {
        bag.Refuse(name, error);
        return std::nullopt;
    }
}

}  // namespace

ControlCore::ControlCore(Component& component, const ClassDescriptor& type, IUnknown& controlling,
                         win32::Life& life, CoreFaces faces)
    : component_(component),
      type_(type),
      controlling_(controlling),
      life_(life),
      faces_(faces),
      points_(controlling, EventInterface(type)),
      ambient_(site_, component.GetContext().fonts),
      extender_(site_, *this, component.GetContext().resolution),
      extent_(FirstSize(component.GetContext().resolution), component.GetContext().resolution) {
    Make();
}

ControlCore::~ControlCore() {
    // Nothing is notified any more: every possible listener has released the control.
    site_.Assign(nullptr);
    ++frozen_;
}

void ControlCore::Abandon() noexcept {
    ++frozen_;
    activation_.Abandon();
    site_.Assign(nullptr);
    points_.Events().Clear();
    points_.Properties().Clear();
    notices_.Clear();
}

void ControlCore::SetSite(IOleClientSite* site) {
    site_.Assign(site);
    if (site != nullptr && hosted_->IsStarted()) {
        hosted_->AmbientChanged();
    }
}

void ControlCore::Make() {
    hosted_.reset();
    hosted_ = std::make_unique<win32::HostedControl>(component_.GetContext(), type_, *this,
                                                     extent_.Pixels(), &life_);
}

win32::HostedControl& ControlCore::Started() {
    // The container may use the control while it is starting.
    if (!hosted_->IsStarted() && !isStarting_) {
        const RaisedFlag starting(isStarting_);
        hosted_->StartNew();
        dirty_ = true;
    }
    return *hosted_;
}

HWND ControlCore::ActiveWindow() const {
    if (!activation_.HasWindow()) {
        throw ComError(E_FAIL);
    }
    return hosted_->Handle();
}

void ControlCore::StartNew() {
    if (startedOnPurpose_) {
        throw ComError(E_UNEXPECTED);
    }
    Started();
    startedOnPurpose_ = true;
}

void ControlCore::Restart() {
    // The call that loads the control holds it once.
    if (activation_.IsActive() || life_.Holds() > 1 || isStarting_) {
        throw ComError(E_UNEXPECTED);
    }
    if (hosted_->IsStarted()) {
        Make();
    }
}

void ControlCore::Load(SettingsBag& bag) {
    Restart();
    const win32::Resolution resolution = extent_.GetResolution();
    const auto width = SavedLength(bag, widthName, resolution.x);
    const auto height = SavedLength(bag, heightName, resolution.y);
    if (width && height) {
        SetExtent({*width, *height});
    }
    const RaisedFlag starting(isStarting_);
    hosted_->StartSaved(bag);
    startedOnPurpose_ = true;
    dirty_ = false;
}

void ControlCore::Save(host::PropertyBag& bag) {
    Started().Save(bag);
    bag.WriteProperty(widthName, static_cast<std::int32_t>(extent_.Get().cx), Empty{});
    bag.WriteProperty(heightName, static_cast<std::int32_t>(extent_.Get().cy), Empty{});
}

void ControlCore::SetExtent(const SIZEL& himetric) {
    const win32::Resolution resolution = extent_.GetResolution();
    if (!IsPossibleLength(himetric.cx, resolution.x) ||
        !IsPossibleLength(himetric.cy, resolution.y)) {
        throw ComError(E_INVALIDARG);
    }
    const SIZE pixels = ToPixels(himetric, resolution);
    const bool changed = !SameSize(extent_.Pixels(), pixels);
    if (changed && activation_.IsActive()) {
        RequestSize(pixels);
        return;
    }
    extent_.Assign(himetric);
    if (changed) {
        hosted_->SetSize(pixels);
        dirty_ = true;
        PictureChanged();
    }
}

void ControlCore::SizeChanged(SIZE pixels) {
    if (!SameSize(extent_.Pixels(), pixels)) {
        extent_.Follow(pixels);
        dirty_ = true;
        PictureChanged();
    }
}

void ControlCore::RequestSize(SIZE size) {
    if (!activation_.IsActive()) {
        if (hosted_ != nullptr) {
            hosted_->SetSize(size);
            SizeChanged(size);
        }
        if (site_.Exists()) {
            site_.Get()->RequestNewObjectLayout();
        }
        return;
    }
    RECT place = activation_.Place();
    place.right = place.left + size.cx;
    place.bottom = place.top + size.cy;
    ComPtr<IOleInPlaceSite>(activation_.InPlaceSite())->OnPosRectChange(&place);
}

void ControlCore::PictureChanged() {
    notices_.PictureChanged(faces_.data);
}

void ControlCore::FocusChanged(bool inside) {
    activation_.FocusChanged(inside);
}

bool ControlCore::AcceptsInput() {
    return ambient_.UserMode() && !ambient_.IsUIDead();
}

std::wstring ControlCore::GiveMnemonics() {
    givenMnemonics_ = win32::MnemonicsInside(Started().Handle());
    return *givenMnemonics_;
}

void ControlCore::MnemonicsMayHaveChanged() {
    if (!givenMnemonics_ || *givenMnemonics_ == win32::MnemonicsInside(hosted_->Handle())) {
        return;
    }
    GiveMnemonics();
    const ComPtr<IOleControlSite> site = site_.As<IOleControlSite>();
    if (site != nullptr) {
        site->OnControlInfoChanged();
    }
}

void ControlCore::FreezeEvents(bool freeze) {
    if (freeze) {
        ++frozen_;
    } else if (frozen_ > 0) {
        --frozen_;
    }
}

DISPID ControlCore::IdentifierOf(TextView property) const {
    const Member* member = type_.interfaceTable->Find(property);
    return member == nullptr ? DISPID_UNKNOWN : member->identifier;
}

void ControlCore::PropertyChanged(TextView name) {
    dirty_ = true;
    const DISPID identifier = IdentifierOf(name);
    points_.Properties().Tell<IPropertyNotifySink>(
        [&](IPropertyNotifySink& sink) { sink.OnChanged(identifier); });
    PictureChanged();
}

bool ControlCore::CanPropertyChange(TextView name) {
    const DISPID identifier = IdentifierOf(name);
    bool allowed = true;
    points_.Properties().Tell<IPropertyNotifySink>([&](IPropertyNotifySink& sink) {
        allowed = allowed && sink.OnRequestEdit(identifier) != S_FALSE;
    });
    return allowed;
}

void ControlCore::RaiseEvent(std::int32_t event, std::span<Value> arguments) {
    const Event* raised = type_.eventTable == nullptr ? nullptr : type_.eventTable->Find(event);
    const bool isDead = hosted_ != nullptr && !hosted_->AcceptsInput();
    if (frozen_ != 0 || isDead || raised == nullptr) {
        return;
    }
    ole::RaiseEvent(points_.Events(), *raised, arguments);
}

Text ControlCore::Title() const {
    const std::optional<Value> name = site_.Ambient(DISPID_AMBIENT_DISPLAYNAME);
    try {
        return name ? ToText(*name) : Text(type_.name);
    } catch (const RuntimeError&) {
        return Text(type_.name);
    }
}

RECT ControlCore::Place() const {
    if (activation_.IsActive()) {
        return activation_.Place();
    }
    const SIZE size = extent_.Pixels();
    return {0, 0, size.cx, size.cy};
}

bool ControlCore::IsVisible() const {
    return activation_.IsActive() && IsWindowVisible(hosted_->Handle()) != FALSE;
}

void ControlCore::SetVisible(bool visible) {
    if (activation_.IsActive()) {
        hosted_->SetVisible(visible);
    }
}

void ControlCore::Move(const RECT& place) {
    if (activation_.IsActive()) {
        ComPtr<IOleInPlaceSite>(activation_.InPlaceSite())->OnPosRectChange(&place);
    } else {
        RequestSize(win32::SizeOf(place));
    }
}

}  // namespace lumenkit::ole
