// The look of buttons, check boxes and option buttons.
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QTest>
#include <array>
#include <cstdlib>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/grabbed.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;

const std::array<std::string, 3> classes = {"VB.CommandButton", "VB.CheckBox", "VB.OptionButton"};

QAbstractButton& Button(const LoadedView& view, TextView name = u"B") {
    return dynamic_cast<QAbstractButton&>(view.Control(name).Widget());
}

// A control B behind a text box T, which takes the focus first.
std::string WithButton(const std::string& className, const std::string& properties) {
    return "   Begin VB.TextBox T\n Left = 3600\n Top = 2400\n Width = 600\n Height = 300\n"
           " TabIndex = 0\n End\n   Begin " +
           className + " B\n TabIndex = 1\n" + properties + " End\n";
}

// A view with a button, and the picture of the button without the focus.
struct ShownButton {
    ShownButton(const std::string& className, const std::string& properties,
                const std::string& companion = {})
        : view(FormWith(WithButton(className, properties), companion)),
          button(Button(view)),
          picture(Unfocused()) {}

    Grabbed Unfocused() {
        view.Control(u"T").Widget().setFocus();
        return Grabbed(button);
    }
    // The rectangle around the caption.
    QRect Ink() {
        const QString caption = button.text();
        button.setText(QString());
        const QRect ink = picture.DifferenceFrom(Unfocused());
        button.setText(caption);
        return ink;
    }

    LoadedView view;
    QAbstractButton& button;
    Grabbed picture;
};

Grabbed PictureOf(const std::string& className, const std::string& properties,
                  const std::string& companion = {}) {
    return ShownButton(className, properties, companion).picture;
}

std::string Sized(int width, int height, const std::string& more) {
    return " Width = " + std::to_string(width) + "\n Height = " + std::to_string(height) + "\n" +
           more;
}

TEST(ButtonLook, ALongCaptionIsWrappedAtTheWidthOfTheControl) {
    for (const std::string& className : classes) {
        for (const char* style : {"", " Style = 1\n"}) {
            ShownButton shown(
                className,
                Sized(1000, 1800,
                      std::string(style) + " Caption = \"one two three four five six seven\"\n"));
            const QRect ink = shown.Ink();
            EXPECT_GT(ink.height(), 2 * shown.button.fontMetrics().height()) << className;
            EXPECT_LE(ink.right(), 67) << className;
            EXPECT_NEAR(ink.center().y(), 60, 4) << className;
        }
    }
}

TEST(ButtonLook, ACaptionThatDoesNotFitIsCutAtItsEnd) {
    const auto word = [](const std::string& className, const char* caption) {
        return PictureOf(className,
                         Sized(900, 375, " Caption = \"" + std::string(caption) + "\"\n"));
    };
    const auto words = [](const std::string& className, const char* caption) {
        return PictureOf(className,
                         Sized(900, 375, " Caption = \"" + std::string(caption) + "\"\n"));
    };
    for (const std::string& className : classes) {
        const Grabbed wide = word(className, "MMMMMMMMMMMMMMMM");
        EXPECT_EQ(word(className, "MMMMMMMMMMMMMMMI"), wide) << className;
        EXPECT_FALSE(word(className, "IMMMMMMMMMMMMMMM") == wide) << className;
        const Grabbed high = words(className, "alpha beta gamma delta epsilon zeta");
        EXPECT_EQ(words(className, "alpha beta gamma delta epsilon iota"), high) << className;
        EXPECT_FALSE(words(className, "omega beta gamma delta epsilon zeta") == high) << className;
    }
}

TEST(ButtonLook, TheMnemonicIsUnderlinedAndWorks) {
    for (const std::string& className : classes) {
        ShownButton marked(className, Sized(1800, 450, " Caption = \"Send &it\"\n"));
        QTest::keyClick(&marked.view.Control(u"T").Widget(), Qt::Key_I, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !marked.view.raised.empty(); }));
        EXPECT_THAT(marked.view.raised, ElementsAre("B.Click")) << className;
        const Grabbed plain = PictureOf(className, Sized(1800, 450, " Caption = \"Send it\"\n"));
        const QRect line = marked.picture.DifferenceFrom(plain);
        EXPECT_FALSE(line.isEmpty()) << className;
        EXPECT_LE(line.height(), 4) << className;
        EXPECT_GT(line.top(), 15) << className;
    }
}

