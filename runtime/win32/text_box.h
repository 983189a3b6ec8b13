#pragma once

#include <cstdint>
#include <optional>

#include "frame/host/text_box.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

/// The platform's edit control. A locked box receives keys too, but they do not edit it. A locked
/// or disabled box keeps the colours of an editable one.
///
/// The platform's texts end at their first unit 0, and so do assigned texts.
class TextBox final : public BasicTextConstituent<host::TextBox> {
 public:
    TextBox(const Elements& elements, const host::TextBoxDesign& design,
            host::TextBoxEvents& events);
    ~TextBox() override;
    TextBox(const TextBox&) = delete;
    TextBox& operator=(const TextBox&) = delete;

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

 protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> HandleNotification(UINT message, WPARAM wParam, LPARAM lParam) override;
    void FocusMoved(bool came) override;

 private:
    struct Range {
        std::int32_t start = 0;
        std::int32_t end = 0;
    };

    std::int32_t Length() const;
    TextView TextInPlace() const;
    void KeepCopy() const;
    void GiveBufferBack();
    bool Assign(TextView text);
    Range Selection() const;
    void Select(std::int32_t start, std::int32_t end);
    std::size_t Room() const;

    LRESULT Pass(UINT message, WPARAM wParam, LPARAM lParam);

    // The user's actions; each method answers a message. The object may be destroyed when they
    // return.
    LRESULT KeyGoesDown(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT KeyIsPressed(WPARAM wParam, LPARAM lParam);
    WPARAM UnitOf(WPARAM typed) const;
    LRESULT KeyGoesUp(UINT message, WPARAM wParam, LPARAM lParam);
    bool Takes(char16_t unit);
    LRESULT ButtonGoesDown(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT ButtonIsClickedAgain(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT ButtonGoesUp(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT MouseMoves(UINT message, WPARAM wParam, LPARAM lParam);
    void Paste();
    bool LeaveBreak();

    host::TextBoxEvents& events_;
    mutable Text copy_;              // used where the text cannot be read in place
    mutable bool isCopied_ = false;  // whether the copy is the text
    Color foreColor_ = Color::WindowText;
    std::int32_t maxLength_ = 0;
    host::MousePointer pointer_ = host::MousePointer::Default;
    bool multiLine_;
    bool locked_ = false;
    bool isAssigning_ = false;     // notifications of the edit control are not passed on
    bool hasChanged_ = false;      // by the message in progress
    bool keyIsTaken_ = false;      // the key that is down enters nothing
    WPARAM keyDown_ = 0;           // the key that went down last
    bool dropsSurrogate_ = false;  // there was no room for the first half of the pair
    bool isPressed_ = false;       // the left button went down in the box
};

}  // namespace lumenkit::win32
