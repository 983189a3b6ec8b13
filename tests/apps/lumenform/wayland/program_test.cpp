// The program itself, as a client of the compositor: how it starts, works and ends.
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

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

    // Presses Ctrl+Q until the program ends: its window may not be active again yet.
    bool Quits() {
        for (int attempt = 0; attempt < 20; ++attempt) {
            Person::Press(QStringLiteral("ctrl+q"));
            if (program_.waitForFinished(500)) {
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
        for (int x = 0; x < screen.width(); ++x) {
            const QColor color = screen.pixelColor(x, y);
            count += color.red() > 180 && color.green() < 60 && color.blue() < 60 ? 1 : 0;
        }
    }
    return count;
}

bool ShowsTheForm() {
    return QTest::qWaitFor([] { return RedOnTheScreen() > 20; }, 10'000);
}

TEST(ProgramOnWayland, RunsAFormAndQuits) {
    ASSERT_EQ(RedOnTheScreen(), 0);
    Program program({QStringLiteral("run"), sampleOrder});
    ASSERT_TRUE(ShowsTheForm());
    Person::Press(QStringLiteral("alt+p"));  // the memo, by the mnemonic of its label
    Person::Press(QStringLiteral("ctrl+a"));
    Person::Press(QStringLiteral("ctrl+c"));
    EXPECT_EQ(OutputOf(QStringLiteral("wl-paste"), {QStringLiteral("--no-newline")}).toStdString(),
              "HAPPY BIRTHDAY, LEN");
    ASSERT_TRUE(program.Quits());
    EXPECT_EQ(program.Status(), 0);
    EXPECT_EQ(program.Errors(), "");
}

TEST(ProgramOnWayland, DesignsAFormAndQuits) {
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
