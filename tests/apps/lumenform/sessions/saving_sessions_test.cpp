// Sessions in which forms are saved: under other names, beside other files, after other programs.
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <filesystem>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/text_dialog.h"
#include "project/lumenkit_classes.h"
#include "tests/apps/lumenform/abandoned_work.h"
#include "tests/apps/lumenform/sessions/session.h"
#include "tests/support/file_bytes.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class SavingSession : public UserSession {
 protected:
    // Replaces the text of the selected memo in the dialog that F4 opens, by two lines: a text with
    // a line break stands in the companion.
    void Retype(const QString& text) {
        auto* const dialog = Properties().More<lumenform::TextDialog>(u"Text");
        ASSERT_NE(dialog, nullptr);
        auto* const edit = dialog->findChild<QPlainTextEdit*>();
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::keyClicks(edit, QStringLiteral("more"));
        QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
        QTest::qWait(0);
    }
};

// ---- Save as

TEST_F(SavingSession, ANameWithoutExtensionReplacesNoFormUnasked) {
    Copy("memo");
    const std::string victim = FileBytes(sampleForms / "label.frm");
    Write(QStringLiteral("victim.frm"), victim);
    Open(QStringLiteral("memo.frm"));
    Click(u"VMemo1");
    Key(Qt::Key_Right);
    {
        Replies replies;
        replies.Name(Path(QStringLiteral("victim"))).Enter();
        SaveAs();
        EXPECT_THAT(replies.said.back(), HasSubstr("victim.frm is there already."));
    }
    EXPECT_EQ(Stored(QStringLiteral("victim.frm")), victim) << "Enter is Cancel";
    EXPECT_EQ(Title(), "memo.frm[*] – lumenform");
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_THAT(Files(), ElementsAre("memo.frm", "memo.frx", "victim.frm"));
    {
        Replies replies;
        replies.Name(Path(QStringLiteral("victim"))).Press(QStringLiteral("Replace"));
        SaveAs();
    }
    EXPECT_EQ(Stored(QStringLiteral("victim.frm")), Text());
    EXPECT_EQ(Title(), "victim.frm[*] – lumenform");
    EXPECT_EQ(Stored(QStringLiteral("memo.frm")), FileBytes(sampleForms / "memo.frm"));
    EXPECT_THAT(Files(), ElementsAre("memo.frm", "memo.frx", "victim.frm", "victim.frx"));
}

TEST_F(SavingSession, TheCompanionOfAnotherFormIsNotReplaced) {
    Copy("memo");
    Write(QStringLiteral("other.frx"), "somebody else's");
    Open(QStringLiteral("memo.frm"));
    Click(u"VMemo1");
    Retype(QStringLiteral("mine"));
    {
        Replies replies;
        replies.Name(Path(QStringLiteral("other.frm")))
            .Press(QStringLiteral("Save as…"))
            .Name(Path(QStringLiteral("third")));
        SaveAs();
        EXPECT_THAT(replies.said.at(1), HasSubstr("other.frx: is there already"));
    }
    EXPECT_EQ(Stored(QStringLiteral("other.frx")), "somebody else's");
    EXPECT_THAT(Files(),
                ElementsAre("memo.frm", "memo.frx", "other.frx", "third.frm", "third.frx"));
    EXPECT_THAT(Stored(QStringLiteral("third.frx")), HasSubstr("mine\r\nmore"));
    EXPECT_EQ(Stored(QStringLiteral("memo.frx")), FileBytes(sampleForms / "memo.frx"));
    EXPECT_FALSE(window.isWindowModified());
}

// ---- Companions

TEST_F(SavingSession, ACompanionInAnotherCaseIsReadAndSavedWithoutAMessage) {
    fs::copy_file(sampleForms / "memo.frm", File(QStringLiteral("memo.frm")));
    fs::copy_file(sampleForms / "memo.frx", File(QStringLiteral("MEMO.FRX")));
    Open(QStringLiteral("memo.frm"));
    EXPECT_EQ(Status(), "");
    Click(u"VMemo1");
    EXPECT_NE(Properties().Shown(u"Text"), "");
    Retype(QStringLiteral("another text"));
    Save();
    EXPECT_EQ(Status(), "Saved " + Path(QStringLiteral("memo.frm")).toStdString());
    EXPECT_THAT(Files(), ElementsAre("MEMO.FRX", "memo.frm"));
    EXPECT_THAT(Stored(QStringLiteral("MEMO.FRX")), HasSubstr("another text\r\nmore"));
    EXPECT_EQ(Stored(QStringLiteral("memo.frm")), Text());
}

