// The label's properties: effects of assigning them, repaints, persistence and events.
#include <functional>
#include <span>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "runtime/memory/user.h"
#include "tests/support/placed_label.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

bool operator==(const host::MouseArguments& left, const host::MouseArguments& right) {
    return left.button == right.button && left.shift == right.shift && left.x == right.x &&
           left.y == right.y;
}

class VLabelControl : public ::testing::Test {
 protected:
    void StartNewAndPaint() {
        label_.Placed().StartNew();
        label_.Paint();
        label_.TakeLog();
    }
    template <typename Action>
    bool Refreshes(Action&& action) {
        const bool refreshes = label_.Uses(u"Surface.Refresh", 1, action);
        label_.TakeLog();
        return refreshes;
    }
    template <typename Action>
    bool Draws(Action&& action) {
        const bool draws = label_.Uses(u"Surface.Cls", 1, action);
        label_.TakeLog();
        return draws;
    }
    std::string FirstPrint() {
        for (const PictureItem& item : label_.Picture().items) {
            if (const auto* print = std::get_if<PrintedText>(&item)) {
                LabelPicture one;
                one.items = {*print};
                return ToLines(one).substr(0, ToLines(one).find('\n'));
            }
        }
        return "nothing";
    }

    PlacedLabel label_;
};

// ---- Edge cases

TEST_F(VLabelControl, NewControlShowsItsNameInTheAmbientFontOnTheWindowColor) {
    label_.Form().AmbientFont().SetName(u"Tahoma");
    label_.Form().AmbientFont().SetSize(12);
    label_.Placed().StartNew();
    label_.Paint();
    EXPECT_EQ(FirstPrint(), "Print (0, 0) \"VLabel\" 12 0x80000012");
    EXPECT_EQ(label_.Surface().CurrentFont()->Name(), u"Tahoma");
    EXPECT_EQ(label_.Surface().BackColor(), Color::WindowBackground);
}

TEST_F(VLabelControl, NewControlHasTheDefaults) {
    label_.Placed().StartNew();
    EXPECT_EQ(label_->pGetBackColor(), Color::WindowBackground);
    EXPECT_EQ(label_->pGetForeColor(), Color::ButtonText);
    EXPECT_TRUE(label_->pGetEnabled());
    EXPECT_EQ(label_->pGetBorderStyle(), 0);
    EXPECT_TRUE(label_->pGetFontTransparent());
    EXPECT_EQ(label_->pGetMousePointer(), 0);
    EXPECT_EQ(label_->pGetCaption(), u"VLabel");
    EXPECT_FALSE(label_->pGetWordWrap());
    EXPECT_EQ(label_->pGetBulletIndent(), 0);
    EXPECT_EQ(label_->pGetBulletPrefix(), u"");
    EXPECT_FALSE(label_->pGetAutoSize());
    EXPECT_EQ(label_->pGetBackStyle(), 0);
}

TEST_F(VLabelControl, BackStyle1TakesTheContainersColorAtLoadAndOnAssignmentsOnly) {
    memory::PropertyBag bag;
    bag.Store(u"BackStyle", std::int16_t{1});
    label_.Form().SetAmbientBackColor(Rgb(1, 1, 1));
    label_.Placed().StartSaved(bag);
    EXPECT_EQ(label_.Surface().BackColor(), Rgb(1, 1, 1));

    label_.Form().SetAmbientBackColor(Rgb(2, 2, 2));
    label_.Paint();
    label_->Refresh();
    EXPECT_EQ(label_.Surface().BackColor(), Rgb(1, 1, 1));

    label_->pLetBackColor(Rgb(9, 9, 9));
    EXPECT_EQ(label_.Surface().BackColor(), Rgb(2, 2, 2));
    EXPECT_EQ(label_->pGetBackColor(), Rgb(9, 9, 9));

    label_.Form().SetAmbientBackColor(Rgb(3, 3, 3));
    label_->pLetBackStyle(1);
    EXPECT_EQ(label_.Surface().BackColor(), Rgb(3, 3, 3));

    label_->pLetBackStyle(0);
    EXPECT_EQ(label_.Surface().BackColor(), Rgb(9, 9, 9));
}

