#include "apps/lumenkit/check/error_message.h"

#include "frame/numbers.h"

namespace lumenkit::check {

namespace {

// Returns the text after `label`, up to the end of the line or, for the last label, of the message.
TextView After(TextView label, TextView message, bool isLast = false) {
    const std::size_t begin = message.find(label);
    if (begin == TextView::npos) {
        return {};
    }
    const TextView rest = message.substr(begin + label.size());
    return isLast ? rest : rest.substr(0, rest.find(crLf));
}

}  // namespace

ErrorMessage ReadErrorMessage(TextView message) {
    const double number = ParseNumber(After(u"\r\nError Code =", message));
    return {.procedure = Text(After(u"\r\nProc = ", message)),
            .number = static_cast<std::int32_t>(number),
            .description = Text(After(u"\r\nMessage: ", message, true))};
}

}  // namespace lumenkit::check
