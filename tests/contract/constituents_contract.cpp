#include "tests/contract/contract_test.h"

namespace lumenkit::contract {
namespace {

class ClickCounter final : public host::ClickEvents {
 public:
    void Click() override { ++clicks; }
    int clicks = 0;
};

class ScrollCounter final : public host::ScrollBarEvents {
 public:
    void Change() override { ++changes; }
    int changes = 0;
};

class OptionRecorder final : public host::OptionButtonEvents {
 public:
    void Click(std::int16_t index) override { clicked.push_back(index); }
    std::vector<std::int16_t> clicked;
};

class ConstituentsContract : public ContractTest {
 protected:
    std::unique_ptr<host::Frame> frame_ = Parts().AddFrame(
        {{.name = u"Frame1", .placement = {.width = 2400, .height = 1200}}, u"Frame"});
    ClickCounter clicks_;
    ScrollCounter scrolls_;
};
INSTANTIATE_TEST_SUITE_P(Runtime, ConstituentsContract, ::testing::Values(RuntimeUnderTest()),
                         ::testing::PrintToStringParamName());

TEST_P(ConstituentsContract, AFrameKeepsItsProperties) {
    EXPECT_EQ(frame_->Caption(), u"Frame");
    frame_->SetCaption(u"Other");
    frame_->SetBorderStyle(0);
    frame_->SetEnabled(false);
    frame_->SetVisible(false);
    EXPECT_EQ(frame_->Caption(), u"Other");
    EXPECT_EQ(frame_->BorderStyle(), 0);
    EXPECT_FALSE(frame_->Enabled());
    EXPECT_FALSE(frame_->Visible());
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { frame_->SetBorderStyle(2); }));
    frame_->Move({.left = 15, .top = 30, .width = 1500, .height = 600});
    EXPECT_NEAR(frame_->Place().left, 15, Pixel());
    EXPECT_NEAR(frame_->Place().top, 30, Pixel());
    EXPECT_NEAR(frame_->Place().width, 1500, Pixel());
    EXPECT_NEAR(frame_->Place().height, 600, Pixel());
}

TEST_P(ConstituentsContract, AConstituentStartsAsDesigned) {
    const auto label = Parts().AddLabel({{.name = u"L",
                                          .parent = frame_.get(),
                                          .placement = {.left = 150, .width = 600, .height = 300},
                                          .visible = false,
                                          .fontName = u"Courier",
                                          .fontSize = 12},
                                         u"text"});
    EXPECT_EQ(label->Caption(), u"text");
    EXPECT_FALSE(label->Visible());
    EXPECT_TRUE(label->Enabled());
    EXPECT_EQ(label->CurrentFont()->Name(), u"Courier");
    EXPECT_EQ(label->CurrentFont()->Size(), 12);
    EXPECT_NEAR(label->Place().left, 150, Pixel());
    EXPECT_NEAR(label->Place().width, 600, Pixel());
}

TEST_P(ConstituentsContract, ALabelThatSizesItselfFollowsItsCaption) {
    const auto label =
        Parts().AddLabel({{.name = u"L", .placement = {.width = 600, .height = 300}}, u"x"});
    label->SetAutoSize(true);
    const float narrow = label->Place().width;
    label->SetCaption(u"a longer caption");
    EXPECT_TRUE(label->AutoSize());
    EXPECT_GT(label->Place().width, narrow);
    label->SetForeColor(Rgb(1, 1, 1));
    label->SetBackColor(Rgb(2, 2, 2));
    EXPECT_EQ(label->ForeColor(), Rgb(1, 1, 1));
    EXPECT_EQ(label->BackColor(), Rgb(2, 2, 2));
}

TEST_P(ConstituentsContract, ALabelWithoutAMnemonicHasRoomForEveryCharacter) {
    host::CaptionDesign design = {{.name = u"L", .placement = {.width = 600, .height = 300}}, u"x"};
    design.useMnemonic = false;
    const auto label = Parts().AddLabel(design);
    label->SetAutoSize(true);
    const auto sizeOf = [&](TextView caption) {
        label->SetCaption(caption);
        EXPECT_EQ(label->Caption(), caption);
        return label->Place();
    };
    const host::Placement plain = sizeOf(u"ab");
    for (const TextView longer : {u"a&b", u"a\r\nb", u"a\tb"}) {
        const host::Placement size = sizeOf(longer);
        EXPECT_GT(size.width, plain.width);
        EXPECT_EQ(size.height, plain.height);
    }
    EXPECT_GT(sizeOf(u"a&&b").width, sizeOf(u"a&b").width);
}

TEST_P(ConstituentsContract, AnAccessKeyLeavesTheCaptionAlone) {
    host::CaptionDesign design = {{.name = u"P", .placement = {.width = 900, .height = 300}},
                                  u"R & D"};
    design.accessKey = u'D';
    EXPECT_EQ(Parts().AddLabel(design)->Caption(), u"R & D");
    EXPECT_EQ(Parts().AddFrame(design)->Caption(), u"R & D");
    EXPECT_EQ(Parts().AddCheckBox(design, clicks_)->Caption(), u"R & D");
    const auto button = Parts().AddCommandButton(design, clicks_);
    button->SetCaption(u"& more");
    EXPECT_EQ(button->Caption(), u"& more");
}