TEST_F(VLabelControl, AnyBackStyleBut0IsTheContainersColor) {
    label_.Form().SetAmbientBackColor(Rgb(1, 1, 1));
    label_.Placed().StartNew();
    for (const int style : {1, 2, -1, 32767}) {
        label_->pLetBackStyle(0);
        EXPECT_EQ(label_.Surface().BackColor(), Color::WindowBackground);
        label_->pLetBackStyle(static_cast<std::int16_t>(style));
        EXPECT_EQ(label_.Surface().BackColor(), Rgb(1, 1, 1));
        EXPECT_EQ(label_->pGetBackStyle(), style);
    }
}

TEST_F(VLabelControl, AutoSizeChangesNothingOnTheScreen) {
    StartNewAndPaint();
    const std::int64_t calls = label_.Faults().Calls();
    label_->pLetAutoSize(true);
    EXPECT_EQ(label_.Faults().Calls(), calls + 1);  // the container is notified
    EXPECT_THAT(label_.TakeLog(), ElementsAre("changed AutoSize"));
    EXPECT_TRUE(label_->pGetAutoSize());
}

// A container that assigns the caption while the control reads its properties.
class MeddlingBag final : public host::PropertyBag {
 public:
    MeddlingBag(VLabel& label, TextView name) : label_(label), name_(name) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override {
        if (name == name_) {
            label_.pLetCaption(u"early");
        }
        return defaultValue;
    }
    void WriteProperty(TextView, const Value&, const Value&) override {}

 private:
    VLabel& label_;
    TextView name_;
};

TEST_F(VLabelControl, CaptionAssignedWhileLoadingRepaintsNothingUntilTheFirstPaint) {
    MeddlingBag bag(label_.Label(), u"WordWrap");  // "Caption" has already been read
    label_.Placed().SetShown(true);
    EXPECT_FALSE(Refreshes([&] { label_.Placed().ReadProperties(bag); }));
    EXPECT_EQ(FirstPrint(), "nothing");
    label_.Paint();
    EXPECT_EQ(FirstPrint(), "Print (0, 0) \"early\" 8.25 0x80000012");
}

TEST_F(VLabelControl, ReadingAgainStopsRepaintsMeanwhile) {
    StartNewAndPaint();
    MeddlingBag bag(label_.Label(), u"WordWrap");
    EXPECT_FALSE(Refreshes([&] { label_.Placed().ReadProperties(bag); }));
    EXPECT_TRUE(Refreshes([&] { label_->pLetCaption(u"later"); }));
}

TEST_F(VLabelControl, ControlThatCouldNotBeReadRepaintsOnceItWasPainted) {
    label_.Faults().FailCall(u"PropertyBag.ReadProperty", 5, ErrorNumber::InternalError);
    memory::PropertyBag bag;
    label_.Placed().StartSaved(bag);
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 51 in UserControl_ReadProperties"));
    EXPECT_FALSE(Refreshes([&] { label_->pLetCaption(u"a"); }));
    label_.Paint();
    EXPECT_TRUE(Refreshes([&] { label_->pLetCaption(u"b"); }));
}

TEST_F(VLabelControl, NewControlRepaintsOnceItWasPainted) {
    label_.Placed().StartNew();
    EXPECT_FALSE(Refreshes([&] { label_->pLetCaption(u"a"); }));
    label_.Paint();
    EXPECT_TRUE(Refreshes([&] { label_->pLetCaption(u"b"); }));
}

TEST_F(VLabelControl, SavedControlRepaintsAtOnce) {
    memory::PropertyBag bag;
    label_.Placed().StartSaved(bag);
    EXPECT_TRUE(Refreshes([&] { label_->pLetCaption(u"a"); }));
}

// ---- Each property

struct Assignment {
    const char* name;
    bool repaints;
    std::function<void(VLabel&)> assign;
    std::function<bool(PlacedLabel&)> isAssigned;
};

