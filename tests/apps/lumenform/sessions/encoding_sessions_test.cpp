// Sessions in which the user chooses the code page of a form.
#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/text_dialog.h"
#include "tests/apps/lumenform/entry.h"
#include "tests/apps/lumenform/sessions/session.h"

namespace lumenkit::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const QString hello = QStringLiteral("Привет");

class EncodingSession : public UserSession {
 protected:
    QToolButton& Button() const {
        return *window.findChild<QToolButton*>(QStringLiteral("codePage"));
    }
    std::string Shown() const { return Button().text().toStdString(); }
    void Choose(const QString& page) {
        Replies replies;
        replies.Choose(page);
        QTest::mouseClick(&Button(), Qt::LeftButton);
        QTest::qWait(50);
    }
    void Enter(TextView property, const QString& text) {
        ASSERT_TRUE(Properties().Has(property));
        window.Bench()->Properties().Edit(property);
        QWidget* const line = QApplication::focusWidget();
        QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
        Compose(line, text);
        Key(Qt::Key_Return);
        QTest::qWait(0);
    }
};

TEST_F(EncodingSession, ThePageIsSeenChosenAndSaved) {
    Copy("umlauts");
    Open(QStringLiteral("umlauts.frm"));
    EXPECT_EQ(Shown(), "Code page 1252");
    Choose(QStringLiteral("UTF-8"));
    EXPECT_EQ(Shown(), "UTF-8");
    EXPECT_TRUE(window.isWindowModified());
    Save();
    const std::string saved = Stored(QStringLiteral("umlauts.frm"));
    EXPECT_THAT(saved, HasSubstr("\xC3\xBC")) << "ü";
    CloseForm();
    Open(QStringLiteral("umlauts.frm"));
    EXPECT_EQ(Shown(), "UTF-8");
    EXPECT_EQ(Text(), saved);
}

TEST_F(EncodingSession, ANewFormIsWrittenInAnotherPage) {
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_NE(Shown(), "");
    Choose(QStringLiteral("1251"));
    EXPECT_EQ(Shown(), "Code page 1251");
    Enter(u"Caption", hello);
    Replies replies;
    replies.Name(Path(QStringLiteral("new")));
    Save();
    EXPECT_THAT(Stored(QStringLiteral("new.frm")), HasSubstr("\"\xCF\xF0\xE8\xE2\xE5\xF2\""));
}

TEST_F(EncodingSession, ATextIsRefusedInItsDialogWithAnOffer) {
    Copy("memo");
    Open(QStringLiteral("memo.frm"));
    Click(u"VMemo1");
    auto* const dialog = Properties().More<lumenform::TextDialog>(u"Text");
    ASSERT_NE(dialog, nullptr);
    auto* const edit = dialog->findChild<QPlainTextEdit*>();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    Compose(edit, hello);
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("cannot be written in"));
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(dialog->isVisible()) << "it is not accepted";
    FollowFirstLink(dialog->Refusal());
    EXPECT_EQ(dialog->Message(), QString());
    EXPECT_EQ(edit->toPlainText(), hello);
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    QTest::qWait(0);
    EXPECT_EQ(Shown(), "UTF-8");
    Save();
    EXPECT_THAT(Stored(QStringLiteral("memo.frm")), HasSubstr(hello.toStdString()));
}

TEST_F(EncodingSession, AnotherPageIsOfferedForAValueOfThePropertyList) {
    Copy("label");
    Open(QStringLiteral("label.frm"));
    const std::string before = Text();
    Enter(u"Caption", hello);
    EXPECT_EQ(Text(), before);
    EXPECT_THAT(Properties().Message(), HasSubstr("cannot be written in"));
    {
        Replies replies;
        replies.Choose(QStringLiteral("1251"));
        lumenform::Notice& refusal = window.Bench()->Properties().Refusal();
        ASSERT_NE(refusal.Links(), nullptr);
        refusal.Links()->setFocus();
        QTest::keyClick(refusal.Links(), Qt::Key_Tab);  // from the first link to the second
        QTest::keyClick(refusal.Links(), Qt::Key_Tab);
        QTest::keyClick(refusal.Links(), Qt::Key_Return);
        QTest::qWait(50);
    }
    EXPECT_EQ(Shown(), "Code page 1251");
    Save();
    EXPECT_THAT(Stored(QStringLiteral("label.frm")), HasSubstr("\xCF\xF0\xE8\xE2\xE5\xF2"));
}

}  // namespace
}  // namespace lumenkit::testing
