#pragma once

#include "frame/automation/interface_table.h"
#include "tests/ole/container/counted.h"

namespace lumenkit::container {

/// The extender of a control: the members of a table, bound to an object.
class Extender final : public Counted<IDispatch> {
 public:
    /// Both must outlive the extender.
    Extender(const InterfaceTable& table, void* object);

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* /*count*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/,
                                          ITypeInfo** /*information*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* found) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID identifier, REFIID iid, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* wrong) override;

 private:
    const InterfaceTable& table_;
    TableObject members_;
};

}  // namespace lumenkit::container
