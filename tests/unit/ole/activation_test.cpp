#include "tests/ole/container/bag.h"
#include "tests/ole/container/sinks.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

class ActivationTest : public OleTest {
 protected:
    void Place(TextView name) { site_->Take(Create(name)); }
    void TearDown() override {
        site_->LetGo();
        EXPECT_EQ(site_->References(), 0U);
        EXPECT_EQ(site_->GetFrame().References(), 0U);
        site_.reset();
        OleTest::TearDown();
    }

    container::Form form_;
    std::unique_ptr<container::Site> site_ = std::make_unique<container::Site>(form_);
};

TEST_F(ActivationTest, AControlIsShownInItsContainer) {
    Place(u"VLabel");
    EXPECT_EQ(site_->DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
    EXPECT_EQ(site_->Log().Take(), (Lines{"CanInPlaceActivate", "GetWindow", "GetWindowContext",
                                          "OnInPlaceActivate", "ShowObject"}));
    HWND window = nullptr;
    EXPECT_EQ(site_->As<IOleInPlaceObject>()->GetWindow(&window), S_OK);
    EXPECT_EQ(GetParent(window), form_.Window());
    RECT place = {};
    GetWindowRect(window, &place);
    EXPECT_EQ(place.right - place.left, 200);
    EXPECT_EQ(place.bottom - place.top, 100);
    EXPECT_EQ(site_->As<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(site_->Log().Take(), Lines{"OnInPlaceDeactivate"});
    EXPECT_EQ(site_->As<IOleInPlaceObject>()->GetWindow(&window), E_FAIL);
}

TEST_F(ActivationTest, AControlTakesTheKeyboard) {
    Place(u"VMemo");
    EXPECT_EQ(site_->DoVerb(OLEIVERB_UIACTIVATE), S_OK);
    const Lines lines = site_->Log().Take();
    EXPECT_THAT(lines, ::testing::IsSupersetOf({"OnInPlaceActivate", "OnUIActivate",
                                                "SetActiveObject", "SetBorderSpace"}));
    EXPECT_EQ(std::ranges::count(lines, "OnUIActivate"), 1);
    EXPECT_NE(site_->GetFrame().Active(), nullptr);
    EXPECT_EQ(site_->DoVerb(OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_EQ(std::ranges::count(site_->Log().Take(), "OnUIActivate"), 0);
    EXPECT_EQ(site_->As<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    EXPECT_THAT(site_->Log().Take(),
                ::testing::IsSupersetOf({"SetActiveObject none", "OnUIDeactivate"}));
    EXPECT_EQ(site_->DoVerb(OLEIVERB_HIDE), S_OK);
}

TEST_F(ActivationTest, AContainerMayRefuse) {
    Place(u"VLabel");
    site_->allowsActivation = false;
    EXPECT_EQ(site_->DoVerb(OLEIVERB_SHOW), E_FAIL);
    EXPECT_EQ(site_->Log().Take(), Lines{"CanInPlaceActivate"});
    const ComPtr<IOleObject> alone = Create<IOleObject>(u"VLabel");
    EXPECT_EQ(alone->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), E_UNEXPECTED);
    EXPECT_EQ(alone->DoVerb(OLEIVERB_OPEN, nullptr, nullptr, 0, nullptr, nullptr), E_NOTIMPL);
    EXPECT_EQ(alone->DoVerb(-99, nullptr, nullptr, 0, nullptr, nullptr), E_NOTIMPL);
    EXPECT_EQ(alone->DoVerb(OLEIVERB_HIDE, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
}

TEST_F(ActivationTest, AControlAsksForItsIdealSize) {
    Place(u"VLabel");
    EXPECT_EQ(site_->DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
    site_->Log().Take();
    const Late label(site_->As<IDispatch>());
    EXPECT_EQ(label.Invoke(L"SetIdealSize", DISPATCH_METHOD, {}), S_OK);
    const Lines lines = site_->Log().Take();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0], ::testing::StartsWith("OnPosRectChange 10,20,"));
    EXPECT_LT(site_->Width(), 200 * 15);
    SIZEL size = {};
    EXPECT_EQ(site_->As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &size), S_OK);
    EXPECT_NEAR(static_cast<double>(size.cx), site_->Width() * 2540 / 1440, 1);
    EXPECT_EQ(label.Invoke(L"SetIdealSize", DISPATCH_METHOD, {}), S_OK);
    EXPECT_EQ(site_->Log().Take(), Lines{});
}

TEST_F(ActivationTest, ExtentsDoNotCreep) {
    Place(u"VOptList");
    for (LONG length : {1, 26, 27, 1001, 2003, 5007}) {
        SIZEL size = {length, length + 5};
        for (int round = 0; round < 5; ++round) {
            EXPECT_EQ(site_->As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
            EXPECT_EQ(site_->As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &size), S_OK);
        }
        EXPECT_EQ(size.cx, length);
        EXPECT_EQ(size.cy, length + 5);
    }
    SIZEL bad = {-1, 5};
    EXPECT_EQ(site_->As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &bad), E_INVALIDARG);
    EXPECT_EQ(site_->As<IOleObject>()->SetExtent(DVASPECT_ICON, &bad), DV_E_DVASPECT);
    EXPECT_EQ(site_->As<IOleObject>()->SetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
}

TEST_F(ActivationTest, ClosingSavesWhatChanged) {
    Place(u"VLabel");
    container::AdviseSink sink(site_->Log());
    DWORD cookie = 0;
    const ComPtr<IOleObject> object = site_->As<IOleObject>();
    EXPECT_EQ(object->Advise(&sink, &cookie), S_OK);
    EXPECT_EQ(Late(site_->As<IDispatch>()).Put(L"Caption", Text(u"changed")), S_OK);
    EXPECT_EQ(object->Close(OLECLOSE_PROMPTSAVE), S_OK);
    EXPECT_EQ(site_->Log().Take(), (Lines{"SaveObject", "OnClose"}));
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(site_->Log().Take(), Lines{"OnClose"});
    EXPECT_EQ(object->Unadvise(cookie), S_OK);
    EXPECT_EQ(sink.References(), 0U);
}

TEST_F(ActivationTest, ControlsFollowTheirSurroundings) {
    site_->Ambient().Set(DISPID_AMBIENT_BACKCOLOR, std::int32_t{0x345678});
    Place(u"VLabel");
    const Late label(site_->As<IDispatch>());
    EXPECT_EQ(label.Put(L"BackStyle", std::int16_t{1}), S_OK);
    Variant font;
    EXPECT_EQ(label.Invoke(L"Font", DISPATCH_PROPERTYGET, {}, font.Get()), S_OK);
    const Late shown{ComPtr<IDispatch>(V_DISPATCH(font.Get()))};
    EXPECT_EQ(ToText(shown.Get(L"Name")), u"MS Sans Serif");
    EXPECT_EQ(site_->As<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
}

TEST_F(ActivationTest, DesignModeIsTheContainersToSay) {
    site_->Ambient().Set(DISPID_AMBIENT_USERMODE, false);
    Place(u"VOptList");
    const Late list(site_->As<IDispatch>());
    EXPECT_EQ(list.Put(L"Spacing", 300.0F), S_OK);
    EXPECT_EQ(ToSingle(list.Get(L"Spacing")), 300.0F);
    site_->Ambient().Set(DISPID_AMBIENT_USERMODE, true);
    EXPECT_EQ(list.Put(L"Spacing", 400.0F), S_OK);
    EXPECT_EQ(MessageBoxes::Take(), 1);  // refused at run time, with a message
}

TEST_F(ActivationTest, TheExtendersTagReachesTheMemo) {
    site_->SetTag(u"Return hWnd via ML");
    Place(u"VMemo");
    const Late memo(site_->As<IDispatch>());
    EXPECT_NE(ToLong(memo.Get(L"MaxLength")), 0);
    site_->SetTag(u"return hwnd via ml");
    EXPECT_EQ(ToLong(memo.Get(L"MaxLength")), 0);
    site_->hasExtender = false;
    memo.Get(L"MaxLength");
    EXPECT_EQ(MessageBoxes::Take(), 1);  // without an extender there is no Tag
}

TEST_F(ActivationTest, KeysGoToTheControlFirst) {
    Place(u"VMemo");
    EXPECT_EQ(site_->DoVerb(OLEIVERB_UIACTIVATE), S_OK);
    site_->Log().Take();
    const ComPtr<IOleInPlaceActiveObject> active = site_->GetFrame().Active();
    ASSERT_NE(active, nullptr);
    MSG key = {.hwnd = GetFocus(),
               .message = WM_KEYDOWN,
               .wParam = VK_F5,
               .lParam = 0,
               .time = 0,
               .pt = {}};
    EXPECT_EQ(active->TranslateAccelerator(&key), S_FALSE);
    EXPECT_EQ(site_->Log().Take(), Lines{"TranslateAccelerator"});
    EXPECT_EQ(active->TranslateAccelerator(nullptr), E_POINTER);
    CONTROLINFO information = {};
    EXPECT_EQ(site_->As<IOleControl>()->GetControlInfo(&information), E_INVALIDARG);
    information.cb = sizeof information;
    EXPECT_EQ(site_->As<IOleControl>()->GetControlInfo(&information), S_OK);
    EXPECT_EQ(information.dwFlags, static_cast<DWORD>(CTRLINFO_EATS_RETURN));
}

// How a container goes on after the window that it gave a control was destroyed.
struct Aftermath {
    bool deactivates;
    bool closes;
    bool changesSite;
};

TEST_F(ActivationTest, AControlOutlivesTheWindowThatItWasIn) {
    for (const TextView name : {u"VLabel", u"VMemo", u"VOptList"}) {
        for (const auto& [deactivates, closes, changesSite] :
             {Aftermath{true, true, true}, Aftermath{true, true, false},
              Aftermath{false, true, true}, Aftermath{false, false, false},
              Aftermath{false, false, true}}) {
            auto first = std::make_unique<container::Form>();
            container::Form second;
            container::Site site(*first);
            container::Site other(second);
            site.Take(Create(name));
            ASSERT_EQ(site.DoVerb(OLEIVERB_UIACTIVATE), S_OK);
            const auto object = site.As<IOleInPlaceObject>();
            HWND window = nullptr;
            ASSERT_EQ(object->GetWindow(&window), S_OK);
            if (name == u"VMemo") {
                SendMessageW(GetFocus(), WM_CHAR, 'x', 1);  // state that no property holds
            }
            first.reset();
            EXPECT_TRUE(IsWindow(window));
            EXPECT_FALSE(IsWindowVisible(window));
            HWND none = nullptr;
            EXPECT_EQ(object->GetWindow(&none), E_FAIL);
            EXPECT_EQ(none, nullptr);

            site.SetForm(second);
            if (deactivates) {
                EXPECT_EQ(object->InPlaceDeactivate(), S_OK);
            }
            if (closes) {
                EXPECT_EQ(site.As<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
            }
            container::Site& shown = changesSite ? other : site;
            if (changesSite) {
                other.Take(site.As<IUnknown>());
            }
            EXPECT_EQ(shown.DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
            ASSERT_EQ(object->GetWindow(&window), S_OK);
            EXPECT_EQ(GetParent(window), second.Window());
            EXPECT_TRUE(IsWindowVisible(window));
            EXPECT_EQ(shown.DoVerb(OLEIVERB_UIACTIVATE), S_OK);
            EXPECT_TRUE(GetFocus() == window || IsChild(window, GetFocus()));
            const Late control(shown.As<IDispatch>());
            if (name == u"VMemo") {
                EXPECT_EQ(ToText(control.Get(L"Text")), u"xVMemo\r\n");
                EXPECT_EQ(SendMessageW(GetFocus(), WM_GETTEXTLENGTH, 0, 0), 8);
            } else if (name == u"VOptList") {
                EXPECT_EQ(control.Put(L"Contents", Text(u"a;A|b;B|c;C")), S_OK);
                EXPECT_EQ(control.Put(L"ListIndex", std::int16_t{2}), S_OK);
                EXPECT_EQ(ToText(control.Get(L"Text")), u"c");
            }
            EXPECT_EQ(MessageBoxes::Take(), 0);
            other.Drop();
            site.LetGo();
        }
    }
}

TEST_F(ActivationTest, AWindowThatThereIsNotIsAFailure) {
    Place(u"VLabel");
    container::Form gone;
    site_->SetForm(gone);
    EXPECT_EQ(site_->DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
    DestroyWindow(gone.Window());
    EXPECT_EQ(site_->DoVerb(OLEIVERB_INPLACEACTIVATE), OLE_E_INVALIDHWND);
    EXPECT_EQ(site_->DoVerb(OLEIVERB_UIACTIVATE), OLE_E_INVALIDHWND);
    site_->SetForm(form_);
    EXPECT_EQ(site_->DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
    // Some containers destroy the control's own window.
    HWND window = nullptr;
    EXPECT_EQ(site_->As<IOleInPlaceObject>()->GetWindow(&window), S_OK);
    DestroyWindow(window);
    EXPECT_EQ(site_->As<IOleInPlaceObject>()->GetWindow(&window), E_FAIL);
    EXPECT_EQ(site_->DoVerb(OLEIVERB_INPLACEACTIVATE), OLE_E_INVALIDHWND);
}

TEST_F(ActivationTest, ActivationSurvivesBadRectangles) {
    Place(u"VLabel");
    const ComPtr<IOleInPlaceObject> object = site_->As<IOleInPlaceObject>();
    const RECT place = {0, 0, 50, 50};
    EXPECT_EQ(object->SetObjectRects(&place, &place), E_UNEXPECTED);
    EXPECT_EQ(site_->DoVerb(OLEIVERB_SHOW), S_OK);
    EXPECT_EQ(object->SetObjectRects(nullptr, nullptr), E_POINTER);
    const RECT inverted = {50, 50, 0, 0};
    EXPECT_EQ(object->SetObjectRects(&inverted, &place), E_INVALIDARG);
    EXPECT_EQ(object->SetObjectRects(&place, nullptr), S_OK);
    EXPECT_EQ(object->GetWindow(nullptr), E_POINTER);
}

}  // namespace
}  // namespace lumenkit::ole
