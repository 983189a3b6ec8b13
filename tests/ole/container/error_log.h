#pragma once

#include <string>
#include <vector>

#include "runtime/ole/values/ole_header.h"
#include "tests/ole/container/counted.h"

namespace lumenkit::container {

/// A container's log of the values that a control could not use.
class ErrorLog final : public Counted<IErrorLog> {
 public:
    ErrorLog() : Counted(IID_IErrorLog) {}

    /// "name: description".
    std::vector<std::wstring> lines;

    HRESULT STDMETHODCALLTYPE AddError(LPCOLESTR name, EXCEPINFO* error) override {
        lines.push_back(std::wstring(name) + L": " + error->bstrDescription);
        return S_OK;
    }
};

}  // namespace lumenkit::container
