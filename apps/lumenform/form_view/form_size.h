#pragma once

#include "apps/lumenform/form_view/block_reader.h"

namespace lumenkit::lumenform {

/// The size of a form's client area, in twips.
struct FormSize {
    float width = 0;
    float height = 0;

    friend bool operator==(const FormSize&, const FormSize&) = default;
};

/// Reads the size from ClientWidth and ClientHeight in twips, or from ScaleWidth and ScaleHeight in
/// the form's units. A negative size counts as missing.
FormSize ClientSizeOf(const BlockReader& form);

}  // namespace lumenkit::lumenform
