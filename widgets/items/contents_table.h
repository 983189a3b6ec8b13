#pragma once

#include <QTableView>

#include "widgets/items/contents_model.h"

namespace lumenkit::widgets {

/// The table of an option list. Alt+Up and Alt+Down move the current row, and so does the mouse. An
/// editor takes no character that its cell cannot have.
class ContentsTable final : public QTableView {
    Q_OBJECT

 public:
    ContentsTable(ContentsModel& model, QWidget* parent);

    int CurrentRow() const { return currentIndex().row(); }
    void AddRow();
    void RemoveRow();
    /// Moves the current row by -1 or 1.
    void MoveRow(int step);

 Q_SIGNALS:
    /// A typed text was refused, with the reason. An empty reason: the text is taken.
    void Refused(const QString& why);

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    ContentsModel& model_;
};

}  // namespace lumenkit::widgets
