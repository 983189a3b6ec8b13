// Helpers for all programs that are clients of the server.
#pragma once

#include <string>

#include <gtest/gtest.h>
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>
#include <windows.h>
#include <wrl/client.h>

namespace lumenkit::clients {

using Microsoft::WRL::ComPtr;

/// An automation string.
class Text {
 public:
    explicit Text(const wchar_t* text) : text_(SysAllocString(text)) {}
    Text() = default;
    ~Text() { SysFreeString(text_); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    BSTR Get() const { return text_; }
    /// Frees the string and returns its address, so that it can be filled again.
    BSTR* Out() {
        SysFreeString(text_);
        text_ = nullptr;
        return &text_;
    }
    std::wstring Read() const { return {text_, text_ + SysStringLen(text_)}; }

 private:
    BSTR text_ = nullptr;
};

/// A VARIANT that is cleared when it is destroyed.
class Variant : public VARIANT {
 public:
    Variant() : VARIANT() { VariantInit(this); }
    explicit Variant(const wchar_t* text) : Variant() {
        vt = VT_BSTR;
        bstrVal = SysAllocString(text);
    }
    explicit Variant(long number) : Variant() {
        vt = VT_I4;
        lVal = number;
    }
    explicit Variant(IDispatch* object) : Variant() {
        vt = VT_DISPATCH;
        pdispVal = object;
        object->AddRef();
    }
    ~Variant() { VariantClear(this); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    std::wstring Read() const {
        return vt == VT_BSTR ? std::wstring(bstrVal, bstrVal + SysStringLen(bstrVal))
                             : L"(no text)";
    }
};

/// Creates an object by its class name, as programs do that know nothing else of the class.
template <typename Interface = IDispatch>
ComPtr<Interface> Create(const wchar_t* name) {
    CLSID type = {};
    ComPtr<Interface> made;
    EXPECT_EQ(CLSIDFromProgID(name, &type), S_OK);
    EXPECT_EQ(CoCreateInstance(type, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), &made),
              S_OK);
    return made;
}

inline DISPID NumberOf(IDispatch& object, const wchar_t* name) {
    auto* writable = const_cast<wchar_t*>(name);
    DISPID number = DISPID_UNKNOWN;
    object.GetIDsOfNames(IID_NULL, &writable, 1, LOCALE_USER_DEFAULT, &number);
    return number;
}

inline HRESULT Read(IDispatch& object, const wchar_t* name, Variant& value) {
    DISPPARAMS none = {};
    return object.Invoke(NumberOf(object, name), IID_NULL, LOCALE_USER_DEFAULT,
                         DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
}

/// Returns a property as text: "True" and "False" for Booleans, decimals for numbers.
inline std::wstring TextOf(IDispatch& object, const wchar_t* name) {
    Variant value;
    EXPECT_EQ(Read(object, name, value), S_OK) << name;
    EXPECT_EQ(VariantChangeType(&value, &value, VARIANT_ALPHABOOL, VT_BSTR), S_OK) << name;
    return value.Read();
}

inline HRESULT Put(IDispatch& object, const wchar_t* name, const VARIANT& value) {
    DISPID put = DISPID_PROPERTYPUT;
    VARIANT argument = value;
    DISPPARAMS parameters = {&argument, &put, 1, 1};
    return object.Invoke(NumberOf(object, name), IID_NULL, LOCALE_USER_DEFAULT,
                         DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, nullptr);
}

inline HRESULT Call(IDispatch& object, const wchar_t* name) {
    DISPPARAMS none = {};
    return object.Invoke(NumberOf(object, name), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                         &none, nullptr, nullptr, nullptr);
}

/// Dispatches all messages in the queue of this thread.
inline void RunMessages() {
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

class OleTest : public ::testing::Test {
 protected:
    OleTest() { EXPECT_TRUE(SUCCEEDED(OleInitialize(nullptr))); }
    ~OleTest() override { OleUninitialize(); }
};

}  // namespace lumenkit::clients
