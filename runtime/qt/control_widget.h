#pragma once

#include <QWidget>
#include <memory>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/qt/constituents.h"
#include "runtime/qt/context.h"
#include "runtime/qt/extender.h"
#include "runtime/qt/interaction.h"
#include "runtime/qt/screen.h"
#include "runtime/qt/surface.h"

namespace lumenkit::qt {

/// What a control needs of the form that it lies on. It must outlive the control's widget.
class ControlSite {
 public:
    virtual ~ControlSite() = default;

    virtual host::Container& GetContainer() = 0;
    virtual host::Ambient& GetAmbient() = 0;
    /// The control has another place or size, by whomever, or was shown or hidden by a program.
    virtual void PlacementChanged() {}
};

/// How a control is placed. Lengths are in twips.
struct Placing {
    TextView name = {};
    host::Placement placement = {.width = 3000, .height = 1500};
    TextView tag = {};
    bool visible = true;  ///< whether it is shown once it is started
};

/// One control on a form: its widget, border and constituents, and the container's side of its
/// life. Where the ambient's UserMode is false, neither mouse nor keyboard reaches the control:
/// what is clicked is the widget that it lies on.
///
/// Its place on its parent widget is kept in twips as it was set; a size that layouts or the mouse
/// give it in pixels is taken over. Errors of the control's own procedures stay in it. Inside the
/// control's own notifications it is destroyed by deleteLater.
class ControlWidget final : public QWidget, private SurfaceOwner {
 public:
    /// Creates the control and runs UserControl_Initialize. Raises 429 for a class that is no
    /// control, 380 for a negative width or height.
    ControlWidget(const Context& context, const ClassDescriptor& type, ControlSite& site,
                  const Placing& placing, QWidget* parent = nullptr);
    ~ControlWidget() override;
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;

    /// The rest of a new control's start: UserControl_InitProperties, _Resize and, once it is seen
    /// on the screen, _Show.
    void StartNew();
    /// The same for a saved one, with UserControl_ReadProperties. What the bag raises comes out.
    void StartSaved(host::PropertyBag& bag);
    void Save(host::PropertyBag& bag);

    const ClassDescriptor& Type() const { return type_; }
    Control& GetControl() { return *control_; }
    Object& Automation() { return control_->Automation(); }
    /// The same, to hand on. Not to be used once the widget is gone.
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
    /// UserControl_Resize runs if the size changes. Raises 380 for a negative width or height.
    void Move(const host::Placement& placement);
    /// Whether it is shown as far as its form is.
    bool IsShown() const { return shown_; }
    void SetShown(bool shown);

    /// Gives the keyboard to the first constituent that takes it; false when there is none.
    bool FocusFirst();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    QWidget& Outside() override { return *this; }
    void SurfaceResized() override;
    float BorderWidth(std::int16_t style) const override;
    void PaletteChanged() override;
    int BorderPixels(std::int16_t style) const;
    void FinishStart();
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
    Surface surface_;
    Screen screen_;
    DeferringInteraction interaction_;
    Extender extender_;
    Constituents constituents_;
    ControlHost host_;
    std::unique_ptr<Control> control_;
};

}  // namespace lumenkit::qt
