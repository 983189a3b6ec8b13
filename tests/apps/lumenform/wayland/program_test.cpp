// The program itself, as a client of the compositor: how it starts, works and ends.
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>
#include <algorithm>

#include <gtest/gtest.h>

#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/lumenform/wayland/person.h"

namespace lumenkit::testing {
namespace {

// A function: the folder of the samples is initialised in another source.
QString SampleOrder() {
    return QString::fromStdString((sampleForms / "order.frm").string());
}

// lumenform in its own process.
class Program {
 public:
    explicit Program(const QStringList& arguments) {
        // As in a session that has no X display: the program finds the compositor by itself.
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.remove(QStringLiteral("QT_QPA_PLATFORM"));
        variables.remove(QStringLiteral("DISPLAY"));
        program_.setProcessEnvironment(variables);
        program_.start(QStringLiteral(LUMENKIT_PROGRAM), arguments);
    }
    ~Program() {
        program_.kill();
        program_.waitForFinished();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Presses the keys until the program ends: its window may not be active yet.
    bool Quits(const QStringList& keys) {
        const auto hasEnded = [&] { return program_.state() == QProcess::NotRunning; };
        for (int attempt = 0; attempt < 20; ++attempt) {
            for (const QString& key : keys) {
                Person::Press(key);
            }
            if (QTest::qWaitFor(hasEnded, 500)) {
                return true;
            }
        }
        return false;
    }
    int Status() const {
        return program_.exitStatus() == QProcess::NormalExit ? program_.exitCode() : -1;
    }
    std::string Errors() { return program_.readAllStandardError().toStdString(); }

 private:
    QProcess program_;
};

template <typename IsCounted>
int PixelsOnTheScreen(const IsCounted& isCounted) {
    const QImage screen = Person::Seen({QPoint(), QSize(1280, 960)});
    int count = 0;
    for (int y = 0; y < screen.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
        count += static_cast<int>(std::count_if(line, line + screen.width(), isCounted));
    }
    return count;
}

// Returns the number of pixels of the screen that have a red close to that of the sample's label.
int RedOnTheScreen() {
    return PixelsOnTheScreen(
        [](QRgb color) { return qRed(color) > 180 && qGreen(color) < 60 && qBlue(color) < 60; });
}

int WhiteOnTheScreen() {
    return PixelsOnTheScreen([](QRgb color) { return qGray(color) == 255; });
}

bool ShowsTheForm() {
    return QTest::qWaitFor([] { return RedOnTheScreen() > 20; }, 10'000);
}

// Presses F12 until the white log of events disappears. Shortcuts work only in an active window.
bool HidesTheLog() {
    constexpr int itsPixels = 10'000;
    const int before = WhiteOnTheScreen();
    for (int attempt = 0; attempt < 10; ++attempt) {
        Person::Press(QStringLiteral("F12"));
        if (QTest::qWaitFor([&] { return WhiteOnTheScreen() < before - itsPixels; }, 1000)) {
            return true;
        }
    }
    return false;
}

TEST(ProgramOnWayland, RunsAFormAndQuits) {
    ASSERT_TRUE(Soon([] { return RedOnTheScreen() == 0; }));
    Program program({QStringLiteral("run"), SampleOrder()});
    ASSERT_TRUE(ShowsTheForm());
    // Not from a memo, which takes all letters with Ctrl.
    ASSERT_TRUE(program.Quits({QStringLiteral("alt+g"), QStringLiteral("ctrl+q")}));
    EXPECT_EQ(program.Status(), 0);
    EXPECT_EQ(program.Errors(), "");
}

// The program is not asked to quit: weston 10 may not make its window active again after the other
// program had the focus.
TEST(ProgramOnWayland, CopiesForAnotherProgram) {
    ASSERT_TRUE(Soon([] { return RedOnTheScreen() == 0; }));
    const Program program({QStringLiteral("run"), SampleOrder()});
    ASSERT_TRUE(ShowsTheForm());
    ASSERT_TRUE(HidesTheLog());
    Person::Press(QStringLiteral("alt+p"));  // the memo, by the mnemonic of its label
    Person::Press(QStringLiteral("ctrl+a"));
    Person::Press(QStringLiteral("ctrl+c"));
    EXPECT_EQ(Person::PasteElsewhere().toStdString(), "HAPPY BIRTHDAY, LEN");
}

TEST(ProgramOnWayland, DesignsAFormAndQuits) {
    ASSERT_TRUE(Soon([] { return RedOnTheScreen() == 0; }));
    Program program({QStringLiteral("design"), SampleOrder()});
    ASSERT_TRUE(ShowsTheForm());
    Person::Press(QStringLiteral("F5"));  // runs the form, and back
    Person::Press(QStringLiteral("F5"));
    ASSERT_TRUE(program.Quits({QStringLiteral("ctrl+q")}));
    EXPECT_EQ(program.Status(), 0);
    EXPECT_EQ(program.Errors(), "");
}

}  // namespace
}  // namespace lumenkit::testing
