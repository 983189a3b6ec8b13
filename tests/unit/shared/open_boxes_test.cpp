#include "runtime/shared/open_boxes.h"

#include <optional>

#include <gtest/gtest.h>

namespace lumenkit::shared {
namespace {

class Waiter final : public BoxWaiter {
 public:
    void BoxesClosed() override { ++calls; }
    int calls = 0;
};

TEST(OpenBoxes, TheLastBoxThatClosesNotifiesEachWaiterOnce) {
    OpenBoxes boxes;
    Waiter one;
    Waiter two;
    EXPECT_FALSE(boxes.IsAny());
    {
        const OpenBoxes::Scope outer(boxes);
        boxes.Add(one);
        {
            const OpenBoxes::Scope inner(boxes);
            boxes.Add(two);
            boxes.Add(one);
        }
        EXPECT_TRUE(boxes.IsAny());
        EXPECT_EQ(one.calls + two.calls, 0);
    }
    EXPECT_FALSE(boxes.IsAny());
    EXPECT_EQ(one.calls, 1);
    EXPECT_EQ(two.calls, 1);
    { const OpenBoxes::Scope again(boxes); }
    EXPECT_EQ(one.calls + two.calls, 2);
}

TEST(OpenBoxes, AWaiterMayGoBeforeTheBoxCloses) {
    OpenBoxes boxes;
    std::optional<Waiter> gone(std::in_place);
    Waiter stays;
    {
        const OpenBoxes::Scope box(boxes);
        boxes.Add(*gone);
        boxes.Add(stays);
        boxes.Remove(*gone);
        gone.reset();
    }
    EXPECT_EQ(stays.calls, 1);
}

}  // namespace
}  // namespace lumenkit::shared
