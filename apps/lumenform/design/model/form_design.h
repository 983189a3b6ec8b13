#pragma once

#include <QObject>
#include <QUndoStack>
#include <functional>
#include <memory>
#include <vector>

#include "apps/lumenform/design/model/snapshot.h"
#include "apps/lumenform/form_view/form_view.h"
#include "forms/document.h"
#include "frame/text.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// Whether a change may leave more warnings in the document than there were.
enum class NewWarnings { Refuse, Accept };

/// Whether a step can merge with the previous step of the same kind.
enum class Merging { None, Nudges };

/// A form in the designer: its document, its view in design mode, the selection and the undo
/// history. The document always holds the state that would be saved.
class FormDesign final : public QObject {
    Q_OBJECT

 public:
    static constexpr int mostSteps = 200;

    /// Throws FormError as FormView does. The context must outlive the design.
    FormDesign(const qt::Context& context, forms::Document document);
    ~FormDesign() override;
    FormDesign(const FormDesign&) = delete;
    FormDesign& operator=(const FormDesign&) = delete;

    const qt::Context& Context() const { return context_; }
    forms::Document& Document() const { return *document_; }
    /// The form on the screen. A new view replaces it when blocks are added, removed or changed.
    /// The design owns it: a widget that becomes its parent must remove it before the widget is
    /// destroyed.
    FormView& View() const { return *view_; }

    /// The selected controls in the order of selection. The others are aligned with the last one.
    /// Empty if the form itself or a menu is selected.
    const std::vector<LiveControl*>& Selected() const { return selected_; }
    /// The blocks of the selected menus. Empty if a control is selected.
    const std::vector<forms::Block*>& SelectedMenus() const { return menus_; }
    bool IsFormSelected() const { return selected_.empty() && menus_.empty(); }
    /// The names in code of the selected controls or menus.
    std::vector<Text> SelectedNames() const;
    bool IsSelected(const LiveControl& control) const;
    void Select(std::vector<LiveControl*> controls);
    void SelectMenus(std::vector<forms::Block*> menus);
    /// Selects controls by their names in code, or menus if no control has one of the names.
    /// Ignores unknown names.
    void SelectNamed(const std::vector<Text>& names);

    /// Changes places and properties of live controls. The document follows, and the change becomes
    /// a step of the history unless it has no effect. If `change` throws (RuntimeError), or a text
    /// is not in the form's encoding (FormError), restores the former state and rethrows.
    void Edit(const QString& title, const std::function<void()>& change,
              Merging merging = Merging::None);
    /// Does the same for changes to the document's blocks, and then creates a new view. `change`
    /// returns the names of the controls or menus to select. A change that adds a value that cannot
    /// be used is refused: the former state is restored, and the warning is thrown as a FormError.
    void Restructure(const QString& title, const std::function<std::vector<Text>()>& change,
                     NewWarnings newWarnings = NewWarnings::Refuse);

    /// Takes the document that another program has written in place of this one, as a step of the
    /// history and without unsaved changes. Throws FormError as FormView does; then nothing
    /// changes.
    void Reload(forms::Document document);
    /// Takes other contents for the document, in this code page, as a step of the history. Throws
    /// FormError as FormView does, and for bytes that are no form; then nothing changes.
    void Take(const QString& title, const forms::FormBytes& bytes, int codePage);

    /// Writes the form in another code page from now on, as a step of the history. Throws FormError
    /// as forms::InCodePage does; then nothing changes.
    void WriteIn(int codePage);

    /// Undo, redo, and whether there are unsaved changes.
    QUndoStack& History() { return history_; }
    /// Change the file name of the document. See forms::Document::Rename.
    void Rename(const std::string& name);
    void Rename(const std::string& name, const std::string& companionName);

 Q_SIGNALS:
    /// View() and everything in it is new.
    void ViewReplaced();
    void SelectionChanged();
    /// The document has changed by an edit, undo or redo.
    void Edited();

 private:
    class Step;

    SharedSnapshot BeforeChange() const;
    void Push(const QString& title, SharedSnapshot before, Merging merging);
    void TakeStep(const QString& title, std::unique_ptr<forms::Document> document);
    void Replace(std::unique_ptr<forms::Document> document);
    void TakeSelection(std::vector<LiveControl*> controls, std::vector<forms::Block*> menus);
    void Restore(const SharedSnapshot& snapshot);

    const qt::Context& context_;
    std::unique_ptr<forms::Document> document_;
    std::unique_ptr<FormView> view_;
    std::vector<LiveControl*> selected_;
    std::vector<forms::Block*> menus_;  // selected
    SharedSnapshot now_;                // the present document
    QUndoStack history_;
};

}  // namespace lumenkit::lumenform
