// Makes each call of a drawing fail in turn.
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "runtime/memory/surface.h"
#include "tests/support/brief_report.h"
#include "tests/support/placed_label.h"
#include "vlabel/caption_renderer.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr TextView mixedCaption =
    u"|B:1|Title|B:0||CR||before:60|* one |fore:0,128,0|green|CR||size:14||i:1|* two three four "
    u"five|CR|";

LabelScene MixedScene() {
    LabelScene scene;
    scene.caption = mixedCaption;
    scene.bulletPrefix = u"* ";
    scene.bulletIndent = 300;
    scene.wordWrap = true;
    scene.width = 1400;
    scene.font.bold = true;
    scene.foreColor = Rgb(1, 2, 3);
    return scene;
}

// Records messages instead of showing them. `meanwhile` runs while a message is shown.
class Person final : public host::Application, public host::Interaction {
 public:
    Text ExeName() override { return u"lumenkit"; }
    void Beep() override {}
    void MsgBox(TextView message, host::MessageStyle, std::optional<TextView>) override {
        reports.push_back(BriefReport(u"VLABEL", message));
        if (meanwhile) {
            meanwhile();
        }
    }

    std::vector<std::string> reports;
    std::function<void()> meanwhile;
};

// Records for each call of the surface which procedure makes it.
class Tracer final : public ModuleErrors {
 public:
    Tracer(Person& person, const memory::FaultPlan& faults)
        : ModuleErrors(person, person), faults_(faults) {}

    // No procedure of a drawing calls itself, so the second trace of a name is the procedure's end.
    void TraceProc(TextView, TextView procedure, const Object*) override {
        Attribute();
        if (!entered_.empty() && entered_.back() == procedure) {
            entered_.pop_back();
        } else {
            entered_.push_back(procedure);
        }
    }

    void Start() {
        known_ = faults_.Calls();
        makers_.clear();
    }
    /// Returns the procedures that made the calls since Start, in the order of the calls.
    const std::vector<TextView>& Makers() const { return makers_; }
    bool IsBalanced() const { return entered_.empty(); }

 private:
    void Attribute() {
        for (; known_ < faults_.Calls(); ++known_) {
            makers_.push_back(entered_.empty() ? TextView(u"?") : entered_.back());
        }
    }

    const memory::FaultPlan& faults_;
    std::vector<TextView> entered_;
    std::vector<TextView> makers_;
    std::int64_t known_ = 0;
};

// A renderer with a separate surface.
class TracedRenderer {
 public:
    explicit TracedRenderer(const LabelScene& scene)
        : faults_(std::make_shared<memory::FaultPlan>()),
          surface_(faults_, scene.width, scene.height),
          tracer_(person, *faults_),
          module_(tracer_, u"VLABEL"),
          renderer_(module_, surface_, settings) {
        settings.Caption = scene.caption;
        settings.BulletPrefix = scene.bulletPrefix;
        settings.BulletIndent = scene.bulletIndent;
        settings.WordWrap = scene.wordWrap;
        settings.TwipsPerPixelX = 15;
        settings.TwipsPerPixelY = 15;
        surface_.SetForeColor(scene.foreColor);
        surface_.CurrentFont()->SetSize(scene.font.size);
        surface_.CurrentFont()->SetBold(scene.font.bold);
    }

    void Draw() {
        tracer_.Start();
        renderer_.DisplayCaption();
    }
    std::vector<memory::DisplayItem> Drawn() const { return surface_.Drawn().Items(); }
    std::vector<std::string> TakeReports() { return std::exchange(person.reports, {}); }
    memory::FaultPlan& Faults() { return *faults_; }
    const Tracer& Trace() const { return tracer_; }
    CaptionRenderer& Renderer() { return renderer_; }

    CaptionSettings settings;
    Person person;

 private:
    std::shared_ptr<memory::FaultPlan> faults_;
    memory::Surface surface_;
    Tracer tracer_;
    Module module_;
    CaptionRenderer renderer_;
};

std::vector<LabelScene> SweptScenes() {
    std::vector<LabelScene> scenes(3, MixedScene());
    scenes[1].wordWrap = false;
    scenes[2].visibleBottom = 300;
    return scenes;
}

