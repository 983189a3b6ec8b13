// The contrasts of the designer in a light, a dark and a high-contrast palette.
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <algorithm>
#include <fstream>
#include <map>

#include <gmock/gmock.h>

#include "apps/lumenform/design/look/contrast.h"
#include "apps/lumenform/design/look/dark_palette.h"
#include "apps/lumenform/design/look/legible_palette.h"
#include "apps/lumenform/design/window/class_icon.h"
#include "tests/apps/lumenform/opened_window.h"

namespace lumenkit::testing {
namespace {

using lumenform::Contrast;
using lumenform::signContrast;
using lumenform::textContrast;

QPalette LightPalette() {
    return QApplication::style()->standardPalette();
}

QPalette HighContrastPalette() {
    QPalette palette(Qt::black);
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase,
                            QPalette::Button, QPalette::ToolTipBase}) {
        palette.setColor(role, Qt::black);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::ToolTipText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, Qt::green);
    }
    palette.setColor(QPalette::PlaceholderText, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, Qt::cyan);
    return palette;
}

struct NamedPalette {
    const char* name;
    QPalette (*make)();
};

// Sets the palette before the window is made, and the former one at the end.
class PaletteOfTest {
 public:
    PaletteOfTest(const PaletteOfTest&) = delete;
    PaletteOfTest& operator=(const PaletteOfTest&) = delete;

 protected:
    explicit PaletteOfTest(const QPalette& palette) : former_(QApplication::palette()) {
        QApplication::setPalette(palette);
    }
    ~PaletteOfTest() { QApplication::setPalette(former_); }

 private:
    QPalette former_;
};

// Returns the pixels of a rectangle of a widget, in all its pixels of the device.
QImage Shot(QWidget& widget, const QRect& rect) {
    return widget.grab(rect).toImage();
}

QImage Shot(QWidget& widget) {
    return Shot(widget, widget.rect());
}

// Returns the most frequent colour.
QColor GroundOf(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    return QColor::fromRgb(
        std::ranges::max_element(counts, {}, [](const auto& each) { return each.second; })->first);
}

// Returns the contrast of the strongest pixel to the ground. Letters are smoothed, and their middle
// has the colour of the text.
double StrongestOn(const QImage& picture, const QColor& ground) {
    double strongest = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            strongest = std::max(strongest, Contrast(picture.pixelColor(x, y), ground));
        }
    }
    return strongest;
}

double ContrastIn(const QImage& picture) {
    return StrongestOn(picture, GroundOf(picture));
}

class Look : public PaletteOfTest,
             public OpenedWindow,
             public ::testing::WithParamInterface<NamedPalette> {
 protected:
    Look() : PaletteOfTest(GetParam().make()) {}

    lumenform::Workbench& Bench() const { return *window.Bench(); }
    QImage RowOf(QAbstractItemView& list, const QModelIndex& index) const {
        return Shot(*list.viewport(), list.visualRect(index));
    }
    // The form as it is seen, without the controls on it.
    QImage FormAt(QRect onForm) const {
        QWidget& client = Design().View().Client();
        QWidget& desk = *Bench().GetCanvas().widget();
        return Shot(desk, onForm.translated(client.mapTo(&desk, QPoint(0, 0))));
    }
};

TEST_P(Look, TheColorsOfThePaletteAreLegible) {
    const QPalette palette = QApplication::palette();
    const auto contrast = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
        return Contrast(palette.color(text), palette.color(ground));
    };
    EXPECT_GE(contrast(QPalette::WindowText, QPalette::Window), textContrast);
    EXPECT_GE(contrast(QPalette::Text, QPalette::Base), textContrast);
    EXPECT_GE(contrast(QPalette::ButtonText, QPalette::Button), textContrast);
    EXPECT_GE(contrast(QPalette::HighlightedText, QPalette::Highlight), textContrast);
    EXPECT_GE(contrast(QPalette::Link, QPalette::Base), textContrast);
    EXPECT_GE(contrast(QPalette::ToolTipText, QPalette::ToolTipBase), textContrast);
    EXPECT_GE(contrast(QPalette::PlaceholderText, QPalette::Base), textContrast);
}

