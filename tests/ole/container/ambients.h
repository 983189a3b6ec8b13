#pragma once

#include <map>

#include "runtime/ole/objects/facet.h"
#include "runtime/ole/values/variant.h"

namespace lumenkit::container {

/// A container's ambient properties, by identifier.
class Ambients final : public ole::Facet<IDispatch> {
 public:
    explicit Ambients(IUnknown& controlling) : Facet(controlling) {}

    void Set(DISPID property, const Value& value) { values_[property] = value; }
    void Remove(DISPID property) { values_.erase(property); }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* /*count*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/,
                                          ITypeInfo** /*information*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/,
                                            LCID /*locale*/, DISPID* /*found*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID property, REFIID /*iid*/, LCID /*locale*/,
                                     WORD /*flags*/, DISPPARAMS* /*arguments*/, VARIANT* result,
                                     EXCEPINFO* /*exception*/, UINT* /*wrong*/) override {
        const auto found = values_.find(property);
        if (found == values_.end()) {
            return DISP_E_MEMBERNOTFOUND;
        }
        ole::ToVariant(found->second, *result);
        return S_OK;
    }

 private:
    std::map<DISPID, Value> values_;
};

}  // namespace lumenkit::container
