// The reach of the designer: every part by keyboard, with a name for screen readers, on small
// screens.
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <set>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/page_dialog.h"
#include "apps/lumenform/design/window/keys_dialog.h"
#include "apps/lumenform/run/event_log.h"
#include "tests/apps/lumenform/opened_window.h"

namespace lumenkit::testing {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;

constexpr QSize smallScreen(560, 400);

// Parts of Qt's own widgets: the buttons of a line, the tabs' arrows, the corner of a table.
bool IsInside(const QWidget& widget) {
    const QWidget* const parent = widget.parentWidget();
    return widget.objectName().startsWith(QStringLiteral("qt_")) ||
           qobject_cast<const QLineEdit*>(parent) != nullptr ||
           qobject_cast<const QTabBar*>(parent) != nullptr ||
           qobject_cast<const QComboBox*>(parent) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
           qobject_cast<const QAbstractItemView*>(parent) != nullptr;
}

bool TakesTheKeyboard(const QWidget& widget) {
    return widget.isEnabled() && widget.isVisible() && widget.focusProxy() == nullptr &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

std::string NameOf(const QWidget& widget) {
    return widget.metaObject()->className() + (" " + widget.objectName().toStdString());
}

// Returns the buttons and the widgets with the keyboard that screen readers cannot name. The form's
// own controls have the names of the form.
std::vector<std::string> Nameless(const QWidget& window, const QWidget* form) {
    std::vector<std::string> nameless;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool isButton = qobject_cast<QAbstractButton*>(widget) != nullptr;
        if (!widget->isVisible() || widget->window() != &window || IsInside(*widget) ||
            (form != nullptr && form->isAncestorOf(widget)) ||
            (!isButton && !TakesTheKeyboard(*widget))) {
            continue;
        }
        QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
        if (spoken == nullptr || spoken->text(QAccessible::Name).isEmpty()) {
            nameless.push_back(NameOf(*widget));
        }
    }
    return nameless;
}

// Returns the inputs that neither Tab, Shift+Tab nor F6 reaches.
std::vector<std::string> Unreached(QWidget& window, const QWidget* form) {
    std::set<const QWidget*> reached;
    const auto walk = [&](Qt::Key key) {
        constexpr int most = 200;
        for (int step = 0; step < most; ++step) {
            QWidget* const focus = window.focusWidget();
            if (focus == nullptr || (!reached.insert(focus).second && step > 0)) {
                return;
            }
            QTest::keyClick(focus, key);
        }
    };
    constexpr int parts = 8;
    for (int part = 0; part < parts; ++part) {
        QWidget* const start = window.focusWidget();
        walk(Qt::Key_Tab);
        if (start != nullptr) {
            start->setFocus();
        }
        walk(Qt::Key_Backtab);
        if (start != nullptr) {
            start->setFocus();
        }
        QTest::keyClick(&window, Qt::Key_F6);
    }
    std::vector<std::string> unreached;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (TakesTheKeyboard(*widget) && widget->window() == &window && !IsInside(*widget) &&
            (form == nullptr || !form->isAncestorOf(widget)) && !reached.contains(widget)) {
            unreached.push_back(NameOf(*widget));
        }
    }
    return unreached;
}

class Reach : public OpenedWindow {
 protected:
    // Checks the dialog that `open` opens, and closes it.
    template <typename Open>
    static void Check(const Open& open) {
        bool wasThere = false;
        const auto look = [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr || wasThere) {
                return;
            }
            wasThere = true;
            CheckDialog(*dialog);
            dialog->close();
        };
        QTimer::singleShot(0, look);
        open();
        if (!wasThere) {
            look();
        }
        EXPECT_TRUE(wasThere);
        QTest::qWait(0);
    }
    static void CheckDialog(QWidget& dialog) {
        SCOPED_TRACE(dialog.windowTitle().toStdString());
        dialog.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&dialog));
        if (dialog.focusWidget() == nullptr) {
            QTest::keyClick(&dialog, Qt::Key_Tab);
        }
        EXPECT_THAT(Nameless(dialog, nullptr), IsEmpty());
        EXPECT_THAT(Unreached(dialog, nullptr), IsEmpty());
        const QSize least = dialog.minimumSizeHint().expandedTo(dialog.minimumSize());
        EXPECT_LE(least.width(), smallScreen.width());
        EXPECT_LE(least.height(), smallScreen.height());
        EXPECT_LE(dialog.frameGeometry().width(), dialog.screen()->availableSize().width());
        EXPECT_LE(dialog.frameGeometry().height(), dialog.screen()->availableSize().height());
    }
    void CheckWindow() {
        const QWidget* const form = window.Bench() == nullptr ? nullptr : &Design().View();
        EXPECT_THAT(Nameless(window, form), IsEmpty());
        EXPECT_THAT(Unreached(window, form), IsEmpty());
        const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
        EXPECT_LE(least.width(), 640);
        EXPECT_LE(least.height(), 400);
    }
    void Press(int key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), held);
    }
    lumenform::Workbench& Bench() const { return *window.Bench(); }
};

