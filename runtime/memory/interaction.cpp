#include "runtime/memory/interaction.h"

#include <utility>

namespace lumenkit::memory {

void Interaction::Beep() {
    faults_.ReportingCall(u"Interaction", u"Beep");
    log_.Add(HeardBeep{});
}

void Interaction::MsgBox(TextView message, host::MessageStyle style,
                         std::optional<TextView> title) {
    faults_.ReportingCall(u"Interaction", u"MsgBox");
    ShownMessage shown = {.text = Text(message), .title = std::nullopt, .style = style};
    if (title) {
        shown.title = Text(*title);
    }
    log_.Add(std::move(shown));
}

}  // namespace lumenkit::memory
