#include <QStyle>
#include <QStyleOptionSizeGrip>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <qdrawutil.h>

#include "apps/lumenform/form_view/likeness/bars.h"
#include "apps/lumenform/form_view/likeness/item_groups.h"
#include "apps/lumenform/form_view/likeness/painted.h"
#include "apps/lumenform/form_view/likeness/still.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

struct StatusPanel {
    QString text = {};
    Qt::Alignment side = Qt::AlignLeft;
    int width = 0;           // pixels
    bool isGreyed = false;   // the state of a key that is off
    bool takesRest = false;  // shares the room that the other panels leave
    bool isBordered = true;
};

using StatusPanels = std::vector<StatusPanel>;

constexpr int panelGap = 2;

StatusPanel PanelOf(const BlockReader& saved) {
    constexpr float usualWidth = 2540;  // hundredths of a millimetre
    constexpr std::array<const char*, 5> keys = {nullptr, "CAPS", "NUM", "INS", "SCRL"};
    constexpr std::array<Qt::AlignmentFlag, 3> sides = {Qt::AlignLeft, Qt::AlignHCenter,
                                                        Qt::AlignRight};
    StatusPanel panel;
    const std::int32_t key = saved.Choice(u"Style", std::int32_t{keys.size()}, 0);
    panel.isGreyed = key > 0;
    panel.text = key > 0 ? QString::fromLatin1(keys[static_cast<std::size_t>(key)])
                         : qt::ToQString(saved.String(u"Text", saved.String(u"TextSave")));
    panel.side = sides[static_cast<std::size_t>(saved.Choice(u"Alignment", sides.size(), 0))];
    panel.width = PixelsOfExtent(saved.Number(u"Object.Width", usualWidth));
    panel.takesRest = saved.Whole(u"AutoSize", 0) == 1;
    panel.isBordered = saved.Whole(u"Bevel", 1) != 0;
    return panel;
}

StatusPanels PanelsOf(const BlockReader& reader) {
    constexpr std::int32_t simple = 1;
    StatusPanels panels;
    if (reader.Whole(u"Style", 0) == simple) {
        panels.push_back({.text = qt::ToQString(reader.String(u"SimpleText")), .takesRest = true});
        return panels;
    }
    for (const BlockReader& saved : NumberedGroups(reader, u"Panels", u"Panel")) {
        if (saved.Flag(u"Object.Visible", true)) {
            panels.push_back(PanelOf(saved));
        }
    }
    return panels;
}

// Returns the pixels that each panel that takes the rest gets in addition.
int SpareRoom(const StatusPanels& panels, int room) {
    int used = 0;
    int sharing = 0;
    for (const StatusPanel& panel : panels) {
        used = std::min(used + (panel.takesRest ? 0 : panel.width + panelGap), room);
        sharing += panel.takesRest ? 1 : 0;
    }
    return sharing == 0 ? 0 : (room - used) / sharing - panelGap;
}

void PaintPanel(const StatusPanel& panel, const QRect& where, const QWidget& widget,
                QPainter& painter) {
    constexpr int inset = 4;
    if (panel.isBordered) {
        qDrawShadePanel(&painter, where, widget.palette(), true, 1);
    }
    const bool isGreyed = panel.isGreyed || !widget.isEnabled();
    painter.setPen(widget.palette().color(isGreyed ? QPalette::Disabled : QPalette::Active,
                                          QPalette::WindowText));
    const QRect room = where.adjusted(inset, 0, -inset, 0);
    painter.drawText(room, static_cast<int>(panel.side | Qt::AlignVCenter) | Qt::TextSingleLine,
                     widget.fontMetrics().elidedText(panel.text, Qt::ElideRight, room.width()));
}

void PaintGrip(const QWidget& widget, QPainter& painter) {
    constexpr int side = 13;
    QStyleOptionSizeGrip grip;
    grip.initFrom(&widget);
    grip.corner = Qt::BottomRightCorner;
    grip.rect = QRect(widget.width() - side, widget.height() - side, side, side);
    widget.style()->drawControl(QStyle::CE_SizeGrip, &grip, &painter, &widget);
}

void PaintPanels(const StatusPanels& panels, const QWidget& widget, QPainter& painter) {
    const int spare = SpareRoom(panels, widget.width());
    int left = 0;
    for (const StatusPanel& panel : panels) {
        const int width = panel.takesRest ? spare : std::min(panel.width, widget.width() - left);
        if (width <= 0) {
            continue;
        }
        PaintPanel(panel, QRect(left, panelGap, width, widget.height() - panelGap), widget,
                   painter);
        left += width + panelGap;
    }
    PaintGrip(widget, painter);
}

}  // namespace

PlainWidget MakeStatusBar(const BlockReader& reader, const PlainSink& /*raise*/) {
    const auto paint = [panels = PanelsOf(reader)](const QWidget& widget, QPainter& painter) {
        PaintPanels(panels, widget, painter);
    };
    auto bar = std::make_unique<Painted>(QAccessible::StatusBar, paint);
    bar->setAutoFillBackground(true);
    return Likeness(reader, std::move(bar));
}

}  // namespace lumenkit::lumenform
