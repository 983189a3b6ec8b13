// Makes every call of the control to its host fail once, in every public operation. The failing
// procedure must report the error once, and the control must stay usable.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "runtime/memory/counted_bag.h"
#include "runtime/memory/property_bag.h"
#include "tests/support/placed_option_list.h"
#include "tests/support/rows.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using Mode = PlacedOptionList::Mode;

struct Operation {
    std::string name;
    Mode mode;
    std::function<void(PlacedOptionList&)> run;
    /// The procedures that report, in order, as the failing call moves from the first to the last.
    std::vector<std::string> procedures;
};

void PrintTo(const Operation& operation, std::ostream* out) {
    *out << operation.name;
}

class Faults : public ::testing::TestWithParam<Operation> {
 protected:
    // Returns a list of two items. The first one is selected.
    static std::unique_ptr<PlacedOptionList> Place() {
        auto placed = PlacedOptionList::New(Mode::Design);
        placed->List().pLetContents(u"a;A|b;B");
        placed->List().pLetListIndex(0);
        placed->SetMode(GetParam().mode);
        placed->TakeLog();
        return placed;
    }

    static std::vector<std::string> Reports(PlacedOptionList& placed) {
        std::vector<std::string> reports;
        for (const std::string& line : placed.TakeLog()) {
            if (line.find("error") != std::string::npos || line.find("beep") != std::string::npos) {
                reports.push_back(line);
            }
        }
        return reports;
    }

    static void ExpectUsable(PlacedOptionList& placed) {
        placed.SetMode(Mode::Design);
        placed->pLetLeftMargin(0);
        placed->pLetTopMargin(0);
        placed->pLetSpacing(200);
        placed.Placed().Resize(1030, 700);
        placed.TakeLog();
        placed->pLetContents(u"p;P|q;Q|r;R|s;S");
        EXPECT_THAT(placed.TakeLog(), ElementsAre("changed Contents"));
        placed->pLetListIndex(1);
        placed->pLetListIndex(3);
        EXPECT_THAT(placed.Items(), ElementsAre("p;P", "q;Q", "r;R", "s;S *"));
        for (std::size_t index = 0; index < 4; ++index) {
            EXPECT_EQ(placed.Button(index).Where(),
                      (host::Placement{0, 200 * static_cast<float>(index), 1000, 200}));
            EXPECT_EQ(placed.Button(index).CurrentFont(), placed.Button(0).CurrentFont());
        }
        placed.TakeLog();
        placed.SetMode(Mode::Run);
        placed->pLetText(u"Q");
        EXPECT_EQ(placed->pGetListIndex(), 1);
        EXPECT_THAT(placed.TakeLog(),
                    ElementsAre("changed ListIndex", "changed Text", "event Click"));
    }
};

TEST_P(Faults, GiveOneReportEach) {
    const auto whole = Place();
    const std::int64_t before = whole->Faults().Calls();
    GetParam().run(*whole);
    const std::int64_t calls = whole->Faults().Calls() - before;
    EXPECT_THAT(Reports(*whole), IsEmpty()) << "the operation itself is in order";
    ASSERT_GT(calls, 0);

    std::vector<std::string> procedures;
    for (std::int64_t call = 1; call <= calls; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        const auto placed = Place();
        placed->Faults().FailCall(call, ErrorNumber::OutOfMemory);
        EXPECT_NO_THROW(GetParam().run(*placed));
        EXPECT_FALSE(placed->Faults().IsArmed());
        const std::vector<std::string> reports = Reports(*placed);
        ASSERT_EQ(reports.size(), 1U);
        const std::string prefix = "error 7 in ";
        ASSERT_EQ(reports[0].substr(0, prefix.size()), prefix);
        const std::string procedure = reports[0].substr(prefix.size());
        if (procedures.empty() || procedures.back() != procedure) {
            procedures.push_back(procedure);
        }
        ExpectUsable(*placed);
    }
    EXPECT_THAT(procedures, ElementsAreArray(GetParam().procedures));
}

void Read(PlacedOptionList& placed) {
    memory::PropertyBag bag;
    bag.Store(u"Contents", Text(u"x|y|z"));
    bag.Store(u"ListIndex", std::int16_t{2});
    memory::CountedBag counted(placed.Faults(), bag);
    placed->UserControl_ReadProperties(counted);
}

