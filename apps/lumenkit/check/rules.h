// The rules that the checks apply. People filter by the names, so they do not change.
#pragma once

#include <span>
#include <string_view>

namespace lumenkit::check {

struct Rule {
    std::string_view name;
    std::string_view meaning;
};

namespace rules {

inline constexpr Rule unknownCommand{"unknown-command", "a command that means nothing"};
inline constexpr Rule unterminatedCommand{
    "unterminated-command", "a command without its closing bar hides the line's rest"};
inline constexpr Rule loneBar{"lone-bar", "a bar that opens no command hides what follows it"};
inline constexpr Rule underlineIsItalic{"underline-is-italic", "u draws italic"};
inline constexpr Rule unconvertedValue{"unconverted-value",
                                       "a value that is not understood and counts as off or 0"};
inline constexpr Rule ineffectiveSize{"ineffective-size", "a size of 1 or less does nothing"};
inline constexpr Rule colorOutOfRange{"color-out-of-range", "a colour's number outside 0 to 255"};
inline constexpr Rule numberOverflow{"number-overflow",
                                     "a number beyond its range: drawing reports an error"};
inline constexpr Rule tooManyLines{"too-many-lines", "a caption of more than 301 lines"};
inline constexpr Rule textTooLong{"text-too-long", "a text longer than positions can count"};
inline constexpr Rule duplicateValue{"duplicate-value",
                                     "two items of one value: Text reaches only the first"};
inline constexpr Rule listIndexOutOfRange{"list-index-out-of-range",
                                          "a ListIndex without an item selects none"};
inline constexpr Rule textOverLimits{"text-over-limits",
                                     "a memo's text beyond its limits, which loading does not cut"};
inline constexpr Rule unreadProperty{"unread-property",
                                     "a saved name that the control never reads"};
inline constexpr Rule unreadableValue{"unreadable-value",
                                      "a saved value of the wrong kind: loading reports an error"};

}  // namespace rules

/// All rules.
std::span<const Rule> Rules();

}  // namespace lumenkit::check