// ---- Windows

TEST_F(Reach, OfTheStartPage) {
    CheckWindow();
}

TEST_F(Reach, OfTheForm) {
    window.Load(Copy("order"));
    CheckWindow();
}

TEST_F(Reach, OfTheBars) {
    window.Load(Copy("order"));
    std::ofstream(File(QStringLiteral("order.frm")), std::ios::app) << "' by others\r\n";
    window.Current()->LookAtDisk();
    ASSERT_TRUE(window.Current()->Bar().isVisible());
    CheckWindow();
    for (const QPushButton* const button : window.Current()->Bar().findChildren<QPushButton*>()) {
        EXPECT_TRUE(button->text().contains(u'&')) << button->text().toStdString();
    }
}

TEST_F(Reach, OfTheCode) {
    window.Load(Copy("code"));
    window.Current()->ShowCode();
    Press(Qt::Key_F, Qt::ControlModifier);
    CheckWindow();
}

TEST_F(Reach, OfATrialRun) {
    window.Load(Copy("order"));
    const QSize former = window.size();
    window.resize(640, 400);
    window.Run(true);
    EXPECT_THAT(Nameless(window, &window.Running()->View()), IsEmpty());
    const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
    EXPECT_LE(least.width(), 640);
    EXPECT_LE(least.height(), 400);
    EXPECT_EQ(window.size(), QSize(640, 400)) << "the run does not widen the window";
    window.resize(former);
}

// ---- Dialogs

TEST_F(Reach, OfTheKeys) {
    Check([&] { Command(QStringLiteral("Keys and mouse…")).trigger(); });
}

TEST_F(Reach, OfAbout) {
    Check([&] { Command(QStringLiteral("About lumenform")).trigger(); });
}

TEST_F(Reach, OfTheMenus) {
    window.Load(Copy("menus"));
    Check([&] { Bench().EditMenus(); });
}

TEST_F(Reach, OfTheEditorsOfProperties) {
    window.Load(Copy("order"));
    Select(u"memPrint");
    const auto more = [&](TextView name) {
        return [this, name] {
            lumenform::PropertyTable& table = Bench().Properties().Table();
            table.setFocus();
            table.GoTo(Bench().Properties().Model().Find(name));
            QTest::keyClick(&table, Qt::Key_F4);
        };
    };
    Check(more(u"ForeColor"));
    Check(more(u"Text"));
    Select(u"optSize");
    Check(more(u"Contents"));
    Design().Select({});
    Check(more(u"Picture"));
}

TEST_F(Reach, OfTheQuestions) {
    window.Load(Copy("order"));
    Select(u"memPrint");
    Nudge();
    Check([&] { window.MayLeave(); });
}

TEST_F(Reach, OfTheCaptionPage) {
    window.Load(Copy("order"));
    Select(u"lblWelcome");
    Bench().EditSelected();
    auto* const dialog = Bench().findChild<lumenform::PageDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_THAT(Nameless(*dialog, nullptr), IsEmpty());
    dialog->close();
}

// ---- Keys

TEST_F(Reach, F6GoesRoundTheParts) {
    window.Load(Copy("order"));
    const QList<QWidget*> parts{&Bench().GetCanvas(), &Bench().GetOutline(), &Bench().Properties(),
                                &Bench().GetToolbox(), &Bench().GetCanvas()};
    const auto isAt = [](const QWidget& part) {
        return part.isAncestorOf(QApplication::focusWidget());
    };
    for (qsizetype at = 0; at < parts.size(); ++at) {
        EXPECT_TRUE(isAt(*parts[at])) << at;
        Press(Qt::Key_F6);
    }
    for (qsizetype at = 1; at < parts.size(); ++at) {
        Press(Qt::Key_F6, Qt::ShiftModifier);
    }
    EXPECT_TRUE(isAt(Bench().GetOutline())) << "back from the place after the canvas";
}

