// Uses the controls as managed forms do when they wrap a control. They query the status, set the
// site, start the control as new or from a stream, size it in hundredths of a millimetre, activate
// it, move it and close it.
#include <optional>

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

// The steps of the conversation, in their order.
class Conversation : public FormsContainer {
 protected:
    void SetSite();
    void StartNew();
    void SetSize();
    void Activate();
    void ActivateForTheUser();
    void Close();

    Site site_{true};
    ComPtr<IUnknown> control_;
    ComPtr<IOleObject> object_;
    ComPtr<IOleInPlaceObject> inPlace_;
    HWND window_ = nullptr;
    RECT place_ = {5, 6, 105, 56};
    std::optional<Notices> notices_;
};

void Conversation::SetSite() {
    ASSERT_EQ(control_.As(&object_), S_OK);
    DWORD status = 0;
    ASSERT_EQ(object_->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_NE(status & OLEMISC_SETCLIENTSITEFIRST, 0U);
    EXPECT_NE(status & OLEMISC_ACTIVATEWHENVISIBLE, 0U);
    EXPECT_NE(status & OLEMISC_INSIDEOUT, 0U);
    EXPECT_EQ(status & OLEMISC_INVISIBLEATRUNTIME, 0U);
    ASSERT_EQ(object_->SetClientSite(site_.Client()), S_OK);
}

void Conversation::StartNew() {
    ComPtr<IPersistStreamInit> persisted;
    ASSERT_EQ(control_.As(&persisted), S_OK);
    ASSERT_EQ(persisted->InitNew(), S_OK);
    ComPtr<IDispatch> dispatch;
    ASSERT_EQ(control_.As(&dispatch), S_OK);
    EXPECT_EQ(TextOf(*dispatch.Get(), L"Enabled"), L"True");

    notices_.emplace(*control_.Get(), site_);
    ASSERT_EQ(Put(*dispatch.Get(), L"Enabled", Variant(0L)), S_OK);
    EXPECT_THAT(site_.changed, ElementsAre(-514));
    ASSERT_EQ(Put(*dispatch.Get(), L"Enabled", Variant(-1L)), S_OK);
}

void Conversation::SetSize() {
    SIZEL extent = {5080, 2540};
    ASSERT_EQ(object_->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
    SIZEL got = {};
    ASSERT_EQ(object_->GetExtent(DVASPECT_CONTENT, &got), S_OK);
    EXPECT_EQ(Pixels(got.cx), Pixels(5080));
    EXPECT_EQ(Pixels(got.cy), Pixels(2540));
}

void Conversation::Activate() {
    RECT place = site_.place;
    ASSERT_EQ(object_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_.Client(), -1, site_.Window(),
                              &place),
              S_OK);
    EXPECT_THAT(site_.Calls(), Contains("OnInPlaceActivate"));
    ASSERT_EQ(control_.As(&inPlace_), S_OK);
    ASSERT_EQ(inPlace_->GetWindow(&window_), S_OK);
    EXPECT_EQ(GetParent(window_), site_.Window());
    ASSERT_EQ(inPlace_->SetObjectRects(&place_, &place_), S_OK);
    RECT now = {};
    GetWindowRect(window_, &now);
    MapWindowPoints(nullptr, site_.Window(), reinterpret_cast<POINT*>(&now), 2);
    EXPECT_TRUE(EqualRect(&now, &place_));
    SIZEL got = {};
    ASSERT_EQ(object_->GetExtent(DVASPECT_CONTENT, &got), S_OK);
    EXPECT_EQ(Pixels(got.cx), 100);
}

void Conversation::ActivateForTheUser() {
    ASSERT_EQ(
        object_->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site_.Client(), -1, site_.Window(), &place_),
        S_OK);
    EXPECT_THAT(site_.Calls(), Contains("OnUIActivate"));
    ASSERT_EQ(inPlace_->UIDeactivate(), S_OK);
    EXPECT_THAT(site_.Calls(), Contains("OnUIDeactivate"));
    ComPtr<IOleControl> ole;
    ASSERT_EQ(control_.As(&ole), S_OK);
    EXPECT_EQ(ole->OnAmbientPropertyChange(DISPID_AMBIENT_BACKCOLOR), S_OK);
    EXPECT_EQ(ole->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
    ASSERT_EQ(object_->DoVerb(OLEIVERB_HIDE, nullptr, site_.Client(), -1, site_.Window(), &place_),
              S_OK);
    EXPECT_FALSE(IsWindowVisible(window_));
    ASSERT_EQ(object_->DoVerb(OLEIVERB_SHOW, nullptr, site_.Client(), -1, site_.Window(), &place_),
              S_OK);
    EXPECT_TRUE(IsWindowVisible(window_));
}

void Conversation::Close() {
    ASSERT_EQ(inPlace_->InPlaceDeactivate(), S_OK);
    EXPECT_THAT(site_.Calls(), Contains("OnInPlaceDeactivate"));
    ASSERT_EQ(object_->Close(OLECLOSE_NOSAVE), S_OK);
    ASSERT_EQ(object_->SetClientSite(nullptr), S_OK);
}

TEST_P(Conversation, IsHeldFromTheSiteToTheEnd) {
    control_ = Create<IUnknown>(GetParam());
    ASSERT_NO_FATAL_FAILURE(SetSite());
    ASSERT_NO_FATAL_FAILURE(StartNew());
    ASSERT_NO_FATAL_FAILURE(SetSize());
    ASSERT_NO_FATAL_FAILURE(Activate());
    ASSERT_NO_FATAL_FAILURE(ActivateForTheUser());
    ASSERT_NO_FATAL_FAILURE(Close());
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

const auto controls =
    ::testing::Values(L"lumenkit.VLabel", L"lumenkit.VMemo", L"lumenkit.VOptList");

INSTANTIATE_TEST_SUITE_P(Controls, Conversation, controls);
INSTANTIATE_TEST_SUITE_P(Controls, FormsContainer, controls);

}  // namespace

}  // namespace lumenkit::clients
