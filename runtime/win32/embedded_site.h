#pragma once

#include <functional>

#include "frame/host/ambient.h"
#include "frame/host/constituent.h"
#include "frame/host/container.h"
#include "runtime/win32/context.h"
#include "runtime/win32/element.h"
#include "runtime/win32/hosted_control.h"

namespace lumenkit::win32 {

/// The container of an embedded control, which does not listen to it.
class SilentContainer final : public host::Container {
 public:
    void PropertyChanged(TextView /*name*/) override {}
    bool CanPropertyChange(TextView /*name*/) override { return true; }
    void RaiseEvent(std::int32_t /*event*/, std::span<Value> /*arguments*/) override {}
};

/// The surroundings of an embedded control: those of a designed form.
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

/// An embedded control as programs see it: Name (read-only), Tag, Left, Top, Width, Height, Visible
/// and Move with one to four arguments. Lengths are in twips.
class EmbeddedExtender final : public Object {
 public:
    EmbeddedExtender(host::Constituent& control, TextView name) : control_(control), name_(name) {}

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

 private:
    friend struct EmbeddedMembers;

    host::Constituent& control_;
    Text name_;
    Text tag_;
};

}  // namespace lumenkit::win32
