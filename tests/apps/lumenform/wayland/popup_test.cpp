// Menus and lists: each opens where it belongs, and the pointer reaches it there.
#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

#include "tests/apps/lumenform/wayland/session.h"

namespace lumenkit::testing {
namespace {

constexpr int rightButton = 3;

QMenu* OpenMenu() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

bool MenuOpens() {
    return Soon([] { return OpenMenu() != nullptr; });
}

bool MenuCloses() {
    return Soon([] { return OpenMenu() == nullptr; });
}

// Chooses the command of the open menu whose title begins like this.
void Choose(Person& person, const QString& title) {
    QMenu* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
        if (action->text().remove(u'&').startsWith(title)) {
            ASSERT_TRUE(action->isEnabled()) << title.toStdString();
            person.Click(*menu, menu->actionGeometry(action).center());
            return;
        }
    }
    FAIL() << "no command " << title.toStdString();
}

// Returns the distance from the point to the menu's corner; 0 if the menu opened there.
int Distance(Person& person, const QWidget& menu, const QWidget& widget, QPoint at) {
    const QPoint corner = person.PlaceOf(menu).topLeft();
    return (corner - person.PlaceOf(widget).topLeft() - at).manhattanLength();
}

class PopupOnWayland : public RunSession {};

TEST_F(PopupOnWayland, TheMenuOfAMemoOpensAtThePointer) {
    Automation(u"Lower").Let(u"Text", Text(u"text"));
    const QPoint at(40, 20);
    person.Click(Box(u"Lower"), at, rightButton);
    ASSERT_TRUE(MenuOpens());
    EXPECT_LE(Distance(person, *OpenMenu(), Box(u"Lower"), at), 4);
    Choose(person, QStringLiteral("Select All"));
    EXPECT_TRUE(MenuCloses());
    Person::Type(QStringLiteral("x"));
    EXPECT_EQ(Awaited([&] { return TextOf(u"Lower"); }, "x"), "x") << "instead of all the text";
}

TEST_F(PopupOnWayland, EscAndAClickElsewhereCloseIt) {
    person.Click(Box(u"Lower"), QPoint(40, 20), rightButton);
    ASSERT_TRUE(MenuOpens());
    Person::Press(QStringLiteral("Escape"));
    EXPECT_TRUE(MenuCloses());
    // Not at the same point, where it would be a double click.
    person.Click(Box(u"Lower"), QPoint(120, 50), rightButton);
    ASSERT_TRUE(MenuOpens());
    person.ClickBehindPopup(Box(u"Upper"), QPoint(200, 60));
    EXPECT_TRUE(MenuCloses());
    EXPECT_TRUE(Soon([&] { return window.isActiveWindow(); }));
}

class DesignPopupOnWayland : public DesignSession {};

TEST_F(DesignPopupOnWayland, TheMenuOfAControlOpensAtThePointer) {
    const QPoint at = MiddleOf(u"Notes");
    person.Click(Glass(), at, rightButton);
    ASSERT_TRUE(MenuOpens());
    EXPECT_EQ(Selected(), "Notes");
    EXPECT_LE(Distance(person, *OpenMenu(), Glass(), at), 4);
    Choose(person, QStringLiteral("Duplicate"));
    EXPECT_EQ(Awaited([&] { return Selected(); }, "Notes1"), "Notes1");
}

TEST_F(DesignPopupOnWayland, AMenuOfTheBarOpensBelowItsTitle) {
    QAction* const edit = window.Commands().EditMenu().menuAction();
    const QRect title = window.menuBar()->actionGeometry(edit);
    person.Click(*window.menuBar(), title.center());
    ASSERT_TRUE(MenuOpens());
    ASSERT_EQ(OpenMenu(), &window.Commands().EditMenu());
    EXPECT_LE(Distance(person, *OpenMenu(), *window.menuBar(), title.bottomLeft() + QPoint(0, 1)),
              4);
    Choose(person, QStringLiteral("Select all"));
    EXPECT_EQ(Awaited([&] { return Selected(); }, "Title Notes"), "Title Notes");
}

TEST_F(DesignPopupOnWayland, AMenuInAMenuOpensBesideIt) {
    Design().SelectNamed({Text(u"Title"), Text(u"Notes")});
    Control(u"Notes").Move({600, 1200, 2400, 900});
    QMenu* format = nullptr;
    for (QAction* action : window.menuBar()->actions()) {
        format = action->text().remove(u'&') == QStringLiteral("Format") ? action->menu() : format;
    }
    ASSERT_NE(format, nullptr);
    person.Click(*window.menuBar(),
                 window.menuBar()->actionGeometry(format->menuAction()).center());
    ASSERT_TRUE(MenuOpens());
    Choose(person, QStringLiteral("Align"));
    ASSERT_TRUE(Soon([&] { return OpenMenu() != format && OpenMenu() != nullptr; }));
    EXPECT_GE(person.PlaceOf(*OpenMenu()).left(), person.PlaceOf(*format).right() - 8);
    Choose(person, QStringLiteral("Lefts"));
    EXPECT_TRUE(
        Soon([&] { return Control(u"Notes").Place().left == Control(u"Title").Place().left; }));
}

TEST_F(DesignPopupOnWayland, AListOpensOverItsCellAndIsChosenFrom) {
    Design().SelectNamed({Text(u"Title")});
    lumenform::PropertyTable& table = window.Bench()->Properties().Table();
    const lumenform::PropertyModel& model = window.Bench()->Properties().Model();
    const int row = model.Find(u"WordWrap");
    ASSERT_GE(row, 0);
    const QModelIndex cell = model.index(row, lumenform::PropertyModel::ValueColumn);
    ASSERT_EQ(cell.data().toString(), QStringLiteral("False"));
    table.scrollTo(cell);
    const QRect place = table.visualRect(cell);
    person.Click(*table.viewport(), place.center());
    const auto editor = [&] { return table.viewport()->findChild<QComboBox*>(); };
    ASSERT_TRUE(Soon([&] { return editor() != nullptr && editor()->isVisible(); }));
    QComboBox* const box = editor();
    person.Click(*box, QPoint(box->width() - 8, box->height() / 2));
    ASSERT_TRUE(Soon([&] { return box->view()->isVisible(); }));
    const QRect list = person.PlaceOf(*box->view());
    EXPECT_TRUE(list.adjusted(-4, -4, 4, 4).intersects(person.PlaceOf(*box)));
    QAbstractItemView& view = *box->view();
    const QModelIndex entry = view.model()->index(box->findText(QStringLiteral("True")), 0);
    ASSERT_TRUE(entry.isValid());
    person.Click(*view.viewport(), view.visualRect(entry).center());
    EXPECT_TRUE(Soon([&] { return cell.data().toString() == QStringLiteral("True"); }));
}

}  // namespace
}  // namespace lumenkit::testing
