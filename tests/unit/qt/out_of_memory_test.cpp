// Runs operations of a container and a user on the controls and the page on Qt, and makes each
// allocation of the controls and of the runtime fail in turn. Allocations of Qt do not fail,
// because Qt does not handle their failure. No exception may leave an event, the error must be
// reported once, and the operation must work the next time with its usual result.
#include <QApplication>
#include <QClipboard>
#include <QPointer>
#include <QTest>
#include <cstdint>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/property_bag.h"
#include "runtime/qt/check_box.h"
#include "runtime/qt/option_button.h"
#include "runtime/qt/qt_text.h"
#include "runtime/qt/scroll_bar.h"
#include "runtime/qt/surface_widget.h"
#include "runtime/qt/text_box.h"
#include "tests/support/allocation_counter.h"
#include "tests/support/qt_form.h"
#include "tests/support/qt_keys.h"

namespace lumenkit::qt {
namespace {

using testing::AllocationCount;
using testing::AllocationFailurePending;
using testing::FailAllocation;
using testing::LiveAllocations;
using testing::TypeKeys;

// A form with the object under test: a control, or a page together with the label that it edits.
class Stage {
 public:
    explicit Stage(TextView className)
        : isPage_(className == u"VLabelCaption"),
          control_(form_.Place(isPage_ ? TextView(u"VLabel") : className, {0, 0, 4500, 2400})) {
        if (isPage_) {
            page_ = form_.Page(className);
            page_->show();
            page_->Select({control_.SharedAutomation()});
        }
        QApplication::processEvents();
    }

    testing::QtForm& Form() { return form_; }
    HostedControl& Control() { return control_; }
    HostedPage& Page() { return *page_; }
    QWidget& Shown() { return isPage_ ? static_cast<QWidget&>(*page_) : control_; }

    void Let(TextView name, Value value) { control_.Automation().Let(name, std::move(value)); }
    template <typename T>
    T& Part(TextView name, std::int16_t index = -1) {
        Constituents& parts = isPage_ ? page_->Parts() : control_.Parts();
        return dynamic_cast<T&>(*parts.Find(name, index));
    }
    TextEdit& Edit() {
        TextEdit& edit =
            isPage_ ? Part<TextBox>(u"txtCaption").Edit() : Part<TextBox>(u"Text1", 0).Edit();
        edit.setFocus();
        return edit;
    }

 private:
    testing::QtForm form_{lumenkitClasses};
    bool isPage_;
    HostedControl& control_;
    std::unique_ptr<HostedPage> page_;
};

struct Act {
    const char* name;
    TextView className;
    bool isEvent;  // called by Qt, so it must not raise
    std::function<void(Stage&)> run;
    std::function<void(Stage&)> prepare;
};

constexpr bool event = true;
constexpr bool call = false;

void Press(Stage& stage, Qt::Key key) {
    QTest::keyClick(&stage.Edit(), key, Qt::ControlModifier);
}

void Repaint(Stage& stage) {
    stage.Control().Drawing().Area().repaint();
}

void Click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {8, widget.height() / 2});
}

const Text caption =
    u"|B:1|Title|B:0||CR||before:60|* one two \u4F60\u597D |fore:0,128,0|three|u:1|four";
const Text lines = u"first line, too long\r\n\u4F60 second\r\nthird";

// A caption that is only half compiled stays so until a new one is assigned.
void WithCaption(Stage& on) {
    on.Let(u"Caption", caption);
}
void WithoutLimits(Stage& on) {
    on.Let(u"MaxCharsPerLine", std::int16_t{0});
    on.Let(u"MaxLines", std::int16_t{0});
}
void WithButtons(Stage& on) {
    on.Let(u"Contents", Text(u"1;The first one|2;The second one"));
}
void AsItIs(Stage& /*on*/) {}

