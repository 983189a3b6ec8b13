#pragma once

#include "frame/class_table.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// IProvideClassInfo and IProvideClassInfo2.
class ClassInfo final : public Facet<IProvideClassInfo2> {
 public:
    ClassInfo(IUnknown& controlling, const ClassDescriptor& type)
        : Facet(controlling), type_(type) {}

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** information) override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) override;

 private:
    const ClassDescriptor& type_;
};

}  // namespace lumenkit::ole