TEST_P(ConstituentsContract, ACheckBoxNotifiesAChangedValue) {
    const auto box = Parts().AddCheckBox(
        {{.name = u"C", .placement = {.width = 900, .height = 300}}, u"c"}, clicks_);
    EXPECT_EQ(box->CheckState(), 0);
    box->SetCheckState(1);
    box->SetCheckState(1);
    EXPECT_EQ(clicks_.clicks, 1);
    box->SetCheckState(2);
    EXPECT_EQ(box->CheckState(), 2);
    for (const std::int16_t state : Integers{-1, 3}) {
        EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { box->SetCheckState(state); }));
    }
    box->SetCheckState(0);
    clicks_.clicks = 0;
    runtime_->Click(*box);
    EXPECT_EQ(box->CheckState(), 1);
    runtime_->Click(*box);
    EXPECT_EQ(box->CheckState(), 0);
    EXPECT_EQ(clicks_.clicks, 2);
    box->SetEnabled(false);
    runtime_->Click(*box);
    EXPECT_EQ(box->CheckState(), 0);
}

TEST_P(ConstituentsContract, ACommandButtonNotifiesClicksWhileItIsVisibleAndEnabled) {
    const auto button = Parts().AddCommandButton(
        {{.name = u"B", .placement = {.width = 900, .height = 300}}, u"press"}, clicks_);
    EXPECT_EQ(button->Caption(), u"press");
    runtime_->Click(*button);
    EXPECT_EQ(clicks_.clicks, 1);
    button->SetEnabled(false);
    runtime_->Click(*button);
    button->SetEnabled(true);
    button->SetVisible(false);
    runtime_->Click(*button);
    EXPECT_EQ(clicks_.clicks, 1);
}

TEST_P(ConstituentsContract, TheInsideOfAPictureBoxIsNotLargerThanTheBox) {
    const auto box =
        Parts().AddPictureBox({.name = u"P", .placement = {.width = 1500, .height = 900}});
    EXPECT_GT(box->ScaleWidth(), 1200);
    EXPECT_LE(box->ScaleWidth(), 1500);
    EXPECT_GT(box->ScaleHeight(), 600);
    EXPECT_LE(box->ScaleHeight(), 900);
}

TEST_P(ConstituentsContract, AScrollBarKeepsItsValueInRange) {
    const auto bar =
        Parts().AddScrollBar({.name = u"S", .placement = {.width = 1500, .height = 240}},
                             host::Orientation::Horizontal, scrolls_);
    bar->SetMax(100);
    bar->SetLargeChange(50);
    bar->SetSmallChange(5);
    EXPECT_EQ(bar->Max(), 100);
    EXPECT_EQ(bar->LargeChange(), 50);
    EXPECT_EQ(bar->SmallChange(), 5);
    bar->SetScrollValue(100);
    bar->SetScrollValue(100);
    EXPECT_EQ(scrolls_.changes, 1);
    for (const std::int16_t value : Integers{-1, 101}) {
        EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { bar->SetScrollValue(value); }));
    }
    bar->SetMax(40);
    EXPECT_EQ(bar->ScrollValue(), 40);
    EXPECT_EQ(scrolls_.changes, 2);
    bar->SetMax(60);
    EXPECT_EQ(scrolls_.changes, 2);
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { bar->SetMax(-1); }));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { bar->SetLargeChange(0); }));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { bar->SetSmallChange(0); }));
    runtime_->Scroll(*bar, 20);
    EXPECT_EQ(bar->ScrollValue(), 20);
    EXPECT_EQ(scrolls_.changes, 3);
}

class OptionButtonsContract : public ConstituentsContract {
 protected:
    void SetUp() override {
        for (const std::int16_t index : Integers{1, 2}) {
            options_->Load(index);
            options_->Item(index).SetVisible(true);
            options_->Item(index).Move(
                {.top = static_cast<float>(300 * index), .width = 1500, .height = 300});
        }
    }
    std::vector<bool> Marks() {
        return {options_->Item(0).IsSelected(), options_->Item(1).IsSelected(),
                options_->Item(2).IsSelected()};
    }

    OptionRecorder recorder_;
    std::unique_ptr<host::OptionButtons> options_ = Parts().AddOptionButtons(
        {{.name = u"Option1", .placement = {.width = 1500, .height = 300}}, u"Item 0"}, *frame_,
        recorder_);
};
INSTANTIATE_TEST_SUITE_P(Runtime, OptionButtonsContract, ::testing::Values(RuntimeUnderTest()),
                         ::testing::PrintToStringParamName());

TEST_P(OptionButtonsContract, ElementZeroExistsFromTheStart) {
    EXPECT_EQ(options_->Item(0).Caption(), u"Item 0");
    EXPECT_EQ(options_->Item(0).Tag(), u"");
    EXPECT_TRUE(options_->Item(0).Visible());
    EXPECT_EQ(options_->Item(0).Alignment(), 0);
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchArrayElement, [&] { options_->Item(3); }));
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchArrayElement, [&] { options_->Item(-1); }));
}

