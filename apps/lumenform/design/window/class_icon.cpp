#include "apps/lumenform/design/window/class_icon.h"

#include <QPainter>
#include <algorithm>
#include <array>

#include "apps/lumenform/design/look/contrast.h"

namespace lumenkit::lumenform {

namespace {

constexpr int side = 20;  // of the square in which the icons are drawn
constexpr int sharpness = 4;

struct Pen {
    QPainter& painter;
    QColor ink;
    QColor accent;

    void Letter(const QString& text, QRectF where, bool bold) const {
        QFont font = painter.font();
        font.setPixelSize(static_cast<int>(where.height()));
        font.setBold(bold);
        painter.setFont(font);
        painter.drawText(where.adjusted(-4, -4, 4, 4), Qt::AlignCenter, text);
    }
    void Lines(double left, double right, std::initializer_list<double> rows) const {
        for (const double row : rows) {
            painter.drawLine(QPointF(left, row), QPointF(right, row));
        }
    }
    void Ring(double y, bool isFull) const {
        painter.drawEllipse(QPointF(5, y), 2.6, 2.6);
        if (isFull) {
            painter.save();
            painter.setBrush(ink);
            painter.drawEllipse(QPointF(5, y), 1, 1);
            painter.restore();
        }
    }
};

void DrawVLabel(const Pen& pen) {
    pen.Letter(QStringLiteral("A"), {2, 4, 8, 12}, true);
    pen.painter.setPen(pen.accent);
    pen.Letter(QStringLiteral("a"), {10, 5, 8, 12}, false);
    pen.painter.drawLine(QPointF(2, 17.5), QPointF(18, 17.5));
}

void DrawVMemo(const Pen& pen) {
    pen.painter.drawRect(QRectF(2, 3, 16, 14));
    pen.Lines(4.5, 12, {6.5, 9.5, 12.5});
    pen.painter.setPen(QPen(pen.accent, 1.6));
    pen.painter.drawLine(QPointF(14.5, 4), QPointF(14.5, 16));
}

void DrawVOptList(const Pen& pen) {
    pen.painter.drawRect(QRectF(1, 2, 18, 16));
    pen.painter.translate(1, 0);
    for (const double y : {5.5, 10.0, 14.5}) {
        pen.painter.setPen(QPen(y == 10.0 ? pen.accent : pen.ink, 1.2));
        pen.painter.drawEllipse(QPointF(4.5, y), 1.6, 1.6);
        pen.painter.drawLine(QPointF(8, y), QPointF(15, y));
    }
}

void DrawLabel(const Pen& pen) {
    pen.Letter(QStringLiteral("A"), {3, 3, 14, 14}, false);
}

void DrawTextBox(const Pen& pen) {
    pen.painter.drawRect(QRectF(1.5, 5, 17, 10));
    pen.Letter(QStringLiteral("ab"), {3, 6, 10, 8}, false);
    pen.painter.drawLine(QPointF(15, 7), QPointF(15, 13));
}

void DrawButton(const Pen& pen) {
    pen.painter.drawRoundedRect(QRectF(1.5, 5, 17, 10), 2.5, 2.5);
    pen.Lines(6, 14, {10});
}

void DrawCheckBox(const Pen& pen) {
    pen.painter.drawRect(QRectF(2, 6, 8, 8));
    pen.painter.drawPolyline(QPolygonF({QPointF(3.5, 10), QPointF(5.5, 12.5), QPointF(9, 7.5)}));
    pen.Lines(12.5, 18, {10});
}

void DrawOptionButton(const Pen& pen) {
    pen.painter.translate(1, 0);
    pen.Ring(10, true);
    pen.Lines(10, 17, {10});
}

void DrawFrame(const Pen& pen) {
    pen.painter.drawPolyline(QPolygonF({QPointF(4, 5), QPointF(2, 5), QPointF(2, 17),
                                        QPointF(18, 17), QPointF(18, 5), QPointF(12, 5)}));
    pen.Lines(5.5, 10.5, {5});
}

void DrawListBox(const Pen& pen) {
    pen.painter.drawRect(QRectF(2, 3, 16, 14));
    pen.painter.fillRect(QRectF(3, 7.5, 14, 4.5), pen.accent);
    pen.Lines(5, 14, {5.8, 14.2});
}

void DrawComboBox(const Pen& pen) {
    pen.painter.drawRect(QRectF(1.5, 5, 17, 10));
    pen.painter.drawLine(QPointF(12.5, 5), QPointF(12.5, 15));
    pen.painter.drawPolyline(QPolygonF({QPointF(14, 9), QPointF(15.5, 11.2), QPointF(17, 9)}));
}

void DrawPictureBox(const Pen& pen) {
    pen.painter.drawRect(QRectF(2, 3, 16, 14));
    pen.painter.drawEllipse(QPointF(7, 7.5), 1.6, 1.6);
    pen.painter.setPen(QPen(pen.accent, 1.4));
    pen.painter.drawPolyline(QPolygonF(
        {QPointF(3, 15.5), QPointF(8, 10.5), QPointF(11, 13), QPointF(14, 9), QPointF(17, 13)}));
}

void DrawForm(const Pen& pen) {
    pen.painter.drawRect(QRectF(2, 3, 16, 14));
    pen.painter.fillRect(QRectF(2, 3, 16, 3.5), pen.accent);
}

void DrawMenu(const Pen& pen) {
    pen.painter.drawRect(QRectF(4, 2, 12, 16));
    pen.painter.fillRect(QRectF(5, 7.5, 10, 4), pen.accent);
    pen.Lines(6.5, 13, {5.2, 14.4});
}

void DrawTabs(const Pen& pen) {
    pen.painter.drawRect(QRectF(2, 7, 16, 10));
    pen.painter.drawRect(QRectF(2, 3, 6, 4));
    pen.painter.drawRect(QRectF(8, 3, 6, 4));
}

void DrawPage(const Pen& pen) {
    pen.painter.drawRect(QRectF(2, 7, 16, 10));
    pen.painter.fillRect(QRectF(2, 3, 7, 4), pen.accent);
}

void DrawLine(const Pen& pen) {
    pen.painter.drawLine(QPointF(3, 16), QPointF(17, 4));
}

void DrawShape(const Pen& pen) {
    pen.painter.drawEllipse(QRectF(6, 6, 12, 10));
    pen.painter.drawRect(QRectF(2, 3, 10, 9));
}

void DrawTimer(const Pen& pen) {
    pen.painter.drawEllipse(QRectF(3, 3, 14, 14));
    pen.painter.drawPolyline(QPolygonF({QPointF(10, 5.5), QPointF(10, 10), QPointF(13, 12)}));
}

void DrawImage(const Pen& pen) {
    pen.painter.drawEllipse(QPointF(6.5, 6), 1.8, 1.8);
    pen.painter.setPen(QPen(pen.accent, 1.4));
    pen.painter.drawPolyline(QPolygonF(
        {QPointF(2, 16), QPointF(8, 9.5), QPointF(11, 13), QPointF(14, 8), QPointF(18, 14)}));
}

// An arrow head at the tip, which points by a step of 1 to the left, right, up or down.
void DrawArrow(const Pen& pen, QPointF tip, QPointF to) {
    const QPointF back = tip - to * 2.2;
    const QPointF aside = QPointF(to.y(), to.x()) * 2.2;
    pen.painter.drawPolyline(QPolygonF({back - aside, tip, back + aside}));
}

void DrawHScrollBar(const Pen& pen) {
    pen.painter.drawRect(QRectF(1, 6, 18, 8));
    pen.painter.fillRect(QRectF(8, 7.5, 5, 5), pen.accent);
    DrawArrow(pen, {3, 10}, {-1, 0});
    DrawArrow(pen, {17, 10}, {1, 0});
}

void DrawVScrollBar(const Pen& pen) {
    pen.painter.drawRect(QRectF(6, 1, 8, 18));
    pen.painter.fillRect(QRectF(7.5, 8, 5, 5), pen.accent);
    DrawArrow(pen, {10, 3}, {0, -1});
    DrawArrow(pen, {10, 17}, {0, 1});
}

void DrawDrive(const Pen& pen) {
    pen.painter.drawRoundedRect(QRectF(2, 6, 16, 8), 1.5, 1.5);
    pen.Lines(4.5, 11, {11.5});
    pen.painter.fillRect(QRectF(13.5, 10.5, 2.5, 2), pen.accent);
}

void DrawFolder(const Pen& pen) {
    pen.painter.drawPolygon(QPolygonF({QPointF(2, 16), QPointF(2, 4.5), QPointF(8, 4.5),
                                       QPointF(9.5, 7), QPointF(18, 7), QPointF(18, 16)}));
    pen.painter.setPen(QPen(pen.accent, 1.4));
    pen.Lines(4.5, 15.5, {10});
}

void DrawFile(const Pen& pen) {
    pen.painter.drawPolygon(QPolygonF({QPointF(4.5, 2.5), QPointF(12, 2.5), QPointF(15.5, 6),
                                       QPointF(15.5, 17.5), QPointF(4.5, 17.5)}));
    pen.painter.setPen(QPen(pen.accent, 1.4));
    pen.Lines(7, 13, {8.5, 11.5, 14.5});
}

void DrawRecords(const Pen& pen) {
    pen.painter.drawRect(QRectF(1, 5, 18, 10));
    pen.painter.drawLine(QPointF(3, 7.8), QPointF(3, 12.2));
    DrawArrow(pen, {4.5, 10}, {-1, 0});
    DrawArrow(pen, {15.5, 10}, {1, 0});
    pen.painter.drawLine(QPointF(17, 7.8), QPointF(17, 12.2));
    pen.painter.fillRect(QRectF(8, 8.5, 4, 3), pen.accent);
}

void DrawDocument(const Pen& pen) {
    pen.painter.drawRect(QRectF(2, 3, 12, 12));
    pen.painter.fillRect(QRectF(8, 9, 10, 8), pen.accent);
    pen.Lines(4.5, 11.5, {6});
}

void DrawBox(const Pen& pen) {
    pen.painter.setPen(QPen(pen.ink, 1.2, Qt::DashLine));
    pen.painter.drawRect(QRectF(2, 4, 16, 12));
}

struct Drawing {
    TextView className;
    void (*draw)(const Pen& pen);
};

constexpr std::array drawings = {
    Drawing{u"lumenkit.VLabel", DrawVLabel},
    Drawing{u"lumenkit.VMemo", DrawVMemo},
    Drawing{u"lumenkit.VOptList", DrawVOptList},
    Drawing{u"VB.Label", DrawLabel},
    Drawing{u"VB.TextBox", DrawTextBox},
    Drawing{u"VB.CommandButton", DrawButton},
    Drawing{u"VB.CheckBox", DrawCheckBox},
    Drawing{u"VB.OptionButton", DrawOptionButton},
    Drawing{u"VB.Frame", DrawFrame},
    Drawing{u"VB.ListBox", DrawListBox},
    Drawing{u"VB.ComboBox", DrawComboBox},
    Drawing{u"VB.PictureBox", DrawPictureBox},
    Drawing{u"VB.Image", DrawImage},
    Drawing{u"VB.HScrollBar", DrawHScrollBar},
    Drawing{u"VB.VScrollBar", DrawVScrollBar},
    Drawing{u"VB.DriveListBox", DrawDrive},
    Drawing{u"VB.DirListBox", DrawFolder},
    Drawing{u"VB.FileListBox", DrawFile},
    Drawing{u"VB.Data", DrawRecords},
    Drawing{u"VB.OLE", DrawDocument},
    Drawing{u"VB.Form", DrawForm},
    Drawing{u"VB.MDIForm", DrawForm},
    Drawing{u"VB.Menu", DrawMenu},
    Drawing{u"TabDlg.SSTab", DrawTabs},
    Drawing{u"Page", DrawPage},
    Drawing{u"VB.Line", DrawLine},
    Drawing{u"VB.Shape", DrawShape},
    Drawing{u"VB.Timer", DrawTimer},
};

}  // namespace

namespace {

QPixmap Drawn(void (*draw)(const Pen& pen), const QColor& ink, const QColor& accent) {
    QPixmap pixmap(side * sharpness, side * sharpness);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(sharpness, sharpness);
    const Pen pen{painter, ink, accent};
    painter.setPen(QPen(ink, 1.2));
    draw(pen);
    return pixmap;
}

}  // namespace

QIcon ClassIcon(TextView className, const QPalette& palette) {
    const auto* const found = std::ranges::find_if(drawings, [&](const Drawing& drawing) {
        return SameText(drawing.className, className, Compare::IgnoreCase);
    });
    const auto draw = found == drawings.end() ? DrawBox : found->draw;
    const QColor base = palette.color(QPalette::Base);
    QIcon icon(Drawn(draw, palette.color(QPalette::Text),
                     Legible(palette.color(QPalette::Link), base, signContrast)));
    const QColor selected = palette.color(QPalette::HighlightedText);
    icon.addPixmap(Drawn(draw, selected, selected), QIcon::Selected);
    return icon;
}

}  // namespace lumenkit::lumenform
