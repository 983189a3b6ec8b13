#include "vlabel/text_list.h"

#include "frame/runtime_error.h"

namespace lumenkit {

TextView TextList::Item(std::int32_t index) const {
    if (index < 1 || index > Count()) {
        Raise(ErrorNumber::SubscriptOutOfRange);
    }
    const auto entry = static_cast<std::size_t>(index) - 1;
    const std::size_t begin = entry == 0 ? 0 : ends_[entry - 1];
    return TextView(buffer_).substr(begin, ends_[entry] - begin);
}

void TextList::Clear() {
    buffer_.clear();
    ends_.clear();
}

}  // namespace lumenkit
