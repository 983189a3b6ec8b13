// Text boxes, and labels that fit their texts.
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextDocument>
#include <random>

#include <gmock/gmock.h>

#include "apps/lumenform/form_view/text_watch.h"
#include "runtime/qt/pixels.h"
#include "tests/apps/lumenform/edited_design.h"
#include "tests/apps/lumenform/grabbed.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {
namespace {

using host::Placement;
using lumenform::Mode;
using ::testing::HasSubstr;

std::string Box(const std::string& properties, const char* className = "VB.TextBox") {
    return "   Begin " + std::string(className) + " T\n" + properties + " End\n";
}

// The picture of a box without the focus.
Grabbed Look(const std::string& properties, const char* className = "VB.TextBox") {
    const LoadedView view(FormWith(Box(properties, className)));
    view.view->setFocus();
    return Grabbed(view.Control(u"T").Widget());
}

TEST(TextKinds, ABoxShowsTheBeginningOfALongText) {
    for (const char* className : {"VB.TextBox", "VB.ComboBox"}) {
        const auto look = [&](const char* text) {
            return Look(" Width = 900\n Height = 315\n Text = \"" + std::string(text) + "\"\n",
                        className);
        };
        const Grabbed wide = look("MMMMMMMMMMMMMMMMMMMM");
        EXPECT_EQ(look("MMMMMMMMMMMMMMMMMMMI"), wide) << className;
        EXPECT_FALSE(look("IMMMMMMMMMMMMMMMMMMM") == wide) << className;
    }
    const std::string limited = " Width = 900\n MaxLength = 30\n Text = \"MMMMMMMMMMMMMMMMMMMM\"\n";
    const LoadedView view(FormWith(Box(limited)));
    EXPECT_EQ(As<QLineEdit>(view, u"T").cursorPosition(), 0);
}

TEST(TextKinds, TheFirstBoxOfAFormShowsTheBeginningToo) {
    for (const char* className : {"VB.TextBox", "VB.ComboBox"}) {
        const LoadedView view(
            FormWith(Box(" Width = 900\n Text = \"MMMMMMMMMMMMMMMMMMMM\"\n", className)));
        view.view->setFocus();
        view.view->FocusFirst();
        auto* const edit = view.Control(u"T").Widget().findChild<QLineEdit*>();
        const QLineEdit& box = edit == nullptr ? As<QLineEdit>(view, u"T") : *edit;
        EXPECT_EQ(box.selectedText().size(), 20) << className;
        EXPECT_EQ(box.cursorPosition(), 0) << className;
    }
}

TEST(TextKinds, AMultiLineBoxKeepsItsAlignment) {
    const auto startOf = [](const std::string& properties) {
        const LoadedView view(
            FormWith(Box(" Width = 3000\n Height = 900\n MultiLine = -1 'True\n Text = \"abc\"\n" +
                         properties)));
        auto& box = As<QPlainTextEdit>(view, u"T");
        return box.cursorRect().left() / static_cast<double>(box.viewport()->width());
    };
    EXPECT_LT(startOf(""), 0.1);
    EXPECT_LT(startOf(" ScrollBars = 1\n"), 0.1);
    EXPECT_GT(startOf(" Alignment = 1\n"), 0.8);
    EXPECT_NEAR(startOf(" Alignment = 2\n"), 0.45, 0.06);
    EXPECT_GT(startOf(" Alignment = 1\n ScrollBars = 3\n"), 0.8) << "its lines are wrapped";
}

TEST(TextKinds, ATallBoxHasItsTextAtTheTop) {
    const std::string tall = " Width = 1500\n Height = 1500\n";
    const QRect ink = Look(tall + " Text = \"Mg\"\n").DifferenceFrom(Look(tall));
    EXPECT_FALSE(ink.isEmpty());
    EXPECT_LT(ink.bottom(), 30);
}

// Labels. At every scale of the tests, 15 twips are a pixel.

constexpr float pixel = 15;

QSize SizeOf(const LoadedView& view, const char* text) {
    const QFontMetrics metrics = view.Control(u"T").Widget().fontMetrics();
    return metrics.boundingRect(QRect(0, 0, 5000, 100), 0, QString::fromLatin1(text)).size();
}

std::string Label(const std::string& properties) {
    return Box(" AutoSize = -1 'True\n Left = 1500\n Top = 600\n Width = 600\n Height = 900\n" +
                   properties,
               "VB.Label");
}

TEST(AutoSize, ALabelTakesTheSizeOfItsText) {
    for (const Mode mode : {Mode::Run, Mode::Design}) {
        const LoadedView view(FormWith(Label(" Caption = \"A longer text\"\n")), mode);
        const QWidget& label = view.Control(u"T").Widget();
        EXPECT_EQ(label.size(), SizeOf(view, "A longer text"));
        EXPECT_EQ(label.pos(), QPoint(100, 40));
        EXPECT_EQ(view.Control(u"T").Place().width, static_cast<float>(label.width()) * pixel);
    }
}

TEST(AutoSize, TheSignOfAMnemonicTakesNoRoom) {
    const LoadedView view(FormWith(Label(" Caption = \"A &longer text\"\n TabIndex = 0\n") +
                                   "   Begin VB.TextBox N\n TabIndex = 1\n End\n"));
    EXPECT_EQ(view.Control(u"T").Widget().width(), SizeOf(view, "A longer text").width());
    EXPECT_NE(As<QLabel>(view, u"T").buddy(), nullptr);
}

TEST(AutoSize, ALabelKeepsTheEdgeOfItsAlignment) {
    const auto placeOf = [](const std::string& properties) {
        const LoadedView view(FormWith(Label(" Caption = \"A longer text\"\n" + properties)));
        return view.Control(u"T").Place();
    };
    const Placement right = placeOf(" Alignment = 1\n");
    EXPECT_EQ(right.left + right.width, 2100);
    EXPECT_LT(right.left, 1500);
    const Placement centre = placeOf(" Alignment = 2\n");
    EXPECT_NEAR(centre.left + centre.width / 2, 1800, 1);
    EXPECT_LT(centre.left, 1500);
}

TEST(AutoSize, AWrappedLabelKeepsItsWidthAndChangesItsHeight) {
    const auto sizeOf = [](const std::string& properties) {
        const LoadedView view(FormWith(Label(" WordWrap = -1 'True\n" + properties)));
        const QWidget& label = view.Control(u"T").Widget();
        return QSize(label.width(), label.height() / label.fontMetrics().height());
    };
    EXPECT_EQ(sizeOf(" Caption = \"one\"\n"), QSize(40, 1));
    EXPECT_EQ(sizeOf(" Caption = \"one three seven\"\n"), QSize(40, 3));
    EXPECT_EQ(sizeOf(" Caption = \"one three seven\"\n Alignment = 1\n"), QSize(40, 3));
}

TEST(AutoSize, TheFormStaysAsItIsUntilTheLabelIsMoved) {
    for (const char* alignment : {"0", "1", "2"}) {
        const std::string properties =
            " Caption = \"A longer text\"\n Alignment = " + std::string(alignment) + "\n";
        EditedDesign edited(FormWith(Label(properties)));
        const std::string before = edited.Text();
        edited.design.View().Save();
        EXPECT_EQ(edited.Text(), before);
        Placement moved = edited.Control(u"T").Place();
        moved.left += 150;
        edited.design.Edit(QString(), [&] { edited.Control(u"T").Move(moved); });
        EXPECT_EQ(edited.Control(u"T").Place(), moved);
        EXPECT_EQ(EditedDesign(FormOf(edited.Text())).Control(u"T").Place(), moved) << alignment;
        EXPECT_THAT(edited.Text(), HasSubstr("Top = 600\n"));
        edited.design.History().undo();
        EXPECT_EQ(edited.Text(), before);
    }
}

TEST(AutoSize, AFittedLabelIsNotResizedByHand) {
    EditedDesign edited(FormWith(Label(" Caption = \"A longer text\"\n")));
    const std::string before = edited.Text();
    Placement wider = edited.Control(u"T").Place();
    wider.width += 600;
    edited.design.Edit(QString(), [&] { edited.Control(u"T").Move(wider); });
    EXPECT_LT(edited.Control(u"T").Place().width, wider.width);
    EXPECT_EQ(edited.Text(), before);
}

// Change of a box of several lines.

QPlainTextEdit& MultiLine(const LoadedView& view) {
    return As<QPlainTextEdit>(view, u"T");
}

const std::string multiLine = " MultiLine = -1 'True\n Width = 3000\n Height = 1500\n";

// The slow, literal rule: Change is raised when a report of Qt finds another text.
class ComparedTexts {
 public:
    explicit ComparedTexts(QPlainTextEdit& box) : text_(box.toPlainText()) {
        QObject::connect(&box, &QPlainTextEdit::textChanged, [this, &box] {
            if (QString now = box.toPlainText(); now != text_) {
                text_ = std::move(now);
                ++changes;
            }
        });
    }
    std::size_t changes = 0;

