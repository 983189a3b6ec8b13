// The caption page on real widgets.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <algorithm>
#include <map>

#include <gmock/gmock.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/check_box.h"
#include "runtime/qt/embedded_control.h"
#include "runtime/qt/hosted_page.h"
#include "runtime/qt/label.h"
#include "runtime/qt/qt_text.h"
#include "runtime/qt/scroll_bar.h"
#include "runtime/qt/text_box.h"
#include "tests/support/qt_form.h"
#include "tests/support/qt_keys.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::qt {
namespace {

using testing::TypeKeys;

class QtPageTest : public ::testing::Test {
 protected:
    QtPageTest() : label_(form_.Place(u"VLabel", {0, 0, 3000, 1500})) {
        label_.Automation().Let(u"Caption", Text(u"x abc y"));
        testing::ShowActive(*page_);
        page_->Select({label_.SharedAutomation()});
        page_->SetChanged(false);
        page_->OnChanged([this](bool changed) { told_.push_back(changed); });
        Caption().Edit().setFocus();
    }

    template <typename T>
    T& Part(TextView name) {
        return dynamic_cast<T&>(*page_->Parts().Find(name));
    }
    TextBox& Caption() { return Part<TextBox>(u"txtCaption"); }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::ControlModifier) {
        QTest::keyClick(&Caption().Edit(), key, held);
    }
    Text PreviewCaption() {
        return ToText(Part<EmbeddedControl>(u"VLabel1").Automation().Get(u"Caption"));
    }

    testing::QtForm form_{lumenkitClasses};
    HostedControl& label_;
    std::unique_ptr<HostedPage> page_ = form_.Page(u"VLabelCaption");
    std::vector<bool> told_;
};

TEST_F(QtPageTest, ScreenReadersFindItsFieldsInOrderAndNamed) {
    QAccessibleInterface* const page = QAccessible::queryAccessibleInterface(page_.get());
    QStringList names;
    for (int index = 0; index < page->childCount(); ++index) {
        QAccessibleInterface& field = *page->child(index);
        const QAccessible::Role role = field.role();
        if (role == QAccessible::EditableText || role == QAccessible::CheckBox) {
            names += field.text(QAccessible::Name);
        }
        EXPECT_FALSE(field.state().invisible);
    }
    EXPECT_EQ(names, (QStringList{"Caption:", "Bullet Prefix:", "Bullet Indent:", "Word Wrap"}));
}

TEST_F(QtPageTest, ShortcutsInsertMarkup) {
    Caption().SetSelection(2, 5);
    Press(Qt::Key_B);
    EXPECT_EQ(Caption().GetText(), u"x |B:1| y");
    EXPECT_EQ(Caption().SelStart(), 2);
    EXPECT_EQ(Caption().SelLength(), 5);
    EXPECT_EQ(PreviewCaption(), u"x |B:1| y");
    Caption().SetSelStart(0);
    Press(Qt::Key_I);
    Press(Qt::Key_Return, {});
    TypeKeys(Caption().Edit(), u"\"");
    EXPECT_EQ(Caption().GetText(), u"|i:1||CR||Q|x |B:1| y");
    EXPECT_TRUE(page_->Changed());
    EXPECT_EQ(told_, std::vector<bool>{true});
}

