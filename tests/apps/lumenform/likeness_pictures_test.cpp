// Pictures of the sample forms with likenesses, compared with the reviewed ones in
// tests/golden/pictures. "make golden" draws them anew.
#include <QImage>
#include <algorithm>
#include <filesystem>

#include <gmock/gmock.h>

#include "apps/lumenform/form_view/likeness/likeness_table.h"
#include "forms/controls.h"
#include "forms/file.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

const fs::path goldenPictures = LUMENKIT_SOURCE_DIR "/tests/golden/pictures";

std::vector<std::string> DrawnForms() {
    return {"likeness_bars", "likeness_grids", "likeness_lists", "likeness_texts",
            "tabbed",        "unseen",         "user_controls"};
}

QImage LoadPicture(const fs::path& path) {
    return QImage(QString::fromStdString(path.string())).convertToFormat(QImage::Format_RGB32);
}

int ColorDistance(QRgb left, QRgb right) {
    return std::max({std::abs(qRed(left) - qRed(right)), std::abs(qGreen(left) - qGreen(right)),
                     std::abs(qBlue(left) - qBlue(right))});
}

// Whether `expected` is in `picture` at a point. Another version of a font may change a few pixels.
bool LiesAt(const QImage& picture, QPoint at, const QImage& expected) {
    constexpr int faint = 24;
    const int most = expected.width() * expected.height() / 500;
    int others = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb drawn = picture.pixel(at.x() + x, at.y() + y);
            others += ColorDistance(drawn, expected.pixel(x, y)) > faint ? 1 : 0;
            if (others > most) {
                return false;
            }
        }
    }
    return true;
}

bool LooksLike(const QImage& picture, const QImage& expected) {
    return !expected.isNull() && picture.size() == expected.size() && LiesAt(picture, {}, expected);
}

bool HasPart(const QImage& picture, const QImage& part) {
    constexpr int farthest = 300;  // the form is in the upper left of the designer
    for (int y = 0; y < std::min(picture.height() - part.height(), farthest); ++y) {
        for (int x = 0; x < std::min(picture.width() - part.width(), farthest); ++x) {
            if (LiesAt(picture, {x, y}, part)) {
                return true;
            }
        }
    }
    return false;
}

class LikenessPictures : public ::testing::Test {
 protected:
    LikenessPictures() : platform_(qgetenv("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    ~LikenessPictures() override { qputenv("QT_QPA_PLATFORM", platform_); }

    // Draws a sample form. The picture stays in the build folder, where it can be looked at.
    static QImage Draw(const std::string& form, const std::string& options = "") {
        const fs::path picture = fs::path(LUMENKIT_BINARY_DIR) / (form + "_drawn.png");
        const Outcome outcome = RunProgram("render " + (sampleForms / (form + ".frm")).string() +
                                           " -o " + picture.string() + ' ' + options);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        EXPECT_EQ(outcome.errors, "");
        return LoadPicture(picture);
    }

 private:
    QByteArray platform_;
};

TEST_F(LikenessPictures, AreAsReviewed) {
    for (const std::string& form : DrawnForms()) {
        EXPECT_TRUE(LooksLike(Draw(form), LoadPicture(goldenPictures / (form + ".png"))))
            << LUMENKIT_BINARY_DIR << '/' << form << "_drawn.png";
    }
}

TEST_F(LikenessPictures, IconsInTheDesignerAreAsReviewed) {
    const QImage icons = LoadPicture(goldenPictures / "unseen_design.png");
    ASSERT_FALSE(icons.isNull());
    EXPECT_TRUE(HasPart(Draw("unseen", "--design"), icons));
}

TEST_F(LikenessPictures, ADifferenceIsNoticed) {
    const QImage tabs = LoadPicture(goldenPictures / "tabbed.png");
    const QImage bars = LoadPicture(goldenPictures / "likeness_bars.png");
    EXPECT_TRUE(LooksLike(tabs, tabs));
    EXPECT_FALSE(LooksLike(tabs, bars));
    EXPECT_FALSE(LooksLike(QImage(), QImage()));
    QImage without = bars;
    for (int y = 75; y < 100; ++y) {
        for (int x = 5; x < 210; ++x) {
            without.setPixel(x, y, bars.pixel(2, 100));
        }
    }
    EXPECT_FALSE(LooksLike(without, bars)) << "without the progress bar";
}

TEST_F(LikenessPictures, EachClassIsInAFormThatIsDrawn) {
    std::vector<const lumenform::PlainKind*> drawn;
    for (const std::string& form : DrawnForms()) {
        const forms::Document document = forms::Load(sampleForms / (form + ".frm"));
        for (const forms::Block* block : forms::AllControls(document.Root())) {
            drawn.push_back(lumenform::LikenessOf(block->ClassName()));
        }
    }
    for (const lumenform::LikenessRow& row : lumenform::LikenessRows()) {
        EXPECT_THAT(drawn, ::testing::Contains(&row.kind)) << ToUtf8(row.kind.className);
    }
}

TEST_F(LikenessPictures, EachClassIsInTheDocuments) {
    const std::string document = FileBytes(LUMENKIT_SOURCE_DIR "/docs/lumenform.md");
    for (const lumenform::LikenessRow& row : lumenform::LikenessRows()) {
        std::string libraries = ToUtf8(row.libraries);
        if (const auto blank = libraries.find(' '); blank != std::string::npos) {
            libraries.replace(blank, 1, "`, `");
        }
        EXPECT_THAT(document,
                    HasSubstr("| `" + ToUtf8(row.kind.className) + "` | `" + libraries + "` | "));
    }
}

}  // namespace
}  // namespace lumenkit::testing
