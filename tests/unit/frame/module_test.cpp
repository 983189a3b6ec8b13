#include "frame/module.h"

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/numbers.h"
#include "frame/utf8.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Everything that a user or a trace observes, in order.
using Log = std::vector<std::string>;

class LoggedScreen : public host::Interaction {
 public:
    explicit LoggedScreen(Log& log) : log_(log) {}
    void Beep() override { log_.emplace_back("beep"); }
    void MsgBox(TextView message, host::MessageStyle style,
                std::optional<TextView> title) override {
        log_.push_back("box " + std::to_string(static_cast<int>(style)) + " " +
                       ToUtf8(title.value_or(u"(none)")) + ": " + ToUtf8(message));
    }

 private:
    Log& log_;
};

class NamedApplication : public host::Application {
 public:
    Text ExeName() override {
        if (failure != 0) {
            Raise(failure);
        }
        return u"lumenkit";
    }
    std::int32_t failure = 0;
};

class TracedErrors : public ModuleErrors {
 public:
    TracedErrors(host::Application& application, host::Interaction& interaction, Log& log)
        : ModuleErrors(application, interaction), log_(log) {}
    void TraceProc(TextView moduleFileName, TextView procedureName,
                   const Object* formObject) override {
        EXPECT_EQ(formObject, nullptr);
        log_.push_back("trace " + ToUtf8(moduleFileName) + " " + ToUtf8(procedureName));
        if (failure != 0) {
            Raise(failure);
        }
    }
    std::int32_t failure = 0;

 private:
    Log& log_;
};

std::string Box(const std::string& procedure, const std::string& line, const std::string& code,
                const std::string& message) {
    return "box 16 LUMENKIT ERROR: Exe = lumenkit\r\nForm = VLABEL\r\nProc = " + procedure +
           "\r\nError Line =" + line + "\r\nError Code =" + code + "\r\nMessage: " + message;
}

class Reporting : public testing::Test {
 protected:
    Log log;
    LoggedScreen screen{log};
    NamedApplication application;
    TracedErrors errors{application, screen, log};
    Module module{errors, u"VLABEL"};
};

using ReportError = Reporting;

TEST_F(ReportError, BeepsOnceAndShowsSixLinesInACriticalBox) {
    EXPECT_EQ(errors.ReportError(u"VMEMO", u"pLetScrollBars", nullptr, 380, 40,
                                 u"Invalid property value"),
              0);
    EXPECT_THAT(log, ElementsAre("beep",
                                 "box 16 LUMENKIT ERROR: "
                                 "Exe = lumenkit\r\n"
                                 "Form = VMEMO\r\n"
                                 "Proc = pLetScrollBars\r\n"
                                 "Error Line =40\r\n"
                                 "Error Code =380\r\n"
                                 "Message: Invalid property value"));
}

TEST_F(ReportError, ShowsANegativeNumberWithItsSignDirectlyAfterTheLabel) {
    errors.ReportError(u"VLABEL", u"P", nullptr, -2147467259, 0, u"System call failed");
    EXPECT_THAT(log, ElementsAre("beep", Box("P", "0", "-2147467259", "System call failed")));
}

TEST_F(ReportError, ShowsLineZeroDirectlyAfterTheLabelForAProcedureWithoutLineNumbers) {
    errors.ReportError(u"VLABEL", u"P", nullptr, 6, 0, u"Overflow");
    EXPECT_THAT(log, ElementsAre("beep", Box("P", "0", "6", "Overflow")));
}

TEST_F(ReportError, LeavesTheLastLabelAloneForAnEmptyDescription) {
    errors.ReportError(u"VLABEL", u"P", nullptr, 6, 0, u"");
    EXPECT_THAT(log, ElementsAre("beep", Box("P", "0", "6", "")));
}

TEST_F(ReportError, RaisesToTheCallerWhenTheApplicationsNameCannotBeHad) {
    application.failure = 429;
    EXPECT_THAT([&] { errors.ReportError(u"VLABEL", u"P", nullptr, 6, 0, u"Overflow"); },
                Raises(429));
    EXPECT_THAT(log, ElementsAre("beep"));
}

using TraceProc = Reporting;

TEST_F(TraceProc, DoesNothingOfItsOwn) {
    ModuleErrors(application, screen).TraceProc(u"VLABEL", u"P", nullptr);
    EXPECT_THAT(log, IsEmpty());
}

using Procedures = Reporting;

TEST_F(Procedures, AreTracedOnEntryAndExit) {
    module.Procedure(u"RefreshControl", [&] { log.emplace_back("body"); });
    EXPECT_THAT(log,
                ElementsAre("trace VLABEL RefreshControl", "body", "trace VLABEL RefreshControl"));
}

TEST_F(Procedures, ReportAnErrorOfALetOnceEndAtOnceAndLetTheCallerSeeNoError) {
    EXPECT_NO_THROW(module.Procedure(u"pLetForeColor", [&] {
        log.emplace_back("before");
        Raise(ErrorNumber::InvalidPropertyValue);
        log.emplace_back("after");
    }));
    EXPECT_THAT(log, ElementsAre("trace VLABEL pLetForeColor", "before", "beep",
                                 Box("pLetForeColor", "0", "380", "Invalid property value"),
                                 "trace VLABEL pLetForeColor"));
}

TEST_F(Procedures, ReportTheLineOfTheFailingStatement) {
    module.Procedure(u"P", [] { throw RuntimeError(1001, u"Custom", 120); });
    EXPECT_THAT(log, testing::Contains(Box("P", "120", "1001", "Custom")));
}

