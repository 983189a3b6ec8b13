#pragma once

#include <cstdint>

#include "frame/host/text_box.h"
#include "runtime/memory/basic_constituent.h"

namespace lumenkit::memory {

/// A text box without a window. A locked box receives keys too, but they do not edit it.
class TextBox final : public BasicTextConstituent<host::TextBox> {
 public:
    TextBox(Elements& elements, const host::TextBoxDesign& design, host::TextBoxEvents& events);

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
    Color ForeColor() const override;
    void SetForeColor(Color color) override;
    bool Locked() const override;
    void SetLocked(bool locked) override;
    std::int32_t MaxLength() const override;
    void SetMaxLength(std::int32_t length) override;
    host::MousePointer Pointer() const override;
    void SetPointer(host::MousePointer pointer) override;
    std::int32_t WindowHandle() const override;

    bool IsMultiLine() const { return multiLine_; }
    host::ScrollBars Bars() const { return scrollBars_; }
    const Text& Contents() const { return text_; }
    bool IsLocked() const { return locked_; }
    PropertyList Properties() const override;

    // Deliver user input (see User, which checks first whether the box accepts it).
    bool TakesFocus() const override { return true; }
    void ReceiveFocus() override;
    void LoseFocus() override;
    void ReceiveClick() override;
    void ReceiveDblClick() override;
    void ReceiveMouse(MouseAction action, host::MouseArguments mouse) override;
    /// Delivers one key, from key-down to key-up.
    void ReceiveKey(char16_t unit);
    /// Delivers a key that enters nothing.
    void ReceiveEditingKey(std::int16_t keyCode);
    /// Selects `length` units from `start` on, or up to the end of the text. Notifies nothing.
    void ReceiveSelection(std::int32_t start, std::int32_t length);
    /// Replaces the selection in one change.
    void ReceivePaste(TextView text);

 private:
    struct Range {
        std::int32_t start = 0;
        std::int32_t end = 0;
    };

    TextBox* Twin() const;
    std::int32_t Length() const { return static_cast<std::int32_t>(text_.size()); }
    std::size_t Room() const;
    void PressKey(char16_t unit);
    void Enter(char16_t unit);
    void Insert(TextView text);
    void DeleteBackwards();
    void DeleteForward();
    void MoveCaret(std::int16_t keyCode);
    std::int32_t UnitsBefore(std::int32_t position) const;
    std::int32_t UnitsAfter(std::int32_t position) const;
    Range EditedRange() const;
    void Replace(Range range, TextView replacement);

    host::TextBoxEvents& events_;
    Text text_;
    std::int32_t selStart_ = 0;
    std::int32_t selEnd_ = 0;
    std::int32_t maxLength_ = 0;
    std::int32_t windowHandle_;
    Color foreColor_ = Color::WindowText;
    host::MousePointer pointer_ = host::MousePointer::Default;
    host::ScrollBars scrollBars_;
    bool multiLine_;
    bool locked_ = false;
    bool caretIsPlaced_ = false;  // by code, since it assigned the text
};

}  // namespace lumenkit::memory
