#include "runtime/win32/memory_device.h"

#include <algorithm>

#include "frame/runtime_error.h"

namespace lumenkit::win32 {

MemoryDevice::MemoryDevice(HDC like, SIZE size)
    : device_(CreateCompatibleDC(like)),
      bitmap_(CreateCompatibleBitmap(like, std::max<int>(static_cast<int>(size.cx), 1),
                                     std::max<int>(static_cast<int>(size.cy), 1))),
      former_(SelectObject(device_, bitmap_)) {
    if (device_ == nullptr || bitmap_ == nullptr) {
        DeleteDC(device_);
        DeleteObject(bitmap_);
        Raise(ErrorNumber::OutOfMemory);
    }
}

MemoryDevice::~MemoryDevice() {
    SelectObject(device_, former_);
    DeleteDC(device_);
    DeleteObject(bitmap_);
}

}  // namespace lumenkit::win32