TEST_F(QtPageTest, ComposedTextIsHeldToTheFields) {
    const auto compose = [](TextBox& box, const QString& composed, const QString& committed) {
        box.Edit().setFocus();
        QInputMethodEvent composing(composed, {});
        QApplication::sendEvent(&box.Edit(), &composing);
        QInputMethodEvent committing;
        committing.setCommitString(committed);
        QApplication::sendEvent(&box.Edit(), &committing);
    };
    auto& indent = Part<TextBox>(u"txtBulletIndent");
    indent.SetSelection(0, -1);
    compose(indent, QStringLiteral("1\u3044"), QStringLiteral("1\u30442"));
    EXPECT_EQ(indent.GetText(), u"12") << "digits only";
    Caption().SetSelection(2, 5);
    compose(Caption(), QStringLiteral("\u00A8"), QStringLiteral("\u00EF"));
    EXPECT_EQ(Caption().GetText(), u"x \u00EF y");
    compose(Caption(), QStringLiteral("\""), QStringLiteral("\""));
    EXPECT_EQ(Caption().GetText(), u"x \u00EF|Q| y") << "a dead key and a blank";
    EXPECT_EQ(PreviewCaption(), u"x \u00EF|Q| y");
    Press(Qt::Key_Z);
    EXPECT_EQ(Caption().GetText(), u"x \u00EF y");
}

TEST_F(QtPageTest, EachShortcutIsAnUndoStep) {
    TypeKeys(Caption().Edit(), u"ab");
    Caption().SetSelection(4, 7);
    Press(Qt::Key_B);
    Caption().SetSelStart(0);
    TypeKeys(Caption().Edit(), u"\"");
    const std::vector<Text> steps = {u"x abc y", u"abx abc y", u"abx |B:1| y", u"|Q|abx |B:1| y"};
    EXPECT_EQ(Caption().GetText(), steps[3]);
    for (std::size_t step = 3; step > 0; --step) {
        Press(Qt::Key_Z);
        EXPECT_EQ(Caption().GetText(), steps[step - 1]);
        EXPECT_EQ(PreviewCaption(), steps[step - 1]);
    }
    Press(Qt::Key_Z);
    EXPECT_EQ(Caption().GetText(), steps[0]) << "the loaded caption is not undone";
    for (std::size_t step = 1; step < steps.size(); ++step) {
        Press(Qt::Key_Y);
        EXPECT_EQ(Caption().GetText(), steps[step]);
    }
}

TEST_F(QtPageTest, UndoingAShortcutPutsTheCaretBack) {
    Caption().SetSelection(2, 5);
    Press(Qt::Key_B);
    Press(Qt::Key_Z);
    EXPECT_EQ(Caption().GetText(), u"x abc y");
    EXPECT_EQ(Caption().SelStart() + Caption().SelLength(), 5);
    Caption().SetSelStart(7);
    Press(Qt::Key_O);
    Press(Qt::Key_Z);
    EXPECT_EQ(Caption().SelStart(), 7);
}

