#pragma once

#include "frame/automation/interface_table.h"
#include "tests/ole/container/counted.h"

namespace lumenkit::container {

class Site;

/// The extender of a control in this container: Name, Tag, Left, Top, Width, Height, Visible, Move.
class Extender final : public Counted<IDispatch> {
 public:
    explicit Extender(Site& site);

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
    TableObject members_;
};

}  // namespace lumenkit::container
