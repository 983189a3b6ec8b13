#pragma once

#include <cstdint>

#include "frame/host/text_box.h"
#include "runtime/qt/basic_constituent.h"
#include "runtime/qt/text_edit.h"

namespace lumenkit::qt {

/// A text box. A multi-line box wraps its lines unless it has a horizontal scroll bar. A change of
/// the text is notified after the operation that caused it has ended. If a handler replaces the
/// code of a key by the code of another moving or editing key, the box acts on that key.
class TextBox final : public BasicTextConstituent<host::TextBox> {
 public:
    TextBox(Elements& elements, const host::TextBoxDesign& design, host::TextBoxEvents& events);
    ~TextBox() override { Release(); }
    TextBox(const TextBox&) = delete;
    TextBox& operator=(const TextBox&) = delete;

    /// A box that is hidden passes caret, selection and focus on to its twin.
    void SetVisible(bool visible) override;
    TextView GetText() const override { return Edit().Contents(); }
    void SetText(TextView text) override;
    std::int32_t SelStart() const override { return Edit().Selected().start; }
    void SetSelStart(std::int32_t position) override;
    std::int32_t SelLength() const override;
    void SetSelLength(std::int32_t length) override;
    void GetSelection(std::int32_t& start, std::int32_t& end) const override;
    void SetSelection(std::int32_t start, std::int32_t end) override;
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override;
    bool Locked() const override { return Edit().IsLocked(); }
    void SetLocked(bool locked) override { Edit().SetLocked(locked); }
    std::int32_t MaxLength() const override { return maxLength_; }
    void SetMaxLength(std::int32_t length) override;
    host::MousePointer Pointer() const override { return pointer_; }
    void SetPointer(host::MousePointer pointer) override;
    /// Creates a native window for the box at the first call.
    std::int32_t WindowHandle() const override;

    void ShowColors() override;
    void Describe(const QString& name, const QString& hint) override;
    TextEdit& Edit() const { return static_cast<TextEdit&>(*Widget()); }
    void Disconnect() override;

 private:
    const Element* Heir() const override;
    TextBox* Twin() const;

    Color foreColor_ = Color::WindowText;
    std::int32_t maxLength_ = 0;
    host::MousePointer pointer_ = host::MousePointer::Default;
    bool caretIsPlaced_ = false;  // by code, since it assigned the text
};

}  // namespace lumenkit::qt
