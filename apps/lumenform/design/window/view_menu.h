#pragma once

#include <QMenu>
#include <QSettings>

#include "apps/lumenform/design/canvas/canvas.h"

namespace lumenkit::lumenform {

/// The menu for the grid. The settings keep the grid between sessions, and it is the same for all
/// forms.
class ViewMenu final : public QMenu {
    Q_OBJECT

 public:
    /// The settings must outlive the menu.
    explicit ViewMenu(QSettings& settings, QWidget* parent = nullptr);

    /// Applies the grid and its later changes to this canvas. Null means none.
    void Follow(Canvas* canvas);
    const Grid& GetGrid() const { return grid_; }

 private:
    void AddSteps();
    void Change(const Grid& grid);

    QSettings& settings_;
    Grid grid_;
    Canvas* canvas_ = nullptr;
};

}  // namespace lumenkit::lumenform
