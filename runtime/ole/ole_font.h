#pragma once

#include <memory>
#include <vector>

#include "runtime/ole/object_reference.h"
#include "runtime/ole/ole_header.h"
#include "runtime/win32/font.h"

namespace lumenkit::ole {

/// The platform's standard font object. Any number of these may stand for the same one; all see
/// each other's changes, and its clients'.
class OleFont final : public win32::Font, public ComBacked {
 public:
    /// Raises 13 for a font object without an IDispatch.
    static std::shared_ptr<OleFont> Of(IFont* font);

    explicit OleFont(ComPtr<IFont> font, ComPtr<IDispatch> dispatch);
    ~OleFont() override;
    OleFont(const OleFont&) = delete;
    OleFont& operator=(const OleFont&) = delete;

    Text Name() const override;
    void SetName(TextView name) override;
    float Size() const override;
    void SetSize(float points) override;
    bool Bold() const override;
    void SetBold(bool bold) override;
    bool Italic() const override;
    void SetItalic(bool italic) override;
    bool Underline() const override;
    void SetUnderline(bool underline) override;
    bool Strikethrough() const override;
    void SetStrikethrough(bool strikethrough) override;
    std::int16_t Weight() const override;
    void SetWeight(std::int16_t weight) override;
    std::int16_t Charset() const override;
    void SetCharset(std::int16_t charset) override;

    void Add(win32::FontListener& listener) override;
    void Remove(win32::FontListener& listener) override;
    HFONT Handle() const override;

    ComPtr<IDispatch> Dispatch() const override { return dispatch_; }
    /// The size that was asked for, which the platform rounds to what it can draw. It is what Size
    /// gives until a client sets another one.
    void Ask(CY size);

 private:
    class Sink;

    void Connect();
    void Disconnect();
    void Notify();

    ComPtr<IFont> font_;
    ComPtr<IDispatch> dispatch_;
    // A listener may stand here more than once: it is told once for each.
    std::vector<win32::FontListener*> listeners_;
    ComPtr<Sink> sink_;
    ComPtr<IConnectionPoint> point_;
    DWORD connection_ = 0;
    CY asked_ = {};
    CY given_ = {};  // what the platform made of it
};

}  // namespace lumenkit::ole
