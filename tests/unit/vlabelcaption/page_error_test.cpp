// Errors reach the host unchanged, and the page stays usable.
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/placed_caption_page.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;

class PageErrors : public ::testing::Test {
 protected:
    static std::optional<RuntimeError> ErrorOf(const std::function<void()>& action) {
        try {
            action();
        } catch (const RuntimeError& error) {
            return error;
        }
        return std::nullopt;
    }

    static void ExpectSame(const std::optional<RuntimeError>& error, const RuntimeError& expected) {
        ASSERT_TRUE(error.has_value());
        EXPECT_EQ(error->Number(), expected.Number());
        EXPECT_EQ(error->Line(), expected.Line());
        EXPECT_EQ(error->Description(), expected.Description());
    }

    // Checks that selecting, editing, shortcuts and applying work.
    void ExpectUsable() {
        const std::shared_ptr<EditedDouble> edited = page_.NewEdited(10000, 5000);
        page_.Select(edited);
        EXPECT_EQ(page_.Previewed(u"Caption"), "Hello");
        EXPECT_EQ(page_.Previewed(u"BulletIndent"), "240");
        EXPECT_EQ(page_.Horizontal().Max(), 3355);
        EXPECT_EQ(page_.PreviewPart().Where(), (host::Placement{0, 0, 10000, 5000}));
        page_.User().Select(page_.Caption(), 5, 0);
        page_.User().Type(page_.Caption(), u"!\r");
        EXPECT_EQ(page_.Previewed(u"Caption"), "Hello!|CR|");
        EXPECT_EQ(page_.Magnifier(), "|CR|||");
        page_.Page().Apply();
        EXPECT_EQ(edited->Held(u"Caption"), Value(Text(u"Hello!|CR|")));
        page_.User().LeaveFocus();
    }

    PlacedCaptionPage page_;
    std::shared_ptr<EditedDouble> edited_ = page_.NewEdited();
    const RuntimeError failure_{-2147467259, u"The control has had enough", 77};
};

TEST_F(PageErrors, AMissingMemberRaises438) {
    for (const TextView member : {u"BulletPrefix", u"BulletIndent", u"WordWrap", u"Caption",
                                  u"GetProperty", u"Font", u"BackColor", u"ForeColor"}) {
        const std::shared_ptr<EditedDouble> edited = page_.NewEdited();
        edited->Remove(member);
        EXPECT_THAT([&] { page_.Select(edited); }, Raises(438)) << ToUtf8(member);
        ExpectUsable();
    }
}

TEST_F(PageErrors, WhatTheControlRaisesWhenReadReachesTheHost) {
    for (const TextView member : {u"BulletPrefix", u"BulletIndent", u"WordWrap", u"Caption",
                                  u"GetProperty", u"Font", u"BackColor", u"ForeColor"}) {
        const std::shared_ptr<EditedDouble> edited = page_.NewEdited();
        edited->FailRead(member, failure_);
        ExpectSame(ErrorOf([&] { page_.Select(edited); }), failure_);
        ExpectUsable();
    }
}

TEST_F(PageErrors, WhatTheControlRaisesWhenAssignedReachesTheHost) {
    page_.Select(edited_);
    edited_->TakeLog();
    edited_->FailAssign(u"BulletIndent", failure_);
    ExpectSame(ErrorOf([&] { page_.Page().Apply(); }), failure_);
    // The properties after it are not written.
    EXPECT_THAT(edited_->TakeLog(),
                ElementsAre("let BulletPrefix String * ", "let BulletIndent Integer 240"));
    edited_->StopFailing();
    page_.Page().Apply();
    EXPECT_EQ(edited_->TakeLog().size(), 4U);
    ExpectUsable();
}

TEST_F(PageErrors, AControlWithoutAFontRaises91) {
    edited_->Held(u"Font") = ObjectRef();
    EXPECT_THAT([&] { page_.Select(edited_); }, Raises(91));
    edited_->Held(u"Font") = Text(u"Arial");
    EXPECT_THAT([&] { page_.Select(edited_); }, Raises(13));
    ExpectUsable();
}

