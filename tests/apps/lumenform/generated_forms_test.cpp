// Forms as designers write them, in the designer and as they run.
#include <QImage>
#include <string>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/form_generator.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {
namespace {

using lumenform::FormView;
using lumenform::Mode;
using ::testing::IsEmpty;

QImage PictureOf(const GeneratedForm& form) {
    const LoadedView loaded(form.Parse());
    return loaded.view->grab().toImage();
}

TEST(GeneratedForms, ThePictureDoesNotDependOnTheScaleMode) {
    const std::uint32_t seed = TestSeed();
    // The units matter to lines only, so some forms must have one.
    int withLine = 0;
    const int fewest = RunsAllRounds() ? 2 : 0;
    constexpr int most = 300;
    for (int i = 0; i < Rounds(12) || (withLine < fewest && i < most); ++i) {
        const auto form = [&](int mode) {
            return FormGenerator(seed + static_cast<std::uint32_t>(i))
                .Form({.scaleMode = mode, .companion = CompanionState::Present});
        };
        const GeneratedForm twips = form(1);
        const QImage expected = PictureOf(twips);
        const int mode = i % scaleModes == 1 ? 0 : i % scaleModes;
        SCOPED_TRACE(form(mode).form);
        ASSERT_NE(form(mode).form, twips.form);
        EXPECT_EQ(PictureOf(form(mode)), expected) << "scale mode " << mode;
        withLine += twips.form.find("VB.Line") != std::string::npos ? 1 : 0;
    }
    EXPECT_GE(withLine, fewest);
}

TEST(GeneratedForms, OpenWithoutAMessageAndAreSavedUnchanged) {
    FormGenerator generator(TestSeed());
    for (int i = 0; i < Rounds(30); ++i) {
        const GeneratedForm form = generator.Form();
        SCOPED_TRACE(form.form);
        for (const Mode mode : {Mode::Run, Mode::Design}) {
            LoadedView loaded(form.Parse(), mode);
            loaded.view->grab();
            QCoreApplication::sendPostedEvents();
            EXPECT_THAT(loaded.surface.interaction.said, IsEmpty());
            EXPECT_THAT(loaded.surface.errors, IsEmpty());
            EXPECT_EQ(loaded.document.Warnings().empty(), form.IsSound());
            EXPECT_EQ(loaded.Saved(), form.form);
        }
    }
}

// No damage ends the program.
TEST(GeneratedForms, DamagedOnesOpenOrAreRefused) {
    FormGenerator generator(TestSeed());
    int opened = 0;
    const int rounds = Rounds(60);
    for (int i = 0; i < rounds; ++i) {
        const GeneratedForm form = generator.Damaged(generator.Form());
        SCOPED_TRACE(form.form);
        for (const Mode mode : {Mode::Run, Mode::Design}) {
            const Surface surface;
            try {
                forms::Document document = form.Parse();
                FormView view(surface.context, document, mode);
                view.grab();
                view.Save();
                document.Write();
                ++opened;
            } catch (const forms::FormError& error) {
                EXPECT_GT(error.Place().line, 0U) << error.what();
            }
        }
    }
    if (RunsAllRounds()) {
        EXPECT_GT(opened, rounds / 4);
    }
}

}  // namespace
}  // namespace lumenkit::testing
