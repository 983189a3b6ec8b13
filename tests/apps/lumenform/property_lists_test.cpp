// The properties List and ItemData, whose records are in the companion.
#include <QComboBox>
#include <QListWidget>
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/text_dialog.h"
#include "forms/file.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

using std::string_literals::operator""s;
using ::testing::HasSubstr;
using ::testing::Not;

class PropertyLists : public ::testing::Test {
 protected:
    // Replaces the text of the dialog that F4 opens.
    void Edit(BrowsedForm& edited, TextView property, const QString& text) {
        auto* const dialog = edited.More<lumenform::TextDialog>(property);
        ASSERT_NE(dialog, nullptr);
        auto* const edit = dialog->findChild<QPlainTextEdit*>();
        edit->selectAll();
        edit->insertPlainText(text);
        dialog->accept();
        QTest::qWait(0);
    }
    // Returns the record of a property.
    static std::string Record(const BrowsedForm& shown, TextView control, TextView property) {
        const forms::Block& block = shown.design.View().Find(control)->Block();
        return std::string(shown.design.Document().RecordOf(*block.FindProperty(property)));
    }
    static std::string Companion(const BrowsedForm& shown) {
        return shown.design.Document().Write().companion;
    }

    BrowsedForm form{forms::Load(sampleForms / "lists.frm")};
};

TEST_F(PropertyLists, ShowTheirItemsAndNumbers) {
    form.Select({u"lstColors"});
    EXPECT_EQ(form.Shown(u"List"), "red  green  blue");
    EXPECT_EQ(form.Shown(u"ItemData"), "0  0  0");
    form.Select({u"cboEmpty"});
    EXPECT_EQ(form.Shown(u"List"), "");
    EXPECT_TRUE(form.CanEdit(u"List"));
}

TEST_F(PropertyLists, AreEditedOneItemALine) {
    const std::string before = Companion(form);
    const std::string text = form.Saved();
    form.Select({u"lstColors"});
    auto* const dialog = form.More<lumenform::TextDialog>(u"List");
    ASSERT_NE(dialog, nullptr);
    auto* const edit = dialog->findChild<QPlainTextEdit*>();
    EXPECT_EQ(edit->toPlainText(), "red\ngreen\nblue");
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClicks(edit, "violet");
    dialog->accept();
    EXPECT_EQ(form.Shown(u"List"), "red  green  blue  violet");
    EXPECT_EQ(form.Shown(u"ItemData"), "0  0  0  0") << "one number for each item";
    EXPECT_EQ(Record(form, u"lstColors", u"List"), "\4\0\x08\0\3\0red\5\0green\4\0blue\6\0violet"s);
    EXPECT_TRUE(Companion(form).starts_with(before)) << "the records before keep their bytes";
    EXPECT_THAT(form.Saved(), HasSubstr("      ItemData        =   \"lists.frx\":0028\r\n"));
    EXPECT_THAT(form.Saved(), HasSubstr("      List            =   \"lists.frx\":003A\r\n"));
    EXPECT_EQ(form.design.History().index(), 1);
    form.design.History().undo();
    EXPECT_EQ(form.Saved(), text);
    EXPECT_EQ(Companion(form), before);
}

TEST_F(PropertyLists, AreShownByTheControl) {
    form.Select({u"lstColors"});
    Edit(form, u"List", QStringLiteral("one\ntwo"));
    EXPECT_EQ(form.browser->Message(), QString());
    EXPECT_EQ(Record(form, u"lstColors", u"List"), "\2\0\5\0\3\0one\3\0two"s);
    EXPECT_EQ(Record(form, u"lstColors", u"ItemData").substr(0, 10), "\2\0\0\0\0\0\0\0\0\0"s);
    auto* const list = form.design.View().Find(u"lstColors")->Widget().findChild<QListWidget*>();
    auto* const shown =
        list != nullptr
            ? list
            : qobject_cast<QListWidget*>(&form.design.View().Find(u"lstColors")->Widget());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->count(), 2);
}