TEST_F(Procedures, ReportExhaustedMemoryAs7) {
    module.Procedure(u"P", [] { throw std::bad_alloc(); });
    EXPECT_THAT(log, ElementsAre("trace VLABEL P", "beep", Box("P", "0", "7", "Out of memory"),
                                 "trace VLABEL P"));
}

TEST_F(Procedures, ReportForeignExceptionsAs51) {
    module.Procedure(u"P", [] { throw std::out_of_range("foreign"); });
    module.Procedure(u"Q", [] { throw 42; });
    EXPECT_THAT(log, ElementsAre("trace VLABEL P", "beep", Box("P", "0", "51", "Internal error"),
                                 "trace VLABEL P", "trace VLABEL Q", "beep",
                                 Box("Q", "0", "51", "Internal error"), "trace VLABEL Q"));
}

TEST_F(Procedures, ContinueAfterOneTheyCallHasFailed) {
    module.Procedure(u"Outer", [&] {
        module.Procedure(u"Inner", [] { Raise(ErrorNumber::Overflow); });
        log.emplace_back("outer goes on");
    });
    EXPECT_THAT(log, ElementsAre("trace VLABEL Outer", "trace VLABEL Inner", "beep",
                                 Box("Inner", "0", "6", "Overflow"), "trace VLABEL Inner",
                                 "outer goes on", "trace VLABEL Outer"));
}

TEST_F(Procedures, DoNotTrapAnErrorOfTheTraceOnEntry) {
    errors.failure = 5;
    EXPECT_THAT([&] { module.Procedure(u"P", [&] { log.emplace_back("body"); }); }, Raises(5));
    EXPECT_THAT(log, ElementsAre("trace VLABEL P"));
}

TEST_F(Procedures, LetAFailureOfTheReporterTravel) {
    application.failure = 429;
    EXPECT_THAT([&] { module.Procedure(u"P", [] { Raise(ErrorNumber::Overflow); }); }, Raises(429));
    EXPECT_THAT(log, ElementsAre("trace VLABEL P", "beep"));
}

TEST_F(Procedures, ReportTheReportersFailureInTheProcedureThatCalled) {
    module.Procedure(u"Outer", [&] {
        application.failure = 429;
        try {
            module.Procedure(u"Inner", [] { Raise(ErrorNumber::Overflow); });
        } catch (...) {
            application.failure = 0;
            throw;
        }
    });
    EXPECT_THAT(log, ElementsAre("trace VLABEL Outer", "trace VLABEL Inner", "beep", "beep",
                                 Box("Outer", "0", "429", "ActiveX component can't create object"),
                                 "trace VLABEL Outer"));
}

using Functions = Reporting;

TEST_F(Functions, ReturnWhatTheirBodyAssigned) {
    EXPECT_EQ(module.Function<std::int16_t>(u"pGetBulletIndent",
                                            [](std::int16_t& result) { result = 360; }),
              360);
    EXPECT_THAT(log, ElementsAre("trace VLABEL pGetBulletIndent", "trace VLABEL pGetBulletIndent"));
}

TEST_F(Functions, ReturnTheirTypesDefaultAfterTheMessageWhenAGetFails) {
    const auto fail = [](auto&) { Raise(ErrorNumber::ObjectNotSet); };
    EXPECT_EQ(module.Function<std::int16_t>(u"pGetA", fail), 0);
    EXPECT_EQ(module.Function<std::int32_t>(u"pGetB", fail), 0);
    EXPECT_EQ(module.Function<float>(u"pGetC", fail), 0.0F);
    EXPECT_EQ(module.Function<bool>(u"pGetD", fail), false);
    EXPECT_EQ(module.Function<Text>(u"pGetE", fail), u"");
    EXPECT_EQ(module.Function<std::shared_ptr<int>>(u"pGetF", fail), nullptr);
    EXPECT_THAT(log, testing::Contains("beep").Times(6));
    EXPECT_THAT(log, testing::Contains(Box("pGetE", "0", "91",
                                           "Object variable or With block variable not set")));
}

TEST_F(Functions, ReturnWhatWasAssignedSoFarWhenTheyFail) {
    EXPECT_EQ(module.Function<Text>(u"pGetText",
                                    [](Text& result) {
                                        result = u"so far";
                                        Raise(ErrorNumber::Overflow);
                                        result = u"too far";
                                    }),
              u"so far");
}

TEST_F(Reporting, IsSwitchedOn) {
    static_assert(errorTrapping);
    static_assert(std::is_same_v<Module, BasicModule<true>>);
}

TEST_F(Reporting, LetsErrorsTravelWhenSwitchedOff) {
    const BasicModule<false> untrapped(errors, u"VLABEL");
    EXPECT_THAT([&] { untrapped.Procedure(u"P", [] { Raise(ErrorNumber::Overflow); }); },
                Raises(6));
    EXPECT_THROW(untrapped.Procedure(u"P", [] { throw std::logic_error("foreign"); }),
                 std::logic_error);
    EXPECT_THAT([&] { untrapped.Function<bool>(u"Q", [](bool&) { Raise(13); }); }, Raises(13));
    EXPECT_THAT(log, ElementsAre("trace VLABEL P", "trace VLABEL P", "trace VLABEL Q"));
}

TEST_F(Reporting, TracesAlikeWhenSwitchedOff) {
    const BasicModule<false> untrapped(errors, u"VLABEL");
    EXPECT_EQ(untrapped.Function<std::int32_t>(u"P", [](std::int32_t& result) { result = 3; }), 3);
    EXPECT_THAT(log, ElementsAre("trace VLABEL P", "trace VLABEL P"));
}

}  // namespace
}  // namespace lumenkit
