// IDispatch over an interface table.
#pragma once

#include "frame/automation/interface_table.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// IDispatch::GetIDsOfNames: the first name is a member's, the others are names of its parameters.
HRESULT FindIdentifiers(const InterfaceTable& table, REFIID interfaceId, LPOLESTR* names,
                        UINT count, DISPID* identifiers) noexcept;

/// One call of IDispatch::Invoke.
struct DispatchCall {
    DISPID identifier;
    WORD flags;
    DISPPARAMS* parameters;
    VARIANT* result;       ///< may be null
    EXCEPINFO* exception;  ///< may be null
    UINT* wrongArgument;   ///< may be null
};

/// IDispatch::Invoke. Arguments and the new value of a property may be passed by name. Arguments by
/// reference are dereferenced and, where the member takes them by reference, assigned. A member
/// that cannot be called gives a DISP_E_ result. An error of the member itself gives
/// DISP_E_EXCEPTION with the number of the error.
HRESULT InvokeMember(const InterfaceTable& table, Object& object,
                     const DispatchCall& call) noexcept;

}  // namespace lumenkit::ole
