#include "runtime/shared/shown_caption.h"

#include <algorithm>

namespace lumenkit::shared {

namespace {

constexpr char16_t mark = u'&';

char16_t VisibleSign(char16_t unit) {
    switch (unit) {
        case u'\r':
            return u'\u00B6';  // pilcrow
        case u'\n':
            return u'\u00AC';  // not sign
        case u'\t':
            return u'\u00BB';  // right guillemet
        default:
            return unit;
    }
}

}  // namespace

Text WithAccessKey(TextView caption, char16_t accessKey) {
    if (accessKey == 0) {
        return Text(caption);
    }
    Text marked;
    bool isMarked = false;
    for (const char16_t unit : caption) {
        const bool isKey = !isMarked && SameLetter(unit, accessKey);
        if (isKey || unit == mark) {
            marked += mark;
        }
        isMarked = isMarked || isKey;
        marked += unit;
    }
    return marked;
}

Text WithVisibleSigns(TextView text) {
    Text visible(text);
    std::ranges::transform(visible, visible.begin(), VisibleSign);
    return visible;
}

}  // namespace lumenkit::shared
