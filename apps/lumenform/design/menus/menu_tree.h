#pragma once

#include <QTreeWidget>
#include <cstddef>
#include <vector>

#include "apps/lumenform/design/model/menu_entries.h"
#include "apps/lumenform/design/model/menu_rules.h"

namespace lumenkit::lumenform {

/// The tree of menus in the dialog, with their captions, names and shortcut keys. Rows with a
/// problem have a warning sign.
class MenuTree final : public QTreeWidget {
    Q_OBJECT

 public:
    enum Column { Caption, Name, Shortcut, Columns };

    explicit MenuTree(QWidget* parent);

    /// Makes all rows anew and selects the one of an entry.
    void Show(const MenuEntries& menus, std::size_t current);
    /// Updates the texts and signs of the rows, which Show has made for the same entries.
    void Refresh(const MenuEntries& menus, const std::vector<MenuProblem>& problems);
    /// Returns the position of the current entry; 0 if there is none.
    std::size_t Current() const;

 Q_SIGNALS:
    /// The user has chosen another row.
    void Chosen();

 private:
    std::vector<QTreeWidgetItem*> rows_;  // of the entries
};

}  // namespace lumenkit::lumenform
