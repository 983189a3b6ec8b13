// A control's surface on real devices: behaviour that the shared contract tests cannot check.
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frame/automation/interface_table.h"
#include "frame/utf8.h"
#include "runtime/shared/open_boxes.h"
#include "runtime/win32/colors.h"
#include "runtime/win32/thread_shared.h"
#include "tests/support/allocation_counter.h"
#include "tests/support/picture.h"
#include "tests/support/windows_form.h"
#include "tests/unit/win32/painted_control.h"

namespace lumenkit::testing {
namespace {

constexpr SIZE paintedSize = {200, 100};
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

class SurfaceTest : public ::testing::Test {
 protected:
    SurfaceTest() { control_.Start(); }

    PaintedControl& Painted() { return *PaintedControl::Last(); }
    host::Surface& Surface() { return control_.Hosted().Drawing(); }
    HWND Window() { return control_.Hosted().Handle(); }
    float Pixels(int count) { return win32::ToTwips(count, form_.PixelsPerInch().x); }

    // OnScreen() returns the picture in the window. Drawn() draws on another device.
    std::unique_ptr<Picture> OnScreen() {
        UpdateWindow(Window());
        auto picture = std::make_unique<Picture>(paintedSize.cx, paintedSize.cy);
        const HDC device = GetDC(Window());
        BitBlt(picture->Device(), 0, 0, paintedSize.cx, paintedSize.cy, device, 0, 0, SRCCOPY);
        ReleaseDC(Window(), device);
        return picture;
    }
    std::unique_ptr<Picture> Drawn(SIZE scaled = paintedSize) {
        auto picture = std::make_unique<Picture>(scaled.cx, scaled.cy);
        control_.Hosted().DrawOn(picture->Device(), {0, 0, scaled.cx, scaled.cy});
        return picture;
    }
    void PaintBy(std::function<void(host::Surface&)> paint) {
        Painted().paint = std::move(paint);
        Surface().Refresh();
    }

