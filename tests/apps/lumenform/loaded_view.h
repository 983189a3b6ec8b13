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

/// Returns a form parsed from a text, without a companion.
forms::Document FormOf(const std::string& text);
/// Returns a form of 300 by 200 pixels at 96 per inch that contains the lines of `inner`.
forms::Document FormWith(const std::string& inner);
/// Returns the same form with a companion, "x.frx".
forms::Document FormWith(const std::string& inner, const std::string& companion);

/// The surroundings that a form needs. Messages are recorded.
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
    explicit LoadedView(forms::Document loaded, lumenform::Mode mode = lumenform::Mode::Run);

    lumenform::LiveControl& Control(TextView name) const;
    /// Returns the part with this name of a control of this library.
    QWidget& Part(TextView control, TextView part, std::int16_t index = 0) const;
    /// Returns the form as it would be written now.
    std::string Saved();
    /// The events raised so far: "VMemo1.Change".
    std::vector<std::string> raised;

    Surface surface;
    forms::Document document;
    QMainWindow window;
    lumenform::FormView* view;
};

/// Returns the widget of a control. Throws if it is of another class.
template <typename T>
T& As(const LoadedView& view, TextView name) {
    return dynamic_cast<T&>(view.Control(name).Widget());
}

}  // namespace lumenkit::testing
