// The names of the numbers that properties take.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "apps/lumenform/design/properties/object_property.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Labels such as "2 - Vertical" begin with their numbers.
using ChoiceLabels = std::span<const TextView>;

namespace choices {

inline constexpr auto backStyles = std::to_array<TextView>({u"0 - Transparent", u"1 - Opaque"});
inline constexpr auto borderStyles = std::to_array<TextView>({u"0 - None", u"1 - Single"});
inline constexpr auto buttonAlignments = std::to_array<TextView>({u"0 - Left", u"1 - Right"});
inline constexpr auto mousePointers = std::to_array<TextView>(
    {u"0 - Default", u"1 - Arrow", u"2 - Cross", u"3 - I-beam", u"4 - Icon", u"5 - Size",
     u"6 - Size NE SW", u"7 - Size N S", u"8 - Size NW SE", u"9 - Size W E", u"10 - Up arrow",
     u"11 - Hourglass", u"12 - No drop", u"13 - Arrow and hourglass", u"14 - Arrow and question",
     u"15 - Size all", u"99 - Custom"});
inline constexpr auto scrollBars =
    std::to_array<TextView>({u"0 - None", u"1 - Horizontal", u"2 - Vertical", u"3 - Both"});

}  // namespace choices

/// Returns the labels of a numeric property of this library's classes; empty if its numbers have no
/// names.
ChoiceLabels LibraryLabels(TextView className, TextView property);

/// Makes the choices of the labels.
std::vector<Choice> ChoicesOf(ChoiceLabels labels);

}  // namespace lumenkit::lumenform
