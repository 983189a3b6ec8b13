#pragma once

#include <memory>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/memory/ambient.h"
#include "runtime/memory/constituents.h"
#include "runtime/memory/control_site.h"
#include "runtime/memory/extender.h"
#include "runtime/memory/form.h"
#include "runtime/memory/property_bag.h"
#include "runtime/memory/surface.h"

namespace lumenkit::memory {

/// How a control is placed. Lengths are in twips.
struct Placing {
    TextView name = {};  ///< empty: Form::NewName
    bool userMode = true;
    float left = 0;
    float top = 0;
    float width = 3000;
    float height = 1500;
    TextView tag = {};
    bool visible = true;   ///< whether it is shown once it is started
    bool hasTag = true;    ///< whether the container has a Tag at all
    bool isLogged = true;  ///< whether what it tells its container goes to the form's log
};

/// One control on a form, and the container's side of its life. Nothing is repainted by itself:
/// call Paint to see what the control draws.
class PlacedControl {
 public:
    /// Creates the control and runs UserControl_Initialize. Throws std::logic_error for a class
    /// that is no control. The form must outlive it.
    PlacedControl(Form& form, const ClassDescriptor& type, const Placing& placing = {});
    ~PlacedControl();
    PlacedControl(const PlacedControl&) = delete;
    PlacedControl& operator=(const PlacedControl&) = delete;

    /// The rest of a new control's start: UserControl_InitProperties, _Resize and, unless placed
    /// invisible, _Show.
    void StartNew();
    /// The same for a saved one, with UserControl_ReadProperties.
    void StartSaved(host::PropertyBag& bag);

    // The same one by one.
    void InitProperties();
    void ReadProperties(host::PropertyBag& bag);
    /// Makes the control visible; UserControl_Show runs if it was not.
    void Show();
    void Hide();
    /// UserControl_Resize runs if the size changes. Raises 380 for a negative width or height.
    void Resize(float width, float height);
    void Move(float left, float top);

    /// UserControl_WriteProperties into a bag of its own / into `bag`.
    PropertyBag Save();
    void Save(host::PropertyBag& bag);
    /// Erases the surface and asks for a repaint, as when a window uncovers the control; a control
    /// that keeps what it draws (AutoRedraw) is not asked. Nothing happens while it is not shown.
    const DisplayList& Paint();

    Control& GetControl() { return *control_; }
    Object& Automation() { return control_->Automation(); }
    /// The same, to hand on. Not to be used once the placed control is gone.
    ObjectRef SharedAutomation();
    const ClassDescriptor& Type() const { return type_; }
    Form& GetForm() { return form_; }

    const Text& Name() const { return name_; }
    float Left() const { return left_; }
    float Top() const { return top_; }
    bool IsVisible() const { return surface_.IsShown(); }
    const Text& Tag() const { return tag_; }
    void SetTag(TextView tag) { tag_ = tag; }

    Surface& Drawing() { return surface_; }
    ControlSite& Site() { return site_; }
    Ambient& GetAmbient() { return ambient_; }
    Extender& GetExtender() { return extender_; }
    Constituents& Parts() { return constituents_; }
    const ControlHost& Host() const { return host_; }

 private:
    void FinishStart();

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
    ControlHost host_;
    std::unique_ptr<Control> control_;
};

/// A control of the class `className` (see Form::FindClass), started from `bag`, or as a new one
/// where that is null.
std::unique_ptr<PlacedControl> PlaceControl(Form& form, TextView className,
                                            const Placing& placing = {},
                                            host::PropertyBag* bag = nullptr);

}  // namespace lumenkit::memory
