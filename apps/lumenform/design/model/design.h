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

namespace lumenkit::form {

/// Whether a step may become one with the step of the same kind just before it.
enum class Merging { None, Nudges };

/// A form that is being designed: its document, its view in design mode, what is selected, and the
/// steps that can be undone. The document says at any time what would be saved.
class Design final : public QObject {
    Q_OBJECT

 public:
    static constexpr int mostSteps = 200;

    /// Throws FormError as FormView does. The context must outlive the design.
    Design(const qt::Context& context, forms::Document document);
    ~Design() override;
    Design(const Design&) = delete;
    Design& operator=(const Design&) = delete;

    const qt::Context& Context() const { return context_; }
    forms::Document& Document() const { return *document_; }
    /// The form on the screen; replaced by another one when blocks came, went or changed. The
    /// design owns it: whoever makes it a child of his own takes it out before he goes.
    FormView& View() const { return *view_; }

    /// The controls that are selected, in the order in which they were; the last one is what others
    /// are aligned with. Empty: the form itself.
    const std::vector<LiveControl*>& Selected() const { return selected_; }
    std::vector<Text> SelectedNames() const;
    bool IsSelected(const LiveControl& control) const;
    void Select(std::vector<LiveControl*> controls);
    /// By their names in code; what is not there is left out.
    void SelectNamed(const std::vector<Text>& names);

    /// Changes what live controls hold: places and properties. The document follows, and the change
    /// becomes a step of the history unless it changed nothing. What the change throws
    /// (RuntimeError), and FormError for a text that the form's encoding does not have, goes on to
    /// the caller; then everything is as it was before.
    void Edit(const QString& title, const std::function<void()>& change,
              Merging merging = Merging::None);
    /// The same for changes to the document's blocks, after which the view is made anew. `change`
    /// gives the names of the controls that are selected then. A FormError of the new view also
    /// takes everything back.
    void Restructure(const QString& title, const std::function<std::vector<Text>()>& change);

    /// Undo, redo, and whether there is something to save.
    QUndoStack& History() { return history_; }
    /// The document goes by another file name from now on; see forms::Document::Rename.
    void Rename(const std::string& name);

 Q_SIGNALS:
    /// View() is another one, and so is everything in it.
    void ViewReplaced();
    void SelectionChanged();
    /// The document changed, by an edit, undo or redo.
    void Edited();

 private:
    class Step;

    SharedSnapshot BeforeChange() const;
    void Push(const QString& title, SharedSnapshot before, Merging merging);
    void Replace(std::unique_ptr<forms::Document> document);
    void Restore(const SharedSnapshot& snapshot);

    const qt::Context& context_;
    std::unique_ptr<forms::Document> document_;
    std::unique_ptr<FormView> view_;
    std::vector<LiveControl*> selected_;
    SharedSnapshot now_;  // what the document is
    QUndoStack history_;
};

}  // namespace lumenkit::form
