#include "tests/apps/lumenform/loaded_view.h"

#include <stdexcept>

#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/qt/element.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

const std::filesystem::path sampleForms = LUMENKIT_SOURCE_DIR "/samples/forms";

forms::Document FormOf(const std::string& text) {
    return forms::Document::Parse("x.frm", text, {});
}

namespace {

std::string TextWith(const std::string& inner) {
    return "VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 3000\n   ClientWidth = 4500\n" +
           inner + "End\n";
}

}  // namespace

forms::Document FormWith(const std::string& inner) {
    return FormOf(TextWith(inner));
}

forms::Document FormWith(const std::string& inner, const std::string& companion) {
    return forms::Document::Parse("x.frm", TextWith(inner),
                                  [&](const std::string& /*name*/) { return companion; });
}

Surface::Surface()
    : application(lumenkitClasses),
      context{.classes = lumenkitClasses,
              .application = application,
              .interaction = interaction,
              .errors = [this](const RuntimeError& error) { errors.push_back(error); }} {}

LoadedView::LoadedView(forms::Document loaded, lumenform::Mode mode)
    : document(std::move(loaded)), view(new lumenform::FormView(surface.context, document, mode)) {
    window.setCentralWidget(view);
    view->OnRaised([this](const lumenform::ControlEvent& event) {
        raised.push_back(ToUtf8(event.control) + '.' + ToUtf8(event.name));
    });
    ShowActive(window);
}

lumenform::LiveControl& LoadedView::Control(TextView name) const {
    lumenform::LiveControl* control = view->Find(name);
    if (control == nullptr) {
        throw std::out_of_range("no control " + ToUtf8(name));
    }
    return *control;
}

QWidget& LoadedView::Part(TextView control, TextView part, std::int16_t index) const {
    return *Control(control).Hosted()->Parts().Find(part, index)->Widget();
}

std::string LoadedView::Saved() {
    view->Save();
    return document.Write().form;
}

}  // namespace lumenkit::testing
