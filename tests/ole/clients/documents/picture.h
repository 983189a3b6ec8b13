// A bitmap to draw on, whose pixels can be counted.
#pragma once

#include <windows.h>

namespace lumenkit::clients {

/// All pixels are grey at first.
class Picture {
 public:
    Picture(int width, int height);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    HDC Device() const { return device_; }
    RECT Whole() const { return {0, 0, width_, height_}; }
    int Size() const { return width_ * height_; }
    int Count(COLORREF color) const;
    int Untouched() const { return Count(RGB(128, 128, 128)); }

 private:
    int width_;
    int height_;
    HDC device_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ former_ = nullptr;
    DWORD* pixels_ = nullptr;
};

}  // namespace lumenkit::clients
