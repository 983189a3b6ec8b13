// A form in a real window, on which tests place controls of the Windows runtime.
#pragma once

#include <memory>

#include "frame/automation/interface_table.h"
#include "runtime/memory/control_site.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/interaction.h"
#include "runtime/memory/log.h"
#include "runtime/win32/application.h"
#include "runtime/win32/context.h"
#include "runtime/win32/gdi_font.h"
#include "runtime/win32/hosted_control.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::testing {

/// A visible top-level window with the focus, and the services that its controls share. Message
/// boxes are logged and answered at once.
class WindowsForm {
 public:
    /// The controls take `resolution` for that of the screen.
    explicit WindowsForm(const ClassTable& classes,
                         win32::Resolution resolution = win32::Resolution::OfScreen());
    ~WindowsForm();
    WindowsForm(const WindowsForm&) = delete;
    WindowsForm& operator=(const WindowsForm&) = delete;

    HWND Window() const { return window_; }
    const win32::Context& Context() const { return context_; }
    win32::GdiFontMaker& Fonts() { return fonts_; }
    memory::FaultPlan& Faults() { return faults_; }
    memory::Log& GetLog() { return log_; }
    win32::Resolution PixelsPerInch() const { return resolution_; }
    /// Dispatches all messages in the queue.
    static void Pump();

 private:
    HINSTANCE module_;
    HWND window_;
    win32::Resolution resolution_;
    win32::GdiFontMaker fonts_{resolution_};
    win32::Application application_;
    memory::FaultPlan faults_;
    memory::Log log_;
    memory::Interaction interaction_{faults_, log_};
    win32::Context context_;
};

class FormControl;

/// The members of the extender, in the form that the interface table binds.
struct FormExtender {
    FormControl& control;

    Text Name() const { return u"probe"; }
    Text Tag() const { return u"its tag"; }
    float Left() const;
    float Top() const;
    float Width() const;
    float Height() const;
    bool Visible() const;
    void SetVisible(bool visible);
    void Move(float left, float top, float width, float height);
};

/// A control on a form, and its container: a name, a tag, a place. Lengths are in pixels.
class FormControl final : public win32::ControlSite, private host::Ambient {
 public:
    FormControl(WindowsForm& form, const ClassDescriptor& type, SIZE size);
    ~FormControl() override;
    FormControl(const FormControl&) = delete;
    FormControl& operator=(const FormControl&) = delete;

    /// Starts the control as new, or from `bag`, and attaches it to the form's window.
    void Start(host::PropertyBag* bag = nullptr);
    void MoveTo(const RECT& place);

    win32::HostedControl& Hosted() { return *hosted_; }
    memory::ControlSite& Site() { return site_; }
    const RECT& Place() const { return place_; }
    bool IsVisible() const { return isVisible_; }
    void SetVisible(bool visible);
    WindowsForm& GetForm() { return form_; }

    host::Container& GetContainer() override { return site_; }
    host::Ambient& GetAmbient() override { return *this; }
    Object& GetExtender() override { return extender_; }
    /// Applies the size while `agreesToSize` is true.
    void RequestSize(SIZE size) override;
    void PictureChanged() override { ++pictureChanges; }
    void FocusChanged(bool inside) override;
    bool AcceptsInput() override { return acceptsInput; }

    bool agreesToSize = true;
    bool acceptsInput = true;
    int pictureChanges = 0;
    int focusGained = 0;
    int focusLost = 0;

 private:
    bool UserMode() const override { return true; }
    host::FontRef AmbientFont() const override;
    Color BackColor() const override { return Color::ButtonFace; }

    WindowsForm& form_;
    memory::ControlSite site_;
    FormExtender members_{*this};
    TableObject extender_;
    RECT place_;
    bool isVisible_ = false;
    std::unique_ptr<win32::HostedControl> hosted_;
};

}  // namespace lumenkit::testing
