// The container's side of an embedded control. Its container is the control or page around it,
// which has no settings for it and ignores its notifications.
#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "frame/host/ambient.h"
#include "frame/host/constituent.h"
#include "frame/host/container.h"
#include "frame/host/extender.h"

namespace lumenkit::shared {

class SilentContainer final : public host::Container {
 public:
    void PropertyChanged(TextView /*name*/) override {}
    bool CanPropertyChange(TextView /*name*/) override { return true; }
    void RaiseEvent(std::int32_t /*event*/, std::span<Value> /*arguments*/) override {}
};

/// The ambient properties of a form with default settings.
class EmbeddedAmbient final : public host::Ambient {
 public:
    using FontMaker = std::function<host::FontRef(TextView name, float points)>;

    /// `newFont` creates a font of the runtime.
    EmbeddedAmbient(FontMaker newFont, bool userMode);

    bool UserMode() const override { return userMode_; }
    host::FontRef AmbientFont() const override;
    Color BackColor() const override { return Color::ButtonFace; }

 private:
    FontMaker newFont_;
    bool userMode_;
};

/// The extender of an embedded control, which is placed and shown as a constituent.
class EmbeddedExtender final : public host::Extender {
 public:
    /// `control` must outlive the extender.
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

}  // namespace lumenkit::shared
