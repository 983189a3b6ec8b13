// The window of "lumenform run".
#include "apps/lumenform/run/run_window.h"

#include <QDockWidget>
#include <QTest>

#include <gmock/gmock.h>

#include "forms/file.h"
#include "runtime/qt/element.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

class RunWindowTest : public ::testing::Test {
 protected:
    RunWindowTest() { ShowActive(window_); }

    Surface surface_;
    forms::Document document_ = forms::Load(sampleForms / "options.frm");
    lumenform::RunWindow window_{surface_.context, document_};
};

TEST_F(RunWindowTest, BearsTheCaption) {
    EXPECT_EQ(window_.windowTitle(), "Options");
}

TEST_F(RunWindowTest, StartsAtTheFirstTabStop) {
    lumenform::LiveControl& options = *window_.View().Find(u"VOptList1");
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(options.Widget().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(RunWindowTest, AnOptionClickIsInTheLog) {
    lumenform::LiveControl& options = *window_.View().Find(u"VOptList1");
    window_.Log().clear();
    QWidget& button = *options.Hosted()->Parts().Find(u"Option1", 2)->Widget();
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(5, button.height() / 2));
    EXPECT_EQ(ToInteger(options.Hosted()->Automation().Get(u"ListIndex")), 2);
    const auto lines = window_.Log().findItems("Click", Qt::MatchExactly, 1);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0]->text(0), "VOptList1");
}

TEST_F(RunWindowTest, TheLogShowsArgumentsAndEndsSomewhere) {
    constexpr std::array parameters = {Parameter{u"KeyCode", ValueType::Integer},
                                       Parameter{u"Text", ValueType::String}};
    std::array<Value, 2> arguments = {std::int16_t{65}, Text(u"say \"a\"")};
    for (int line = 0; line < lumenform::EventLog::longest + 5; ++line) {
        window_.Log().Add({document_.Root(), u"A", u"KeyDown", parameters, arguments});
    }
    EXPECT_EQ(window_.Log().topLevelItemCount(), lumenform::EventLog::longest);
    EXPECT_EQ(window_.Log().topLevelItem(0)->text(2), R"(KeyCode = 65, Text = "say ""a""")");
}

TEST_F(RunWindowTest, TheLogGoesAndComes) {
    const auto* dock = window_.findChild<QDockWidget*>();
    ASSERT_NE(dock, nullptr);
    EXPECT_TRUE(dock->isVisible());
    QTest::keyClick(&window_, Qt::Key_F12);
    EXPECT_FALSE(dock->isVisible());
}

TEST_F(RunWindowTest, TheFormHasAllItsRoom) {
    EXPECT_EQ(window_.View().visibleRegion().boundingRect(), window_.View().rect());
}

}  // namespace
}  // namespace lumenkit::testing
