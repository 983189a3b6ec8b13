#include "apps/lumenform/form_view/painting_room.h"

#include <algorithm>

#include <sys/resource.h>

namespace lumenkit::lumenform {

namespace {

// A level of the recursion takes 280 bytes in Qt 6.4 for x86-64.
constexpr std::size_t level = 512;
// For all else, such as controls in one another.
constexpr std::size_t usualUse = std::size_t{4} << 20U;

}  // namespace

// The system grows the stack of the main thread up to the present limit, and keeps at least 128 MB
// of addresses free for it.
std::size_t MakeRoomToPaint(std::size_t count) {
    const std::size_t wanted = std::min(count, mostSiblings);
    rlimit limit{};
    if (getrlimit(RLIMIT_STACK, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) {
        return wanted;
    }
    const rlim_t needed = usualUse + wanted * level;
    if (limit.rlim_cur < needed) {
        rlimit larger = limit;
        larger.rlim_cur = std::min<rlim_t>(needed, limit.rlim_max);
        limit = setrlimit(RLIMIT_STACK, &larger) == 0 ? larger : limit;
    }
    const rlim_t room = std::max<rlim_t>(limit.rlim_cur, usualUse) - usualUse;
    return std::min(wanted, static_cast<std::size_t>(room / level));
}

}  // namespace lumenkit::lumenform