TEST_P(Look, ThePropertyListIsLegible) {
    window.Load(Copy("order"));
    Select(u"memPrint");
    lumenform::PropertyBrowser& browser = Bench().Properties();
    browser.Filter().Groups().setChecked(true);
    lumenform::PropertyTable& table = browser.Table();
    const QAbstractItemModel& model = *table.model();
    int bold = 0;
    int headings = 0;
    for (int row = 0; row < std::min(model.rowCount(), 14); ++row) {
        const QModelIndex name = model.index(row, 0);
        EXPECT_GE(ContrastIn(RowOf(table, name)), textContrast) << row;
        const bool isHeading = name.data(lumenform::PropertyModel::headingRole).toBool();
        headings += isHeading ? 1 : 0;
        bold += !isHeading && name.data(Qt::FontRole).isValid() ? 1 : 0;
    }
    EXPECT_GT(headings, 0);
    EXPECT_GT(bold, 0);
}

TEST_P(Look, TheOutlineAndTheToolboxAreLegible) {
    window.Load(Copy("order"));
    auto& tree = *Bench().GetOutline().findChild<QTreeView*>();
    for (int row = 0; row < 3; ++row) {
        const QModelIndex form = tree.model()->index(0, 0);
        for (int column = 0; column < 2; ++column) {
            EXPECT_GE(ContrastIn(RowOf(tree, tree.model()->index(row, column, form))), textContrast)
                << row << ", " << column;
        }
    }
    QListWidget& list = Bench().GetToolbox().List();
    for (int row = 0; row < 4; ++row) {
        EXPECT_GE(ContrastIn(RowOf(list, list.model()->index(row, 0))), textContrast) << row;
        list.setCurrentRow(row);
        EXPECT_GE(ContrastIn(RowOf(list, list.model()->index(row, 0))), textContrast) << row;
    }
}

TEST_P(Look, TheSignsOfClassesCanBeSeen) {
    const QPalette palette = QApplication::palette();
    const std::map<QIcon::Mode, QPalette::ColorRole> grounds{
        {QIcon::Normal, QPalette::Base}, {QIcon::Selected, QPalette::Highlight}};
    for (const TextView name : {u"VB.ListBox", u"VB.Form", u"lumenkit.VLabel"}) {
        const QIcon icon = lumenform::ClassIcon(name, palette);
        for (const auto& [mode, ground] : grounds) {
            const QImage picture = icon.pixmap({20, 20}, 4, mode).toImage();
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    const QColor color = picture.pixelColor(x, y);
                    if (color.alpha() == 255) {
                        ASSERT_GE(Contrast(color, palette.color(ground)), signContrast);
                    }
                }
            }
        }
    }
}

TEST_P(Look, TheBarAboutAChangedFileIsLegible) {
    window.Load(Copy("options"));
    std::ofstream(File(QStringLiteral("options.frm")), std::ios::app) << "' by others\r\n";
    window.Current()->LookAtDisk();
    lumenform::ChangedBar& bar = window.Current()->Bar();
    ASSERT_TRUE(bar.isVisible());
    EXPECT_GE(ContrastIn(Shot(*bar.findChild<QLabel*>())), textContrast);
    for (QPushButton* const button : bar.findChildren<QPushButton*>()) {
        EXPECT_GE(ContrastIn(Shot(*button)), textContrast) << button->text().toStdString();
    }
    const QColor ground = GroundOf(Shot(bar));
    const QColor windowColor = QApplication::palette().color(QPalette::Window);
    EXPECT_NE(ground, windowColor);
    EXPECT_LT(Contrast(ground, windowColor), signContrast) << "as light or dark as the window";
}

TEST_P(Look, HandlesAndDotsCanBeSeenOnTheForm) {
    window.Load(Copy("order"));
    Select(u"memPrint");
    const QRect memo = Design().View().Find(u"memPrint")->Widget().geometry();
    const QRect corner(memo.topLeft() - QPoint(7, 7), QSize(7, 7));
    const QColor ground = GroundOf(FormAt(Design().View().Client().rect()));
    EXPECT_GE(StrongestOn(FormAt(corner), ground), signContrast);
    Design().Select({});
    EXPECT_GE(StrongestOn(FormAt({0, 0, 9, 9}), ground), signContrast) << "a dot of the grid";
}

