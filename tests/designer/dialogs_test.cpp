// The dialogs of the plugin for Qt Designer.
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "widgets/designer/items_dialog.h"
#include "widgets/designer/text_dialog.h"

namespace lumenkit::testing {
namespace {

using designer::ItemsDialog;
using designer::TextDialog;
using widgets::ContentsModel;

QString Items(const ItemsDialog& dialog) {
    return dialog.Result();
}

// Presses the button with this text.
void Press(QWidget& dialog, const QString& text) {
    for (auto* const button : dialog.findChildren<QPushButton*>()) {
        if (button->text() == text) {
            button->click();
            return;
        }
    }
    FAIL() << "there is no button " << qPrintable(text);
}

TEST(ItemsOfDesigner, KeepTheTextOfItemsThatAreNotEdited) {
    const QString contents = QStringLiteral("Red|1;a;b||;x|");
    ItemsDialog dialog(contents, nullptr);
    EXPECT_EQ(Items(dialog), contents);
    Press(dialog, QStringLiteral("Move &down"));
    EXPECT_EQ(Items(dialog), QStringLiteral("1;a;b|Red||;x|"));
    Press(dialog, QStringLiteral("&Remove"));
    EXPECT_EQ(Items(dialog), QStringLiteral("1;a;b||;x|"));
}

TEST(ItemsOfDesigner, AreAdded) {
    ItemsDialog dialog(QStringLiteral("0;None"), nullptr);
    Press(dialog, QStringLiteral("&Add"));
    EXPECT_EQ(Items(dialog), QStringLiteral("0;None|1;Item 1"));
}

TEST(ItemsOfDesigner, RefuseSeparatorsWithTheReason) {
    ItemsDialog dialog(QStringLiteral("0;None"), nullptr);
    QAbstractItemModel& model = *dialog.Table().model();
    const QModelIndex value = model.index(0, ContentsModel::ValueColumn);
    const QModelIndex caption = model.index(0, ContentsModel::CaptionColumn);
    EXPECT_FALSE(model.setData(value, QStringLiteral("a;b"), Qt::EditRole));
    EXPECT_TRUE(dialog.Message().startsWith(QLatin1Char(';'))) << qPrintable(dialog.Message());
    EXPECT_FALSE(model.setData(caption, QStringLiteral("a|b"), Qt::EditRole));
    EXPECT_TRUE(dialog.Message().startsWith(QLatin1Char('|'))) << qPrintable(dialog.Message());
    EXPECT_EQ(Items(dialog), QStringLiteral("0;None"));
    EXPECT_TRUE(model.setData(caption, QStringLiteral("a;b"), Qt::EditRole));
    EXPECT_EQ(dialog.Message(), QString());
    EXPECT_EQ(Items(dialog), QStringLiteral("0;a;b"));
}

TEST(TextOfDesigner, HasLineFeedsAndCountsOnlyWhenItIsChanged) {
    TextDialog dialog(QStringLiteral("Edit text"), QStringLiteral("a\r\nb"), nullptr);
    EXPECT_EQ(dialog.Result(), std::nullopt);
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>(), QStringLiteral("c"));
    EXPECT_EQ(dialog.Result(), QStringLiteral("a\nbc"));
}

}  // namespace
}  // namespace lumenkit::testing
