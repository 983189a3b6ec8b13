#include "runtime/memory/key_stroke.h"

#include <gtest/gtest.h>

namespace lumenkit::memory {
namespace {

struct Case {
    char16_t unit;
    std::int16_t keyCode;
    std::int16_t shift;
};

TEST(KeyStroke, FollowsTheTable) {
    for (const auto& [unit, keyCode, shift] : {
             Case{u'a', 65, 0},    Case{u'z', 90, 0},    Case{u'A', 65, 0},  Case{u'0', 48, 0},
             Case{u'9', 57, 0},    Case{u' ', 32, 0},    Case{13, 13, 0},    Case{8, 8, 0},
             Case{9, 9, 0},        Case{1, 65, 2},       Case{2, 66, 2},     Case{10, 74, 2},
             Case{26, 90, 2},      Case{27, 231, 0},     Case{u'.', 231, 0}, Case{u'"', 231, 0},
             Case{u'@', 231, 0},   Case{u'[', 231, 0},   Case{u'`', 231, 0}, Case{u'{', 231, 0},
             Case{0x20AC, 231, 0}, Case{0xD83D, 231, 0},
         }) {
        EXPECT_EQ(KeyFor(unit).keyCode, keyCode) << static_cast<int>(unit);
        EXPECT_EQ(KeyFor(unit).shift, shift) << static_cast<int>(unit);
    }
}

}  // namespace
}  // namespace lumenkit::memory