TEST_F(QtPageTest, AltTypesNothingIntoTheCaptionOrTheIndent) {
    QTest::keyClick(&Caption().Edit(), Qt::Key_QuoteDbl, Qt::AltModifier);
    QTest::keyClick(&Part<TextBox>(u"txtBulletIndent").Edit(), Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(Caption().GetText(), u"x abc y");
    EXPECT_EQ(Part<TextBox>(u"txtBulletIndent").GetText(), u"0");
}

TEST_F(QtPageTest, EnterWithASelectionBeeps) {
    Caption().SetSelection(2, 5);
    Press(Qt::Key_Return, {});
    EXPECT_EQ(Caption().GetText(), u"x abc y");
    EXPECT_EQ(form_.interaction.said, std::vector<Text>{u"(beep)"});
}

TEST_F(QtPageTest, SelectsTheNextWordOrCommand) {
    Caption().SetText(u"|B:1|Hello world|B:0|");
    Caption().SetSelStart(0);
    std::vector<Text> selected;
    for (int press = 0; press < 4; ++press) {
        Press(Qt::Key_S);
        selected.emplace_back(
            Caption().GetText().substr(static_cast<std::size_t>(Caption().SelStart()),
                                       static_cast<std::size_t>(Caption().SelLength())));
    }
    EXPECT_THAT(selected, ::testing::ElementsAre(u"|B:1|", u"Hello", u"world", u"|B:0|"));
}

TEST_F(QtPageTest, TheMagnifierFollowsTheCaret) {
    Caption().SetText(u"Hello world");
    Caption().SetSelStart(5);
    Press(Qt::Key_Right, {});
    EXPECT_EQ(Part<Label>(u"labLeft").Caption(), u"llo ");
    EXPECT_EQ(Part<Label>(u"labChar").Caption(), u"w");
    EXPECT_EQ(Part<Label>(u"labRight").Caption(), u"orld");
    EXPECT_TRUE(Part<Label>(u"labLeft").Widget()->isVisible());
    Press(Qt::Key_Tab, {});
    EXPECT_FALSE(Part<Label>(u"labLeft").Widget()->isVisible()) << "Tab leaves the caption";
}

TEST_F(QtPageTest, TheMagnifierShowsEveryCharacter) {
    const auto shown = [&](TextView name) {
        return static_cast<QLabel*>(Part<Label>(name).Widget())->text();
    };
    Caption().SetText(u"&a&&\r\n\tb");
    Caption().SetSelStart(3);
    Press(Qt::Key_Right, {});
    EXPECT_EQ(shown(u"labLeft"), QStringLiteral("&a&&"));
    EXPECT_EQ(shown(u"labChar"), QString(QChar(0xB6)));
    EXPECT_EQ(shown(u"labRight"), QString::fromUtf16(u"\u00AC\u00BBb"));
    EXPECT_EQ(Part<Label>(u"labRight").Caption(), u"\n\tb");
    Caption().SetSelection(2, 6);
    Press(Qt::Key_Shift, {});
    EXPECT_EQ(shown(u"labSelect"), QString::fromUtf16(u"&&\u00B6\u00AC"));
}

TEST_F(QtPageTest, AccessKeysLeadToTheFields) {
    struct Field {
        Qt::Key key;
        TextView name;
    };
    for (const Field& field :
         {Field{Qt::Key_P, u"txtBulletPrefix"}, Field{Qt::Key_I, u"txtBulletIndent"},
          Field{Qt::Key_T, u"txtCaption"}}) {
        QTest::keyClick(page_.get(), field.key, Qt::AltModifier);
        EXPECT_TRUE(Part<TextBox>(field.name).Edit().hasFocus())
            << ToQString(field.name).toStdString();
    }
    // The buttons look pressed for a while.
    QTest::keyClick(page_.get(), Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Part<CheckBox>(u"chkWordWrap").CheckState() == 1; }));
    QTest::keyClick(page_.get(), Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form_.interaction.said.size() == 1; }));
    EXPECT_EQ(Caption().GetText(), u"x abc y");
}

TEST_F(QtPageTest, ShortcutsWorkInALayoutWithoutLatinLetters) {
    struct Stroke {
        int key;
        quint32 position;  // as X11 counts
        const char16_t* letter;
    };
    const auto strike = [&](const Stroke& stroke, Qt::KeyboardModifiers held) {
        QKeyEvent event(QEvent::KeyPress, stroke.key, held, stroke.position, 0, 0,
                        QString::fromUtf16(stroke.letter));
        QApplication::sendEvent(&Caption().Edit(), &event);
    };
    Caption().SetText(u"");
    strike({0x0418, 56, u"\u0438"}, Qt::ControlModifier);  // Cyrillic, where B is
    EXPECT_EQ(Caption().GetText(), u"|B:1|");
    strike({0x03A4, 57, u"\u03BD"}, Qt::ControlModifier);  // Greek, where N is
    EXPECT_EQ(Caption().GetText(), u"|B:1||B:0|");
    strike({0x0418, 56, u"\u0438"}, {});
    EXPECT_EQ(Caption().GetText(), u"|B:1||B:0|\u0438") << "without Ctrl";
    // The Dvorak layout has its letters elsewhere, and so have German letters.
    strike({Qt::Key_Apostrophe, 24, u"'"}, Qt::ControlModifier);
    strike({Qt::Key_Adiaeresis, 56, u""}, Qt::ControlModifier);
    EXPECT_EQ(Caption().GetText(), u"|B:1||B:0|\u0438'");
    strike({Qt::Key_N, 46, u"\x0E"}, Qt::ControlModifier);
    EXPECT_EQ(Caption().GetText(), u"|B:1||B:0|\u0438'|B:0|") << "where L is elsewhere";
}

