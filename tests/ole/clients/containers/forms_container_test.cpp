// Uses the controls as managed forms do when they wrap a control. They query the status, set the
// site, start the control as new or from a stream, size it in hundredths of a millimetre, activate
// it, move it and close it.
#include <gmock/gmock.h>

#include "tests/ole/clients/containers/site.h"

namespace lumenkit::clients {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

class FormsContainer : public OleTest, public ::testing::WithParamInterface<const wchar_t*> {};

// Converts hundredths of a millimetre to pixels.
int Pixels(LONG himetric) {
    const HDC screen = GetDC(nullptr);
    const int pixels = MulDiv(static_cast<int>(himetric), GetDeviceCaps(screen, LOGPIXELSX), 2540);
    ReleaseDC(nullptr, screen);
    return pixels;
}

TEST_P(FormsContainer, HoldsTheWholeConversation) {
    Site site(true);
    {
        const ComPtr<IUnknown> control = Create<IUnknown>(GetParam());
        ComPtr<IOleObject> object;
        ASSERT_EQ(control.As(&object), S_OK);
        DWORD status = 0;
        ASSERT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
        EXPECT_NE(status & OLEMISC_SETCLIENTSITEFIRST, 0U);
        EXPECT_NE(status & OLEMISC_ACTIVATEWHENVISIBLE, 0U);
        EXPECT_NE(status & OLEMISC_INSIDEOUT, 0U);
        EXPECT_EQ(status & OLEMISC_INVISIBLEATRUNTIME, 0U);
        ASSERT_EQ(object->SetClientSite(site.Client()), S_OK);

        ComPtr<IPersistStreamInit> persisted;
        ASSERT_EQ(control.As(&persisted), S_OK);
        ASSERT_EQ(persisted->InitNew(), S_OK);
        ComPtr<IDispatch> dispatch;
        ASSERT_EQ(control.As(&dispatch), S_OK);
        EXPECT_EQ(TextOf(*dispatch.Get(), L"Enabled"), L"True");

        const Notices notices(*control.Get(), site);
        ASSERT_EQ(Put(*dispatch.Get(), L"Enabled", Variant(0L)), S_OK);
        EXPECT_THAT(site.changed, ElementsAre(-514));
        ASSERT_EQ(Put(*dispatch.Get(), L"Enabled", Variant(-1L)), S_OK);

        SIZEL extent = {5080, 2540};
        ASSERT_EQ(object->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
        SIZEL got = {};
        ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &got), S_OK);
        EXPECT_EQ(Pixels(got.cx), Pixels(5080));
        EXPECT_EQ(Pixels(got.cy), Pixels(2540));

        RECT place = site.place;
        ASSERT_EQ(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site.Client(), -1,
                                 site.Window(), &place),
                  S_OK);
        EXPECT_THAT(site.Calls(), Contains("OnInPlaceActivate"));
        ComPtr<IOleInPlaceObject> inPlace;
        HWND window = nullptr;
        ASSERT_EQ(control.As(&inPlace), S_OK);
        ASSERT_EQ(inPlace->GetWindow(&window), S_OK);
        EXPECT_EQ(GetParent(window), site.Window());
        place = {5, 6, 105, 56};
        ASSERT_EQ(inPlace->SetObjectRects(&place, &place), S_OK);
        RECT now = {};
        GetWindowRect(window, &now);
        MapWindowPoints(nullptr, site.Window(), reinterpret_cast<POINT*>(&now), 2);
        EXPECT_TRUE(EqualRect(&now, &place));
        ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &got), S_OK);
        EXPECT_EQ(Pixels(got.cx), 100);

        ASSERT_EQ(
            object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site.Client(), -1, site.Window(), &place),
            S_OK);
        EXPECT_THAT(site.Calls(), Contains("OnUIActivate"));
        ASSERT_EQ(inPlace->UIDeactivate(), S_OK);
        EXPECT_THAT(site.Calls(), Contains("OnUIDeactivate"));
        ComPtr<IOleControl> ole;
        ASSERT_EQ(control.As(&ole), S_OK);
        EXPECT_EQ(ole->OnAmbientPropertyChange(DISPID_AMBIENT_BACKCOLOR), S_OK);
        EXPECT_EQ(ole->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
        ASSERT_EQ(object->DoVerb(OLEIVERB_HIDE, nullptr, site.Client(), -1, site.Window(), &place),
                  S_OK);
        EXPECT_FALSE(IsWindowVisible(window));
        ASSERT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, site.Client(), -1, site.Window(), &place),
                  S_OK);
        EXPECT_TRUE(IsWindowVisible(window));

        ASSERT_EQ(inPlace->InPlaceDeactivate(), S_OK);
        EXPECT_THAT(site.Calls(), Contains("OnInPlaceDeactivate"));
        ASSERT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
        ASSERT_EQ(object->SetClientSite(nullptr), S_OK);
    }
}

TEST_P(FormsContainer, LoadsWhatItSavedAndAsksWhetherItMust) {
    ComPtr<IStream> stream;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    const wchar_t* property = std::wstring(GetParam()).ends_with(L"VMemo") ? L"Text" : L"Caption";
    {
        const ComPtr<IDispatch> control = Create(GetParam());
        ComPtr<IPersistStreamInit> persisted;
        ASSERT_EQ(control.As(&persisted), S_OK);
        ASSERT_EQ(persisted->InitNew(), S_OK);
        ASSERT_EQ(Put(*control.Get(), property, Variant(L"saved")), S_OK);
        EXPECT_EQ(persisted->IsDirty(), S_OK);
        ASSERT_EQ(persisted->Save(stream.Get(), TRUE), S_OK);
        EXPECT_EQ(persisted->IsDirty(), S_FALSE);
    }
    Site site(true);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const ComPtr<IDispatch> control = Create(GetParam());
    ComPtr<IOleObject> object;
    ComPtr<IPersistStreamInit> persisted;
    ASSERT_EQ(control.As(&object), S_OK);
    ASSERT_EQ(control.As(&persisted), S_OK);
    ASSERT_EQ(object->SetClientSite(site.Client()), S_OK);
    ASSERT_EQ(persisted->Load(stream.Get()), S_OK);
    EXPECT_EQ(TextOf(*control.Get(), property), L"saved");
    EXPECT_EQ(persisted->IsDirty(), S_FALSE);
    ASSERT_EQ(object->SetClientSite(nullptr), S_OK);
}

INSTANTIATE_TEST_SUITE_P(Controls, FormsContainer,
                         ::testing::Values(L"lumenkit.VLabel", L"lumenkit.VMemo",
                                           L"lumenkit.VOptList"));

}  // namespace

}  // namespace lumenkit::clients
