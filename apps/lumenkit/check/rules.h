// The rules that the checks apply. Users filter findings by rule name, so the names do not change.
#pragma once

#include <array>
#include <string_view>

#include "apps/lumenkit/check/finding.h"

namespace lumenkit::check {

enum class Severity {
    Note,     ///< the form is drawn as its author probably wants it
    Warning,  ///< something is not drawn, not named or has no effect
    Error,    ///< a control reports an error to its user
};

/// "note", "warning" or "error".
std::string_view NameOf(Severity severity);

struct Rule {
    std::string_view name;
    Severity severity = Severity::Warning;
    std::string_view meaning;
};

namespace rules {

inline constexpr Rule unknownCommand{"unknown-command", Severity::Warning,
                                     "a command that does not exist"};
inline constexpr Rule unterminatedCommand{
    "unterminated-command", Severity::Warning,
    "a command without a closing bar: the rest of the line is not drawn"};
inline constexpr Rule loneBar{"lone-bar", Severity::Warning,
                              "a bar that opens no command: the text after it is not drawn"};
inline constexpr Rule underlineIsItalic{"underline-is-italic", Severity::Note,
                                        "the command u draws italic text"};
inline constexpr Rule unconvertedValue{"unconverted-value", Severity::Warning,
                                       "a value that cannot be converted and counts as off or 0"};
inline constexpr Rule ineffectiveSize{"ineffective-size", Severity::Note,
                                      "a size of 1 or less, which has no effect"};
inline constexpr Rule colorOutOfRange{"color-out-of-range", Severity::Warning,
                                      "a colour component outside 0 to 255"};
inline constexpr Rule numberOverflow{"number-overflow", Severity::Error,
                                     "a number out of range: the label reports an error"};
inline constexpr Rule controlCharacter{
    "control-character", Severity::Warning,
    "a line end, tab or other control character, which is drawn as a blank"};
inline constexpr Rule tooManyLines{"too-many-lines", Severity::Warning,
                                   "a caption of more than 301 lines"};
inline constexpr Rule textTooLong{"text-too-long", Severity::Error,
                                  "a text too long for 16-bit positions"};
inline constexpr Rule duplicateValue{"duplicate-value", Severity::Warning,
                                     "two items with the same value: Text selects only the first"};
inline constexpr Rule listIndexOutOfRange{"list-index-out-of-range", Severity::Warning,
                                          "a ListIndex without an item: no item is selected"};
inline constexpr Rule textOverLimits{"text-over-limits", Severity::Warning,
                                     "a text that exceeds the limits of its memo"};
inline constexpr Rule unreadProperty{"unread-property", Severity::Note,
                                     "a saved name that the control never reads"};
inline constexpr Rule unreadableValue{"unreadable-value", Severity::Error,
                                      "a saved value of the wrong type: loading reports an error"};

inline constexpr Rule drawingError{"drawing-error", Severity::Error,
                                   "a saved value at which drawing reports an error"};
inline constexpr Rule drawingOverflow{
    "drawing-overflow", Severity::Warning,
    "a saved value at which drawing overflows with the measures of check"};

inline constexpr Rule duplicateName{"duplicate-name", Severity::Warning,
                                    "a control with the name of another one"};

inline constexpr Rule notUnderstood{"not-understood", Severity::Warning,
                                    "a line, value or reference that is kept without effect"};

inline constexpr Rule unnamedControl{"unnamed-control", Severity::Warning,
                                     "a memo or an option list without a name for screen readers"};

}  // namespace rules

/// All rules.
inline constexpr std::array allRules = {
    rules::unknownCommand,      rules::unterminatedCommand, rules::loneBar,
    rules::underlineIsItalic,   rules::unconvertedValue,    rules::ineffectiveSize,
    rules::colorOutOfRange,     rules::numberOverflow,      rules::controlCharacter,
    rules::tooManyLines,        rules::textTooLong,         rules::duplicateValue,
    rules::listIndexOutOfRange, rules::textOverLimits,      rules::unreadProperty,
    rules::unreadableValue,     rules::drawingError,        rules::drawingOverflow,
    rules::duplicateName,       rules::notUnderstood,       rules::unnamedControl};

/// Returns the rule with this name, or null.
const Rule* FindRule(std::string_view name);

/// Returns the severity of the finding's rule.
Severity SeverityOf(const Finding& finding);

}  // namespace lumenkit::check
