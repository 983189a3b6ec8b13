#pragma once

#include <QPointer>
#include <QSize>
#include <QString>
#include <initializer_list>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include <lumenkit/widgets/control_widget.h>

#include "frame/automation/value.h"
#include "frame/automation/value_type.h"
#include "frame/host/ambient.h"
#include "frame/host/container.h"
#include "frame/text.h"
#include "runtime/qt/context.h"
#include "runtime/qt/control_site.h"
#include "runtime/qt/hosted_control.h"
#include "widgets/core/change_scope.h"
#include "widgets/core/settings.h"
#include "widgets/core/widget_class.h"

namespace lumenkit::widgets {

/// The private half of a public widget: the settings until the control starts, then the control.
///
/// The control is a child of the widget and covers it. If something needs the control before the
/// widget is shown, such as its ideal size, a control is created from the settings. A later setting
/// makes that control outdated, and the next use replaces it.
class ControlCore final : private ChangeSource,
                          private qt::ControlSite,
                          private host::Ambient,
                          private host::Container {
 public:
    /// Both arguments must outlive the core.
    ControlCore(const WidgetClass& kind, const qt::Context& context);
    ~ControlCore() override;
    ControlCore(const ControlCore&) = delete;
    ControlCore& operator=(const ControlCore&) = delete;

    /// Must be called before anything else.
    void SetOwner(ControlWidget& owner) { owner_ = &owner; }
    ControlWidget& Owner() const { return *owner_; }

    bool IsDesignMode() const { return isDesignMode_; }
    void SetDesignMode(bool on);
    const Text& Tag() const { return tag_; }
    void SetTag(Text tag);

    /// Returns the stored value of a property. Reports no error.
    Value Read(TextView property) override;
    template <typename T>
    T Get(TextView property) {
        return Automation<T>::From(Read(property));
    }
    /// Assigns a property: before the start as a setting, later through the control. An error that
    /// reaches the caller becomes a warning.
    void Write(TextView property, Value value);
    /// Does the same for a property that is no setting: before the start, it is assigned each time
    /// that a control has been loaded. `arguments` are the indices and the value.
    void WriteLater(TextView property, std::vector<Value> arguments);
    /// Calls a method of the control. An error that reaches the caller becomes a warning.
    Value Call(TextView method, std::initializer_list<Value> arguments = {});

    /// Starts the control, unless it has been started: from now on settings go to it.
    void Start();
    bool IsStarted() const { return isStarted_; }
    /// Returns the control, which is created if necessary.
    qt::HostedControl& Live();

    // Called by the widget.
    void Resized();
    void FontChanged();
    void EnabledChanged();
    /// Gives the keyboard to the part of the control that takes it.
    void FollowFocus();

    /// Returns the size in pixels that fits the content, at this width if it is not negative. It is
    /// kept until the control changes.
    QSize IdealSize(int width = -1);
    bool Wraps() { return kind_.wraps != nullptr && kind_.wraps(*this); }
    /// Gives the control a size in pixels for a measurement, and its former size afterwards.
    template <typename Measure>
    void MeasureAt(QSize size, const Measure& measure);

 private:
    struct Later {
        Text property;
        std::vector<Value> arguments;
    };
    struct Ideal {
        int version;
        int width;
        QSize size;
    };

    // ChangeSource
    void Announce(TextView property) override;
    QObject* Emitter() const override { return owner_; }

    // qt::ControlSite
    host::Container& GetContainer() override { return *this; }
    host::Ambient& GetAmbient() override { return *this; }
    void PlacementChanged() override;

    // host::Ambient
    bool UserMode() const override { return !isDesignMode_; }
    host::FontRef AmbientFont() const override;
    Color BackColor() const override;

    // host::Container
    void PropertyChanged(TextView name) override;
    bool CanPropertyChange(TextView /*name*/) override { return true; }
    void RaiseEvent(std::int32_t event, std::span<Value> arguments) override;

    static bool Is(std::span<const TextView> properties, TextView property);
    const Value* Default(TextView property) const;
    void Create();
    void Discard();
    void Load(qt::HostedControl& control);
    void Assign(qt::HostedControl& control, const Later& later);
    Value ReadSaved(TextView property);
    void Put(TextView property, Value value);
    void Let(TextView property, Value value);
    void FollowSize();
    void Warn(TextView member, const RuntimeError& error) const;
    host::Placement Place() const { return PlaceOf(owner_->size()); }
    static host::Placement PlaceOf(QSize size);

    const WidgetClass& kind_;
    const qt::Context& context_;
    const ClassDescriptor& type_;
    ControlWidget* owner_ = nullptr;
    Settings settings_;
    std::vector<Later> later_;
    Text tag_;
    QPointer<qt::HostedControl> live_;
    std::vector<Ideal> ideals_;
    int version_ = 0;
    bool isDesignMode_ = false;
    bool isStarted_ = false;
    bool isOutdated_ = false;  // live_ has other settings
    bool isLoading_ = false;
    bool isSizing_ = false;
};

template <typename Measure>
void ControlCore::MeasureAt(QSize size, const Measure& measure) {
    qt::HostedControl& live = Live();
    const host::Placement place = live.Place();
    const bool wasSizing = std::exchange(isSizing_, true);
    live.Move(PlaceOf(size));
    measure(live);
    live.Move(place);
    isSizing_ = wasSizing;
}

}  // namespace lumenkit::widgets
