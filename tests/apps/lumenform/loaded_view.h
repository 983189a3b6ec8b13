#pragma once

#include <QWidget>
#include <filesystem>
#include <string>
#include <vector>

#include "apps/lumenform/form_view/form_view.h"
#include "forms/document.h"
#include "runtime/qt/application.h"
#include "runtime/qt/context.h"
#include "tests/support/qt_form.h"

namespace lumenkit::testing {

/// The folder with the sample forms.
extern const std::filesystem::path sampleForms;

/// A form from a text without a companion.
forms::Document FormOf(const std::string& text);
/// The lines of `inner` within a form of 300 by 200 pixels at 96 pixels an inch.
forms::Document FormWith(const std::string& inner);

/// What a form needs around it, with messages written down.
struct Surface {
    WrittenInteraction interaction;
    qt::Application application;
    std::vector<RuntimeError> errors;
    qt::Context context;

    Surface();
};

/// A form in an active window.
class LoadedView {
 public:
    explicit LoadedView(forms::Document loaded, form::Mode mode = form::Mode::Run);

    form::LiveControl& Control(TextView name) const;
    /// The part of one of our controls that has this name.
    QWidget& Part(TextView control, TextView part, std::int16_t index = 0) const;
    /// The form as it would be written now.
    std::string Saved();
    /// "VMemo1.Change"
    std::vector<std::string> raised;

    Surface surface;
    forms::Document document;
    QMainWindow window;
    form::FormView* view;
};

}  // namespace lumenkit::testing
