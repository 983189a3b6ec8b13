#pragma once

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A bitmap in memory to draw on, with the format of the device `like`.
class MemoryDevice {
 public:
    /// `size` is in pixels. Raises 7 if the platform cannot allocate the bitmap.
    MemoryDevice(HDC like, SIZE size);
    ~MemoryDevice();
    MemoryDevice(const MemoryDevice&) = delete;
    MemoryDevice& operator=(const MemoryDevice&) = delete;

    HDC Handle() const { return device_; }

 private:
    HDC device_;
    HBITMAP bitmap_;
    HGDIOBJ former_;
};

}  // namespace lumenkit::win32
