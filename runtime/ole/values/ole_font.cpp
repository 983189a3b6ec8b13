#include "runtime/ole/values/ole_font.h"

#include <utility>

#include "frame/checked_integer.h"
#include "frame/runtime_error.h"
#include "runtime/ole/values/basic_string.h"
#include "runtime/ole/values/counted.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

constexpr double fontSizeUnit = 10000.0;
constexpr double largestFontSize = 2160.0;

float FontPoints(CY size) {
    return static_cast<float>(static_cast<double>(size.int64) / fontSizeUnit);
}

// Raises the runtime error for a value that the font object refuses.
void CheckValue(HRESULT result) {
    if (FAILED(result)) {
        throw ErrorOf(result);
    }
}

template <typename T>
T Attribute(IFont& font, HRESULT (STDMETHODCALLTYPE IFont::*get)(T*)) {
    T attribute = {};
    CheckValue((font.*get)(&attribute));
    return attribute;
}

}  // namespace

CY FontSize(float points) {
    const double units = RoundHalfToEven(static_cast<double>(points) * fontSizeUnit);
    if (!(units > 0 && units <= largestFontSize * fontSizeUnit)) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    CY size = {};
    size.int64 = static_cast<LONGLONG>(units);
    return size;
}

// Receives the changes of the font as long as its owner lives.
class OleFont::Sink final : public Counted<IPropertyNotifySink, IID_IPropertyNotifySink> {
 public:
    explicit Sink(OleFont& owner) : owner_(&owner) {}
    void Forget() { owner_ = nullptr; }

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID /*property*/) override {
        return Guarded([&] {
            if (owner_ != nullptr) {
                owner_->listeners_.Tell();
            }
        });
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID /*property*/) override { return S_OK; }

 private:
    OleFont* owner_;
};

std::shared_ptr<OleFont> OleFont::Of(IFont* font) {
    ComPtr<IDispatch> dispatch;
    if (FAILED(font->QueryInterface(IID_IFontDisp, &dispatch))) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return std::make_shared<OleFont>(font, dispatch);
}

OleFont::OleFont(ComPtr<IFont> font, ComPtr<IDispatch> dispatch)
    : font_(std::move(font)), dispatch_(std::move(dispatch)) {}

OleFont::~OleFont() {
    Disconnect();
}

Text OleFont::Name() const {
    BasicString name;
    CheckValue(font_->get_Name(name.Out()));
    return Text(name.AsText());
}

void OleFont::SetName(TextView name) {
    CheckValue(font_->put_Name(BasicString(name).Get()));
    if (asked_.int64 != 0) {
        Ask(asked_);  // the new face may come closer to it
    }
}

float OleFont::Size() const {
    const CY now = Attribute(*font_.Get(), &IFont::get_Size);
    return FontPoints(asked_.int64 != 0 && now.int64 == given_.int64 ? asked_ : now);
}

void OleFont::SetSize(float points) {
    const CY size = FontSize(points);
    // The font reports the size that the platform found for the requested size. Saving and
    // restoring the reported size must not change the requested size.
    if (size.int64 != FontSize(Size()).int64) {
        Ask(size);
    }
}

void OleFont::Ask(CY size) {
    CheckValue(font_->put_Size(size));
    asked_ = size;
    given_ = Attribute(*font_.Get(), &IFont::get_Size);
}

bool OleFont::Bold() const {
    return Attribute(*font_.Get(), &IFont::get_Bold) != FALSE;
}

void OleFont::SetBold(bool bold) {
    CheckValue(font_->put_Bold(bold ? TRUE : FALSE));
}

bool OleFont::Italic() const {
    return Attribute(*font_.Get(), &IFont::get_Italic) != FALSE;
}

void OleFont::SetItalic(bool italic) {
    CheckValue(font_->put_Italic(italic ? TRUE : FALSE));
}

bool OleFont::Underline() const {
    return Attribute(*font_.Get(), &IFont::get_Underline) != FALSE;
}

void OleFont::SetUnderline(bool underline) {
    CheckValue(font_->put_Underline(underline ? TRUE : FALSE));
}

bool OleFont::Strikethrough() const {
    return Attribute(*font_.Get(), &IFont::get_Strikethrough) != FALSE;
}

void OleFont::SetStrikethrough(bool strikethrough) {
    CheckValue(font_->put_Strikethrough(strikethrough ? TRUE : FALSE));
}

std::int16_t OleFont::Weight() const {
    return Attribute(*font_.Get(), &IFont::get_Weight);
}

void OleFont::SetWeight(std::int16_t weight) {
    CheckValue(font_->put_Weight(weight));
}

std::int16_t OleFont::Charset() const {
    return Attribute(*font_.Get(), &IFont::get_Charset);
}

void OleFont::SetCharset(std::int16_t charset) {
    CheckValue(font_->put_Charset(charset));
}

HFONT OleFont::Handle() const {
    return Attribute(*font_.Get(), &IFont::get_hFont);
}

std::shared_ptr<win32::Font> OleFont::Clone() const {
    ComPtr<IFont> font;
    CheckValue(font_->Clone(&font));
    auto clone = Of(font.Get());
    clone->asked_ = asked_;
    clone->given_ = given_;
    return clone;
}

void OleFont::Add(win32::FontListener& listener) {
    listeners_.Add(listener);
    if (point_ == nullptr) {
        Connect();
    }
}

void OleFont::Remove(win32::FontListener& listener) {
    listeners_.Remove(listener);
    if (listeners_.IsEmpty()) {
        Disconnect();
    }
}

void OleFont::Connect() {
    ComPtr<IConnectionPointContainer> container;
    if (FAILED(font_.As(&container)) ||
        FAILED(container->FindConnectionPoint(IID_IPropertyNotifySink, &point_))) {
        return;  // a font that never changes
    }
    sink_ = Adopted(new Sink(*this));
    if (FAILED(point_->Advise(sink_.Get(), &connection_))) {
        sink_.Reset();
        point_.Reset();
    }
}

void OleFont::Disconnect() {
    if (sink_ != nullptr) {
        sink_->Forget();
        point_->Unadvise(connection_);
    }
    sink_.Reset();
    point_.Reset();
}

}  // namespace lumenkit::ole
