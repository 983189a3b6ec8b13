#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/memory/constituents.h"
#include "runtime/memory/control_site.h"
#include "runtime/memory/form.h"
#include "runtime/memory/property_bag.h"
#include "runtime/memory/surface.h"
#include "runtime/shared/control_extender.h"
#include "runtime/shared/saving.h"

namespace lumenkit::memory {

/// The settings of a control when it is placed. Lengths are in twips.
struct Placing {
    TextView name = {};  ///< empty: Form::NewName
    bool userMode = true;
    float left = 0;
    float top = 0;
    float width = 3000;
    float height = 1500;
    TextView tag = {};
    bool visible = true;   ///< whether it is shown after its start
    bool hasTag = true;    ///< whether the container provides Tag
    bool isLogged = true;  ///< whether its notifications go to the form's log
};

/// A control on a form, together with the container that drives it. The control is never repainted
/// automatically: call Paint to get its drawing.
class HostedControl {
 public:
    /// The extender of the control. Its calls count for the planned faults of the form.
    class Extender final : public shared::ControlExtender<HostedControl> {
     public:
        using ControlExtender::ControlExtender;

        Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

        /// Sets whether the container provides Tag.
        void SupportTag(bool supported) { supportsTag_ = supported; }

     private:
        bool HasTag() const override { return supportsTag_; }

        bool supportsTag_ = true;
    };

    /// Creates the control and runs UserControl_Initialize. Throws std::logic_error for a class
    /// that is not a control. The form must outlive it.
    HostedControl(Form& form, const ClassDescriptor& type, const Placing& placing = {});
    ~HostedControl();
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;

    /// Completes the start of a new control: runs UserControl_InitProperties, _Resize and, unless
    /// it was placed invisible, _Show.
    void StartNew();
    /// Does the same for a saved control, with UserControl_ReadProperties instead of
    /// _InitProperties.
    void StartSaved(host::PropertyBag& bag);

    // The single steps of a start: either of the first two, then FinishStart.
    void InitProperties();
    void ReadProperties(host::PropertyBag& bag);
    void FinishStart();

    /// Run UserControl_WriteProperties with a new bag / with `bag`. Raise the error of a save that
    /// failed, which the control has reported before; see shared::SaveControl.
    PropertyBag Save();
    void Save(host::PropertyBag& bag);
    /// Erases the surface and requests a repaint, as when a window uncovers the control. Does
    /// nothing for a control that keeps its drawing (AutoRedraw) or is not shown. Returns the
    /// drawing.
    const DisplayList& Paint();

    Control& GetControl() { return *control_; }
    Object& Automation() { return control_->Automation(); }
    /// Returns the same object as a reference that can be passed on. Do not use it after the placed
    /// control is destroyed.
    ObjectRef SharedAutomation();
    const ClassDescriptor& Type() const { return type_; }
    Form& GetForm() { return form_; }

    // The container's properties.
    const Text& Name() const { return name_; }
    const Text& Tag() const { return tag_; }
    void SetTag(TextView tag) { tag_ = tag; }
    host::Placement Place() const;
    /// Moves and resizes the control. UserControl_Resize runs if the size changes. Raises 380 for a
    /// negative width or height.
    void Move(const host::Placement& placement);
    void Resize(float width, float height);
    bool IsShown() const { return surface_.IsShown(); }
    /// Shows or hides the control. UserControl_Show runs if it was hidden.
    void SetShown(bool shown);

    Surface& Drawing() { return surface_; }
    ControlSite& Site() { return site_; }
    Ambient& GetAmbient() { return ambient_; }
    Extender& GetExtender() { return extender_; }
    Constituents& Parts() { return constituents_; }
    const ControlHost& Host() const { return host_; }

 private:
    Form& form_;
    const ClassDescriptor& type_;
    Text name_;
    Text tag_;
    float left_;
    float top_;
    bool startsVisible_;
    Surface surface_;
    ControlSite site_;
    Ambient ambient_;
    Extender extender_;
    Constituents constituents_;
    shared::ReportCounter reports_;
    ControlHost host_;
    std::unique_ptr<Control> control_;
};

/// Creates a new control of the class `type` on another control or page. The function is in
/// embedded_control.cpp: a control creates its constituents, which may be controls again.
std::unique_ptr<host::EmbeddedControl> EmbedControl(Elements& elements, const host::Design& design,
                                                    const ClassDescriptor& type);

/// Creates a control of the class `className` (see Form::FindClass) and starts it from `bag`, or as
/// a new control if `bag` is null.
std::unique_ptr<HostedControl> PlaceControl(Form& form, TextView className,
                                            const Placing& placing = {},
                                            host::PropertyBag* bag = nullptr);

}  // namespace lumenkit::memory
