#pragma once

#include <QPlainTextEdit>
#include <cstdint>
#include <optional>

#include "frame/host/text_box.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/document_text.h"
#include "runtime/qt/undo_steps.h"
#include "runtime/shared/edit_kind.h"

class QKeyEvent;

namespace lumenkit::qt {

/// The widget of a text box. The text is in Qt's document. An edit by the user, whatever its
/// source, is a change of the document that no call of SetContents made; it is notified when the
/// event ends that led to it.
///
/// Positions are in UTF-16 units of the text; CR LF counts as two.
class TextEdit final : public QPlainTextEdit {
 public:
    TextEdit(QWidget* parent, const host::TextBoxDesign& design, host::TextBoxEvents& events,
             ErrorSink errors);

    /// Stops all notifications.
    void Disconnect() { events_ = nullptr; }

    /// Returns a view that is valid until the text changes.
    TextView Contents() const { return text_.Units(); }
    /// Sets the text, puts the caret before it and notifies a change. Does nothing if the text is
    /// the same. The user can undo an assignment that is made while an event of the user is
    /// notified; after Change, it is a part of the edit that is notified, and an edit that it takes
    /// back leaves no undo step. Any other assignment clears the undo steps.
    void SetContents(TextView text);
    std::int32_t Length() const { return text_.Length(); }

    struct Selection {
        std::int32_t start = 0;
        std::int32_t end = 0;
    };
    Selection Selected() const;
    /// Requires 0 <= start <= end <= Length.
    void Select(Selection selection);

    void SetMaxLength(std::int32_t length) { maxLength_ = length; }
    bool IsLocked() const { return locked_; }
    void SetLocked(bool locked);

 protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    // A selection set by code. It can be where the cursor of the document cannot: between CR and
    // LF. It holds until the text changes or the cursor moves.
    struct Placed {
        Selection selection;
        int version = 0;
        int moves = 0;
    };

    using Assigning = shared::Assigning;

    bool IsPlaced() const;
    bool IsInBreak() const;
    void Assign(TextView text);
    void Replace(QTextCursor& cursor, TextView text);
    void FollowDocument(int from, int added);
    void NotifyChange();
    void Compose(const QInputMethodEvent& event);
    Text Commit(const QInputMethodEvent& event);
    void ShowComposition(const QInputMethodEvent& event, TextView committed);
    void Collapse(const Selection& selection);
    template <typename Handle>
    bool During(Handle&& handle);
    template <typename Notify>
    void Tell(Assigning assigning, Notify&& notify);
    template <typename Notify>
    void TellEvent(Notify&& notify);

    void Press(QKeyEvent& event);
    bool IsForWindow(const QKeyEvent& event) const;
    void Act(QKeyEvent& event);
    Text Pressed(TextView units);
    void Enter(TextView units, const QKeyEvent& event);
    void Command(char16_t unit, const QKeyEvent& event);
    void EnterText(UndoSteps::Kind kind, TextView units);
    void DeleteBackwards(bool word);
    void ReplaceSelection(UndoSteps::Kind kind, TextView text);
    template <typename Change>
    void Edit(UndoSteps::Kind kind, Change&& change);
    std::size_t Room() const;
    TextView SelectedUnits() const;
    void CopySelection() const;
    void Insert(const QMimeData& source);
    host::MouseArguments MouseOf(const QMouseEvent& event) const;
    void FitLines();

    host::TextBoxEvents* events_;
    ErrorSink errors_;
    bool multiLine_;
    DocumentText text_;
    UndoSteps steps_;
    Assigning assigning_ = Assigning::Forgets;
    int notified_ = 0;  // the version of the text of which the receiver of the events knows
    int tasks_ = 0;     // the events and assignments in progress, one inside the other
    int moves_ = 0;     // how often the cursor of the document moved
    std::optional<Placed> placed_;
    std::optional<Placed> composedOver_;  // the selection that a composition will replace
    std::int32_t maxLength_ = 0;
    bool locked_ = false;
    bool hasFocusNow_ = false;
    bool isPressed_ = false;
    bool hasDragged_ = false;  // since the last press
};

}  // namespace lumenkit::qt
