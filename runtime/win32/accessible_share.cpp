#include "runtime/win32/accessible_share.h"

#include <atomic>

namespace lumenkit::win32 {

namespace {

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): counts for the whole module
std::atomic<int> liveObjects = 0;

}  // namespace

AccessibleShare::AccessibleShare() {
    ++liveObjects;
}

AccessibleShare::~AccessibleShare() {
    --liveObjects;
}

int LiveAccessibleObjects() {
    return liveObjects;
}

}  // namespace lumenkit::win32
