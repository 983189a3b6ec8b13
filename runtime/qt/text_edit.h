#pragma once

#include <QPlainTextEdit>
#include <cstdint>
#include <memory>
#include <optional>

#include "frame/host/text_box.h"
#include "runtime/qt/boundary.h"

class QKeyEvent;

namespace lumenkit::qt {

/// The widget of a text box. It keeps the text separately from Qt's document. The document is
/// updated when code sets the text. The text is updated when the user edits: every edit, whatever
/// its source, is read from the change report of the document.
///
/// Positions are in UTF-16 units of the text; CR LF counts as two.
class TextEdit final : public QPlainTextEdit {
 public:
    TextEdit(QWidget* parent, const host::TextBoxDesign& design, host::TextBoxEvents& events,
             ErrorSink errors);

    /// Stops all notifications.
    void Disconnect() { events_ = nullptr; }

    const Text& Contents() const { return text_; }
    /// Sets the text, puts the caret before it, clears the undo steps and notifies a change. Does
    /// nothing if the text is the same.
    void SetContents(TextView text);
    std::int32_t Length() const;

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

 private:
    // Conversion between positions in the document and in the text.
    int ToDocumentPosition(std::int32_t unit) const;
    std::int32_t ToUnit(int documentPosition) const;

    void FollowDocument(int from, int added);
    void Follow(int from, int added);
    void ReadDocument();
    void NotifyChange();
    template <typename Handle>
    bool During(Handle&& handle);
    template <typename Tell>
    void TellEvent(Tell&& tell);

    void Press(QKeyEvent& event);
    Text Pressed(TextView units);
    void Enter(TextView units, const QKeyEvent& event);
    void Command(char16_t unit, const QKeyEvent& event);
    void EnterText(TextView units);
    void DeleteBackwards(bool word);
    void ReplaceSelection(TextView text);
    std::size_t Room() const;
    std::unique_ptr<QMimeData> Copied() const;
    void CopySelection() const;
    void Insert(const QMimeData& source);
    host::MouseArguments MouseOf(const QMouseEvent& event) const;
    void FitLines();

    host::TextBoxEvents* events_;
    ErrorSink errors_;
    Text text_;
    TextView entering_;                 // the text that is being put into the document
    std::optional<Selection> exactly_;  // the selection set by code, until it changes
    std::int32_t maxLength_ = 0;
    bool multiLine_;
    bool locked_ = false;
    bool isSetting_ = false;  // the document is being updated from the text
    bool hasChanged_ = false;
    bool hasLost_ = false;  // the text could not be updated from the document
    bool hasFocusNow_ = false;
    bool isPressed_ = false;
    int depth_ = 0;  // number of nested events
};

}  // namespace lumenkit::qt
