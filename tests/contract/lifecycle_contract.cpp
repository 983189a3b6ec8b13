#include <algorithm>
#include <array>

#include "tests/contract/contract_test.h"

namespace lumenkit::contract {
namespace {

class LifecycleContract : public ContractTest {
 protected:
    // Each runtime decides when to repaint.
    Lines WithoutPaints() {
        Lines lines = Probe().Take();
        std::erase(lines, "Paint");
        return lines;
    }
};
INSTANTIATE_TEST_SUITE_P(Runtime, LifecycleContract, ::testing::Values(RuntimeUnderTest()),
                         ::testing::PrintToStringParamName());

TEST_P(LifecycleContract, ANewControlStartsInOrder) {
    EXPECT_EQ(WithoutPaints(), (Lines{"Initialize", "InitProperties", "Resize", "Show"}));
    EXPECT_EQ(Probe().resizedWidth, Surface().ScaleWidth());
    EXPECT_EQ(Probe().resizedHeight, Surface().ScaleHeight());
    EXPECT_TRUE(Host().ambient.UserMode());
}

TEST_P(LifecycleContract, ASavedControlReadsWhatItWrote) {
    Probe().pLetNumber(12345);
    const auto bag = runtime_->NewBag();
    Probe().Take();
    runtime_->Save(*bag);
    EXPECT_EQ(WithoutPaints(), Lines{"WriteProperties"});
    runtime_->PlaceSaved(ProbeClasses().classes[0], *bag);
    EXPECT_EQ(WithoutPaints(), (Lines{"Initialize", "ReadProperties", "Resize", "Show"}));
    EXPECT_EQ(Probe().pGetNumber(), 12345);
}

TEST_P(LifecycleContract, ASaveInWhichTheControlReportsAnErrorFails) {
    const auto bag = runtime_->NewBag();
    Probe().reportsErrors = true;
    EXPECT_ANY_THROW(runtime_->Save(*bag));
    Probe().reportsErrors = false;
    Probe().pLetNumber(7);
    EXPECT_NO_THROW(runtime_->Save(*bag));
    EXPECT_EQ(ToLong(bag->ReadProperty(u"Number", std::int32_t{0})), 7);
}

TEST_P(LifecycleContract, TheControlIsToldToResize) {
    Probe().Take();
    runtime_->Resize(20 * Pixel(), 10 * Pixel());
    EXPECT_EQ(WithoutPaints(), Lines{"Resize"});
    EXPECT_NEAR(Probe().resizedWidth, 20 * Pixel(), Pixel());
}

TEST_P(LifecycleContract, AClickOnAnEnabledSurfaceReachesTheControl) {
    Probe().Take();
    runtime_->ClickSurface();
    EXPECT_EQ(WithoutPaints(), Lines{"Click"});
    Surface().SetEnabled(false);
    runtime_->ClickSurface();
    EXPECT_EQ(WithoutPaints(), Lines{});
}

TEST_P(LifecycleContract, TheContainerIsToldOfChangesAndMayForbidThem) {
    Host().container.PropertyChanged(u"Number");
    Host().container.PropertyChanged(u"Other");
    EXPECT_EQ(runtime_->ChangedProperties(), (std::vector<Text>{u"Number", u"Other"}));
    EXPECT_TRUE(Host().container.CanPropertyChange(u"Number"));
    runtime_->AllowChange(u"Number", false);
    EXPECT_FALSE(Host().container.CanPropertyChange(u"Number"));
    EXPECT_TRUE(Host().container.CanPropertyChange(u"Other"));
}

TEST_P(LifecycleContract, EventArgumentsComeBackInTheirTypes) {
    Lines seen;
    runtime_->SetEventHandler([&](TextView name, std::span<Value> arguments) {
        seen.push_back(name == u"Key" ? "Key" : "Plain");
        if (!arguments.empty()) {
            EXPECT_EQ(arguments[0], Value(std::int16_t{65}));
            arguments[0] = std::int32_t{66};
            arguments[1] = std::int32_t{3};
        }
    });
    std::array<Value, 2> key = {std::int16_t{65}, 1.5F};
    Host().container.RaiseEvent(keyEvent, key);
    Host().container.RaiseEvent(plainEvent, {});
    EXPECT_EQ(key[0], Value(std::int16_t{66}));
    EXPECT_EQ(key[1], Value(3.0F));
    EXPECT_EQ(seen, (Lines{"Key", "Plain"}));
}

TEST_P(LifecycleContract, AnEventHandlerMayCallTheControlAndFail) {
    runtime_->SetEventHandler([&](TextView, std::span<Value>) {
        Probe().Automation().Let(u"Number", std::int32_t{7});
        Raise(ErrorNumber::InvalidProcedureCall);
    });
    EXPECT_NO_THROW(Host().container.RaiseEvent(plainEvent, {}));
    EXPECT_EQ(Probe().pGetNumber(), 7);
}

TEST_P(LifecycleContract, TheExtenderShowsTheControlAsPlaced) {
    Object& extender = Host().extender;
    EXPECT_EQ(extender.Get(u"Name"), Value(Text(u"probe")));
    EXPECT_EQ(extender.Get(u"Tag"), Value(Text(u"its tag")));
    EXPECT_EQ(extender.Get(u"Visible"), Value(true));
    EXPECT_NEAR(ToDouble(extender.Get(u"Width")), 3000, Pixel());
    EXPECT_NEAR(ToDouble(extender.Get(u"Height")), 1500, Pixel());
    Probe().Take();
    extender.Call(u"Move", {30 * Pixel(), 20 * Pixel(), 60 * Pixel(), 40 * Pixel()});
    EXPECT_EQ(WithoutPaints(), Lines{"Resize"});
    EXPECT_NEAR(ToDouble(extender.Get(u"Left")), 30 * Pixel(), Pixel());
    EXPECT_NEAR(ToDouble(extender.Get(u"Top")), 20 * Pixel(), Pixel());
    EXPECT_NEAR(Surface().Width(), 60 * Pixel(), Pixel());
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchMember, [&] { extender.Get(u"NoSuchThing"); }));
}

}  // namespace
}  // namespace lumenkit::contract
