#pragma once

#include <map>
#include <memory>
#include <string>

#include "runtime/ole/values/variant.h"
#include "tests/ole/container/counted.h"

namespace lumenkit::container {

/// A container's property bag: values by name, regardless of case.
class Bag final : public Counted<IPropertyBag> {
 public:
    Bag() : Counted(IID_IPropertyBag) {}

    void Put(const std::wstring& name, const Value& value) {
        auto variant = std::make_unique<ole::Variant>();
        ole::ToVariant(value, **variant);
        values_[name] = std::move(variant);
    }
    /// Returns Empty if there is no value.
    Value Get(const std::wstring& name) {
        const auto found = values_.find(name);
        return found == values_.end() ? Value(Empty{}) : ole::FromVariant(**found->second);
    }
    std::size_t Size() const { return values_.size(); }

    bool takesObjects = true;
    int reads = 0;

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* /*log*/) override {
        ++reads;
        const auto found = values_.find(name);
        return found == values_.end() ? E_INVALIDARG : VariantCopy(value, found->second->Get());
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override {
        if (value->vt == VT_DISPATCH && !takesObjects) {
            return E_NOTIMPL;
        }
        auto variant = std::make_unique<ole::Variant>();
        const HRESULT copied = VariantCopy(variant->Get(), value);
        values_[name] = std::move(variant);
        return copied;
    }

 private:
    struct IgnoreCase {
        bool operator()(const std::wstring& left, const std::wstring& right) const {
            return lstrcmpiW(left.c_str(), right.c_str()) < 0;
        }
    };

    std::map<std::wstring, std::unique_ptr<ole::Variant>, IgnoreCase> values_;
};

}  // namespace lumenkit::container
