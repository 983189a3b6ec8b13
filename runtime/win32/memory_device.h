#pragma once

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A bitmap in memory to draw on, of the kind that `like` shows.
class MemoryDevice {
 public:
    /// `size` in pixels. Raises 7 when the platform has no room.
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
