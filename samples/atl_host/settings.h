#pragma once

#include <map>
#include <string>

#include <comutil.h>
#include <ocidl.h>
#include <windows.h>

namespace atl_host {

/// The saved properties of a control, as in a form file. Usually a local variable: AddRef and
/// Release do nothing.
class Settings final : public IPropertyBag {
 public:
    Settings(std::initializer_list<std::pair<const std::wstring, _variant_t>> values)
        : values_(values) {}
    virtual ~Settings() = default;
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IPropertyBag;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* /*log*/) override {
        const auto found = values_.find(name);
        // A missing property keeps its default.
        return found == values_.end() ? E_INVALIDARG : VariantCopy(value, &found->second);
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override {
        values_[name] = _variant_t(value);
        return S_OK;
    }

 private:
    std::map<std::wstring, _variant_t> values_;
};

}  // namespace atl_host
