#include "runtime/shared/embedded_site.h"

#include <cstdint>
#include <vector>

#include <gmock/gmock.h>

#include "tests/unit/frame/raises.h"

namespace lumenkit::shared {
namespace {

class InnerConstituent final : public host::Constituent {
 public:
    host::Placement Place() const override { return place_; }
    void Move(const host::Placement& placement) override { place_ = placement; }
    bool Visible() const override { return visible_; }
    void SetVisible(bool visible) override { visible_ = visible; }
    bool Enabled() const override { return true; }
    void SetEnabled(bool /*enabled*/) override {}
    void Refresh() override {}

 private:
    host::Placement place_ = {.left = 1, .top = 2, .width = 3, .height = 4};
    bool visible_ = true;
};

TEST(EmbeddedSite, TheContainerAllowsChangesAndLeavesEventArguments) {
    SilentContainer container;
    EXPECT_TRUE(container.CanPropertyChange(u"Caption"));
    std::vector<Value> arguments = {Value(std::int16_t{5})};
    container.RaiseEvent(1, arguments);
    EXPECT_EQ(arguments.front(), Value(std::int16_t{5}));
}

TEST(EmbeddedSite, TheAmbientFontIsThatOfANewForm) {
    Text name;
    float size = 0;
    const EmbeddedAmbient ambient(
        [&](TextView asked, float points) -> host::FontRef {
            name = asked;
            size = points;
            return nullptr;
        },
        false);
    ambient.AmbientFont();
    EXPECT_EQ(name, u"MS Sans Serif");
    EXPECT_EQ(size, 8.25F);
    EXPECT_EQ(ambient.BackColor(), Color::ButtonFace);
    EXPECT_FALSE(ambient.UserMode());
}

TEST(EmbeddedSite, TheExtenderPlacesAndShowsTheConstituent) {
    InnerConstituent control;
    EmbeddedExtender extender(control, u"Inner");
    EXPECT_EQ(extender.Get(u"Name"), Value(Text(u"Inner")));
    EXPECT_EQ(extender.Get(u"Height"), Value(4.0F));
    extender.Let(u"Left", Value(30.0F));
    EXPECT_EQ(control.Place(), (host::Placement{.left = 30, .top = 2, .width = 3, .height = 4}));
    extender.Let(u"Visible", Value(false));
    EXPECT_FALSE(control.Visible());
    extender.Let(u"Tag", Value(Text(u"mine")));
    EXPECT_EQ(extender.Get(u"Tag"), Value(Text(u"mine")));
    EXPECT_THAT([&] { extender.Let(u"Name", Value(Text(u"Other"))); }, Raises(383));
}

}  // namespace
}  // namespace lumenkit::shared
