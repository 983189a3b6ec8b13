#include "tests/apps/lumenform/designed_form.h"

#include <sstream>
#include <stdexcept>

#include "frame/utf8.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::host {

void PrintTo(const Placement& place, std::ostream* out) {
    *out << place.left << ", " << place.top << "  " << place.width << " x " << place.height;
}

}  // namespace lumenkit::host

namespace lumenkit::testing {

namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        const auto first = line.find_first_not_of(' ');
        line.erase(0, first == std::string::npos ? line.size() : first);
        line.erase(line.find_last_not_of(" \r") + 1);
        lines.push_back(line);
    }
    return lines;
}

}  // namespace

DesignedForm::DesignedForm(forms::Document loaded)
    : design(surface.context, std::move(loaded)), canvas(new lumenform::Canvas(design)) {
    QObject::connect(canvas, &lumenform::Canvas::Refused,
                     [this](const QString& why) { refused.push_back(why); });
    Use(design, *canvas);
    canvas->SetGrid({.guides = false});
    window.setCentralWidget(canvas);
    window.resize(700, 500);
    ShowActive(window);
    canvas->setFocus();
}

DesignedForm::DesignedForm(const std::string& inner) : DesignedForm(FormWith(inner)) {}

lumenform::LiveControl& DesignedForm::Control(TextView name) const {
    lumenform::LiveControl* control = design.View().Find(name);
    if (control == nullptr) {
        throw std::out_of_range("no control " + ToUtf8(name));
    }
    return *control;
}

std::vector<std::string> DesignedForm::Selected() const {
    std::vector<std::string> names;
    for (const Text& name : design.SelectedNames()) {
        names.push_back(ToUtf8(name));
    }
    return names;
}

std::vector<std::string> DesignedForm::ChangedSince(const std::string& before) const {
    const std::vector<std::string> former = LinesOf(before);
    const std::vector<std::string> now = LinesOf(Saved());
    if (former.size() != now.size()) {
        return {"(other lines)"};
    }
    std::vector<std::string> changed;
    for (std::size_t line = 0; line < now.size(); ++line) {
        if (former[line] != now[line]) {
            changed.push_back(now[line]);
        }
    }
    return changed;
}

}  // namespace lumenkit::testing
