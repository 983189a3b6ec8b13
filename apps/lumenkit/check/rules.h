// The rules that the checks apply. Users filter findings by rule name, so the names do not change.
#pragma once

#include <array>
#include <string_view>

namespace lumenkit::check {

struct Rule {
    std::string_view name;
    std::string_view meaning;
};

namespace rules {

inline constexpr Rule unknownCommand{"unknown-command", "a command that does not exist"};
inline constexpr Rule unterminatedCommand{
    "unterminated-command", "a command without a closing bar: the rest of the line is not drawn"};
inline constexpr Rule loneBar{"lone-bar",
                              "a bar that opens no command: the text after it is not drawn"};
inline constexpr Rule underlineIsItalic{"underline-is-italic", "the command u draws italic text"};
inline constexpr Rule unconvertedValue{"unconverted-value",
                                       "a value that cannot be converted and counts as off or 0"};
inline constexpr Rule ineffectiveSize{"ineffective-size",
                                      "a size of 1 or less, which has no effect"};
inline constexpr Rule colorOutOfRange{"color-out-of-range", "a colour component outside 0 to 255"};
inline constexpr Rule numberOverflow{"number-overflow",
                                     "a number out of range: the label reports an error"};
inline constexpr Rule controlCharacter{
    "control-character", "a line end, tab or other control character, which is drawn as a blank"};
inline constexpr Rule tooManyLines{"too-many-lines", "a caption of more than 301 lines"};
inline constexpr Rule textTooLong{"text-too-long", "a text too long for 16-bit positions"};
inline constexpr Rule duplicateValue{"duplicate-value",
                                     "two items with the same value: Text selects only the first"};
inline constexpr Rule listIndexOutOfRange{"list-index-out-of-range",
                                          "a ListIndex without an item: no item is selected"};
inline constexpr Rule textOverLimits{"text-over-limits",
                                     "a text that exceeds the limits of its memo"};
inline constexpr Rule unreadProperty{"unread-property",
                                     "a saved name that the control never reads"};
inline constexpr Rule unreadableValue{"unreadable-value",
                                      "a saved value of the wrong type: loading reports an error"};

inline constexpr Rule duplicateName{"duplicate-name", "a control with the name of another one"};

inline constexpr Rule notUnderstood{"not-understood",
                                    "a line, value or reference that is kept without effect"};

inline constexpr Rule unnamedControl{"unnamed-control",
                                     "a memo or an option list without a name for screen readers"};

}  // namespace rules

/// All rules.
inline constexpr std::array allRules = {
    rules::unknownCommand,      rules::unterminatedCommand, rules::loneBar,
    rules::underlineIsItalic,   rules::unconvertedValue,    rules::ineffectiveSize,
    rules::colorOutOfRange,     rules::numberOverflow,      rules::controlCharacter,
    rules::tooManyLines,        rules::textTooLong,         rules::duplicateValue,
    rules::listIndexOutOfRange, rules::textOverLimits,      rules::unreadProperty,
    rules::unreadableValue,     rules::duplicateName,       rules::notUnderstood,
    rules::unnamedControl};

}  // namespace lumenkit::check
