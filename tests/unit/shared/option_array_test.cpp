#include "runtime/shared/option_array.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "frame/host/simple_constituents.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit::shared {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Fonts, places and captions do not matter to the array.
template <typename Interface>
class PlainConstituent : public Interface {
 public:
    host::Placement Place() const override { return {}; }
    void Move(const host::Placement& /*placement*/) override {}
    bool Visible() const override { return visible_; }
    void SetVisible(bool visible) override { visible_ = visible; }
    bool Enabled() const override { return true; }
    void SetEnabled(bool /*enabled*/) override {}
    void Refresh() override {}
    host::FontRef CurrentFont() const override { return nullptr; }
    void SetCurrentFont(host::FontRef /*font*/) override {}
    Text Caption() const override { return caption_; }
    void SetCaption(TextView caption) override { caption_ = caption; }

 protected:
    Text caption_;
    bool visible_ = true;
};

class PlainFrame final : public PlainConstituent<host::Frame> {
 public:
    std::int16_t BorderStyle() const override { return 1; }
    void SetBorderStyle(std::int16_t /*style*/) override {}
};

class PlainButton final : public PlainConstituent<host::OptionButton> {
 public:
    PlainButton(const host::OptionButtonDesign& design, OptionArray<PlainButton>& group)
        : name(design.name), parent(design.parent), index_(design.index), group_(group) {
        caption_ = design.caption;
        visible_ = design.visible;
    }

    Text Tag() const override { return {}; }
    void SetTag(TextView /*tag*/) override {}
    bool IsSelected() const override { return group_.IsSelected(*this); }
    void Select(bool selected) override { selected ? group_.Choose(*this) : group_.Release(*this); }
    std::int16_t Alignment() const override { return 0; }
    void SetAlignment(std::int16_t /*alignment*/) override {}
    Color ForeColor() const override { return {}; }
    void SetForeColor(Color /*color*/) override {}
    void SetVisible(bool visible) override {
        PlainConstituent::SetVisible(visible);
        group_.PlaceTabStop();
    }

    std::int16_t Index() const { return index_; }
    bool TakesFocus() const { return visible_; }
    void Mark(bool selected) { isMarked = selected; }
    void BecomeTabStop(bool stops) { isTabStop = stops; }

    Text name;
    const host::Constituent* parent;
    bool isMarked = false;
    bool isTabStop = false;

 private:
    std::int16_t index_;
    OptionArray<PlainButton>& group_;
};

class PlainArray final : public OptionArray<PlainButton> {
 public:
    PlainArray(const host::OptionButtonDesign& design, host::Frame& frame,
               host::OptionButtonEvents& events)
        : OptionArray(
              [](const host::OptionButtonDesign& element, OptionArray& group) {
                  return std::make_unique<PlainButton>(element, group);
              },
              design, frame, events) {}
};

class Clicks final : public host::OptionButtonEvents {
 public:
    void Click(std::int16_t index) override { clicked.push_back(index); }

    std::vector<std::int16_t> clicked;
};

class OptionArrayTest : public ::testing::Test {
 protected:
    // Loads elements, which are then shown.
    void Show(std::initializer_list<std::int16_t> indices) {
        for (const std::int16_t index : indices) {
            array_.Load(index);
            array_.Item(index).SetVisible(true);
        }
    }
    // Returns the indices of the elements that fulfil a condition.
    std::vector<std::int16_t> Those(const std::function<bool(const PlainButton&)>& condition) {
        std::vector<std::int16_t> found;
        for (std::int16_t index = 0; index < 10; ++index) {
            try {
                if (condition(array_.Item(index))) {
                    found.push_back(index);
                }
            } catch (const RuntimeError&) {
                continue;  // no such element
            }
        }
        return found;
    }
    std::vector<std::int16_t> Marked() {
        return Those([](const PlainButton& button) { return button.isMarked; });
    }
    std::vector<std::int16_t> TabStops() {
        return Those([](const PlainButton& button) { return button.isTabStop; });
    }
    std::int16_t NeighbourOf(std::int16_t index, bool forward) {
        const PlainButton* const next = array_.Neighbour(array_.Item(index), forward);
        return next == nullptr ? std::int16_t{-1} : next->Index();
    }