 private:
    QString text_;
};

void EditAtRandom(QPlainTextEdit& box, std::mt19937& random) {
    const auto below = [&](int limit) {
        return std::uniform_int_distribution<int>(0, std::max(limit - 1, 0))(random);
    };
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(below(box.document()->characterCount()));
    cursor.setPosition(below(box.document()->characterCount()),
                       below(2) == 0 ? QTextCursor::MoveAnchor : QTextCursor::KeepAnchor);
    box.setTextCursor(cursor);
    switch (below(9)) {
        case 0:
            QTest::keyClicks(&box, QStringLiteral("ab"));
            break;
        case 1:
            QTest::keyClick(&box, Qt::Key_Return);
            break;
        case 2:
            QTest::keyClick(&box, below(2) == 0 ? Qt::Key_Backspace : Qt::Key_Delete);
            break;
        case 3:
            box.undo();
            break;
        case 4:
            box.redo();
            break;
        case 5:
            box.insertPlainText(box.textCursor().selectedText());  // often the same text
            break;
        case 6:
            box.insertPlainText(below(2) == 0 ? QStringLiteral(" ") : QString(QChar(QChar::Nbsp)));
            break;
        case 7: {
            QInputMethodEvent composing(QStringLiteral("xy"), {});
            QApplication::sendEvent(&box, &composing);
            QInputMethodEvent ending;
            ending.setCommitString(below(2) == 0 ? QString() : QStringLiteral("z"));
            QApplication::sendEvent(&box, &ending);
            break;
        }
        default:
            box.setPlainText(below(2) == 0 ? box.toPlainText() : QStringLiteral("one\ntwo"));
            break;
    }
}

TEST(TextWatch, RaisesChangeWhenAComparisonOfTheTextsWould) {
    std::mt19937 random(TestSeed());
    const LoadedView view(FormWith(Box(multiLine + " Text = \"some text\"\n")));
    QPlainTextEdit& box = MultiLine(view);
    box.setFocus();
    const ComparedTexts compared(box);
    for (int round = Rounds(2000); round > 0; --round) {
        const std::size_t before = view.raised.size();
        const std::size_t expected = before + (0 - compared.changes);
        EditAtRandom(box, random);
        ASSERT_EQ(view.raised.size(), expected + compared.changes)
            << box.toPlainText().toStdString();
    }
    EXPECT_GT(compared.changes, 0U);
}

TEST(TextWatch, AKeyInALongTextReadsLittleOfIt) {
    const LoadedView view(FormWith(Box(multiLine)));
    QPlainTextEdit& box = MultiLine(view);
    box.setPlainText(QString(2000, u'x').append(u'\n').repeated(100));
    const lumenform::TextWatch* watch = nullptr;
    for (const QObject* child : box.children()) {
        watch = watch == nullptr ? dynamic_cast<const lumenform::TextWatch*>(child) : watch;
    }
    ASSERT_NE(watch, nullptr);
    const std::size_t before = watch->UnitsRead();
    EXPECT_GE(before, 200'000U);
    box.setFocus();
    box.moveCursor(QTextCursor::End);
    QTest::keyClicks(&box, QStringLiteral("abc"));
    EXPECT_LE(watch->UnitsRead() - before, 20U);
}

}  // namespace
}  // namespace lumenkit::testing