TEST_P(Look, TheFrameOfTheFocusCanBeSeen) {
    window.Load(Copy("order"));
    lumenform::Canvas& canvas = Bench().GetCanvas();
    canvas.GetGlass().setFocus();
    const QColor frame = Shot(canvas).pixelColor(0, 0);
    const QColor desk = Shot(*canvas.widget()).pixelColor(0, 0);
    EXPECT_GE(Contrast(frame, desk), signContrast);
    Bench().Properties().Table().setFocus();
    EXPECT_NE(Shot(canvas).pixelColor(0, 0), frame);
}

// The colours of the desktop must not be on those of the form.
TEST_P(Look, TextIsLegibleOnAGroundOfTheFormsOwn) {
    const std::string form =
        "VERSION 5.00\r\nBegin VB.Form F\r\n   BackColor = &H00FFFFFF&\r\n"
        "   ClientHeight = 3000\r\n   ClientWidth = 4000\r\n"
        "   Begin VB.Label Clear\r\n      BackStyle = 0\r\n      Caption = \"HHH\"\r\n"
        "      Height = 300\r\n      Left = 0\r\n      Top = 0\r\n      Width = 900\r\n   End\r\n"
        "   Begin VB.CheckBox White\r\n      BackColor = &H00FFFFFF&\r\n      Caption = \"HHH\"\r\n"
        "      Height = 300\r\n      Left = 0\r\n      Top = 600\r\n      Width = 900\r\n   End\r\n"
        "   Begin VB.TextBox Black\r\n      BackColor = &H00000000&\r\n      Text = \"HHH\"\r\n"
        "      Height = 300\r\n      Left = 0\r\n      Top = 1200\r\n      Width = 900\r\n   "
        "End\r\n"
        "End\r\nAttribute VB_Name = \"F\"\r\n";
    std::ofstream(File(QStringLiteral("own.frm")), std::ios::binary) << form;
    window.Load(Path(QStringLiteral("own.frm")));
    Bench().GetCanvas().SetGrid({.isShown = false});
    for (const TextView name : {u"Clear", u"White", u"Black"}) {
        const QRect place = Design().View().Find(name)->Widget().geometry();
        EXPECT_GE(ContrastIn(FormAt(place.adjusted(22, 3, -3, -3))), textContrast)
            << qPrintable(QString::fromUtf16(name.data()));
    }
}

INSTANTIATE_TEST_SUITE_P(Palettes, Look,
                         ::testing::Values(NamedPalette{"Light", LightPalette},
                                           NamedPalette{"Dark", lumenform::DarkPalette},
                                           NamedPalette{"HighContrast", HighContrastPalette}),
                         [](const auto& tested) { return tested.param.name; });

TEST(LegiblePalette, FollowsTheDesktopAndLeavesItsColors) {
    const QPalette former = QApplication::palette();
    QPalette pale(Qt::white);
    pale.setColor(QPalette::Highlight, QColor(0xEE, 0xEE, 0x00));
    pale.setColor(QPalette::HighlightedText, Qt::white);
    {
        const lumenform::LegiblePalette legible;
        QApplication::setPalette(pale);
        const QPalette now = QApplication::palette();
        EXPECT_GE(Contrast(now.color(QPalette::Highlight), Qt::white), textContrast);
    }
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(0xEE, 0xEE, 0x00));
    QApplication::setPalette(former);
}

TEST(Contrast, AColorThatIsLegibleStays) {
    EXPECT_EQ(lumenform::Legible(Qt::blue, Qt::white), QColor(Qt::blue));
    for (const QColor ground : {QColor(Qt::white), QColor(0x77, 0x77, 0x77), QColor(Qt::black)}) {
        EXPECT_GE(Contrast(lumenform::Legible(ground, ground), ground), textContrast);
    }
}

}  // namespace
}  // namespace lumenkit::testing