const std::vector<Act>& Acts() {
    static const std::vector<Act> acts = {
        {"the caption", u"VLabel", call, [](Stage& on) { on.Let(u"Caption", caption); }, AsItIs},
        {"wrapping", u"VLabel", call,
         [](Stage& on) {
             on.Let(u"WordWrap", true);
             on.Let(u"AutoSize", true);
         },
         WithCaption},
        {"the font", u"VLabel", call,
         [](Stage& on) {
             on.Control().Automation().Set(
                 u"Font", ObjectRef(std::make_shared<Font>(u"DejaVu Sans Mono", 14.0F)));
         },
         WithCaption},
        {"painting", u"VLabel", event, Repaint, WithCaption},
        {"the label's mouse", u"VLabel", event,
         [](Stage& on) {
             QWidget& area = on.Control().Drawing().Area();
             QTest::mouseClick(&area, Qt::LeftButton, {}, {5, 5});
             QTest::mouseDClick(&area, Qt::LeftButton, {}, {5, 5});
             QTest::mouseMove(&area, {7, 7});
         },
         WithCaption},
        {"the label's size", u"VLabel", event,
         [](Stage& on) {
             on.Control().resize(100, 60);
             on.Control().resize(250, 90);
         },
         WithCaption},
        {"the label's settings", u"VLabel", call,
         [](Stage& on) {
             memory::PropertyBag bag;
             const std::size_t said = on.Form().interaction.said.size();
             try {
                 on.Control().Save(bag);
             } catch (...) {  // the error may be reported too
                 if (on.Form().interaction.said.size() == said) {
                     throw;
                 }
             }
         },
         WithCaption},
        {"the memo's text", u"VMemo", call, [](Stage& on) { on.Let(u"Text", lines); }, AsItIs},
        {"the memo's limits", u"VMemo", call,
         [](Stage& on) {
             on.Let(u"Text", lines);
             on.Let(u"MaxCharsPerLine", std::int16_t{6});
             on.Let(u"MaxLines", std::int16_t{2});
         },
         WithoutLimits},
        {"the memo's scroll bars", u"VMemo", call,
         [](Stage& on) {
             on.Let(u"ScrollBars", std::int32_t{2});
             on.Let(u"ScrollBars", std::int32_t{0});
         },
         AsItIs},
        {"typing", u"VMemo", event,
         [](Stage& on) {
             on.Edit().selectAll();
             TypeKeys(on.Edit(), u"some text\rand more\b\b \u4F60");
         },
         AsItIs},
        {"copying and pasting", u"VMemo", event,
         [](Stage& on) {
             on.Edit().selectAll();
             TypeKeys(on.Edit(), u"some text");
             Press(on, Qt::Key_A);
             Press(on, Qt::Key_C);
             Press(on, Qt::Key_X);
             Press(on, Qt::Key_V);
             Press(on, Qt::Key_Z);
         },
         AsItIs},
        {"refused edits", u"VMemo", event,
         [](Stage& on) {
             on.Edit().selectAll();
             TypeKeys(on.Edit(), u"abcd\b\rxyz!");
             Press(on, Qt::Key_Z);
             Press(on, Qt::Key_Z);
             Press(on, Qt::Key_Y);
         },
         [](Stage& on) {
             on.Let(u"MaxCharsPerLine", std::int16_t{3});
             on.Let(u"Text", Text(u"one"));
         }},
        {"the memo's mouse", u"VMemo", event,
         [](Stage& on) {
             Click(*on.Edit().viewport());
             QTest::mouseDClick(on.Edit().viewport(), Qt::LeftButton, {}, {8, 8});
         },
         AsItIs},
        {"the list's contents", u"VOptList", call,
         [](Stage& on) {
             on.Let(u"Contents", Text(u"1;The first one|2;The second one \u4F60|3;The third one"));
         },
         AsItIs},
        {"another button", u"VOptList", event,
         [](Stage& on) {
             Click(*on.Part<OptionButton>(u"Option1", 1).Widget());
             QTest::keyClick(on.Part<OptionButton>(u"Option1", 1).Widget(), Qt::Key_Up);
         },
         WithButtons},
        {"a page", u"VLabelCaption", call,
         [](Stage& on) {
             const std::unique_ptr<HostedPage> page = on.Form().Page(u"VLabelCaption");
             page->show();
             page->Select({on.Control().SharedAutomation()});
         },
         WithCaption},
        {"the page's caption", u"VLabelCaption", event,
         [](Stage& on) {
             on.Edit().selectAll();
             TypeKeys(on.Edit(), u"Hello world");
             Press(on, Qt::Key_B);
             Press(on, Qt::Key_Z);
             Press(on, Qt::Key_Y);
             Press(on, Qt::Key_S);
         },
         AsItIs},
        {"the page's other parts", u"VLabelCaption", event,
         [](Stage& on) {
             Click(*on.Part<CheckBox>(u"chkWordWrap").Widget());
             on.Part<TextBox>(u"txtBulletIndent").Edit().setFocus();
             on.Part<TextBox>(u"txtBulletIndent").Edit().selectAll();
             TypeKeys(on.Part<TextBox>(u"txtBulletIndent").Edit(), u"120");
         },
         AsItIs},
        {"applying", u"VLabelCaption", call, [](Stage& on) { on.Page().Apply(); }, AsItIs},
        {"a new control", u"VLabel", call,
         [](Stage& on) {
             for (const TextView name : {u"VLabel", u"VMemo", u"VOptList"}) {
                 on.Form().Remove(on.Form().Place(name, {0, 2500, 3000, 1500}));
             }
         },
         WithCaption},
        {"an error while painting", u"VLabel", event, Repaint,
         [](Stage& on) { on.Let(u"Caption", Text(u"|size:5000|x")); }},
        {"the memo's font", u"VMemo", call,
         [](Stage& on) { ToObject(on.Control().Automation().Get(u"Font"))->Let(u"Size", 14.0F); },
         [](Stage& on) {
             ToObject(on.Control().Automation().Get(u"Font"))->Let(u"Size", 8.0F);
             QApplication::processEvents();
         }},
    };
    return acts;
}

