// A host that records the messages of the error reporter.
#pragma once

#include <optional>
#include <vector>

#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "frame/numbers.h"

namespace lumenkit::testing {

class FakeReporter final : public host::Application, public host::Interaction {
 public:
    Text ExeName() override { return u"lumenkit"; }
    void Beep() override { ++beeps; }
    void MsgBox(TextView message, host::MessageStyle, std::optional<TextView>) override {
        messages.emplace_back(message);
    }

    int beeps = 0;
    std::vector<Text> messages;
};

/// A module whose error reports are recorded.
class ReportingModule {
 public:
    explicit ReportingModule(TextView fileName) : module_(errors_, fileName) {}

    operator const Module&() const { return module_; }  // NOLINT(*-explicit-*)

    FakeReporter reporter;

 private:
    ModuleErrors errors_{reporter, reporter};
    Module module_;
};

/// Returns the message of a report of one of the runtime's own errors.
inline Text ReportMessage(TextView fileName, TextView procedure, ErrorNumber number) {
    const auto code = static_cast<std::int32_t>(number);
    Text message = u"Exe = lumenkit\r\nForm = ";
    message.append(fileName).append(u"\r\nProc = ").append(procedure);
    message.append(u"\r\nError Line =0\r\nError Code =").append(Decimal(code));
    return message.append(u"\r\nMessage: ").append(RuntimeErrorText(code));
}

}  // namespace lumenkit::testing
