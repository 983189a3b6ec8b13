// Paints captions as labels on real devices of Windows, for inspection:
//   paint_captions picture.bmp caption.txt...
// Each label is drawn as its window is painted, then at one and a half times the size, then with a
// border.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "tests/support/file_bytes.h"
#include "tests/support/picture.h"
#include "tests/support/windows_form.h"

namespace lumenkit::testing {
namespace {

constexpr SIZE labelSize = {330, 120};
constexpr int gap = 10;

Text ReadCaption(const char* path) {
    std::string bytes = FileBytes(path);
    while (!bytes.empty() && (bytes.back() == '\n' || bytes.back() == '\r')) {
        bytes.pop_back();
    }
    return FromUtf8(bytes);
}

void PaintOne(WindowsForm& form, const Text& caption, Picture& picture, int top) {
    FormControl control(form, *lumenkitClasses.Find(u"lumenkit.VLabel"), labelSize);
    control.Start();
    Object& label = control.Hosted().Automation();
    // An outline font: Wine does not scale the platform's old bitmap fonts.
    label.Set(u"Font", ObjectRef(form.Fonts().NewFont(u"Arial", 10)));
    label.Let(u"BulletPrefix", Text(u"* "));
    label.Let(u"BulletIndent", std::int16_t{240});
    label.Let(u"WordWrap", true);
    label.Let(u"Caption", caption);
    UpdateWindow(control.Hosted().Handle());
    const HDC screen = GetDC(control.Hosted().Handle());
    BitBlt(picture.Device(), gap, top, labelSize.cx, labelSize.cy, screen, 0, 0, SRCCOPY);
    ReleaseDC(control.Hosted().Handle(), screen);
    const int second = gap * 2 + labelSize.cx;
    const int larger = labelSize.cx * 3 / 2;
    control.Hosted().DrawOn(picture.Device(),
                            {second, top, second + larger, top + labelSize.cy * 3 / 2});
    label.Let(u"BorderStyle", std::int16_t{1});
    const int third = second + larger + gap;
    control.Hosted().DrawOn(picture.Device(),
                            {third, top, third + labelSize.cx, top + labelSize.cy});
}

}  // namespace
}  // namespace lumenkit::testing

int main(int count, char** arguments) {
    using namespace lumenkit::testing;
    if (count < 3) {
        std::fputs("paint_captions picture.bmp caption.txt...\n", stderr);
        return 2;
    }
    WindowsForm form(lumenkit::lumenkitClasses);
    const int rowHeight = labelSize.cy * 3 / 2 + gap;
    Picture picture(labelSize.cx * 7 / 2 + 4 * gap, rowHeight * (count - 2) + gap);
    picture.Fill(RGB(180, 200, 220));
    for (int index = 2; index < count; ++index) {
        PaintOne(form, ReadCaption(arguments[index]), picture, gap + (index - 2) * rowHeight);
    }
    return picture.SaveAsBmp(arguments[1]) ? 0 : 1;
}
