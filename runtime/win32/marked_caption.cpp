#include "runtime/win32/marked_caption.h"

namespace lumenkit::win32 {

MarkedCaption MarkedCaption::In(SIZE size, const CaptionPicture& picture, int pixelsPerInch,
                                bool markOnRight) {
    constexpr int usualResolution = 96;
    constexpr int usualMark = 12;
    const int mark = MulDiv(usualMark, pixelsPerInch, usualResolution) + 1;
    const int reserved = mark + picture.Font().Width(u"0") / 2;
    const LONG markTop = (size.cy - mark) / 2;
    const LONG markLeft = markOnRight ? size.cx - mark : 0;
    const LONG left = markOnRight ? 0 : reserved;
    constexpr int indent = 1;
    return {.mark = {markLeft, markTop, markLeft + mark, markTop + mark},
            .caption = {left, 0, markOnRight ? size.cx - reserved : size.cx, size.cy},
            .text = {left + indent, (size.cy - picture.Height()) / 2}};
}

}  // namespace lumenkit::win32
