#pragma once

#include <QPlainTextEdit>
#include <cstdint>
#include <memory>
#include <optional>

#include "frame/host/text_box.h"
#include "runtime/qt/boundary.h"

class QKeyEvent;

namespace lumenkit::qt {

/// The widget of a text box. The text itself is kept beside Qt's document, which follows it when
/// code sets it and is followed when the user edits: every edit, however it comes about, reaches
/// the text by the document's own report of what changed.
///
/// Positions are UTF-16 units of the text, CR LF counted as two.
class TextEdit final : public QPlainTextEdit {
 public:
    TextEdit(QWidget* parent, const host::TextBoxDesign& design, host::TextBoxEvents& events,
             ErrorSink errors);

    /// Notifies nothing any more.
    void Disconnect() { events_ = nullptr; }

    const Text& Contents() const { return text_; }
    /// Puts the caret before the text and forgets what could be undone. Notifies of a change.
    void SetContents(TextView text);
    std::int32_t Length() const;

    struct Selection {
        std::int32_t start = 0;
        std::int32_t end = 0;
    };
    Selection Selected() const;
    /// From 0 to Length, in order.
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
    // Positions in the document and in the text.
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
    TextView entering_;                 // while it is put into the document
    std::optional<Selection> exactly_;  // what code selected, until something else is
    std::int32_t maxLength_ = 0;
    bool multiLine_;
    bool locked_ = false;
    bool isSetting_ = false;  // the document follows the text
    bool hasChanged_ = false;
    bool hasLost_ = false;  // the text could not follow the document
    bool hasFocusNow_ = false;
    bool isPressed_ = false;
    int depth_ = 0;  // of events under way
};

}  // namespace lumenkit::qt
