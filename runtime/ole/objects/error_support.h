#pragma once

#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// Reports that errors of the object's own interface carry error information.
class ErrorSupport final : public Facet<ISupportErrorInfo> {
 public:
    ErrorSupport(IUnknown& controlling, REFIID interfaceId)
        : Facet(controlling), interfaceId_(interfaceId) {}

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID interfaceId) override {
        return interfaceId == interfaceId_ ? S_OK : S_FALSE;
    }

 private:
    IID interfaceId_;
};

}  // namespace lumenkit::ole
