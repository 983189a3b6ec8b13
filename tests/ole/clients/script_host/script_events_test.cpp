// Scripts that handle the controls' events, as in a page or a form, by procedures called
// Name_Event.
#include <gmock/gmock.h>

#include "tests/ole/clients/script_host/script_host.h"
#include "tests/ole/clients/support/atl_window.h"

namespace lumenkit::clients {

namespace {

using ::testing::IsEmpty;

class ScriptEvents : public OleTest {};

TEST_F(ScriptEvents, AnOptionListClicksForCodeAndForPeople) {
    AtlWindow window(L"lumenkit.VOptList");
    ScriptHost host(L"VBScript");
    host.Add(L"Sizes", window.Control());
    host.Run(
        L"Dim heard\n"
        L"heard = \"\"\n"
        L"Sub Sizes_Click()\n"
        L"    heard = heard & Sizes.Value & Sizes.ListIndex & \" \"\n"
        L"End Sub\n"
        L"Sizes.Contents = \"s;Small|m;Medium|l;Large\"\n");
    const ComPtr<IDispatch> list = window.Control();
    EXPECT_EQ(Put(*list.Get(), L"ListIndex", Variant(1L)), S_OK);
    EXPECT_EQ(Put(*list.Get(), L"Text", Variant(L"L")), S_OK);
    EXPECT_EQ(Put(*list.Get(), L"ListIndex", Variant(-1L)), S_OK);
    SendMessageW(window.Visible(L"Button").back(), BM_CLICK, 0, 0);
    EXPECT_EQ(host.Variable(L"heard"), L"m1 l2 l2 ");
    EXPECT_THAT(host.Errors(), IsEmpty());
}

TEST_F(ScriptEvents, AScriptSeesAndChangesTheKeysOfAMemo) {
    AtlWindow window(L"lumenkit.VMemo");
    ScriptHost host(L"VBScript");
    host.Add(L"Memo", window.Control());
    host.Run(
        L"Dim heard, changes\n"
        L"heard = \"\"\n"
        L"changes = 0\n"
        L"Memo.Text = \"\"\n"
        L"Sub Memo_KeyDown(KeyCode, Shift)\n"
        L"    heard = heard & \"d\" & KeyCode & \" \"\n"
        L"End Sub\n"
        L"Sub Memo_KeyPress(KeyAscii)\n"
        L"    heard = heard & \"p\" & KeyAscii & \" \"\n"
        L"    If KeyAscii = Asc(\"x\") Then KeyAscii = 0\n"
        L"    If KeyAscii = Asc(\"b\") Then KeyAscii = Asc(\"B\")\n"
        L"End Sub\n"
        L"Sub Memo_KeyUp(KeyCode, Shift)\n"
        L"    heard = heard & \"u\" & KeyCode & \" \"\n"
        L"End Sub\n"
        L"Sub Memo_Change()\n"
        L"    changes = changes + 1\n"
        L"End Sub\n");
    const HWND edit = window.Visible(L"Edit").at(0);
    for (const wchar_t key : std::wstring(L"abx")) {
        AtlWindow::Type(edit, key);
    }
    EXPECT_EQ(TextOf(*window.Control().Get(), L"Text"), L"aB");
    EXPECT_EQ(host.Variable(L"heard"), L"d65 p97 u65 d66 p98 u66 d88 p120 u88 ");
    EXPECT_EQ(host.Variable(L"changes"), L"2");
    // A text assigned by code raises no Change event.
    EXPECT_EQ(Put(*window.Control().Get(), L"Text", Variant(L"by code")), S_OK);
    EXPECT_EQ(host.Variable(L"changes"), L"2");
    EXPECT_THAT(host.Errors(), IsEmpty());
}

TEST_F(ScriptEvents, AScriptMayAssignTextWhileItHearsOfAChange) {
    AtlWindow window(L"lumenkit.VMemo");
    ScriptHost host(L"VBScript");
    host.Add(L"Memo", window.Control());
    host.Run(
        L"Memo.Text = \"\"\n"
        L"Sub Memo_Change()\n"
        L"    Memo.Text = UCase(Memo.Text)\n"
        L"End Sub\n");
    AtlWindow::Type(window.Visible(L"Edit").at(0), L'q');
    EXPECT_EQ(TextOf(*window.Control().Get(), L"Text"), L"Q");
    EXPECT_THAT(host.Errors(), IsEmpty());
}

TEST_F(ScriptEvents, AScriptSeesTheMouseOverALabel) {
    AtlWindow window(L"lumenkit.VLabel");
    ScriptHost host(L"VBScript");
    host.Add(L"Label", window.Control());
    host.Run(
        L"Dim heard\n"
        L"Sub Label_MouseUp(Button, Shift, X, Y)\n"
        L"    heard = Button & \" \" & Shift & \" \" & (X > 0) & \" \" & (Y > X)\n"
        L"    Label.Caption = \"clicked\"\n"
        L"End Sub\n");
    ComPtr<IOleWindow> own;
    HWND handle = nullptr;
    ASSERT_EQ(window.Control().As(&own), S_OK);
    ASSERT_EQ(own->GetWindow(&handle), S_OK);
    const HeldKey control(VK_CONTROL);
    SendMessageW(handle, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(3, 30));
    SendMessageW(handle, WM_RBUTTONUP, MK_CONTROL, MAKELPARAM(3, 30));
    EXPECT_EQ(host.Variable(L"heard"), L"2 2 True True");
    EXPECT_EQ(TextOf(*window.Control().Get(), L"Caption"), L"clicked");
    EXPECT_THAT(host.Errors(), IsEmpty());
}

}  // namespace

}  // namespace lumenkit::clients
