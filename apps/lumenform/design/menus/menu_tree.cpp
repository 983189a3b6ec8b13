#include "apps/lumenform/design/menus/menu_tree.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/model/menu_shortcuts.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

MenuTree::MenuTree(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(Columns);
    setHeaderLabels({tr("Caption"), tr("Name"), tr("Shortcut")});
    setAccessibleName(tr("Menus"));
    setItemsExpandable(false);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    const int letter = fontMetrics().averageCharWidth();
    setIndentation(3 * letter);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(Caption, QHeaderView::Stretch);
    for (const int column : {Name, Shortcut}) {
        header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
    constexpr int fewestLetters = 11;
    header()->setMinimumSectionSize(fewestLetters * letter);
    connect(this, &QTreeWidget::currentItemChanged, this, &MenuTree::Chosen);
}

void MenuTree::Show(const MenuEntries& menus, std::size_t current) {
    const QSignalBlocker quiet(this);
    clear();
    rows_.clear();
    std::vector<QTreeWidgetItem*> containers = {invisibleRootItem()};
    for (const MenuEntry& entry : menus) {
        const auto level = static_cast<std::size_t>(entry.level);
        containers.resize(level + 1);
        auto* const row = new QTreeWidgetItem(containers.back());
        rows_.push_back(row);
        containers.push_back(row);
    }
    expandAll();
    if (current < rows_.size()) {
        setCurrentItem(rows_[current]);
        scrollToItem(rows_[current]);
    }
}

void MenuTree::Refresh(const MenuEntries& menus, const std::vector<MenuProblem>& problems) {
    const QIcon sign = ThemeIcon(QStringLiteral("dialog-warning"));
    for (std::size_t at = 0; at < rows_.size(); ++at) {
        QTreeWidgetItem& row = *rows_[at];
        const MenuEntry& entry = menus[at];
        const auto problem = std::ranges::find(problems, at, &MenuProblem::entry);
        const bool isRight = problem == problems.end();
        row.setText(Caption, qt::ToQString(entry.caption));
        row.setText(Name, qt::ToQString(NameInCode(entry)));
        row.setText(Shortcut, qt::ToQString(ShownShortcut(entry.shortcut)));
        row.setIcon(Name, isRight ? QIcon() : sign);
        row.setToolTip(Name, isRight ? QString() : qt::ToQString(problem->why));
    }
}

std::size_t MenuTree::Current() const {
    const auto row = std::ranges::find(rows_, currentItem());
    return row == rows_.end() ? 0 : static_cast<std::size_t>(row - rows_.begin());
}

}  // namespace lumenkit::lumenform
