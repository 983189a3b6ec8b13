// A container in design mode (UserMode is False) or one that ignores the user (UIDead is True).
#include "tests/ole/container/sinks.h"
#include "tests/support/picture.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

using lumenkit::testing::Picture;

class DesignModeTest : public OleTest {
 protected:
    void Place(TextView name) {
        name_ = name;
        site_.Take(Create(name));
        EXPECT_EQ(site_.DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
        ComPtr<IConnectionPointContainer> container = site_.As<IConnectionPointContainer>();
        Text whole(u"lumenkit.");
        whole += name;
        EXPECT_EQ(container->FindConnectionPoint(
                      GuidOf(lumenkitClasses.Find(whole)->eventTable->uniqueIdentifier), &point_),
                  S_OK);
        EXPECT_EQ(point_->Advise(&sink_, &cookie_), S_OK);
    }
    void SetUserMode(bool userMode) {
        site_.Ambient().Set(DISPID_AMBIENT_USERMODE, userMode);
        Announce(DISPID_AMBIENT_USERMODE);
    }
    void SetUIDead(bool dead) {
        site_.Ambient().Set(DISPID_AMBIENT_UIDEAD, dead);
        Announce(DISPID_AMBIENT_UIDEAD);
    }
    void Announce(DISPID property) {
        EXPECT_EQ(site_.As<IOleControl>()->OnAmbientPropertyChange(property), S_OK);
    }
    Late Control() { return Late(site_.As<IDispatch>()); }
    HWND Window() {
        HWND window = nullptr;
        EXPECT_EQ(site_.As<IOleInPlaceObject>()->GetWindow(&window), S_OK);
        return window;
    }
    // The visible window inside `parent` that was created first.
    static HWND Inside(HWND parent) {
        HWND child = GetWindow(parent, GW_CHILD);
        while (child != nullptr && IsWindowVisible(child) == FALSE) {
            child = GetWindow(child, GW_HWNDNEXT);
        }
        return child;
    }
    static void Click(HWND window) {
        SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }
    static void Type(HWND window, wchar_t unit) {
        SendMessageW(window, WM_KEYDOWN, LOBYTE(VkKeyScanW(unit)), 1);
        SendMessageW(window, WM_CHAR, unit, 1);
        SendMessageW(window, WM_KEYUP, LOBYTE(VkKeyScanW(unit)), 0xC0000001);
    }
    int TakeEvents() { return std::exchange(events_, 0); }
    std::vector<std::uint32_t> Drawn() {
        Picture picture(200, 100);
        const RECTL place = {0, 0, 200, 100};
        EXPECT_EQ(site_.As<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                                picture.Device(), &place, nullptr, nullptr, 0),
                  S_OK);
        return picture.Pixels();
    }
    void TearDown() override {
        point_->Unadvise(cookie_);
        point_.Reset();
        site_.LetGo();
        OleTest::TearDown();
    }

    container::Form form_;
    container::Site site_{form_};

 private:
    TextView name_;
    int events_ = 0;
    container::EventSink sink_{[this](DISPID /*event*/, DISPPARAMS& /*arguments*/) {
        ++events_;
        return S_OK;
    }};
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

TEST_F(DesignModeTest, AMemoIsNotEdited) {
    Place(u"VMemo");
    EXPECT_EQ(Control().Put(L"Text", Text(u"text")), S_OK);
    const HWND box = Inside(Window());
    Type(box, L'x');
    Click(box);
    EXPECT_EQ(ToText(Control().Get(L"Text")), u"xtext");
    EXPECT_GT(TakeEvents(), 3);
    for (const auto& [die, live] : {std::pair<std::function<void()>, std::function<void()>>(
                                        [&] { SetUserMode(false); }, [&] { SetUserMode(true); }),
                                    std::pair<std::function<void()>, std::function<void()>>(
                                        [&] { SetUIDead(true); }, [&] { SetUIDead(false); })}) {
        EXPECT_EQ(site_.As<IOleInPlaceObject>()->UIDeactivate(), S_OK);
        EXPECT_EQ(site_.DoVerb(OLEIVERB_UIACTIVATE), S_OK);
        EXPECT_EQ(GetFocus(), box);
        const std::vector<std::uint32_t> before = Drawn();
        TakeEvents();
        die();
        EXPECT_NE(GetFocus(), box);
        EXPECT_FALSE(IsWindowEnabled(Window()));  // so that a click goes to the container
        EXPECT_TRUE(IsWindowEnabled(box));        // so that the box does not look disabled
        EXPECT_EQ(Drawn(), before);
        Type(box, L'y');
        Click(box);
        SetFocus(box);
        EXPECT_NE(GetFocus(), box);
        MSG tab = {};
        tab.hwnd = box;
        tab.message = WM_KEYDOWN;
        tab.wParam = VK_RETURN;
        EXPECT_EQ(site_.As<IOleInPlaceActiveObject>()->TranslateAccelerator(&tab), S_FALSE);
        EXPECT_EQ(ToText(Control().Get(L"Text")), u"xtext");
        EXPECT_EQ(TakeEvents(), 0);
        live();
        EXPECT_TRUE(IsWindowEnabled(Window()));
        Type(box, L'z');
        EXPECT_GT(TakeEvents(), 0);
        EXPECT_EQ(Control().Put(L"Text", Text(u"xtext")), S_OK);
    }
}

TEST_F(DesignModeTest, AnOptionIsNotSelected) {
    site_.Ambient().Set(DISPID_AMBIENT_USERMODE, false);
    Place(u"VOptList");
    EXPECT_EQ(Control().Put(L"Contents", Text(u"a;&Apple|b;&Banana")), S_OK);
    const HWND option = Inside(Inside(Window()));
    ASSERT_NE(option, nullptr);
    Click(option);
    Type(option, L' ');
    EXPECT_EQ(ToLong(Control().Get(L"ListIndex")), -1);
    MSG key = {};
    key.message = WM_SYSCHAR;
    key.wParam = 'b';
    EXPECT_EQ(site_.As<IOleControl>()->OnMnemonic(&key), S_OK);
    EXPECT_EQ(ToLong(Control().Get(L"ListIndex")), -1);
    // The designer may still set properties. That raises no event either.
    EXPECT_EQ(Control().Put(L"ListIndex", std::int16_t{1}), S_OK);
    EXPECT_EQ(ToLong(Control().Get(L"ListIndex")), 1);
    EXPECT_EQ(TakeEvents(), 0);
    SetUserMode(true);
    Click(option);
    EXPECT_EQ(ToLong(Control().Get(L"ListIndex")), 0);
    EXPECT_EQ(TakeEvents(), 1);
}

TEST_F(DesignModeTest, ALabelRaisesNoEvents) {
    Place(u"VLabel");
    Click(Window());
    EXPECT_GT(TakeEvents(), 2);
    SetUIDead(true);
    Click(Window());
    EXPECT_EQ(TakeEvents(), 0);
    SetUIDead(false);
    SetUserMode(false);
    Click(Window());
    EXPECT_EQ(TakeEvents(), 0);
    SetUserMode(true);
    Click(Window());
    EXPECT_GT(TakeEvents(), 2);
}

}  // namespace
}  // namespace lumenkit::ole
