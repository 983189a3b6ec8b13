// Sessions with several forms, the start page and the help.
#include <QApplication>
#include <QCommandLinkButton>
#include <QMessageBox>
#include <QTabBar>
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/design/window/keys_dialog.h"
#include "tests/apps/lumenform/sessions/session.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {
namespace {

using ::testing::HasSubstr;

class TabSession : public UserSession {
 protected:
    QTabBar& Bar() const { return *window.Tabs().tabBar(); }
    void ClickTab(int index) const {
        QTest::mouseClick(&Bar(), Qt::LeftButton, {}, Bar().tabRect(index).center());
    }
    static std::vector<std::string> Titles(const QTabBar& bar) {
        std::vector<std::string> titles;
        for (int index = 0; index < bar.count(); ++index) {
            titles.push_back(bar.tabText(index).toStdString());
        }
        return titles;
    }
};

TEST_F(TabSession, EachFormHasItsTabAndIsAskedFor) {
    Copy("label");
    Copy("memo");
    Open(QStringLiteral("label.frm"));
    Click(u"VLabel1");
    Key(Qt::Key_Right);
    const std::string label = Text();
    Open(QStringLiteral("memo.frm"));
    EXPECT_THAT(Titles(Bar()), ::testing::ElementsAre("label.frm*", "memo.frm"));
    Open(QStringLiteral("label.frm"));
    EXPECT_EQ(Bar().count(), 2) << "it is open already";
    EXPECT_EQ(Bar().currentIndex(), 0);
    ClickTab(1);
    {
        Replies replies;
        replies.Press(QStringLiteral("Save"));
        EXPECT_TRUE(window.close());
        EXPECT_THAT(replies.said.front(), HasSubstr("Save the changes to label.frm?"));
    }
    EXPECT_EQ(Stored(QStringLiteral("label.frm")), label);
    EXPECT_EQ(Stored(QStringLiteral("memo.frm")), FileBytes(sampleForms / "memo.frm"));
}

TEST_F(TabSession, TheStartPageOpensARecentFormByItsPicture) {
    Copy("label");
    Copy("memo");
    for (const QString& name : {QStringLiteral("memo.frm"), QStringLiteral("label.frm")}) {
        Open(name);
        CloseForm();
    }
    lumenform::RecentForms& recent = window.Start().Recent();
    ASSERT_TRUE(recent.isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return recent.IsDrawn(); }));
    ASSERT_EQ(recent.count(), 2);
    const auto picture = [&](int row) {
        return recent.item(row)->icon().pixmap(recent.iconSize()).toImage();
    };
    EXPECT_NE(picture(0), picture(1));
    QTest::mouseClick(recent.viewport(), Qt::LeftButton, {},
                      recent.visualItemRect(recent.item(1)).center());
    QTest::qWait(0);
    EXPECT_EQ(Title(), "memo.frm[*] – lumenform");
    CloseForm();
    QTest::mouseClick(window.Start().findChildren<QCommandLinkButton*>().back(), Qt::LeftButton);
    EXPECT_EQ(Title(), "Form1.frm[*] – lumenform");
}

TEST_F(TabSession, HelpListsTheKeysAndTellsTheVersion) {
    {
        Replies replies;
        replies.Look([](QWidget& shown) {
            auto* const dialog = qobject_cast<lumenform::KeysDialog*>(&shown);
            ASSERT_NE(dialog, nullptr);
            QTest::keyClicks(&dialog->Search(), "run the form");
            QStringList seen;
            for (int row = 0; row < dialog->Keys().topLevelItemCount(); ++row) {
                const QTreeWidgetItem& group = *dialog->Keys().topLevelItem(row);
                for (int line = 0; line < group.childCount() && !group.isHidden(); ++line) {
                    if (!group.child(line)->isHidden()) {
                        seen.append(group.child(line)->text(1));
                    }
                }
            }
            EXPECT_EQ(seen, QStringList{QStringLiteral("F5")});
        });
        Key(Qt::Key_F1);
    }
    Replies replies;
    replies.Press(QStringLiteral("Close"));
    Command(QStringLiteral("About lumenform")).trigger();
    EXPECT_THAT(replies.said.front(), HasSubstr(qVersion()));
}

}  // namespace
}  // namespace lumenkit::testing
