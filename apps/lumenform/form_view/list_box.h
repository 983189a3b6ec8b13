#pragma once

#include <QListWidget>

namespace lumenkit::lumenform {

/// A list box. With columns, the items continue in the next column, and the list scrolls to the
/// side.
class ListBox final : public QListWidget {
 public:
    explicit ListBox(const QStringList& items) { addItems(items); }

    /// Sets how many columns are visible. 0 is one column that scrolls up and down.
    void SetColumns(int columns);
    /// Puts a check box before each item.
    void AddCheckBoxes();

 protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    void FitColumns();

    int columns_ = 0;
};

}  // namespace lumenkit::lumenform
