#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "apps/lumenform/form_view/client_area.h"
#include "apps/lumenform/form_view/live_control.h"
#include "apps/lumenform/form_view/stage.h"
#include "forms/document.h"
#include "frame/text.h"
#include "runtime/qt/context.h"

namespace lumenkit::form {

/// A form file on the screen: menus, background and controls, as large as the file says. The
/// document stays the truth; Save brings it up to date with what the controls hold.
class FormView final : public QWidget {
 public:
    /// Throws FormError for what a control refuses. Context and document must outlive the view.
    FormView(const qt::Context& context, forms::Document& document, Mode mode,
             QWidget* parent = nullptr);
    ~FormView() override;
    FormView(const FormView&) = delete;
    FormView& operator=(const FormView&) = delete;

    forms::Document& Document() const { return stage_.document; }
    /// What stands in the form's title bar.
    const Text& Caption() const { return caption_; }
    ClientArea& Client() const { return *client_; }
    /// What those controls see that lie on the form itself.
    const Surroundings& Inside() const { return *inside_; }
    /// In the order of the file, each before those that lie in it.
    const ClientArea::Controls& Controls() const { return controls_; }
    /// By the name in code, "VMemo1(2)", without regard to case; null when there is none.
    LiveControl* Find(TextView name) const;

    /// Gives the keyboard to the first control, as when a form is opened.
    void FocusFirst();
    /// Writes into the document what the controls hold now, and nothing that is as it was.
    void Save();
    /// Hears of all that the controls raise from now on.
    void OnRaised(std::function<void(const RaisedEvent&)> listener);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void AddControls(const forms::Block& block, const Surroundings& around);
    void MarkLabels();

    Stage stage_;
    Text caption_;
    ClientArea::Controls controls_;
    ClientArea* client_ = nullptr;
    std::optional<Surroundings> inside_;
};

}  // namespace lumenkit::form
