// Uses the controls as a hypertext page does. It checks that the object is safe, passes parameters
// as text in a property bag, activates the object and reads its properties.
#include <map>

#include <gmock/gmock.h>
#include <objsafe.h>

#include "tests/ole/clients/containers/site.h"

namespace lumenkit::clients {

namespace {

constexpr DWORD safe = INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA;

// The parameters of the page. All are text; names are found regardless of case.
class Parameters final : public IPropertyBag {
 public:
    explicit Parameters(std::map<std::wstring, std::wstring> values) : values_(std::move(values)) {}
    virtual ~Parameters() { EXPECT_EQ(references_, 0); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IPropertyBag;
        *object = known ? this : nullptr;
        references_ += known ? 1 : 0;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
        for (const auto& [known, text] : values_) {
            if (lstrcmpiW(known.c_str(), name) == 0) {
                Variant found(text.c_str());
                const VARTYPE wanted = value->vt == VT_EMPTY ? VARTYPE(VT_BSTR) : value->vt;
                return VariantChangeType(value, &found, 0, wanted);
            }
        }
        return E_INVALIDARG;
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override { return E_FAIL; }

 private:
    std::map<std::wstring, std::wstring> values_;
    long references_ = 0;
};

class PageContainer : public OleTest {
 protected:
    // Sets the control up and passes it the parameters.
    ComPtr<IDispatch> Load(const wchar_t* name, Site& site, Parameters& parameters) {
        ComPtr<IDispatch> control = Create(name);
        ComPtr<IObjectSafety> safety;
        EXPECT_EQ(control->QueryInterface(IID_IObjectSafety,
                                          reinterpret_cast<void**>(safety.GetAddressOf())),
                  S_OK);
        DWORD supported = 0;
        DWORD enabled = 0;
        EXPECT_EQ(safety->GetInterfaceSafetyOptions(IID_IDispatch, &supported, &enabled), S_OK);
        EXPECT_EQ(supported & safe, safe);
        EXPECT_EQ(
            safety->SetInterfaceSafetyOptions(IID_IDispatch, INTERFACESAFE_FOR_UNTRUSTED_CALLER,
                                              INTERFACESAFE_FOR_UNTRUSTED_CALLER),
            S_OK);
        EXPECT_EQ(safety->SetInterfaceSafetyOptions(IID_IPersistPropertyBag,
                                                    INTERFACESAFE_FOR_UNTRUSTED_DATA,
                                                    INTERFACESAFE_FOR_UNTRUSTED_DATA),
                  S_OK);
        ComPtr<IOleObject> object;
        ComPtr<IPersistPropertyBag> persisted;
        ComPtr<IUnknown> second;
        EXPECT_EQ(control.As(&object), S_OK);
        EXPECT_EQ(object->SetClientSite(site.Client()), S_OK);
        // A page that finds IPersistPropertyBag2 does not load through IPersistPropertyBag.
        EXPECT_EQ(control->QueryInterface(IID_IPersistPropertyBag2,
                                          reinterpret_cast<void**>(second.GetAddressOf())),
                  E_NOINTERFACE);
        EXPECT_EQ(control.As(&persisted), S_OK);
        EXPECT_EQ(persisted->Load(&parameters, nullptr), S_OK);
        return control;
    }
    void Leave(const ComPtr<IDispatch>& control) {
        ComPtr<IOleObject> object;
        ASSERT_EQ(control.As(&object), S_OK);
        EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
        EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
    }
};

TEST_F(PageContainer, ALabelTakesItsParameters) {
    Site site(true);
    Parameters parameters({{L"caption", L"|B|from the page"},
                           {L"BackColor", L"255"},
                           {L"WordWrap", L"True"},
                           {L"BulletIndent", L"360"},
                           {L"Enabled", L"0"},
                           {L"_ExtentX", L"5080"},
                           {L"_ExtentY", L"2540"},
                           {L"unknown", L"ignored"}});
    const ComPtr<IDispatch> label = Load(L"lumenkit.VLabel", site, parameters);
    EXPECT_EQ(TextOf(*label.Get(), L"Caption"), L"|B|from the page");
    EXPECT_EQ(TextOf(*label.Get(), L"BackColor"), L"255");
    EXPECT_EQ(TextOf(*label.Get(), L"WordWrap"), L"True");
    EXPECT_EQ(TextOf(*label.Get(), L"BulletIndent"), L"360");
    EXPECT_EQ(TextOf(*label.Get(), L"Enabled"), L"False");
    EXPECT_EQ(TextOf(*label.Get(), L"BulletPrefix"), L"");  // the default
    ComPtr<IOleObject> object;
    ASSERT_EQ(label.As(&object), S_OK);
    SIZEL extent = {};
    EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_NEAR(extent.cx, 5080, 27);  // within a pixel
    EXPECT_EQ(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site.Client(), 0, site.Window(),
                             &site.place),
              S_OK);
    Leave(label);
}

TEST_F(PageContainer, AnOptionListTakesItsParameters) {
    Site site(true);
    Parameters parameters(
        {{L"Contents", L"1;One|2;Two|3;Three"}, {L"ListIndex", L"1"}, {L"ItemFontSize", L"12"}});
    const ComPtr<IDispatch> list = Load(L"lumenkit.VOptList", site, parameters);
    EXPECT_EQ(TextOf(*list.Get(), L"Value"), L"2");
    EXPECT_EQ(TextOf(*list.Get(), L"Caption"), L"Frame1");  // not the caption of a new control
    Leave(list);
}

TEST_F(PageContainer, AMemoTakesItsParametersAndAnEmptyPageGivesDefaults) {
    Site site(true);
    Parameters parameters({{L"Text", L"line one"}, {L"ScrollBars", L"2"}, {L"MaxLines", L"3"}});
    const ComPtr<IDispatch> memo = Load(L"lumenkit.VMemo", site, parameters);
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"line one");
    EXPECT_EQ(TextOf(*memo.Get(), L"ScrollBars"), L"2");
    EXPECT_EQ(TextOf(*memo.Get(), L"MaxLines"), L"3");
    Leave(memo);

    Parameters none({});
    const ComPtr<IDispatch> empty = Load(L"lumenkit.VMemo", site, none);
    EXPECT_EQ(TextOf(*empty.Get(), L"Text"), L"");
    Leave(empty);
}

}  // namespace

}  // namespace lumenkit::clients
