// The start page and the Help menu of the designer.
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <fstream>

#include <gmock/gmock.h>

#include "apps/lumenform/design/window/keys_dialog.h"
#include "apps/lumenform/design/window/recent_files.h"
#include "apps/lumenform/design/window/recent_forms.h"
#include "project/lumenkit_classes.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

using lumenform::RecentForms;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class StartPageTest : public OpenedWindow {
 protected:
    RecentForms& Recent() const { return window.Start().Recent(); }
    // Lets the start page show these files.
    void Show(const QStringList& paths) {
        lumenform::RecentFiles recent(settings);
        for (const QString& path : paths) {
            recent.Add(path);
        }

        window.Start().ShowRecent(recent.Existing());
    }
    void WaitForPictures() const {
        ASSERT_TRUE(QTest::qWaitFor([&] { return Recent().IsDrawn(); }));
    }
    QImage Picture(int row) const {
        return Recent().item(row)->icon().pixmap(Recent().iconSize()).toImage();
    }
    QStringList Shown() const {
        QStringList shown;
        for (int row = 0; row < Recent().count(); ++row) {
            shown.append(RecentForms::PathOf(*Recent().item(row)));
        }
        return shown;
    }
    void ClickOn(int row) const {
        const QRect rect = Recent().visualItemRect(Recent().item(row));
        QTest::mouseClick(Recent().viewport(), Qt::LeftButton, {}, rect.center());
        QTest::qWait(0);
    }
    // Returns the actions or the keys in the dialog that are not hidden, with "> " before those of
    // a group.
    static std::vector<std::string> Rows(const lumenform::KeysDialog& dialog, int column) {
        std::vector<std::string> rows;
        const QTreeWidget& keys = dialog.Keys();
        for (int i = 0; i < keys.topLevelItemCount(); ++i) {
            const QTreeWidgetItem& group = *keys.topLevelItem(i);
            for (int j = -1; j < group.childCount() && !group.isHidden(); ++j) {
                const QTreeWidgetItem& row = j < 0 ? group : *group.child(j);
                if (!row.isHidden()) {
                    rows.push_back((j < 0 ? "" : "> ") + row.text(column).toStdString());
                }
            }
        }
        return rows;
    }
};

TEST_F(StartPageTest, WithoutRecentFormsThereIsNoList) {
    EXPECT_FALSE(Recent().isVisible());
}

TEST_F(StartPageTest, HasAPictureOfEachRecentForm) {
    Show({Copy("options"), Copy("label")});
    EXPECT_TRUE(Recent().isVisible());
    EXPECT_EQ(Shown(), (QStringList{Path(QStringLiteral("label.frm")),
                                    Path(QStringLiteral("options.frm"))}));
    WaitForPictures();
    EXPECT_NE(Picture(0), Picture(1));
    const QString parent = QFileInfo(folder.path()).fileName();
    EXPECT_EQ(Recent().item(0)->text(), QStringLiteral("label.frm\n") + parent);
    EXPECT_EQ(Recent().item(0)->toolTip(), Path(QStringLiteral("label.frm")));
}

TEST_F(StartPageTest, AFormThatCannotBeReadHasASign) {
    std::ofstream(File(QStringLiteral("bad.frm"))) << "no form";
    std::ofstream(File(QStringLiteral("worse.frm"))) << "no form either";
    Show({Path(QStringLiteral("bad.frm")), Path(QStringLiteral("worse.frm")), Copy("label")});
    WaitForPictures();
    EXPECT_EQ(Picture(1), Picture(2));
    EXPECT_NE(Picture(0), Picture(1));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(StartPageTest, AClickOpensTheForm) {
    Show({Copy("options"), Copy("label")});
    ClickOn(1);
    ASSERT_NE(window.Current(), nullptr);
    EXPECT_EQ(window.Current()->File().Path(), Path(QStringLiteral("options.frm")));
}

TEST_F(StartPageTest, KeysOpenAndForgetForms) {
    Show({Copy("options"), Copy("label")});
    Recent().setFocus();
    QTest::keyClick(&Recent(), Qt::Key_Delete);
    EXPECT_EQ(Shown(), QStringList{Path(QStringLiteral("options.frm"))});
    EXPECT_TRUE(QFileInfo::exists(Path(QStringLiteral("label.frm")))) << "the file stays";
    QTest::keyClick(&Recent(), Qt::Key_Return);
    ASSERT_NE(window.Current(), nullptr);
    EXPECT_EQ(window.Current()->File().Path(), Path(QStringLiteral("options.frm")));
}

TEST_F(StartPageTest, TheLastFormThatIsClosedIsTheFirstPicture) {
    Show({Copy("options")});
    window.Load(Copy("label"));
    Command(QStringLiteral("Close the form")).trigger();
    ASSERT_TRUE(Recent().isVisible());
    EXPECT_EQ(Shown().front(), Path(QStringLiteral("label.frm")));
    WaitForPictures();
}

TEST_F(StartPageTest, KeysOfCommandsAndGesturesAreListed) {
    bool wasThere = false;
    QTimer::singleShot(0, [&] {
        auto* const dialog =
            qobject_cast<lumenform::KeysDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        wasThere = true;
        EXPECT_THAT(Rows(*dialog, 0),
                    ::testing::IsSupersetOf({"File", "> Open", "Edit", "> Tab order", "Outline"}));
        EXPECT_THAT(Rows(*dialog, 1), ::testing::IsSupersetOf({"> Ctrl+O", "> F5", "> F2"}));
        EXPECT_THAT(Rows(*dialog, 0), Not(Contains("> Lefts"))) << "it has no keys";
        QTest::keyClicks(&dialog->Search(), "tab ORDER");
        EXPECT_THAT(Rows(*dialog, 0), ElementsAre("Edit", "> Tab order"));
        QTest::keyClicks(&dialog->Search(), "x");
        EXPECT_THAT(Rows(*dialog, 0), IsEmpty());
        dialog->close();
    });
    Command(QStringLiteral("Keys and mouse…")).trigger();
    EXPECT_TRUE(wasThere);
}

TEST_F(StartPageTest, AboutTellsTheVersion) {
    std::string told;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        told = (box->text() + u' ' + box->informativeText()).toStdString();
        box->close();
    });
    Command(QStringLiteral("About lumenform")).trigger();
    EXPECT_THAT(told, HasSubstr(qVersion()));
    EXPECT_THAT(told, ::testing::ContainsRegex("lumenform [0-9]+[.][0-9]+[.][0-9]+"));
}

}  // namespace
}  // namespace lumenkit::testing
