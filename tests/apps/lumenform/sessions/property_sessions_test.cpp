// Sessions in which the user edits properties.
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/contents/contents_dialog.h"
#include "apps/lumenform/design/properties/pictures/picture_dialog.h"
#include "apps/lumenform/design/properties/text_dialog.h"
#include "tests/apps/lumenform/sessions/session.h"

namespace lumenkit::testing {
namespace {

using std::string_literals::operator""s;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

const QString theForm = QStringLiteral("form.frm");

class PropertySession : public UserSession {
 protected:
    lumenform::PropertyBrowser& Browser() const { return window.Bench()->Properties(); }
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        const lumenform::PropertyModel& model = Browser().Model();
        for (int line = 0; line < model.rowCount(); ++line) {
            const std::string text = model.index(line, 0).data().toString().toStdString();
            lines.push_back(model.IsHeading(line) ? "[" + text + "]" : text);
        }
        return lines;
    }
    bool IsBold(TextView property) {
        const QModelIndex index = Browser().Model().index(Properties().Row(property), 0);
        return index.data(Qt::FontRole).value<QFont>().bold();
    }
    void GoTo(TextView property) {
        Browser().Table().setFocus();
        Browser().Table().GoTo(Properties().Row(property));
    }
    template <typename Dialog>
    void Accept(const Dialog& dialog) const {
        QTest::mouseClick(
            dialog.template findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
            Qt::LeftButton);
        QTest::qWait(0);
    }
    // Types into the dialog that F4 opens.
    void TypeLines(TextView property, const QStringList& lines) {
        auto* const dialog = Properties().More<lumenform::TextDialog>(property);
        ASSERT_NE(dialog, nullptr);
        auto* const edit = dialog->findChild<QPlainTextEdit*>();
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        for (qsizetype line = 0; line < lines.size(); ++line) {
            if (line > 0) {
                QTest::keyClick(edit, Qt::Key_Return);
            }
            QTest::keyClicks(edit, lines[line]);
        }
        Accept(*dialog);
    }
};

TEST_F(PropertySession, TheListIsFilteredGroupedAndReset) {
    OpenWith(theForm,
             ControlLines("VB.TextBox", "Text1", 120, 120, 1200, 300, "      MaxLength = 5\r\n"));
    Click(u"Text1");
    const std::vector<std::string> all = Lines();
    GoTo(u"MaxLength");
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&Browser().Filter().Field(), "maxl");
    EXPECT_THAT(Lines(), ElementsAre("MaxLength"));
    EXPECT_TRUE(IsBold(u"MaxLength"));
    Key(Qt::Key_Escape);
    EXPECT_EQ(Lines(), all);
    EXPECT_FALSE(IsBold(u"PasswordChar"));
    QTest::mouseClick(&Browser().Filter().Groups(), Qt::LeftButton);
    EXPECT_EQ(Lines().front(), "[Appearance]");
    GoTo(u"MaxLength");
    Key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_FALSE(IsBold(u"MaxLength"));
    Save();
    EXPECT_THAT(Stored(theForm), Not(HasSubstr("MaxLength")));
    QTest::mouseClick(&Browser().Filter().Groups(), Qt::LeftButton);
    EXPECT_EQ(Lines().front(), "(Name)");
}

TEST_F(PropertySession, ValuesAreNamedTypedAndChosen) {
    OpenWith(theForm, ControlLines("VB.TextBox", "Text1", 120, 120, 1200, 300));
    Click(u"Text1");
    Properties().Type(u"BackColor", "tool tip");
    EXPECT_EQ(Properties().Shown(u"BackColor"), "Tool tip");
    Properties().Type(u"ForeColor", "&HFF");
    Properties().Choose(u"Alignment", Properties().Shown(u"Alignment"));  // changes nothing
    Properties().Choose(u"MousePointer", "2");
    Properties().Type(u"Tag", "a note");
    Properties().Type(u"HelpContextID", "1234");
    Save();
    const std::string saved = Stored(theForm);
    EXPECT_THAT(saved, HasSubstr("BackColor       =   &H80000018&"));
    EXPECT_THAT(saved, HasSubstr("ForeColor       =   &H000000FF&"));
    EXPECT_THAT(saved, HasSubstr("MousePointer    =   2"));
    EXPECT_THAT(saved, HasSubstr("Tag             =   \"a note\""));
    EXPECT_THAT(saved, HasSubstr("HelpContextID   =   1234"));
    EXPECT_THAT(saved, Not(HasSubstr("Alignment")));
}

TEST_F(PropertySession, ListsAreEditedALineAnItem) {
    OpenWith(theForm, ControlLines("VB.ListBox", "List1", 120, 120, 1200, 900));
    Click(u"List1");
    TypeLines(u"List", {QStringLiteral("red"), QStringLiteral("green")});
    EXPECT_EQ(Properties().Shown(u"List"), "red  green");
    TypeLines(u"ItemData", {QStringLiteral("1"), QStringLiteral("2")});
    Save();
    EXPECT_THAT(Stored(theForm), HasSubstr("\"form.frx\":"));
    EXPECT_THAT(Stored(QStringLiteral("form.frx")), HasSubstr("\2\0\7\0\3\0red\5\0green"s));
    CloseForm();
    Open(theForm);
    Click(u"List1");
    EXPECT_EQ(Properties().Shown(u"List"), "red  green");
    EXPECT_EQ(Properties().Shown(u"ItemData"), "1  2");
}

TEST_F(PropertySession, APictureIsLoadedAndSaved) {
    QImage image(2, 1, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(Path(QStringLiteral("red.bmp"))));
    OpenWith(theForm, ControlLines("VB.Image", "Image1", 120, 120, 900, 900));
    Click(u"Image1");
    auto* const dialog = Properties().More<lumenform::PictureDialog>(u"Picture");
    ASSERT_NE(dialog, nullptr);
    {
        Replies replies;
        replies.Name(Path(QStringLiteral("red.bmp")));
        PressIn(*dialog, QStringLiteral("Load..."));
        QTest::qWait(100);
    }
    EXPECT_EQ(dialog->Message(), QString());
    Accept(*dialog);
    EXPECT_THAT(Properties().Shown(u"Picture"), HasSubstr("Bitmap"));
    Save();
    EXPECT_THAT(Stored(theForm), HasSubstr("Picture         =   \"form.frx\":0000"));
    EXPECT_THAT(Stored(QStringLiteral("form.frx")), HasSubstr(Stored(QStringLiteral("red.bmp"))));
}

TEST_F(PropertySession, TheOptionsOfAListAreATable) {
    Key(Qt::Key_N, Qt::ControlModifier);
    Tools().DoubleClickRow(QStringLiteral("VOptList"));
    auto* const dialog = Properties().More<lumenform::ContentsDialog>(u"Contents");
    ASSERT_NE(dialog, nullptr);
    PressIn(*dialog, QStringLiteral("Add"));
    const int last = dialog->Table().model()->rowCount() - 1;
    dialog->Table().setCurrentIndex(dialog->Table().model()->index(last, 1));
    dialog->Table().setFocus();
    QTest::keyClick(&dialog->Table(), Qt::Key_F2);
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr);
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line, "Violet");
    QTest::keyClick(line, Qt::Key_Return);
    QTest::qWait(0);
    Accept(*dialog);
    Replies replies;
    replies.Name(Path(theForm));
    Save();
    EXPECT_THAT(Stored(theForm), HasSubstr("Violet"));
}

}  // namespace
}  // namespace lumenkit::testing
