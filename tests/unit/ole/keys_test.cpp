// Keys in a container: the control gets a key first, then the container.
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

class KeysTest : public OleTest {
 protected:
    void Place(TextView name) { site_.Take(Create(name)); }
    void Activate() {
        EXPECT_EQ(site_.DoVerb(OLEIVERB_UIACTIVATE), S_OK);
        site_.Log().Take();
    }
    HRESULT Send(UINT message, WPARAM key) {
        MSG sent = {};
        sent.hwnd = GetFocus();
        sent.message = message;
        sent.wParam = key;
        return site_.As<IOleInPlaceActiveObject>()->TranslateAccelerator(&sent);
    }
    // Runs the messages and returns how often the control announced other mnemonics.
    std::ptrdiff_t TakeAnnouncements() {
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
            DispatchMessageW(&message);
        }
        return std::ranges::count(site_.Log().Take(), "OnControlInfoChanged");
    }
    void TearDown() override {
        site_.LetGo();
        OleTest::TearDown();
    }

    container::Form form_;
    container::Site site_{form_};
};

TEST_F(KeysTest, TabLeavesAMemoAndReturnStaysInIt) {
    Place(u"VMemo");
    Activate();
    const HWND box = GetFocus();
    EXPECT_EQ(Send(WM_KEYDOWN, VK_TAB), S_FALSE);
    EXPECT_EQ(site_.Log().Take(), Lines{"TranslateAccelerator"});
    EXPECT_EQ(GetFocus(), box);  // the container moves the focus
    EXPECT_EQ(Send(WM_KEYDOWN, VK_RETURN), S_OK);
    EXPECT_EQ(site_.Log().Take(), Lines{});
    EXPECT_EQ(Send(WM_KEYDOWN, VK_ESCAPE), S_FALSE);
    EXPECT_EQ(Send(WM_SYSCHAR, 'x'), S_FALSE);
}

TEST_F(KeysTest, AMemoKeepsTheKeyboardUnderOtherScrollBarsAndWhileItIsDisabled) {
    Place(u"VMemo");
    const Late memo(site_.As<IDispatch>());
    EXPECT_EQ(memo.Put(L"Text", Text()), S_OK);
    Activate();
    const HWND former = GetFocus();
    SendMessageW(former, WM_CHAR, u'a', 1);
    EXPECT_EQ(memo.Put(L"ScrollBars", std::int32_t{3}), S_OK);
    EXPECT_NE(GetFocus(), former);
    SendMessageW(GetFocus(), WM_CHAR, u'b', 1);
    EXPECT_EQ(ToText(memo.Get(L"Text")), u"ab");
    EXPECT_EQ(memo.Put(L"Enabled", false), S_OK);
    SendMessageW(GetFocus(), WM_CHAR, u'x', 1);
    EXPECT_EQ(memo.Put(L"Enabled", true), S_OK);
    SendMessageW(GetFocus(), WM_CHAR, u'c', 1);
    EXPECT_EQ(ToText(memo.Get(L"Text")), u"abc");
    EXPECT_THAT(site_.Log().Take(), ::testing::Each(::testing::Not(::testing::HasSubstr("Focus"))));
}

TEST_F(KeysTest, ArrowsStayInAnOptionListAndTabLeavesIt) {
    Place(u"VOptList");
    const Late list(site_.As<IDispatch>());
    EXPECT_EQ(list.Put(L"Contents", Text(u"a;&Apple|b;&Banana|c;Cherry")), S_OK);
    EXPECT_EQ(list.Put(L"ListIndex", std::int16_t{0}), S_OK);
    Activate();
    const HWND first = GetFocus();
    EXPECT_EQ(Send(WM_KEYDOWN, VK_DOWN), S_OK);
    EXPECT_EQ(ToLong(list.Get(L"ListIndex")), 1);
    EXPECT_NE(GetFocus(), first);
    EXPECT_EQ(Send(WM_KEYDOWN, VK_UP), S_OK);
    EXPECT_EQ(ToLong(list.Get(L"ListIndex")), 0);
    EXPECT_EQ(GetFocus(), first);
    EXPECT_EQ(Send(WM_KEYDOWN, VK_UP), S_OK);  // wraps around at the end
    EXPECT_EQ(ToLong(list.Get(L"ListIndex")), 2);
    EXPECT_EQ(Send(WM_SYSCHAR, 'B'), S_OK);
    EXPECT_EQ(ToLong(list.Get(L"ListIndex")), 1);
    EXPECT_EQ(site_.Log().Take(), Lines{});
    EXPECT_EQ(Send(WM_KEYDOWN, VK_TAB), S_FALSE);
    EXPECT_EQ(Send(WM_KEYDOWN, VK_RETURN), S_FALSE);
    EXPECT_EQ(Send(WM_SYSCHAR, 'z'), S_FALSE);
    EXPECT_EQ(std::ranges::count(site_.Log().Take(), "TranslateAccelerator"), 3);
}