TEST(ButtonLook, ADisabledButtonIsGreyWhateverItsTextColour) {
    const auto isRed = [](const QColor& color) { return color.red() > color.green() + 80; };
    for (const std::string& className : classes) {
        const std::string red = Sized(1800, 450, " Caption = \"MMMM\"\n ForeColor = &H000000FF&\n");
        EXPECT_FALSE(PictureOf(className, red).Where(isRed).isEmpty()) << className;
        const Grabbed grey = PictureOf(className, red + " Enabled = 0 'False\n");
        EXPECT_TRUE(grey.Where(isRed).isEmpty()) << className;
        EXPECT_FALSE(grey == PictureOf(className, Sized(1800, 450, " Caption = \"MMMM\"\n")))
            << className;
    }
}

TEST(ButtonLook, TheFocusIsVisibleAroundTheCaption) {
    for (const std::string& className : classes) {
        ShownButton shown(className, Sized(2400, 600, " Caption = \"Send\"\n"));
        const QRect ink = shown.Ink();
        QTest::keyClick(&shown.view.Control(u"T").Widget(), Qt::Key_Tab);
        const QRect focus = Grabbed(shown.button).DifferenceFrom(shown.picture);
        EXPECT_TRUE(focus.contains(ink)) << className;
    }
}

TEST(ButtonLook, CaptionsHaveTheColoursOfThePalette) {
    const QPalette before = QApplication::palette();
    QPalette contrast(QColor(0, 0, 0));
    const QColor text(255, 255, 0);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        contrast.setColor(role, text);
    }
    QApplication::setPalette(contrast);
    for (const std::string& className : classes) {
        const Grabbed picture = PictureOf(className, Sized(1800, 450, " Caption = \"MMMMMMMM\"\n"));
        const QRect bright = picture.Where([](const QColor& color) {
            return color.red() > 200 && color.green() > 200 && color.blue() < 60;
        });
        EXPECT_GT(bright.width(), 30) << className;
    }
    QApplication::setPalette(before);
}

TEST(ButtonLook, ACaptionBesideAMarkOnTheRightBeginsAtTheLeft) {
    for (const std::string& className : {classes[1], classes[2]}) {
        ShownButton shown(className, Sized(2400, 450, " Alignment = 1\n Caption = \"Ready?\"\n"));
        EXPECT_LT(shown.Ink().left(), 10) << className;
        EXPECT_LT(shown.Ink().right(), 100) << className;
        const Grabbed checked = PictureOf(className, Sized(2400, 450,
                                                           " Alignment = 1\n Caption = \"Ready?\"\n"
                                                           " Value = 1\n"));
        EXPECT_GT(checked.DifferenceFrom(shown.picture).left(), 130) << className;
    }
}

TEST(ButtonLook, AGreyedCheckBoxHasTheMarkOfADisabledOne) {
    const QRect mark(0, 0, 20, 30);
    const auto look = [&](const std::string& properties) {
        return PictureOf("VB.CheckBox", Sized(1800, 450, properties)).Part(mark);
    };
    const QImage greyed = look(" Value = 2\n");
    EXPECT_EQ(greyed, look(" Value = 1\n Enabled = 0 'False\n"));
    EXPECT_NE(greyed, look(" Value = 1\n"));
    EXPECT_NE(greyed, look(" Value = 0\n"));
}

TEST(ButtonLook, AClickUnchecksAGreyedCheckBox) {
    for (const char* style : {"", " Style = 1\n"}) {
        ShownButton shown("VB.CheckBox", Sized(1800, 450, std::string(style) + " Value = 2\n"));
        auto& box = dynamic_cast<QCheckBox&>(shown.button);
        EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
        std::vector<Qt::CheckState> states;
        for (int clicks = 0; clicks < 3; ++clicks) {
            QTest::mouseClick(&box, Qt::LeftButton, {}, {box.width() - 4, 4});
            states.push_back(box.checkState());
        }
        EXPECT_THAT(states, ElementsAre(Qt::Unchecked, Qt::Checked, Qt::Unchecked));
        EXPECT_THAT(shown.view.raised, ElementsAre("B.Click", "B.Click", "B.Click"));
    }
}

