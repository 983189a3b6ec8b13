#pragma once

#include <QMainWindow>
#include <string>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/outline/outline.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {

/// A form in the designer, with its outline in an active window.
class OutlinedForm {
 public:
    explicit OutlinedForm(forms::Document document);
    /// Takes only the lines inside the form: see FormWith.
    explicit OutlinedForm(const std::string& inner) : OutlinedForm(FormWith(inner)) {}

    /// Returns the rows that are shown, each with two dots per level before its name.
    std::vector<std::string> Rows() const;
    /// Returns the names of the selected rows, in the order of the tree.
    std::vector<std::string> SelectedRows() const;
    std::vector<std::string> Selected() const;
    /// Returns the row with this name. Throws if there is none.
    QModelIndex Row(const std::string& name) const;
    /// Returns the form as it would be written now.
    std::string Saved() const { return design.Document().Write().form; }

    void Click(const std::string& row, Qt::KeyboardModifiers held = {});
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {});
    /// Types another name into the current row, and returns when the editor is closed.
    void Rename(const std::string& name);
    /// Drags the selected rows to the upper edge, the middle or the lower edge (-1, 0, 1) of a row.
    /// Returns whether they can be dropped there.
    bool DragTo(const std::string& row, int side);

    Surface surface;
    lumenform::FormDesign design;
    QMainWindow window;
    lumenform::Outline* outline;
    std::vector<std::string> refused;

 private:
    lumenform::OutlineTree& Tree() const { return outline->Tree(); }
};

}  // namespace lumenkit::testing
