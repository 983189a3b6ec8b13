#pragma once

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A bitmap in which pictures are put together before they are shown; hold it as
/// ThreadShared<PaintBuffer>. It grows as needed.
class PaintBuffer {
 public:
    PaintBuffer() = default;
    ~PaintBuffer();
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

    /// The use of the buffer for one picture, which is shown at the end.
    class Use {
     public:
        /// `shown` is the part of `target` that is painted.
        Use(PaintBuffer& buffer, HDC target, const RECT& shown);
        ~Use();
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

        /// What to paint on, and where the target's origin lies on it: the target itself where the
        /// buffer is in use already or cannot be had.
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
    /// Null when there is none to be had.
    HDC Take(HDC target, int width, int height);

    HDC device_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ original_ = nullptr;
    SIZE size_ = {};
    bool isInUse_ = false;
};

}  // namespace lumenkit::win32
