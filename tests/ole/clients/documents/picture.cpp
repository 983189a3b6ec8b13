#include "tests/ole/clients/documents/picture.h"

#include <algorithm>

namespace lumenkit::clients {

Picture::Picture(int width, int height)
    : width_(width), height_(height), device_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO format = {};
    format.bmiHeader = {sizeof format.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    bitmap_ = CreateDIBSection(device_, &format, DIB_RGB_COLORS, &pixels, nullptr, 0);
    pixels_ = static_cast<DWORD*>(pixels);
    former_ = SelectObject(device_, bitmap_);
    std::fill_n(pixels_, Size(), 0x808080U);
}

Picture::~Picture() {
    SelectObject(device_, former_);
    DeleteObject(bitmap_);
    DeleteDC(device_);
}

int Picture::Count(COLORREF color) const {
    GdiFlush();
    const DWORD pixel = static_cast<DWORD>(GetRValue(color)) << 16 |
                        static_cast<DWORD>(GetGValue(color)) << 8 | GetBValue(color);
    return static_cast<int>(std::count_if(pixels_, pixels_ + Size(),
                                          [&](DWORD each) { return (each & 0xFFFFFF) == pixel; }));
}

}  // namespace lumenkit::clients
