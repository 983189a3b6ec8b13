#pragma once

#include <QModelIndex>
#include <string>
#include <vector>

#include "apps/lumenform/design/outline/outline.h"

namespace lumenkit::testing {

/// A user of an outline with mouse and keyboard.
class OutlineUser {
 public:
    OutlineUser() = default;
    /// The outline must outlive its user.
    explicit OutlineUser(const lumenform::Outline& outline) { Use(outline); }
    /// For a default-constructed user, before anything else.
    void Use(const lumenform::Outline& outline) { outline_ = &outline; }

    /// Returns the rows that are shown, each with two dots per level before its name.
    std::vector<std::string> Rows() const;
    /// Returns the names of the selected rows, in the order of the tree.
    std::vector<std::string> SelectedRows() const;
    /// Returns the row with this name. Throws if there is none.
    QModelIndex Row(const std::string& name) const;

    void Click(const std::string& row, Qt::KeyboardModifiers held = {});
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {});
    /// Types another name into the current row, and returns when the editor is closed.
    void Rename(const std::string& name);
    /// Drags the selected rows to the upper edge, the middle or the lower edge (-1, 0, 1) of a row.
    /// Returns whether they can be dropped there.
    bool DragTo(const std::string& row, int side);

 private:
    lumenform::OutlineTree& Tree() const { return outline_->Tree(); }

    const lumenform::Outline* outline_ = nullptr;
};

}  // namespace lumenkit::testing
