// Benchmarks of repainting a label on Windows: against a window that replays the drawing calls of
// the label (the same texts, fonts and boxes, drawn in a bitmap and copied to the screen), and
// against a rich edit control with the same runs.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <richedit.h>

#include "bench/ratio_table.h"
#include "bench/require.h"
#include "project/lumenkit_classes.h"
#include "runtime/win32/canvas.h"
#include "runtime/win32/colors.h"
#include "runtime/win32/paint_buffer.h"
#include "runtime/win32/surface.h"
#include "runtime/win32/wide_text.h"
#include "runtime/win32/window.h"
#include "tests/support/picture.h"
#include "tests/support/windows_form.h"

namespace lumenkit::bench {
namespace {

constexpr int width = 310;
constexpr int runsOfALine = 4;
constexpr int lineHeight = 20;

// The windows are side by side, so that none covers another one. The label is the first.
RECT Place(int column, int height) {
    constexpr int top = 20;
    const int left = top + column * (width + top);
    return {left, top, left + width, top + height};
}

// One drawing call of the label.
struct Call {
    HFONT font = nullptr;  // null: a box
    COLORREF color = 0;
    RECT box = {};
    std::wstring text;
};

class CallRecorder final : public win32::Canvas {
 public:
    explicit CallRecorder(int height) : height_(height) {}

    void Clear(Color paper) override {
        calls.clear();
        Fill({0, 0, width, height_}, paper);
    }
    void Print(const win32::TextRun& run) override {
        fonts_.push_back(run.font);
        calls.push_back({.font = run.font->Handle(),
                         .color = win32::ToColorRef(run.ink),
                         .box = {run.at.x, run.at.y, 0, 0},
                         .text = win32::ToWide(run.text)});
    }
    void Fill(const RECT& box, Color color) override {
        calls.push_back(
            {.font = nullptr, .color = win32::ToColorRef(color), .box = box, .text = {}});
    }
    // A label draws neither figures nor clips.
    void FillFigure(win32::Figure /*figure*/, const RECT& /*box*/, Color /*color*/) override {}
    void BeginClip(const RECT& /*box*/) override {}
    void EndClip() override {}

    std::vector<Call> calls;

 private:
    int height_;
    std::vector<win32::ScreenFontRef> fonts_;
};

class ByHeart final : public win32::Window {
 public:
    ByHeart(HWND parent, std::vector<Call> calls, int height) : calls_(std::move(calls)) {
        Create({.module = GetModuleHandleW(nullptr),
                .style = WS_CHILD | WS_VISIBLE,
                .place = Place(1, height),
                .parent = parent});
    }

 private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_ERASEBKGND) {
            return 1;
        }
        if (message != WM_PAINT) {
            return Default(message, wParam, lParam);
        }
        PAINTSTRUCT paint = {};
        BeginPaint(Handle(), &paint);
        {
            const win32::PaintBuffer::Use use(buffer_, paint.hdc, paint.rcPaint);
            Draw(use.Device());
        }
        EndPaint(Handle(), &paint);
        return 0;
    }

    void Draw(HDC device) {
        HFONT font = nullptr;
        COLORREF color = CLR_INVALID;
        SetBkMode(device, TRANSPARENT);
        for (const Call& call : calls_) {
            if (call.font == nullptr) {
                SetBkColor(device, call.color);
                ExtTextOutW(device, 0, 0, ETO_OPAQUE, &call.box, L"", 0, nullptr);
                continue;
            }
            if (font != call.font) {
                font = call.font;
                SelectObject(device, font);
            }
            if (color != call.color) {
                color = call.color;
                SetTextColor(device, color);
            }
            ExtTextOutW(device, call.box.left, call.box.top, 0, nullptr, call.text.data(),
                        static_cast<UINT>(call.text.size()), nullptr);
        }
    }

    win32::PaintBuffer buffer_;
    std::vector<Call> calls_;
};

// Runs of about ten units, each in another style than the previous one.
Text CaptionOf(int runs) {
    const std::vector<Text> styles = {u"|B:1|", u"|I:1|", u"|Fore:200,0,0|", u"|Size:12|",
                                      u"|B:0|", u"|I:0|", u"|Fore:0,0,200|", u"|Size:8|"};
    Text caption;
    for (int run = 0; run < runs; ++run) {
        caption += styles[static_cast<std::size_t>(run) % styles.size()] + u"ten units ";
        caption += run % runsOfALine == runsOfALine - 1 ? u"|CR|" : u"";
    }
    return caption;
}

