#pragma once

#include <QMainWindow>
#include <string>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/property_browser.h"
#include "runtime/qt/application.h"
#include "tests/apps/lumenform/property_user.h"
#include "tests/support/qt_form.h"

namespace lumenkit::testing {

/// A form in the designer, with its property browser in an active window.
class BrowsedForm : public PropertyUser {
 public:
    explicit BrowsedForm(forms::Document document);

    void Select(const std::vector<Text>& names) { design.SelectNamed(names); }
    /// Returns the form as it would be written now.
    std::string Saved() const { return design.Document().Write().form; }
    Object& Automation(TextView control) const;

    WrittenInteraction interaction;
    lumenform::ControlMessages messages;
    qt::Application application;
    std::vector<RuntimeError> errors;
    qt::Context context;
    lumenform::FormDesign design;
    QMainWindow window;
    lumenform::PropertyBrowser* browser;
};

}  // namespace lumenkit::testing
