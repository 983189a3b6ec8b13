#include "runtime/memory/control_site.h"

#include <array>
#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/unit/memory/sample_control.h"

namespace lumenkit::memory {
namespace {

namespace sample_event = testing::sample_event;

class MemoryControlSite : public ::testing::Test {
 protected:
    FaultPlan faults_;
    Log log_;
    ControlSite site_{faults_, &log_, testing::SampleClasses().classes[0].eventTable, u"Sample1"};
};

TEST_F(MemoryControlSite, LogsWhatItSawInOrder) {
    std::array<Value, 1> key = {std::int16_t{65}};
    site_.RaiseEvent(sample_event::keyPress, key);
    site_.PropertyChanged(u"Caption");
    site_.RaiseEvent(sample_event::change, {});

    ASSERT_EQ(log_.Entries().size(), 3U);
    const auto& raised = std::get<RaisedEvent>(log_.Entries()[0]);
    EXPECT_EQ(raised.control, u"Sample1");
    EXPECT_EQ(raised.name, u"KeyPress");
    EXPECT_EQ(raised.arguments, std::vector<Value>{std::int16_t{65}});
    EXPECT_EQ(std::get<ChangedProperty>(log_.Entries()[1]),
              (ChangedProperty{.control = u"Sample1", .name = u"Caption"}));
    EXPECT_EQ(std::get<RaisedEvent>(log_.Entries()[2]).name, u"Change");
    EXPECT_EQ(log_.Events().size(), 2U);
    EXPECT_EQ(log_.Changes().size(), 1U);
    log_.Clear();
    EXPECT_TRUE(log_.Entries().empty());
}

TEST_F(MemoryControlSite, AnswersAsTold) {
    EXPECT_TRUE(site_.CanPropertyChange(u"Text"));
    site_.AllowChange(u"text", false);
    EXPECT_FALSE(site_.CanPropertyChange(u"TEXT"));
    EXPECT_TRUE(site_.CanPropertyChange(u"Caption"));
    site_.AllowChange(u"Text", true);
    EXPECT_TRUE(site_.CanPropertyChange(u"Text"));
}

TEST_F(MemoryControlSite, ArgumentsComeBackInTheirTypes) {
    std::array<Value, 2> mouse = {std::int16_t{1}, 2.5F};
    site_.SetEventHandler([](TextView name, std::span<Value> arguments) {
        EXPECT_EQ(name, u"MouseUp");
        arguments[0] = Text(u"12");
        arguments[1] = std::int32_t{7};
    });
    site_.RaiseEvent(sample_event::mouseUp, mouse);
    EXPECT_EQ(mouse[0], Value(std::int16_t{12}));
    EXPECT_EQ(mouse[1], Value(7.0F));
    EXPECT_EQ(log_.Events()[0]->arguments[0], Value(std::int16_t{1}));
}

TEST_F(MemoryControlSite, AnArgumentThatDoesNotConvertKeepsItsValue) {
    std::array<Value, 2> mouse = {std::int16_t{1}, 2.5F};
    site_.SetEventHandler([](TextView, std::span<Value> arguments) {
        arguments[0] = std::int32_t{70000};
        arguments[1] = Text(u"no number");
    });
    site_.RaiseEvent(sample_event::mouseUp, mouse);
    EXPECT_EQ(mouse[0], Value(std::int16_t{1}));
    EXPECT_EQ(mouse[1], Value(2.5F));
}

TEST_F(MemoryControlSite, ErrorsOfAHandlerDoNotComeBack) {
    std::array<Value, 1> key = {std::int16_t{65}};
    site_.SetEventHandler([](TextView, std::span<Value> arguments) {
        arguments[0] = std::int16_t{0};
        Raise(ErrorNumber::InvalidProcedureCall);
    });
    EXPECT_NO_THROW(site_.RaiseEvent(sample_event::keyPress, key));
    EXPECT_EQ(key[0], Value(std::int16_t{0}));
}

TEST_F(MemoryControlSite, AHandlerMayReplaceItself) {
    int seen = 0;
    site_.SetEventHandler([&](TextView, std::span<Value>) {
        ++seen;
        site_.SetEventHandler(nullptr);
    });
    site_.RaiseEvent(sample_event::change, {});
    site_.RaiseEvent(sample_event::change, {});
    EXPECT_EQ(seen, 1);
}

TEST_F(MemoryControlSite, KnowsOnlyTheClasssEvents) {
    EXPECT_THROW(site_.RaiseEvent(99, {}), std::logic_error);
    EXPECT_THROW(site_.RaiseEvent(sample_event::keyPress, {}), std::logic_error);
    ControlSite eventless(faults_, &log_, nullptr, u"x");
    EXPECT_THROW(eventless.RaiseEvent(sample_event::change, {}), std::logic_error);
}

TEST_F(MemoryControlSite, WithoutALogItKeepsQuiet) {
    ControlSite quiet(faults_, nullptr, testing::SampleClasses().classes[0].eventTable, u"x");
    int seen = 0;
    quiet.SetEventHandler([&](TextView, std::span<Value>) { ++seen; });
    quiet.RaiseEvent(sample_event::change, {});
    quiet.PropertyChanged(u"Caption");
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(log_.Entries().empty());
}

}  // namespace
}  // namespace lumenkit::memory