TEST_F(PageErrors, AnIndentThatThePreviewCannotTakeRaises6ButMarksThePageChanged) {
    page_.Select(edited_);
    page_.Page().Site().Reset();
    page_.User().Select(page_.Indent(), 0, 3);
    EXPECT_THAT([&] { page_.User().Type(page_.Indent(), u"99999"); }, Raises(6));
    EXPECT_TRUE(page_.Page().Site().IsChanged());
    EXPECT_EQ(page_.Previewed(u"BulletIndent"), "9999");
    ExpectUsable();
}

TEST_F(PageErrors, WithoutTheClassOfThePreviewThereIsNoPage) {
    const ClassTable classes = {.libraryName = u"lumenkit",
                                .classes = lumenkitClasses.classes.last(1)};
    memory::Form form(classes);
    EXPECT_THAT([&] { memory::HostedPage page(form, form.FindClass(u"VLabelCaption")); },
                Raises(429));
}

// Makes each call of the page to the runtime fail once. Errors that the preview reports itself, as
// every control does, do not reach the host.
class PageFaults : public PageErrors {
 protected:
    static constexpr ErrorNumber fault = ErrorNumber::InternalError;

    bool WasReported() {
        for (const memory::ShownMessage* message : page_.Form().GetLog().Messages()) {
            if (message->title == u"LUMENKIT ERROR" &&
                message->text.find(u"Form = VLABEL\r\n") != Text::npos &&
                message->text.find(u"Error Code =51\r\n") != Text::npos) {
                return true;
            }
        }
        return false;
    }

    // `prepare` brings the page to the state in which `action` is tested.
    void FailEachCall(const std::function<void()>& prepare, const std::function<void()>& action) {
        memory::FaultPlan& faults = page_.Form().Faults();
        faults.CountReporting(true);
        prepare();
        const std::int64_t before = faults.Calls();
        action();
        const std::int64_t calls = faults.Calls() - before;
        ASSERT_GT(calls, 0);
        std::int64_t raised = 0;
        for (std::int64_t call = 1; call <= calls; ++call) {
            prepare();
            page_.Form().GetLog().Clear();
            faults.FailCall(call, fault);
            const std::optional<RuntimeError> error = ErrorOf(action);
            ASSERT_FALSE(faults.IsArmed()) << call;
            if (error && error->Number() == static_cast<std::int32_t>(fault)) {
                ExpectSame(error, RuntimeError(fault));
                ++raised;
            } else {
                ASSERT_TRUE(WasReported()) << call;
            }
            ExpectUsable();
            ASSERT_FALSE(HasFailure()) << call;
        }
        EXPECT_GT(raised, 0);
    }
};

TEST_F(PageFaults, WhileSelecting) {
    FailEachCall([&] { page_.Select(page_.NewEdited(20000, 20000)); },
                 [&] { page_.Select(edited_); });
}

TEST_F(PageFaults, WhileApplying) {
    FailEachCall([&] { page_.Select(edited_); }, [&] { page_.Page().Apply(); });
}

TEST_F(PageFaults, WhileRefusingAnIndent) {
    FailEachCall(
        [&] {
            page_.Select(edited_);
            page_.Indent().SetText(u"x");
        },
        [&] { page_.Page().Apply(); });
}

TEST_F(PageFaults, WhileEditing) {
    FailEachCall([&] { page_.Select(edited_); },
                 [&] {
                     page_.User().Type(page_.Caption(), u"x");
                     page_.User().Type(page_.Prefix(), u"x");
                     page_.User().Type(page_.Indent(), u"1");
                     page_.User().Click(page_.Wrap());
                 });
}

TEST_F(PageFaults, WhileUsingShortcuts) {
    FailEachCall([&] { page_.Select(edited_); },
                 [&] {
                     page_.User().Type(page_.Caption(), u"\x02\x13\r\"");
                     page_.User().Click(page_.Part<memory::CommandButton>(u"cmdHelp"));
                     page_.User().LeaveFocus();
                 });
}

TEST_F(PageFaults, WhileScrolling) {
    FailEachCall([&] { page_.Select(page_.NewEdited(20000, 20000)); },
                 [&] {
                     page_.User().Scroll(page_.Horizontal(), 100);
                     page_.User().Scroll(page_.Vertical(), 100);
                 });
}

TEST_F(PageFaults, WhileThePageIsMade) {
    FailEachCall(
        [] {},
        [&] { memory::HostedPage page(page_.Form(), page_.Form().FindClass(u"VLabelCaption")); });
}

}  // namespace

}  // namespace lumenkit::testing
