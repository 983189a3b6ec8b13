#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>
#include <lumenkit/widgets/caption_dialog.h>

#include "tests/unit/widgets/told_messages.h"

namespace lumenkit::testing {
namespace {

using widgets::CaptionDialog;
using widgets::VLabel;

QPushButton* ApplyOf(CaptionDialog& dialog) {
    return dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply);
}

// Types into the field that has the focus when the dialog opens: the caption.
void TypeCaption(CaptionDialog& dialog, const QString& text) {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_NE(dialog.focusWidget(), nullptr);
    QTest::keyClicks(dialog.focusWidget(), text);
}

TEST(CaptionDialog, AssignsTheCaptionWithOkAndTellsIt) {
    VLabel label(QStringLiteral("old"));
    const QSignalSpy captions(&label, &VLabel::captionChanged);
    CaptionDialog dialog(label);
    EXPECT_FALSE(dialog.isChanged());
    EXPECT_FALSE(ApplyOf(dialog)->isEnabled());
    TypeCaption(dialog, QStringLiteral("new "));
    EXPECT_TRUE(dialog.isChanged());
    EXPECT_EQ(label.caption(), QStringLiteral("old"));
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(label.caption(), QStringLiteral("new old"));
    EXPECT_EQ(captions.count(), 1);
}

TEST(CaptionDialog, CancelLeavesTheLabel) {
    VLabel label(QStringLiteral("old"));
    CaptionDialog dialog(label);
    TypeCaption(dialog, QStringLiteral("x"));
    dialog.reject();
    EXPECT_EQ(label.caption(), QStringLiteral("old"));
}

TEST(CaptionDialog, KeepsOpenWhenTheIndentIsRefused) {
    const ToldMessages told;
    VLabel label(QStringLiteral("caption"));
    label.setBulletIndent(7777);
    CaptionDialog dialog(label);
    dialog.show();
    QWidget* indent = nullptr;
    for (QWidget* field : dialog.findChildren<QWidget*>()) {
        const QVariant text = field->property("plainText");
        if (text.toString() == QStringLiteral("7777") ||
            field->property("text").toString() == QStringLiteral("7777")) {
            indent = field;
        }
    }
    ASSERT_NE(indent, nullptr);
    indent->setFocus();
    QTest::keyClick(indent, Qt::Key_Home);
    QTest::keyClicks(indent, QStringLiteral("1"));
    dialog.accept();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(told.Texts(), QStringList({QStringLiteral("Illegal indent. Must be 0 to 9999")}));
    EXPECT_EQ(label.bulletIndent(), 7777);
}

TEST(CaptionDialog, ClosesWithItsLabel) {
    auto label = std::make_unique<VLabel>(QStringLiteral("caption"));
    CaptionDialog dialog(*label);
    dialog.show();
    label.reset();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(dialog.apply());
}

}  // namespace
}  // namespace lumenkit::testing
