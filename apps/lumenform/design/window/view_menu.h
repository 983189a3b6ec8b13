#pragma once

#include <QMenu>
#include <QSettings>

#include "apps/lumenform/design/window/workbench.h"

namespace lumenkit::lumenform {

/// The menu for the outline and the grid. The settings keep both between sessions, and they are the
/// same for all forms.
class ViewMenu final : public QMenu {
    Q_OBJECT

 public:
    /// The settings must outlive the menu.
    explicit ViewMenu(QSettings& settings, QWidget* parent = nullptr);

    /// Applies the settings and their later changes to this workbench. Null means none.
    void Follow(Workbench* workbench);
    const Grid& GetGrid() const { return grid_; }

 private:
    void AddSteps();
    void ShowOutline(bool on);
    void Change(const Grid& grid);

    QSettings& settings_;
    Grid grid_;
    QAction* outline_;
    Workbench* workbench_ = nullptr;
};

}  // namespace lumenkit::lumenform
