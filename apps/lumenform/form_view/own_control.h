#pragma once

#include <QPointer>
#include <optional>

#include "apps/lumenform/form_view/live_control.h"
#include "forms/block_keeper.h"
#include "frame/host/ambient.h"
#include "runtime/qt/form_container.h"

namespace lumenkit::lumenform {

/// A control of this library on a form.
class OwnControl final : public LiveControl, private qt::ControlSite, private host::Ambient {
 public:
    OwnControl(const Stage& stage, const Surroundings& around, forms::Block& block,
               const ClassDescriptor& type);
    ~OwnControl() override;
    OwnControl(const OwnControl&) = delete;
    OwnControl& operator=(const OwnControl&) = delete;

    QWidget& Widget() const override { return *widget_; }
    const Surroundings& Inside() const override { return *inside_; }
    qt::HostedControl* Own() const override { return widget_; }
    host::Placement Place() const override { return widget_->Place(); }
    void Move(const host::Placement& place) override { widget_->Move(place); }
    void Save() override;

 private:
    host::Container& GetContainer() override { return container_; }
    host::Ambient& GetAmbient() override { return *this; }
    bool UserMode() const override { return stage_.mode == Mode::Run; }
    host::FontRef AmbientFont() const override { return font_->Clone(); }
    Color BackColor() const override { return backColor_; }

    void Start(QWidget& parent, const ClassDescriptor& type);
    void Raise(const EventTable& table, TextView event, std::span<Value> arguments);

    const Stage& stage_;
    std::shared_ptr<qt::Font> font_;  // of the container
    Color backColor_;
    qt::FormContainer container_;
    QPointer<qt::HostedControl> widget_;
    std::optional<Surroundings> inside_;
    std::optional<forms::BlockKeeper> keeper_;
};

}  // namespace lumenkit::lumenform
