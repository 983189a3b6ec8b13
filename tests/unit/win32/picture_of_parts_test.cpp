// Controls with constituents in metafiles and at other sizes than their own.
#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/property_bag.h"
#include "runtime/win32/device_canvas.h"
#include "runtime/win32/wide_text.h"
#include "tests/support/picture.h"
#include "tests/support/windows_form.h"

namespace lumenkit::testing {
namespace {

using Lines = std::vector<std::string>;

constexpr SIZE size = {200, 100};

struct Records {
    Lines texts;
    int bitmaps = 0;
    int figures = 0;
};

int CALLBACK Collect(HDC /*device*/, HANDLETABLE* /*handles*/, const ENHMETARECORD* record,
                     int /*handleCount*/, LPARAM target) {
    auto& records = *reinterpret_cast<Records*>(target);
    switch (record->iType) {
        case EMR_EXTTEXTOUTW: {
            const auto& text = reinterpret_cast<const EMREXTTEXTOUTW*>(record)->emrtext;
            const auto* const units = reinterpret_cast<const wchar_t*>(
                reinterpret_cast<const char*>(record) + text.offString);
            if (text.nChars > 0) {
                records.texts.push_back(ToUtf8(win32::AsText({units, text.nChars})));
            }
            break;
        }
        case EMR_BITBLT:
        case EMR_STRETCHBLT:
        case EMR_MASKBLT:
        case EMR_PLGBLT:
        case EMR_SETDIBITSTODEVICE:
        case EMR_STRETCHDIBITS:
        case EMR_ALPHABLEND:
        case EMR_TRANSPARENTBLT:
            ++records.bitmaps;
            break;
        case EMR_ELLIPSE:
        case EMR_POLYGON:
        case EMR_POLYGON16:
            ++records.figures;
            break;
        default:
            break;
    }
    return 1;
}

class PictureOfParts : public ::testing::Test {
 protected:
    FormControl& Place(TextView type, memory::PropertyBag* bag = nullptr) {
        control_ = std::make_unique<FormControl>(form_, *lumenkitClasses.Find(type), size);
        control_->Start(bag);
        return *control_;
    }
    FormControl& Memo(const Text& text) {
        bag_.Store(u"Font", ObjectRef(form_.Fonts().NewFont(u"Arial", 10)));
        bag_.Store(u"Text", text);
        return Place(u"lumenkit.VMemo", &bag_);
    }
    FormControl& List(const Text& contents) {
        bag_.Store(u"Font", ObjectRef(form_.Fonts().NewFont(u"Arial", 10)));
        bag_.Store(u"Caption", Text(u"&Size"));
        bag_.Store(u"Contents", contents);
        bag_.Store(u"ItemFontName", Text(u"Arial"));
        bag_.Store(u"LeftMargin", 120.0F);
        bag_.Store(u"TopMargin", 300.0F);
        bag_.Store(u"ListIndex", std::int16_t{1});
        return Place(u"lumenkit.VOptList", &bag_);
    }
    static Records Recorded(FormControl& control) {
        const HDC recorder = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
        control.Hosted().DrawOn(recorder, {0, 0, size.cx, size.cy});
        const HENHMETAFILE file = CloseEnhMetaFile(recorder);
        Records records;
        EnumEnhMetaFile(nullptr, file, &Collect, &records, nullptr);
        DeleteEnhMetaFile(file);
        return records;
    }

