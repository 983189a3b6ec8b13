#include "apps/lumenform/form_view/library_name.h"

#include <algorithm>

namespace lumenkit::lumenform {

namespace {

std::string UpperCased(std::string text) {
    std::ranges::transform(text, text.begin(), [](char character) {
        return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                    : character;
    });
    return text;
}

}  // namespace

std::string LibraryName(const ClassTable& classes) {
    return "{" + UpperCased(ToString(classes.uniqueIdentifier)) + "}#" +
           std::to_string(classes.majorVersion) + '.' + std::to_string(classes.minorVersion) + "#0";
}

}  // namespace lumenkit::lumenform
