#include "apps/lumenform/warnings.h"

#include <cstdio>

#include "forms/form_error.h"

namespace lumenkit::lumenform {

void PrintWarnings(const forms::Document& document) {
    for (const forms::Warning& warning : document.Warnings()) {
        const forms::FormError placed(document.Name(), warning.place, warning.text);
        static_cast<void>(std::fprintf(stderr, "lumenform: warning: %s\n", placed.what()));
    }
}

}  // namespace lumenkit::lumenform