std::size_t Told(testing::QtForm& form) {
    std::size_t messages = 0;
    for (const Text& said : form.interaction.said) {
        messages += said.find(u"Error Code =7\r\n") != Text::npos ? 1 : 0;
    }
    return messages + form.errors.size();
}

bool Raises(Stage& stage, const Act& act) {
    try {
        act.run(stage);
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), static_cast<std::int32_t>(ErrorNumber::OutOfMemory));
        return true;
    } catch (const std::bad_alloc&) {
        return true;
    }
    return false;
}

// The final picture, and the contents of text boxes.
struct Result {
    QImage picture;
    QStringList texts;
    qsizetype widgets = 0;
    bool isConsistent = true;  // whether boxes show their contents
};

Result ResultOf(Stage& stage) {
    stage.Form().window.setFocus();
    QApplication::processEvents();
    Result result;
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    result.widgets = stage.Form().window.findChildren<QWidget*>().size();
    result.picture = stage.Shown().grab().toImage();
    for (const TextEdit* edit : stage.Shown().findChildren<TextEdit*>()) {
        QString held = ToQString(edit->Contents());
        result.isConsistent =
            result.isConsistent &&
            held.replace(QLatin1String("\r\n"), QLatin1String("\n")) == edit->toPlainText();
        result.texts.append(held);
    }
    return result;
}

struct Outcome {
    std::int64_t count = 0;
    bool fired = false;
    bool raised = false;
    std::size_t told = 0;  // reports by message or to the form
    bool raisedAgain = false;
    std::size_t toldAgain = 0;  // messages of the repeated run, about any error
    Result result;
    std::int64_t left = 0;  // allocations that are not freed
};

Outcome RunWith(const Act& act, std::int64_t failing) {
    Outcome outcome;
    const std::int64_t live = LiveAllocations();
    {
        Stage stage(act.className);
        act.prepare(stage);
        const std::int64_t before = AllocationCount();
        FailAllocation(failing);
        outcome.raised = Raises(stage, act);
        QApplication::processEvents();
        QApplication::processEvents();  // delivers the reports of painting
        outcome.fired = failing > 0 && !AllocationFailurePending();
        FailAllocation(0);
        outcome.count = AllocationCount() - before;
        outcome.told = Told(stage.Form());
        const std::size_t said = stage.Form().interaction.said.size();
        act.prepare(stage);
        outcome.raisedAgain = Raises(stage, act);
        outcome.result = ResultOf(stage);
        outcome.toldAgain = stage.Form().interaction.said.size() - said;
    }
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    outcome.left = LiveAllocations() - live;
    return outcome;
}

class QtOutOfMemory : public ::testing::TestWithParam<Act> {
 protected:
    static void SetUpTestSuite() { testing::CountOwnAllocationsOnly(); }  // Qt does not handle it
};

TEST_P(QtOutOfMemory, EachAllocationMayFail) {
    const Act& act = GetParam();
    RunWith(act, 1);  // fills the caches
    const Outcome whole = RunWith(act, 0);
    ASSERT_FALSE(whole.raised);
    ASSERT_EQ(whole.told, 0U);
    ASSERT_EQ(whole.left, 0);
    ASSERT_TRUE(whole.result.isConsistent);
    for (std::int64_t failing = 1; failing <= whole.count; ++failing) {
        SCOPED_TRACE(failing);
        const Outcome outcome = RunWith(act, failing);
        // A picture that is painted for the first time adds entries to caches, so a leak must show
        // twice.
        EXPECT_EQ(outcome.left == 0 ? 0 : RunWith(act, failing).left, 0);
        EXPECT_TRUE(outcome.fired);
        EXPECT_FALSE(outcome.raised && act.isEvent) << "out of an event";
        // If the act itself reports an error, a failure during that report is not reported.
        const std::size_t told = outcome.told + (outcome.raised ? 1 : 0);
        EXPECT_TRUE(told == 1 || (told == 0 && whole.toldAgain > 0)) << told;
        EXPECT_FALSE(outcome.raisedAgain);
        EXPECT_EQ(outcome.toldAgain, whole.toldAgain);
        EXPECT_TRUE(outcome.result.picture == whole.result.picture);
        EXPECT_TRUE(outcome.result.texts == whole.result.texts);
        EXPECT_EQ(outcome.result.widgets, whole.result.widgets);
        EXPECT_TRUE(outcome.result.isConsistent);
    }
}

INSTANTIATE_TEST_SUITE_P(Acts, QtOutOfMemory, ::testing::ValuesIn(Acts()), [](const auto& act) {
    std::string name = act.param.name;
    std::erase_if(name, [](char letter) { return letter == ' ' || letter == '\''; });
    return name;
});

}  // namespace
}  // namespace lumenkit::qt
