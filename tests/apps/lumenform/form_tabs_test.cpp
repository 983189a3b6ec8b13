// Several forms in the designer's window, and files that other programs change.
#include <QDir>
#include <QFile>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <fstream>

#include <gmock/gmock.h>

#include "apps/lumenform/design/window/difference_dialog.h"
#include "forms/code_page.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/answer.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class FormTabs : public OpenedWindow {
 protected:
    QTabBar& Bar() const { return *window.Tabs().tabBar(); }
    // Another program appends a line to a form.
    void ChangeOutside(const QString& name) const {
        std::ofstream(File(name), std::ios::app) << "' by others\r\n";
    }
    void Press(const QString& title) const {
        for (QPushButton* button : window.Current()->Bar().findChildren<QPushButton*>()) {
            if (button->text().remove(u'&') == title) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        FAIL() << "no button " << title.toStdString();
    }
};

TEST_F(FormTabs, EachFormHasATab) {
    window.Load(Copy("label"));
    EXPECT_FALSE(Bar().isVisible()) << "one form needs no tabs";
    window.Load(Copy("memo"));
    EXPECT_TRUE(Bar().isVisible());
    ASSERT_EQ(Bar().count(), 2);
    EXPECT_EQ(Bar().tabText(0), QStringLiteral("label.frm"));
    EXPECT_EQ(Bar().tabText(1), QStringLiteral("memo.frm"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("memo.frm[*] – lumenform"));
    QTest::mouseClick(&Bar(), Qt::LeftButton, {}, Bar().tabRect(0).center());
    EXPECT_EQ(window.windowTitle(), QStringLiteral("label.frm[*] – lumenform"));
    Select(u"VLabel1");
    Nudge();
    EXPECT_EQ(Bar().tabText(0), QStringLiteral("label.frm*"));
    QTest::mouseClick(&Bar(), Qt::LeftButton, {}, Bar().tabRect(1).center());
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_FALSE(window.Commands().UndoAction().isEnabled()) << "each form has a history";
    QTest::mouseClick(&Bar(), Qt::LeftButton, {}, Bar().tabRect(0).center());
    EXPECT_TRUE(window.Commands().UndoAction().isEnabled());
}

TEST_F(FormTabs, AFormIsOpenOnce) {
    const QString path = Copy("label");
    window.Load(path);
    window.Load(Copy("memo"));
    window.Load(folder.path() + QStringLiteral("/../") + QFileInfo(folder.path()).fileName() +
                QStringLiteral("/label.frm"));
    EXPECT_EQ(Bar().count(), 2);
    EXPECT_EQ(Bar().currentIndex(), 0);
}

TEST_F(FormTabs, NewFormsHaveDifferentNames) {
    window.StartNew();
    window.StartNew();
    EXPECT_EQ(Bar().tabText(0), QStringLiteral("Form1.frm"));
    EXPECT_EQ(Bar().tabText(1), QStringLiteral("Form2.frm"));
}

TEST_F(FormTabs, ClosingAsksForTheFormThatIsClosed) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    Nudge();
    window.Load(Copy("memo"));
    {
        Answer answer(QStringLiteral("Cancel"));
        Q_EMIT window.Tabs().tabCloseRequested(0);
        EXPECT_THAT(answer.said, HasSubstr("Save the changes to label.frm?"));
    }
    EXPECT_EQ(Bar().count(), 2);
    Q_EMIT window.Tabs().tabCloseRequested(1);
    EXPECT_EQ(Bar().count(), 1);
    {
        const Answer answer(QStringLiteral("Discard"));
        Q_EMIT window.Tabs().tabCloseRequested(0);
    }
    EXPECT_EQ(Bar().count(), 0);
    EXPECT_TRUE(window.Start().isVisible());
    EXPECT_FALSE(window.Commands().UndoAction().isEnabled());
}

