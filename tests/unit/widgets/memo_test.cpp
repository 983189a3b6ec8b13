#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <lumenkit/widgets/vmemo.h>

#include "tests/support/qt_windows.h"
#include "tests/unit/widgets/told_messages.h"

namespace lumenkit::testing {
namespace {

using widgets::VMemo;

// A memo in a window that has the focus.
struct FocusedMemo {
    FocusedMemo() {
        memo.resize(300, 200);
        memo.show();
        QApplication::setActiveWindow(&memo);
        memo.setFocus();
    }
    void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }

    VMemo memo;
};

TEST(MemoWidget, HasTheDefaultsOfALoadedControl) {
    const VMemo memo;
    EXPECT_EQ(memo.text(), QString());
    EXPECT_EQ(memo.foreColorValue(), 0x80000008U);
    EXPECT_TRUE(memo.causesValidation());
    EXPECT_FALSE(memo.isLocked());
    EXPECT_EQ(memo.maxLength(), 0);
    EXPECT_EQ(memo.scrollBars(), VMemo::NoScrollBars);
    EXPECT_EQ(memo.maxCharsPerLine(), 0);
    EXPECT_EQ(memo.maxLines(), 0);
}

TEST(MemoWidget, TakesATextAsItIsBeforeTheStartAndFitsItAfterwards) {
    VMemo memo;
    memo.setMaxCharsPerLine(4);
    memo.setText(QStringLiteral("longer"));
    EXPECT_EQ(memo.text(), QStringLiteral("longer"));
    memo.show();
    EXPECT_EQ(memo.text(), QStringLiteral("longer"));
    memo.setText(QStringLiteral("longest"));
    EXPECT_NE(memo.text(), QStringLiteral("longest"));
    EXPECT_TRUE(memo.text().startsWith(QStringLiteral("long")));
}

TEST(MemoWidget, TakesLineFeedsAsLineEnds) {
    VMemo memo;
    const QString lines = QStringLiteral("a\r\nb\r\n\r\nc");
    memo.setText(QStringLiteral("a\nb\r\n\nc"));
    EXPECT_EQ(memo.text(), lines);
    memo.show();
    memo.setText(QString());
    memo.setText(QStringLiteral("a\nb\r\n\nc"));
    EXPECT_EQ(memo.text(), lines);
}

TEST(MemoWidget, RaisesKeysAndTellsTheTextThatIsTyped) {
    FocusedMemo focused;
    const QSignalSpy texts(&focused.memo, &VMemo::textChanged);
    const QSignalSpy changes(&focused.memo, &VMemo::change);
    QList<int> codes;
    QObject::connect(&focused.memo, &VMemo::keyDown, &focused.memo,
                     [&](widgets::KeyArguments* key) { codes.append(key->keyCode()); });
    focused.Type(QStringLiteral("ab"));
    EXPECT_EQ(focused.memo.text(), QStringLiteral("ab"));
    EXPECT_EQ(codes, QList<int>({'A', 'B'}));
    EXPECT_EQ(changes.count(), 2);
    ASSERT_EQ(texts.count(), 2);
    EXPECT_EQ(texts.last().first(), QStringLiteral("ab"));
}

TEST(MemoWidget, ASlotReplacesOrCancelsACharacter) {
    FocusedMemo focused;
    QObject::connect(
        &focused.memo, &VMemo::keyPress, &focused.memo, [](widgets::KeyPressArguments* key) {
            key->setKeyAscii(key->keyAscii() == 'x' ? 0
                                                    : QChar(key->keyAscii()).toUpper().unicode());
        });
    focused.Type(QStringLiteral("axb"));
    EXPECT_EQ(focused.memo.text(), QStringLiteral("AB"));
}

TEST(MemoWidget, AssigningATextRaisesNoChangeButTellsTheText) {
    VMemo memo;
    memo.show();
    const QSignalSpy texts(&memo, &VMemo::textChanged);
    const QSignalSpy changes(&memo, &VMemo::change);
    memo.setText(QStringLiteral("one"));
    memo.setText(QStringLiteral("one"));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(texts.count(), 1);
}

TEST(MemoWidget, APageWidthSetsTheLimitOfALine) {
    for (const bool isShown : {false, true}) {
        VMemo memo;
        if (isShown) {
            memo.show();
        }
        const QSignalSpy limits(&memo, &VMemo::maxCharsPerLineChanged);
        memo.setPageWidth(3000);
        memo.show();
        EXPECT_GT(memo.maxCharsPerLine(), 0);
        if (isShown) {
            EXPECT_EQ(limits.count(), 1);
        }
    }
}

TEST(MemoWidget, ReportsARefusedScrollBarAsTheControlDoes) {
    const ToldMessages told;
    VMemo memo;
    memo.show();
    memo.setScrollBars(static_cast<VMemo::ScrollBars>(4));
    EXPECT_EQ(memo.scrollBars(), VMemo::NoScrollBars);
    ASSERT_EQ(told.Texts().size(), 1);
    EXPECT_TRUE(told.Texts().first().contains(QStringLiteral("VMEMO")));
}

TEST(MemoWidget, ReportsATestMessage) {
    const ToldMessages told;
    VMemo memo;
    memo.testMessage();
    EXPECT_EQ(told.Texts().size(), 1);
}

TEST(MemoWidget, HasTheFocusInItsTextBoxAndItsPlaceInTheTabOrder) {
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    auto* const first = new QLineEdit;
    auto* const last = new QLineEdit;
    auto* const memo = new VMemo;
    for (QWidget* widget :
         {static_cast<QWidget*>(first), static_cast<QWidget*>(last), static_cast<QWidget*>(memo)}) {
        layout->addWidget(widget);
    }
    QWidget::setTabOrder(first, memo);  // before the control exists
    QWidget::setTabOrder(memo, last);
    window.show();
    QApplication::setActiveWindow(&window);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(memo->isAncestorOf(QApplication::focusWidget()));
    EXPECT_TRUE(memo->hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("t"));
    EXPECT_EQ(memo->text(), QStringLiteral("t"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), last);
    QTest::keyClick(last, Qt::Key_Backtab);
    EXPECT_TRUE(memo->hasFocus());
}

TEST(MemoWidget, FollowsAnotherScrollBarWithTheFocus) {
    FocusedMemo focused;
    focused.Type(QStringLiteral("a"));
    focused.memo.setScrollBars(VMemo::VerticalBar);
    EXPECT_TRUE(focused.memo.hasFocus());
    focused.Type(QStringLiteral("b"));
    EXPECT_EQ(focused.memo.text().size(), 2);
}

TEST(MemoWidget, IsDisabledWithItsParent) {
    QWidget window;
    auto* const memo = new VMemo(&window);
    window.setEnabled(false);
    window.show();
    EXPECT_FALSE(memo->isEnabled());
    window.setEnabled(true);
    auto* const box = memo->focusProxy();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isEnabled());
}

TEST(MemoWidget, ReturnsTheWindowThroughMaxLengthForTheTag) {
    VMemo memo;
    memo.setMaxLength(5);
    memo.show();
    EXPECT_EQ(memo.maxLength(), 5);
    memo.setTag(QStringLiteral("Return hWnd via ML"));
    EXPECT_NE(memo.maxLength(), 5);
    memo.setTag(QStringLiteral("return hWnd via ML"));
    EXPECT_EQ(memo.maxLength(), 5);
}

}  // namespace
}  // namespace lumenkit::testing