void Write(PlacedOptionList& placed) {
    memory::PropertyBag bag;
    memory::CountedBag counted(placed.Faults(), bag);
    placed->UserControl_WriteProperties(counted);
}

Operation Plain(Mode mode, std::string name, std::function<void(PlacedOptionList&)> run) {
    return {name, mode, std::move(run), {name}};
}

Operation ItemLet(std::string name, std::function<void(PlacedOptionList&)> run) {
    return {name, Mode::Design, std::move(run), {name, "CopyProperties"}};
}

Operation DistanceLet(std::string name, std::function<void(PlacedOptionList&)> run) {
    return {name, Mode::Design, std::move(run), {name, "MoveControls"}};
}

INSTANTIATE_TEST_SUITE_P(
    Operations, Faults,
    ::testing::Values(
        Plain(Mode::Run, "pGetEnabled", [](auto& p) { p->pGetEnabled(); }),
        Plain(Mode::Run, "pLetEnabled", [](auto& p) { p->pLetEnabled(true); }),
        Plain(Mode::Run, "pGetFont", [](auto& p) { p->pGetFont(); }),
        Plain(Mode::Run, "pSetFont", [](auto& p) { p->pSetFont(p.Form().NewFont(u"Arial", 9)); }),
        Plain(Mode::Run, "pGetBorderStyle", [](auto& p) { p->pGetBorderStyle(); }),
        Plain(Mode::Run, "pLetBorderStyle", [](auto& p) { p->pLetBorderStyle(0); }),
        Plain(Mode::Run, "Refresh", [](auto& p) { p->Refresh(); }),
        Plain(Mode::Run, "pGetCaption", [](auto& p) { p->pGetCaption(); }),
        Plain(Mode::Run, "pLetCaption", [](auto& p) { p->pLetCaption(u"c"); }),
        Operation{"MoreContents",
                  Mode::Run,
                  [](auto& p) { p->pLetContents(u"x|y|z"); },
                  {"pLetContents", "SetupControls", "CopyProperties", "MoveControls"}},
        Operation{"LessContents",
                  Mode::Run,
                  [](auto& p) { p->pLetContents(u"x"); },
                  {"pLetContents", "SetupControls"}},
        Plain(Mode::Run, "pGetItemAlignment", [](auto& p) { p->pGetItemAlignment(); }),
        ItemLet("pLetItemAlignment", [](auto& p) { p->pLetItemAlignment(1); }),
        Plain(Mode::Run, "pLetItemCaption", [](auto& p) { p->pLetItemCaption(1, u"c"); }),
        Plain(Mode::Run, "pGetItemFontBold", [](auto& p) { p->pGetItemFontBold(); }),
        ItemLet("pLetItemFontBold", [](auto& p) { p->pLetItemFontBold(true); }),
        Plain(Mode::Run, "pGetItemFontItalic", [](auto& p) { p->pGetItemFontItalic(); }),
        ItemLet("pLetItemFontItalic", [](auto& p) { p->pLetItemFontItalic(true); }),
        Plain(Mode::Run, "pGetItemFontName", [](auto& p) { p->pGetItemFontName(); }),
        ItemLet("pLetItemFontName", [](auto& p) { p->pLetItemFontName(u"Arial"); }),
        Plain(Mode::Run, "pGetItemFontSize", [](auto& p) { p->pGetItemFontSize(); }),
        ItemLet("pLetItemFontSize", [](auto& p) { p->pLetItemFontSize(12); }),
        Plain(Mode::Run, "pGetItemForeColor", [](auto& p) { p->pGetItemForeColor(); }),
        ItemLet("pLetItemForeColor", [](auto& p) { p->pLetItemForeColor(Rgb(1, 2, 3)); }),
        Plain(Mode::Design, "pGetLeftMargin", [](auto& p) { p->pGetLeftMargin(); }),
        DistanceLet("pLetLeftMargin", [](auto& p) { p->pLetLeftMargin(10); }),
        Plain(Mode::Design, "pGetSpacing", [](auto& p) { p->pGetSpacing(); }),
        DistanceLet("pLetSpacing", [](auto& p) { p->pLetSpacing(10); }),
        Plain(Mode::Design, "pGetTopMargin", [](auto& p) { p->pGetTopMargin(); }),
        DistanceLet("pLetTopMargin", [](auto& p) { p->pLetTopMargin(10); }),
        Operation{
            "pGetListIndex", Mode::Run, [](auto& p) { p->pGetListIndex(); }, {"GetListIndex"}},
        Operation{"Selecting",
                  Mode::Run,
                  [](auto& p) { p->pLetListIndex(1); },
                  {"GetListIndex", "pLetListIndex", "NotifyChangedListIndexText", "pLetListIndex"}},
        Operation{"Deselecting",
                  Mode::Run,
                  [](auto& p) { p->pLetListIndex(-1); },
                  {"GetListIndex", "pLetListIndex", "NotifyChangedListIndexText"}},
        Operation{
            "pGetText", Mode::Run, [](auto& p) { p->pGetText(); }, {"GetListIndex", "pGetText"}},
        Operation{
            "pGetValue", Mode::Run, [](auto& p) { p->pGetValue(); }, {"GetListIndex", "pGetValue"}},
        Operation{
            "SelectingByText",
            Mode::Run,
            [](auto& p) { p->pLetText(u"b"); },
            {"pLetText", "GetListIndex", "pLetText", "NotifyChangedListIndexText", "pLetText"}},
        Operation{"DeselectingByText",
                  Mode::Run,
                  [](auto& p) { p->pLetText(u"c"); },
                  {"pLetText", "GetListIndex", "pLetText", "NotifyChangedListIndexText"}},
        Operation{"InitProperties",
                  Mode::Design,
                  [](auto& p) { p->UserControl_InitProperties(); },
                  {"MoveControls"}},
        Operation{"ReadProperties",
                  Mode::Run,
                  Read,
                  {"UserControl_ReadProperties", "SetupControls", "CopyProperties", "MoveControls",
                   "GetListIndex", "pLetListIndex"}},
        Operation{"WriteProperties",
                  Mode::Run,
                  Write,
                  {"UserControl_WriteProperties", "GetListIndex", "UserControl_WriteProperties"}},
        Operation{"Resize",
                  Mode::Run,
                  [](auto& p) { p.Placed().Resize(500, 500); },
                  {"UserControl_Resize", "MoveControls"}}),
    testing::RowName());

