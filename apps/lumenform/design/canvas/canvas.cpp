#include "apps/lumenform/design/canvas/canvas.h"

#include <QEvent>
#include <algorithm>

#include "apps/lumenform/design/look/focus_look.h"

namespace lumenkit::lumenform {

Canvas::Canvas(FormDesign& design, QWidget* parent)
    : QScrollArea(parent),
      design_(design),
      dots_(grid_),
      desk_(new Desk),
      glass_(new Glass(design, grid_, *desk_)) {
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

void Canvas::FollowView() {
    desk_->Show(design_.View());
    dots_.Follow(design_.View());
    glass_->FollowView();
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
