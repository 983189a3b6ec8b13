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

const QString sampleOrder = QString::fromStdString((sampleForms / "order.frm").string());

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

    // Presses Ctrl+Q until the program ends: its window may not be active yet.
    bool Quits() {
        const auto hasEnded = [&] { return program_.state() == QProcess::NotRunning; };
        for (int attempt = 0; attempt < 20; ++attempt) {
            Person::Press(QStringLiteral("ctrl+q"));
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

// Returns the number of pixels of the screen that have a red close to that of the sample's label.
int RedOnTheScreen() {
    const QImage screen = Person::Seen({QPoint(), QSize(1280, 960)});
    int count = 0;
    for (int y = 0; y < screen.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
        count += static_cast<int>(std::count_if(line, line + screen.width(), [](QRgb color) {
            return qRed(color) > 180 && qGreen(color) < 60 && qBlue(color) < 60;
        }));
    }
    return count;
}

bool ShowsTheForm() {
    return QTest::qWaitFor([] { return RedOnTheScreen() > 20; }, 10'000);
}

TEST(ProgramOnWayland, RunsAFormAndQuits) {
    ASSERT_TRUE(Soon([] { return RedOnTheScreen() == 0; }));
    Program program({QStringLiteral("run"), sampleOrder});
    ASSERT_TRUE(ShowsTheForm());
    // Not from a memo, which takes all letters with Ctrl.
    Person::Press(QStringLiteral("alt+g"));
    ASSERT_TRUE(program.Quits());
    EXPECT_EQ(program.Status(), 0);
    EXPECT_EQ(program.Errors(), "");
}

// The program is not asked to quit: weston 10 may not make its window active again after the other
// program had the focus.
TEST(ProgramOnWayland, CopiesForAnotherProgram) {
    ASSERT_TRUE(Soon([] { return RedOnTheScreen() == 0; }));
    const Program program({QStringLiteral("run"), sampleOrder});
    ASSERT_TRUE(ShowsTheForm());
    Person::Press(QStringLiteral("alt+p"));  // the memo, by the mnemonic of its label
    Person::Press(QStringLiteral("ctrl+a"));
    Person::Press(QStringLiteral("ctrl+c"));
    EXPECT_EQ(Person::PasteElsewhere().toStdString(), "HAPPY BIRTHDAY, LEN");
}

TEST(ProgramOnWayland, DesignsAFormAndQuits) {
    ASSERT_TRUE(Soon([] { return RedOnTheScreen() == 0; }));
    Program program({QStringLiteral("design"), sampleOrder});
    ASSERT_TRUE(ShowsTheForm());
    Person::Press(QStringLiteral("F5"));  // runs the form, and back
    Person::Press(QStringLiteral("F5"));
    ASSERT_TRUE(program.Quits());
    EXPECT_EQ(program.Status(), 0);
    EXPECT_EQ(program.Errors(), "");
}

}  // namespace
}  // namespace lumenkit::testing
