#include "runtime/ole/values/basic_string.h"

#include <limits>
#include <new>

#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

TextView TextOf(BSTR string) {
    return string == nullptr ? TextView() : win32::AsText({string, SysStringLen(string)});
}

BasicString::BasicString(TextView text) {
    constexpr std::size_t longest = std::numeric_limits<INT>::max();
    if (text.size() < longest) {
        string_ = SysAllocStringLen(win32::AsWide(text.data()), static_cast<UINT>(text.size()));
    }
    if (string_ == nullptr) {
        throw std::bad_alloc();
    }
}

}  // namespace lumenkit::ole