const std::vector<Assignment>& Assignments() {
    static const std::vector<Assignment> assignments = {
        {"BackColor", true, [](VLabel& label) { label.pLetBackColor(Rgb(1, 2, 3)); },
         [](PlacedLabel& label) {
             return label->pGetBackColor() == Rgb(1, 2, 3) &&
                    label.Surface().BackColor() == Rgb(1, 2, 3);
         }},
        {"ForeColor", true, [](VLabel& label) { label.pLetForeColor(Rgb(1, 2, 3)); },
         [](PlacedLabel& label) {
             return label->pGetForeColor() == Rgb(1, 2, 3) &&
                    label.Surface().ForeColor() == Rgb(1, 2, 3);
         }},
        {"Enabled", false, [](VLabel& label) { label.pLetEnabled(false); },
         [](PlacedLabel& label) { return !label->pGetEnabled() && !label.Surface().Enabled(); }},
        {"Font", true, [](VLabel& label) { label.pSetFont(label.pGetFont()); },
         [](PlacedLabel& label) { return label->pGetFont() == label.Surface().CurrentFont(); }},
        {"BorderStyle", false, [](VLabel& label) { label.pLetBorderStyle(1); },
         [](PlacedLabel& label) {
             return label->pGetBorderStyle() == 1 && label.Surface().BorderStyle() == 1;
         }},
        {"FontTransparent", true, [](VLabel& label) { label.pLetFontTransparent(false); },
         [](PlacedLabel& label) {
             return !label->pGetFontTransparent() && !label.Surface().FontTransparent();
         }},
        {"MousePointer", false, [](VLabel& label) { label.pLetMousePointer(2); },
         [](PlacedLabel& label) {
             return label->pGetMousePointer() == 2 && label.Surface().Pointer() == 2;
         }},
        {"Caption", true, [](VLabel& label) { label.pLetCaption(u"c"); },
         [](PlacedLabel& label) { return label->pGetCaption() == u"c"; }},
        {"WordWrap", true, [](VLabel& label) { label.pLetWordWrap(true); },
         [](PlacedLabel& label) { return label->pGetWordWrap(); }},
        {"BulletIndent", true, [](VLabel& label) { label.pLetBulletIndent(-5); },
         [](PlacedLabel& label) { return label->pGetBulletIndent() == -5; }},
        {"BulletPrefix", true, [](VLabel& label) { label.pLetBulletPrefix(u"- "); },
         [](PlacedLabel& label) { return label->pGetBulletPrefix() == u"- "; }},
        {"AutoSize", false, [](VLabel& label) { label.pLetAutoSize(true); },
         [](PlacedLabel& label) { return label->pGetAutoSize(); }},
        {"BackStyle", true, [](VLabel& label) { label.pLetBackStyle(1); },
         [](PlacedLabel& label) { return label->pGetBackStyle() == 1; }},
    };
    return assignments;
}

TEST_F(VLabelControl, AssignmentsAreKeptToldAndRepaintedWhereTheyShow) {
    for (const Assignment& assignment : Assignments()) {
        SCOPED_TRACE(assignment.name);
        PlacedLabel label;
        label.Placed().StartNew();
        const auto assign = [&] { assignment.assign(label.Label()); };
        EXPECT_FALSE(label.Uses(u"Surface.Refresh", 1, assign));
        EXPECT_THAT(label.TakeLog(), ElementsAre("changed " + std::string(assignment.name)));
        EXPECT_TRUE(assignment.isAssigned(label));

        label.Paint();
        EXPECT_EQ(label.Uses(u"Surface.Refresh", 1, assign), assignment.repaints);
        label.TakeLog();
        assign();
        EXPECT_THAT(label.TakeLog(), ElementsAre("changed " + std::string(assignment.name)));
    }
}

TEST_F(VLabelControl, OnlyTheCaptionIsCompiledAnew) {
    StartNewAndPaint();
    label_->pLetCaption(u"|before:1E39|a");  // compiling it reports an error
    EXPECT_THAT(label_.TakeLog(), ElementsAre("changed Caption", "error 6 in CompileCommand",
                                              "error 9 in ExecuteNextCommand"));
    for (const Assignment& assignment : Assignments()) {
        if (assignment.name != std::string("Caption")) {
            assignment.assign(label_.Label());
        }
    }
    for (const std::string& line : label_.TakeLog()) {
        EXPECT_NE(line, "error 6 in CompileCommand");
    }
    label_->pLetCaption(u"|before:1E39|a");
    EXPECT_THAT(label_.TakeLog(), ElementsAre("changed Caption", "error 6 in CompileCommand",
                                              "error 9 in ExecuteNextCommand"));
}