TEST_F(KeysTest, AContainerFindsAMnemonicOfTheOptions) {
    Place(u"VOptList");
    const Late list(site_.As<IDispatch>());
    EXPECT_EQ(list.Put(L"Contents", Text(u"a;&Apple|b;&Banana|c;Cherry && co")), S_OK);
    EXPECT_EQ(site_.DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
    const ComPtr<IOleControl> control = site_.As<IOleControl>();
    CONTROLINFO information = {};
    information.cb = sizeof information;
    ASSERT_EQ(control->GetControlInfo(&information), S_OK);
    ASSERT_NE(information.hAccel, nullptr);
    WORD command = 0;
    MSG key = {};
    key.message = WM_SYSCHAR;
    key.lParam = 1 << 29;
    key.wParam = 'b';
    EXPECT_TRUE(IsAccelerator(information.hAccel, information.cAccel, &key, &command));
    key.wParam = ' ';
    EXPECT_FALSE(IsAccelerator(information.hAccel, information.cAccel, &key, &command));
    key.wParam = 'c';
    EXPECT_FALSE(IsAccelerator(information.hAccel, information.cAccel, &key, &command));
    key.wParam = 'B';
    EXPECT_EQ(control->OnMnemonic(&key), S_OK);
    EXPECT_EQ(ToLong(list.Get(L"ListIndex")), 1);
    EXPECT_THAT(site_.Log().Take(), ::testing::Contains("OnUIActivate"));
    key.message = WM_SYSKEYDOWN;
    key.wParam = 'A';
    EXPECT_EQ(control->OnMnemonic(&key), S_OK);
    EXPECT_EQ(ToLong(list.Get(L"ListIndex")), 0);
}

TEST_F(KeysTest, TheContainerIsToldOnceWhenMnemonicsChange) {
    Place(u"VOptList");
    const Late list(site_.As<IDispatch>());
    EXPECT_EQ(site_.DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
    EXPECT_EQ(list.Put(L"Caption", Text(u"&Fruit")), S_OK);
    EXPECT_EQ(TakeAnnouncements(), 0);  // the container has not asked for the mnemonics
    CONTROLINFO information = {};
    information.cb = sizeof information;
    ASSERT_EQ(site_.As<IOleControl>()->GetControlInfo(&information), S_OK);
    EXPECT_EQ(TakeAnnouncements(), 0);
    EXPECT_EQ(list.Put(L"Contents", Text(u"a;&Apple|b;&Banana|c;&Cherry")), S_OK);
    EXPECT_EQ(TakeAnnouncements(), 1);
    EXPECT_EQ(list.Put(L"Contents", Text(u"1;&Apple|2;&Banana|3;&Cherry")), S_OK);
    EXPECT_EQ(list.Put(L"ListIndex", std::int16_t{1}), S_OK);
    EXPECT_EQ(TakeAnnouncements(), 0);
    EXPECT_EQ(list.Put(L"Caption", Text(u"Fruit")), S_OK);
    EXPECT_EQ(TakeAnnouncements(), 1);
    EXPECT_EQ(list.Put(L"Enabled", false), S_OK);
    EXPECT_EQ(TakeAnnouncements(), 1);
    ASSERT_EQ(site_.As<IOleControl>()->GetControlInfo(&information), S_OK);
    EXPECT_EQ(information.cAccel, 0);
    EXPECT_EQ(list.Put(L"Enabled", true), S_OK);
    EXPECT_EQ(TakeAnnouncements(), 1);
}

TEST_F(KeysTest, ALabelUsesNoKeys) {
    Place(u"VLabel");
    EXPECT_EQ(Late(site_.As<IDispatch>()).Put(L"Caption", Text(u"&Name")), S_OK);
    CONTROLINFO information = {};
    information.cb = sizeof information;
    EXPECT_EQ(site_.As<IOleControl>()->GetControlInfo(&information), S_OK);
    EXPECT_EQ(information.cAccel, 0);
    EXPECT_EQ(information.hAccel, nullptr);
    Activate();
    for (const WPARAM key : {VK_TAB, VK_RETURN, VK_DOWN}) {
        EXPECT_EQ(Send(WM_KEYDOWN, key), S_FALSE);
    }
    EXPECT_EQ(Send(WM_SYSCHAR, 'n'), S_FALSE);  // its captions have no mnemonics
    EXPECT_EQ(std::ranges::count(site_.Log().Take(), "TranslateAccelerator"), 4);
}

}  // namespace
}  // namespace lumenkit::ole
