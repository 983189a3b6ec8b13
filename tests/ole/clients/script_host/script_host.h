// A small host of scripts. It gives controls names and calls the procedures Name_Event of a script.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <activscp.h>

#include "tests/ole/clients/support/com.h"
#include "tests/ole/clients/support/event_sink.h"

namespace lumenkit::clients {

class ScriptHost final : public IActiveScriptSite {
 public:
    explicit ScriptHost(const wchar_t* language);
    virtual ~ScriptHost();
    ScriptHost(const ScriptHost&) = delete;
    ScriptHost& operator=(const ScriptHost&) = delete;

    /// Must be called before Run.
    void Add(const std::wstring& name, const ComPtr<IDispatch>& control);
    /// Runs the statements at the top level of the script.
    void Run(const wchar_t* script);
    std::wstring Variable(const wchar_t* name);
    /// The errors in scripts, with their lines.
    const std::vector<std::wstring>& Errors() const { return errors_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetLCID(LCID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** object,
                                          ITypeInfo** type) override;
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override;
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

 private:
    struct Named {
        ComPtr<IDispatch> control;
        std::unique_ptr<EventSink> sink;
        std::unique_ptr<Connection> connection;
    };

    void Raise(const std::wstring& name, IDispatch& control, DISPID event, DISPPARAMS& arguments);

    ComPtr<IActiveScript> engine_;
    ComPtr<IDispatch> script_;
    std::map<std::wstring, Named> named_;
    std::vector<std::wstring> errors_;
};

}  // namespace lumenkit::clients
