#include "tests/apps/lumenform/outlined_form.h"

#include "apps/lumenform/design/window/class_icon.h"
#include "frame/utf8.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

OutlinedForm::OutlinedForm(forms::Document document)
    : design(surface.context, std::move(document)),
      outline(new lumenform::Outline(design, lumenform::ClassIcon)) {
    QObject::connect(outline, &lumenform::Outline::Refused,
                     [this](const QString& why) { refused.push_back(why.toStdString()); });
    Use(*outline);
    window.setCentralWidget(outline);
    window.resize(400, 500);
    ShowActive(window);
    outline->Tree().setFocus();
}

std::vector<std::string> OutlinedForm::Selected() const {
    std::vector<std::string> names;
    for (const Text& name : design.SelectedNames()) {
        names.push_back(ToUtf8(name));
    }
    return names;
}

}  // namespace lumenkit::testing