// The click handler has no trap, so its errors are raised to the code that clicks.
TEST(ClickFault, OfTheUserGoesToTheRuntime) {
    const auto placed = PlacedOptionList::New(Mode::Run);
    placed->Faults().FailCall(u"Container.RaiseEvent", 1, ErrorNumber::OutOfMemory);
    EXPECT_THROW(placed->Click(0), RuntimeError);
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed ListIndex", "changed Text"));
    EXPECT_EQ(placed->List().pGetListIndex(), 0);
}

TEST(ClickFault, InTheNotificationIsReported) {
    const auto placed = PlacedOptionList::New(Mode::Run);
    placed->Faults().FailCall(u"Container.CanPropertyChange", 1, ErrorNumber::OutOfMemory);
    EXPECT_TRUE(placed->Click(0));
    EXPECT_THAT(
        placed->TakeLog(),
        ElementsAre("changed ListIndex", "error 7 in NotifyChangedListIndexText", "event Click"));
}

// If a button cannot be made, the buttons before it stay, and the next contents use them.
TEST(LoadFault, LeavesAUsableControl) {
    const auto placed = PlacedOptionList::New(Mode::Run);
    placed->Faults().FailCall(u"OptionButtons.Load", 3, ErrorNumber::OutOfMemory);
    placed->List().pLetContents(u"1|2|3|4|5");
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents", "error 7 in SetupControls"));
    EXPECT_THAT(placed->Items(), ElementsAre("1;1", "2;2", "3;3"));
    placed->List().pLetContents(u"1|2|3|4|5");
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents"));
    EXPECT_THAT(placed->Items(), ElementsAre("1;1", "2;2", "3;3", "4;4", "5;5"));
    EXPECT_EQ(placed->Button(2).Where(), (host::Placement{0, 480, 2970, 240}));
}

}  // namespace

}  // namespace lumenkit::testing
