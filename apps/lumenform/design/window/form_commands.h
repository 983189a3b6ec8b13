#pragma once

#include <QMenu>
#include <QUndoGroup>
#include <functional>
#include <vector>

#include "apps/lumenform/design/window/workbench.h"

namespace lumenkit::lumenform {

/// The menus with the commands for the open form. Commands that are not available are disabled.
class FormCommands final : public QObject {
    Q_OBJECT

 public:
    explicit FormCommands(QWidget& window);

    QMenu& EditMenu() const { return *edit_; }
    QMenu& FormatMenu() const { return *format_; }
    QAction& UndoAction() const { return *undo_; }
    QAction& RedoAction() const { return *redo_; }
    QAction& CaptionAction() const { return *caption_; }
    QAction& TabOrderAction() const { return *tabOrder_; }

    /// Puts the command that shows the code of the selection into the menu.
    void AddCodeCommand(QAction& code) { edit_->insertAction(tabOrder_, &code); }
    /// Uses this workbench from now on. Null disables all commands.
    void Follow(Workbench* workbench);

 private:
    /// The condition for a command to be enabled.
    enum class Needs { Form, Menus, Object, Selection, Two, Three, Page, Clipboard, OutOfView };
    struct Command {
        QAction* action;
        Needs needs;
    };

    void FillEdit();
    void AddHistoryCommands();
    void FinishEditingBefore(const QAction& action, void (QUndoGroup::*step)());
    void AddClipboardCommands();
    void AddOrderCommands();
    void FillFormat();
    void AddAlignments();
    QAction* Add(QMenu& menu, const QString& icon, const QString& title, const QKeySequence& keys,
                 Needs needs, const std::function<void(Workbench&)>& run);
    bool IsThere(Needs needs) const;
    void Update();

    Workbench* workbench_ = nullptr;
    QUndoGroup history_;
    std::vector<Command> commands_;
    QMenu* edit_;
    QMenu* format_;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QAction* caption_ = nullptr;
    QAction* tabOrder_ = nullptr;
};

}  // namespace lumenkit::lumenform