TEST_F(QtPageTest, AnyTextComesIntoTheIndentWithoutTheCtrlLetters) {
    auto& indent = Part<TextBox>(u"txtBulletIndent");
    const auto strike = [&](Qt::Key key, Qt::KeyboardModifiers held) {
        QTest::keyClick(&indent.Edit(), key, held);
        return Text(indent.GetText());
    };
    const auto copied = [] { return QGuiApplication::clipboard()->text().toStdString(); };
    indent.Edit().setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("1e3"));
    EXPECT_EQ(strike(Qt::Key_V, Qt::ControlModifier), u"0") << "cancelled by KeyPress";
    indent.SetSelection(0, -1);
    EXPECT_EQ(strike(Qt::Key_Insert, Qt::ShiftModifier), u"1e3");
    indent.SetSelection(0, 2);
    strike(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(copied(), "1e");
    indent.SetSelection(1, 3);
    EXPECT_EQ(strike(Qt::Key_Delete, Qt::ShiftModifier), u"1");
    EXPECT_EQ(copied(), "e3");
    EXPECT_EQ(strike(Qt::Key_Backspace, Qt::AltModifier), u"1e3");
    EXPECT_EQ(strike(Qt::Key_Backspace, Qt::AltModifier | Qt::ShiftModifier), u"1");
}

TEST_F(QtPageTest, TheIndentHasAContextMenu) {
    auto& indent = Part<TextBox>(u"txtBulletIndent");
    QGuiApplication::clipboard()->setText(QStringLiteral("&H10"));
    indent.Edit().setFocus();
    indent.Edit().selectAll();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5},
                            indent.Edit().mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(indent.Edit().viewport(), &asked);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    const QList<QAction*> actions = menu->actions();
    const auto paste = std::ranges::find_if(actions, [](const QAction* action) {
        return action->objectName() == QLatin1String("edit-paste");
    });
    ASSERT_NE(paste, actions.end());
    EXPECT_TRUE((*paste)->isEnabled());
    (*paste)->trigger();
    menu->close();
    QApplication::processEvents();
    EXPECT_EQ(indent.GetText(), u"&H10");
    EXPECT_EQ(Part<EmbeddedControl>(u"VLabel1").Automation().Get(u"BulletIndent"),
              Value(std::int16_t{16}));
}

TEST_F(QtPageTest, ALargerPageGivesTheCaptionBoxMoreRoom) {
    const auto place = [&](TextView name) {
        return dynamic_cast<Element&>(*page_->Parts().Find(name)).Widget()->geometry();
    };
    std::map<Text, QRect> before;
    for (const Element* part : page_->Parts().All()) {
        before[part->Name()] = part->Widget()->geometry();
    }
    page_->resize(page_->minimumSize() + QSize(100, 60));
    EXPECT_EQ(place(u"txtCaption"), before[u"txtCaption"].adjusted(0, 0, 100, 60));
    EXPECT_EQ(place(u"lblCaption"), before[u"lblCaption"]);
    EXPECT_EQ(place(u"Label1"), before[u"Label1"].adjusted(0, 60, 100, 60));
    EXPECT_EQ(place(u"cmdHelp"), before[u"cmdHelp"].translated(100, 60));
    for (const TextView name :
         {u"labLeft", u"labChar", u"labSelect", u"labRight", u"lblBulletPrefix", u"txtBulletPrefix",
          u"lblBulletIndent", u"txtBulletIndent", u"chkWordWrap", u"Picture1"}) {
        EXPECT_EQ(place(name), before[Text(name)].translated(0, 60))
            << ToQString(name).toStdString();
    }
    EXPECT_EQ(place(u"HScroll1"), before[u"HScroll1"]) << "inside the preview";
    // Parts that the page moves itself stay below the caption box.
    Caption().SetSelection(0, 3);
    Press(Qt::Key_Shift, {});
    EXPECT_EQ(place(u"labRight").top(), place(u"labLeft").top());
    page_->resize(page_->minimumSize());
    EXPECT_EQ(place(u"txtCaption"), before[u"txtCaption"]);
    EXPECT_EQ(place(u"Picture1"), before[u"Picture1"]);
}

