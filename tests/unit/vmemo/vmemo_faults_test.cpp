// Each error is reported once or raised to the caller, and leaves a usable memo.
#include <functional>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include "frame/runtime_error.h"
#include "runtime/memory/property_bag.h"
#include "tests/support/placed_memo.h"

namespace lumenkit::testing {

namespace {

struct Operation {
    std::string name;
    std::function<void(PlacedMemo&)> run;
    /// The procedures that report the error. "" stands for the caller, to which the error is
    /// raised.
    std::set<std::string> procedures;
};

template <typename Act>
Operation Property(const std::string& procedure, Act&& act) {
    return {procedure, [act](PlacedMemo& memo) { act(memo.Memo()); }, {procedure}};
}

std::vector<Operation> Operations() {
    const std::set<std::string> keys = {"Text1_KeyDown", "Text1_KeyPress", "Text1_Change",
                                        "Text1_KeyUp"};
    std::set<std::string> keysAndEngine = keys;
    keysAndEngine.insert("ApplyRestrictions");
    return {
        Property("pGetForeColor", [](VMemo& memo) { memo.pGetForeColor(); }),
        Property("pLetForeColor", [](VMemo& memo) { memo.pLetForeColor(Rgb(1, 2, 3)); }),
        Property("pGetEnabled", [](VMemo& memo) { memo.pGetEnabled(); }),
        Property("pLetEnabled", [](VMemo& memo) { memo.pLetEnabled(true); }),
        Property("pGetFont", [](VMemo& memo) { memo.pGetFont(); }),
        {"pSetFont",
         [](PlacedMemo& memo) { memo->pSetFont(memo.Form().NewFont(u"Arial", 12)); },
         {"pSetFont"}},
        Property("pGetFontName", [](VMemo& memo) { memo.pGetFontName(); }),
        Property("pLetFontName", [](VMemo& memo) { memo.pLetFontName(u"Arial"); }),
        Property("pGetFontSize", [](VMemo& memo) { memo.pGetFontSize(); }),
        Property("pLetFontSize", [](VMemo& memo) { memo.pLetFontSize(12); }),
        Property("pGetLocked", [](VMemo& memo) { memo.pGetLocked(); }),
        Property("pLetLocked", [](VMemo& memo) { memo.pLetLocked(false); }),
        Property("pGetMaxLength", [](VMemo& memo) { memo.pGetMaxLength(); }),
        Property("pLetMaxLength", [](VMemo& memo) { memo.pLetMaxLength(1000); }),
        Property("pGetMousePointer", [](VMemo& memo) { memo.pGetMousePointer(); }),
        Property("pLetMousePointer",
                 [](VMemo& memo) { memo.pLetMousePointer(host::MousePointer::Arrow); }),
        Property("pGetText", [](VMemo& memo) { memo.pGetText(); }),
        Property("pLetText", [](VMemo& memo) { memo.pLetText(u"abcdef\r\nx\r\ny"); }),
        Property("pLetPageWidth", [](VMemo& memo) { memo.pLetPageWidth(400); }),
        Property("Refresh", [](VMemo& memo) { memo.Refresh(); }),
        Property("UserControl_Resize", [](VMemo& memo) { memo.UserControl_Resize(); }),
        {"ScrollBars, the text fits",
         [](PlacedMemo& memo) { memo->pLetScrollBars(host::ScrollBars::Vertical); },
         {"pLetScrollBars", "Text1_Change"}},
        {"ScrollBars, the text is refused",
         [](PlacedMemo& memo) {
             memo->pLetMaxCharsPerLine(1);
             memo->pLetScrollBars(host::ScrollBars::Vertical);
         },
         {"", "pLetScrollBars", "Text1_Change", "ApplyRestrictions"}},
        {"loading",
         [](PlacedMemo& memo) {
             memory::PropertyBag bag;
             bag.Store(u"Text", Text(u"ab"));
             bag.Store(u"ScrollBars", std::int32_t{1});
             memo.Placed().ReadProperties(bag);
         },
         {"UserControl_ReadProperties", "CopyProperties"}},
        {"saving",
         [](PlacedMemo& memo) {
             try {
                 memo.Placed().Save();
             } catch (const RuntimeError&) {  // the error is also reported
                 if (memo.Form().GetLog().Messages().empty()) {
                     throw;
                 }
             }
         },
         {"UserControl_WriteProperties"}},
        {"typing what fits", [](PlacedMemo& memo) { memo.Type(u"c"); }, keys},
        {"typing what is refused", [](PlacedMemo& memo) { memo.Type(u"cde"); }, keysAndEngine},
        {"typing what is trimmed", [](PlacedMemo& memo) { memo.Type(u"\r\r\r"); }, keysAndEngine},
        {"mouse",
         [](PlacedMemo& memo) {
             for (const auto action :
                  {memory::MouseAction::Down, memory::MouseAction::Move, memory::MouseAction::Up}) {
                 memo.User().Mouse(memo.Box(0), action, {});
             }
         },
         {"Text1_MouseDown", "Text1_MouseMove", "Text1_MouseUp"}},
        {"MaxCharsPerLine", [](PlacedMemo& memo) { memo->pLetMaxCharsPerLine(5); }, {""}},
        {"MaxLines", [](PlacedMemo& memo) { memo->pLetMaxLines(5); }, {""}},
        {"Click", [](PlacedMemo& memo) { memo.User().Click(memo.Box(0)); }, {""}},
        {"DblClick", [](PlacedMemo& memo) { memo.User().DblClick(memo.Box(0)); }, {""}},
    };
}

// Makes a memo that shows "ab", with limits of three characters a line and three lines.
void Prepare(PlacedMemo& memo) {
    memo->pLetMaxCharsPerLine(3);
    memo->pLetMaxLines(3);
    memo->pLetText(u"a");
    memo.PutCaret(1);
    memo.Type(u"b");
    memo.TakeLog();
}

std::int64_t CallsOf(const Operation& operation) {
    PlacedMemo memo;
    Prepare(memo);
    const std::int64_t before = memo.Faults().Calls();
    operation.run(memo);
    EXPECT_THAT(memo.Form().GetLog().Messages(), ::testing::IsEmpty());
    return memo.Faults().Calls() - before;
}

// Returns the procedure that reports the error, or "" if the error is raised to the caller.
std::string Reporter(PlacedMemo& memo, const Operation& operation) {
    try {
        operation.run(memo);
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 7);
        EXPECT_THAT(memo.Form().GetLog().Messages(), ::testing::IsEmpty());
        return "";
    }
    std::vector<std::string> reports;
    const std::string prefix = "error 7 in ";
    for (const std::string& line : memo.TakeLog()) {
        if (line.starts_with("error") || line.starts_with("message")) {
            EXPECT_TRUE(line.starts_with(prefix)) << line;
            reports.push_back(line.substr(prefix.size()));
        }
    }
    EXPECT_EQ(reports.size(), 1U);
    return reports.empty() ? "nobody" : reports.front();
}

void ExpectUsable(PlacedMemo& memo) {
    EXPECT_FALSE(memo.Probe().Updating());
    memo.TakeLog();
    memo->pLetMaxCharsPerLine(3);
    memo->pLetText(u"xyzzy");
    memo->pLetScrollBars(host::ScrollBars::Both);
    memo->pLetScrollBars(host::ScrollBars::None);
    EXPECT_EQ(memo->pGetText(), u"xyz");
    memo.PutCaret(3);
    memo.Type(u"\b");
    memo.Type(u"!");
    memo.Type(u"?");
    EXPECT_EQ(memo.Shown(), u"xy!");
    EXPECT_THAT(memo.TakeLog(), ::testing::Contains("event Change").Times(3));
}

TEST(VMemoFaultsTest, EachCallOfEachOperationMayFail) {
    for (const Operation& operation : Operations()) {
        SCOPED_TRACE(operation.name);
        const std::int64_t calls = CallsOf(operation);
        EXPECT_GT(calls, 0);
        std::set<std::string> reporters;
        for (std::int64_t call = 1; call <= calls; ++call) {
            SCOPED_TRACE(call);
            PlacedMemo memo;
            Prepare(memo);
            memo.Faults().FailCall(call, ErrorNumber::OutOfMemory);
            const std::string reporter = Reporter(memo, operation);
            EXPECT_FALSE(memo.Faults().IsArmed());
            EXPECT_TRUE(operation.procedures.contains(reporter)) << reporter;
            reporters.insert(reporter);
            ExpectUsable(memo);
        }
        EXPECT_EQ(reporters, operation.procedures) << "each of them has what may fail";
    }
}

TEST(VMemoFaultsTest, AFailedLoadingLeavesTheUserHeard) {
    PlacedMemo memo;
    memory::PropertyBag bag;
    bag.Store(u"Text", Text(u"ab"));
    memo.Faults().FailCall(u"TextBox.SetText", 1, ErrorNumber::OutOfMemory);
    memo.Placed().ReadProperties(bag);
    EXPECT_THAT(memo.TakeLog(), ::testing::ElementsAre("error 7 in UserControl_ReadProperties"));
    memo.Type(u"x");
    EXPECT_THAT(memo.TakeLog(), ::testing::Contains("event Change"));
}

TEST(VMemoFaultsTest, AnEditThatCannotBeUndoneStays) {
    PlacedMemo memo;
    Prepare(memo);
    memo.Type(u"c");
    memo.TakeLog();
    memo.Faults().FailCall(u"TextBox.SetText", 1, ErrorNumber::OutOfMemory);
    memo.Type(u"d");
    EXPECT_EQ(memo.Shown(), u"abcd");
    EXPECT_THAT(memo.TakeLog(), ::testing::ElementsAre("event KeyDown", "event KeyPress",
                                                       "error 7 in ApplyRestrictions",
                                                       "event Change", "event KeyUp"));
    memo.Type(u"e");
    EXPECT_EQ(memo.Shown(), u"abc") << "the next refusal undoes both";
}

TEST(VMemoFaultsTest, ACaretThatCannotBePutBackLeavesTheTextRight) {
    for (const TextView call : {u"TextBox.SetSelLength", u"TextBox.SetSelStart"}) {
        PlacedMemo memo;
        Prepare(memo);
        memo.Type(u"c");
        memo.TakeLog();
        memo.Faults().FailCall(call, 1, ErrorNumber::OutOfMemory);
        memo.Type(u"d");
        EXPECT_FALSE(memo.Faults().IsArmed());
        EXPECT_EQ(memo.Shown(), u"abc");
        EXPECT_FALSE(memo.Probe().Updating());
        EXPECT_THAT(memo.TakeLog(), ::testing::Contains("error 7 in ApplyRestrictions"));
    }
}

TEST(VMemoFaultsTest, AnAssignmentThatFailsHalfWayLeavesTheLaterBoxes) {
    PlacedMemo memo;
    Prepare(memo);
    memo.Faults().FailCall(u"TextBox.SetText", 3, ErrorNumber::OutOfMemory);
    memo->pLetText(u"new");
    EXPECT_EQ(memo.Box(1).Contents(), u"new");
    EXPECT_EQ(memo.Box(2).Contents(), u"a");
    EXPECT_THAT(memo.TakeLog(), ::testing::ElementsAre("error 7 in pLetText"));
}

TEST(VMemoFaultsTest, AnErrorInOneBoxesCopyDoesNotEndTheLoading) {
    PlacedMemo memo;
    memory::PropertyBag bag;
    bag.Store(u"ScrollBars", std::int32_t{2});
    memo.Faults().FailCall(u"TextBox.SetMaxLength", 2, ErrorNumber::OutOfMemory);
    memo.Placed().ReadProperties(bag);
    EXPECT_THAT(memo.TakeLog(), ::testing::ElementsAre("error 7 in CopyProperties"));
    EXPECT_THAT(memo.VisibleBoxes(), ::testing::ElementsAre(2));
}

}  // namespace

}  // namespace lumenkit::testing
