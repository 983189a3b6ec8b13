// Makes each call of the contract in a session fail once. The control and the runtime must survive
// each failure.
#include <stdexcept>

#include <gtest/gtest.h>

#include "runtime/memory/hosted_control.h"
#include "runtime/memory/option_button.h"
#include "runtime/memory/text_box.h"
#include "runtime/memory/user.h"
#include "tests/unit/memory/expect_error.h"
#include "tests/unit/memory/sample_control.h"

namespace lumenkit::memory {
namespace {

// Starts, uses and saves a control, and starts another from the saved properties. It calls nothing
// of the contract directly.
void RunSession(Form& form) {
    PropertyBag bag;
    {
        HostedControl control(form, form.FindClass(u"Sample"));
        control.StartNew();
        control.Automation().Let(u"Caption", Text(u"changed"));
        control.Automation().Get(u"TagSeen");
        control.Paint();
        User user(form);
        if (Element* box = control.Parts().Find(u"Text1")) {
            user.Type(static_cast<TextBox&>(*box), u"a\r\x08");
        }
        if (Element* button = control.Parts().Find(u"Option1(1)")) {
            user.Click(*button);
        }
        try {
            control.Save(bag);
        } catch (const RuntimeError&) {  // the control has reported the error too
            EXPECT_FALSE(form.GetLog().Messages().empty());
        }
    }
    PlaceControl(form, u"Sample", {}, &bag);
}

TEST(FaultSweep, EachCallOfASessionMayFail) {
    Form counting(testing::SampleClasses());
    RunSession(counting);
    const std::int64_t calls = counting.Faults().Calls();
    ASSERT_GT(calls, 30);
    EXPECT_TRUE(counting.GetLog().Messages().empty());

    for (std::int64_t failing = 1; failing <= calls; ++failing) {
        Form form(testing::SampleClasses());
        form.Faults().FailCall(failing, ErrorNumber::OutOfMemory);
        EXPECT_NO_THROW(RunSession(form)) << "call " << failing;
        EXPECT_FALSE(form.Faults().IsArmed()) << "call " << failing;
        // A box or button that could not be made causes further errors, so there may be several
        // reports.
        ASSERT_FALSE(form.GetLog().Messages().empty()) << "call " << failing;
        EXPECT_EQ(form.GetLog().BeepCount(), form.GetLog().Messages().size());
        const Text& text = form.GetLog().Messages()[0]->text;
        EXPECT_NE(text.find(u"Error Code =7\r\n"), Text::npos) << "call " << failing;
        EXPECT_EQ(form.GetLog().Messages()[0]->title, u"LUMENKIT ERROR");
    }
}

TEST(FaultSweep, AFaultInTheReportItselfReachesTheCaller) {
    for (const TextView call : {TextView(u"Interaction.Beep"), TextView(u"Application.ExeName"),
                                TextView(u"Interaction.MsgBox")}) {
        Form form(testing::SampleClasses());
        HostedControl control(form, form.FindClass(u"Sample"), {.hasTag = false});
        control.StartNew();
        form.Faults().FailCall(call, 1, ErrorNumber::InternalError);
        EXPECT_TRUE(testing::Raises(ErrorNumber::InternalError,
                                    [&] { control.Automation().Get(u"TagSeen"); }));
        EXPECT_TRUE(form.GetLog().Messages().empty());
    }
}

TEST(FaultSweep, OneNamedCallFails) {
    Form form(testing::SampleClasses());
    const auto control = PlaceControl(form, u"Sample");
    form.Faults().FailCall(u"Surface.Print", 2, ErrorNumber::OutOfMemory);
    EXPECT_EQ(control->Paint().Size(), 3U);
    EXPECT_EQ(control->Paint().Size(), 2U) << "all but the text";
    EXPECT_EQ(form.GetLog().Messages().size(), 1U);
    EXPECT_EQ(control->Paint().Size(), 3U);
}

}  // namespace
}  // namespace lumenkit::memory
