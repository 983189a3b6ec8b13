#pragma once

#include <QString>
#include <QWidget>
#include <memory>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/qt/announcing_container.h"
#include "runtime/qt/constituents.h"
#include "runtime/qt/context.h"
#include "runtime/qt/control_site.h"
#include "runtime/qt/interaction.h"
#include "runtime/qt/screen.h"
#include "runtime/qt/surface.h"
#include "runtime/shared/control_extender.h"
#include "runtime/shared/saving.h"

namespace lumenkit::qt {

/// The initial placement of a control. Lengths are in twips.
struct Placing {
    TextView name = {};
    host::Placement placement = {.width = 3000, .height = 1500};
    TextView tag = {};
    bool visible = true;  ///< whether the control is shown when it is started
};

/// One control on a form: its widget, its border, its constituents, and the container's side of its
/// life cycle. Where the ambient property UserMode is false, the control receives neither mouse nor
/// keyboard input; clicks go to the parent widget.
///
/// The position on the parent widget and the size are kept in twips as they were set. If a layout
/// or the user changes them in pixels, the new values are taken over. The control handles the
/// errors of its own procedures. Inside a notification of the control, the widget must be destroyed
/// with deleteLater.
class HostedControl final : public QWidget, private SurfaceOwner {
 public:
    /// Creates the control and runs UserControl_Initialize. Raises 429 for a class that is not a
    /// control and 380 for a negative width or height.
    HostedControl(const Context& context, const ClassDescriptor& type, ControlSite& site,
                  const Placing& placing, QWidget* parent = nullptr);
    ~HostedControl() override;
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;

    /// Finishes the start of a new control: runs UserControl_InitProperties, _Resize and, once the
    /// widget is shown on the screen, _Show.
    void StartNew();
    /// Does the same for a saved control, with UserControl_ReadProperties. Errors that the bag
    /// raises reach the caller.
    void StartSaved(host::PropertyBag& bag);
    /// Raises the error of a save that failed, which the control has reported before; see
    /// shared::SaveControl.
    void Save(host::PropertyBag& bag);

    const ClassDescriptor& Type() const { return type_; }
    Control& GetControl() { return *control_; }
    Object& Automation() { return control_->Automation(); }
    /// The same object as a non-owning reference. It must not be used after the widget is
    /// destroyed.
    ObjectRef SharedAutomation() { return {ObjectRef(), &Automation()}; }
    const ControlHost& Host() const { return host_; }
    Surface& Drawing() { return surface_; }
    Constituents& Parts() { return constituents_; }

    // The container's properties.
    const Text& Name() const { return name_; }
    void SetName(TextView name) { name_ = name; }
    const Text& Tag() const { return tag_; }
    void SetTag(TextView tag) { tag_ = tag; }
    host::Placement Place() const;
    /// Moves and resizes the control. UserControl_Resize runs if the size changes. Raises 380 for a
    /// negative width or height.
    void Move(const host::Placement& placement);
    /// Whether the control is set to be shown. It is visible only while its form is.
    bool IsShown() const { return shown_; }
    void SetShown(bool shown);

    /// Sets the name by which screen readers know a control without a caption: the text of the
    /// label before it. Initially empty.
    void SetSpokenName(const QString& name);
    /// Returns the text that the control shows, as screen readers say it. Empty for a control whose
    /// constituents show the text.
    QString SpokenText() { return surface_.Area().SpokenText(); }

    /// Gives the keyboard focus to the first constituent that takes it. Returns false if there is
    /// none.
    bool FocusFirst();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    // SurfaceOwner
    QWidget& Outside() override { return *this; }
    void SurfaceResized() override;
    float BorderWidth(std::int16_t style) const override;
    void PaletteChanged() override;

    int BorderPixels(std::int16_t style) const;
    void FinishStart();
    void Describe();
    void ApplyPlacement();
    void LayOutArea();

    const Context& context_;
    const ClassDescriptor& type_;
    ControlSite& site_;
    Text name_;
    Text tag_;
    float left_;
    float top_;
    bool shown_ = false;
    bool startsVisible_;
    QString spokenName_;
    AnnouncingContainer container_;
    Surface surface_;
    Screen screen_;
    DeferringInteraction interaction_;
    shared::ReportCounter reports_{interaction_};
    shared::ControlExtender<HostedControl> extender_;
    Constituents constituents_;
    ControlHost host_;
    std::unique_ptr<Control> control_;
};

/// Creates a new control of the class `type` on another control or page. The function is in
/// embedded_control.cpp: a control creates its constituents, which may be controls again.
std::unique_ptr<host::EmbeddedControl> EmbedControl(Elements& elements, const host::Design& design,
                                                    const ClassDescriptor& type);

}  // namespace lumenkit::qt
