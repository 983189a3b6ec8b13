#include "forms/position.h"

#include <algorithm>

namespace lumenkit::forms {

Position PlaceBehind(TextView text) {
    const auto lines = std::count(text.begin(), text.end(), u'\n');
    const std::size_t lineStart = lines == 0 ? 0 : text.rfind(u'\n') + 1;
    return {static_cast<std::size_t>(lines) + 1, text.size() - lineStart + 1};
}

}  // namespace lumenkit::forms
