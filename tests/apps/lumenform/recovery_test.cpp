// Unsaved work after the designer ended unexpectedly.
#include <QDir>
#include <QFile>
#include <QTest>
#include <fstream>
#include <set>

#include <gmock/gmock.h>

#include "apps/lumenform/design/recovery/recovery_store.h"
#include "tests/apps/lumenform/abandoned_work.h"
#include "tests/apps/lumenform/answer.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/apps/lumenform/replies.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {
namespace {

using ::testing::HasSubstr;

class Recovery : public OpenedWindow {
 protected:
    QString Store() const { return Path(QStringLiteral("recovery")); }
    QStringList Copies() const {
        return QDir(Store()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }
    void Kill() const { LeaveBehind(Store()); }
    void CloseUnsaved() const {
        const Answer discard(QStringLiteral("Discard"));
        Command(QStringLiteral("Close the form")).trigger();
    }
    void Change() const {
        Select(u"VMemo1");
        Nudge();
        window.Current()->KeepCopy();
    }
};

TEST_F(Recovery, UnsavedWorkHasACopyUntilItIsSaved) {
    window.Load(Copy("memo"));
    EXPECT_THAT(Copies().size(), 0);
    Change();
    EXPECT_THAT(Copies().size(), 1);
    EXPECT_TRUE(lumenform::AbandonedWork(Store()).empty()) << "this program has it";
    Nudge();
    window.Current()->KeepCopy();
    EXPECT_THAT(Copies().size(), 1);
    EXPECT_TRUE(window.Save());
    EXPECT_THAT(Copies().size(), 0);
    Change();
    Design().History().undo();
    EXPECT_THAT(Copies().size(), 0);
    Change();
    const Answer answer(QStringLiteral("Discard"));
    Command(QStringLiteral("Close the form")).trigger();
    EXPECT_THAT(Copies().size(), 0);
}

TEST_F(Recovery, ACopyFollowsAMomentAfterAChange) {
    window.Load(Copy("memo"));
    Select(u"VMemo1");
    Nudge();
    EXPECT_THAT(Copies().size(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Copies().size() == 1; }, 10000));
}

TEST_F(Recovery, WorkLeftBehindIsOpenedAsAChangeToItsFile) {
    window.Load(Copy("memo"));
    const std::string before = Text();
    Change();
    const std::string changed = Text();
    Kill();
    CloseUnsaved();
    Answer answer(QStringLiteral("Open"));
    window.OfferAbandonedWork();
    EXPECT_THAT(answer.said, HasSubstr("memo.frm, changed "));
    EXPECT_EQ(Text(), changed);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_THAT(Copies().size(), 1) << "it is this program's now";
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Text(), before);
    window.Commands().RedoAction().trigger();
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frm"))), changed);
    EXPECT_THAT(Copies().size(), 0);
}

TEST_F(Recovery, WorkOnAFileThatIsGoneKeepsItsPlace) {
    const QString path = Copy("memo");
    window.Load(path);
    Change();
    const forms::FormBytes changed = Design().Document().Write();
    Kill();
    CloseUnsaved();
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QFile::remove(Path(QStringLiteral("memo.frx"))));
    const Answer answer(QStringLiteral("Open"));
    window.OfferAbandonedWork();
    ASSERT_NE(window.Bench(), nullptr);
    EXPECT_EQ(Text(), changed.form);
    EXPECT_EQ(Design().Document().Write().companion, changed.companion);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_EQ(window.Current()->File().Path(), path);
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frm"))), changed.form);
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frx"))), changed.companion);
}

TEST_F(Recovery, WorkOlderThanItsFileIsNotSavedUnasked) {
    const QString path = Copy("memo");
    window.Load(path);
    Change();
    const std::string changed = Text();
    Kill();
    CloseUnsaved();
    QTest::qWait(20);  // the file is newer by more than a clock tick
    const std::string newer = FileBytes(File(QStringLiteral("memo.frm"))) + "' newer\r\n";
    std::ofstream(File(QStringLiteral("memo.frm")), std::ios::binary) << newer;
    {
        const Answer answer(QStringLiteral("Open"));
        window.OfferAbandonedWork();
    }
    EXPECT_EQ(Text(), changed);
    EXPECT_TRUE(window.Current()->Bar().isVisible());
    {
        const Answer answer(QStringLiteral("Cancel"));
        EXPECT_FALSE(window.Save());
    }
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frm"))), newer);
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Text(), newer);
}

TEST_F(Recovery, TwoVersionsOfOneFileAreTwoForms) {
    window.Load(Copy("memo"));
    Change();
    const std::string older = Text();
    Kill();
    Change();
    const std::string newest = Text();
    Kill();
    CloseUnsaved();
    const Answer answer(QStringLiteral("Open"));
    window.OfferAbandonedWork();
    std::set<std::string> texts;
    for (int index = 0; index < window.Tabs().count(); ++index) {
        window.Tabs().setCurrentIndex(index);
        texts.insert(Text());
        EXPECT_TRUE(window.Current()->IsChanged());
    }
    EXPECT_EQ(texts, (std::set<std::string>{older, newest}));
}