TEST(GraphicalButton, StaysPressedWhileItIsChecked) {
    for (const std::string& className : {classes[1], classes[2]}) {
        const std::string graphical = Sized(1200, 900, " Style = 1\n");
        const Grabbed raised = PictureOf(className, graphical);
        ShownButton shown(className, graphical + " Value = 1\n");
        EXPECT_GT(shown.picture.DifferenceFrom(raised).width(), 70) << "the whole face";
        EXPECT_GT(shown.picture.DifferenceFrom(raised).height(), 50) << "the whole face";
        EXPECT_EQ(raised.At({12, 30}), raised.At({40, 30})) << "no mark";
        if (className == "VB.CheckBox") {
            QTest::mouseClick(&shown.button, Qt::LeftButton);
            EXPECT_FALSE(shown.button.isChecked());
            EXPECT_GT(shown.Unfocused().DifferenceFrom(shown.picture).width(), 70);
        }
    }
}

TEST(GraphicalButton, OptionsOfAGroupReleaseEachOther) {
    const LoadedView view(
        FormWith("   Begin VB.OptionButton A\n Style = 1\n Value = -1 'True\n Width = 600\n"
                 " Height = 600\n End\n"
                 "   Begin VB.OptionButton B\n Style = 1\n Left = 900\n Width = 600\n"
                 " Height = 600\n End\n"));
    QTest::mouseClick(&Button(view, u"B"), Qt::LeftButton);
    EXPECT_FALSE(Button(view, u"A").isChecked());
    EXPECT_TRUE(Button(view, u"B").isChecked());
    EXPECT_EQ(view.view->Client().TabStops().size(), 1U);
}

// Three pictures of 16 pixels: red, green and blue.
class GraphicalPictures : public ::testing::Test {
 protected:
    GraphicalPictures() {
        const QSize size(16, 16);
        const std::string one = PictureRecord(size, Qt::red);
        companion = one + PictureRecord(size, Qt::green) + PictureRecord(size, Qt::blue);
        const auto property = [&](const char* name, std::size_t index) {
            const QString at = QString::number(index * one.size(), 16).rightJustified(4, u'0');
            return " " + std::string(name) + " = \"x.frx\":" + at.toUpper().toStdString() + "\n";
        };
        properties =
            property("Picture", 0) + property("DownPicture", 1) + property("DisabledPicture", 2);
    }
    Grabbed Look(const std::string& className, const std::string& more) const {
        return PictureOf(className, Sized(1200, 900, " Caption = \"Go\"\n" + properties + more),
                         companion);
    }
    static QRect Of(const Grabbed& picture, const QColor& color) {
        return picture.Where([&](const QColor& one) { return one == color; });
    }

    // On a scaled screen, the edges can be between two pixels.
    static bool HasSize(const QRect& rect) {
        return std::abs(rect.width() - 16) <= 1 && std::abs(rect.height() - 16) <= 1;
    }

    std::string companion;
    std::string properties;
};

TEST_F(GraphicalPictures, LieAboveTheCaption) {
    for (const std::string& className : classes) {
        ShownButton shown(
            className, Sized(1200, 900, " Caption = \"Go\"\n Style = 1\n" + properties), companion);
        const QRect red = Of(shown.picture, Qt::red);
        EXPECT_TRUE(HasSize(red)) << className;
        EXPECT_NEAR(red.center().x(), 40, 1) << className;
        const QString caption = shown.button.text();
        shown.button.setText(QStringLiteral("No"));
        const QRect text = Grabbed(shown.button).DifferenceFrom(shown.picture);
        EXPECT_FALSE(text.isEmpty()) << className;
        EXPECT_GT(text.top(), red.bottom()) << className;
        shown.button.setText(QString());
        EXPECT_NEAR(Of(Grabbed(shown.button), Qt::red).center().y(), 30, 1) << "alone";
    }
}

