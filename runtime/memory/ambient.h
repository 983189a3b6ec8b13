#pragma once

#include "frame/host/ambient.h"
#include "runtime/memory/form.h"

namespace lumenkit::memory {

/// The form's surroundings as one control sees them.
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