    WindowsForm form_{lumenkitClasses};
    memory::PropertyBag bag_;
    std::unique_ptr<FormControl> control_;
};

TEST_F(PictureOfParts, AMetafileOfAMemoContainsTheLinesThatAreSeen) {
    FormControl& memo = Memo(u"first\r\nsecond\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11");
    const Records records = Recorded(memo);
    ASSERT_GE(records.texts.size(), 4U);
    EXPECT_LT(records.texts.size(), 9U) << "those below are not seen";
    EXPECT_EQ(records.texts[0], "first");
    EXPECT_EQ(records.texts[1], "second");
    for (std::size_t line = 2; line < records.texts.size(); ++line) {
        EXPECT_EQ(records.texts[line], std::to_string(line + 1));
    }
    EXPECT_EQ(records.bitmaps, 0);
}

TEST_F(PictureOfParts, AMetafileOfAListContainsItsCaptions) {
    FormControl& list = List(u"s;Small|m;Medium|l;Large|1;Below|2;Below|3;Below|4;Below|5;Below");
    list.Hosted().Automation().Let(u"Contents", Text(u"s;Small|m;Medium|l;Large"));
    const Records records = Recorded(list);
    EXPECT_THAT(records.texts, ::testing::UnorderedElementsAre("Size", "Small", "Medium", "Large"));
    EXPECT_EQ(records.figures, 3 * 2 + 1) << "three rings and a dot";
    EXPECT_EQ(records.bitmaps, 0);
}

TEST_F(PictureOfParts, AnOldMetafileShowsThem) {
    FormControl& list = List(u"s;Small|m;Medium");
    const HDC recorder = CreateMetaFileW(nullptr);
    SetWindowOrgEx(recorder, 0, 0, nullptr);
    SetWindowExtEx(recorder, 5000, 2500, nullptr);
    list.Hosted().DrawOn(recorder, {0, 0, 5000, 2500});
    const HMETAFILE file = CloseMetaFile(recorder);
    Picture picture(size.cx * 2, size.cy * 2);
    SetMapMode(picture.Device(), MM_ANISOTROPIC);
    SetViewportExtEx(picture.Device(), picture.Width(), picture.Height(), nullptr);
    EXPECT_TRUE(PlayMetaFile(picture.Device(), file));
    DeleteMetaFile(file);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(picture.At(300, 150), face);
    EXPECT_GT(picture.Count(GetSysColor(COLOR_BTNTEXT), {50, 40, 200, 120}), 100) << "the captions";
    // Each ring is a circle of the background of windows in a dark line.
    const RECT ring = {16, 43, 42, 69};
    EXPECT_GT(picture.Count(GetSysColor(COLOR_WINDOW), ring), 250);
    EXPECT_GT(picture.Count(GetSysColor(COLOR_BTNSHADOW), ring), 30);
}

// Returns how many horizontal steps from one colour to another lie inside the squares that the
// pixels of a picture in original size would become.
int FineSteps(const Picture& picture, int scale, const RECT& area) {
    int steps = 0;
    for (auto y = static_cast<int>(area.top); y < area.bottom; ++y) {
        for (auto x = static_cast<int>(area.left) + 1; x < area.right; ++x) {
            steps += x % scale != 0 && picture.At(x, y) != picture.At(x - 1, y) ? 1 : 0;
        }
    }
    return steps;
}

TEST_F(PictureOfParts, AnEnlargedPictureIsAsSharpAsThatOfALabel) {
    constexpr int scale = 3;
    const auto sharpness = [&](FormControl& control) {
        Picture picture(size.cx * scale, size.cy * scale);
        control.Hosted().DrawOn(picture.Device(), {0, 0, picture.Width(), picture.Height()});
        return FineSteps(picture, scale, {15, 15, picture.Width() - 15, picture.Height() - 15});
    };
    const Text text = u"The quick brown fox";
    Place(u"lumenkit.VLabel");
    control_->Hosted().Automation().Set(u"Font", ObjectRef(form_.Fonts().NewFont(u"Arial", 10)));
    control_->Hosted().Automation().Let(u"Caption", text);
    const int ofLabel = sharpness(*control_);
    EXPECT_GT(ofLabel, 300);
    EXPECT_NEAR(sharpness(Memo(text)), ofLabel, ofLabel / 3);
    EXPECT_GT(sharpness(List(u"a;The quick brown|b;fox")), ofLabel / 2);
}

// The same control drawn by its windows and as shapes.
struct BothPictures {
    explicit BothPictures(FormControl& control) {
        const RECT all = {0, 0, size.cx, size.cy};
        control.Hosted().DrawOn(byWindows.Device(), all);
        win32::DeviceCanvas canvas(asShapes.Device(), win32::Mapping::Plain(size), all);
        control.Hosted().DrawShapes(canvas);
    }
    Picture byWindows{size.cx, size.cy};
    Picture asShapes{size.cx, size.cy};
};

bool IsDark(const Picture& picture, int x, int y) {
    constexpr int half = 128;
    return GetGValue(picture.At(x, y)) < half;
}

RECT DarkPart(const Picture& picture, const RECT& area) {
    RECT bounds = {};
    for (auto y = static_cast<int>(area.top); y < area.bottom; ++y) {
        for (auto x = static_cast<int>(area.left); x < area.right; ++x) {
            const RECT pixel = {x, y, x + 1, y + 1};
            if (IsDark(picture, x, y)) {
                UnionRect(&bounds, &bounds, &pixel);
            }
        }
    }
    return bounds;
}

TEST_F(PictureOfParts, TheShapesOfAListAreWhereItsWindowsHaveThem) {
    for (const std::int16_t alignment : {std::int16_t{0}, std::int16_t{1}}) {
        bag_.Store(u"ItemAlignment", alignment);
        const BothPictures pictures(List(u"s;Small|m;Medium|l;Large"));
        // The texts: without the rings, which the platform draws with other shades.
        for (const RECT& area : {RECT{4, 3, 60, 18}, RECT{alignment == 0 ? 24 : 9, 22,
                                                          alignment == 0 ? 190 : 170, 66}}) {
            int dark = 0;
            int shared = 0;
            for (auto y = static_cast<int>(area.top); y < area.bottom; ++y) {
                for (auto x = static_cast<int>(area.left); x < area.right; ++x) {
                    const bool isDark = IsDark(pictures.byWindows, x, y);
                    dark += isDark ? 1 : 0;
                    shared += isDark && IsDark(pictures.asShapes, x, y) ? 1 : 0;
                }
            }
            EXPECT_GT(dark, 20);
            EXPECT_GT(shared, dark * 9 / 10) << alignment << ' ' << area.top;
        }
    }
}

// The edit control places letters by its own measures, which may differ by a pixel.
TEST_F(PictureOfParts, TheLinesOfAMemoAreWhereItsWindowHasThem) {
    const BothPictures pictures(Memo(u"The quick\r\nbrown fox"));
    const RECT area = {4, 4, size.cx - 4, size.cy - 4};
    const RECT byWindows = DarkPart(pictures.byWindows, area);
    const RECT asShapes = DarkPart(pictures.asShapes, area);
    EXPECT_NEAR(asShapes.left, byWindows.left, 1);
    EXPECT_EQ(asShapes.top, byWindows.top);
    EXPECT_NEAR(asShapes.right, byWindows.right, 3);
    EXPECT_EQ(asShapes.bottom, byWindows.bottom);
    EXPECT_GT(asShapes.bottom - asShapes.top, 20) << "both lines";
}

TEST_F(PictureOfParts, AManyTimesLongerMemoTakesLittleLonger) {
    const auto timed = [&](int lines) {
        Text text;
        for (int line = 0; line < lines; ++line) {
            text += u"a line of the memo\r\n";
        }
        FormControl& memo = Memo(text);
        Recorded(memo);
        double least = 1e9;
        for (int round = 0; round < 5; ++round) {
            const auto start = std::chrono::steady_clock::now();
            Recorded(memo);
            const std::chrono::duration<double, std::milli> taken =
                std::chrono::steady_clock::now() - start;
            least = std::min(least, taken.count());
        }
        return least;
    };
    const double few = timed(10);
    const double many = timed(1000);
    RecordProperty("ms_of_10_lines", std::to_string(few));
    RecordProperty("ms_of_1000_lines", std::to_string(many));
    EXPECT_LT(many, few * 10 + 5) << few << " ms for 10 lines";
}

}  // namespace
}  // namespace lumenkit::testing
