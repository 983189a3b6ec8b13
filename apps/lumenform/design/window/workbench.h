#pragma once

#include <QSplitter>

#include "apps/lumenform/design/canvas/canvas.h"
#include "apps/lumenform/design/menus/menus_dialog.h"
#include "apps/lumenform/design/model/drag_start.h"
#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/outline/outline.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/property_browser.h"
#include "apps/lumenform/design/window/toolbox.h"
#include "forms/document.h"

namespace lumenkit::lumenform {

/// The workbench for a form: the toolbox, the form on its canvas, the outline of its objects, and
/// the properties of the selection.
class Workbench final : public QSplitter {
    Q_OBJECT

 public:
    /// Throws FormError as FormDesign does. `messages` is the interaction of the context; both must
    /// outlive the workbench.
    Workbench(const qt::Context& context, ControlMessages& messages, forms::Document document,
              QWidget* parent = nullptr);
    ~Workbench() override;
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;

    FormDesign& GetDesign() { return design_; }
    Canvas& GetCanvas() const { return *canvas_; }
    Toolbox& GetToolbox() const { return *toolbox_; }
    Outline& GetOutline() const { return *outline_; }
    PropertyBrowser& Properties() const { return *properties_; }

    /// Opens the property page of the selected controls, or moves to their properties if there is
    /// none.
    void EditSelected();
    /// Opens the dialog for the menus of the form and returns it. It deletes itself.
    MenusDialog& EditMenus();
    /// Assigns the text in the open property editor. Returns false if it is rejected; then emits
    /// Refused with the reason.
    bool FinishEditing();
    /// Runs an action. If it is rejected, emits Refused with the reason and restores the former
    /// state.
    void Try(const std::function<void()>& action);

 Q_SIGNALS:
    /// An action failed. The text is empty when a value was accepted.
    void Refused(const QString& why);

 private:
    void LayOut();
    void ConnectParts();
    void PutDown(const QString& className);
    void Add(const Text& className, const LiveControl* container, const host::Placement& place,
             DragStart start = {});

    FormDesign design_;
    Toolbox* toolbox_;
    Canvas* canvas_;
    Outline* outline_;
    PropertyBrowser* properties_;
};

}  // namespace lumenkit::lumenform