TEST_F(FormTabs, TheWindowAsksForEachChangedForm) {
    for (const char* name : {"label", "order"}) {
        window.Load(Copy(name));
        Design().Select({Design().View().Controls().front().get()});
        Nudge();
    }
    window.Load(Copy("memo"));
    const std::string before = FileBytes(File(QStringLiteral("order.frm")));
    Bar().setCurrentIndex(1);
    EXPECT_TRUE(window.Save());
    EXPECT_NE(FileBytes(File(QStringLiteral("order.frm"))), before);
    Answer answer(QStringLiteral("Cancel"));
    EXPECT_FALSE(window.close());
    EXPECT_THAT(answer.said, HasSubstr("label.frm"));
    EXPECT_EQ(Bar().currentIndex(), 0) << "the question is about the form that is seen";
}

TEST_F(FormTabs, ANameOfAnotherTabIsRefused) {
    window.Load(Copy("memo"));
    const std::string before = FileBytes(File(QStringLiteral("memo.frm")));
    window.Load(Copy("label"));
    Answer answer(QStringLiteral("Close"));
    EXPECT_FALSE(window.SaveTo(Path(QStringLiteral("memo.frm")), forms::Replacing::Confirmed));
    EXPECT_THAT(answer.said, HasSubstr("memo.frm is open in another tab."));
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frm"))), before);
}

// ---- Changes by other programs

TEST_F(FormTabs, AChangeOutsideIsTold) {
    window.Load(Copy("label"));
    window.Current()->LookAtDisk();
    EXPECT_FALSE(window.Current()->Bar().isVisible());
    ChangeOutside(QStringLiteral("label.frm"));
    window.Load(Copy("memo"));
    Bar().setCurrentIndex(0);
    EXPECT_TRUE(window.Current()->Bar().isVisible());
}

TEST_F(FormTabs, AFileThatIsGoneIsUnsavedWork) {
    const QString path = Copy("label");
    window.Load(path);
    const std::string before = Text();
    ASSERT_TRUE(QFile::remove(path));
    window.Current()->LookAtDisk();
    EXPECT_TRUE(window.Current()->Bar().isVisible());
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), before);
    EXPECT_FALSE(window.Current()->Bar().isVisible());
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(FormTabs, ClosingAFormWhoseFileIsGoneAsks) {
    const QString path = Copy("label");
    window.Load(path);
    ASSERT_TRUE(QFile::remove(path));
    const Answer answer(QStringLiteral("Cancel"));
    Command(QStringLiteral("Close the form")).trigger();
    EXPECT_THAT(answer.said, HasSubstr("Save the changes to label.frm?"));
    EXPECT_NE(window.Current(), nullptr);
}

TEST_F(FormTabs, FormsOfOneNameShowTheirFolders) {
    window.Load(Copy("label"));
    EXPECT_EQ(window.Tabs().tabText(0), QStringLiteral("label.frm"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("other")));
    ASSERT_TRUE(
        QFile::copy(Path(QStringLiteral("label.frm")), Path(QStringLiteral("other/label.frm"))));
    window.Load(Path(QStringLiteral("other/label.frm")));
    EXPECT_EQ(window.Tabs().tabText(1), QStringLiteral("label.frm (other)"));
    EXPECT_NE(window.Tabs().tabText(0), QStringLiteral("label.frm"));
    EXPECT_THAT(window.windowTitle().toStdString(), HasSubstr("label.frm (other)"));
}

TEST_F(FormTabs, AnUndoLeadsBackAcrossAReloadInAnotherEncoding) {
    const QString path = Copy("umlauts");
    window.Load(path);
    const std::string before = Text();
    const std::string utf8 = ToUtf8(forms::CodePage(1252).Decode(before));
    std::ofstream(File(QStringLiteral("umlauts.frm")), std::ios::binary) << "\xEF\xBB\xBF" << utf8;
    window.Current()->LookAtDisk();
    Q_EMIT window.Current()->Bar().ReloadWanted();
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Text(), before);
}

