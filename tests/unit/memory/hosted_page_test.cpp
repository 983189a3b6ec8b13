#include "runtime/memory/hosted_page.h"

#include <array>
#include <stdexcept>

#include <gtest/gtest.h>

#include "frame/automation/member_binding.h"
#include "runtime/memory/embedded_control.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/text_box.h"
#include "runtime/memory/user.h"
#include "tests/unit/memory/expect_error.h"
#include "tests/unit/memory/sample_control.h"

namespace lumenkit::memory {
namespace {

using testing::Raises;

// A page that edits the caption of the selected sample control and previews it in another one.
class SamplePage final : public PropertyPage, private host::TextBoxEvents {
 public:
    explicit SamplePage(const PageHost& host) : host_(host) {}

    Object& Automation() override { return automation_; }

    void PropertyPage_Initialize() override {
        box_ = host_.constituents.AddTextBox({{.name = u"txtCaption"}}, *this);
        preview_ = host_.constituents.AddControl(
            {.name = u"Preview", .placement = {.left = 15, .width = 300, .height = 150}},
            u"sample.Sample");
    }
    void PropertyPage_SelectionChanged() override {
        const ObjectRef selected = host_.selectedControls.Item(0);
        box_->SetText(ToText(selected->Get(u"Caption")));
    }
    void PropertyPage_ApplyChanges() override {
        host_.selectedControls.Item(0)->Let(u"Caption", Text(box_->GetText()));
    }

    host::EmbeddedControl& Preview() { return *preview_; }
    const PageHost& Host() const { return host_; }
    std::vector<std::string> focus;

 private:
    void Change() override {
        host_.site.SetChanged(true);
        preview_->Automation().Let(u"Caption", Text(box_->GetText()));
    }
    void GotFocus() override { focus.emplace_back("got"); }
    void LostFocus() override { focus.emplace_back("lost"); }

    PageHost host_;
    InterfaceTable table_{u"Page", {}};
    TableObject automation_{table_, this};
    std::unique_ptr<host::TextBox> box_;
    std::unique_ptr<host::EmbeddedControl> preview_;
};

const ClassDescriptor pageClass = {
    .name = u"Page",
    .kind = ClassKind::PropertyPage,
    .createPage = [](const PageHost& host) -> std::unique_ptr<PropertyPage> {
        return std::make_unique<SamplePage>(host);
    }};

class MemoryPlacedPage : public ::testing::Test {
 protected:
    SamplePage& Page() { return static_cast<SamplePage&>(page_.GetPage()); }
    TextBox& Box() { return page_.Parts().Get<TextBox>(u"txtCaption"); }

    Form form_{testing::SampleClasses()};
    std::unique_ptr<HostedControl> first_ = PlaceControl(form_, u"Sample");
    std::unique_ptr<HostedControl> second_ = PlaceControl(form_, u"Sample");
    HostedPage page_{form_, pageClass};
    User user_{form_};
};

TEST_F(MemoryPlacedPage, ReadsAndWritesTheSelectedControl) {
    second_->Automation().Let(u"Caption", Text(u"second"));
    page_.Select({second_.get(), first_.get()});
    EXPECT_EQ(Box().GetText(), u"second");
    EXPECT_EQ(page_.Selected().Count(), 2);
    EXPECT_TRUE(page_.Site().IsChanged());

    page_.Site().Reset();
    EXPECT_TRUE(user_.Type(Box(), u"my "));
    EXPECT_TRUE(page_.Site().IsChanged());
    page_.Apply();
    EXPECT_EQ(second_->Automation().Get(u"Caption"), Value(Text(u"my second")));
    EXPECT_EQ(first_->Automation().Get(u"Caption"), Value(Text(u"Sample")));
    EXPECT_TRUE(page_.Site().IsChanged()) << "applying leaves the flag to the page";
}

TEST_F(MemoryPlacedPage, ItsErrorsTravelToTheCaller) {
    EXPECT_TRUE(Raises(ErrorNumber::SubscriptOutOfRange, [&] { page_.Apply(); }));
    EXPECT_TRUE(Raises(ErrorNumber::SubscriptOutOfRange, [&] { page_.SelectObjects({}); }));
    form_.Faults().FailCall(u"SelectedControls.Item", 1, ErrorNumber::OutOfMemory);
    EXPECT_TRUE(Raises(ErrorNumber::OutOfMemory, [&] { page_.Select({first_.get()}); }));
}

TEST_F(MemoryPlacedPage, EmbedsAControlThatTellsTheLogNothing) {
    page_.Select({first_.get()});
    form_.GetLog().Clear();
    EXPECT_TRUE(user_.Type(Box(), u"x"));
    EXPECT_EQ(Page().Preview().Automation().Get(u"Caption"), Value(Text(u"xSample")));
    EXPECT_TRUE(form_.GetLog().Entries().empty());
}

TEST_F(MemoryPlacedPage, MovesShowsAndPaintsTheEmbeddedControl) {
    auto& preview = page_.Parts().Get<EmbeddedControl>(u"Preview");
    auto& calls = static_cast<testing::SampleControl&>(preview.Inner().GetControl()).calls;
    EXPECT_EQ(calls, (std::vector<std::string>{"Initialize", "InitProperties", "Resize", "Show"}));
    calls.clear();
    preview.Move({.left = -30, .top = -15, .width = 600, .height = 150});
    EXPECT_EQ(preview.Inner().Place().left, -30);
    EXPECT_EQ(preview.Inner().Drawing().Width(), 600);
    preview.Refresh();
    preview.SetVisible(false);
    preview.Refresh();
    preview.SetVisible(true);
    EXPECT_EQ(calls, (std::vector<std::string>{"Resize", "Paint", "Show"}));
    EXPECT_TRUE(Raises(ErrorNumber::CannotCreateObject, [&] {
        Page().Host().constituents.AddControl({.name = u"x"}, u"sample.Nothing");
    }));
}

TEST_F(MemoryPlacedPage, TheFocusFollowsTheUser) {
    EXPECT_TRUE(user_.Type(Box(), u"ab"));
    EXPECT_TRUE(user_.Click(first_->Parts().Get<TextBox>(u"Text1")));
    EXPECT_TRUE(user_.MoveFocusTo(Box()));
    user_.LeaveFocus();
    user_.LeaveFocus();
    EXPECT_EQ(Page().focus, (std::vector<std::string>{"got", "lost", "got", "lost"}));
}

TEST_F(MemoryPlacedPage, AControlIsNoPage) {
    EXPECT_THROW(HostedPage(form_, form_.FindClass(u"Sample")), std::logic_error);
}

}  // namespace
}  // namespace lumenkit::memory