TEST_F(PropertyLists, NumbersStayWithTheirItems) {
    form.Select({u"lstColors"});
    Edit(form, u"ItemData", QStringLiteral("1\n-2\n&H10"));
    EXPECT_EQ(form.Shown(u"ItemData"), "1  -2  16");
    Edit(form, u"List", QStringLiteral("red\nyellow\ngreen\nblue"));
    EXPECT_EQ(form.Shown(u"ItemData"), "1  0  -2  16");
    Edit(form, u"List", QStringLiteral("green\nblue"));
    EXPECT_EQ(form.Shown(u"ItemData"), "-2  16");
    Edit(form, u"List", QStringLiteral("Green\nblue"));
    EXPECT_EQ(form.Shown(u"ItemData"), "-2  16");
}

TEST_F(PropertyLists, RefuseNumbersThatDoNotFit) {
    form.Select({u"lstColors"});
    const std::string before = Companion(form);
    Edit(form, u"ItemData", QStringLiteral("1\n2"));
    EXPECT_EQ(form.Message(), "ItemData: expected one number for each of the 3 items, found 2");
    Edit(form, u"ItemData", QStringLiteral("1\nmany\n3"));
    EXPECT_EQ(form.Message(), "ItemData: Type mismatch");
    EXPECT_EQ(Companion(form), before);
}

TEST_F(PropertyLists, RefuseAnItemThatTheCodePageCannotHold) {
    form.Select({u"lstColors"});
    const std::string before = Companion(form);
    Edit(form, u"List", QString::fromUtf8("red\nжёлтый"));
    auto* const dialog = form.browser->findChild<lumenform::TextDialog*>();
    ASSERT_NE(dialog, nullptr) << "it stays open";
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("\"ж\" (U+0436) cannot be written in"));
    EXPECT_EQ(Companion(form), before);
}

TEST_F(PropertyLists, RefusedNumbersStayInTheDialog) {
    form.Select({u"lstColors"});
    const std::string before = Companion(form);
    Edit(form, u"ItemData", QStringLiteral("5\n99999999999"));
    auto* const dialog = form.browser->findChild<lumenform::TextDialog*>();
    ASSERT_NE(dialog, nullptr) << "it stays open";
    EXPECT_FALSE(dialog->Message().isEmpty());
    EXPECT_EQ(ToUtf8(dialog->Result()), "5\r\n99999999999");
    EXPECT_EQ(Companion(form), before);
}

TEST_F(PropertyLists, OfANewControlGetACompanion) {
    BrowsedForm fresh(FormWith("   Begin VB.ComboBox C\n      Height = 300\n   End\n"));
    fresh.Select({u"C"});
    EXPECT_EQ(fresh.Shown(u"List"), "");
    Edit(fresh, u"List", QStringLiteral("a\nb"));
    EXPECT_THAT(fresh.Saved(), HasSubstr("List            =   \"x.frx\":0000\n"));
    EXPECT_EQ(Companion(fresh), "\2\0\3\0\1\0a\1\0b"s);
    EXPECT_THAT(fresh.Saved(), Not(HasSubstr("ItemData")));
    fresh.browser->Table().setFocus();
    fresh.browser->Table().GoTo(fresh.Row(u"List"));
    QTest::keyClick(&fresh.browser->Table(), Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_THAT(fresh.Saved(), Not(HasSubstr("List")));
}

TEST_F(PropertyLists, UnknownRecordsAreReadOnlyAndSayWhy) {
    BrowsedForm odd(
        FormWith("   Begin VB.ListBox L\n      Height = 300\n"
                 "      ItemData = \"x.frx\":0000\n      List = \"x.frx\":0006\n   End\n",
                 "\1\0\3\0\1\0\2\0\3\0\1\0a"s));
    odd.Select({u"L"});
    const std::string before = Companion(odd);
    EXPECT_EQ(odd.Shown(u"List"), "(companion)");
    EXPECT_FALSE(odd.CanEdit(u"List"));
    odd.browser->Table().GoTo(odd.Row(u"List"));
    EXPECT_THAT(odd.browser->Help().toStdString(),
                HasSubstr("It cannot be edited here: expected a list in the companion"));
    EXPECT_FALSE(odd.CanEdit(u"ItemData"));
    EXPECT_EQ(Companion(odd), before);
}

}  // namespace
}  // namespace lumenkit::testing
