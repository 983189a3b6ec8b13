#pragma once

#include <memory>

#include "apps/lumenform/form_view/stage.h"
#include "frame/automation/interface_table.h"
#include "frame/host/ambient.h"
#include "runtime/qt/font.h"
#include "runtime/qt/form_container.h"
#include "runtime/qt/hosted_control.h"

namespace lumenkit::lumenform {

/// The services that a form offers to one hosted control: its container and the ambient properties,
/// which are those of the surroundings.
class FormSite final : public qt::ControlSite, private host::Ambient {
 public:
    /// `events` is the event table of the control's class, or null. It must outlive the site.
    FormSite(Mode mode, const Surroundings& around, const EventTable* events)
        : mode_(mode), font_(around.font), backColor_(around.backColor), container_(events) {}

    qt::FormContainer& GetContainer() override { return container_; }
    host::Ambient& GetAmbient() override { return *this; }

 private:
    bool UserMode() const override { return mode_ == Mode::Run; }
    host::FontRef AmbientFont() const override { return font_->Clone(); }
    Color BackColor() const override { return backColor_; }

    Mode mode_;
    std::shared_ptr<qt::Font> font_;
    Color backColor_;
    qt::FormContainer container_;
};

}  // namespace lumenkit::lumenform
