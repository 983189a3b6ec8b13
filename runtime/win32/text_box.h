#pragma once

#include <cstdint>
#include <optional>

#include "frame/host/text_box.h"
#include "runtime/shared/edit_history.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

/// The platform's edit control. A locked box receives keys too, but they do not edit it. A locked
/// or disabled box keeps the colours of an editable one.
///
/// The box keeps the undo steps itself, because the edit control undoes one edit only and forgets
/// it when code assigns the text. The edit control's messages for undoing act on these steps.
///
/// The platform's texts end at their first unit 0, and so do assigned texts.
class TextBox final : public BasicTextConstituent<host::TextBox> {
 public:
    TextBox(const Elements& elements, const host::TextBoxDesign& design,
            host::TextBoxEvents& events);
    ~TextBox() override;
    TextBox(const TextBox&) = delete;
    TextBox& operator=(const TextBox&) = delete;

    /// A box that is hidden passes caret, selection and focus on to its twin.
    void SetVisible(bool visible) override;
    TextView GetText() const override;
    void SetText(TextView text) override;
    std::int32_t SelStart() const override;
    void SetSelStart(std::int32_t position) override;
    std::int32_t SelLength() const override;
    void SetSelLength(std::int32_t length) override;
    void GetSelection(std::int32_t& start, std::int32_t& end) const override;
    void SetSelection(std::int32_t start, std::int32_t end) override;
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override;
    bool Locked() const override { return locked_; }
    void SetLocked(bool locked) override;
    std::int32_t MaxLength() const override { return maxLength_; }
    void SetMaxLength(std::int32_t length) override;
    host::MousePointer Pointer() const override { return pointer_; }
    void SetPointer(host::MousePointer pointer) override;
    std::int32_t WindowHandle() const override;

    void DrawOn(HDC device) override;
    std::optional<Description> Describe() override;

    /// Enters what an input method has finished: notifies KeyPress of each unit, and makes one edit
    /// of them all. The object may be destroyed when the call returns.
    void EnterComposed(TextView units);
    /// Draws the scroll bars too.
    void DrawShapes(Canvas& canvas) override;

 protected:
    void DrawContent(Canvas& canvas, SIZE size) const override;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> HandleNotification(UINT message, WPARAM wParam, LPARAM lParam) override;
    void FocusMoved(bool came) override;

 private:
    struct Range {
        std::int32_t start = 0;
        std::int32_t end = 0;
    };

    const Element* Heir() const override;
    TextBox* Twin() const;
    std::int32_t Length() const;
    TextView TextInPlace() const;
    void KeepCopy() const;
    void GiveBufferBack();
    bool Assign(TextView text);
    Range Selection() const;
    bool ShowsCaretAt(std::int32_t position) const;
    void Select(std::int32_t start, std::int32_t end);
    std::size_t Room() const;

    using EditKind = shared::EditKind;
    using Assigning = shared::Assigning;

    // While it exists, an event of the user is notified: an assignment by code is a part of the
    // undo steps. Also tells whether the box still exists.
    class Telling {
     public:
        Telling(TextBox& box, Assigning assigning);
        ~Telling();
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;

        bool IsGone() const { return watch_.IsGone(); }

     private:
        Watch watch_;
        TextBox& box_;
        Assigning former_;
    };

    LRESULT Pass(UINT message, WPARAM wParam, LPARAM lParam, EditKind kind = EditKind::None);

    // The undo steps. The object may be destroyed when Undo and Redo return.
    bool MayEdit(UINT message, WPARAM wParam) const;
    void RecordEdit(UINT message, WPARAM wParam, EditKind kind);
    void RecordAssignment(TextView text);
    bool Undo();
    bool Redo();
    void Perform(const shared::EditHistory::Patch& patch);
    bool NotifyMove(bool moved);
    void ShowMenu(LPARAM place);
    // The picture.
    void DrawLine(Canvas& canvas, const RECT& area, const TextRun& design, std::size_t begin) const;
    std::size_t FirstSeen(const RECT& area, std::size_t begin, std::size_t length) const;
    POINT PlaceOf(std::size_t position) const;

    // The user's actions; each method answers a message. The object may be destroyed when they
    // return.
    LRESULT KeyGoesDown(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT KeyIsPressed(WPARAM wParam, LPARAM lParam);
    LRESULT KeyGoesUp(UINT message, WPARAM wParam, LPARAM lParam);
    bool Takes(char16_t unit) const;
    bool PairUp(char16_t unit);
    LRESULT ButtonGoesDown(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT ButtonIsClickedAgain(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT ButtonGoesUp(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT MouseMoves(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT StartComposition(WPARAM wParam, LPARAM lParam);
    LRESULT Compose(WPARAM wParam, LPARAM lParam);
    LRESULT EndComposition(WPARAM wParam, LPARAM lParam);
    void Insert(TextView text, EditKind kind);
    void Paste();
    bool LeaveBreak();

    host::TextBoxEvents& events_;
    mutable Text copy_;              // used where the text cannot be read in place
    mutable bool isCopied_ = false;  // whether the copy is the text
    Color foreColor_ = Color::WindowText;
    std::int32_t maxLength_ = 0;
    host::MousePointer pointer_ = host::MousePointer::Default;
    shared::EditHistory history_;
    Assigning assigning_ = Assigning::Forgets;
    bool multiLine_;
    bool locked_ = false;
    bool caretIsPlaced_ = false;  // by code, since it assigned the text
    bool isAssigning_ = false;    // notifications of the edit control are not passed on
    bool hasChanged_ = false;     // by the message in progress
    bool keyIsTaken_ = false;     // the key that is down enters nothing
    bool isComposing_ = false;    // an input method has not finished yet
    bool isPressed_ = false;      // the left button went down in the box
    char16_t heldSurrogate_ = 0;  // the first half of a pair, whose other half has not come yet
};

}  // namespace lumenkit::win32
