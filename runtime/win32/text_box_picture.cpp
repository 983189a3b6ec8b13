// How a text box is drawn on other devices than its window.
#include <algorithm>

#include "runtime/win32/canvas_part.h"
#include "runtime/win32/device_canvas.h"
#include "runtime/win32/scroll_bar_picture.h"
#include "runtime/win32/surrogates.h"
#include "runtime/win32/text_box.h"

namespace lumenkit::win32 {

namespace {

constexpr char16_t tab = u'\t';

}  // namespace

// The edit control draws everything but its scroll bars.
void TextBox::DrawOn(HDC device) {
    BasicTextConstituent::DrawOn(device);
    RECT box = {};
    GetWindowRect(Handle(), &box);
    const SIZE size = SizeOf(box);
    DeviceCanvas canvas(device, Mapping::Plain(size), {0, 0, size.cx, size.cy});
    DrawWindowBars(canvas, Handle());
}

void TextBox::DrawShapes(Canvas& canvas) {
    BasicTextConstituent::DrawShapes(canvas);
    DrawWindowBars(canvas, Handle());
}

// The edit control decides which lines are seen, and where they break.
void TextBox::DrawContent(Canvas& canvas, SIZE /*size*/) const {
    canvas.Clear(Color::WindowBackground);
    RECT area = {};
    Ask(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
    const CanvasClip clip(canvas, area);
    const ScreenFontRef font = RealisedFont();
    const TextView text = GetText();
    const LRESULT height = std::max(font->LineHeight(), 1);
    const LRESULT first = multiLine_ ? Ask(EM_GETFIRSTVISIBLELINE) : 0;
    const LRESULT behind = first + (area.bottom - area.top + height - 1) / height;
    const LRESULT end = std::min(Ask(EM_GETLINECOUNT), behind);
    for (LRESULT line = first; line < end; ++line) {
        const auto begin = static_cast<std::size_t>(Ask(EM_LINEINDEX, static_cast<WPARAM>(line)));
        const auto length = static_cast<std::size_t>(Ask(EM_LINELENGTH, begin));
        if (begin < text.size()) {
            DrawLine(canvas, area,
                     {.text = text.substr(begin, length), .font = font, .ink = InkOf(foreColor_)},
                     begin);
        }
    }
}

// Draws a line that begins at the position `begin` of the text. The edit control places what is
// between tabs.
void TextBox::DrawLine(Canvas& canvas, const RECT& area, const TextRun& design,
                       std::size_t begin) const {
    const TextView line = design.text;
    for (std::size_t at = FirstSeen(area, begin, line.size()); at < line.size(); ++at) {
        const std::size_t end = std::min(line.find(tab, at), line.size());
        TextRun run = design;
        run.text = line.substr(at, end - at);
        run.at = PlaceOf(begin + at);
        if (run.at.x < area.right && !run.text.empty()) {
            canvas.Print(run);
        }
        at = end;
    }
}

// Returns the first unit of a line that may be seen; `length` if the line is scrolled out. The edit
// control finds the unit nearest to a point. It returns positions and places in 16 bits, so places
// of units that are far away are of no use.
std::size_t TextBox::FirstSeen(const RECT& area, std::size_t begin, std::size_t length) const {
    const LONG y = PlaceOf(begin).y;
    const auto answer = static_cast<WORD>(Ask(EM_CHARFROMPOS, 0, MAKELPARAM(area.left, y)));
    const auto nearest = static_cast<WORD>(answer - begin);
    if (nearest == 0 || nearest > length) {
        return 0;
    }
    if (nearest == length) {
        return length;
    }
    const std::size_t first = nearest - 1U;
    const bool splits = first > 0 && IsLowSurrogate(GetText()[begin + first]);
    return splits ? first - 1 : first;
}

// Returns the place of a unit in the client area.
POINT TextBox::PlaceOf(std::size_t position) const {
    const auto place = static_cast<DWORD>(Ask(EM_POSFROMCHAR, position));
    return {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
}

}  // namespace lumenkit::win32
