#include "apps/lumenform/warnings.h"

#include <cstdio>
#include <optional>

#include "forms/code_page_guess.h"
#include "forms/form_error.h"

namespace lumenkit::lumenform {

void PrintWarnings(const forms::Document& document) {
    if (const std::optional<forms::CodePageGuess>& guess = document.Guess()) {
        const forms::FormError placed(document.Name(), guess->place, TextOf(*guess));
        static_cast<void>(
            std::fprintf(stderr, "lumenform: %s; --code-page names another one\n", placed.what()));
    }
    for (const forms::Warning& warning : document.Warnings()) {
        const forms::FormError placed(document.Name(), warning.place, warning.text);
        static_cast<void>(std::fprintf(stderr, "lumenform: warning: %s\n", placed.what()));
    }
}

}  // namespace lumenkit::lumenform
