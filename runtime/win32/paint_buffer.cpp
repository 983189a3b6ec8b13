#include "runtime/win32/paint_buffer.h"

#include <algorithm>
#include <utility>

namespace lumenkit::win32 {

HDC PaintBuffer::Take(HDC target, int width, int height) {
    if (device_ == nullptr) {
        device_.reset(CreateCompatibleDC(target));
    }
    if (width > size_.cx || height > size_.cy) {
        const SIZE size = {std::max<LONG>(width, size_.cx), std::max<LONG>(height, size_.cy)};
        OwnBitmap larger(CreateCompatibleBitmap(target, size.cx, size.cy));
        if (device_ == nullptr || larger == nullptr) {
            return nullptr;
        }
        selection_.reset();
        bitmap_ = std::move(larger);
        selection_.emplace(device_.get(), bitmap_.get());
        size_ = size;
    }
    isInUse_ = true;
    return device_.get();
}

PaintBuffer::Use::Use(PaintBuffer& buffer, HDC target, const RECT& shown)
    : buffer_(buffer), target_(target), shown_(shown), device_(target) {
    if (buffer_.isInUse_ || IsRectEmpty(&shown) != FALSE) {
        return;
    }
    const HDC device = buffer_.Take(target, static_cast<int>(shown.right - shown.left),
                                    static_cast<int>(shown.bottom - shown.top));
    if (device != nullptr) {
        device_ = device;
        origin_ = {-shown.left, -shown.top};
    }
}

PaintBuffer::Use::~Use() {
    if (device_ != target_) {
        BitBlt(target_, shown_.left, shown_.top, shown_.right - shown_.left,
               shown_.bottom - shown_.top, device_, 0, 0, SRCCOPY);
        buffer_.isInUse_ = false;
    }
}

}  // namespace lumenkit::win32