// An error of a surface member is reported under the name of the procedure and ends the procedure.
TEST_F(VLabelControl, ErrorsInSurfacePropertiesAreReportedAndEndTheProcedure) {
    StartNewAndPaint();
    label_->pLetBorderStyle(7);
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 380 in pLetBorderStyle"));
    EXPECT_EQ(label_->pGetBorderStyle(), 0);
    label_->pLetMousePointer(16);
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 380 in pLetMousePointer"));
    label_->pSetFont(nullptr);
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 91 in pSetFont"));
}

TEST_F(VLabelControl, EachSurfaceMemberFailsUnderTheNameOfItsProcedure) {
    const struct {
        TextView member;
        const char* procedure;
        std::function<void(VLabel&)> use;
    } uses[] = {
        {u"Surface.ForeColor", "pGetForeColor",
         [](VLabel& label) { EXPECT_EQ(label.pGetForeColor(), Color{}); }},
        {u"Surface.SetForeColor", "pLetForeColor",
         [](VLabel& label) { label.pLetForeColor(Color{}); }},
        {u"Surface.Enabled", "pGetEnabled",
         [](VLabel& label) { EXPECT_FALSE(label.pGetEnabled()); }},
        {u"Surface.SetEnabled", "pLetEnabled", [](VLabel& label) { label.pLetEnabled(true); }},
        {u"Surface.CurrentFont", "pGetFont",
         [](VLabel& label) { EXPECT_EQ(label.pGetFont(), nullptr); }},
        {u"Surface.SetCurrentFont", "pSetFont",
         [](VLabel& label) { label.pSetFont(label.pGetFont()); }},
        {u"Surface.BorderStyle", "pGetBorderStyle",
         [](VLabel& label) { EXPECT_EQ(label.pGetBorderStyle(), 0); }},
        {u"Surface.SetBorderStyle", "pLetBorderStyle",
         [](VLabel& label) { label.pLetBorderStyle(0); }},
        {u"Surface.FontTransparent", "pGetFontTransparent",
         [](VLabel& label) { EXPECT_FALSE(label.pGetFontTransparent()); }},
        {u"Surface.SetFontTransparent", "pLetFontTransparent",
         [](VLabel& label) { label.pLetFontTransparent(true); }},
        {u"Surface.Pointer", "pGetMousePointer",
         [](VLabel& label) { EXPECT_EQ(label.pGetMousePointer(), 0); }},
        {u"Surface.SetPointer", "pLetMousePointer",
         [](VLabel& label) { label.pLetMousePointer(0); }},
        {u"Surface.Refresh", "RefreshControl", [](VLabel& label) { label.Refresh(); }},
        {u"Surface.SetBackColor", "ApplyBackColour",
         [](VLabel& label) { label.UserControl_InitProperties(); }},
        {u"Ambient.AmbientFont", "UserControl_InitProperties",
         [](VLabel& label) { label.UserControl_InitProperties(); }},
        {u"Screen.TwipsPerPixelX", "UserControl_Initialize",
         [](VLabel& label) { label.UserControl_Initialize(); }},
    };
    StartNewAndPaint();
    for (const auto& use : uses) {
        label_.Faults().FailCall(use.member, 1, ErrorNumber::InternalError);
        use.use(label_.Label());
        EXPECT_FALSE(label_.Faults().IsArmed());
        EXPECT_THAT(label_.TakeLog(), ElementsAre("error 51 in " + std::string(use.procedure)));
    }
}

TEST_F(VLabelControl, StoredPropertiesHaveNoTrapOfTheirOwn) {
    StartNewAndPaint();
    label_.Faults().FailCall(u"Container.PropertyChanged", 1, ErrorNumber::InternalError);
    EXPECT_THROW(label_->pLetCaption(u"a"), RuntimeError);
    EXPECT_THAT(label_.TakeLog(), IsEmpty());
    label_.Faults().FailCall(u"Container.PropertyChanged", 1, ErrorNumber::InternalError);
    label_->pLetForeColor(Color{});
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 51 in pLetForeColor"));
}

// ---- Repainting

TEST_F(VLabelControl, RefreshRepaintsOnDemand) {
    StartNewAndPaint();
    EXPECT_TRUE(Refreshes([&] { label_->Refresh(); }));
    EXPECT_TRUE(Draws([&] { label_->Refresh(); }));
    EXPECT_FALSE(label_.Uses(u"Surface.Cls", 2, [&] { label_->Refresh(); }));
}

