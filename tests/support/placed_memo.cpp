#include "tests/support/placed_memo.h"

#include "tests/support/log_lines.h"

namespace lumenkit::testing {

namespace {

const ClassTable memoClasses = {.libraryName = u"lumenkit", .classes = {&vmemoClass, 1}};

}  // namespace

PlacedMemo::PlacedMemo(const memory::Placing& placing, Start)
    : form_(memoClasses), placed_(form_, vmemoClass, placing), user_(form_) {}

PlacedMemo::PlacedMemo(const memory::Placing& placing) : PlacedMemo(placing, Start::Later) {
    placed_.StartNew();
}

PlacedMemo::PlacedMemo(host::PropertyBag& bag, const memory::Placing& placing)
    : PlacedMemo(placing, Start::Later) {
    placed_.StartSaved(bag);
}

memory::TextBox& PlacedMemo::ActiveBox() {
    return Box(static_cast<std::int16_t>(Memo().pGetScrollBars()));
}

std::vector<std::int16_t> PlacedMemo::VisibleBoxes() {
    std::vector<std::int16_t> visible;
    for (std::int16_t index = 0; index < 4; ++index) {
        if (Box(index).IsVisible()) {
            visible.push_back(index);
        }
    }
    return visible;
}

std::int32_t PlacedMemo::Caret() {
    return ActiveBox().SelStart();
}

std::vector<std::string> PlacedMemo::TakeLog() {
    return TakeLogLines(form_.GetLog(), u"VMEMO");
}

}  // namespace lumenkit::testing