TEST(DrawingFaults, EachFailingCallIsReportedOnceByTheProcedureThatMadeIt) {
    TracedRenderer undisturbed(MixedScene());
    undisturbed.Draw();
    const std::vector<TextView> makers = undisturbed.Trace().Makers();
    ASSERT_GT(makers.size(), 50U);
    const std::set<TextView> procedures(makers.begin(), makers.end());
    EXPECT_THAT(procedures, UnorderedElementsAre(u"DisplayCaption", u"SaveState", u"DisplayText",
                                                 u"StartNewLine", u"ExecuteNextCommand",
                                                 u"DrawBullet", u"RestoreState"));
    for (std::size_t call = 0; call < makers.size(); ++call) {
        TracedRenderer renderer(MixedScene());
        renderer.Faults().FailCall(static_cast<std::int64_t>(call) + 1,
                                   ErrorNumber::InvalidProcedureCall);
        renderer.Draw();
        EXPECT_FALSE(renderer.Faults().IsArmed());
        EXPECT_THAT(renderer.TakeReports(), ElementsAre("error 5 in " + ToUtf8(makers[call])))
            << "call " << call + 1;
        EXPECT_TRUE(renderer.Trace().IsBalanced());

        renderer.Draw();
        EXPECT_THAT(renderer.TakeReports(), IsEmpty());
        EXPECT_EQ(renderer.Drawn(), undisturbed.Drawn()) << "call " << call + 1;
    }
}

TEST(DrawingFaults, FontAndForeColorAreAsBeforeAndTheNextDrawingIsWhole) {
    for (const LabelScene& scene : SweptScenes()) {
        PlacedLabel label;
        label.Placed().StartNew();
        const LabelPicture undisturbed = Draw(label, scene);
        label.SetUp(scene);
        label.Placed().SetShown(true);
        const std::int64_t before = label.Faults().Calls();
        label.Placed().Paint();
        const std::int64_t calls = label.Faults().Calls() - before;
        for (std::int64_t call = 1; call <= calls; ++call) {
            label.SetUp(scene);
            label.Placed().SetShown(true);
            label.Faults().FailCall(call, ErrorNumber::InvalidProcedureCall);
            label.Placed().Paint();
            EXPECT_FALSE(label.Faults().IsArmed());
            const LabelPicture disturbed = label.Picture();
            EXPECT_EQ(disturbed.reports.size(), 1U);
            EXPECT_EQ(disturbed.font, scene.font) << "call " << call;
            EXPECT_EQ(disturbed.foreColor, scene.foreColor) << "call " << call;
            label.Placed().Paint();
            EXPECT_EQ(label.Picture(), undisturbed) << "call " << call;
        }
    }
}

// State that cannot be saved cannot be restored.
TEST(DrawingFaults, NothingIsDrawnWhereTheStateCannotBeSaved) {
    TracedRenderer renderer(MixedScene());
    renderer.Faults().FailCall(u"Font.Size", 1, ErrorNumber::InternalError);
    renderer.Draw();
    EXPECT_THAT(renderer.TakeReports(), ElementsAre("error 51 in SaveState"));
    EXPECT_THAT(renderer.Drawn(), IsEmpty());
}

// While a message box is open, windows are repainted and programs continue.
TEST(DrawingFaults, HostMayPaintAndAssignWhileAReportIsShown) {
    LabelScene scene = MixedScene();
    scene.caption = u"|before:1E39|a|CR|b|size:3000|c";  // compiling and drawing report errors
    TracedRenderer renderer(scene);
    int messages = 0;
    renderer.person.meanwhile = [&] {
        renderer.settings.Caption = Text(1000, u'x');
        renderer.settings.Caption.shrink_to_fit();
        renderer.settings.IsCompiled = false;
        renderer.Renderer().DisplayCaption();
        ++messages;
    };
    renderer.Draw();
    EXPECT_EQ(messages, 3);
    EXPECT_THAT(renderer.TakeReports(),
                ElementsAre("error 6 in CompileCommand", "error 380 in ExecuteNextCommand",
                            "error 9 in ExecuteNextCommand"));
    renderer.person.meanwhile = nullptr;
    renderer.Draw();
    EXPECT_THAT(renderer.TakeReports(), IsEmpty());
    ASSERT_EQ(renderer.Drawn().size(), 2U);
    EXPECT_EQ(std::get<memory::PrintItem>(renderer.Drawn()[1]).text, Text(1000, u'x'));
}

TEST(DrawingFaults, CaptionAssignedWhileACompileErrorIsShownIsCompiledNext) {
    LabelScene scene;
    scene.caption = u"|before:1E39|a";
    TracedRenderer renderer(scene);
    renderer.person.meanwhile = [&] {
        renderer.settings.Caption = u"another";
        renderer.settings.IsCompiled = false;
    };
    renderer.Draw();
    EXPECT_THAT(renderer.TakeReports(),
                ElementsAre("error 6 in CompileCommand", "error 9 in ExecuteNextCommand"));
    EXPECT_FALSE(renderer.settings.IsCompiled);
    renderer.Draw();
    EXPECT_THAT(renderer.TakeReports(), IsEmpty());
    ASSERT_EQ(renderer.Drawn().size(), 2U);
    EXPECT_EQ(std::get<memory::PrintItem>(renderer.Drawn()[1]).text, u"another");
    EXPECT_TRUE(renderer.settings.IsCompiled);
}

}  // namespace

}  // namespace lumenkit::testing
