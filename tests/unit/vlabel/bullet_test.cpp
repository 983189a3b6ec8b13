// The boxes of bullets. With pixels of one twip, a bullet at (0, -1) has its origin at (0, 0), its
// boxes are in pixels, and R is the radius plus one.
#include "vlabel/bullet.h"

#include <memory>
#include <string>
#include <utility>
#include <variant>

#include <gmock/gmock.h>

#include "frame/runtime_error.h"
#include "runtime/memory/surface.h"
#include "tests/support/label_scene.h"

namespace lumenkit::testing {

namespace {

std::string Boxes(std::int16_t pixelX, std::int16_t pixelY, float x, float centreY, float radius) {
    memory::Surface surface(std::make_shared<memory::FaultPlan>(), 3000, 1500);
    surface.SetPixelSize(pixelX, pixelY);
    PaintBullet(surface, pixelX, pixelY, x, centreY, radius);
    std::string boxes;
    for (const memory::DisplayItem& item : surface.Drawn().Items()) {
        const auto& box = std::get<memory::BoxItem>(item);
        EXPECT_EQ(box.color, surface.ForeColor());
        boxes += "(" + ToLine(box.x1) + "," + ToLine(box.y1) + ")-(" + ToLine(box.x2) + "," +
                 ToLine(box.y2) + ") ";
    }
    return boxes;
}

std::string Pixels(float radius) {
    return Boxes(1, 1, 0, -1, radius);
}

constexpr float bit = 1.0F / 1024;

TEST(Bullet, BandsReachUpToTheirLargestRadius) {
    const std::string upTo2 = "(0,-1)-(1,0) ";
    const std::string upTo3 = "(0,-1)-(2,1) ";
    const std::string upTo4 = "(0,-1)-(3,0) (1,-2)-(2,1) ";
    const std::string upTo5 = "(0,-1)-(4,1) (1,-2)-(3,2) ";
    const std::string upTo6 = "(1,-2)-(4,1) (0,-1)-(5,0) (2,-3)-(3,2) ";
    const std::string upTo7 = "(1,-2)-(5,2) (0,-1)-(6,1) (2,-3)-(4,3) ";
    const std::string upTo255 = "(1,-3)-(6,2) (0,-2)-(7,1) (2,-4)-(5,3) ";
    EXPECT_EQ(Pixels(-5), upTo2);
    EXPECT_EQ(Pixels(0), upTo2);
    EXPECT_EQ(Pixels(1), upTo2);
    EXPECT_EQ(Pixels(1 + bit), upTo3);
    EXPECT_EQ(Pixels(2), upTo3);
    EXPECT_EQ(Pixels(2 + bit), upTo4);
    EXPECT_EQ(Pixels(3), upTo4);
    EXPECT_EQ(Pixels(3 + bit), upTo5);
    EXPECT_EQ(Pixels(4), upTo5);
    EXPECT_EQ(Pixels(4 + bit), upTo6);
    EXPECT_EQ(Pixels(5), upTo6);
    EXPECT_EQ(Pixels(5 + bit), upTo7);
    EXPECT_EQ(Pixels(6), upTo7);
    EXPECT_EQ(Pixels(6 + bit), upTo255);
    EXPECT_EQ(Pixels(254), upTo255);
    EXPECT_EQ(Pixels(254 + bit), "");
}

TEST(Bullet, LineOf240TwipsAt15TwipsAPixel) {
    EXPECT_EQ(Boxes(15, 15, 30, 120, 60), "(30,120)-(90,150) (45,105)-(75,165) ");
}

// X = Int(2.5) * 12 = 24, Y = Int(100 / 20 + 1) * 20 = 120, R = 60 / 20 + 1 = 4.
TEST(Bullet, PixelsNeedNotBeSquare) {
    EXPECT_EQ(Boxes(12, 20, 30, 100, 60), "(24,100)-(60,120) (36,80)-(48,140) ");
}

TEST(Bullet, OriginIsRoundedDown) {
    EXPECT_EQ(Boxes(15, 15, 29.9F, 29.9F, 0), "(15,15)-(30,30) ");
    EXPECT_EQ(Boxes(15, 15, 30, 30, 0), "(30,30)-(45,45) ");
    EXPECT_EQ(Boxes(15, 15, -1, -16, 0), "(-15,-30)-(0,-15) ");
}

TEST(Bullet, PenIsLeftAtTheLastCorner) {
    memory::Surface surface(std::make_shared<memory::FaultPlan>(), 3000, 1500);
    PaintBullet(surface, 15, 15, 30, 120, 60);
    EXPECT_EQ(surface.CurrentX(), 75);
    EXPECT_EQ(surface.CurrentY(), 165);
}

TEST(Bullet, PixelsOfNoSizeAreDivisionByZero) {
    for (const auto& [pixelX, pixelY] : {std::pair{0, 15}, std::pair{15, 0}}) {
        try {
            Boxes(static_cast<std::int16_t>(pixelX), static_cast<std::int16_t>(pixelY), 30, 120,
                  60);
            ADD_FAILURE() << "nothing raised";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), 11);
        }
    }
}

}  // namespace

}  // namespace lumenkit::testing
