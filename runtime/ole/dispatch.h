// IDispatch over an interface table.
#pragma once

#include "frame/automation/interface_table.h"
#include "frame/runtime_error.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// IDispatch::GetIDsOfNames: the first name is a member's, the others are those of its parameters.
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

/// Names stand for arguments and for the new value of a property; arguments by reference are
/// followed and, where the member takes them so, assigned. What cannot be called is a DISP_E_
/// result; an error of the member itself is DISP_E_EXCEPTION with the error's number.
HRESULT InvokeMember(const InterfaceTable& table, Object& object,
                     const DispatchCall& call) noexcept;

/// Fills in what is known of an error of the runtime.
void Describe(const RuntimeError& error, EXCEPINFO& exception);

}  // namespace lumenkit::ole
