#pragma once

#include <QLineEdit>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QWidget>
#include <functional>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/outline/outline_model.h"
#include "apps/lumenform/design/outline/outline_moves.h"
#include "apps/lumenform/design/outline/outline_tree.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The tree of a form's objects with a search field. Its selection is the selection of the design.
/// Objects are renamed, deleted, put into another order and into other containers in it.
class Outline final : public QWidget {
    Q_OBJECT

 public:
    /// The design must outlive the outline.
    Outline(FormDesign& design, DrawClassIcon drawIcon, QWidget* parent = nullptr);
    ~Outline() override;
    Outline(const Outline&) = delete;
    Outline& operator=(const Outline&) = delete;

    OutlineTree& Tree() const { return *tree_; }
    QLineEdit& Search() const { return *search_; }
    /// Returns the names of the selected menus. The design selects controls only.
    std::vector<Text> SelectedMenus() const;

 Q_SIGNALS:
    /// The user has selected objects in the tree.
    void Chosen();
    /// The user wants to see the properties of the selection.
    void PropertiesWanted();
    void MenuRequested(QPoint globalPosition);
    /// An action failed and had no effect.
    void Refused(const QString& why);

 protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void LayOut();
    void ConnectParts();
    void FollowView();
    void Rebuild();
    void SearchFor(const QString& text);
    void RestoreExpansion();
    void RememberExpansion(const QModelIndex& index, bool isCollapsed);
    void TakeSelection();
    void ShowSelection();
    QModelIndex RowOf(const OutlineNode& node) const;
    const OutlineNode* NodeAt(const QModelIndex& row) const;
    OutlineNodes SelectedNodes() const;
    OutlineNodes NodesToShow() const;
    OutlinePlace PlaceAt(const QModelIndex& row, DropSide side) const;
    void Rename(const QModelIndex& index, const QString& name);
    void Try(const std::function<void()>& work);

    FormDesign& design_;
    OutlineModel model_;
    QSortFilterProxyModel* filter_;
    QLineEdit* search_;
    OutlineTree* tree_;
    QSet<QString> collapsed_;  // by the keys of the nodes
    bool isStale_ = true;      // not visible when the view was replaced
    bool isSyncing_ = false;
};

}  // namespace lumenkit::lumenform
