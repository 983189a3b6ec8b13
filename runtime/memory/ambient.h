#pragma once

#include "frame/host/ambient.h"
#include "runtime/memory/form.h"

namespace lumenkit::memory {

/// The ambient properties of a form for one control.
class Ambient final : public host::Ambient {
 public:
    Ambient(Form& form, bool userMode) : form_(form), userMode_(userMode) {}

    bool UserMode() const override;
    host::FontRef AmbientFont() const override;
    Color BackColor() const override;

    void SetUserMode(bool userMode) { userMode_ = userMode; }

 private:
    Form& form_;
    bool userMode_;
};

}  // namespace lumenkit::memory
