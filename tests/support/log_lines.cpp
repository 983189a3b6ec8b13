#include "tests/support/log_lines.h"

#include <variant>

#include "frame/utf8.h"
#include "tests/support/brief_report.h"

namespace lumenkit::testing {

namespace {

std::string Describe(const memory::ShownMessage& shown, TextView fileName, bool beeped) {
    const bool isReport =
        beeped && shown.title == u"LUMENKIT ERROR" && shown.style == host::MessageStyle::Critical;
    return isReport ? BriefReport(fileName, shown.text) : "message " + ToUtf8(shown.text);
}

}  // namespace

std::vector<std::string> TakeLogLines(memory::Log& log, TextView fileName) {
    std::vector<std::string> lines;
    bool beeped = false;
    for (const memory::LogEntry& entry : log.Entries()) {
        if (const auto* changed = std::get_if<memory::ChangedProperty>(&entry)) {
            lines.push_back("changed " + ToUtf8(changed->name));
        } else if (const auto* event = std::get_if<memory::RaisedEvent>(&entry)) {
            lines.push_back("event " + ToUtf8(event->name));
        } else if (const auto* shown = std::get_if<memory::ShownMessage>(&entry)) {
            lines.push_back(Describe(*shown, fileName, beeped));
        }
        beeped = std::holds_alternative<memory::HeardBeep>(entry);
    }
    log.Clear();
    return lines;
}

}  // namespace lumenkit::testing
