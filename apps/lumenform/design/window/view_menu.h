#pragma once

#include <QMenu>
#include <QSettings>

#include "apps/lumenform/design/canvas/canvas.h"

namespace lumenkit::form {

/// How the grid is: remembered from one time to the next, and the same for all forms.
class ViewMenu final : public QMenu {
    Q_OBJECT

 public:
    /// The settings must outlive the menu.
    explicit ViewMenu(QSettings& settings, QWidget* parent = nullptr);

    /// The canvas has this grid from now on, and every change of it; null: there is none.
    void Follow(Canvas* canvas);
    const Grid& GetGrid() const { return grid_; }

 private:
    void AddSteps();
    void Change(const Grid& grid);

    QSettings& settings_;
    Grid grid_;
    Canvas* canvas_ = nullptr;
};

}  // namespace lumenkit::form
