#include "apps/lumenform/design/canvas/canvas.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>

#include "apps/lumenform/design/look/focus_look.h"

namespace lumenkit::lumenform {

Canvas::Canvas(FormDesign& design, QWidget* parent)
    : QScrollArea(parent),
      design_(design),
      dots_(grid_),
      desk_(new Desk),
      glass_(new Glass(design, grid_, desk_->GetZoom(), *desk_)),
      rulers_(std::make_unique<Rulers>(design, *glass_, *viewport(), *this)),
      edges_(*this) {
    setWidgetResizable(true);
    constexpr int frame = 2;
    setFrameStyle(int{QFrame::Box} | int{QFrame::Plain});
    setLineWidth(frame);
    setForegroundRole(QPalette::Mid);
    glass_->installEventFilter(this);
    desk_->Show(design.View());
    desk_->SetCover(*glass_);
    setWidget(desk_);
    setFocusProxy(glass_);
    dots_.Follow(design.View());
    glass_->FollowView();
    connect(&design, &FormDesign::ViewReplaced, this, &Canvas::FollowView);
    ConnectGlass();
}

Canvas::~Canvas() = default;

void Canvas::ConnectGlass() {
    connect(glass_, &Glass::Activated, this, &Canvas::Activated);
    connect(glass_, &Glass::FormActivated, this, &Canvas::FormActivated);
    connect(glass_, &Glass::MenuActivated, this, &Canvas::MenuActivated);
    connect(glass_, &Glass::MenuRequested, this, &Canvas::MenuRequested);
    connect(glass_, &Glass::Drawn, this, &Canvas::Drawn);
    connect(glass_, &Glass::DrawingEnded, this, &Canvas::DrawingEnded);
    connect(glass_, &Glass::TabOrderModeChanged, this, &Canvas::TabOrderModeChanged);
    connect(glass_, &Glass::PointerMoved, this, &Canvas::PointerMoved);
    connect(glass_, &Glass::PointerLeft, this, &Canvas::PointerLeft);
    connect(glass_, &Glass::Refused, this, &Canvas::Refused);
    connect(glass_, &Glass::Wanted, this, &Canvas::ScrollTo);
    connect(glass_, &Glass::Dragged, this,
            [this](QPoint at) { edges_.Follow(glass_->mapTo(viewport(), at)); });
    connect(glass_, &Glass::DragEnded, this, [this] { edges_.Stop(); });
    connect(glass_, &Glass::MarksChanged, this, [this] { rulers_->Follow(); });
    connect(glass_, &Glass::PointerMoved, this,
            [this](QPointF twips) { rulers_->FollowPointer(twips); });
    connect(glass_, &Glass::PointerLeft, this, [this] { rulers_->FollowPointer(std::nullopt); });
}

// The frame shows that the form has the keyboard.
bool Canvas::event(QEvent* event) {
    const bool isHandled = QScrollArea::event(event);
    if (event->type() == QEvent::Paint && glass_->hasFocus()) {
        DrawFocusFrame(*this, DeskColor(palette()));
    }
    return isHandled;
}

bool Canvas::eventFilter(QObject* watched, QEvent* event) {
    if (watched == glass_ &&
        (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        update();
    }
    return QScrollArea::eventFilter(watched, event);
}

void Canvas::ScrollTo(const QRect& rect) {
    if (glass_->visibleRegion().boundingRect().contains(rect)) {
        return;
    }
    constexpr int margin = 16;
    const QPoint center = rect.center();
    ensureVisible(center.x(), center.y(), rect.width() / 2 + margin, rect.height() / 2 + margin);
}

void Canvas::SetZoom(int percent, std::optional<QPoint> about) {
    percent = std::clamp(percent, Zoom::smallest, Zoom::largest);
    if (percent == GetZoom().percent || glass_->IsPressed()) {
        return;
    }
    const QPoint at = about.value_or(viewport()->rect().center());
    const QPointF onView = GetZoom().ToView(desk_->mapFrom(viewport(), at));
    desk_->SetPercent(percent);
    QEvent layout(QEvent::LayoutRequest);  // the range of the scroll bars is set at once
    QApplication::sendEvent(desk_, &layout);
    const QPoint onDesk = GetZoom().ToDesk(onView).toPoint();
    horizontalScrollBar()->setValue(onDesk.x() - at.x());
    verticalScrollBar()->setValue(onDesk.y() - at.y());
    dots_.Refresh();
    glass_->FollowZoom();
    Q_EMIT ZoomChanged(percent);
}

void Canvas::FitZoom() {
    SetZoom(desk_->FittingPercent(maximumViewportSize()));
}

void Canvas::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QScrollArea::wheelEvent(event);
        return;
    }
    constexpr int step = QWheelEvent::DefaultDeltasPerStep;
    wheel_ += event->angleDelta().y();
    int percent = GetZoom().percent;
    for (; std::abs(wheel_) >= step; wheel_ -= wheel_ > 0 ? step : -step) {
        percent = Zoom::Next(percent, wheel_ > 0);
    }
    SetZoom(percent, viewport()->mapFromGlobal(event->globalPosition().toPoint()));
    event->accept();
}

void Canvas::ShowRulers(bool shown) {
    if (shown == rulers_->IsShown()) {
        return;
    }
    const int margin = shown ? rulers_->Thickness() : 0;
    setViewportMargins(margin, margin, 0, 0);
    rulers_->SetShown(shown);
    rulers_->Arrange();
}

// What a smaller range of the scroll bars takes away comes back with the room: a trial run hides
// the bars of the window meanwhile.
void Canvas::resizeEvent(QResizeEvent* event) {
    const QPoint scrolled = scrolled_;
    QScrollArea::resizeEvent(event);
    horizontalScrollBar()->setValue(scrolled.x());
    verticalScrollBar()->setValue(scrolled.y());
    scrolled_ = scrolled;
    rulers_->Arrange();
}

void Canvas::scrollContentsBy(int across, int down) {
    QScrollArea::scrollContentsBy(across, down);
    scrolled_ = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    rulers_->Follow();
    glass_->FollowScroll();
}

void Canvas::FollowView() {
    desk_->Show(design_.View());
    dots_.Follow(design_.View());
    glass_->FollowView();
    rulers_->Follow();
}

void Canvas::SetGrid(const Grid& grid) {
    grid_ = grid;
    grid_.step = std::max(grid.step, 1.0F);
    dots_.Refresh();
}

void Canvas::BeginDrawing(const Text& className) {
    glass_->BeginDrawing(className);
}

void Canvas::EndDrawing() {
    glass_->EndDrawing();
}

void Canvas::SetTabOrderMode(bool on) {
    glass_->SetTabOrderMode(on);
}

}  // namespace lumenkit::lumenform
