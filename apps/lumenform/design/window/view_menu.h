#pragma once

#include <QMenu>
#include <QSettings>

#include "apps/lumenform/design/window/workbench.h"
#include "apps/lumenform/design/window/zoom_menu.h"

namespace lumenkit::lumenform {

/// The menu for the form and its code, the outline, the zoom, the rulers and the grid. The settings
/// keep all but the zoom between sessions, and they are the same for all forms.
class ViewMenu final : public QMenu {
    Q_OBJECT

 public:
    /// The settings must outlive the menu.
    explicit ViewMenu(QSettings& settings, QWidget* parent = nullptr);

    /// Applies the settings and their later changes to this workbench. Null means none.
    void Follow(Workbench* workbench);
    const Grid& GetGrid() const { return grid_; }
    /// What is shown, and with it which commands are enabled.
    enum class Page { None, Form, Code };
    void SetPage(Page page);
    QAction& CodeAction() const { return *code_; }
    QMenu& GetZoomMenu() const { return *zoom_; }

 Q_SIGNALS:
    void CodeWanted();
    void FormWanted();
    /// Requests to move the keyboard to the next or former part of the window.
    void PartWanted(bool next);

 private:
    void AddSteps();
    void ShowOutline(bool on);
    void ShowRulers(bool on);
    void Change(const Grid& grid);

    QSettings& settings_;
    Grid grid_;
    QAction* code_;
    QAction* form_;
    QAction* outline_;
    ZoomMenu* zoom_;
    QAction* rulers_ = nullptr;
    QAction* nextPart_ = nullptr;
    QAction* formerPart_ = nullptr;
    Workbench* workbench_ = nullptr;
};

}  // namespace lumenkit::lumenform
