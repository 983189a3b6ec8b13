#pragma once

#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// Keeps the site that a simple container sets. Controls do not use it.
class ObjectWithSite final : public Facet<IObjectWithSite> {
 public:
    explicit ObjectWithSite(IUnknown& controlling) : Facet(controlling) {}

    HRESULT STDMETHODCALLTYPE SetSite(IUnknown* site) override {
        const ComPtr<IUnknown> former = site_;
        site_ = site;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetSite(REFIID interfaceId, void** site) override {
        if (site == nullptr) {
            return E_POINTER;
        }
        *site = nullptr;
        return site_ == nullptr ? E_FAIL : site_->QueryInterface(interfaceId, site);
    }

 private:
    ComPtr<IUnknown> site_;
};

}  // namespace lumenkit::ole
