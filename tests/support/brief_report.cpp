#include "tests/support/brief_report.h"

#include <cstdlib>

#include "frame/utf8.h"
#include "tests/support/fake_reporter.h"

namespace lumenkit::testing {

namespace {

// Returns the text after `label` up to the end of the line.
std::string Field(const std::string& message, const std::string& label) {
    const std::size_t found = message.find(label);
    if (found == std::string::npos) {
        return {};
    }
    const std::size_t start = found + label.size();
    return message.substr(start, message.find("\r\n", start) - start);
}

}  // namespace

std::string BriefReport(TextView fileName, TextView message) {
    const std::string text = ToUtf8(message);
    const std::string procedure = Field(text, "Proc = ");
    const std::string code = Field(text, "Error Code =");
    const auto number = static_cast<ErrorNumber>(std::atoi(code.c_str()));
    return message == ReportMessage(fileName, FromUtf8(procedure), number)
               ? "error " + code + " in " + procedure
               : text;
}

}  // namespace lumenkit::testing