TEST_F(GraphicalPictures, FollowTheState) {
    const std::string graphical = " Style = 1\n";
    for (const std::string& className : {classes[1], classes[2]}) {
        EXPECT_TRUE(HasSize(Of(Look(className, graphical + " Value = 1\n"), Qt::green)));
    }
    for (const std::string& className : classes) {
        const Grabbed disabled = Look(className, graphical + " Enabled = 0 'False\n");
        EXPECT_TRUE(HasSize(Of(disabled, Qt::blue))) << className;
        EXPECT_TRUE(Of(disabled, Qt::red).isEmpty()) << className;
    }
    ShownButton pressed("VB.CommandButton", Sized(1200, 900, graphical + properties), companion);
    pressed.button.setDown(true);
    EXPECT_TRUE(HasSize(Of(pressed.Unfocused(), Qt::green)));
}

TEST_F(GraphicalPictures, BelongToGraphicalButtonsOnly) {
    for (const std::string& className : classes) {
        EXPECT_TRUE(Of(Look(className, ""), Qt::red).isEmpty()) << className;
    }
}

TEST_F(GraphicalPictures, WithoutADisabledPictureTheUsualOneIsGreyed) {
    const std::string only = properties.substr(0, properties.find('\n') + 1);
    const auto isColored = [](const QColor& color) { return color.saturation() > 200; };
    const std::string look = Sized(1200, 900, " Style = 1\n" + only);
    EXPECT_FALSE(PictureOf("VB.CommandButton", look, companion).Where(isColored).isEmpty());
    const Grabbed grey = PictureOf("VB.CommandButton", look + " Enabled = 0 'False\n", companion);
    EXPECT_TRUE(grey.Where(isColored).isEmpty());
    EXPECT_FALSE(grey == PictureOf("VB.CommandButton",
                                   Sized(1200, 900, " Style = 1\n Enabled = 0 'False\n")));
}

TEST(GraphicalButton, HasItsOwnBackground) {
    const QColor color(0x20, 0xA0, 0xFF);
    const std::string colored = Sized(1200, 900, " BackColor = &H00FFA020&\n");
    for (const std::string& className : classes) {
        const Grabbed graphical = PictureOf(className, colored + " Style = 1\n");
        EXPECT_EQ(graphical.At({40, 30}), color) << className;
        EXPECT_EQ(graphical.At({5, 5}), color) << className;
    }
    const Grabbed pressed = PictureOf("VB.CheckBox", colored + " Style = 1\n Value = 1\n");
    EXPECT_NE(pressed.At({40, 30}), color);
    EXPECT_NEAR(pressed.At({40, 30}).hue(), color.hue(), 5);
}

TEST(GraphicalButton, AStandardButtonHasTheColoursOfTheSystem) {
    const Grabbed plain = PictureOf("VB.CommandButton", Sized(1200, 900, " Caption = \"Go\"\n"));
    EXPECT_EQ(PictureOf("VB.CommandButton",
                        Sized(1200, 900, " BackColor = &H00FFA020&\n Caption = \"Go\"\n")),
              plain);
}

TEST(GraphicalButton, ItsCaptionIsReadableOnItsBackground) {
    const auto look = [](const char* color) {
        return PictureOf("VB.CommandButton", Sized(1200, 900,
                                                   " Caption = \"MMMM\"\n Style = 1\n"
                                                   " BackColor = " +
                                                       std::string(color) + "\n"));
    };
    const QRect middle(15, 15, 50, 30);
    const auto isIn = [&](const QRect& ink) { return ink.intersects(middle); };
    EXPECT_TRUE(isIn(look("&H00200000&").Where([](const QColor& one) { return one.red() > 180; })));
    EXPECT_TRUE(isIn(look("&H00FFFFC0&").Where([](const QColor& one) { return one.blue() < 90; })));
}

}  // namespace
}  // namespace lumenkit::testing
