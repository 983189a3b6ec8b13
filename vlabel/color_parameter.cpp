#include "vlabel/color_parameter.h"

#include <cstddef>

#include "frame/checked_integer.h"
#include "frame/numbers.h"

namespace lumenkit {

namespace {

std::int32_t Component(TextView number) {
    return RoundToInt32(ParseNumber(number));
}

// Returns the component before the next comma and removes both from `written`. Without a comma,
// returns 0 and removes nothing.
std::int32_t TakeComponent(TextView& written) {
    const std::size_t comma = written.find(u',');
    if (comma == TextView::npos) {
        return 0;
    }
    const std::int32_t component = comma == 0 ? 0 : Component(written);
    written.remove_prefix(comma + 1);
    return component;
}

}  // namespace

std::array<std::int32_t, 3> ColorComponents(TextView parameter) {
    const std::int32_t red = TakeComponent(parameter);
    const std::int32_t green = TakeComponent(parameter);
    return {red, green, Component(parameter)};
}

}  // namespace lumenkit