TEST_F(SavingSession, ErrorsInAFormAreOneMessage) {
    Write(QStringLiteral("bad.frm"), "VERSION 5.00\nBegin VB.Form f\n");
    {
        Replies replies;
        replies.Name(Path(QStringLiteral("bad.frm"))).Press(QStringLiteral("OK"));
        Key(Qt::Key_O, Qt::ControlModifier);
        EXPECT_THAT(replies.said.back(), HasSubstr("bad.frm:3:1: expected End of f"));
    }
    EXPECT_EQ(window.Current(), nullptr);
    fs::copy_file(sampleForms / "memo.frm", File(QStringLiteral("memo.frm")));
    Open(QStringLiteral("memo.frm"));  // no dialog, a line in the status bar
    EXPECT_THAT(Status(), HasSubstr("memo.frx"));
    Click(u"VMemo1");
    Key(Qt::Key_Right);
    Save();
    EXPECT_THAT(Stored(QStringLiteral("memo.frm")), HasSubstr("$\"memo.frx\":0000"));
    EXPECT_THAT(Files(), ElementsAre("bad.frm", "memo.frm"));
}

TEST_F(SavingSession, EveryKindKeepsItsExtensionItsFilterAndItsCompanion) {
    struct Kind {
        std::string className;
        QString extension;
        QString companion;
        std::string filter;
    };
    const std::vector<Kind> kinds = {
        {"UserControl", QStringLiteral("ctl"), QStringLiteral("ctx"), "Controls"},
        {"PropertyPage", QStringLiteral("pag"), QStringLiteral("pgx"), "Property pages"},
        {"UserDocument", QStringLiteral("dob"), QStringLiteral("dox"), "Documents"}};
    for (const Kind& kind : kinds) {
        const QString former = QStringLiteral("first.") + kind.extension;
        const std::string reference = "$\"first." + kind.companion.toStdString() + "\":0000";
        const std::string form = "VERSION 5.00\r\nBegin VB." + kind.className +
                                 " Thing \r\n   ClientHeight = 3000\r\n   ClientWidth = 4500\r\n" +
                                 ControlLines("VB.TextBox", "Text1", 120, 120, 1200, 900,
                                              "      Text = " + reference + "\r\n") +
                                 "End\r\n";
        Write(former, form);
        Write(QStringLiteral("first.") + kind.companion, "\4long");
        Open(former);
        ASSERT_EQ(Properties().Has(u"Caption") || Properties().Has(u"ClientHeight"), true);
        Click(u"Text1");
        Key(Qt::Key_Right);
        {
            Replies replies;
            replies.Name(Path(QStringLiteral("second")));
            SaveAs();
            EXPECT_THAT(replies.said.front(), HasSubstr(kind.filter));
        }
        const QString now = QStringLiteral("second.") + kind.extension;
        EXPECT_EQ(Stored(now), Text());
        EXPECT_THAT(Stored(now), HasSubstr("second." + kind.companion.toStdString() + "\":0000"));
        EXPECT_EQ(Stored(QStringLiteral("second.") + kind.companion), "\4long");
        EXPECT_EQ(Stored(former), form);
        EXPECT_EQ(Title(), now.toStdString() + "[*] – lumenform");
    }
    EXPECT_EQ(Files().size(), 12) << "no form and no other companion";
}

// ---- Other programs

