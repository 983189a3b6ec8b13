#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QList>
#include <QSet>
#include <QTreeWidget>

class QMenu;

namespace lumenkit::lumenform {

/// Lists the keys of all commands, and what keys and mouse do in the parts of the designer, with a
/// search.
class KeysDialog final : public QDialog {
    Q_OBJECT

 public:
    /// Lists the commands of `menus` that have keys, and those of their submenus.
    KeysDialog(const QList<QMenu*>& menus, QWidget* parent);

    QLineEdit& Search() const { return *search_; }
    QTreeWidget& Keys() const { return *keys_; }

 private:
    void LayOut();
    void FitColumns();
    void AddCommands(const QMenu& menu, QTreeWidgetItem& group);
    QTreeWidgetItem& AddGroup(const QString& title);
    void AddHints();
    void SearchFor(const QString& text);

    QLineEdit* search_;
    QTreeWidget* keys_;
    QSet<const QAction*> listed_;  // an action can be in two menus
};

}  // namespace lumenkit::lumenform