TEST_F(QtPageTest, TheIndentTakesDigits) {
    auto& indent = Part<TextBox>(u"txtBulletIndent");
    indent.SetText(u"");
    indent.Edit().setFocus();
    TypeKeys(indent.Edit(), u"1a2-3\b");
    EXPECT_EQ(indent.GetText(), u"12");
}

TEST_F(QtPageTest, AppliesAndRefuses) {
    TypeKeys(Caption().Edit(), u"new ");
    QTest::mouseClick(Part<CheckBox>(u"chkWordWrap").Widget(), Qt::LeftButton, {}, {8, 8});
    page_->Apply();
    EXPECT_EQ(ToText(label_.Automation().Get(u"Caption")), u"new x abc y");
    EXPECT_EQ(label_.Automation().Get(u"WordWrap"), Value(true));
    Part<TextBox>(u"txtBulletIndent").SetText(u"");
    page_->Apply();
    EXPECT_EQ(form_.interaction.said.back(), u"Illegal indent. Must be 0 to 9999");
}

TEST_F(QtPageTest, ALargePreviewScrolls) {
    label_.Move({0, 0, 9000, 6000});
    page_->Select({label_.SharedAutomation()});
    auto& bar = Part<ScrollBar>(u"HScroll1");
    ASSERT_TRUE(bar.Widget()->isVisible());
    QTest::keyClick(bar.Widget(), Qt::Key_Right);
    EXPECT_EQ(Part<EmbeddedControl>(u"VLabel1").Place().left, -bar.ScrollValue());
    EXPECT_GT(bar.ScrollValue(), 0);
}

TEST_F(QtPageTest, TheWheelOverThePreviewScrollsIt) {
    label_.Move({0, 0, 9000, 6000});
    page_->Select({label_.SharedAutomation()});
    auto& preview = Part<EmbeddedControl>(u"VLabel1");
    QWidget& area = preview.Inner().Drawing().Area();
    testing::TurnWheel(area, {0, -120});
    EXPECT_LT(preview.Place().top, 0);
    EXPECT_EQ(preview.Place().left, 0);
    testing::TurnWheel(area, {0, -120}, Qt::ShiftModifier);
    EXPECT_LT(preview.Place().left, 0);
}

TEST_F(QtPageTest, ErrorsOfThePageComeOutOfItsCalls) {
    EXPECT_THROW(page_->Select({}), RuntimeError);
    EXPECT_THROW(page_->Apply(), RuntimeError);
    page_->Select({label_.SharedAutomation()});
    label_.Move({0, 0, 40000, 1500});  // 40000 twips are beyond a scroll bar
    EXPECT_THROW(page_->Select({label_.SharedAutomation()}), RuntimeError);
}

TEST_F(QtPageTest, ErrorsOfItsEventsGoToTheSink) {
    Part<TextBox>(u"txtBulletIndent").Edit().setFocus();
    TypeKeys(Part<TextBox>(u"txtBulletIndent").Edit(), u"99999");
    EXPECT_FALSE(form_.errors.empty());
    EXPECT_EQ(form_.errors.front().Number(), 6);
}

TEST_F(QtPageTest, HasTheSizeItIsLaidOutFor) {
    EXPECT_EQ(page_->size(), QSize(480, 372));
}

}  // namespace
}  // namespace lumenkit::qt
