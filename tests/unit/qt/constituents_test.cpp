// Constituents on real widgets: keyboard, colours, accessibility and destruction.
#include "runtime/qt/constituents.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gmock/gmock.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/element.h"
#include "runtime/qt/embedded_control.h"
#include "runtime/qt/font.h"
#include "runtime/qt/surface_widget.h"
#include "tests/support/painting_control.h"
#include "tests/support/qt_form.h"
#include "tests/support/qt_keys.h"

namespace lumenkit::qt {
namespace {

using ::testing::ElementsAre;
using testing::TypeKeys;

class Clicks final : public host::ClickEvents, public host::OptionButtonEvents {
 public:
    void Click() override {
        ++count;
        if (act) {
            act();
        }
    }
    void Click(std::int16_t index) override {
        clicked.push_back(index);
        if (act) {
            act();
        }
    }

    int count = 0;
    std::vector<std::int16_t> clicked;
    std::function<void()> act;
};

class Edits final : public host::TextBoxEvents, public host::ScrollBarEvents {
 public:
    void Change() override {
        if (act) {
            act();
        }
    }
    void KeyDown(std::int16_t&, std::int16_t&) override {
        if (onKey) {
            onKey();
        }
    }
    void LostFocus() override {
        if (onLostFocus) {
            onLostFocus();
        }
    }

    std::function<void()> act;
    std::function<void()> onKey;
    std::function<void()> onLostFocus;
};

QWidget& WidgetOf(host::Constituent& constituent) {
    return *dynamic_cast<Element&>(constituent).Widget();
}

QAccessibleInterface& Accessible(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
}

QString NameOf(QWidget& widget) {
    return Accessible(widget).text(QAccessible::Name);
}

class QtConstituentsTest : public ::testing::Test {
 protected:
    QtConstituentsTest() : control_(form_.Place(u"Painting", {0, 0, 6000, 6000})) {}

    host::Constituents& Parts() { return control_.Parts(); }
    static host::CaptionDesign Captioned(TextView caption, float top = 0) {
        return {{.name = u"part", .placement = {.top = top, .width = 1500, .height = 300}},
                caption};
    }
    static host::TextBoxDesign Boxed(float top = 0) {
        host::TextBoxDesign design;
        design.name = u"box";
        design.placement = {.top = top, .width = 1500, .height = 300};
        return design;
    }

    testing::QtForm form_{testing::PaintingClasses()};
    HostedControl& control_;
    Clicks clicks_;
    Edits edits_;
};

class QtOptionsTest : public QtConstituentsTest {
 protected:
    void SetUp() override {
        for (std::int16_t index = 1; index < 4; ++index) {
            options_->Load(index);
            host::OptionButton& option = options_->Item(index);
            option.Move({.top = 300.0F * index, .width = 1500, .height = 300});
            option.SetCaption(index == 3 ? u"&Third" : u"other");
            option.SetVisible(true);
        }
        options_->Item(2).SetVisible(false);
    }
    QWidget& Button(std::int16_t index) { return WidgetOf(options_->Item(index)); }

