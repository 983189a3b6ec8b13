// The code page of a form in the designer: chosen by the user, and offered for a text that the
// present one cannot hold.
#include <QApplication>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/notice.h"
#include "apps/lumenform/design/properties/page_dialog.h"
#include "apps/lumenform/design/properties/text_dialog.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/entry.h"
#include "tests/apps/lumenform/opened_window.h"

namespace lumenkit::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

const QString greeting = QStringLiteral("Привет");

class EncodingTest : public OpenedWindow {
 protected:
    std::string Shown() const {
        return window.findChild<QToolButton*>(QStringLiteral("codePage"))->text().toStdString();
    }
    // The page in the menu of the status line.
    QAction& Page(const QString& title) const {
        const auto* const button = window.findChild<QToolButton*>(QStringLiteral("codePage"));
        for (QAction* const action : button->menu()->actions()) {
            if (action->text().contains(title)) {
                return *action;
            }
        }
        throw std::out_of_range(title.toStdString());
    }
    // Opens a form in code page 1252.
    void LoadWestern() {
        window.Load(Copy("umlauts"));
        ASSERT_EQ(Shown(), "Code page 1252");
    }
    // Types into a property of the form and ends with Enter.
    void Type(TextView property, const QString& text) const {
        Design().Select({});
        ASSERT_TRUE(window.Bench()->Properties().Edit(property));
        QWidget* const line = QApplication::focusWidget();
        QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
        Compose(line, text);
        QTest::keyClick(line, Qt::Key_Return);
        QTest::qWait(0);
    }
    std::string Caption() const {
        return ToUtf8(
            Design().Document().TextOf(*Design().Document().Root().FindProperty(u"Caption")));
    }
};

TEST_F(EncodingTest, IsChosenInTheStatusLine) {
    LoadWestern();
    const std::string before = Text();
    Page(QStringLiteral("UTF-8")).trigger();
    EXPECT_EQ(Shown(), "UTF-8");
    EXPECT_TRUE(Page(QStringLiteral("UTF-8")).isChecked());
    EXPECT_NE(Text(), before);
    EXPECT_TRUE(window.isWindowModified());
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Shown(), "Code page 1252");
    EXPECT_EQ(Text(), before);
    EXPECT_FALSE(window.isWindowModified());
    window.Commands().RedoAction().trigger();
    EXPECT_EQ(Shown(), "UTF-8");
    EXPECT_TRUE(window.Save());
    Command(QStringLiteral("Close the form")).trigger();
    window.Load(Path(QStringLiteral("umlauts.frm")));
    EXPECT_EQ(Shown(), "UTF-8");
}

TEST_F(EncodingTest, IsChosenForANewForm) {
    window.StartNew();
    Page(QStringLiteral("1251")).trigger();
    EXPECT_EQ(Shown(), "Code page 1251");
    Type(u"Caption", greeting);
    EXPECT_THAT(Text(), HasSubstr("\"\xCF\xF0\xE8\xE2\xE5\xF2\""));
}

TEST_F(EncodingTest, APageWithoutACharacterOfTheFormIsRefused) {
    LoadWestern();
    const std::string before = Text();
    Page(QStringLiteral("1251")).trigger();
    EXPECT_EQ(Shown(), "Code page 1252");
    EXPECT_FALSE(Page(QStringLiteral("1251")).isChecked());
    EXPECT_TRUE(Page(QStringLiteral("1252")).isChecked());
    EXPECT_EQ(Text(), before);
    EXPECT_THAT(window.statusBar()->currentMessage().toStdString(), HasSubstr("cannot be written"));
}

TEST_F(EncodingTest, ThePropertyListOffersUtf8ForARefusedText) {
    LoadWestern();
    const std::string before = Text();
    Type(u"Caption", greeting);
    EXPECT_EQ(Text(), before);
    FollowFirstLink(window.Bench()->Properties().Refusal());
    EXPECT_EQ(Shown(), "UTF-8");
    EXPECT_EQ(Caption(), greeting.toStdString());
    EXPECT_EQ(window.Bench()->Properties().Message(), QString());
    window.Commands().UndoAction().trigger();
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Text(), before);
}

TEST_F(EncodingTest, AnotherPageThatHasAllCharactersIsOffered) {
    window.StartNew();
    Type(u"Caption", greeting);
    std::vector<std::string> offered;
    QTimer::singleShot(0, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (const QAction* const action : menu->actions()) {
            offered.push_back(action->text().toStdString());
        }
        menu->setActiveAction(menu->actions().front());
        QTest::keyClick(menu, Qt::Key_End);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    Q_EMIT window.Bench()->Properties().Refusal().OtherPageWanted();
    EXPECT_THAT(offered, Contains(HasSubstr("1251")));
    EXPECT_THAT(offered, Contains(HasSubstr("932"))) << "it has Cyrillic letters, too";
    EXPECT_THAT(offered, Not(Contains(HasSubstr("1250"))));
    EXPECT_EQ(Caption(), greeting.toStdString());
    EXPECT_NE(Shown(), "UTF-8");
    EXPECT_NE(Shown(), "Code page 1252");
}

TEST_F(EncodingTest, AReasonOfAnotherKindOffersNothing) {
    LoadWestern();
    Type(u"ClientWidth", QStringLiteral("wide"));
    EXPECT_NE(window.Bench()->Properties().Message(), QString());
    EXPECT_EQ(window.Bench()->Properties().Refusal().Links(), nullptr);
}

TEST_F(EncodingTest, TheDialogOfATextOffersUtf8WhereItIsTyped) {
    window.Load(Copy("memo"));
    ASSERT_EQ(Shown(), "Code page 1252");
    Select(u"VMemo1");
    ASSERT_TRUE(window.Bench()->Properties().Edit(u"Text"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QTest::qWait(0);
    auto* const dialog = window.findChild<lumenform::TextDialog*>();
    ASSERT_NE(dialog, nullptr);
    auto* const edit = dialog->findChild<QPlainTextEdit*>();
    edit->selectAll();
    Compose(edit, greeting);
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("cannot be written in"));
    FollowFirstLink(dialog->Refusal());
    EXPECT_EQ(Shown(), "UTF-8");
    EXPECT_EQ(dialog->Message(), QString()) << "the text stays in the dialog";
    dialog->accept();
    EXPECT_THAT(Text(), HasSubstr(greeting.toStdString()));
}

TEST_F(EncodingTest, TheCaptionPageOffersUtf8WhereItIsTyped) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    lumenform::PageDialog* const dialog = window.Bench()->Properties().EditWithPage();
    ASSERT_NE(dialog, nullptr);
    QWidget& box = *dialog->Page().Parts().Find(u"txtCaption")->Widget();
    box.setFocus();
    Compose(&box, greeting);
    EXPECT_FALSE(dialog->Apply());
    FollowFirstLink(dialog->Refusal());
    EXPECT_EQ(Shown(), "UTF-8");
    EXPECT_EQ(dialog->Message(), QString());
    dialog->accept();
    EXPECT_THAT(Text(), HasSubstr(greeting.toStdString()));
}

}  // namespace
}  // namespace lumenkit::testing
