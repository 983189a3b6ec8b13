#include "apps/lumenform/design/window/view_menu.h"

#include <QActionGroup>
#include <array>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

namespace {

QString OutlineKey() {
    return QStringLiteral("outline/shown");
}
QString StepKey() {
    return QStringLiteral("grid/step");
}
QString ShownKey() {
    return QStringLiteral("grid/shown");
}
QString GuidesKey() {
    return QStringLiteral("grid/guides");
}
QString SnapsKey() {
    return QStringLiteral("grid/snaps");
}

QString RulersKey() {
    return QStringLiteral("rulers/shown");
}

constexpr std::array steps = {30, 60, 90, 120, 180, 240};

Grid Stored(const QSettings& settings) {
    const Grid usual;
    Grid grid{.step = settings.value(StepKey(), usual.step).toFloat(),
              .isShown = settings.value(ShownKey(), usual.isShown).toBool(),
              .snaps = settings.value(SnapsKey(), usual.snaps).toBool(),
              .guides = settings.value(GuidesKey(), usual.guides).toBool()};
    if (!(grid.step >= steps.front() && grid.step <= steps.back())) {
        grid.step = usual.step;
    }
    return grid;
}

}  // namespace

ViewMenu::ViewMenu(QSettings& settings, QWidget* parent)
    : QMenu(tr("&View"), parent),
      settings_(settings),
      grid_(Stored(settings)),
      code_(addAction(ThemeIcon(QStringLiteral("code-context")), tr("&Code"))),
      form_(addAction(ThemeIcon(QStringLiteral("view-form")), tr("&Form"))),
      outline_(addAction(ThemeIcon(QStringLiteral("view-list-tree")), tr("&Outline"))),
      zoom_(new ZoomMenu(this)) {
    code_->setShortcut(Qt::Key_F7);
    code_->setToolTip(tr("The code of the form, at the first procedure of the selected control"));
    form_->setShortcut(Qt::SHIFT | Qt::Key_F7);
    connect(code_, &QAction::triggered, this, &ViewMenu::CodeWanted);
    connect(form_, &QAction::triggered, this, &ViewMenu::FormWanted);
    insertSeparator(outline_);
    outline_->setToolTip(tr("The tree of the form's objects"));
    outline_->setCheckable(true);
    outline_->setChecked(settings.value(OutlineKey(), true).toBool());
    connect(outline_, &QAction::toggled, this, &ViewMenu::ShowOutline);
    addMenu(zoom_);
    rulers_ = addAction(ThemeIcon(QStringLiteral("tool-measure")), tr("&Rulers"));
    rulers_->setToolTip(tr("Rulers in the units of the form"));
    rulers_->setCheckable(true);
    rulers_->setChecked(settings.value(RulersKey(), false).toBool());
    connect(rulers_, &QAction::toggled, this, &ViewMenu::ShowRulers);
    addSeparator();
    nextPart_ = addAction(ThemeIcon(QStringLiteral("go-next")), tr("&Next part of the window"),
                          this, [this] { Q_EMIT PartWanted(true); });
    nextPart_->setShortcut(Qt::Key_F6);
    formerPart_ =
        addAction(ThemeIcon(QStringLiteral("go-previous")), tr("&Previous part of the window"),
                  this, [this] { Q_EMIT PartWanted(false); });
    formerPart_->setShortcut(Qt::SHIFT | Qt::Key_F6);
    SetPage(Page::None);
    addSeparator();
    QAction* const shown = addAction(ThemeIcon(QStringLiteral("view-grid")), tr("Show the &grid"));
    shown->setCheckable(true);
    shown->setChecked(grid_.isShown);
    connect(shown, &QAction::toggled, this, [this](bool on) {
        Grid grid = grid_;
        grid.isShown = on;
        Change(grid);
    });
    QAction* const snaps = addAction(ThemeIcon(QStringLiteral("snap")), tr("&Snap to the grid"));
    snaps->setToolTip(tr("Hold Alt while dragging to ignore the grid"));
    snaps->setCheckable(true);
    snaps->setChecked(grid_.snaps);
    connect(snaps, &QAction::toggled, this, [this](bool on) {
        Grid grid = grid_;
        grid.snaps = on;
        Change(grid);
    });
    AddSteps();
    QAction* const guides = addAction(ThemeIcon(QStringLiteral("snap-bounding-box-edges")),
                                      tr("Snap to &other controls"));
    guides->setToolTip(
        tr("A dragged edge or baseline stops at those of the controls beside it; "
           "hold Alt to ignore them"));
    guides->setCheckable(true);
    guides->setChecked(grid_.guides);
    connect(guides, &QAction::toggled, this, [this](bool on) {
        Grid grid = grid_;
        grid.guides = on;
        Change(grid);
    });
}

void ViewMenu::AddSteps() {
    QMenu* const menu = addMenu(ThemeIcon(QStringLiteral("grid-rectangular")), tr("Grid s&tep"));
    auto* const group = new QActionGroup(menu);
    for (const int step : steps) {
        QAction* const action = menu->addAction(tr("%1 twips").arg(step));
        action->setCheckable(true);
        action->setChecked(grid_.step == static_cast<float>(step));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, step] {
            Grid grid = grid_;
            grid.step = static_cast<float>(step);
            Change(grid);
        });
    }
}

void ViewMenu::Follow(Workbench* workbench) {
    workbench_ = workbench;
    if (workbench != nullptr) {
        workbench->GetCanvas().SetGrid(grid_);
        workbench->GetOutline().setVisible(outline_->isChecked());
        workbench->GetCanvas().ShowRulers(rulers_->isChecked());
    }
}

void ViewMenu::SetPage(Page page) {
    code_->setEnabled(page == Page::Form);
    form_->setEnabled(page == Page::Code);
    zoom_->Follow(page == Page::Form && workbench_ != nullptr ? &workbench_->GetCanvas() : nullptr);
    nextPart_->setEnabled(page != Page::None);
    formerPart_->setEnabled(page != Page::None);
}

void ViewMenu::ShowOutline(bool on) {
    settings_.setValue(OutlineKey(), on);
    if (workbench_ != nullptr) {
        workbench_->GetOutline().setVisible(on);
    }
}

void ViewMenu::ShowRulers(bool on) {
    settings_.setValue(RulersKey(), on);
    if (workbench_ != nullptr) {
        workbench_->GetCanvas().ShowRulers(on);
    }
}

void ViewMenu::Change(const Grid& grid) {
    grid_ = grid;
    settings_.setValue(StepKey(), grid.step);
    settings_.setValue(ShownKey(), grid.isShown);
    settings_.setValue(SnapsKey(), grid.snaps);
    settings_.setValue(GuidesKey(), grid.guides);
    if (workbench_ != nullptr) {
        workbench_->GetCanvas().SetGrid(grid);
    }
}

}  // namespace lumenkit::lumenform