TEST_F(VLabelControl, RefreshDrawsAtOnceWhereThePictureIsKept) {
    StartNewAndPaint();
    label_.Surface().SetAutoRedraw(true);
    EXPECT_TRUE(Draws([&] { label_->Refresh(); }));
    EXPECT_FALSE(label_.Uses(u"Surface.Cls", 2, [&] { label_->Refresh(); }));
    label_->pLetCaption(u"new");
    EXPECT_EQ(FirstPrint(), "Print (0, 0) \"new\" 10 0x80000012");
}

TEST_F(VLabelControl, ResizeAndShowRedrawOnlyAPictureThatIsKept) {
    StartNewAndPaint();
    for (const bool keeps : {false, true}) {
        label_.Surface().SetAutoRedraw(keeps);
        EXPECT_EQ(Draws([&] { label_->UserControl_Resize(); }), keeps);
        EXPECT_EQ(Draws([&] { label_->UserControl_Show(); }), keeps);
        EXPECT_FALSE(Refreshes([&] { label_->UserControl_Resize(); }));
        EXPECT_FALSE(Refreshes([&] { label_->UserControl_Show(); }));
    }
}

TEST_F(VLabelControl, PaintDraws) {
    StartNewAndPaint();
    EXPECT_TRUE(Draws([&] { label_->UserControl_Paint(); }));
}

// ---- Persistence

// Records the calls and stores nothing.
class NotingBag final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView name, const Value& defaultValue) override {
        names.emplace_back(name);
        defaults.push_back(defaultValue);
        return defaultValue;
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        names.emplace_back(name);
        values.push_back(value);
        defaults.push_back(defaultValue);
    }

    std::vector<Text> names;
    std::vector<Value> values;
    std::vector<Value> defaults;
};

const std::vector<Text> persistedNames = {
    u"BackColor",       u"ForeColor",    u"Enabled",  u"Font",     u"BorderStyle",
    u"FontTransparent", u"MousePointer", u"Caption",  u"WordWrap", u"BulletIndent",
    u"BulletPrefix",    u"AutoSize",     u"BackStyle"};

// 0x80000005 and 0x80000012 as 32-bit signed integers.
const std::vector<Value> persistedDefaults = {std::int32_t{-2147483643},
                                              std::int32_t{-2147483630},
                                              true,
                                              ObjectRef(),
                                              std::int16_t{0},
                                              true,
                                              std::int16_t{0},
                                              Text(u"VLabel"),
                                              false,
                                              std::int16_t{0},
                                              Text(),
                                              false,
                                              std::int16_t{0}};

TEST_F(VLabelControl, ReadsItsPropertiesInOrderWithTheirDefaults) {
    NotingBag bag;
    label_.Placed().ReadProperties(bag);
    EXPECT_EQ(bag.names, persistedNames);
    EXPECT_EQ(bag.defaults, persistedDefaults);
}

TEST_F(VLabelControl, WritesItsPropertiesInOrderWithTheSameDefaults) {
    label_.Placed().StartNew();
    NotingBag bag;
    label_.Placed().Save(bag);
    EXPECT_EQ(bag.names, persistedNames);
    EXPECT_EQ(bag.defaults, persistedDefaults);
    std::vector<Value> values = persistedDefaults;
    values[3] = ObjectRef(label_.Surface().CurrentFont());
    EXPECT_EQ(bag.values, values);
}

TEST_F(VLabelControl, OnlyTheFontOfANewControlIsStored) {
    label_.Placed().StartNew();
    const memory::PropertyBag bag = label_.Placed().Save();
    ASSERT_EQ(bag.Entries().size(), 1U);
    EXPECT_EQ(bag.Entries()[0].first, u"Font");
}

