#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include "apps/lumenform/design/canvas/edges.h"
#include "apps/lumenform/design/canvas/form_map.h"
#include "apps/lumenform/design/canvas/gesture.h"
#include "apps/lumenform/design/canvas/grid.h"
#include "apps/lumenform/design/canvas/place_label.h"
#include "apps/lumenform/design/canvas/tab_badges.h"
#include "apps/lumenform/design/model/drag_start.h"
#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// A transparent widget over the form in the designer. It receives all mouse and keyboard input and
/// draws the marks of the selection.
class Glass final : public QWidget {
    Q_OBJECT

 public:
    /// `desk`, the parent, shows the form at this zoom. All arguments must outlive the glass.
    Glass(FormDesign& design, const Grid& grid, const Zoom& zoom, QWidget& desk);
    ~Glass() override;
    Glass(const Glass&) = delete;
    Glass& operator=(const Glass&) = delete;

    /// Called when the design has a new view.
    void FollowView();

    void BeginDrawing(const Text& className);
    void EndDrawing();
    bool IsDrawing() const { return !drawnClass_.empty(); }
    void SetTabOrderMode(bool on);
    bool IsTabOrderMode() const { return isTabOrderMode_; }
    /// Called when the form is shown at another zoom.
    void FollowZoom();
    /// Called when the form was scrolled: the mouse is over another place of it.
    void FollowScroll();
    const FormMap& Map() const { return map_; }
    /// The rectangle around the selected controls. Empty if there is none.
    QRect SelectedRect() const;
    bool IsPressed() const { return press_.has_value(); }
    /// Scrolls to the control that was selected last.
    void ShowSelected();
    /// The part of the form's client area that is seen, in its twips. Empty if none is.
    QRectF SeenPart() const;

 Q_SIGNALS:
    // See the signals of Canvas.
    void Activated(LiveControl& control);
    void FormActivated();
    void MenuActivated();
    void MenuRequested(QPoint globalPosition);
    void Drawn(const Text& className, LiveControl* container, const host::Placement& place,
               DragStart start);
    void DrawingEnded();
    void TabOrderModeChanged(bool on);
    void PointerMoved(QPointF twips);
    void PointerLeft();
    void Refused(const QString& why);
    /// Requests scrolling to the rectangle.
    void Wanted(const QRect& rect);
    /// The mouse has dragged to a point.
    void Dragged(QPoint at);
    void DragEnded();
    /// The selection, or the place of what is selected, may have changed.
    void MarksChanged();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

 private:
    using GestureRef = std::unique_ptr<Gesture>;
    // A pressed button and the actions it can start: a drag, or else a click.
    struct Press {
        QPoint at;
        std::function<GestureRef()> drag;
        std::function<void()> click;
    };
    struct Grip {
        LiveControl* control = nullptr;  // null: the form
        Edges edges;
    };

    Ground ground() const { return {design_, map_, grid_}; }
    Press PressAt(QPoint at, Qt::KeyboardModifiers held);
    Press PressOnControl(LiveControl& control, QPoint at);
    void ShowPageAt(LiveControl& control, QPoint at);
    GestureRef StartPlacing(LiveControl& control, Edges edges, QPoint at);
    GestureRef StartDrawing(QPoint at);
    std::optional<Grip> GripAt(QPoint at) const;
    void Drag(QPoint at, Qt::KeyboardModifiers held);
    GestureRef EndGesture();
    void SelectForMenu(QPoint at);
    void Escape();
    void Activate();
    void UpdateCursor(QPoint at);
    void TellPointer(QPoint at);
    void TellSelection();
    void UpdateMarks();
    QRegion Marks() const;
    void PaintMarks(QPainter& painter) const;
    void PaintMenuMarks(QPainter& painter) const;
    void Try(const std::function<void()>& work);

    FormDesign& design_;
    const Grid& grid_;
    FormMap map_;
    TabBadges badges_;
    PlaceLabel* label_;
    std::optional<Press> press_;
    GestureRef gesture_;
    QPoint draggedTo_;
    std::optional<QPoint> pointer_;  // of the mouse over the glass, on the screen
    Qt::KeyboardModifiers held_;     // when it moved last
    Text drawnClass_;
    bool isTabOrderMode_ = false;
    QRegion marks_;  // as painted last
};

}  // namespace lumenkit::lumenform
