#pragma once

#include <QScrollArea>

#include "apps/lumenform/design/canvas/desk.h"
#include "apps/lumenform/design/canvas/glass.h"
#include "apps/lumenform/design/canvas/grid.h"
#include "apps/lumenform/design/canvas/grid_dots.h"
#include "apps/lumenform/design/model/design.h"

namespace lumenkit::form {

/// Where a form is designed by mouse and keyboard: controls are selected, moved, sized and drawn.
/// What the canvas changes it changes through the design, a step of its history each time.
class Canvas final : public QScrollArea {
    Q_OBJECT

 public:
    /// The design must outlive the canvas.
    explicit Canvas(Design& design, QWidget* parent = nullptr);
    ~Canvas() override;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    const Grid& GetGrid() const { return grid_; }
    /// A step of less than a twip is one twip.
    void SetGrid(const Grid& grid);

    /// The next drag or click draws a control of the class; then Drawn tells where.
    void BeginDrawing(const Text& className);
    /// Gives up drawing, as Esc does.
    void EndDrawing();
    bool IsDrawing() const { return glass_->IsDrawing(); }

    /// Whether the controls show their TabIndex, and get it by clicking one after the other.
    void SetTabOrderMode(bool on);
    bool IsTabOrderMode() const { return glass_->IsTabOrderMode(); }

    /// What the mouse reaches: what the form lies under.
    Glass& GetGlass() const { return *glass_; }

 Q_SIGNALS:
    /// By a double click or Enter: the control, or the form itself.
    void Activated(lumenkit::form::LiveControl& control);
    void FormActivated();
    /// What the menu is for is selected.
    void MenuRequested(QPoint globalPosition);
    /// A control of the class was drawn within `container`, which is null for the form, at a place
    /// in twips.
    void Drawn(const lumenkit::Text& className, lumenkit::form::LiveControl* container,
               const lumenkit::host::Placement& place);
    /// Drawing is over, with or without a control.
    void DrawingEnded();
    void TabOrderModeChanged(bool on);
    /// Where the mouse is, in twips from the upper left corner of the form's inside.
    void PointerMoved(QPointF twips);
    void PointerLeft();
    /// Something could not be done, and everything is as it was before.
    void Refused(const QString& why);

 private:
    void FollowView();
    void ConnectGlass();

    Design& design_;
    Grid grid_;
    GridDots dots_;
    Desk* desk_;
    Glass* glass_;
};

}  // namespace lumenkit::form