TEST_F(SavingSession, AChangeOutsideIsSeenWhenTheUserComesBack) {
    Copy("label");
    Open(QStringLiteral("label.frm"));
    Click(u"VLabel1");
    Key(Qt::Key_Right);
    const std::string mine = Text();
    const QString name = QStringLiteral("label.frm");
    const lumenform::ChangedBar& bar = window.Current()->Bar();
    Elsewhere([] {});
    EXPECT_FALSE(bar.isVisible()) << "nothing has changed";
    const std::string theirs = Stored(name) + "' by others\r\n";
    Elsewhere([&] { Write(name, theirs); });
    EXPECT_TRUE(bar.isVisible());
    {
        std::string difference;
        Replies replies;
        replies.Look([&](QWidget& dialog) {
            difference = dialog.findChild<QPlainTextEdit*>()->toPlainText().toStdString();
        });
        PressIn(bar, QStringLiteral("Show the difference"));
        EXPECT_THAT(difference, HasSubstr("-' by others"));
        EXPECT_THAT(difference, HasSubstr("+      Left "));
    }
    PressIn(bar, QStringLiteral("Reload"));
    EXPECT_EQ(Text(), theirs);
    EXPECT_FALSE(bar.isVisible());
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text(), mine) << "Undo brings the own version back";
    Elsewhere([&] { Write(name, theirs + "' again\r\n"); });
    PressIn(bar, QStringLiteral("Keep mine"));
    EXPECT_EQ(Stored(name), theirs + "' again\r\n") << "until the form is saved";
    Save();
    EXPECT_EQ(Stored(name), mine);
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(SavingSession, TwoFormsWithOneCompanionKeepTheirTexts) {
    fs::copy_file(sampleForms / "memo.frx", File(QStringLiteral("memo.frx")));
    const QStringList forms = {QStringLiteral("one.frm"), QStringLiteral("two.frm")};
    for (const QString& form : forms) {
        fs::copy_file(sampleForms / "memo.frm", File(form));
        Open(form);
    }
    Click(u"VMemo1");
    Retype(QStringLiteral("second"));
    Open(forms.front());
    Click(u"VMemo1");
    Retype(QStringLiteral("first"));
    Save();
    const std::string first = Stored(forms.front());
    Open(forms.back());
    const lumenform::ChangedBar& bar = window.Current()->Bar();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.findChild<QLabel*>()->text(),
              QStringLiteral("Another program has changed memo.frx."));
    PressIn(bar, QStringLiteral("Keep mine"));
    Save();
    Key(Qt::Key_Z, Qt::ControlModifier);
    Key(Qt::Key_Y, Qt::ControlModifier);
    Save();
    EXPECT_EQ(Stored(forms.front()), first);
    CloseForm();
    CloseForm();
    for (const QString& form : forms) {
        Open(form);
        EXPECT_EQ(Status(), "");
        Click(u"VMemo1");
        EXPECT_EQ(Properties().Shown(u"Text"),
                  form == forms.front() ? "first  more" : "second  more");
    }
}

TEST_F(SavingSession, AVersionThatUndoBringsBackKeepsTheRecordsOfOthers) {
    fs::copy_file(sampleForms / "memo.frx", File(QStringLiteral("memo.frx")));
    fs::copy_file(sampleForms / "memo.frm", File(QStringLiteral("two.frm")));
    Open(QStringLiteral("two.frm"));
    Click(u"VMemo1");
    Retype(QStringLiteral("second"));
    const std::string others = Stored(QStringLiteral("memo.frx")) + "\4long";
    Elsewhere([&] { Write(QStringLiteral("memo.frx"), others); });
    PressIn(window.Current()->Bar(), QStringLiteral("Reload"));
    Key(Qt::Key_Z, Qt::ControlModifier);
    Save();
    EXPECT_THAT(Stored(QStringLiteral("memo.frx")), ::testing::StartsWith(others));
    EXPECT_THAT(Stored(QStringLiteral("memo.frx")), HasSubstr("second\r\nmore"));
}

TEST_F(SavingSession, AFormThatCannotBeWrittenIsSavedElsewhere) {
    Copy("label");
    Open(QStringLiteral("label.frm"));
    Click(u"VLabel1");
    Key(Qt::Key_Right);
    const std::string former = Stored(QStringLiteral("label.frm"));
    fs::permissions(File(QStringLiteral("label.frm")), fs::perms::owner_read);
    {
        Replies replies;
        replies.Press(QStringLiteral("Save as…")).Name(Path(QStringLiteral("mine")));
        Save();
        EXPECT_THAT(replies.said.front(), HasSubstr("label.frm: is read-only"));
    }
    EXPECT_EQ(Stored(QStringLiteral("label.frm")), former);
    EXPECT_EQ(Stored(QStringLiteral("mine.frm")), Text());
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(SavingSession, UnsavedWorkSurvivesACrash) {
    Copy("label");
    Open(QStringLiteral("label.frm"));
    Click(u"VLabel1");
    Key(Qt::Key_Right);
    const std::string work = Text();
    const QString store = Path(QStringLiteral("recovery"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return QDir(store).count() > 2; }, 10000));
    LeaveBehind(store);
    lumenform::DesignWindow next({.classes = lumenkitClasses,
                                  .application = surface.application,
                                  .interaction = surface.interaction,
                                  .settings = settings,
                                  .recovery = store});
    ShowActive(next);
    {
        Replies replies;
        replies.Press(QStringLiteral("Open"));
        next.OfferAbandonedWork();
        EXPECT_THAT(replies.said.front(), HasSubstr("label.frm, changed "));
    }
    ASSERT_NE(next.Current(), nullptr);
    ShowActive(next);
    EXPECT_TRUE(next.isWindowModified());
    QTest::keyClick(&next, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Stored(QStringLiteral("label.frm")), work);
    next.OfferAbandonedWork();  // asks nothing any more
    EXPECT_EQ(next.Tabs().count(), 1);
}

}  // namespace
}  // namespace lumenkit::testing
