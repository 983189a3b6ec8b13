#include "widgets/core/control_core.h"

#include <QLoggingCategory>
#include <algorithm>
#include <map>
#include <utility>

#include "frame/runtime_error.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"
#include "widgets/core/conversions.h"

namespace lumenkit::widgets {

namespace {

// Makes the defaults of a class known: a control that is loaded without settings saves them.
class UnseenSite final : public qt::ControlSite, private host::Ambient, private host::Container {
 public:
    host::Container& GetContainer() override { return *this; }
    host::Ambient& GetAmbient() override { return *this; }

 private:
    bool UserMode() const override { return false; }
    host::FontRef AmbientFont() const override { return ToFontObject(QFont()); }
    Color BackColor() const override { return Color::ButtonFace; }
    void PropertyChanged(TextView /*name*/) override {}
    bool CanPropertyChange(TextView /*name*/) override { return true; }
    void RaiseEvent(std::int32_t /*event*/, std::span<Value> /*arguments*/) override {}
};

const Settings& DefaultsOf(const qt::Context& context, const ClassDescriptor& type) {
    static std::map<const ClassDescriptor*, Settings> known;
    const auto [found, isNew] = known.try_emplace(&type);
    if (isNew) {
        UnseenSite site;
        qt::HostedControl control(context, type, site, {.visible = false});
        Settings none;
        control.StartSaved(none);
        control.Save(found->second);
        found->second.Put(u"Font", Empty());  // the widget's own
    }
    return found->second;
}

const ClassDescriptor& ClassOf(const qt::Context& context, TextView programmaticIdentifier) {
    const ClassDescriptor* const type = context.classes.Find(programmaticIdentifier);
    if (type == nullptr) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    return *type;
}

// Returns a setting in the type of its property. Raises 6 for a number that it cannot hold.
Value Converted(const ClassDescriptor& type, TextView property, Value value) {
    const Member* const member = type.interfaceTable->Find(property);
    if (member != nullptr && member->type == ValueType::Integer) {
        return ToInteger(value);
    }
    return value;
}

bool AreSame(const Value* left, const Value& right) {
    return left != nullptr && SameValue(*left, right);
}

}  // namespace

ControlCore::ControlCore(const WidgetClass& kind, const qt::Context& context)
    : kind_(kind), context_(context), type_(ClassOf(context, kind.programmaticIdentifier)) {}

ControlCore::~ControlCore() {
    Discard();
}

// ---- The control

void ControlCore::Create() {
    live_ =
        new qt::HostedControl(context_, type_, *this, {.placement = Place(), .tag = tag_}, owner_);
    isOutdated_ = false;
    live_->SetSpokenName(owner_->accessibleName());
    Load(*live_);
    FollowSize();
    FollowFocus();
}

void ControlCore::Discard() {
    if (live_ != nullptr) {
        owner_->setFocusProxy(nullptr);
        delete live_.data();
    }
}

void ControlCore::Load(qt::HostedControl& control) {
    isLoading_ = true;
    settings_.Put(u"Enabled", owner_->isEnabled());
    settings_.Put(u"Font", ObjectRef(ToFontObject(owner_->font())));
    control.StartSaved(settings_);
    for (const Later& later : later_) {
        Assign(control, later);
    }
    isLoading_ = false;
}

void ControlCore::Assign(qt::HostedControl& control, const Later& later) {
    try {
        Object& object = control.Automation();
        std::vector<Value> arguments = later.arguments;
        if (const auto identifier = object.FindMember(later.property)) {
            object.Invoke(*identifier, InvokeKind::Let, arguments);
        }
    } catch (const RuntimeError& error) {
        Warn(later.property, error);
    }
}

qt::HostedControl& ControlCore::Live() {
    if (isOutdated_ && !isLoading_) {
        Discard();
    }
    if (live_ == nullptr) {
        Create();
    }
    return *live_;
}

void ControlCore::Start() {
    if (isStarted_) {
        return;
    }
    Live();
    isStarted_ = true;
    settings_ = {};
    later_ = {};
}

void ControlCore::SetDesignMode(bool on) {
    if (on == isDesignMode_) {
        return;
    }
    if (isStarted_) {
        qWarning("lumenkit: setDesignMode has no effect after the control was shown");
        return;
    }
    isDesignMode_ = on;
    isOutdated_ = live_ != nullptr;
}

void ControlCore::SetTag(Text tag) {
    tag_ = std::move(tag);
    if (live_ != nullptr) {
        live_->SetTag(tag_);
    }
}

// ---- Properties and methods

bool ControlCore::Is(std::span<const TextView> properties, TextView property) {
    return std::ranges::find(properties, property) != properties.end();
}

const Value* ControlCore::Default(TextView property) const {
    return DefaultsOf(context_, type_).Find(property);
}

Value ControlCore::Read(TextView property) {
    if (!isStarted_ && !Is(kind_.derived, property)) {
        if (const Value* const setting = settings_.Find(property)) {
            return *setting;
        }
        if (const Value* const usual = Default(property)) {
            return *usual;
        }
    }
    qt::HostedControl& live = Live();
    if (!isDesignMode_ && Is(kind_.readAsSaved, property)) {
        return ReadSaved(property);
    }
    try {
        return live.Automation().Get(property);
    } catch (const RuntimeError& error) {
        Warn(property, error);
        return Empty();
    }
}

Value ControlCore::ReadSaved(TextView property) {
    Settings saved;
    Live().Save(saved);
    const Value* const found = saved.Find(property);
    return found == nullptr ? Value(Empty()) : *found;
}

void ControlCore::Write(TextView property, Value value) {
    ++version_;
    try {
        if (isStarted_) {
            Let(property, std::move(value));
        } else {
            Put(property, Converted(type_, property, std::move(value)));
        }
    } catch (const RuntimeError& error) {
        Warn(property, error);
    }
}

void ControlCore::Put(TextView property, Value value) {
    const Value* const setting = settings_.Find(property);
    if (AreSame(setting == nullptr ? Default(property) : setting, value)) {
        return;
    }
    settings_.Put(property, std::move(value));
    isOutdated_ = live_ != nullptr;
    Announce(property);
}

void ControlCore::Let(TextView property, Value value) {
    ChangeScope changes(*this, property, kind_.watched);
    Live().Automation().Let(property, std::move(value));
    FollowSize();
    FollowFocus();
    changes.Announce();
}

void ControlCore::WriteLater(TextView property, std::vector<Value> arguments) {
    ++version_;
    Later later{Text(property), std::move(arguments)};
    const bool isStarted = isStarted_;
    ChangeScope changes(*this, {}, kind_.watched);
    if (!isStarted) {
        later_.push_back(std::move(later));
        isOutdated_ = live_ != nullptr;
    } else {
        Assign(Live(), later);
    }
    changes.Announce();
}

Value ControlCore::Call(TextView method, std::initializer_list<Value> arguments) {
    ++version_;
    ChangeScope changes(*this, {}, kind_.watched);
    Value result;
    try {
        result = Live().Automation().Call(method, arguments);
    } catch (const RuntimeError& error) {
        Warn(method, error);
        return result;
    }
    FollowSize();
    changes.Announce();
    return result;
}

void ControlCore::Warn(TextView member, const RuntimeError& error) const {
    qWarning("lumenkit: %s.%s: %s", qPrintable(qt::ToQString(type_.name)),
             qPrintable(qt::ToQString(member)), qPrintable(qt::ToQString(error.Description())));
}

// ---- Size, font and focus

host::Placement ControlCore::PlaceOf(QSize size) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    return {.width = static_cast<float>(size.width() * twips.x),
            .height = static_cast<float>(size.height() * twips.y)};
}

