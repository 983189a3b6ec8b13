#include "tests/support/picture.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace lumenkit::testing {

namespace {

BITMAPINFOHEADER HeaderOf(int width, int height) {
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = -height;  // the first row is the top row
    header.biPlanes = 1;
    header.biBitCount = 32;
    header.biCompression = BI_RGB;
    return header;
}

COLORREF ColorOf(std::uint32_t bits) {
    return RGB((bits >> 16U) & 0xFFU, (bits >> 8U) & 0xFFU, bits & 0xFFU);
}

}  // namespace

Picture::Picture(int width, int height)
    : width_(width), height_(height), device_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info = {};
    info.bmiHeader = HeaderOf(width, height);
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(device_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap_ == nullptr) {
        throw std::runtime_error("no bitmap to be had");
    }
    bits_ = static_cast<std::uint32_t*>(bits);
    former_ = SelectObject(device_, bitmap_);
    Fill(RGB(255, 255, 255));
}

Picture::~Picture() {
    SelectObject(device_, former_);
    DeleteObject(bitmap_);
    DeleteDC(device_);
}

void Picture::Fill(COLORREF color) {
    const RECT all = {0, 0, width_, height_};
    const HBRUSH brush = CreateSolidBrush(color);
    FillRect(device_, &all, brush);
    DeleteObject(brush);
}

COLORREF Picture::At(int x, int y) const {
    GdiFlush();
    return ColorOf(bits_[y * width_ + x]);
}

int Picture::Count(COLORREF color, const RECT& area) const {
    int count = 0;
    for (int y = static_cast<int>(area.top); y < area.bottom; ++y) {
        for (int x = static_cast<int>(area.left); x < area.right; ++x) {
            count += At(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

RECT Picture::BoundsOfOthers(COLORREF color) const {
    RECT bounds = {};
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            if (At(x, y) != color) {
                const RECT pixel = {x, y, x + 1, y + 1};
                UnionRect(&bounds, &bounds, &pixel);
            }
        }
    }
    return bounds;
}

std::vector<std::uint32_t> Picture::Pixels() const {
    GdiFlush();
    std::vector<std::uint32_t> pixels(bits_, bits_ + static_cast<std::ptrdiff_t>(width_) * height_);
    std::ranges::transform(pixels, pixels.begin(),
                           [](std::uint32_t bits) { return bits & 0xFFFFFFU; });
    return pixels;
}

bool Picture::SaveAsBmp(const std::string& path) const {
    GdiFlush();
    const BITMAPINFOHEADER header = HeaderOf(width_, height_);
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof header;
    const auto size = static_cast<std::streamsize>(width_) * height_ * 4;
    file.bfSize = file.bfOffBits + static_cast<DWORD>(size);
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&header), sizeof header);
    out.write(reinterpret_cast<const char*>(bits_), size);
    return static_cast<bool>(out);
}

}  // namespace lumenkit::testing
