#include "tests/model/restriction_comparison.h"

#include <cstdint>
#include <limits>

#include "frame/utf8.h"
#include "tests/model/caption_comparison.h"
#include "tests/model/input_bytes.h"

namespace lumenkit::testing {

namespace {

std::string Describe(const RestrictionCase& given) {
    return Quoted(given.text) + " " + std::to_string(given.limits.maxCharsPerLine) + " " +
           std::to_string(given.limits.maxLines) +
           (given.mode == RestrictionMode::Apply ? " apply" : " plain");
}

std::string Describe(bool refused, bool trimmed, const Text& text) {
    return Quoted(text) + (refused ? " refused" : "") + (trimmed ? " trimmed" : "");
}

// Mostly small limits, and the largest possible one.
std::int16_t Limit(std::uint8_t byte) {
    return byte == std::numeric_limits<std::uint8_t>::max()
               ? std::numeric_limits<std::int16_t>::max()
               : std::int16_t{byte};
}

}  // namespace

std::string RestrictionComparison::Difference(const RestrictionCase& given) {
    const bool apply = given.mode == RestrictionMode::Apply;
    literal_ =
        RestrictLiterally(given.text, given.limits.maxCharsPerLine, given.limits.maxLines, apply);
    const Restriction actual = Restrict(given.text, given.limits, given.mode);
    const Text left(actual.Of(given.text));
    const bool sameText = (apply && literal_.refused) || left == literal_.s;
    if (actual.refused == literal_.refused && actual.trimmed == literal_.trimmed && sameText) {
        return "";
    }
    return Describe(given) + ":\n" + Describe(actual.refused, actual.trimmed, left) + "\nmodel:\n" +
           Describe(literal_.refused, literal_.trimmed, literal_.s);
}

std::string Quoted(const Text& text) {
    std::string quoted = "'";
    for (const char16_t unit : text) {
        const std::string name = unit == u'\r'   ? "\\r"
                                 : unit == u'\n' ? "\\n"
                                 : unit == u'\b' ? "\\b"
                                 : unit == u'\t' ? "\\t"
                                                 : ToUtf8(TextView(&unit, 1));
        quoted += name;
    }
    return quoted + "'";
}

RestrictionCase RestrictionFromBytes(std::string_view bytes) {
    InputBytes input(bytes);
    RestrictionCase given;
    given.mode = input.Byte() % 2 != 0 ? RestrictionMode::Apply : RestrictionMode::Plain;
    given.limits.maxCharsPerLine = Limit(input.Byte());
    given.limits.maxLines = Limit(input.Byte());
    if (given.limits.maxCharsPerLine == 0 && given.limits.maxLines == 0) {
        given.limits.maxLines = 1;
    }
    given.text = CaptionFromBytes(input.Rest());
    return given;
}

}  // namespace lumenkit::testing
