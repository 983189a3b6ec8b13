#include "apps/lumenform/design/window/recent_forms.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/icons/menu_style.h"
#include "apps/lumenform/design/window/class_icon.h"

namespace lumenkit::lumenform {

namespace {

constexpr QSize pictureSize(180, 120);
constexpr int gap = 12;
constexpr int shownColumns = 3;

}  // namespace

RecentForms::RecentForms(QWidget* parent) : QListWidget(parent) {
    setAccessibleName(tr("Recent forms"));
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setIconSize(pictureSize);
    setGridSize(pictureSize + QSize(gap, gap + 3 * fontMetrics().height()));
    setTextElideMode(Qt::ElideMiddle);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this, &RecentForms::DrawNext);
    // Opening a form replaces the items, so it waits until the click is handled.
    connect(this, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        QTimer::singleShot(0, this, [this, path = PathOf(*item)] { Q_EMIT OpenWanted(path); });
    });
}

void RecentForms::Show(const QStringList& paths) {
    clear();
    for (const QString& path : paths) {
        const QFileInfo file(path);
        auto* const item =
            new QListWidgetItem(file.fileName() + u'\n' + file.dir().dirName(), this);
        item->setData(Qt::UserRole, path);
        item->setToolTip(path);
        item->setData(Qt::AccessibleTextRole, file.fileName());
        item->setData(Qt::AccessibleDescriptionRole, path);
        item->setIcon(Framed({}));
    }
    setCurrentRow(0);
    DrawAllAgain();
}

QSize RecentForms::sizeHint() const {
    return {shownColumns * gridSize().width() + 2 * gap, 2 * gridSize().height()};
}

// ---- Pictures

void RecentForms::DrawAllAgain() {
    next_ = 0;
    if (isVisible()) {
        idle_.start(0);
    }
}

void RecentForms::DrawNext() {
    if (IsDrawn() || !draw_) {
        return;
    }
    QListWidgetItem& drawn = *item(next_++);
    drawn.setIcon(Framed(draw_(PathOf(drawn), pictureSize - QSize(2, 2), devicePixelRatioF())));
    idle_.start(0);
}

// Returns the picture with a line around it, or the sign of a form, in the middle of an icon.
QPixmap RecentForms::Framed(const QPixmap& form) const {
    const double device = devicePixelRatioF();
    QPixmap framed(pictureSize * device);
    framed.setDevicePixelRatio(device);
    framed.fill(Qt::transparent);
    QPainter painter(&framed);
    const QRect all(QPoint(0, 0), pictureSize);
    if (form.isNull()) {
        constexpr int side = 40;
        ClassIcon(u"Form", palette())
            .paint(&painter,
                   QRect(0, 0, side, side).translated(all.center() - QPoint(side, side) / 2));
        return framed;
    }
    const QSizeF size = form.deviceIndependentSize();
    QRectF place(QPointF(0, 0), size);
    place.moveCenter(QRectF(all).center());
    place.moveTopLeft(place.topLeft().toPoint());
    painter.drawPixmap(place.topLeft(), form);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
    return framed;
}

void RecentForms::showEvent(QShowEvent* event) {
    QListWidget::showEvent(event);
    idle_.start(0);
}

void RecentForms::hideEvent(QHideEvent* event) {
    idle_.stop();
    QListWidget::hideEvent(event);
}

void RecentForms::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        DrawAllAgain();
    }
}

// ---- Keys and the menu

void RecentForms::keyPressEvent(QKeyEvent* event) {
    const QListWidgetItem* const item = currentItem();
    if (item != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        Q_EMIT OpenWanted(PathOf(*item));
    } else if (item != nullptr && event->key() == Qt::Key_Delete) {
        Q_EMIT ForgetWanted(PathOf(*item));
    } else {
        QListWidget::keyPressEvent(event);
    }
}

void RecentForms::contextMenuEvent(QContextMenuEvent* event) {
    const QListWidgetItem* const item =
        event->reason() == QContextMenuEvent::Mouse ? itemAt(event->pos()) : currentItem();
    if (item == nullptr) {
        return;
    }
    const QString path = PathOf(*item);
    QMenu menu(this);
    MenuStyle::UseFor(menu);
    menu.addAction(ThemeIcon(QStringLiteral("document-open")), tr("&Open"), this,
                   [this, path] { Q_EMIT OpenWanted(path); });
    menu.addAction(ThemeIcon(QStringLiteral("list-remove")), tr("&Remove from the list"), this,
                   [this, path] { Q_EMIT ForgetWanted(path); });
    menu.exec(event->reason() == QContextMenuEvent::Mouse
                  ? event->globalPos()
                  : viewport()->mapToGlobal(visualItemRect(item).center()));
}

}  // namespace lumenkit::lumenform
