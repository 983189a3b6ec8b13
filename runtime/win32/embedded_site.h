#pragma once

#include "frame/host/ambient.h"
#include "frame/host/constituent.h"
#include "frame/host/container.h"
#include "frame/host/extender.h"
#include "runtime/win32/context.h"
#include "runtime/win32/element.h"
#include "runtime/win32/hosted_control.h"

namespace lumenkit::win32 {

/// The container of an embedded control. It ignores the control's notifications.
class SilentContainer final : public host::Container {
 public:
    void PropertyChanged(TextView /*name*/) override {}
    bool CanPropertyChange(TextView /*name*/) override { return true; }
    void RaiseEvent(std::int32_t /*event*/, std::span<Value> /*arguments*/) override {}
};

/// The ambient properties of an embedded control: those of a form with default settings.
class EmbeddedAmbient final : public host::Ambient {
 public:
    EmbeddedAmbient(FontMaker& fonts, bool userMode) : fonts_(fonts), userMode_(userMode) {}

    bool UserMode() const override { return userMode_; }
    host::FontRef AmbientFont() const override;
    Color BackColor() const override { return Color::ButtonFace; }

 private:
    FontMaker& fonts_;
    bool userMode_;
};

/// The extender of an embedded control.
class EmbeddedExtender final : public host::Extender {
 public:
    EmbeddedExtender(host::Constituent& control, TextView name) : control_(control), name_(name) {}

 private:
    Text Name() const override { return name_; }
    Text Tag() const override { return tag_; }
    void SetTag(TextView tag) override { tag_ = tag; }
    host::Placement Place() const override { return control_.Place(); }
    void Move(const host::Placement& place) override { control_.Move(place); }
    bool IsVisible() const override { return control_.Visible(); }
    void SetVisible(bool visible) override { control_.SetVisible(visible); }

    host::Constituent& control_;
    Text name_;
    Text tag_;
};

}  // namespace lumenkit::win32
