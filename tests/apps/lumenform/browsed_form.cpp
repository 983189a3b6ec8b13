#include "tests/apps/lumenform/browsed_form.h"

#include "project/lumenkit_classes.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

BrowsedForm::BrowsedForm(forms::Document document)
    : messages(interaction),
      application(lumenkitClasses),
      context{.classes = lumenkitClasses,
              .application = application,
              .interaction = messages,
              .errors = [this](const RuntimeError& error) { errors.push_back(error); }},
      design(context, std::move(document)),
      browser(new lumenform::PropertyBrowser(design, messages)) {
    Use(*browser);
    window.setCentralWidget(browser);
    window.resize(360, 600);
    ShowActive(window);
    browser->setFocus();
}

Object& BrowsedForm::Automation(TextView control) const {
    return design.View().Find(control)->Hosted()->Automation();
}

}  // namespace lumenkit::testing