TEST_F(VLabelControl, WhatWasSavedIsReadBack) {
    label_.Placed().StartNew();
    for (const Assignment& assignment : Assignments()) {
        assignment.assign(label_.Label());
    }
    label_->pGetFont()->SetSize(14);
    label_->pLetBackStyle(2);
    memory::PropertyBag bag = label_.Placed().Save();
    EXPECT_EQ(bag.Entries().size(), persistedNames.size());

    PlacedLabel other;
    other.Form().SetAmbientBackColor(Rgb(7, 7, 7));
    other.Placed().StartSaved(bag);
    EXPECT_EQ(other->pGetBackColor(), Rgb(1, 2, 3));
    EXPECT_EQ(other.Surface().BackColor(), Rgb(7, 7, 7));
    EXPECT_EQ(other->pGetForeColor(), Rgb(1, 2, 3));
    EXPECT_FALSE(other->pGetEnabled());
    EXPECT_EQ(other->pGetFont()->Size(), 14);
    EXPECT_EQ(other->pGetBorderStyle(), 1);
    EXPECT_FALSE(other->pGetFontTransparent());
    EXPECT_EQ(other->pGetMousePointer(), 2);
    EXPECT_EQ(other->pGetCaption(), u"c");
    EXPECT_TRUE(other->pGetWordWrap());
    EXPECT_EQ(other->pGetBulletIndent(), -5);
    EXPECT_EQ(other->pGetBulletPrefix(), u"- ");
    EXPECT_TRUE(other->pGetAutoSize());
    EXPECT_EQ(other->pGetBackStyle(), 2);
    EXPECT_THAT(other.TakeLog(), IsEmpty());  // reading sends no notification
}

TEST_F(VLabelControl, EmptyBagGivesTheDefaultsAndKeepsTheFont) {
    memory::PropertyBag bag;
    const host::FontRef font = label_.Surface().CurrentFont();
    label_.Placed().StartSaved(bag);
    EXPECT_EQ(label_->pGetFont(), font);
    EXPECT_EQ(label_->pGetCaption(), u"VLabel");
    EXPECT_EQ(label_->pGetForeColor(), Color::ButtonText);
    EXPECT_EQ(label_.Surface().BackColor(), Color::WindowBackground);
    EXPECT_THAT(label_.TakeLog(), IsEmpty());
}

// ---- Events

TEST_F(VLabelControl, ClicksAreRaised) {
    StartNewAndPaint();
    memory::User user(label_.Form());
    user.Click(label_.Placed());
    user.DblClick(label_.Placed());
    EXPECT_THAT(label_.TakeLog(), ElementsAre("event Click", "event DblClick"));
}

TEST_F(VLabelControl, MouseEventsCarryTheirValuesAndBringBackTheHandlers) {
    StartNewAndPaint();
    label_.Placed().Site().SetEventHandler([](TextView, std::span<Value> arguments) {
        arguments[0] = std::int32_t{4};  // converted to the argument's own type
        arguments[1] = Text(u"3");
        arguments[2] = 1.5;
        arguments[3] = std::int16_t{-2};
    });
    host::MouseArguments mouse;
    const auto raise = [&](void (VLabel::*notify)(host::MouseArguments&)) {
        mouse = {.button = 1, .shift = 2, .x = 30.25F, .y = 45};
        (label_.Label().*notify)(mouse);
        EXPECT_TRUE(mouse == (host::MouseArguments{.button = 4, .shift = 3, .x = 1.5F, .y = -2}));
    };
    raise(&VLabel::UserControl_MouseDown);
    raise(&VLabel::UserControl_MouseMove);
    raise(&VLabel::UserControl_MouseUp);

    const std::vector<Value> raised = {std::int16_t{1}, std::int16_t{2}, 30.25F, 45.0F};
    const auto events = label_.Form().GetLog().Events();
    ASSERT_EQ(events.size(), 3U);
    for (const memory::RaisedEvent* event : events) {
        EXPECT_EQ(event->arguments, raised);
    }
    EXPECT_THAT(label_.TakeLog(),
                ElementsAre("event MouseDown", "event MouseMove", "event MouseUp"));
}

TEST_F(VLabelControl, ClickHasNoTrapOfItsOwnButTheMouseEventsHave) {
    StartNewAndPaint();
    const auto fail = [&] {
        label_.Faults().FailCall(u"Container.RaiseEvent", 1, ErrorNumber::InternalError);
    };
    fail();
    EXPECT_THROW(label_->UserControl_Click(), RuntimeError);
    fail();
    EXPECT_THROW(label_->UserControl_DblClick(), RuntimeError);
    host::MouseArguments mouse;
    fail();
    label_->UserControl_MouseDown(mouse);
    fail();
    label_->UserControl_MouseMove(mouse);
    fail();
    label_->UserControl_MouseUp(mouse);
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 51 in UserControl_MouseDown",
                                              "error 51 in UserControl_MouseMove",
                                              "error 51 in UserControl_MouseUp"));
}

}  // namespace

}  // namespace lumenkit::testing
