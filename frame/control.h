// The objects that a container drives: user controls and property pages.
#pragma once

#include "frame/automation/value.h"
#include "frame/host/ambient.h"
#include "frame/host/application.h"
#include "frame/host/constituents.h"
#include "frame/host/container.h"
#include "frame/host/interaction.h"
#include "frame/host/mouse.h"
#include "frame/host/property_bag.h"
#include "frame/host/property_page_site.h"
#include "frame/host/screen.h"
#include "frame/host/surface.h"
#include "frame/text.h"

namespace lumenkit {

/// The host services that a user control receives. All of them outlive the control.
struct ControlHost {
    host::Surface& surface;
    host::Container& container;
    host::Ambient& ambient;
    /// The container's late-bound extender of the control: Name, Tag, Left, Top, Width, Height,
    /// Visible, Move. A member that the container does not provide raises 438.
    Object& extender;
    host::Screen& screen;
    host::Application& application;
    host::Interaction& interaction;
    host::Constituents& constituents;
};

/// A user control. The container calls, in this order: Initialize; InitProperties for a newly
/// placed control, or ReadProperties for a saved one; Resize whenever the size changes; Show; Paint
/// whenever the surface needs repainting; WriteProperties when it saves. The other functions
/// forward user input from the surface.
class Control {
 public:
    virtual ~Control() = default;

    /// Returns the control's automation interface. It lives as long as the control.
    virtual Object& Automation() = 0;

    /// Returns the text that the control draws, as screen readers say it: without markup, its lines
    /// separated by CR LF. Empty for a control that draws no text. Reports no error.
    virtual Text SpokenText() const { return {}; }
    /// Returns the limits of what the user may enter, as screen readers say them. Empty if there
    /// are none.
    virtual Text SpokenHint() const { return {}; }

    virtual void UserControl_Initialize() {}
    virtual void UserControl_InitProperties() {}
    virtual void UserControl_ReadProperties(host::PropertyBag& /*bag*/) {}
    virtual void UserControl_WriteProperties(host::PropertyBag& /*bag*/) {}
    virtual void UserControl_Resize() {}
    virtual void UserControl_Show() {}
    virtual void UserControl_Paint() {}

    virtual void UserControl_Click() {}
    virtual void UserControl_DblClick() {}
    virtual void UserControl_MouseDown(host::MouseArguments& /*mouse*/) {}
    virtual void UserControl_MouseMove(host::MouseArguments& /*mouse*/) {}
    virtual void UserControl_MouseUp(host::MouseArguments& /*mouse*/) {}
};

/// The host services that a property page receives. All of them outlive the page.
struct PageHost {
    host::PropertyPageSite& site;
    host::SelectedControls& selectedControls;
    host::Screen& screen;
    host::Interaction& interaction;
    host::Constituents& constituents;
};

/// A property page. The host calls Initialize once, SelectionChanged whenever the selection of
/// controls changes, and ApplyChanges when the user applies the page. Errors propagate to the host.
class PropertyPage {
 public:
    virtual ~PropertyPage() = default;

    /// Returns the page's automation interface. It lives as long as the page.
    virtual Object& Automation() = 0;

    virtual void PropertyPage_Initialize() {}
    virtual void PropertyPage_SelectionChanged() {}
    virtual void PropertyPage_ApplyChanges() {}
};

}  // namespace lumenkit