    PlainFrame frame_;
    Clicks events_;
    PlainArray array_{{{.name = u"Option1"}, u"first"}, frame_, events_};
};

TEST_F(OptionArrayTest, CreatesElement0AsDesigned) {
    const PlainButton& first = array_.Item(0);
    EXPECT_EQ(first.name, u"Option1");
    EXPECT_EQ(first.Caption(), u"first");
    EXPECT_TRUE(first.Visible());
    EXPECT_EQ(first.parent, &frame_);
}

TEST_F(OptionArrayTest, LoadsHiddenElementsWithoutACaption) {
    array_.Load(3);
    const PlainButton& loaded = array_.Item(3);
    EXPECT_EQ(loaded.name, u"Option1");
    EXPECT_EQ(loaded.Index(), 3);
    EXPECT_EQ(loaded.Caption(), u"");
    EXPECT_FALSE(loaded.Visible());
    EXPECT_FALSE(loaded.IsSelected());
    EXPECT_EQ(loaded.parent, &frame_);
}

TEST_F(OptionArrayTest, RaisesErrorsForIndices) {
    EXPECT_THAT([&] { array_.Item(1); }, Raises(340));
    EXPECT_THAT([&] { array_.Load(-1); }, Raises(340));
    EXPECT_THAT([&] { array_.Load(0); }, Raises(360));
}

TEST_F(OptionArrayTest, SelectsOneElement) {
    Show({1, 2});
    array_.Item(1).Select(true);
    array_.Item(2).Select(true);
    EXPECT_THAT(Marked(), ElementsAre(2));
    EXPECT_FALSE(array_.Item(1).IsSelected());
    EXPECT_TRUE(array_.Item(2).IsSelected());
}

TEST_F(OptionArrayTest, NotifiesAClickOnlyOfANewSelection) {
    Show({1});
    array_.Item(1).Select(true);
    array_.Item(1).Select(true);
    array_.Item(1).Select(false);
    array_.Item(0).Select(false);
    EXPECT_THAT(events_.clicked, ElementsAre(1));
    EXPECT_THAT(Marked(), IsEmpty());
}

TEST_F(OptionArrayTest, DeselectingAnotherElementChangesNothing) {
    Show({1});
    array_.Item(1).Select(true);
    array_.Item(0).Select(false);
    EXPECT_THAT(Marked(), ElementsAre(1));
}

TEST_F(OptionArrayTest, TheTabKeyStopsAtTheFirstElementThatTakesTheFocus) {
    EXPECT_THAT(TabStops(), ElementsAre(0));
    Show({1, 2});
    array_.Item(0).SetVisible(false);
    EXPECT_THAT(TabStops(), ElementsAre(1));
    array_.Item(1).SetVisible(false);
    array_.Item(2).SetVisible(false);
    EXPECT_THAT(TabStops(), IsEmpty());
}

TEST_F(OptionArrayTest, TheTabKeyStopsAtTheSelectedElementIfItTakesTheFocus) {
    Show({1, 2});
    array_.Item(2).Select(true);
    EXPECT_THAT(TabStops(), ElementsAre(2));
    array_.Item(2).SetVisible(false);
    EXPECT_THAT(TabStops(), ElementsAre(0));
    array_.Item(2).SetVisible(true);
    array_.Item(2).Select(false);
    EXPECT_THAT(TabStops(), ElementsAre(0));
}

TEST_F(OptionArrayTest, NeighboursFollowTheIndicesAroundTheEnds) {
    Show({7, 4});
    array_.Load(5);  // hidden
    EXPECT_EQ(NeighbourOf(4, true), 7);
    EXPECT_EQ(NeighbourOf(7, true), 0);
    EXPECT_EQ(NeighbourOf(0, false), 7);
    EXPECT_EQ(NeighbourOf(7, false), 4);
}

TEST_F(OptionArrayTest, AnElementIsItsOwnNeighbourIfNoOtherTakesTheFocus) {
    array_.Load(1);
    EXPECT_EQ(NeighbourOf(0, true), 0);
    array_.Item(0).SetVisible(false);
    EXPECT_EQ(NeighbourOf(0, true), -1);
}

}  // namespace
}  // namespace lumenkit::shared
