#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "apps/lumenform/form_view/client_area.h"
#include "apps/lumenform/form_view/likeness/user_control_files.h"
#include "apps/lumenform/form_view/live_control.h"
#include "apps/lumenform/form_view/stage.h"
#include "forms/document.h"
#include "frame/text.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// Shows a form file with its menus, background and controls, at the size in the file. Its window
/// icon is the icon of the form. Changes to the controls reach the document only through Save.
class FormView final : public QWidget {
 public:
    /// Throws FormError if a control rejects a value. Context and document must outlive the view.
    FormView(const qt::Context& context, forms::Document& document, Mode mode,
             QWidget* parent = nullptr);
    ~FormView() override;
    FormView(const FormView&) = delete;
    FormView& operator=(const FormView&) = delete;

    forms::Document& Document() const { return stage_.document; }
    /// The text of the form's title bar.
    const Text& Caption() const { return caption_; }
    ClientArea& Client() const { return *client_; }
    /// The surroundings of the controls that are directly on the form.
    const Surroundings& Inside() const { return *inside_; }
    /// In the order of the file: a container comes before its controls.
    const ClientArea::Controls& Controls() const { return controls_; }
    /// Finds a control by its name in code, such as "VMemo1(2)", ignoring case. Returns null if
    /// there is none.
    LiveControl* Find(TextView name) const;

    /// Moves the focus to the first control in tab order, as when a form is opened.
    void FocusFirst();
    /// Writes the changed properties of the controls into the document.
    void Save();
    /// Sets the listener for all events that the controls raise from now on.
    void OnRaised(std::function<void(const ControlEvent&)> listener);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    FormView(const qt::Context& context, forms::Document& document, Mode mode,
             std::shared_ptr<UserControlFiles> userControls, QWidget* parent);

    class UserControl;
    std::unique_ptr<QWidget> DrawUserControl(const forms::Block& block);
    void AddControls(const forms::Block& block, const LiveControl* container);
    void NameFields();
    void MarkLabels();
    void RefuseFocus();

    std::shared_ptr<UserControlFiles> userControls_;
    Stage stage_;
    Text caption_;
    ClientArea::Controls controls_;
    ClientArea* client_ = nullptr;
    std::optional<Surroundings> inside_;
};

}  // namespace lumenkit::lumenform
