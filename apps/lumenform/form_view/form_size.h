#pragma once

#include "apps/lumenform/form_view/block_reader.h"

namespace lumenkit::form {

/// How large a form is inside, in twips.
struct FormSize {
    float width = 0;
    float height = 0;

    friend bool operator==(const FormSize&, const FormSize&) = default;
};

/// As its block says, in twips or in the form's own units. Throws FormError for less than nothing.
FormSize ClientSizeOf(const BlockReader& form);

}  // namespace lumenkit::form