QSize ControlCore::IdealSize(int width) {
    std::erase_if(ideals_, [this](const Ideal& ideal) { return ideal.version != version_; });
    const auto found = std::ranges::find(ideals_, width, &Ideal::width);
    if (found != ideals_.end()) {
        return found->size;
    }
    const QSize size = kind_.idealSize(*this, width);
    ideals_.push_back({version_, width, size});
    return size;
}

// The control keeps a size in twips that takes as many pixels as the widget has.
void ControlCore::Resized() {
    if (live_ == nullptr || isSizing_ || qt::ToPixels(live_->Place()).size() == owner_->size()) {
        return;
    }
    ++version_;
    isSizing_ = true;
    live_->Move(Place());
    isSizing_ = false;
}

// The widget takes over a size that the control has given itself.
void ControlCore::FollowSize() {
    owner_->updateGeometry();
    if (live_ == nullptr || isSizing_) {
        return;
    }
    const QSize size = qt::ToPixels(live_->Place()).size();
    if (size != owner_->size()) {
        isSizing_ = true;
        owner_->resize(size);
        isSizing_ = false;
    }
}

void ControlCore::PlacementChanged() {
    if (!isLoading_) {
        FollowSize();
    }
}

host::FontRef ControlCore::AmbientFont() const {
    return ToFontObject(owner_->font());
}

Color ControlCore::BackColor() const {
    const QWidget* const container = owner_->parentWidget();
    const QWidget& shown = container == nullptr ? *owner_ : *container;
    return ToColor(shown.palette().color(shown.backgroundRole()));
}

void ControlCore::FontChanged() {
    ++version_;
    if (live_ == nullptr || isLoading_) {
        return;
    }
    ChangeScope changes(*this, {}, kind_.watched);
    try {
        live_->Automation().Set(u"Font", ToFontObject(owner_->font()));
    } catch (const RuntimeError& error) {
        Warn(u"Font", error);
    }
    owner_->updateGeometry();
    changes.Announce();
}

void ControlCore::EnabledChanged() {
    if (!isStarted_) {
        isOutdated_ = live_ != nullptr;
        return;
    }
    live_->Automation().Let(u"Enabled", owner_->isEnabled());
    FollowFocus();
}

void ControlCore::FollowFocus() {
    if (live_ == nullptr || isDesignMode_) {
        return;
    }
    QWidget* previous = owner_;
    QWidget* first = nullptr;
    for (qt::Element* const element : live_->Parts().All()) {
        QWidget* const part = element->Widget();
        if (part == nullptr || part->focusPolicy() == Qt::NoFocus) {
            continue;
        }
        QWidget::setTabOrder(previous, part);
        previous = part;
        const bool takesTab = (part->focusPolicy() & Qt::TabFocus) != 0;
        if (part->isVisibleTo(owner_) && takesTab && first == nullptr) {
            first = part;
        }
    }
    if (owner_->focusProxy() != first) {
        owner_->setFocusProxy(first);
    }
}

// ---- What the control tells

void ControlCore::PropertyChanged(TextView name) {
    if (isLoading_) {
        return;
    }
    ++version_;
    if (innermost != nullptr) {
        innermost->Add(name);
    } else {
        FollowFocus();
        Announce(name);
    }
}

void ControlCore::RaiseEvent(std::int32_t event, std::span<Value> arguments) {
    if (!isLoading_ && isStarted_ && !isDesignMode_) {
        kind_.raise(*owner_, event, arguments);
    }
}

void ControlCore::Announce(TextView property) {
    const auto found = std::ranges::find_if(kind_.notifications, [&](const Notification& each) {
        return SameText(each.property, property, Compare::IgnoreCase);
    });
    if (found != kind_.notifications.end()) {
        found->emit(*owner_);
    }
}

}  // namespace lumenkit::widgets