TEST_F(FormTabs, AReloadReadsTheFileInItsOwnEncoding) {
    window.Load(Copy("umlauts"));
    Design().WriteIn(65001);
    ChangeOutside(QStringLiteral("umlauts.frm"));
    window.Current()->LookAtDisk();
    Press(QStringLiteral("Reload"));
    EXPECT_EQ(Design().Document().FormCodePage(), 1252);
    EXPECT_EQ(Text(), FileBytes(File(QStringLiteral("umlauts.frm"))));
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Design().Document().FormCodePage(), 65001);
}

TEST_F(FormTabs, ReloadTakesTheFileAndUndoBringsTheFormBack) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    Nudge();
    const std::string mine = Text();
    ChangeOutside(QStringLiteral("label.frm"));
    const std::string theirs = FileBytes(File(QStringLiteral("label.frm")));
    window.Current()->LookAtDisk();
    Press(QStringLiteral("Reload"));
    EXPECT_EQ(Text(), theirs);
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_FALSE(window.Current()->Bar().isVisible());
    EXPECT_EQ(Design().SelectedNames(), std::vector{lumenkit::Text(u"VLabel1")});
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Text(), mine);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), mine);
}

TEST_F(FormTabs, KeepMineLetsTheNextSaveReplaceTheFile) {
    window.Load(Copy("memo"));
    const std::string mine = Text();
    ChangeOutside(QStringLiteral("memo.frm"));
    ChangeOutside(QStringLiteral("memo.frx"));
    window.Current()->LookAtDisk();
    Press(QStringLiteral("Keep mine"));
    EXPECT_FALSE(window.Current()->Bar().isVisible());
    EXPECT_TRUE(window.isWindowModified()) << "the file is another one";
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frm"))), mine);
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frx"))),
              FileBytes(sampleForms / "memo.frx") + "' by others\r\n")
        << "other forms may use what was added to the companion";
}

TEST_F(FormTabs, TheDifferenceIsThatOfTheTextsAndNamesTheCodePages) {
    const QString path = Copy("umlauts");
    window.Load(path);
    Design().WriteIn(65001);
    EXPECT_EQ(lumenform::DifferenceOnDisk(Design().Document(), path).toStdString(),
              "The file is written in Western European, code page 1252, and your version in "
              "Unicode (UTF-8), code page 65001.\n");
}

TEST_F(FormTabs, TheDifferenceShowsBothVersions) {
    const QString path = Copy("label");
    window.Load(path);
    EXPECT_EQ(lumenform::DifferenceOnDisk(Design().Document(), path), QString());
    Select(u"VLabel1");
    Nudge();
    ChangeOutside(QStringLiteral("label.frm"));
    const std::string shown = lumenform::DifferenceOnDisk(Design().Document(), path).toStdString();
    EXPECT_THAT(shown, HasSubstr("-' by others"));
    EXPECT_THAT(shown, HasSubstr("+      Left            =   "));
    EXPECT_THAT(shown, Not(HasSubstr("companion")));
}

TEST_F(FormTabs, SavingOverAChangeOutsideDoesNothingByDefault) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    Nudge();
    ChangeOutside(QStringLiteral("label.frm"));
    const std::string theirs = FileBytes(File(QStringLiteral("label.frm")));
    bool wasAsked = false;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        wasAsked = true;
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_FALSE(window.Save());
    EXPECT_TRUE(wasAsked);
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), theirs);
    const Answer answer(QStringLiteral("Reload"));
    EXPECT_FALSE(window.Save());
    EXPECT_EQ(Text(), theirs);
}

// ---- Running

TEST_F(FormTabs, TheFormThatRunsHasTheKeys) {
    window.Load(Copy("order"));
    window.Run(true);
    EXPECT_FALSE(window.menuBar()->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "there is no File menu now";
    const int tabs = Bar().count();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_W, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(Bar().count(), tabs);
    ASSERT_NE(window.Running(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F5);
    EXPECT_EQ(window.Running(), nullptr);
    EXPECT_TRUE(window.menuBar()->isVisible());
}

}  // namespace
}  // namespace lumenkit::testing
