// The icons of the designer.
#include "apps/lumenform/design/icons/icons.h"

#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QSet>
#include <QToolBar>
#include <algorithm>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/opened_window.h"

namespace lumenkit::testing {
namespace {

using lumenform::ProgramIcon;
using lumenform::ThemeIcon;
using ::testing::IsEmpty;

// Puts a palette into the application, and the former one back at the end.
class PaletteOfApplication {
 public:
    explicit PaletteOfApplication(const QPalette& palette) : former_(QApplication::palette()) {
        QApplication::setPalette(palette);
    }
    ~PaletteOfApplication() { QApplication::setPalette(former_); }
    PaletteOfApplication(const PaletteOfApplication&) = delete;
    PaletteOfApplication& operator=(const PaletteOfApplication&) = delete;

 private:
    QPalette former_;
};

QPalette InkPalette(const QColor& ink) {
    QPalette palette(QColor(0xEE, 0xEE, 0xEE));
    palette.setColor(QPalette::Active, QPalette::WindowText, ink);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    return palette;
}

QImage PictureOf(const QIcon& icon, int side, double scale, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap({side, side}, scale, mode).toImage();
}

// Returns the colours of the opaque pixels, by name.
QSet<QString> InksOf(const QImage& picture) {
    QSet<QString> inks;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (const QColor color = picture.pixelColor(x, y); color.alpha() == 255) {
                inks.insert(color.name());
            }
        }
    }
    return inks;
}

QSet<QString> Only(const QColor& color) {
    return {color.name()};
}

TEST(Icons, HaveTheInkOfThePaletteInEachMode) {
    const PaletteOfApplication ink(InkPalette(Qt::darkBlue));
    const QIcon undo = ThemeIcon(QStringLiteral("edit-undo"));
    EXPECT_EQ(InksOf(PictureOf(undo, 22, 2)), Only(Qt::darkBlue));
    EXPECT_EQ(InksOf(PictureOf(undo, 22, 2, QIcon::Disabled)), Only(Qt::gray));
    EXPECT_EQ(InksOf(PictureOf(undo, 22, 2, QIcon::Selected)), Only(Qt::yellow));
}

TEST(Icons, FollowThePaletteAtRunTime) {
    const QIcon undo = ThemeIcon(QStringLiteral("edit-undo"));
    for (const QColor ink : {Qt::darkBlue, Qt::darkRed, Qt::darkBlue}) {
        const PaletteOfApplication changed(InkPalette(ink));
        EXPECT_EQ(InksOf(PictureOf(undo, 16, 2)), Only(ink));
    }
}

// The drawing of this icon has only edges between pixels.
TEST(Icons, AreSharpAtTheSizesOfTheirDrawings) {
    const QIcon add = ThemeIcon(QStringLiteral("list-remove"));
    for (const int side : {16, 22}) {
        for (const int scale : {1, 2, 3}) {
            const QImage picture = PictureOf(add, side, scale);
            ASSERT_EQ(picture.size(), QSize(side * scale, side * scale));
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    const int alpha = picture.pixelColor(x, y).alpha();
                    ASSERT_TRUE(alpha == 0 || alpha == 255) << side << " at " << scale;
                }
            }
        }
    }
}

TEST(Icons, ArePaintedAtThePixelsOfTheDevice) {
    const PaletteOfApplication ink(InkPalette(Qt::darkBlue));
    QImage paper(44, 44, QImage::Format_ARGB32_Premultiplied);
    paper.setDevicePixelRatio(2);
    paper.fill(Qt::transparent);
    QPainter painter(&paper);
    ThemeIcon(QStringLiteral("list-add")).paint(&painter, QRect(0, 0, 22, 22));
    painter.end();
    EXPECT_EQ(paper.pixelColor(22, 22), QColor(Qt::darkBlue));
}

TEST(Icons, AnUnknownNameIsNoIcon) {
    EXPECT_TRUE(ThemeIcon(QStringLiteral("no-such-icon")).isNull());
}

TEST(Icons, TheProgramKeepsItsColors) {
    QImage pictures[2];
    for (int at = 0; at < 2; ++at) {
        const PaletteOfApplication ink(InkPalette(at == 0 ? Qt::darkBlue : Qt::white));
        pictures[at] = PictureOf(ProgramIcon(), 48, 1);
    }
    EXPECT_GT(InksOf(pictures[0]).size(), 3);
    EXPECT_EQ(pictures[0], pictures[1]);
}

class IconsInTheWindow : public OpenedWindow {
 protected:
    // Returns the texts of the actions without an icon. A number needs none.
    static QStringList WithoutIcon(const QMenu& menu) {
        QStringList texts;
        for (const QAction* const action : menu.actions()) {
            if (!action->isSeparator() && !IsNumber(*action) && action->icon().isNull()) {
                texts.append(action->text());
            }
            if (action->menu() != nullptr) {
                texts += WithoutIcon(*action->menu());
            }
        }
        return texts;
    }
    static bool IsNumber(const QAction& action) {
        return !action.text().isEmpty() && action.text().front().isDigit();
    }
};

TEST_F(IconsInTheWindow, EachActionHasOne) {
    for (const QAction* const action : window.menuBar()->actions()) {
        EXPECT_THAT(WithoutIcon(*action->menu()), IsEmpty()) << action->text().toStdString();
    }
    for (const QAction* const action : window.findChild<QToolBar*>()->actions()) {
        EXPECT_TRUE(action->isSeparator() || !action->icon().isNull());
    }
    EXPECT_FALSE(window.windowIcon().isNull());
}

// A highlighted item has the icon in the colour for the highlight.
TEST_F(IconsInTheWindow, AHighlightedItemIsReadable) {
    QPalette palette = InkPalette(Qt::darkBlue);
    palette.setColor(QPalette::Highlight, Qt::darkBlue);
    const PaletteOfApplication contrast(palette);
    QMenu& menu = window.Commands().EditMenu();
    QAction* const find = menu.actions().at(1);
    find->setEnabled(true);
    menu.popup(QPoint(0, 0));
    menu.setActiveAction(find);
    const QRect row = menu.actionGeometry(find);
    const QImage picture =
        menu.grab(QRect(row.topLeft(), QSize(row.height(), row.height()))).toImage();
    menu.close();
    EXPECT_TRUE(InksOf(picture).contains(QColor(Qt::yellow).name()));
}

}  // namespace
}  // namespace lumenkit::testing