TEST_F(Recovery, WorkKeepsItsCodePage) {
    window.Load(Copy("umlauts"));
    Design().WriteIn(65001);
    window.Current()->KeepCopy();
    const std::string changed = Text();
    Kill();
    CloseUnsaved();
    const Answer answer(QStringLiteral("Open"));
    window.OfferAbandonedWork();
    EXPECT_EQ(Design().Document().FormCodePage(), 65001);
    EXPECT_EQ(Text(), changed);
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Design().Document().FormCodePage(), 1252);
}

TEST_F(Recovery, ASecondVersionOfAControlIsAControl) {
    std::ofstream(File(QStringLiteral("Gauge.ctl")))
        << "VERSION 5.00\nBegin VB.UserControl Gauge\n   ClientHeight = 900\nEnd\n";
    window.Load(Path(QStringLiteral("Gauge.ctl")));
    TypeInto(u"ClientHeight", "1200");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    window.Current()->KeepCopy();
    Kill();
    CloseUnsaved();
    window.Load(Path(QStringLiteral("Gauge.ctl")));
    const Answer answer(QStringLiteral("Open"));
    window.OfferAbandonedWork();
    EXPECT_FALSE(window.Current()->File().HasPath());
    EXPECT_EQ(window.Current()->Name(), QStringLiteral("Gauge.ctl"));
}

TEST_F(Recovery, LaterKeepsTheWorkAndDiscardRemovesIt) {
    window.StartNew();
    Design().Edit(QStringLiteral("Caption"), [&] {});
    Command(QStringLiteral("Select all")).trigger();
    TypeInto(u"Caption", "typed\r");
    window.Current()->KeepCopy();
    Kill();
    CloseUnsaved();
    {
        const Answer later(QStringLiteral("Later"));
        window.OfferAbandonedWork();
    }
    EXPECT_EQ(window.Bench(), nullptr);
    ASSERT_EQ(lumenform::AbandonedWork(Store()).size(), 1U);
    EXPECT_THAT(lumenform::AbandonedWork(Store()).front().Bytes().form, HasSubstr("typed"));
    {
        Replies cancels;
        cancels.Press(QStringLiteral("Discard")).Enter().Press(QStringLiteral("Later"));
        window.OfferAbandonedWork();
    }
    EXPECT_EQ(lumenform::AbandonedWork(Store()).size(), 1U) << "Enter is Cancel";
    Replies discards;
    discards.Press(QStringLiteral("Discard")).Press(QStringLiteral("Remove"));
    window.OfferAbandonedWork();
    EXPECT_TRUE(lumenform::AbandonedWork(Store()).empty());
    EXPECT_THAT(Copies().size(), 0);
}

TEST_F(Recovery, OpeningWorkKeepsItsTime) {
    window.Load(Copy("memo"));
    Change();
    Kill();
    CloseUnsaved();
    const QDateTime time = lumenform::AbandonedWork(Store()).front().time;
    QTest::qWait(20);
    Answer answer(QStringLiteral("Open"));
    window.OfferAbandonedWork();
    EXPECT_THAT(answer.said, HasSubstr(time.toString(QStringLiteral("HH:mm:ss")).toStdString()));
    window.Current()->KeepCopy();  // nothing has changed since
    Kill();
    CloseUnsaved();
    ASSERT_EQ(lumenform::AbandonedWork(Store()).size(), 1U);
    EXPECT_EQ(lumenform::AbandonedWork(Store()).front().time, time);
}

TEST_F(Recovery, AFileThatWasOnlyTouchedIsNoOtherFile) {
    const QString path = Copy("memo");
    window.Load(path);
    Change();
    Kill();
    CloseUnsaved();
    QTest::qWait(20);
    const std::string same = FileBytes(File(QStringLiteral("memo.frm")));
    std::ofstream(File(QStringLiteral("memo.frm")), std::ios::binary) << same;
    const Answer answer(QStringLiteral("Open"));
    window.OfferAbandonedWork();
    EXPECT_FALSE(window.Current()->Bar().isVisible());
    EXPECT_TRUE(window.Save());
}

TEST_F(Recovery, DamagedWorkStaysAndIsNotOffered) {
    const QString damaged = Store() + QStringLiteral("/damaged");
    ASSERT_TRUE(QDir().mkpath(damaged));
    std::ofstream(lumenform::PathOf(damaged + QStringLiteral("/work")))
        << "lumenform-recovery-1 999999 1252 x x x\nVERSION";
    EXPECT_TRUE(lumenform::AbandonedWork(Store()).empty());
    EXPECT_TRUE(QFile::exists(damaged + QStringLiteral("/work")));
}

}  // namespace
}  // namespace lumenkit::testing
