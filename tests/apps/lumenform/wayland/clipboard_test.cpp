// The clipboard, shared with other programs of the session. Only the active window sees it.
#include "apps/lumenform/design/model/clipboard.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QProcess>
#include <QTest>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/wayland/session.h"

namespace lumenkit::testing {
namespace {

using ::testing::HasSubstr;

// Another program that owns the clipboard until this object is destroyed.
class OtherProgram {
 public:
    explicit OtherProgram(const QString& file, const QString& type) {
        program_.setStandardInputFile(file);
        program_.start(QStringLiteral("wl-copy"),
                       {QStringLiteral("--foreground"), QStringLiteral("--type"), type});
    }
    ~OtherProgram() {
        program_.terminate();
        program_.waitForFinished();
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

 private:
    QProcess program_;
};

const QString plainText = QStringLiteral("text/plain;charset=utf-8");

// Writes a file for another program.
QString Written(const QTemporaryDir& folder, const QByteArray& bytes) {
    QString path = folder.filePath(QStringLiteral("copied"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return path;
}

bool OffersText(const QByteArray& text) {
    return Soon([&] { return QGuiApplication::clipboard()->text().toUtf8() == text; });
}

bool OwnsTheClipboard() {
    return Soon([] { return QGuiApplication::clipboard()->ownsClipboard(); });
}

// Waits until the window is active again after another program had the focus.
bool IsActiveAgain(const QWidget& window) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        if (QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }, 1000)) {
            return true;
        }
        Person::LeaveAndReturn();
    }
    return false;
}

class ClipboardOnWayland : public RunSession {};

TEST_F(ClipboardOnWayland, AnotherProgramGetsTheCopiedText) {
    Automation(u"Upper").Let(u"Text", Text(u"Grüße\r\n– 你好 😀"));
    SelectAll(u"Upper");
    Person::Press(QStringLiteral("ctrl+c"));
    ASSERT_TRUE(OwnsTheClipboard());
    EXPECT_EQ(Person::PasteElsewhere().toStdString(), "Grüße\n– 你好 😀");
    // The window is active again, and the memo still has the focus.
    EXPECT_TRUE(IsActiveAgain(window));
    Person::Type(QStringLiteral("Typed"));
    EXPECT_EQ(Awaited([&] { return TextOf(u"Upper"); }, "Typed"), "Typed");
}

TEST_F(ClipboardOnWayland, AnotherProgramsTextIsPasted) {
    const QTemporaryDir folder;
    Automation(u"Upper").Let(u"MaxLines", std::int16_t{2});
    const OtherProgram other(Written(folder, "Grüße\n– 你好 😀\nthird"), plainText);
    ASSERT_TRUE(OffersText("Grüße\n– 你好 😀\nthird"));
    GoTo(u"Upper");
    Person::Press(QStringLiteral("ctrl+v"));
    const std::string cut = "Grüße\r\n– 你好 😀";
    EXPECT_EQ(Awaited([&] { return TextOf(u"Upper"); }, cut), cut);
}

TEST_F(ClipboardOnWayland, CopiedTextComesBack) {
    Automation(u"Upper").Let(u"Text", Text(u"first\r\nsecond"));
    SelectAll(u"Upper");
    Person::Press(QStringLiteral("ctrl+x"));
    EXPECT_EQ(Awaited([&] { return TextOf(u"Upper"); }, ""), "");
    GoTo(u"Lower");
    Person::Press(QStringLiteral("ctrl+v"));
    Person::Press(QStringLiteral("ctrl+v"));
    const std::string twice = "first\r\nsecondfirst\r\nsecond";
    EXPECT_EQ(Awaited([&] { return TextOf(u"Lower"); }, twice), twice);
}

class DesignClipboardOnWayland : public DesignSession {};

TEST_F(DesignClipboardOnWayland, AnotherProgramGetsCopiedControls) {
    const QString format = QLatin1String(lumenform::controlsFormat);
    person.Click(Glass(), MiddleOf(u"Title"));
    ASSERT_EQ(Awaited([&] { return Selected(); }, "Title"), "Title");
    Person::Press(QStringLiteral("ctrl+c"));
    ASSERT_TRUE(OwnsTheClipboard());
    EXPECT_THAT(Person::PasteElsewhere().toStdString(), HasSubstr("Begin lumenkit.VLabel Title"));
    const QByteArray controls = Person::PasteElsewhere(format);
    EXPECT_EQ(controls, QGuiApplication::clipboard()->mimeData()->data(format));
}

TEST_F(DesignClipboardOnWayland, ControlsOfAnotherProgramArePasted) {
    const QTemporaryDir otherFolder;
    const QString format = QLatin1String(lumenform::controlsFormat);
    Design().SelectNamed({Text(u"Notes")});
    const QByteArray controls = lumenform::CopySelected(Design())->data(format);
    Design().SelectNamed({});
    QAction* paste = nullptr;
    for (QAction* action : window.Commands().EditMenu().actions()) {
        paste = action->shortcut() == QKeySequence(QKeySequence::Paste) ? action : paste;
    }
    ASSERT_NE(paste, nullptr);
    {
        const OtherProgram text(Written(otherFolder, "text"), plainText);
        ASSERT_TRUE(OffersText("text"));
        EXPECT_TRUE(Soon([&] { return !paste->isEnabled(); }));
    }
    const OtherProgram other(Written(otherFolder, controls), format);
    EXPECT_TRUE(Soon([&] { return paste->isEnabled(); })) << "the command follows the clipboard";
    person.Click(Glass(), QPoint(5, 5));
    ASSERT_TRUE(IsActiveAgain(window));
    Person::Press(QStringLiteral("ctrl+v"));
    EXPECT_EQ(Awaited([&] { return Selected(); }, "Notes1"), "Notes1");
}

}  // namespace
}  // namespace lumenkit::testing
