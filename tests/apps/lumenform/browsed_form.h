#pragma once

#include <QMainWindow>
#include <string>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/property_browser.h"
#include "runtime/qt/application.h"
#include "tests/support/qt_form.h"

namespace lumenkit::testing {

/// A form in the designer, with its property browser in an active window.
class BrowsedForm {
 public:
    explicit BrowsedForm(forms::Document document);

    void Select(const std::vector<Text>& names) { design.SelectNamed(names); }
    /// Returns the row of a property. Throws if there is none.
    int Row(TextView property) const;
    bool Has(TextView property) const { return browser->Model().Find(property) >= 0; }
    /// Returns the value of a property as the list shows it.
    std::string Shown(TextView property) const;
    bool CanEdit(TextView property) const;
    /// Goes to the property in the list and types `text` and Enter.
    void Type(TextView property, const std::string& text);
    /// Picks an entry of a property's list with the keyboard.
    void Choose(TextView property, const std::string& label);
    /// Presses F4 on a property. Returns the window of this class that opens; null if none does.
    template <typename Dialog>
    Dialog* More(TextView property) const {
        PressMore(property);
        return browser->findChild<Dialog*>();
    }
    /// Returns the form as it would be written now.
    std::string Saved() const { return design.Document().Write().form; }
    std::string Message() const { return browser->Message().toStdString(); }
    Object& Automation(TextView control) const;

    WrittenInteraction interaction;
    lumenform::ControlMessages messages;
    qt::Application application;
    std::vector<RuntimeError> errors;
    qt::Context context;
    lumenform::FormDesign design;
    QMainWindow window;
    lumenform::PropertyBrowser* browser;

 private:
    void PressMore(TextView property) const;
};

}  // namespace lumenkit::testing
