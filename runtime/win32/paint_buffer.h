#pragma once

#include <optional>

#include "runtime/win32/device.h"

namespace lumenkit::win32 {

/// A bitmap in which a picture is composed before it is shown. Hold the buffer as
/// ThreadShared<PaintBuffer>. It grows as needed.
class PaintBuffer {
 public:
    /// Uses the buffer for one picture, which is shown when the use ends.
    class Use {
     public:
        /// `shown` is the part of `target` that is painted.
        Use(PaintBuffer& buffer, HDC target, const RECT& shown);
        ~Use();
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

        /// The device to paint on, and the position of the target's origin on it. The device is the
        /// target itself if the buffer is already in use or cannot be allocated.
        HDC Device() const { return device_; }
        POINT Origin() const { return origin_; }

     private:
        PaintBuffer& buffer_;
        HDC target_;
        RECT shown_;
        HDC device_;
        POINT origin_ = {};
    };

 private:
    /// Returns null if no buffer can be allocated.
    HDC Take(HDC target, int width, int height);

    OwnDevice device_;
    OwnBitmap bitmap_;
    std::optional<Selection> selection_;
    SIZE size_ = {};
    bool isInUse_ = false;
};

}  // namespace lumenkit::win32