    WindowsForm form_{PaintedClasses()};
    FormControl control_{form_, PaintedClasses().classes[0], paintedSize};
};

TEST_F(SurfaceTest, ABoxIncludesBothCorners) {
    PaintBy([&](host::Surface& surface) {
        surface.SetForeColor(Rgb(0, 0, 255));
        surface.FillBox(Pixels(10), Pixels(20), Pixels(14), Pixels(20), Rgb(255, 0, 0));
        surface.FillBox(Pixels(33), Pixels(44), Pixels(31), Pixels(41), Color{});
    });
    for (const auto& picture : {OnScreen(), Drawn()}) {
        EXPECT_EQ(picture->Count(red), 5);
        EXPECT_EQ(picture->Count(red, {10, 20, 15, 21}), 5);
        EXPECT_EQ(picture->Count(blue), 12) << "without a colour it has the surface's";
        EXPECT_EQ(picture->Count(blue, {31, 41, 34, 45}), 12) << "corners in any order";
    }
}

TEST_F(SurfaceTest, TextStandsAtThePen) {
    PaintBy([&](host::Surface& surface) {
        surface.SetBackColor(Rgb(255, 255, 255));
        surface.SetCurrentFont(form_.Fonts().NewFont(u"Arial", 24));
        surface.SetForeColor(Rgb(255, 0, 0));
        surface.SetCurrentX(Pixels(50));
        surface.SetCurrentY(Pixels(30));
        surface.Print(u"HH");
    });
    const float width = Surface().TextWidth(u"HH");
    const RECT bounds = Drawn()->BoundsOfOthers(RGB(255, 255, 255));
    EXPECT_GE(bounds.left, 50);
    EXPECT_LE(bounds.left, 54);
    EXPECT_GE(bounds.top, 30);
    EXPECT_LE(win32::ToTwips(static_cast<int>(bounds.right), 96), Pixels(50) + width);
    EXPECT_LE(win32::ToTwips(static_cast<int>(bounds.bottom), 96),
              Pixels(30) + Surface().TextHeight(u"HH"));
    EXPECT_GT(bounds.bottom - bounds.top, 15);
}

TEST_F(SurfaceTest, ControlCharactersAreDrawnAsBlanks) {
    const auto draw = [&](const Text& text, SIZE scaled) {
        PaintBy([&](host::Surface& surface) {
            surface.SetCurrentFont(form_.Fonts().NewFont(u"Arial", 12));
            surface.Print(text);
            surface.Print(u"|");
        });
        return Drawn(scaled)->Pixels();
    };
    for (const SIZE scaled : {paintedSize, SIZE{600, 300}}) {
        const auto blanks = draw(u"one two  three \u20AC", scaled);
        EXPECT_EQ(draw(u"one\ttwo\r\nthree\u0007\u20AC", scaled), blanks);
        EXPECT_EQ(draw(u"one\u2028two\x7F\x80three\u2029\u20AC", scaled), blanks);
    }
}

TEST_F(SurfaceTest, TheBackgroundShowsBetweenTheStrokesOrDoesNot) {
    for (const bool transparent : {true, false}) {
        PaintBy([&](host::Surface& surface) {
            surface.SetFontTransparent(transparent);
            surface.Cls();
            surface.FillBox(0, 0, Pixels(150), Pixels(80), Rgb(255, 0, 0));
            surface.SetCurrentX(Pixels(10));
            surface.SetCurrentY(Pixels(10));
            surface.Print(u"text");
        });
        const int width = win32::ToPixels(Surface().TextWidth(u"text"), 96);
        const int height = win32::ToPixels(Surface().TextHeight(u"text"), 96);
        const RECT cell = {10, 10, 10 + width, 10 + height};
        const int reds = Drawn()->Count(red, cell);
        EXPECT_EQ(reds == 0, !transparent) << reds;
    }
}

TEST_F(SurfaceTest, SystemColoursAreThoseOfThePlatform) {
    EXPECT_EQ(win32::ToColorRef(Color::WindowBackground), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(win32::ToColorRef(Rgb(1, 2, 3)), RGB(1, 2, 3));
    Surface().SetBackColor(Color::Highlight);
    EXPECT_EQ(OnScreen()->Count(GetSysColor(COLOR_HIGHLIGHT)), paintedSize.cx * paintedSize.cy);
}

// Uses other system colours, as a high-contrast scheme does.
TEST_F(SurfaceTest, FollowsChangedSystemColours) {
    Surface().SetBackColor(Color::WindowBackground);
    OnScreen();
    const INT element = COLOR_WINDOW;
    const COLORREF former = GetSysColor(element);
    const COLORREF black = RGB(0, 0, 0);
    SetSysColors(1, &element, &black);
    SendMessageW(Window(), WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(OnScreen()->Count(black), paintedSize.cx * paintedSize.cy);
    SetSysColors(1, &element, &former);
}

TEST_F(SurfaceTest, TheBorderTakesItsRoomFromTheDrawingArea) {
    Surface().SetBackColor(Rgb(255, 0, 0));
    const float width = Surface().ScaleWidth();
    Painted().resizes = 0;
    Surface().SetBorderStyle(1);
    EXPECT_EQ(Painted().resizes, 1);
    const int edge = GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(Surface().ScaleWidth(), width - Pixels(2 * edge));
    EXPECT_EQ(Surface().Width(), Pixels(paintedSize.cx));
    RECT client = {};
    GetClientRect(Window(), &client);
    EXPECT_EQ(Pixels(client.right), Surface().ScaleWidth());
    EXPECT_EQ(Pixels(client.bottom), Surface().ScaleHeight());
    const auto picture = Drawn();
    EXPECT_EQ(picture->Count(red), (paintedSize.cx - 2 * edge) * (paintedSize.cy - 2 * edge));
    EXPECT_EQ(picture->At(edge, edge), red);
    EXPECT_EQ(picture->At(0, 0), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(picture->At(paintedSize.cx - 1, paintedSize.cy - 1), GetSysColor(COLOR_BTNHIGHLIGHT));
    Surface().SetBorderStyle(0);
    EXPECT_EQ(Surface().ScaleWidth(), width);
}

TEST_F(SurfaceTest, KeepsWhatIsDrawnWhereItShall) {
    Surface().SetAutoRedraw(true);
    Surface().FillBox(0, 0, Pixels(9), Pixels(9), Rgb(255, 0, 0));
    Painted().paints = 0;
    EXPECT_EQ(OnScreen()->Count(red), 100);
    InvalidateRect(Window(), nullptr, TRUE);
    EXPECT_EQ(OnScreen()->Count(red), 100) << "again, without asking";
    EXPECT_EQ(Drawn()->Count(red), 100);
    EXPECT_EQ(Painted().paints, 0);
    Surface().Cls();
    EXPECT_EQ(OnScreen()->Count(red), 0);
    Surface().FillBox(0, 0, Pixels(9), Pixels(9), Rgb(255, 0, 0));
    Surface().SetBackColor(Rgb(0, 0, 255));
    EXPECT_EQ(OnScreen()->Count(blue), paintedSize.cx * paintedSize.cy)
        << "another background clears it";
}

TEST_F(SurfaceTest, OutsideAPaintingThePenMovesAndNothingIsDrawn) {
    OnScreen();
    Surface().FillBox(0, 0, Pixels(9), Pixels(9), Rgb(255, 0, 0));
    EXPECT_EQ(Surface().CurrentX(), Pixels(9));
    EXPECT_EQ(OnScreen()->Count(red), 0);
}

TEST_F(SurfaceTest, ExposuresAndOtherDevicesAreAnsweredFromThePicture) {
    PaintBy([&](host::Surface& surface) {
        surface.FillBox(0, 0, Pixels(9), Pixels(9), Rgb(255, 0, 0));
    });
    Painted().paints = 0;
    for (int exposure = 0; exposure < 3; ++exposure) {
        InvalidateRect(Window(), nullptr, TRUE);
        EXPECT_EQ(OnScreen()->Count(red), 100);
        EXPECT_EQ(Drawn()->Count(red), 100);
        EXPECT_EQ(Drawn({400, 200})->Count(red), 400);
    }
    EXPECT_EQ(Painted().paints, 0);
}

TEST_F(SurfaceTest, AReasonLetsTheControlPaintOnce) {
    struct Reason {
        const char* name;
        std::function<void()> act;
    };
    const Reason reasons[] = {
        {"Refresh", [&] { Surface().Refresh(); }},
        {"size", [&] { Surface().Size(Pixels(150), Pixels(90)); }},
        {"border", [&] { Surface().SetBorderStyle(1); }},
        {"background", [&] { Surface().SetBackColor(Rgb(0, 0, 255)); }},
        {"another font", [&] { Surface().SetCurrentFont(form_.Fonts().NewFont(u"Arial", 20)); }},
        {"font attribute", [&] { Surface().CurrentFont()->SetSize(30); }},
        {"ambient property", [&] { control_.Hosted().AmbientChanged(); }},
    };
    for (const Reason& reason : reasons) {
        WindowsForm::Pump();
        Painted().paints = 0;
        reason.act();
        WindowsForm::Pump();
        Drawn();
        EXPECT_EQ(Painted().paints, 1) << reason.name;
    }
}

TEST_F(SurfaceTest, WhileAMessageBoxIsOpenTheFormerPictureIsShown) {
    PaintBy([&](host::Surface& surface) {
        surface.FillBox(0, 0, Pixels(9), Pixels(9), Rgb(255, 0, 0));
    });
    const win32::ThreadShared<shared::OpenBoxes> boxes;
    Painted().paints = 0;
    {
        const shared::OpenBoxes::Scope open(*boxes);
        Painted().paint = [](host::Surface& /*surface*/) {};
        Surface().Refresh();
        Surface().Refresh();
        WindowsForm::Pump();
        EXPECT_EQ(OnScreen()->Count(red), 100);
        EXPECT_EQ(Drawn()->Count(red), 100);
        EXPECT_EQ(Painted().paints, 0);
    }
    WindowsForm::Pump();
    EXPECT_EQ(Painted().paints, 1);
    EXPECT_EQ(OnScreen()->Count(red), 0);
}

TEST_F(SurfaceTest, ARefreshWhileAPaintingIsInterruptedByABoxPaintsOnceAfterwards) {
    const win32::ThreadShared<shared::OpenBoxes> boxes;
    Painted().paints = 0;
    PaintBy([&](host::Surface& surface) {
        if (Painted().paints > 1) {
            return;
        }
        surface.FillBox(0, 0, Pixels(9), Pixels(9), Rgb(255, 0, 0));
        const shared::OpenBoxes::Scope open(*boxes);  // an error is reported
        InvalidateRect(Window(), nullptr, FALSE);     // the box covered the control
        WindowsForm::Pump();
        Surface().Refresh();
        WindowsForm::Pump();
        EXPECT_EQ(Painted().paints, 1);
    });
    WindowsForm::Pump();
    EXPECT_EQ(Painted().paints, 2);
    EXPECT_EQ(OnScreen()->Count(red), 0);
}

TEST_F(SurfaceTest, AnAttributeOfTheFontThatAClientSetsIsShownAtOnce) {
    const host::FontRef font = form_.Fonts().NewFont(u"Arial", 10);
    Surface().SetCurrentFont(font);
    PaintBy([](host::Surface& surface) { surface.Print(u"text"); });
    const auto height = [&] {
        const RECT bounds = OnScreen()->BoundsOfOthers(GetSysColor(COLOR_BTNFACE));
        return bounds.bottom - bounds.top;
    };
    const LONG small = height();
    control_.pictureChanges = 0;
    font->SetSize(30);
    EXPECT_GT(height(), small * 2);
    EXPECT_EQ(control_.pictureChanges, 1) << "containers that keep a picture draw it again";
}

TEST_F(SurfaceTest, DrawsAtAnyScaleAndPlace) {
    PaintBy([&](host::Surface& surface) {
        surface.FillBox(Pixels(10), Pixels(20), Pixels(19), Pixels(29), Rgb(255, 0, 0));
    });
    EXPECT_EQ(Drawn({400, 300})->Count(red, {20, 60, 40, 90}), 20 * 30);
    EXPECT_EQ(Drawn({400, 300})->Count(red), 20 * 30);
    EXPECT_EQ(Drawn({100, 50})->Count(red), 25);
    Picture picture(300, 300);
    picture.Fill(blue);
    control_.Hosted().DrawOn(picture.Device(), {50, 60, 250, 160});
    EXPECT_EQ(picture.Count(red, {60, 80, 70, 90}), 100);
    EXPECT_EQ(picture.Count(blue), 300 * 300 - paintedSize.cx * paintedSize.cy)
        << "nothing beside its place";
}

TEST_F(SurfaceTest, TextKeepsItsPlaceAtAnyScale) {
    PaintBy([&](host::Surface& surface) {
        surface.SetBackColor(Rgb(255, 255, 255));
        surface.SetCurrentFont(form_.Fonts().NewFont(u"Arial", 10));
        surface.SetCurrentX(Pixels(10));
        surface.Print(u"The quick brown fox");
    });
    const RECT plain = Drawn()->BoundsOfOthers(RGB(255, 255, 255));
    const RECT large = Drawn({600, 300})->BoundsOfOthers(RGB(255, 255, 255));
    constexpr int tolerance = 9;  // three pixels of the unscaled picture
    EXPECT_NEAR(large.left, plain.left * 3, tolerance);
    EXPECT_NEAR(large.right, plain.right * 3, tolerance);
    EXPECT_NEAR(large.bottom, plain.bottom * 3, tolerance);
    const RECT wide = Drawn({600, 100})->BoundsOfOthers(RGB(255, 255, 255));
    EXPECT_NEAR(wide.right, plain.right * 3, tolerance);
    EXPECT_NEAR(wide.bottom, plain.bottom, tolerance / 3);
}

TEST_F(SurfaceTest, DrawsInUnitsThatRunUpwards) {
    PaintBy([&](host::Surface& surface) {
        surface.FillBox(0, 0, Pixels(paintedSize.cx), Pixels(49), Rgb(255, 0, 0));
    });
    Picture picture(paintedSize.cx, paintedSize.cy);
    SetMapMode(picture.Device(), MM_HIMETRIC);
    POINT corners[2] = {{0, 0}, {paintedSize.cx, paintedSize.cy}};
    DPtoLP(picture.Device(), corners, 2);
    control_.Hosted().DrawOn(picture.Device(),
                             {corners[0].x, corners[0].y, corners[1].x, corners[1].y});
    EXPECT_EQ(picture.At(100, 20), red);
    EXPECT_NE(picture.At(100, 80), red);
    EXPECT_EQ(GetMapMode(picture.Device()), MM_HIMETRIC);
}

int CALLBACK CountTextsOfFour(HDC /*device*/, HANDLETABLE* /*handles*/, const ENHMETARECORD* record,
                              int /*handleCount*/, LPARAM count) {
    if (record->iType == EMR_EXTTEXTOUTW) {
        const auto* text = reinterpret_cast<const EMREXTTEXTOUTW*>(record);
        *reinterpret_cast<int*>(count) += text->emrtext.nChars == 4 ? 1 : 0;
    }
    return 1;
}

TEST_F(SurfaceTest, DrawsIntoAMetafile) {
    PaintBy([&](host::Surface& surface) {
        surface.SetBackColor(Rgb(255, 255, 255));
        surface.FillBox(Pixels(10), Pixels(20), Pixels(19), Pixels(29), Rgb(255, 0, 0));
        surface.SetForeColor(Rgb(0, 0, 255));
        surface.SetCurrentX(Pixels(40));
        surface.SetCurrentY(Pixels(40));
        surface.Print(u"text");
    });
    const HDC recorder = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    control_.Hosted().DrawOn(recorder, {0, 0, paintedSize.cx, paintedSize.cy});
    const HENHMETAFILE file = CloseEnhMetaFile(recorder);
    int texts = 0;
    EnumEnhMetaFile(nullptr, file, &CountTextsOfFour, &texts, nullptr);
    EXPECT_EQ(texts, 1) << "as text, no picture of it";
    DeleteEnhMetaFile(file);
}

TEST_F(SurfaceTest, DrawsIntoAnOldMetafileAsContainersKeepIt) {
    PaintBy([&](host::Surface& surface) {
        surface.FillBox(Pixels(10), Pixels(20), Pixels(19), Pixels(29), Rgb(255, 0, 0));
    });
    const HDC recorder = CreateMetaFileW(nullptr);
    SetWindowOrgEx(recorder, 0, 0, nullptr);
    SetWindowExtEx(recorder, paintedSize.cx, paintedSize.cy, nullptr);
    control_.Hosted().DrawOn(recorder, {0, 0, paintedSize.cx, paintedSize.cy});
    const HMETAFILE file = CloseMetaFile(recorder);
    Picture picture(paintedSize.cx * 2, paintedSize.cy * 2);
    SaveDC(picture.Device());
    SetMapMode(picture.Device(), MM_ANISOTROPIC);
    SetViewportExtEx(picture.Device(), paintedSize.cx * 2, paintedSize.cy * 2, nullptr);
    PlayMetaFile(picture.Device(), file);
    RestoreDC(picture.Device(), -1);
    DeleteMetaFile(file);
    EXPECT_EQ(picture.Count(red, {20, 40, 40, 60}), 400);
    EXPECT_EQ(picture.Count(red), 400);
}

TEST_F(SurfaceTest, DrawingElsewhereChangesNothing) {
    PaintBy([&](host::Surface& surface) { surface.SetCurrentX(Pixels(70)); });
    Surface().SetCurrentX(Pixels(3));
    Surface().SetCurrentY(Pixels(4));
    Drawn();
    EXPECT_EQ(Surface().CurrentX(), Pixels(3));
    EXPECT_EQ(Surface().CurrentY(), Pixels(4));
}

TEST_F(SurfaceTest, DrawsWhileItIsParked) {
    PaintBy([&](host::Surface& surface) {
        surface.FillBox(0, 0, Pixels(9), Pixels(9), Rgb(255, 0, 0));
    });
    control_.Hosted().Detach();
    EXPECT_EQ(Drawn()->Count(red), 100);
    Painted().paints = 0;
    Surface().Refresh();
    EXPECT_EQ(Painted().paints, 0) << "it is not shown";
}

TEST_F(SurfaceTest, RefreshPaintsEvenWhereNothingOfItIsSeen) {
    control_.MoveTo({-500, -500, -500 + paintedSize.cx, -500 + paintedSize.cy});
    Painted().paints = 0;
    Surface().Refresh();
    EXPECT_EQ(Painted().paints, 1);
}

TEST_F(SurfaceTest, AskingForARepaintWhilePaintingDoesNothing) {
    Painted().paints = 0;
    PaintBy([](host::Surface& surface) { surface.Refresh(); });
    WindowsForm::Pump();
    EXPECT_EQ(Painted().paints, 1);
}

TEST_F(SurfaceTest, TheSizeIsTheContainersToGive) {
    control_.agreesToSize = false;
    Surface().Size(Pixels(50), Pixels(50));
    EXPECT_EQ(Surface().Width(), Pixels(paintedSize.cx));
    control_.agreesToSize = true;
    Surface().Size(Pixels(50) + 1, Pixels(60) - 1);
    EXPECT_EQ(Surface().Width(), Pixels(50));
    EXPECT_EQ(Surface().Height(), Pixels(60));
    RECT place = {};
    GetWindowRect(Window(), &place);
    EXPECT_EQ(place.right - place.left, 50);
}

TEST_F(SurfaceTest, AControlThatNeverComesToRestIsStopped) {
    Painted().onResize = [&] { Surface().Size(Surface().Width() + Pixels(10), Pixels(50)); };
    Surface().Size(Pixels(100), Pixels(50));
    EXPECT_GT(Surface().Width(), Pixels(100));
    EXPECT_LT(Surface().Width(), Pixels(1000));
}

TEST_F(SurfaceTest, PointersAreThePlatformsCursors) {
    const auto shown = [&](std::int16_t pointer) {
        SetCursor(nullptr);
        Surface().SetPointer(pointer);
        SendMessageW(Window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Window()),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    };
    EXPECT_EQ(shown(2), LoadCursorW(nullptr, MAKEINTRESOURCEW(32515)));
    EXPECT_EQ(shown(11), LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)));
    EXPECT_EQ(shown(0), LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)));
    for (std::int16_t pointer = 0; pointer <= 15; ++pointer) {
        EXPECT_NE(shown(pointer), nullptr) << pointer;
    }
    EXPECT_NE(shown(99), nullptr);
}

TEST_F(SurfaceTest, TheWindowsTextIsWhatIsShown) {
    PaintBy([&](host::Surface& surface) {
        surface.Print(u"one ");
        surface.Print(u"line");
        surface.SetCurrentX(0);
        surface.SetCurrentY(Pixels(500));
        surface.Print(u"and one below what is seen");
    });
    wchar_t text[100] = L"";
    Painted().paints = 0;
    EXPECT_EQ(GetWindowTextLengthW(Window()), 36);
    GetWindowTextW(Window(), text, 100);
    EXPECT_STREQ(text, L"one line\r\nand one below what is seen");
    GetWindowTextW(Window(), text, 5);
    EXPECT_STREQ(text, L"one ");
    EXPECT_EQ(Painted().paints, 0) << "a question draws nothing";
}

TEST_F(SurfaceTest, WidthsFollowAChangeOfTheFontAtOnce) {
    const host::FontRef font = form_.Fonts().NewFont(u"Arial", 10);
    Surface().SetCurrentFont(font);
    const float narrow = Surface().TextWidth(u"measured");
    font->SetSize(20);
    EXPECT_GT(Surface().TextWidth(u"measured"), narrow * 1.5F);
    const float plain = Surface().TextWidth(u"measured");
    font->SetBold(true);
    EXPECT_GT(Surface().TextWidth(u"measured"), plain);
}

TEST_F(SurfaceTest, TellsWhenThePictureChanges) {
    Surface().SetAutoRedraw(true);
    OnScreen();
    control_.pictureChanges = 0;
    Surface().Print(u"one");
    Surface().Print(u"two");
    EXPECT_EQ(control_.pictureChanges, 1) << "once until it is drawn";
    OnScreen();
    Surface().Print(u"three");
    EXPECT_EQ(control_.pictureChanges, 2);
}

TEST_F(SurfaceTest, RepaintingAllocatesNothing) {
    for (const bool keeps : {false, true}) {
        Surface().SetAutoRedraw(keeps);
        const auto draw = [&](host::Surface& surface) {
            surface.Cls();
            for (int run = 0; run < 40; ++run) {
                surface.CurrentFont()->SetBold(run % 2 == 0);
                surface.SetForeColor(run % 3 == 0 ? Rgb(255, 0, 0) : Color::ButtonText);
                surface.SetCurrentX(Pixels(10));
                surface.Print(u"a run of text");
                surface.FillBox(0, 0, Pixels(3), surface.CurrentY(), Color{});
                surface.SetCurrentY(Pixels(run * 3));
            }
        };
        const auto repaint = [&] {
            if (keeps) {
                draw(Surface());
            }
            Surface().Refresh();
        };
        Painted().paint = draw;
        repaint();
        repaint();  // the shown picture and the recorded one take turns
        const std::int64_t before = AllocationCount();
        repaint();
        EXPECT_EQ(AllocationCount(), before) << keeps;
    }
}

// The parts are in the order in which they stand from left to right.
struct OrderedText {
    TextView text;
    std::vector<TextView> parts;
};
const OrderedText orderedTexts[] = {
    {u"\u05E9\u05DC\u05D5\u05DD abc", {u"\u05E9\u05DC\u05D5\u05DD", u" ", u"abc"}},
    {u"abc \u05E9\u05DC\u05D5\u05DD", {u"abc", u" ", u"\u05E9\u05DC\u05D5\u05DD"}},
    {u"\u05D0\u05D1 \u05D2\u05D3", {u"\u05D2\u05D3", u" ", u"\u05D0\u05D1"}},
    {u"ab \u05D0\u05D1 \u05D2\u05D3 cd",
     {u"ab", u" ", u"\u05D2\u05D3", u" ", u"\u05D0\u05D1", u" ", u"cd"}},
    {u"\u05D0\u05D1 12 \u05D2\u05D3", {u"\u05D2\u05D3", u" ", u"12", u" ", u"\u05D0\u05D1"}},
    {u"\u05D0\u05D1 ", {u"\u05D0\u05D1", u" "}},
};

TEST_F(SurfaceTest, InsideARunThePlatformOrdersTheWords) {
    Surface().SetCurrentFont(form_.Fonts().NewFont(u"Arial", 12));
    for (const OrderedText& ordered : orderedTexts) {
        PaintBy([&](host::Surface& surface) { surface.Print(ordered.text); });
        const auto whole = Drawn();
        PaintBy([&](host::Surface& surface) {
            for (const TextView part : ordered.parts) {
                surface.Print(part);
            }
        });
        EXPECT_TRUE(whole->Pixels() == Drawn()->Pixels()) << ToUtf8(ordered.text);
    }
}

TEST_F(SurfaceTest, RunsStandInTheirOrderWithTheirBlanks) {
    Surface().SetBackColor(Rgb(255, 255, 255));
    Surface().SetCurrentFont(form_.Fonts().NewFont(u"Arial", 12));
    const TextView first = u"\u05E9\u05DC\u05D5\u05DD ";
    const TextView second = u"\u05E2\u05D5\u05DC\u05DD";
    PaintBy([&](host::Surface& surface) { surface.Print(first); });
    const RECT left = Drawn()->BoundsOfOthers(RGB(255, 255, 255));
    PaintBy([&](host::Surface& surface) {
        surface.SetCurrentX(surface.TextWidth(first));
        surface.Print(second);
    });
    const RECT right = Drawn()->BoundsOfOthers(RGB(255, 255, 255));
    EXPECT_GE(right.left - left.right, win32::ToPixels(Surface().TextWidth(u" "), 96) / 2);
}

TEST_F(SurfaceTest, OddNumbersDoNoHarm) {
    const float nan = std::nanf("");
    PaintBy([&](host::Surface& surface) {
        for (const float odd : {nan, 1e30F, -1e30F, INFINITY}) {
            surface.SetCurrentX(odd);
            surface.SetCurrentY(odd);
            surface.Print(u"text");
            surface.FillBox(odd, odd, 0, 0, Color{});
        }
    });
    EXPECT_THROW(Surface().Size(nan, 10), RuntimeError);
    Drawn();
}

}  // namespace
}  // namespace lumenkit::testing
