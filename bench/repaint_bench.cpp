// What repainting a label costs on Windows, against a window that makes the same calls of the
// platform by heart: the same texts, fonts and boxes, put together in a bitmap and shown. Both
// repaint in turn; the median of the pairs counts.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "project/lumenkit_classes.h"
#include "runtime/win32/canvas.h"
#include "runtime/win32/colors.h"
#include "runtime/win32/paint_buffer.h"
#include "runtime/win32/surface.h"
#include "runtime/win32/wide_text.h"
#include "runtime/win32/window.h"
#include "tests/support/windows_form.h"

namespace lumenkit::bench {
namespace {

constexpr SIZE size = {480, 480};
constexpr int pairs = 200;

// The calls, as a program would write them down.
struct Call {
    HFONT font = nullptr;  // null: a box
    COLORREF color = 0;
    RECT box = {};
    std::wstring text;
};

class CallRecorder final : public win32::Canvas {
 public:
    void Clear(Color paper) override {
        calls.clear();
        Fill({0, 0, size.cx, size.cy}, paper);
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

    std::vector<Call> calls;

 private:
    std::vector<win32::ScreenFontRef> fonts_;
};

class ByHeart final : public win32::Window {
 public:
    ByHeart(HWND parent, std::vector<Call> calls) : calls_(std::move(calls)) {
        Create({.module = GetModuleHandleW(nullptr),
                .style = WS_CHILD | WS_VISIBLE,
                .place = {0, 0, size.cx, size.cy},
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

// Runs of about ten units, each in another style than the one before it.
Text CaptionOf(int runs) {
    const std::vector<Text> styles = {u"|B:1|", u"|I:1|", u"|Fore:200,0,0|", u"|Size:12|",
                                      u"|B:0|", u"|I:0|", u"|Fore:0,0,200|", u"|Size:8|"};
    Text caption;
    for (int run = 0; run < runs; ++run) {
        caption += styles[static_cast<std::size_t>(run) % styles.size()] + u"ten units ";
        caption += run % 5 == 4 ? u"|CR|" : u"";
    }
    return caption;
}

double MicrosecondsToRepaint(HWND window, int times) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i) {
        InvalidateRect(window, nullptr, FALSE);
        UpdateWindow(window);
    }
    const std::chrono::duration<double, std::micro> spent =
        std::chrono::steady_clock::now() - start;
    return spent.count() / times;
}

double Median(std::vector<double> numbers) {
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::ranges::nth_element(numbers, middle);
    return *middle;
}

void Measure(testing::WindowsForm& form, int runs) {
    testing::FormControl control(form, *lumenkitClasses.Find(u"lumenkit.VLabel"), size);
    control.Start();
    Object& label = control.Hosted().Automation();
    label.Set(u"Font", ObjectRef(form.Fonts().NewFont(u"Arial", 9)));
    label.Let(u"Caption", CaptionOf(runs));
    CallRecorder recorder;
    static_cast<win32::Surface&>(control.Hosted().Drawing()).DrawOn(recorder);
    const ByHeart byHeart(form.Window(), recorder.calls);
    std::vector<double> ours;
    std::vector<double> theirs;
    std::vector<double> ratios;
    const int times = std::max(1, 400 / runs);
    for (int pair = 0; pair < pairs; ++pair) {
        theirs.push_back(MicrosecondsToRepaint(byHeart.Handle(), times));
        ours.push_back(MicrosecondsToRepaint(control.Hosted().Window(), times));
        ratios.push_back(ours.back() / theirs.back());
    }
    std::printf("repaint %3d runs: %8.1f us, by heart %8.1f us, ratio %.3f\n", runs, Median(ours),
                Median(theirs), Median(ratios));
}

}  // namespace
}  // namespace lumenkit::bench

int main() {
    lumenkit::testing::WindowsForm form(lumenkit::lumenkitClasses);
    for (const int runs : {1, 10, 40, 160}) {
        lumenkit::bench::Measure(form, runs);
    }
}