TEST_F(Reach, F10OpensTheMenus) {
    window.Load(Copy("order"));
    Press(Qt::Key_F10);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), window.menuBar()->actions().front()->menu());
    QApplication::activePopupWidget()->close();
    window.menuBar()->setActiveAction(nullptr);
}

TEST_F(Reach, ShiftF10OpensTheContextMenuOfEachPart) {
    window.Load(Copy("order"));
    Select(u"memPrint");
    Bench().GetToolbox().List().setCurrentRow(2);
    const QList<QWidget*> parts{&Bench().GetCanvas().GetGlass(), &Bench().GetOutline().Tree(),
                                &Bench().Properties().Table(), &Bench().GetToolbox().List()};
    for (QWidget* const part : parts) {
        part->setFocus();
        Press(Qt::Key_F10, Qt::ShiftModifier);
        QWidget* const menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr) << part->metaObject()->className();
        EXPECT_TRUE(menu->inherits("QMenu"));
        menu->close();
    }
}

// Returns the keys of a row such as "Ctrl+C, Ctrl+Y".
QStringList KeysOfRow(const QTreeWidgetItem& row) {
    return row.text(1).split(QStringLiteral(", "));
}

class Keys : public Reach {
 protected:
    Keys() {
        QList<QMenu*> menus;
        for (const QAction* const action : window.menuBar()->actions()) {
            menus.append(action->menu());
        }
        dialog_ = std::make_unique<lumenform::KeysDialog>(menus, nullptr);
    }
    std::vector<const QTreeWidgetItem*> Rows() const {
        std::vector<const QTreeWidgetItem*> rows;
        const QTreeWidget& keys = dialog_->Keys();
        for (int group = 0; group < keys.topLevelItemCount(); ++group) {
            for (int row = 0; row < keys.topLevelItem(group)->childCount(); ++row) {
                rows.push_back(keys.topLevelItem(group)->child(row));
            }
        }
        return rows;
    }
    QStringList All() const {
        QStringList all;
        for (const QTreeWidgetItem* const row : Rows()) {
            all += KeysOfRow(*row);
        }
        return all;
    }

    std::unique_ptr<lumenform::KeysDialog> dialog_;
};

TEST_F(Keys, EveryShortcutIsListed) {
    const QString listed = All().join(u' ');
    for (const QAction* const action : window.findChildren<QAction*>()) {
        for (const QKeySequence& keys : action->shortcuts()) {
            const QString text =
                keys.toString().replace(QStringLiteral("Return"), QStringLiteral("Enter"));
            EXPECT_TRUE(listed.contains(text)) << text.toStdString();
        }
    }
    for (const QShortcut* const shortcut : window.findChildren<QShortcut*>()) {
        EXPECT_TRUE(listed.contains(shortcut->key().toString()))
            << shortcut->key().toString().toStdString();
    }
    EXPECT_TRUE(listed.contains(QStringLiteral("F12")));
    EXPECT_TRUE(listed.contains(QStringLiteral("Shift+F3")));
    EXPECT_TRUE(listed.contains(QStringLiteral("Ins")));
}

TEST_F(Keys, NoTwoCommandsShareAShortcut) {
    std::map<QString, const QAction*> owners;
    for (const QAction* const action : window.findChildren<QAction*>()) {
        for (const QKeySequence& keys : action->shortcuts()) {
            const auto [owner, isNew] = owners.emplace(keys.toString(), action);
            EXPECT_TRUE(isNew || owner->second == action) << keys.toString().toStdString();
        }
    }
    EXPECT_GT(owners.size(), 20U);
}

TEST_F(Keys, AreNamedAlike) {
    EXPECT_THAT(All().filter(QStringLiteral("Return")), IsEmpty());
    EXPECT_EQ(All().count(QStringLiteral("F7")), 1);
}

TEST_F(Keys, OfUndoHaveAStableTitle) {
    window.Load(Copy("order"));
    Select(u"memPrint");
    Nudge();
    EXPECT_EQ(window.Commands().UndoAction().text().left(5), QStringLiteral("&Undo"));
    EXPECT_EQ(window.Commands().RedoAction().text().left(5), QStringLiteral("R&edo"));
    const lumenform::KeysDialog dialog({&window.Commands().EditMenu()}, nullptr);
    EXPECT_EQ(dialog.Keys().findItems(QStringLiteral("Undo"), Qt::MatchRecursive).size(), 1);
}

}  // namespace
}  // namespace lumenkit::testing
