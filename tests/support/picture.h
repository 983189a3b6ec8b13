// Bitmaps in memory, on which tests draw and whose pixels they inspect.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/win32/windows_header.h"

namespace lumenkit::testing {

/// A bitmap with a device to draw on. Lengths are in pixels.
class Picture {
 public:
    /// All pixels are white at first.
    Picture(int width, int height);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    HDC Device() const { return device_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    void Fill(COLORREF color);

    COLORREF At(int x, int y) const;
    /// Returns the number of pixels of `area` that have the colour.
    int Count(COLORREF color, const RECT& area) const;
    int Count(COLORREF color) const { return Count(color, {0, 0, width_, height_}); }
    /// Returns the smallest rectangle with all pixels of other colours; empty if there are none.
    RECT BoundsOfOthers(COLORREF color) const;
    /// The pixels, row by row.
    std::vector<std::uint32_t> Pixels() const;
    /// Returns false if the file cannot be written.
    bool SaveAsBmp(const std::string& path) const;

 private:
    int width_;
    int height_;
    HDC device_;
    std::uint32_t* bits_ = nullptr;
    HBITMAP bitmap_;
    HGDIOBJ former_;
};

}  // namespace lumenkit::testing