    std::unique_ptr<host::TextBox> before_ = Parts().AddTextBox(Boxed(3000), edits_);
    std::unique_ptr<host::Frame> frame_ = Parts().AddFrame(
        {{.name = u"Frame1", .placement = {.width = 3000, .height = 2000}}, u"Frame"});
    std::unique_ptr<host::OptionButtons> options_ = Parts().AddOptionButtons(
        {{.name = u"Option1", .placement = {.width = 1500, .height = 300}}, u"none"}, *frame_,
        clicks_);
    std::unique_ptr<host::TextBox> after_ = Parts().AddTextBox(Boxed(3600), edits_);
};

TEST_F(QtOptionsTest, AreANamedGroupOfRadioButtonsInOrder) {
    QAccessibleInterface& group = Accessible(WidgetOf(*frame_));
    EXPECT_EQ(group.role(), QAccessible::Grouping);
    EXPECT_EQ(group.text(QAccessible::Name), QStringLiteral("Frame"));
    const auto names = [&] {
        QStringList found;
        for (int index = 0; index < group.childCount(); ++index) {
            QAccessibleInterface& option = *group.child(index);
            EXPECT_EQ(group.indexOfChild(&option), index);
            EXPECT_EQ(option.role(), QAccessible::RadioButton);
            EXPECT_TRUE(option.state().checkable);
            const QString mark = option.state().checked ? QStringLiteral("!") : QString();
            found += option.text(QAccessible::Name) + mark;
        }
        return found;
    };
    EXPECT_EQ(names(), (QStringList{"none", "other", "Third"})) << "a hidden one does not exist";
    EXPECT_EQ(group.indexOfChild(&Accessible(Button(2))), -1);
    options_->Item(2).SetVisible(true);
    options_->Item(1).Select(true);
    EXPECT_EQ(names(), (QStringList{"none", "other!", "other", "Third"}));
}

TEST_F(QtOptionsTest, AssistiveTechnologiesChooseThem) {
    QAccessibleInterface& third = Accessible(Button(3));
    EXPECT_EQ(third.text(QAccessible::Accelerator), QKeySequence("Alt+T").toString());
    EXPECT_TRUE(third.relations(QAccessible::Label).isEmpty()) << "the group is said once";
    QAccessibleActionInterface& actions = *third.actionInterface();
    EXPECT_TRUE(actions.actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions.doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(options_->Item(3).IsSelected());
    EXPECT_THAT(clicks_.clicked, ElementsAre(3));
    options_->Item(3).SetEnabled(false);
    EXPECT_FALSE(actions.actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions.doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_FALSE(Button(3).hasFocus());
}

TEST_F(QtOptionsTest, AFrameWithoutABorderIsNamedByTheLabelBeforeTheControl) {
    control_.SetSpokenName(QStringLiteral("Size"));
    EXPECT_EQ(NameOf(WidgetOf(*frame_)), QStringLiteral("Frame"));
    frame_->SetBorderStyle(0);
    EXPECT_EQ(NameOf(WidgetOf(*frame_)), QStringLiteral("Size"));
    frame_->SetBorderStyle(1);
    frame_->SetCaption(u"");
    EXPECT_EQ(NameOf(WidgetOf(*frame_)), QStringLiteral("Size"));
}

TEST_F(QtOptionsTest, ArrowsSelectWhatCanBeReachedAndGoAround) {
    Button(0).setFocus();
    QTest::keyClick(&Button(0), Qt::Key_Down);
    EXPECT_TRUE(options_->Item(1).IsSelected());
    EXPECT_TRUE(Button(1).hasFocus());
    QTest::keyClick(&Button(1), Qt::Key_Right);
    EXPECT_TRUE(options_->Item(3).IsSelected()) << "over the hidden one";
    QTest::keyClick(&Button(3), Qt::Key_Down);
    EXPECT_TRUE(options_->Item(0).IsSelected());
    QTest::keyClick(&Button(0), Qt::Key_Up);
    EXPECT_TRUE(options_->Item(3).IsSelected());
    EXPECT_THAT(clicks_.clicked, ElementsAre(1, 3, 0, 3));
}

TEST_F(QtOptionsTest, TabStopsOnceAtTheSelectedOne) {
    QWidget& before = WidgetOf(*before_);
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_TRUE(Button(0).hasFocus()) << "none is selected: the first";
    QTest::keyClick(&Button(0), Qt::Key_Tab);
    EXPECT_TRUE(WidgetOf(*after_).hasFocus());
    options_->Item(1).Select(true);
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_TRUE(Button(1).hasFocus());
    QTest::keyClick(&Button(1), Qt::Key_Tab);
    EXPECT_TRUE(WidgetOf(*after_).hasFocus());
    QTest::keyClick(&WidgetOf(*after_), Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(Button(1).hasFocus());
}

TEST_F(QtOptionsTest, BlanksAndMnemonicsSelect) {
    Button(1).setFocus();
    QTest::keyClick(&Button(1), Qt::Key_Space);
    EXPECT_TRUE(options_->Item(1).IsSelected());
    QTest::keyClick(&form_.window, Qt::Key_T, Qt::AltModifier);
    QTest::qWait(150);  // the button looks pressed for a while
    EXPECT_TRUE(options_->Item(3).IsSelected());
}

TEST_F(QtOptionsTest, TheMarkMayStandAtTheRight) {
    const QImage left = Button(3).grab().toImage();
    options_->Item(3).SetAlignment(1);
    EXPECT_NE(Button(3).grab().toImage(), left);
}

TEST_F(QtOptionsTest, TheWholeRowIsTheButton) {
    for (const std::int16_t alignment : {std::int16_t{0}, std::int16_t{1}}) {
        for (const std::int16_t index : {std::int16_t{0}, std::int16_t{1}, std::int16_t{3}}) {
            options_->Item(index).SetAlignment(alignment);
        }
        options_->Item(0).SetCaption(u"a");
        const QRect row = Button(0).rect();
        for (const QPoint place : {row.topLeft(), row.bottomRight(), row.center(),
                                   QPoint(row.right() - 8, row.center().y())}) {
            options_->Item(1).Select(true);
            QTest::mouseClick(&Button(0), Qt::LeftButton, {}, place);
            EXPECT_TRUE(options_->Item(0).IsSelected()) << alignment << " " << place.x();
        }
    }
}

TEST_F(QtOptionsTest, AButtonThatIsHiddenPassesTheFocusOn) {
    Button(1).setFocus();
    options_->Item(1).SetVisible(false);
    EXPECT_TRUE(Button(0).hasFocus()) << "where Tab stops";
    options_->Item(3).Select(true);
    clicks_.clicked.clear();
    options_->Item(0).SetEnabled(false);
    EXPECT_TRUE(Button(3).hasFocus()) << "the selected one";
    options_->Item(3).SetVisible(false);
    EXPECT_TRUE(WidgetOf(*before_).hasFocus()) << "no button is left";
    EXPECT_THAT(clicks_.clicked, ElementsAre()) << "nothing is selected by the focus";
}

TEST_F(QtOptionsTest, ADisabledFrameGreysItsButtons) {
    const auto countOf = [](QWidget& widget, const QColor& colour) {
        const QImage shown = widget.grab().toImage();
        int count = 0;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                count += shown.pixelColor(x, y).hue() == colour.hue() &&
                                 shown.pixelColor(x, y).saturation() > 100
                             ? 1
                             : 0;
            }
        }
        return count;
    };
    for (const std::int16_t alignment : {std::int16_t{0}, std::int16_t{1}}) {
        options_->Item(1).SetForeColor(Rgb(255, 0, 0));
        options_->Item(1).SetAlignment(alignment);
        EXPECT_GT(countOf(Button(1), Qt::red), 0);
        frame_->SetEnabled(false);
        EXPECT_EQ(countOf(Button(1), Qt::red), 0) << alignment;
        EXPECT_TRUE(options_->Item(1).Enabled());
        frame_->SetEnabled(true);
    }
}

TEST_F(QtOptionsTest, AClickMayDestroyAllOfThem) {
    clicks_.act = [&] { options_.reset(); };
    QPointer<QWidget> button(&Button(1));
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, 10});
    EXPECT_EQ(options_, nullptr);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(button.isNull());
}

TEST_F(QtConstituentsTest, ABoxMayBeDestroyedByWhatItTells) {
    for (const int way : {0, 1, 2}) {
        Edits edits;
        std::unique_ptr<host::TextBox> box = Parts().AddTextBox(Boxed(), edits);
        QPointer<QWidget> widget(&WidgetOf(*box));
        widget->setFocus();
        const auto destroy = [&] { box.reset(); };
        (way == 0 ? edits.onKey : way == 1 ? edits.act : edits.onLostFocus) = destroy;
        if (way == 2) {
            box->SetVisible(false);
        } else {
            TypeKeys(*widget, u"a");
        }
        EXPECT_EQ(box, nullptr) << way;
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(widget.isNull());
    }
    Edits edits;
    std::unique_ptr<host::TextBox> box = Parts().AddTextBox(Boxed(), edits);
    edits.act = [&] { box.reset(); };
    box->SetText(u"by code");
    EXPECT_EQ(box, nullptr);
}

TEST_F(QtConstituentsTest, ButtonsMayBeDestroyedByTheirClicks) {
    auto button = Parts().AddCommandButton(Captioned(u"go"), clicks_);
    clicks_.act = [&] { button.reset(); };
    QTest::mouseClick(&WidgetOf(*button), Qt::LeftButton);
    EXPECT_EQ(button, nullptr);
    auto box = Parts().AddCheckBox(Captioned(u"mark"), clicks_);
    clicks_.act = [&] { box.reset(); };
    QTest::mouseClick(&WidgetOf(*box), Qt::LeftButton, {}, {8, 10});
    EXPECT_EQ(box, nullptr);
    Edits edits;
    auto bar = Parts().AddScrollBar({.name = u"bar", .placement = {.width = 1500, .height = 255}},
                                    host::Orientation::Horizontal, edits);
    edits.act = [&] { bar.reset(); };
    QTest::keyClick(&WidgetOf(*bar), Qt::Key_Right);
    EXPECT_EQ(bar, nullptr);
}

TEST_F(QtConstituentsTest, TheParentMayGoFirst) {
    auto frame = Parts().AddFrame(Captioned(u"frame"));
    host::CaptionDesign design = Captioned(u"inside");
    design.parent = frame.get();
    auto box = Parts().AddCheckBox(design, clicks_);
    frame.reset();
    box.reset();
    SUCCEED();
}

TEST_F(QtConstituentsTest, ErrorsOfTheUsersActsGoToTheSink) {
    auto button = Parts().AddCommandButton(Captioned(u"go"), clicks_);
    clicks_.act = [] { Raise(ErrorNumber::Overflow); };
    QTest::mouseClick(&WidgetOf(*button), Qt::LeftButton);
    ASSERT_EQ(form_.errors.size(), 1U);
    EXPECT_EQ(form_.errors[0].Number(), 6);
}

TEST_F(QtConstituentsTest, ErrorsThatCodeCausesThroughQtReachIt) {
    auto box = Parts().AddTextBox(Boxed(), edits_);
    WidgetOf(*box).setFocus();
    edits_.onLostFocus = [] { Raise(ErrorNumber::Overflow); };
    EXPECT_THROW(box->SetVisible(false), RuntimeError);
    EXPECT_TRUE(form_.errors.empty());
    EXPECT_FALSE(box->Visible());
}

TEST_F(QtConstituentsTest, LabelsNameWhatFollowsThem) {
    auto plain = Parts().AddLabel(Captioned(u"Plain:"));
    auto box = Parts().AddTextBox(Boxed(), edits_);
    EXPECT_EQ(NameOf(WidgetOf(*box)), QStringLiteral("Plain:"));
    EXPECT_EQ(Accessible(WidgetOf(*box)).role(), QAccessible::EditableText);
    auto status = Parts().AddLabel(Captioned(u"status"));
    auto button = Parts().AddCommandButton(Captioned(u"&Press"), clicks_);
    EXPECT_EQ(NameOf(WidgetOf(*button)), QStringLiteral("Press"));
    auto marked = Parts().AddLabel(Captioned(u"&Edit"));
    auto edited = Parts().AddTextBox(Boxed(600), edits_);
    QTest::keyClick(&form_.window, Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(WidgetOf(*edited).hasFocus());
}

TEST_F(QtConstituentsTest, AnAccessKeyIsUnderlinedAndLeadsToTheConstituent) {
    host::CaptionDesign name = Captioned(u"A & name:");
    name.accessKey = u'N';
    auto label = Parts().AddLabel(name);
    auto box = Parts().AddTextBox(Boxed(), edits_);
    EXPECT_EQ(label->Caption(), u"A & name:");
    EXPECT_EQ(static_cast<QLabel&>(WidgetOf(*label)).text(), QStringLiteral("A && &name:"));
    EXPECT_EQ(NameOf(WidgetOf(*box)), QStringLiteral("A & name:"));
    QTest::keyClick(&form_.window, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(WidgetOf(*box).hasFocus());
    host::CaptionDesign wrap = Captioned(u"Wrap");
    wrap.accessKey = u'w';
    auto check = Parts().AddCheckBox(wrap, clicks_);
    auto button = Parts().AddCommandButton(wrap, clicks_);
    EXPECT_EQ(static_cast<QCheckBox&>(WidgetOf(*check)).text(), QStringLiteral("&Wrap"));
    EXPECT_EQ(static_cast<QAbstractButton&>(WidgetOf(*button)).text(), QStringLiteral("&Wrap"));
    EXPECT_EQ(check->Caption(), u"Wrap");
    EXPECT_EQ(button->Caption(), u"Wrap");
}

TEST_F(QtConstituentsTest, ALabelWithoutAMnemonicShowsItsTextAsItStands) {
    host::CaptionDesign design = Captioned(u"&Edit");
    design.useMnemonic = false;
    auto label = Parts().AddLabel(design);
    auto box = Parts().AddTextBox(Boxed(600), edits_);
    auto& shown = static_cast<QLabel&>(WidgetOf(*label));
    EXPECT_EQ(shown.text(), QStringLiteral("&Edit"));
    EXPECT_NE(NameOf(WidgetOf(*box)), QStringLiteral("&Edit"));
    QTest::keyClick(&form_.window, Qt::Key_E, Qt::AltModifier);
    EXPECT_FALSE(WidgetOf(*box).hasFocus());
    label->SetAutoSize(true);
    const float line = label->Place().height;
    label->SetCaption(u"a && b");
    const float narrow = label->Place().width;
    label->SetCaption(u"a && b\r\n\tc");
    EXPECT_EQ(label->Caption(), u"a && b\r\n\tc");
    EXPECT_EQ(shown.text(), QString::fromUtf16(u"a && b\u00B6\u00AC\u00BBc"));
    EXPECT_EQ(label->Place().height, line);
    EXPECT_GT(label->Place().width, narrow);
}

TEST_F(QtConstituentsTest, TellRolesAndStates) {
    auto box = Parts().AddCheckBox(Captioned(u"&Wrap"), clicks_);
    QAccessibleInterface& accessible = Accessible(WidgetOf(*box));
    EXPECT_EQ(accessible.role(), QAccessible::CheckBox);
    EXPECT_EQ(accessible.text(QAccessible::Name), QStringLiteral("Wrap"));
    EXPECT_FALSE(accessible.state().checked);
    box->SetCheckState(1);
    EXPECT_TRUE(accessible.state().checked);
    box->SetCheckState(2);
    EXPECT_TRUE(accessible.state().checkStateMixed);
    QTest::mouseClick(&WidgetOf(*box), Qt::LeftButton, {}, {8, 10});
    EXPECT_EQ(box->CheckState(), 0);
    box->SetEnabled(false);
    EXPECT_TRUE(accessible.state().disabled);
    auto frame = Parts().AddFrame(Captioned(u"&Group"));
    EXPECT_EQ(Accessible(WidgetOf(*frame)).role(), QAccessible::Grouping);
    EXPECT_EQ(NameOf(WidgetOf(*frame)), QStringLiteral("Group"));
}

TEST_F(QtConstituentsTest, APaintedTextIsReadOut) {
    testing::PaintingControl::Last().onPaint = [](host::Surface& surface) {
        surface.Print(u"one ");
        surface.Print(u"line");
        surface.SetCurrentY(300);
        surface.Print(u"another");
    };
    QWidget& area = control_.Drawing().Area();
    control_.Drawing().Refresh();
    area.repaint();
    EXPECT_EQ(NameOf(area), QStringLiteral("one line\nanother"));
    EXPECT_EQ(Accessible(area).role(), QAccessible::StaticText);
}

TEST_F(QtConstituentsTest, ALabelFitsWholeLinesOfItsCaption) {
    auto label = Parts().AddLabel(Captioned(u"x"));
    label->SetAutoSize(true);
    const float line = label->Place().height;
    label->SetCaption(u"first && last\r\n&second");
    EXPECT_FLOAT_EQ(label->Place().height, 2 * line);
    auto& shown = static_cast<QLabel&>(WidgetOf(*label));
    EXPECT_EQ(shown.text(), QStringLiteral("first & last\nsecond"));
    EXPECT_LE(shown.heightForWidth(shown.width()), shown.height()) << "no line is broken again";
}

TEST_F(QtConstituentsTest, ColoursFollowThePalette) {
    auto label = Parts().AddLabel(Captioned(u"x"));
    label->SetBackColor(Color::Highlight);
    label->SetForeColor(Rgb(1, 2, 3));
    const QPalette former = QApplication::palette();
    QPalette other(QColor(40, 40, 40));
    other.setColor(QPalette::Highlight, QColor(9, 99, 199));
    QApplication::setPalette(other);
    QApplication::processEvents();
    EXPECT_EQ(WidgetOf(*label).palette().color(QPalette::Window), QColor(9, 99, 199));
    EXPECT_EQ(WidgetOf(*label).palette().color(QPalette::WindowText), QColor(1, 2, 3));
    QApplication::setPalette(former);
}

TEST_F(QtConstituentsTest, TheFirstMadeIsInFront) {
    auto front = Parts().AddCommandButton(Captioned(u"front"), clicks_);
    auto behind = Parts().AddCommandButton(Captioned(u"behind"), clicks_);
    EXPECT_EQ(control_.Drawing().Area().childAt(5, 5), &WidgetOf(*front));
}

TEST_F(QtConstituentsTest, AWheelAndKeysScroll) {
    struct Counter final : host::ScrollBarEvents {
        void Change() override { ++changes; }
        int changes = 0;
    } counter;
    auto bar = Parts().AddScrollBar({.name = u"bar", .placement = {.width = 255, .height = 1500}},
                                    host::Orientation::Vertical, counter);
    bar->SetMax(100);
    bar->SetSmallChange(5);
    bar->SetLargeChange(40);
    QTest::keyClick(&WidgetOf(*bar), Qt::Key_Down);
    EXPECT_EQ(bar->ScrollValue(), 5);
    QTest::keyClick(&WidgetOf(*bar), Qt::Key_PageDown);
    EXPECT_EQ(bar->ScrollValue(), 45);
    QWheelEvent wheel({5, 5}, WidgetOf(*bar).mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&WidgetOf(*bar), &wheel);
    EXPECT_GT(bar->ScrollValue(), 45);
    EXPECT_EQ(counter.changes, 3);
}

TEST_F(QtConstituentsTest, TheWheelOverAPictureBoxScrollsTheBarsInIt) {
    auto box = Parts().AddPictureBox({.name = u"P", .placement = {.width = 1500, .height = 900}});
    auto across =
        Parts().AddScrollBar({.name = u"H", .parent = box.get(), .placement = {0, 600, 1200, 255}},
                             host::Orientation::Horizontal, edits_);
    auto down =
        Parts().AddScrollBar({.name = u"V", .parent = box.get(), .placement = {1200, 0, 255, 600}},
                             host::Orientation::Vertical, edits_);
    auto inside = Parts().AddControl(
        {.name = u"I", .parent = box.get(), .placement = {0, 0, 1200, 600}}, u"testing.Painting");
    QWidget& area = dynamic_cast<EmbeddedControl&>(*inside).Inner().Drawing().Area();
    for (host::ScrollBar* bar : {across.get(), down.get()}) {
        bar->SetMax(1000);
        bar->SetSmallChange(10);
        bar->SetLargeChange(500);
    }
    const auto turn = [&](QPoint by, Qt::KeyboardModifiers held = {}) {
        testing::TurnWheel(area, by, held);
        return std::pair(across->ScrollValue(), down->ScrollValue());
    };
    const auto notch = static_cast<std::int16_t>(10 * QApplication::wheelScrollLines());
    const std::int16_t none = 0;
    EXPECT_EQ(turn({0, -120}), std::pair(none, notch));
    EXPECT_EQ(turn({0, -120}, Qt::ShiftModifier), std::pair(notch, notch));
    EXPECT_EQ(turn({0, 120}, Qt::ShiftModifier), std::pair(none, notch));
    EXPECT_EQ(turn({-120, 0}), std::pair(notch, notch));
    down->SetEnabled(false);
    across->SetVisible(false);
    EXPECT_EQ(turn({0, -120}), std::pair(notch, notch));
    EXPECT_EQ(turn({-120, 0}), std::pair(notch, notch));
}

TEST_F(QtConstituentsTest, APictureBoxClipsWhatLiesInIt) {
    auto box = Parts().AddPictureBox({.name = u"P", .placement = {.width = 1500, .height = 900}});
    host::Design design{
        .name = u"inside", .parent = box.get(), .placement = {-300, -300, 6000, 6000}};
    auto inside = Parts().AddControl(design, u"testing.Painting");
    const QRegion seen =
        dynamic_cast<EmbeddedControl&>(*inside).Inner().Drawing().Area().visibleRegion();
    EXPECT_EQ(seen.boundingRect().width() * 15, box->ScaleWidth());
    EXPECT_EQ(seen.boundingRect().height() * 15, box->ScaleHeight());
    EXPECT_EQ(inside->Place().left, -300);
}

TEST_F(QtConstituentsTest, AFontChangedByItsHolderIsShown) {
    auto box = Parts().AddTextBox(Boxed(), edits_);
    const int size = WidgetOf(*box).font().pixelSize();
    box->CurrentFont()->SetSize(20);
    box->Refresh();
    EXPECT_GT(WidgetOf(*box).font().pixelSize(), size);
    auto shared = std::make_shared<Font>(u"Arial", 10.0F);
    box->SetCurrentFont(shared);
    shared->SetBold(true);
    QTest::qWait(10);
    EXPECT_TRUE(WidgetOf(*box).font().bold());
}

}  // namespace
}  // namespace lumenkit::qt
