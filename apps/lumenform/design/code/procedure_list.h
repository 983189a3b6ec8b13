#pragma once

#include <QListWidget>
#include <cstddef>
#include <vector>

#include "apps/lumenform/design/code/code_outline.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns the name of a procedure for its user: "Command1_Click", "Total (Get)", "(Declarations)".
QString NameOf(const Procedure& procedure);

/// The procedures of a form's code: the declarations first, then the event procedures of some
/// controls, the procedures that mention them, and all others.
class ProcedureList final : public QListWidget {
    Q_OBJECT

 public:
    explicit ProcedureList(QWidget* parent = nullptr);

    /// Shows the procedures of this outline, with those about these names first.
    void Show(const CodeOutline& outline, const std::vector<Text>& names);
    /// Makes the row of a procedure the current one.
    void SetCurrent(std::size_t procedure);

 Q_SIGNALS:
    /// The user has moved to a procedure.
    void Chosen(std::size_t procedure);
    /// The user wants to read the current procedure: Enter or a double click.
    void CodeWanted();

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void AddHeading(const QString& title);
    void AddRow(const Procedure& procedure, std::size_t index);
    void AddGroup(const QString& title, const CodeOutline& outline,
                  const std::vector<std::size_t>& procedures);
    void Choose(const QListWidgetItem* row);

    std::vector<QListWidgetItem*> rows_;  // by procedure
    bool isSyncing_ = false;
};

}  // namespace lumenkit::lumenform
