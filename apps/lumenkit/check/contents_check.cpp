#include "apps/lumenkit/check/contents_check.h"

#include <map>
#include <optional>
#include <string>

#include "apps/lumenkit/check/quote.h"
#include "apps/lumenkit/check/rules.h"
#include "frame/checked_integer.h"
#include "frame/runtime_error.h"
#include "voptlist/contents.h"

namespace lumenkit::check {

namespace {

// A new list has one item. It keeps that item if its contents cannot be read.
constexpr std::int16_t itemCountAtFirst = 1;

class ContentsChecker {
 public:
    explicit ContentsChecker(TextView contents) : contents_(contents) {}

    ContentsCheck Check() {
        ContentsWalk walk(contents_);
        try {
            while (const std::optional<ContentsItem> item = walk.Next()) {
                CheckItem(*item);
                ++count_;
                end_ = OffsetOf(item->caption) + item->caption.size();
            }
            result_.itemCount = count_.Value();
        } catch (const RuntimeError&) {
            RefuseLength();
        }
        return std::move(result_);
    }

 private:
    std::size_t OffsetOf(TextView part) const {
        return static_cast<std::size_t>(part.data() - contents_.data());
    }

    void CheckItem(const ContentsItem& item) {
        const auto [first, isNew] = firstOf_.emplace(LCase(item.value), count_.Value());
        if (!isNew) {
            result_.remarks.push_back({rules::duplicateValue.name,
                                       OffsetOf(item.value),
                                       "items " + std::to_string(first->second) + " and " +
                                           std::to_string(count_.Value()) +
                                           " have the same value, " + Quote(item.value) +
                                           "; assigning it to Text selects the first item",
                                       {}});
        }
    }

    void RefuseLength() {
        const std::size_t next = count_.Value() == 0 ? 0 : end_ + 1;
        result_.remarks.push_back({rules::textTooLong.name,
                                   next,
                                   "the contents have " + std::to_string(contents_.size()) +
                                       " units, and positions end at 32767; loading reports an "
                                       "overflow, and the items from here on are missing",
                                   {}});
        result_.itemCount = itemCountAtFirst;
    }

    TextView contents_;
    ContentsCheck result_;
    Int16 count_ = 0;
    std::size_t end_ = 0;  // of the last item checked
    std::map<Text, std::int16_t> firstOf_;
};

}  // namespace

ContentsCheck CheckContents(TextView contents) {
    return ContentsChecker(contents).Check();
}

Remarks CheckListIndex(std::int16_t listIndex, std::int16_t itemCount) {
    if (listIndex >= -1 && listIndex < itemCount) {
        return {};
    }
    const std::string last = std::to_string(itemCount - 1);
    return {{rules::listIndexOutOfRange.name,
             0,
             "there is no item " + std::to_string(listIndex) + " (the items are 0 to " + last +
                 ", and -1 means none); no item is selected",
             {}}};
}

}  // namespace lumenkit::check
