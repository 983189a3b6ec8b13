#include "tests/ole/clients/script_host/script_host.h"

#include <deque>

namespace lumenkit::clients {

namespace {

// Returns the name of the event in the control's class.
std::wstring EventName(IDispatch& control, DISPID event) {
    ComPtr<IProvideClassInfo> provider;
    ComPtr<ITypeInfo> type;
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> events;
    Text name;
    EXPECT_EQ(control.QueryInterface(IID_PPV_ARGS(&provider)), S_OK);
    EXPECT_EQ(provider->GetClassInfo(&type), S_OK);
    EXPECT_EQ(type->GetRefTypeOfImplType(1, &reference), S_OK);
    EXPECT_EQ(type->GetRefTypeInfo(reference, &events), S_OK);
    EXPECT_EQ(events->GetDocumentation(event, name.Out(), nullptr, nullptr, nullptr), S_OK);
    return name.Read();
}

// The arguments as scripts take them: each one is a reference to a VARIANT that the script may
// assign.
class Passed {
 public:
    explicit Passed(const DISPPARAMS& original) : original_(original) {
        for (UINT index = 0; index < original.cArgs; ++index) {
            Variant& value = values_.emplace_back();
            EXPECT_EQ(VariantCopyInd(&value, &original.rgvarg[index]), S_OK);
            VARIANT reference = {};
            reference.vt = VT_BYREF | VT_VARIANT;
            reference.pvarVal = &value;
            references_.push_back(reference);
        }
        parameters_ = {references_.data(), nullptr, original.cArgs, 0};
    }
    DISPPARAMS* Get() { return &parameters_; }
    // Copies the values of 16-bit arguments back to the caller.
    void HandBack() {
        for (UINT index = 0; index < original_.cArgs; ++index) {
            const VARIANT& place = original_.rgvarg[index];
            if (place.vt == (VT_BYREF | VT_I2)) {
                EXPECT_EQ(VariantChangeType(&values_[index], &values_[index], 0, VT_I2), S_OK);
                *place.piVal = values_[index].iVal;
            }
        }
    }

 private:
    const DISPPARAMS& original_;
    std::deque<Variant> values_;
    std::vector<VARIANT> references_;
    DISPPARAMS parameters_ = {};
};

}  // namespace

ScriptHost::ScriptHost(const wchar_t* language) {
    CLSID type = {};
    ComPtr<IActiveScriptParse> parse;
    EXPECT_EQ(CLSIDFromProgID(language, &type), S_OK);
    EXPECT_EQ(CoCreateInstance(type, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript),
                               reinterpret_cast<void**>(engine_.GetAddressOf())),
              S_OK);
    EXPECT_EQ(engine_->QueryInterface(__uuidof(IActiveScriptParse),
                                      reinterpret_cast<void**>(parse.GetAddressOf())),
              S_OK);
    EXPECT_EQ(engine_->SetScriptSite(this), S_OK);
    EXPECT_EQ(parse->InitNew(), S_OK);
}

ScriptHost::~ScriptHost() {
    named_.clear();
    script_.Reset();
    engine_->Close();
}

void ScriptHost::Add(const std::wstring& name, const ComPtr<IDispatch>& control) {
    Named& added = named_[name];
    added.control = control;
    added.sink = std::make_unique<EventSink>(
        EventsOf(*control.Get()),
        [this, name, raw = control.Get()](DISPID event, DISPPARAMS& arguments) {
            Raise(name, *raw, event, arguments);
        });
    added.connection = std::make_unique<Connection>(*control.Get(), *added.sink);
    EXPECT_EQ(engine_->AddNamedItem(name.c_str(), SCRIPTITEM_ISVISIBLE), S_OK);
}

void ScriptHost::Run(const wchar_t* script) {
    ComPtr<IActiveScriptParse> parse;
    ASSERT_EQ(engine_->QueryInterface(__uuidof(IActiveScriptParse),
                                      reinterpret_cast<void**>(parse.GetAddressOf())),
              S_OK);
    EXPECT_EQ(parse->ParseScriptText(script, nullptr, nullptr, nullptr, 0, 1, SCRIPTTEXT_ISVISIBLE,
                                     nullptr, nullptr),
              S_OK);
    EXPECT_EQ(engine_->SetScriptState(SCRIPTSTATE_CONNECTED), S_OK);
    EXPECT_EQ(engine_->GetScriptDispatch(nullptr, &script_), S_OK);
}

std::wstring ScriptHost::Variable(const wchar_t* name) {
    return TextOf(*script_.Get(), name);
}

void ScriptHost::Raise(const std::wstring& name, IDispatch& control, DISPID event,
                       DISPPARAMS& arguments) {
    if (script_ == nullptr) {
        return;
    }
    const std::wstring procedure = name + L"_" + EventName(control, event);
    const DISPID number = NumberOf(*script_.Get(), procedure.c_str());
    if (number == DISPID_UNKNOWN) {
        return;
    }
    Passed passed(arguments);
    EXPECT_EQ(script_->Invoke(number, IID_NULL, 0, DISPATCH_METHOD, passed.Get(), nullptr, nullptr,
                              nullptr),
              S_OK);
    passed.HandBack();
}

HRESULT ScriptHost::QueryInterface(REFIID iid, void** object) {
    *object = iid == IID_IUnknown || iid == __uuidof(IActiveScriptSite) ? this : nullptr;
    return *object == nullptr ? E_NOINTERFACE : S_OK;
}

HRESULT ScriptHost::GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** object, ITypeInfo** type) {
    const auto found = named_.find(name);
    if (type != nullptr) {
        *type = nullptr;
    }
    if (found == named_.end() || (mask & SCRIPTINFO_IUNKNOWN) == 0) {
        return TYPE_E_ELEMENTNOTFOUND;
    }
    ComPtr<IUnknown> unknown;
    found->second.control.As(&unknown);
    *object = unknown.Detach();
    return S_OK;
}

HRESULT ScriptHost::OnScriptError(IActiveScriptError* error) {
    EXCEPINFO information = {};
    DWORD context = 0;
    ULONG line = 0;
    LONG place = 0;
    error->GetExceptionInfo(&information);
    error->GetSourcePosition(&context, &line, &place);
    errors_.push_back(std::to_wstring(line) + L": " +
                      (information.bstrDescription == nullptr ? L"" : information.bstrDescription));
    SysFreeString(information.bstrSource);
    SysFreeString(information.bstrDescription);
    SysFreeString(information.bstrHelpFile);
    return S_OK;
}

}  // namespace lumenkit::clients
