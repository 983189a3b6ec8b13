#include "tests/ole/container/extender.h"

#include "runtime/ole/objects/dispatch.h"

namespace lumenkit::container {

Extender::Extender(const InterfaceTable& table, void* object)
    : Counted(IID_IDispatch), table_(table), members_(table, object) {}

HRESULT Extender::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/,
                                DISPID* found) {
    return ole::FindIdentifiers(table_, iid, names, count, found);
}

HRESULT Extender::Invoke(DISPID identifier, REFIID /*iid*/, LCID /*locale*/, WORD flags,
                         DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                         UINT* wrong) {
    return ole::InvokeMember(table_, members_,
                             {identifier, flags, parameters, result, exception, wrong});
}

}  // namespace lumenkit::container
