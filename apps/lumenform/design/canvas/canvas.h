#pragma once

#include <QScrollArea>
#include <QWheelEvent>
#include <memory>
#include <optional>

#include "apps/lumenform/design/canvas/desk.h"
#include "apps/lumenform/design/canvas/edge_scroll.h"
#include "apps/lumenform/design/canvas/glass.h"
#include "apps/lumenform/design/canvas/grid.h"
#include "apps/lumenform/design/canvas/grid_dots.h"
#include "apps/lumenform/design/canvas/rulers.h"
#include "apps/lumenform/design/model/drag_start.h"
#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// The area in which a form is designed by mouse and keyboard: controls are selected, moved, sized
/// and drawn. All changes go through the design, and each is a step of its history.
class Canvas final : public QScrollArea {
    Q_OBJECT

 public:
    /// The design must outlive the canvas.
    explicit Canvas(FormDesign& design, QWidget* parent = nullptr);
    ~Canvas() override;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    const Grid& GetGrid() const { return grid_; }
    /// Sets the grid, with a step of at least one twip.
    void SetGrid(const Grid& grid);

    /// Shows the form at a scale between Zoom::smallest and Zoom::largest percent. A point of the
    /// viewport, without one its middle, keeps its place on the form if the form scrolls that far.
    /// Does nothing during a drag.
    void SetZoom(int percent, std::optional<QPoint> about = std::nullopt);
    const Zoom& GetZoom() const { return desk_->GetZoom(); }
    /// Shows the whole form as large as possible.
    void FitZoom();

    /// Shows rulers along the upper and left edges.
    void ShowRulers(bool shown);
    const Rulers& GetRulers() const { return *rulers_; }

    /// Starts drawing: the next drag or click emits Drawn for a control of the class.
    void BeginDrawing(const Text& className);
    /// Cancels drawing, as Esc does.
    void EndDrawing();
    bool IsDrawing() const { return glass_->IsDrawing(); }

    /// Turns the tab order mode on or off: controls show their TabIndex and get a new one when they
    /// are clicked in turn.
    void SetTabOrderMode(bool on);
    bool IsTabOrderMode() const { return glass_->IsTabOrderMode(); }

    /// The widget over the form that receives mouse input.
    Glass& GetGlass() const { return *glass_; }

 Q_SIGNALS:
    /// A double click or Enter activated a control or the form itself.
    void Activated(lumenkit::lumenform::LiveControl& control);
    void FormActivated();
    /// A double click or Enter activated a menu in the menu bar of the form.
    void MenuActivated();
    /// A context menu is requested for the present selection.
    void MenuRequested(QPoint globalPosition);
    /// A control of the class was drawn in `container` at a place in twips. `container` is null for
    /// the form. The drag began at the corner `start` of the place.
    void Drawn(const lumenkit::Text& className, lumenkit::lumenform::LiveControl* container,
               const lumenkit::host::Placement& place, lumenkit::lumenform::DragStart start);
    /// Drawing has ended, with or without a control.
    void DrawingEnded();
    void TabOrderModeChanged(bool on);
    /// The position of the mouse, in twips from the upper left corner of the form's client area.
    void PointerMoved(QPointF twips);
    void PointerLeft();
    void ZoomChanged(int percent);
    /// An action failed and had no effect.
    void Refused(const QString& why);

 protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int across, int down) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void FollowView();
    void ScrollTo(const QRect& rect);
    void ConnectGlass();

    FormDesign& design_;
    Grid grid_;
    GridDots dots_;
    Desk* desk_;
    Glass* glass_;
    std::unique_ptr<Rulers> rulers_;
    EdgeScroll edges_;
    QPoint scrolled_;  // where the form should be, if there is room
    int wheel_ = 0;    // degrees / 8 that were no step yet
};

}  // namespace lumenkit::lumenform
