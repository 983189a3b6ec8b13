#pragma once

#include <string>

#include "apps/lumenform/design/model/form_design.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {

/// A form in the designer, without a window.
class EditedDesign {
 public:
    explicit EditedDesign(forms::Document document)
        : design(surface.context, std::move(document)) {}

    /// Throws if there is none.
    lumenform::LiveControl& Control(TextView name) const;
    void Select(std::initializer_list<TextView> names);
    /// Returns the names of the selected controls, separated by blanks.
    std::string Selected() const;
    /// Returns the form as it would be saved.
    std::string Text() const { return design.Document().Write().form; }
    /// Returns "1215 x 495 at 120, 240", in twips.
    std::string PlaceOf(TextView name) const;

    Surface surface;
    lumenform::FormDesign design;
};

}  // namespace lumenkit::testing