TEST_P(OptionButtonsContract, ALoadedElementIsAsDesignedButHiddenAndEmpty) {
    options_->Item(0).SetAlignment(1);
    options_->Item(0).SetForeColor(Rgb(5, 5, 5));
    options_->Item(0).CurrentFont()->SetSize(30);
    options_->Load(5);
    host::OptionButton& loaded = options_->Item(5);
    EXPECT_FALSE(loaded.Visible());
    EXPECT_EQ(loaded.Caption(), u"");
    EXPECT_EQ(loaded.Tag(), u"");
    EXPECT_FALSE(loaded.IsSelected());
    EXPECT_EQ(loaded.Alignment(), 0);
    EXPECT_EQ(loaded.CurrentFont()->Size(), 8.25F);
    EXPECT_NEAR(loaded.Place().width, 1500, Pixel());
    EXPECT_TRUE(Raises(ErrorNumber::AlreadyLoaded, [&] { options_->Load(5); }));
    EXPECT_TRUE(Raises(ErrorNumber::AlreadyLoaded, [&] { options_->Load(0); }));
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchArrayElement, [&] { options_->Load(-1); }));
}

TEST_P(OptionButtonsContract, SelectingClearsTheOthersThenNotifies) {
    EXPECT_EQ(Marks(), (std::vector<bool>{false, false, false}));
    options_->Item(1).Select(true);
    options_->Item(2).Select(true);
    EXPECT_EQ(Marks(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(recorder_.clicked, (std::vector<std::int16_t>{1, 2}));
}

TEST_P(OptionButtonsContract, SelectingAgainAndDeselectingNotifyNothing) {
    options_->Item(1).Select(true);
    recorder_.clicked.clear();
    options_->Item(1).Select(true);
    options_->Item(1).Select(false);
    options_->Item(1).Select(false);
    EXPECT_EQ(Marks(), (std::vector<bool>{false, false, false}));
    EXPECT_TRUE(recorder_.clicked.empty());
}

TEST_P(OptionButtonsContract, HiddenElementsBelongToTheGroup) {
    options_->Item(2).Select(true);
    options_->Item(2).SetVisible(false);
    options_->Item(0).Select(true);
    EXPECT_EQ(Marks(), (std::vector<bool>{true, false, false}));
}

TEST_P(OptionButtonsContract, TheUserSelectsElementsThatAreVisibleInAnEnabledParent) {
    runtime_->Click(options_->Item(1));
    EXPECT_EQ(Marks(), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(recorder_.clicked, std::vector<std::int16_t>{1});
    options_->Item(2).SetVisible(false);
    runtime_->Click(options_->Item(2));
    frame_->SetEnabled(false);
    runtime_->Click(options_->Item(0));
    EXPECT_EQ(Marks(), (std::vector<bool>{false, true, false}));
}

TEST_P(OptionButtonsContract, AnElementKeepsItsProperties) {
    host::OptionButton& button = options_->Item(2);
    button.SetCaption(u"Caption");
    button.SetTag(u"a tag");
    button.SetAlignment(1);
    button.SetForeColor(Rgb(3, 4, 5));
    EXPECT_EQ(button.Caption(), u"Caption");
    EXPECT_EQ(button.Tag(), u"a tag");
    EXPECT_EQ(button.Alignment(), 1);
    EXPECT_EQ(button.ForeColor(), Rgb(3, 4, 5));
    for (const std::int16_t alignment : Integers{-1, 2}) {
        EXPECT_TRUE(
            Raises(ErrorNumber::InvalidPropertyValue, [&] { button.SetAlignment(alignment); }));
    }
}

TEST_P(ConstituentsContract, AnEmbeddedControlStartsAsANewOne) {
    ProbeControl& outer = Probe();
    outer.Take();
    const auto embedded = Parts().AddControl(
        {.name = u"Inner", .placement = {.width = 600, .height = 300}}, u"Contract.PROBE");
    ProbeControl& inner = Probe();
    ASSERT_NE(&inner, &outer);
    Lines started = inner.Take();
    std::erase(started, "Paint");
    EXPECT_EQ(started, (Lines{"Initialize", "InitProperties", "Resize", "Show"}));
    embedded->Automation().Let(u"Number", std::int32_t{3});
    EXPECT_EQ(inner.pGetNumber(), 3);
    embedded->Move({.left = -150, .top = -75, .width = 900, .height = 300});
    EXPECT_NEAR(embedded->Place().left, -150, Pixel());
    EXPECT_NEAR(inner.resizedWidth, 900, Pixel());
    inner.Host().container.PropertyChanged(u"Number");
    EXPECT_TRUE(runtime_->ChangedProperties().empty()) << "the outer control is its container";
    EXPECT_TRUE(Raises(ErrorNumber::CannotCreateObject,
                       [&] { Parts().AddControl({.name = u"X"}, u"contract.None"); }));
}

}  // namespace
}  // namespace lumenkit::contract
