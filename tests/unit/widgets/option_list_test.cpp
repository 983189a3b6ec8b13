#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>
#include <lumenkit/widgets/voptlist.h>

#include "tests/unit/widgets/told_messages.h"

namespace lumenkit::testing {
namespace {

using widgets::VOptList;

const QString sizes = QStringLiteral("s;Small|m;Medium|l;Large");

QRadioButton* ButtonOf(VOptList& list, const QString& caption) {
    for (QRadioButton* button : list.findChildren<QRadioButton*>()) {
        if (button->text() == caption && button->isVisible()) {
            return button;
        }
    }
    return nullptr;
}

TEST(OptionListWidget, HasTheDefaultsOfALoadedControl) {
    const VOptList list;
    EXPECT_EQ(list.caption(), QStringLiteral("Frame1"));
    EXPECT_EQ(list.contents(), QStringLiteral("0;Item 0"));
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(list.spacing(), 240);
    EXPECT_EQ(list.borderStyle(), VOptList::FixedSingle);
    EXPECT_EQ(list.itemFontName(), QStringLiteral("MS Sans Serif"));
    EXPECT_EQ(list.itemFontSize(), 8.25);
    EXPECT_EQ(list.itemForeColorValue(), 0x80000012U);
}

TEST(OptionListWidget, KnowsTheSelectionBeforeTheStart) {
    VOptList list(sizes);
    list.setListIndex(1);
    EXPECT_EQ(list.text(), QStringLiteral("m"));
    EXPECT_EQ(list.value(), QStringLiteral("m"));
    list.setListIndex(2);
    EXPECT_EQ(list.text(), QStringLiteral("l"));
    list.setText(QStringLiteral("s"));
    EXPECT_EQ(list.listIndex(), 0);
    list.show();
    EXPECT_EQ(list.listIndex(), 0);
}

TEST(OptionListWidget, RefusesTheLayoutAfterTheStartAndStillTellsIt) {
    const ToldMessages told;
    VOptList list(sizes);
    list.setLeftMargin(120);
    list.setTopMargin(300);
    list.show();
    EXPECT_EQ(list.leftMargin(), 120);
    EXPECT_EQ(list.topMargin(), 300);
    EXPECT_EQ(list.spacing(), 240);
    EXPECT_TRUE(told.Texts().isEmpty());
    const QSignalSpy margins(&list, &VOptList::leftMarginChanged);
    list.setLeftMargin(100);
    EXPECT_EQ(list.leftMargin(), 120);
    EXPECT_EQ(margins.count(), 0);
    ASSERT_EQ(told.Texts().size(), 1);
    EXPECT_TRUE(told.Texts().first().contains(QStringLiteral("382")));
}

TEST(OptionListWidget, ADesignerMaySetTheLayoutAndMayNotSelectByText) {
    const ToldMessages told;
    VOptList list(sizes);
    list.setDesignMode(true);
    list.show();
    list.setLeftMargin(100);
    list.setItemFontBold(true);
    EXPECT_EQ(list.leftMargin(), 100);
    EXPECT_TRUE(list.itemFontBold());
    EXPECT_TRUE(told.Texts().isEmpty());
    list.setText(QStringLiteral("m"));
    ASSERT_EQ(told.Texts().size(), 1);
    EXPECT_TRUE(told.Texts().first().contains(QStringLiteral("387")));
}

TEST(OptionListWidget, AClickSelectsAndTellsAllThatChanges) {
    VOptList list(sizes);
    list.resize(200, 120);
    list.show();
    const QSignalSpy clicks(&list, &VOptList::click);
    const QSignalSpy indexes(&list, &VOptList::listIndexChanged);
    const QSignalSpy texts(&list, &VOptList::textChanged);
    const QSignalSpy values(&list, &VOptList::valueChanged);
    QRadioButton* const medium = ButtonOf(list, QStringLiteral("Medium"));
    ASSERT_NE(medium, nullptr);
    medium->click();
    EXPECT_EQ(clicks.count(), 1);
    ASSERT_EQ(indexes.count(), 1);
    EXPECT_EQ(indexes.first().first(), 1);
    ASSERT_EQ(texts.count(), 1);
    EXPECT_EQ(texts.first().first(), QStringLiteral("m"));
    EXPECT_EQ(values.count(), 1);
}

TEST(OptionListWidget, OtherContentsTellTheLostSelection) {
    VOptList list(sizes);
    list.show();
    list.setListIndex(2);
    const QSignalSpy texts(&list, &VOptList::textChanged);
    list.setContents(QStringLiteral("x;Only"));
    EXPECT_EQ(list.text(), QString());
    EXPECT_EQ(texts.count(), 1);
}

TEST(OptionListWidget, AnItemCaptionIsShownAndNotKept) {
    for (const bool isShown : {false, true}) {
        VOptList list(sizes);
        if (isShown) {
            list.show();
        }
        list.setItemCaption(1, QStringLiteral("Middle"));
        list.setItemCaption(7, QStringLiteral("nowhere"));
        list.show();
        EXPECT_NE(ButtonOf(list, QStringLiteral("Middle")), nullptr);
        EXPECT_EQ(list.contents(), sizes);
    }
}

TEST(OptionListWidget, HasRoomForAllItsButtons) {
    VOptList list(QStringLiteral("1;One|2;A rather long caption of an option|3;Three"));
    list.setTopMargin(300);
    list.resize(list.sizeHint());
    list.show();
    for (const QRadioButton* button : list.findChildren<QRadioButton*>()) {
        if (button->isVisible()) {
            EXPECT_GE(button->width(), button->sizeHint().width()) << qPrintable(button->text());
            EXPECT_LE(button->mapTo(&list, button->rect().bottomRight()).y(), list.height());
        }
    }
}

TEST(OptionListWidget, IsUsedByKeyboard) {
    VOptList list(sizes);
    list.resize(200, 120);
    list.setListIndex(0);
    list.show();
    QApplication::setActiveWindow(&list);
    list.setFocus();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(list.listIndex(), 1);
    EXPECT_TRUE(list.hasFocus());
}

}  // namespace
}  // namespace lumenkit::testing
