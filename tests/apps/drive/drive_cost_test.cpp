// What a request costs in sessions of different sizes, in allocations: a walk over the controls
// that builds anything shows here. The time is a row of "make bench".
#include <cstdint>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "apps/lumenkit/drive/loaded_form.h"
#include "apps/lumenkit/drive/session.h"
#include "forms/document.h"
#include "project/lumenkit_classes.h"
#include "tests/support/allocation_counter.h"

namespace lumenkit::testing {

namespace {

constexpr int crowd = 3000;

std::string New(const std::string& type, const std::string& id) {
    return R"({"do":"new","class":")" + type + R"(","id":")" + id + R"("})";
}

std::string To(const std::string& id, const std::string& request, const std::string& rest = "") {
    return R"({"do":")" + request + R"(","id":")" + id + '"' + rest + '}';
}

class Session {
 public:
    explicit Session(int others) {
        Serve(New("VMemo", "memo"));
        Serve(New("VLabel", "label"));
        Serve(R"({"do":"new","class":"VLabelCaption","id":"page","select":["label"]})");
        for (int i = 0; i < others; ++i) {
            const std::string number = std::to_string(i);
            Serve(New(i % 2 == 0 ? "VLabel" : "VMemo", "c" + number));
        }
    }

    void Serve(const std::string& request) {
        const std::string answer = session_.Serve(request);
        EXPECT_TRUE(answer.starts_with(R"({"ok":true)")) << request << answer;
    }
    std::int64_t AllocationsFor(const std::string& request) {
        Serve(request);  // the first one may fill what later ones use
        const std::int64_t before = AllocationCount();
        session_.Serve(request);
        return AllocationCount() - before;
    }

 private:
    cli::DriveSession session_{lumenkitClasses};
};

TEST(DriveCost, DoesNotGrowWithTheControls) {
    Session lonely(0);
    Session crowded(crowd);
    for (const std::string& request :
         {To("memo", "get", R"(,"name":"Text")"),
          To("memo", "let", R"(,"name":"Text","value":"a")"),
          To("memo", "resize", R"(,"width":2000,"height":900)"), To("label", "draw"),
          To("memo", "save"), To("page", "state"), To("label", "click"), To("page", "apply"),
          To("memo", "select", R"(,"start":0,"length":1)"), To("memo", "paste", R"(,"text":"b")"),
          To("memo", "allow", R"(,"name":"Text","value":true)"), std::string(R"({"do":"focus"})"),
          std::string(R"({"do":"ambient","BackColor":255})")}) {
        const std::int64_t cost = lonely.AllocationsFor(request);
        EXPECT_GT(cost, 0) << request;
        EXPECT_EQ(crowded.AllocationsFor(request), cost) << request;
    }
}

TEST(DriveCost, ADroppedControlLeavesNothing) {
    Session session(crowd);
    // The first round may fill what later ones use.
    std::int64_t live = 0;
    for (int round = 0; round < 4; ++round) {
        for (const std::string type : {"VLabel", "VMemo", "VOptList"}) {
            session.Serve(New(type, "again"));
            session.Serve(To("again", "click"));
            session.Serve(To("again", "drop"));
        }
        session.Serve(R"({"do":"new","class":"VLabelCaption","id":"again","select":["c0","c2"]})");
        session.Serve(To("again", "drop"));
        if (round == 0) {
            live = LiveAllocations();
        }
    }
    EXPECT_EQ(LiveAllocations(), live);
}

TEST(DriveCost, ManyLivesOneAfterTheOtherLeaveNoTrace) {
    Session session(0);
    std::int64_t live = 0;
    for (int life = 0; life < 2000; ++life) {
        const std::string id = "life" + std::to_string(life + 1000000);
        session.Serve(New("VMemo", id));
        session.Serve(To(id, "drop"));
        if (life == 0) {
            live = LiveAllocations();
        }
    }
    EXPECT_EQ(LiveAllocations(), live);
}

std::int64_t AllocationsForNamesakes(int count) {
    std::string form = "VERSION 5.00\nBegin VB.Form F\n";
    for (int i = 0; i < count; ++i) {
        form += " Begin lumenkit.VLabel L\n End\n";
    }
    forms::Document document = forms::Document::Parse("x.frm", form + "End\n", {});
    const std::int64_t before = AllocationCount();
    const cli::LoadedForm loaded(std::move(document), lumenkitClasses);
    EXPECT_EQ(loaded.Ids().back(), "L#" + std::to_string(count));
    return AllocationCount() - before;
}

TEST(DriveCost, OfAFormGrowsWithItsControlsThoughTheyShareOneName) {
    EXPECT_LT(AllocationsForNamesakes(2000), 3 * AllocationsForNamesakes(1000));
}

}  // namespace

}  // namespace lumenkit::testing
