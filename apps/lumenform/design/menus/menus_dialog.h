#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <vector>

#include "apps/lumenform/design/menus/menu_fields.h"
#include "apps/lumenform/design/menus/menu_tree.h"
#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/model/menu_entries.h"
#include "apps/lumenform/design/model/menu_rules.h"
#include "apps/lumenform/design/properties/notice.h"

class QScrollArea;

namespace lumenkit::lumenform {

/// A dialog for all menus of a form. OK gives them to the form in one step of the history. While a
/// menu breaks a rule that it did not break before, the dialog says which and cannot be accepted.
class MenusDialog final : public QDialog {
    Q_OBJECT

 public:
    /// Begins with the selected menu of the design, which must outlive the dialog.
    explicit MenusDialog(FormDesign& design, QWidget* parent = nullptr);

    MenuTree& Tree() const { return *tree_; }
    const MenuEntries& Menus() const { return menus_; }
    /// The reason why the menus cannot be accepted, or an empty text.
    QString Message() const { return notice_->Text(); }

    void accept() override;

 private:
    using Move = std::size_t (*)(MenuEntries& menus, std::size_t at);
    using CanMove = bool (*)(const MenuEntries& menus, std::size_t at);
    // An action that needs a current entry.
    struct Action {
        QPushButton* button;
        CanMove isPossible;
    };

    void LayOut();
    QScrollArea* ScrolledFields();
    QVBoxLayout* Actions();
    QPushButton* AddAction(QVBoxLayout& actions, const QString& icon, const QString& title,
                           const QKeySequence& keys, const std::function<void()>& run);
    void AddMove(QVBoxLayout& actions, const QString& icon, const QString& title,
                 const QKeySequence& keys, Move step, CanMove isPossible);
    void AddNew(QVBoxLayout& actions, const QString& icon, const QString& title,
                const QKeySequence& keys, std::size_t (*add)(MenuEntries&, std::size_t, MenuEntry),
                const Text& caption);
    MenuEntry NewEntry(const Text& caption) const;
    void Rebuild(std::size_t current);
    void ShowCurrent();
    void Update();
    std::vector<MenuProblem> Problems() const;
    QString Describe(const std::vector<MenuProblem>& problems) const;

    FormDesign& design_;
    const MenuEntries former_;
    MenuEntries menus_;
    MenuTree* tree_;
    MenuFields* fields_;
    Notice* notice_;
    QDialogButtonBox* buttons_;
    std::vector<Action> actions_;
};

}  // namespace lumenkit::lumenform
