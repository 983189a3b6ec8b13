#include "apps/lumenform/form_view/likeness/grid.h"

#include <QAccessible>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>
#include <utility>
#include <vector>

#include "apps/lumenform/form_view/likeness/item_groups.h"
#include "apps/lumenform/form_view/likeness/painted.h"
#include "apps/lumenform/form_view/likeness/still.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr Color workspace{0x8000000C};
constexpr int mostCells = 512;  // in a row or column; no screen shows more
constexpr int cellMargin = 3;

struct GridColumn {
    QString heading = {};
    Qt::Alignment side = Qt::AlignLeft;
    int width = 0;  // pixels; 0: as wide as the heading
};

struct GridContent {
    QString caption;
    std::vector<GridColumn> columns;
    std::vector<QString> rowHeadings;  // from the first free row
    int rows = 0;
    int fixedRows = 1;
    int fixedColumns = 1;
    int lowestRow = 0;  // pixels
    Color ground = workspace;
    Color fixedGround = Color::ButtonFace;
    bool isBordered = true;
    bool isLined = true;
};

class GridPainter {
 public:
    GridPainter(const GridContent& content, const QWidget& widget, QPainter& painter)
        : content_(content),
          widget_(widget),
          painter_(painter),
          palette_(widget.palette()),
          rowHeight_(std::max(widget.fontMetrics().height() + 2, content.lowestRow)) {}

    void Paint() {
        QRect room = widget_.rect();
        if (content_.isBordered) {
            room = PaintFrame(room);
        }
        painter_.setClipRect(room);
        painter_.fillRect(room, qt::ToQColor(content_.ground, palette_));
        if (!content_.caption.isEmpty()) {
            const QRect bar(room.left(), room.top(), room.width(), rowHeight_);
            PaintCell(bar, true);
            painter_.drawText(bar, Qt::AlignCenter, content_.caption);
            room.setTop(bar.bottom() + 1);
        }
        PaintRows(room);
    }

 private:
    QRect PaintFrame(const QRect& room) const {
        QStyleOptionFrame frame;
        frame.initFrom(&widget_);
        frame.state |= QStyle::State_Sunken;
        frame.state &= ~QStyle::State_HasFocus;
        frame.frameShape = QFrame::StyledPanel;
        frame.lineWidth = widget_.style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
        widget_.style()->drawControl(QStyle::CE_ShapedFrame, &frame, &painter_, &widget_);
        const int edge = frame.lineWidth;
        return room.adjusted(edge, edge, -edge, -edge);
    }

    void PaintRows(const QRect& room) const {
        int top = room.top();
        for (int row = 0; row < content_.rows && top <= room.bottom(); ++row) {
            PaintRow(row, QRect(room.left(), top, room.width(), rowHeight_));
            top += rowHeight_;
        }
    }

    void PaintRow(int row, const QRect& room) const {
        int left = room.left();
        for (std::size_t index = 0; index < content_.columns.size() && left <= room.right();
             ++index) {
            const GridColumn& column = content_.columns[index];
            const QRect cell(left, room.top(), WidthOf(column), room.height());
            const bool isFixed =
                row < content_.fixedRows || static_cast<int>(index) < content_.fixedColumns;
            PaintCell(cell, isFixed);
            PaintText(cell, row, index);
            left += cell.width();
        }
    }

    void PaintCell(const QRect& cell, bool isFixed) const {
        const QColor back =
            isFixed ? qt::ToQColor(content_.fixedGround, palette_) : palette_.color(QPalette::Base);
        painter_.fillRect(cell, back);
        if (isFixed || content_.isLined) {
            painter_.setPen(palette_.color(isFixed ? QPalette::Dark : QPalette::Mid));
            painter_.drawLine(cell.topRight(), cell.bottomRight());
            painter_.drawLine(cell.bottomLeft(), cell.bottomRight());
        }
        painter_.setPen(palette_.color(isFixed ? QPalette::ButtonText : QPalette::Text));
    }

    void PaintText(const QRect& cell, int row, std::size_t column) const {
        const QRect room = cell.adjusted(cellMargin, 0, -cellMargin, 0);
        const auto fitted = [&](const QString& text) {
            return widget_.fontMetrics().elidedText(text, Qt::ElideRight, room.width());
        };
        const int rowHeading = row - content_.fixedRows;
        if (row == 0 && content_.fixedRows > 0) {
            painter_.drawText(room,
                              static_cast<int>(content_.columns[column].side | Qt::AlignVCenter),
                              fitted(content_.columns[column].heading));
        } else if (column == 0 && rowHeading >= 0 &&
                   rowHeading < static_cast<int>(content_.rowHeadings.size())) {
            painter_.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                              fitted(content_.rowHeadings[static_cast<std::size_t>(rowHeading)]));
        }
    }

    int WidthOf(const GridColumn& column) const {
        const QFontMetrics metrics = widget_.fontMetrics();
        return column.width > 0 ? column.width
                                : metrics.horizontalAdvance(column.heading) + 2 * cellMargin + 1;
    }

    const GridContent& content_;
    const QWidget& widget_;
    QPainter& painter_;
    QPalette palette_;
    int rowHeight_;
};