// A rich edit control with a run for each call, in the font and colour of the call. Like the label,
// it has no border and no scroll bars and does not wrap lines.
class RichEdit {
 public:
    RichEdit(HWND parent, const std::vector<Call>& calls, int height) {
        const RECT place = Place(2, height);
        window_ = CreateWindowExW(
            0, RICHEDIT_CLASSW, L"", WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_READONLY, place.left,
            place.top, width, height, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
        LONG pen = 0;
        for (const Call& call : calls) {
            if (call.font == nullptr) {
                continue;
            }
            if (call.box.left < pen) {
                Append(L"\r");
            }
            pen = call.box.left;
            Format(call);
            Append(call.text.c_str());
        }
        SendMessageW(window_, EM_SETSEL, 0, 0);
    }
    ~RichEdit() { DestroyWindow(window_); }
    RichEdit(const RichEdit&) = delete;
    RichEdit& operator=(const RichEdit&) = delete;

    HWND Handle() const { return window_; }

 private:
    void Append(const wchar_t* text) const {
        SendMessageW(window_, EM_SETSEL, static_cast<WPARAM>(-1), -1);
        SendMessageW(window_, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
    }

    // Gives the text that is appended next the font and colour of the call.
    void Format(const Call& call) const {
        constexpr LONG twipsPerInch = 1440;
        LOGFONTW font = {};
        GetObjectW(call.font, sizeof font, &font);
        CHARFORMAT2W format = {};
        format.cbSize = sizeof format;
        format.dwMask = CFM_BOLD | CFM_ITALIC | CFM_COLOR | CFM_FACE | CFM_SIZE;
        format.dwEffects =
            (font.lfWeight >= FW_BOLD ? CFE_BOLD : 0U) | (font.lfItalic != FALSE ? CFE_ITALIC : 0U);
        format.yHeight = -font.lfHeight * twipsPerInch / win32::Resolution::OfScreen().y;
        format.crTextColor = call.color;
        lstrcpynW(format.szFaceName, font.lfFaceName, LF_FACESIZE);
        SendMessageW(window_, EM_SETSEL, static_cast<WPARAM>(-1), -1);
        SendMessageW(window_, EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    }

    HWND window_ = nullptr;
};

// The pixels of the client area.
std::vector<std::uint32_t> PixelsOf(HWND window) {
    UpdateWindow(window);
    RECT area = {};
    GetClientRect(window, &area);
    const testing::Picture picture(area.right, area.bottom);
    const HDC device = GetDC(window);
    BitBlt(picture.Device(), 0, 0, area.right, area.bottom, device, 0, 0, SRCCOPY);
    ReleaseDC(window, device);
    return picture.Pixels();
}

// The number of pixels that differ from the last one, which no letter reaches.
double Ink(const std::vector<std::uint32_t>& pixels) {
    const auto paper = std::ranges::count(pixels, pixels.back());
    return static_cast<double>(pixels.size()) - static_cast<double>(paper);
}

// A label on a form, and beside it the two windows that draw the same without a label.
struct Stage {
    explicit Stage(int runs)
        : height((runs + runsOfALine - 1) / runsOfALine * lineHeight),
          control(form, *lumenkitClasses.Find(u"lumenkit.VLabel"), {width, height}),
          calls(Draw(runs)) {
        const std::vector<std::uint32_t> label = PixelsOf(control.Hosted().Handle());
        Require(Ink(label) > 0, "the label shows nothing");
        Require(PixelsOf(byHeart.Handle()) == label, "the replay shows something else");
        constexpr double noticeable = 0.1;
        const double ratio = Ink(PixelsOf(richEdit.Handle())) / Ink(label);
        Require(ratio > 1 - noticeable && ratio < 1 + noticeable,
                "the rich edit control shows something else");
    }

    std::vector<Call> Draw(int runs) {
        SetWindowPos(form.Window(), nullptr, 0, 0, Place(3, height).left, height + 100,
                     SWP_NOZORDER);
        control.Start();
        Object& label = control.Hosted().Automation();
        label.Set(u"Font", ObjectRef(form.Fonts().NewFont(u"Arial", 9)));
        label.Let(u"Caption", CaptionOf(runs));
        control.Hosted().Drawing().DrawOn(recorder);
        return recorder.calls;
    }

    int height;
    testing::WindowsForm form{lumenkitClasses};
    testing::FormControl control;
    CallRecorder recorder{height};  // owns the fonts
    std::vector<Call> calls;
    ByHeart byHeart{form.Window(), calls, height};
    RichEdit richEdit{form.Window(), calls, height};
};

Side Repainting(std::shared_ptr<Stage> stage, HWND window) {
    return {.round = [stage = std::move(stage), window] {
        InvalidateRect(window, nullptr, FALSE);
        UpdateWindow(window);
    }};
}

void Compare(int runs, const std::string& name) {
    const auto stage = std::make_shared<Stage>(runs);
    const HWND label = stage->control.Hosted().Handle();
    AddComparison({.what = "Wine: repaint " + name + ", against replaying the calls",
                   .unit = "repaint",
                   .ours = Repainting(stage, label),
                   .other = Repainting(stage, stage->byHeart.Handle()),
                   .ratio = Ratio::TimesSlower,
                   .aim = "<= 1.05x"});
    AddComparison({.what = "Wine: repaint " + name + ", against rich edit",
                   .unit = "repaint",
                   .ours = Repainting(stage, label),
                   .other = Repainting(stage, stage->richEdit.Handle()),
                   .ratio = Ratio::TimesFaster,
                   .aim = "> 1x"});
}

}  // namespace
}  // namespace lumenkit::bench

int main(int argc, char** argv) {
    LoadLibraryW(L"riched20.dll");
    lumenkit::bench::Compare(1, "1 run");
    lumenkit::bench::Compare(10, "10 runs");
    lumenkit::bench::Compare(120, "30 lines of 4 runs");
    return lumenkit::bench::RunComparisons(argc, argv);
}
