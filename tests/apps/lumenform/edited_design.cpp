#include "tests/apps/lumenform/edited_design.h"

#include <stdexcept>

#include "frame/utf8.h"

namespace lumenkit::testing {

lumenform::LiveControl& EditedDesign::Control(TextView name) const {
    lumenform::LiveControl* control = design.View().Find(name);
    if (control == nullptr) {
        throw std::out_of_range("no control " + ToUtf8(name));
    }
    return *control;
}

void EditedDesign::Select(std::initializer_list<TextView> names) {
    design.SelectNamed({names.begin(), names.end()});
}

std::string EditedDesign::Selected() const {
    std::string selected;
    for (const lumenkit::Text& name : design.SelectedNames()) {
        selected += (selected.empty() ? "" : " ") + ToUtf8(name);
    }
    return selected;
}

std::string EditedDesign::PlaceOf(TextView name) const {
    const host::Placement place = Control(name).Place();
    const auto shown = [](float twips) { return std::to_string(static_cast<int>(twips)); };
    return shown(place.width) + " x " + shown(place.height) + " at " + shown(place.left) + ", " +
           shown(place.top);
}

}  // namespace lumenkit::testing
