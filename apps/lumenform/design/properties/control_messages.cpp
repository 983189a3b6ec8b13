#include "apps/lumenform/design/properties/control_messages.h"

#include <utility>

namespace lumenkit::lumenform {

namespace {

// Returns the error in a report, which follows the names of program, module and procedure.
TextView ErrorIn(TextView report) {
    constexpr TextView before = u"\r\nMessage: ";
    const std::size_t found = report.find(before);
    return found == TextView::npos ? report : report.substr(found + before.size());
}

}  // namespace

ControlMessages::Listener::Listener(ControlMessages& messages)
    : messages_(messages), outer_(std::exchange(messages.listener_, this)) {}

ControlMessages::Listener::~Listener() {
    messages_.listener_ = outer_;
}

void ControlMessages::Beep() {
    if (listener_ == nullptr) {
        shown_.Beep();
    }
}

void ControlMessages::MsgBox(TextView message, host::MessageStyle style,
                             std::optional<TextView> title) {
    if (listener_ == nullptr) {
        shown_.MsgBox(message, style, title);
    } else {
        listener_->heard_.emplace_back(ErrorIn(message));
    }
}

}  // namespace lumenkit::lumenform
