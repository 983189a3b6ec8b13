// Compares the memo and its engine with their literal models on generated texts and sessions.
#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "runtime/memory/property_bag.h"
#include "tests/model/literal_memo.h"
#include "tests/model/restriction_comparison.h"
#include "tests/support/corpus.h"
#include "tests/support/placed_memo.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {

namespace {

class Generator {
 public:
    explicit Generator(std::uint32_t seed) : engine_(seed) {}

    int Below(int end) { return std::uniform_int_distribution(0, end - 1)(engine_); }
    bool OneIn(int count) { return Below(count) == 0; }

    Text SomeText(int maxPieces) {
        static const std::array<Text, 12> pieces = {u"a",  u"b",   u"word", u" ",
                                                    u" ",  u"   ", u"\r\n", u"\r\n",
                                                    u"\r", u"\n",  u"\t",   u"\U0001F600"};
        Text text;
        for (int count = Below(maxPieces + 1); count > 0; --count) {
            text += pieces.at(static_cast<std::size_t>(Below(static_cast<int>(pieces.size()))));
        }
        return text;
    }

 private:
    std::mt19937 engine_;
};

void ExpectSeen(const std::map<std::string, int>& seen, std::vector<std::string> features) {
    if (!RunsAllRounds()) {
        return;
    }
    for (const std::string& feature : features) {
        EXPECT_TRUE(seen.contains(feature) && seen.at(feature) > 0) << feature;
    }
}

// ---- The engine

TEST(MemoModelTest, TheEngineDoesWhatTheStepsSay) {
    constexpr int texts = 200000;
    Generator generator(TestSeed());
    RestrictionComparison comparison;
    std::map<std::string, int> seen;
    for (int i = 0; i < Rounds(texts); ++i) {
        const Text text = generator.SomeText(30);
        const int maxChars = generator.Below(12);
        const int maxLines = generator.Below(6) + (maxChars == 0 ? 1 : 0);
        const TextLimits limits{static_cast<std::int16_t>(maxChars),
                                static_cast<std::int16_t>(maxLines)};
        const bool apply = generator.OneIn(2);
        ASSERT_EQ(comparison.Difference(
                      {text, limits, apply ? RestrictionMode::Apply : RestrictionMode::Plain}),
                  "");
        const LiteralRestriction& expected = comparison.Literal();
        seen["fits"] += !expected.refused && !expected.trimmed;
        seen["refused"] += expected.refused && apply;
        seen["trimmed"] += expected.trimmed;
        seen["real cuts"] += expected.realCuts;
        seen["several cuts"] += expected.realCuts + expected.blankCuts > 2;
        seen["blank cuts"] += expected.blankCuts;
        seen["searches from behind a cut"] += expected.skippedPositions;
        seen["line breaks overlooked"] += expected.overlookedBreaks;
        seen["positions behind the end"] += expected.lateEnds;
        seen["lines dropped"] += expected.linesDropped;
        seen["pattern matches"] += expected.patternMatches;
    }
    ExpectSeen(seen, {"fits", "refused", "trimmed", "real cuts", "several cuts", "blank cuts",
                      "searches from behind a cut", "line breaks overlooked",
                      "positions behind the end", "lines dropped", "pattern matches"});
}

// The corpus holds the seeds and the findings of the fuzzers.
TEST(MemoModelTest, TheEngineDoesSoOnTheCorpus) {
    RestrictionComparison comparison;
    ForEachCorpusFile("restriction", [&](std::string_view bytes) {
        EXPECT_EQ(comparison.Difference(RestrictionFromBytes(bytes)), "");
    });
}

// ---- The control

// A memo and its model. Each step is done to both.
class Session {
 public:
    Session(Generator& generator, std::map<std::string, int>& seen)
        : generator_(generator), seen_(seen) {
        model_->onEvent = [this](const std::string& name) { ModelHandler(name); };
        StartAnew(std::make_unique<PlacedMemo>());
    }
    ~Session() {
        for (const auto& [feature, count] : model_->seen) {
            seen_[feature] += count;
        }
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void Step();
    void ExpectSame();
    const std::string& Done() const { return done_; }

 private:
    void StartAnew(std::unique_ptr<PlacedMemo> memo);
    void Edit();
    void Configure();
    void ConfigureMaxCharsPerLine();
    void ConfigureMaxLines();
    void ConfigureScrollBars();
    void ConfigureMaxLength();
    void ConfigureLocks();
    void ConfigurePageWidth();
    void Reload();
    void ModelHandler(const std::string& name);
    void Note(const std::string& what) { done_ += what + "\n"; }
    Text Assigned() { return generator_.SomeText(12); }
    Text BarelyTooMuch();

    Generator& generator_;
    std::map<std::string, int>& seen_;
    std::unique_ptr<PlacedMemo> memo_;
    std::unique_ptr<LiteralMemo> model_ = std::make_unique<LiteralMemo>();
    std::array<memory::TextBox*, 4> boxes_{};
    std::string done_;
    // A text that the container assigns once, at the next event with the name `armed_`.
    std::string armed_;
    Text assigned_;
    bool realArmed_ = false;
    bool modelArmed_ = false;
};

void Session::StartAnew(std::unique_ptr<PlacedMemo> memo) {
    memo_ = std::move(memo);
    for (std::int16_t index = 0; index < 4; ++index) {
        boxes_.at(static_cast<std::size_t>(index)) = &memo_->Box(index);
    }
    memo_->Placed().Site().AllowChange(u"Text", model_->canChangeText);
    memo_->Placed().Site().SetEventHandler([this](TextView name, std::span<Value>) {
        if (realArmed_ && ToUtf8(name) == armed_) {
            realArmed_ = false;
            (*memo_)->pLetText(assigned_);
        }
    });
}

void Session::ModelHandler(const std::string& name) {
    if (modelArmed_ && name == armed_) {
        modelArmed_ = false;
        ++model_->seen["assignments from an event"];
        model_->LetText(assigned_);
    }
}

void Session::Step() {
    if (generator_.OneIn(20)) {
        armed_ = std::array{"KeyDown", "KeyPress", "KeyUp", "Change", "Change"}.at(
            static_cast<std::size_t>(generator_.Below(5)));
        assigned_ = Assigned();
        realArmed_ = modelArmed_ = true;
        Note("at " + armed_ + " assign " + Quoted(assigned_));
    }
    if (generator_.OneIn(6)) {
        Configure();
    } else {
        Edit();
    }
}

void Session::Edit() {
    ++model_->seen["edits"];
    if (generator_.OneIn(3)) {
        const int start = generator_.Below(30);
        const int length = generator_.OneIn(3) ? generator_.Below(6) : 0;
        Note("select " + std::to_string(start) + " " + std::to_string(length));
        memo_->Select(start, length);
        model_->Select(start, length);
    }
    if (const int kind = generator_.Below(10); kind < 2) {
        const Text text = generator_.OneIn(8) ? BarelyTooMuch() : generator_.SomeText(8);
        if (generator_.OneIn(3)) {
            Note("select all");
            memo_->Select(0, 10000);
            model_->Select(0, 10000);
        }
        Note("paste " + Quoted(text));
        memo_->Paste(text);
        model_->Paste(text);
    } else if (kind < 3) {
        const Text text = Assigned();
        Note("assign " + Quoted(text));
        (*memo_)->pLetText(text);
        model_->LetText(text);
    } else {
        static const Text keys = u"abcxyz   \r\r\r\b\b\u00E9";
        const char16_t key =
            keys.at(static_cast<std::size_t>(generator_.Below(static_cast<int>(keys.size()))));
        Note("type " + Quoted(Text(1, key)));
        memo_->Type(TextView(&key, 1));
        model_->Type(key);
    }
}

// Returns the maximum number of lines, the last one full and with some extra blanks, and then a
// line break and one more unit.
Text Session::BarelyTooMuch() {
    Text text;
    for (int line = 1; line < model_->m_MaxLines; ++line) {
        text += u"a\r\n";
    }
    text.append(static_cast<std::size_t>(std::max(model_->m_MaxCharsPerLine, 0)), u'b');
    text.append(1 + static_cast<std::size_t>(generator_.Below(4)), u' ');
    text += u"\r\n";
    text += u"x \r\n"[generator_.Below(4)];
    return text;
}

void Session::Configure() {
    switch (generator_.Below(10)) {
        case 0:
        case 1:
            return ConfigureMaxCharsPerLine();
        case 2:
        case 3:
            return ConfigureMaxLines();
        case 4:
        case 5:
            return ConfigureScrollBars();
        case 6:
            return ConfigureMaxLength();
        case 7:
            return ConfigureLocks();
        case 8:
            return ConfigurePageWidth();
        default:
            return Reload();
    }
}

void Session::ConfigureMaxCharsPerLine() {
    const int count = generator_.OneIn(3) ? 0 : generator_.Below(10) - 1;
    Note("MaxCharsPerLine " + std::to_string(count));
    (*memo_)->pLetMaxCharsPerLine(static_cast<std::int16_t>(count));
    model_->LetMaxCharsPerLine(count);
}

void Session::ConfigureMaxLines() {
    const int count = generator_.OneIn(3) ? 0 : generator_.Below(6) - 1;
    Note("MaxLines " + std::to_string(count));
    (*memo_)->pLetMaxLines(static_cast<std::int16_t>(count));
    model_->LetMaxLines(count);
}

void Session::ConfigureScrollBars() {
    const int n = generator_.Below(5);
    Note("ScrollBars " + std::to_string(n));
    (*memo_)->pLetScrollBars(static_cast<host::ScrollBars>(n));
    model_->LetScrollBars(n);
}

void Session::ConfigureMaxLength() {
    const int length = generator_.OneIn(2) ? 0 : 5 + generator_.Below(30);
    Note("MaxLength " + std::to_string(length));
    (*memo_)->pLetMaxLength(length);
    model_->LetMaxLength(length);
}

void Session::ConfigureLocks() {
    const bool locked = generator_.OneIn(6);
    Note(locked ? "Locked" : "not Locked");
    (*memo_)->pLetLocked(locked);
    model_->LetLocked(locked);
    model_->canChangeText = !generator_.OneIn(4);
    Note(model_->canChangeText ? "Text may change" : "Text may not change");
    memo_->Placed().Site().AllowChange(u"Text", model_->canChangeText);
}

void Session::ConfigurePageWidth() {
    const float width = generator_.OneIn(5) ? 1e8F : static_cast<float>(generator_.Below(1000));
    Note("PageWidth " + std::to_string(width));
    const double letter = 10.0 * (*memo_)->pGetFontSize();
    (*memo_)->pLetPageWidth(width);
    model_->LetPageWidth(width, letter);
}

void Session::Reload() {
    Note("reload");
    memory::PropertyBag bag;
    memo_->Placed().Save(bag);
    auto loaded = std::make_unique<LiteralMemo>(model_->Save());
    loaded->seen = std::move(model_->seen);
    loaded->onEvent = model_->onEvent;
    loaded->log = std::move(model_->log);
    loaded->canChangeText = model_->canChangeText;
    ++loaded->seen["reloads"];
    model_ = std::move(loaded);
    memo_->TakeLog();
    model_->log.clear();
    StartAnew(std::make_unique<PlacedMemo>(bag));
}

void Session::ExpectSame() {
    for (std::size_t index = 0; index < 4; ++index) {
        const memory::TextBox& box = *boxes_.at(index);
        const LiteralMemo::Box& expected = model_->boxes.at(index);
        SCOPED_TRACE(index);
        ASSERT_EQ(Quoted(box.Contents()), Quoted(expected.text));
        ASSERT_EQ(box.SelStart(), expected.selStart);
        ASSERT_EQ(box.SelLength(), expected.selLength);
        ASSERT_EQ(box.IsVisible(), expected.visible);
    }
    const VMemoProbe probe = memo_->Probe();
    ASSERT_EQ(Quoted(probe.AcceptedText()), Quoted(model_->m_AcceptedText));
    ASSERT_EQ(probe.Updating(), model_->m_Updating);
    ASSERT_EQ(probe.KeyDownSelStart(), model_->m_KeyDownSelStart);
    ASSERT_EQ(probe.LastKeyCode(), model_->m_LastKeyCode);
    PlacedMemo& memo = *memo_;
    ASSERT_EQ(memo->pGetMaxCharsPerLine(), model_->m_MaxCharsPerLine);
    ASSERT_EQ(memo->pGetMaxLines(), model_->m_MaxLines);
    ASSERT_EQ(static_cast<int>(memo->pGetScrollBars()), model_->m_ScrollBars);
    ASSERT_EQ(memo.TakeLog(), model_->log);
    model_->log.clear();
}

TEST(MemoModelTest, TheControlDoesWhatItsModelDoes) {
    constexpr int sessions = 1250;
    constexpr int steps = 220;
    Generator generator(TestSeed());
    std::map<std::string, int> seen;
    for (int i = 0; i < Rounds(sessions); ++i) {
        Session session(generator, seen);
        for (int step = 0; step < steps; ++step) {
            session.Step();
            session.ExpectSame();
            if (HasFatalFailure()) {
                FAIL() << session.Done();
            }
        }
    }
    ExpectSeen(seen, {"no limits",
                      "accepted edits",
                      "refused edits",
                      "trimmed edits",
                      "trimmed Enters",
                      "refused edits back to the empty text",
                      "refused for the pattern",
                      "plain cuts",
                      "blank cuts",
                      "searches from behind a cut",
                      "line breaks overlooked",
                      "lines dropped",
                      "pattern matches",
                      "assignments that may not change the text",
                      "assignments from an event",
                      "boxes that are missing",
                      "other boxes shown",
                      "edits of a hidden box put right",
                      "edits inside a line break",
                      "keys without room",
                      "pastes cut to the room",
                      "pages too wide",
                      "reloads"});
}

}  // namespace

}  // namespace lumenkit::testing
