#include "runtime/memory/fault_plan.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/unit/memory/expect_error.h"

namespace lumenkit::memory {
namespace {

using testing::Raises;

TEST(FaultPlan, CountsCallsAndLetsThemPass) {
    FaultPlan faults;
    faults.Call(u"Surface", u"Cls");
    faults.Call(u"Font", u"Size");
    EXPECT_EQ(faults.Calls(), 2);
    EXPECT_FALSE(faults.IsArmed());
}

TEST(FaultPlan, FailsTheNthCallFromNowOnOnce) {
    FaultPlan faults;
    faults.Call(u"Surface", u"Cls");
    faults.FailCall(2, ErrorNumber::OutOfMemory);
    faults.Call(u"Surface", u"Cls");
    EXPECT_TRUE(faults.IsArmed());
    EXPECT_TRUE(Raises(ErrorNumber::OutOfMemory, [&] { faults.Call(u"Surface", u"Cls"); }));
    EXPECT_FALSE(faults.IsArmed());
    faults.Call(u"Surface", u"Cls");
    EXPECT_EQ(faults.Calls(), 4);
}

TEST(FaultPlan, FailsTheNthCallOfAName) {
    FaultPlan faults;
    faults.FailCall(u"surface.PRINT", 2, ErrorNumber::Overflow);
    faults.Call(u"Surface", u"Print");
    faults.Call(u"Surface", u"PrintX");
    faults.Call(u"Surface", u"Prin");
    faults.Call(u"Surfac", u"ePrint");
    faults.Call(u"TextBox", u"Print");
    EXPECT_TRUE(Raises(ErrorNumber::Overflow, [&] { faults.Call(u"Surface", u"Print"); }));
    faults.Call(u"Surface", u"Print");
}

TEST(FaultPlan, LeavesReportingOutOfTheOrdinalsUnlessAskedFor) {
    FaultPlan faults;
    faults.FailCall(1, ErrorNumber::OutOfMemory);
    faults.ReportingCall(u"Interaction", u"Beep");
    EXPECT_EQ(faults.Calls(), 0);
    faults.CountReporting(true);
    EXPECT_TRUE(
        Raises(ErrorNumber::OutOfMemory, [&] { faults.ReportingCall(u"Interaction", u"Beep"); }));
    EXPECT_EQ(faults.Calls(), 1);
}

TEST(FaultPlan, FailsReportingByNameInEitherCase) {
    for (const bool counted : {false, true}) {
        FaultPlan faults;
        faults.CountReporting(counted);
        faults.FailCall(u"Interaction.Beep", 1, ErrorNumber::InternalError);
        faults.ReportingCall(u"Interaction", u"MsgBox");
        EXPECT_TRUE(Raises(ErrorNumber::InternalError,
                           [&] { faults.ReportingCall(u"Interaction", u"Beep"); }));
    }
}

TEST(FaultPlan, ANewPlanOrNoneReplacesTheOld) {
    FaultPlan faults;
    faults.FailCall(u"Surface.Cls", 1, ErrorNumber::Overflow);
    faults.FailCall(2, ErrorNumber::OutOfMemory);
    faults.Call(u"Surface", u"Cls");
    faults.Clear();
    EXPECT_FALSE(faults.IsArmed());
    faults.Call(u"Surface", u"Cls");
}

TEST(FaultPlan, CountsFromOne) {
    FaultPlan faults;
    EXPECT_THROW(faults.FailCall(0, ErrorNumber::Overflow), std::logic_error);
    EXPECT_THROW(faults.FailCall(u"Surface.Cls", 0, ErrorNumber::Overflow), std::logic_error);
}

}  // namespace
}  // namespace lumenkit::memory