int PixelsOfTwips(float twips) {
    constexpr float longest = 200'000;
    return qt::ToPixels(std::clamp(twips, 0.0F, longest), qt::TwipsPerPixel::OfScreens().x);
}

PlainWidget GridWith(const BlockReader& reader, GridContent content) {
    auto grid = std::make_unique<Painted>(
        QAccessible::Table,
        [content = std::move(content)](const QWidget& widget, QPainter& painter) {
            GridPainter(content, widget, painter).Paint();
        });
    grid->setFocusPolicy(Qt::StrongFocus);
    return Likeness(reader, std::move(grid));
}

GridColumn ColumnOf(QString format) {
    GridColumn column;
    if (format.startsWith(u'<') || format.startsWith(u'^') || format.startsWith(u'>')) {
        column.side = format.startsWith(u'<')   ? Qt::AlignLeft
                      : format.startsWith(u'^') ? Qt::AlignHCenter
                                                : Qt::AlignRight;
        format.remove(0, 1);
    }
    column.heading = std::move(format);
    return column;
}

// "<Name|>Amount;|first row|second row": the headings of the columns, and of the rows after the
// semicolon. Blanks make a column wider.
void ReadFormat(const QString& format, GridContent& content) {
    const qsizetype end = format.indexOf(u';');
    const QStringList columns = format.left(end).split(u'|');
    for (qsizetype index = 0; index < std::min(columns.size(), qsizetype{mostCells}); ++index) {
        const auto at = static_cast<std::size_t>(index);
        content.columns.resize(std::max(content.columns.size(), at + 1));
        content.columns[at] = ColumnOf(columns[index]);
    }
    if (end >= 0) {
        const QStringList rows = format.mid(end + 1).split(u'|');
        for (qsizetype index = content.fixedRows;
             index < std::min(rows.size(), qsizetype{mostCells}); ++index) {
            content.rowHeadings.push_back(rows[index]);
        }
        content.rows = std::max(content.rows,
                                static_cast<int>(content.rowHeadings.size()) + content.fixedRows);
    }
}

int CountOf(const BlockReader& reader, TextView name, int otherwise) {
    return std::clamp(reader.Whole(name, otherwise), 0, mostCells);
}

}  // namespace

PlainWidget MakeFlexGrid(const BlockReader& reader, const PlainSink& /*raise*/) {
    constexpr float usualColumn = 960;  // twips
    GridContent content;
    content.rows = CountOf(reader, u"Rows", 2);
    content.fixedRows = CountOf(reader, u"FixedRows", 1);
    content.fixedColumns = CountOf(reader, u"FixedCols", 1);
    content.lowestRow = PixelsOfTwips(reader.Number(u"RowHeightMin", 0));
    content.ground = reader.ColorOf(u"BackColorBkg", workspace);
    content.fixedGround = reader.ColorOf(u"BackColorFixed", Color::ButtonFace);
    content.isBordered = reader.Whole(u"BorderStyle", 1) != 0;
    content.isLined = reader.Whole(u"GridLines", 1) != 0;
    content.columns.resize(static_cast<std::size_t>(CountOf(reader, u"Cols", 2)),
                           {.width = PixelsOfTwips(usualColumn)});
    if (const Text format = reader.String(u"FormatString"); !format.empty()) {
        ReadFormat(qt::ToQString(format), content);
    }
    return GridWith(reader, std::move(content));
}

PlainWidget MakeRecordGrid(const BlockReader& reader, const PlainSink& /*raise*/) {
    constexpr int markWidth = 20;
    constexpr int usualWidth = 96;
    constexpr int rowsShown = 3;
    GridContent content;
    content.caption = qt::ToQString(reader.String(u"Caption"));
    content.rows = rowsShown;
    content.isBordered = reader.Whole(u"BorderStyle", 1) != 0;
    content.fixedRows = reader.Flag(u"ColumnHeaders", true) ? 1 : 0;
    content.fixedColumns = reader.Flag(u"RecordSelectors", true) ? 1 : 0;
    if (content.fixedColumns > 0) {
        content.columns.push_back({.width = markWidth});
    }
    for (const BlockReader& column : NumberedGroups(reader, u"Column")) {
        if (content.columns.size() < mostCells) {
            content.columns.push_back(
                {.heading = qt::ToQString(column.String(u"Caption")), .width = usualWidth});
        }
    }
    const auto fixed = static_cast<std::size_t>(content.fixedColumns);
    content.columns.resize(std::max(content.columns.size(), fixed + 2), {.width = usualWidth});
    return GridWith(reader, std::move(content));
}

}  // namespace lumenkit::lumenform
