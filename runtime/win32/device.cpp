#include "runtime/win32/device.h"

#include <algorithm>

#include "frame/runtime_error.h"

namespace lumenkit::win32 {

MemoryDevice::MemoryDevice(HDC like, SIZE size)
    : device_(CreateCompatibleDC(like)),
      bitmap_(CreateCompatibleBitmap(like, std::max<int>(static_cast<int>(size.cx), 1),
                                     std::max<int>(static_cast<int>(size.cy), 1))),
      selection_(device_.get(), bitmap_.get()) {
    if (device_ == nullptr || bitmap_ == nullptr) {
        Raise(ErrorNumber::OutOfMemory);
    }
}

}  // namespace lumenkit::win32
