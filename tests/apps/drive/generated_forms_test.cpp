// Forms as designers write them, with their controls on the windowless runtime.
#include <string>

#include <gmock/gmock.h>

#include "apps/lumenkit/drive/loaded_form.h"
#include "apps/lumenkit/drive/request.h"
#include "forms/form_error.h"
#include "frame/runtime_error.h"
#include "project/lumenkit_classes.h"
#include "tests/support/form_generator.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::cli {
namespace {

using testing::FormGenerator;
using testing::GeneratedForm;
using ::testing::IsEmpty;
using testing::Rounds;
using testing::RunsAllRounds;
using testing::TestSeed;

TEST(GeneratedForms, RunWithoutAMessageAndAreSavedUnchanged) {
    FormGenerator generator(TestSeed());
    for (int i = 0; i < Rounds(60); ++i) {
        const GeneratedForm form = generator.Form();
        SCOPED_TRACE(form.form);
        for (const bool userMode : {true, false}) {
            memory::Form surroundings(lumenkitClasses);
            LoadedForm loaded(form.Parse(), lumenkitClasses);
            const auto living = loaded.Start(surroundings, userMode);
            EXPECT_EQ(living.size(), loaded.Ids().size());
            EXPECT_THAT(surroundings.GetLog().Messages(), IsEmpty());
            loaded.Update();
            EXPECT_EQ(loaded.Document().Write().form, form.form);
        }
    }
}

// No damage ends the program.
TEST(GeneratedForms, DamagedOnesRunOrAreRefused) {
    FormGenerator generator(TestSeed());
    int started = 0;
    const int rounds = Rounds(200);
    for (int i = 0; i < rounds; ++i) {
        const GeneratedForm form = generator.Damaged(generator.Form());
        SCOPED_TRACE(form.form);
        memory::Form surroundings(lumenkitClasses);
        try {
            LoadedForm loaded(form.Parse(), lumenkitClasses);
            const auto living = loaded.Start(surroundings, true);
            loaded.Update();
            ++started;
        } catch (const forms::FormError& error) {
            EXPECT_GT(error.Place().line, 0U);
        } catch (const BadRequest&) {
            continue;  // two controls have the same name
        } catch (const RuntimeError& error) {
            EXPECT_GT(error.Number(), 0);  // a place or a size
        }
    }
    if (RunsAllRounds()) {
        EXPECT_GT(started, rounds / 4);
    }
}

}  // namespace
}  // namespace lumenkit::cli
