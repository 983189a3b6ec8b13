#pragma once

#include <memory>

#include "runtime/ole/values/object_reference.h"
#include "runtime/ole/values/ole_header.h"
#include "runtime/win32/font.h"

namespace lumenkit::ole {

/// Converts a size in points to the platform's fixed-point number. Raises 380 for a size that is
/// not above 0 after rounding to four decimal places, or above 2160.
CY FontSize(float points);

/// The platform's standard font object. Several instances may wrap the same font object. All of
/// them see each other's changes and the changes of clients.
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
    std::shared_ptr<win32::Font> Clone() const override;

    ComPtr<IDispatch> Dispatch() const override { return dispatch_; }
    /// Requests a size, which the platform rounds to a size that it can draw. Size returns the
    /// requested size until a client sets another one.
    void Ask(CY size);

 private:
    class Sink;

    void Connect();
    void Disconnect();

    ComPtr<IFont> font_;
    ComPtr<IDispatch> dispatch_;
    win32::FontListeners listeners_;
    ComPtr<Sink> sink_;
    ComPtr<IConnectionPoint> point_;
    DWORD connection_ = 0;
    CY asked_ = {};
    CY given_ = {};  // the size that the platform chose for it
};

}  // namespace lumenkit::ole
