#include "runtime/memory/command_button.h"

namespace lumenkit::memory {

CommandButton::CommandButton(Elements& elements, const host::CaptionDesign& design,
                             host::ClickEvents& events)
    : BasicCaptioned(elements, u"CommandButton", design, design.caption), events_(events) {}

void CommandButton::ReceiveClick() {
    events_.Click();
}

}  // namespace lumenkit::memory
