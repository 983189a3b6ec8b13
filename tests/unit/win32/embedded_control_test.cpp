#include "runtime/win32/embedded_control.h"

#include <algorithm>
#include <memory>

#include "frame/runtime_error.h"
#include "tests/contract/probe_control.h"
#include "tests/support/window_count.h"
#include "tests/unit/win32/parts_form.h"

namespace lumenkit::win32 {
namespace {

using contract::ProbeControl;

class EmbeddedControlTest : public PartsTest {
 protected:
    EmbeddedControlTest() : PartsTest(contract::ProbeClasses()) {}

    std::unique_ptr<host::EmbeddedControl> Embed(const host::Design& design) {
        return Parts().AddControl(design, u"contract.Probe");
    }
    Object& Extender() { return ProbeControl::Last()->Host().extender; }
};

TEST_F(EmbeddedControlTest, ItsExtenderMovesIt) {
    const auto control = Embed({.name = u"Inner", .placement = {.width = 600, .height = 300}});
    EXPECT_EQ(Extender().Get(u"name"), Value(Text(u"Inner")));
    Extender().Let(u"Tag", Text(u"note"));
    EXPECT_EQ(Extender().Get(u"Tag"), Value(Text(u"note")));
    Extender().Let(u"Left", 150.0F);
    Extender().Let(u"Top", 75.0F);
    Extender().Let(u"Width", 900.0F);
    Extender().Let(u"Height", 450.0F);
    EXPECT_EQ(control->Place(), (host::Placement{150, 75, 900, 450}));
    EXPECT_EQ(ProbeControl::Last()->resizedWidth, 900);
    Extender().Call(u"Move", {Value(30.0F)});
    EXPECT_EQ(control->Place(), (host::Placement{30, 75, 900, 450}));
    Extender().Call(u"Move", {Value(0.0F), Value(0.0F), Value(1500.0F), Value(600.0F)});
    EXPECT_EQ(control->Place(), (host::Placement{0, 0, 1500, 600}));
    EXPECT_EQ(Extender().Get(u"Left"), Value(0.0F));
    EXPECT_EQ(Extender().Get(u"Top"), Value(0.0F));
    EXPECT_EQ(Extender().Get(u"Width"), Value(1500.0F));
    EXPECT_EQ(Extender().Get(u"Height"), Value(600.0F));
    Extender().Let(u"Visible", false);
    EXPECT_FALSE(control->Visible());
    EXPECT_EQ(Extender().Get(u"Visible"), Value(false));
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchMember, [&] { Extender().Get(u"Colour"); }));
    EXPECT_TRUE(
        Raises(ErrorNumber::InvalidPropertyValue, [&] { Extender().Let(u"Width", -1.0F); }));
}

TEST_F(EmbeddedControlTest, TheControlSizesItself) {
    const auto control = Embed({.name = u"Inner", .placement = {.width = 600, .height = 300}});
    ProbeControl::Last()->Host().surface.Size(1200, 450);
    EXPECT_EQ(control->Place().width, 1200);
    EXPECT_EQ(control->Place().height, 450);
}

TEST_F(EmbeddedControlTest, IsShownWhenItIsVisible) {
    const auto control =
        Embed({.name = u"Inner", .placement = {.width = 600, .height = 300}, .visible = false});
    Lines lines = ProbeControl::Last()->Take();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "Show"), 0);
    control->SetVisible(true);
    lines = ProbeControl::Last()->Take();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "Show"), 1);
    EXPECT_TRUE(control->Visible());
}

TEST_F(EmbeddedControlTest, LiesBehindWhatWasMadeBefore) {
    const auto picture =
        Parts().AddPictureBox({.name = u"P", .placement = {.width = 3000, .height = 3000}});
    host::ScrollBarEvents events;
    const auto bar = Parts().AddScrollBar({.name = u"S", .parent = picture.get()},
                                          host::Orientation::Horizontal, events);
    const auto control = Embed(
        {.name = u"Inner", .parent = picture.get(), .placement = {.width = 600, .height = 300}});
    const HWND next = GetWindow(WindowOf(*bar), GW_HWNDNEXT);
    ASSERT_NE(next, nullptr);
    EXPECT_EQ(GetWindow(next, GW_HWNDNEXT), nullptr);
    control->SetVisible(false);
    control->SetVisible(true);
    EXPECT_EQ(GetWindow(WindowOf(*bar), GW_HWNDNEXT), next);
    control->SetEnabled(false);
    EXPECT_FALSE(IsWindowEnabled(next));
    EXPECT_FALSE(control->Enabled());
}

TEST_F(EmbeddedControlTest, OutlivesTheWindowAroundIt) {
    const int before = testing::WindowCount();
    auto picture = Parts().AddPictureBox({.name = u"P"});
    auto control = Embed(
        {.name = u"Inner", .parent = picture.get(), .placement = {.width = 600, .height = 300}});
    picture.reset();
    control->Move({.width = 900, .height = 900});
    control->SetVisible(false);
    control->SetVisible(true);
    control->Refresh();
    EXPECT_EQ(control->Place().width, 900);
    control.reset();
    EXPECT_EQ(testing::WindowCount(), before);
}

TEST_F(EmbeddedControlTest, HasTheSurroundingsOfADesignedForm) {
    const auto control = Embed({.name = u"Inner", .placement = {.width = 600, .height = 300}});
    host::Ambient& ambient = ProbeControl::Last()->Host().ambient;
    EXPECT_TRUE(ambient.UserMode());
    EXPECT_EQ(ambient.BackColor(), Color::ButtonFace);
    EXPECT_EQ(ambient.AmbientFont()->Name(), u"MS Sans Serif");
    EXPECT_TRUE(ProbeControl::Last()->Host().container.CanPropertyChange(u"Text"));
}

}  // namespace
}  // namespace lumenkit::win32
