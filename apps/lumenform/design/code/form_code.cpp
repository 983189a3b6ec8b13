#include "apps/lumenform/design/code/form_code.h"

#include <algorithm>
#include <vector>

#include "apps/lumenform/design/code/code_line.h"

namespace lumenkit::lumenform {

TextView CodeIn(TextView tail) {
    std::vector<CodePart> parts;
    for (;;) {
        const std::size_t end = std::min(tail.find(u'\n'), tail.size());
        const TextView line = tail.substr(0, end);
        DivideLine(line, Continued::Nothing, parts);
        const bool isAttribute =
            !parts.empty() && SameText(line.substr(parts.front().start, parts.front().length),
                                       u"Attribute", Compare::IgnoreCase);
        if (!isAttribute) {
            return tail;
        }
        tail.remove_prefix(std::min(end + 1, tail.size()));
    }
}

bool FormCode::Take(const forms::Document& document) {
    const TextView code = CodeIn(document.Tail());
    if (code == source_) {
        return false;
    }
    source_ = code;
    outline_ = CodeOutline(source_);
    return true;
}

std::size_t FirstLineOf(TextView code, std::string_view formBytes) {
    // Every encoding of a form writes a line feed as this one byte, and nothing else as it.
    const auto all = std::ranges::count(formBytes, '\n');
    const auto inCode = std::ranges::count(code, u'\n');
    return static_cast<std::size_t>(all - inCode) + 1;
}

}  // namespace lumenkit::lumenform
