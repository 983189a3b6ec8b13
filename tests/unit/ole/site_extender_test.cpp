#include "runtime/ole/control/site_extender.h"

#include "frame/runtime_error.h"
#include "runtime/ole/control/active_object.h"
#include "runtime/ole/control/data_object.h"
#include "runtime/ole/control/in_place_object.h"
#include "runtime/ole/control/ole_object.h"
#include "runtime/ole/objects/root.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

// A control in a container, with access to its core.
class Probe final : public Root {
 public:
    Probe(Component& component, const ClassDescriptor& type)
        : Root(component, nullptr),
          data_(Controlling(), *this, core_),
          active_(Controlling(), *this, core_),
          core_(component, type, Controlling(), *this, {.data = data_, .active = active_}) {}

    Object& Extender() { return core_.GetExtender(); }

 private:
    IUnknown* Find(REFIID iid) noexcept override {
        if (iid == IID_IOleObject) {
            return &oleObject_;
        }
        return iid == IID_IOleInPlaceObject ? &inPlaceObject_ : nullptr;
    }
    void Released() noexcept override { core_.Abandon(); }

    DataObject data_;
    ActiveObject active_;
    ControlCore core_;
    OleObject oleObject_{core_};
    InPlaceObject inPlaceObject_{core_};
};

class SiteExtenderTest : public OleTest {
 protected:
    void SetUp() override {
        site_.hasExtender = false;
        probe_ =
            new Probe(Component::Of(lumenkitClasses), *lumenkitClasses.Find(u"lumenkit.VLabel"));
        site_.Take(Adopted<IUnknown>(probe_));
    }
    void TearDown() override {
        site_.LetGo();
        OleTest::TearDown();
    }
    Value Call(TextView name, InvokeKind kind, std::vector<Value> arguments = {}) {
        const auto member = probe_->Extender().FindMember(name);
        EXPECT_TRUE(member.has_value());
        return probe_->Extender().Invoke(*member, kind, arguments);
    }
    float Length(TextView name) { return ToSingle(Call(name, InvokeKind::Get)); }
    void Put(TextView name, const Value& value) { Call(name, InvokeKind::Let, {value}); }
    void Activate() {
        EXPECT_EQ(site_.DoVerb(OLEIVERB_SHOW), S_OK);
        site_.Log().Take();
    }
    HWND Window() {
        HWND window = nullptr;
        site_.As<IOleInPlaceObject>()->GetWindow(&window);
        return window;
    }

    container::Form form_;
    container::Site site_{form_};
    Probe* probe_ = nullptr;
};

TEST_F(SiteExtenderTest, BeforeActivationOnlyTheSizeIsKnown) {
    EXPECT_EQ(ToText(Call(u"Name", InvokeKind::Get)), u"probe");
    EXPECT_EQ(Length(u"Left"), 0.0F);
    EXPECT_EQ(Length(u"Top"), 0.0F);
    EXPECT_EQ(Length(u"Width"), 3000.0F);
    EXPECT_EQ(Length(u"Height"), 1500.0F);
    EXPECT_EQ(Call(u"Visible", InvokeKind::Get), Value(false));
    Put(u"Visible", true);
    EXPECT_EQ(Call(u"Visible", InvokeKind::Get), Value(false));
    Put(u"Width", 4500.0F);
    EXPECT_EQ(Length(u"Width"), 4500.0F);
    EXPECT_EQ(Length(u"Height"), 1500.0F);
    Put(u"Left", 600.0F);  // no container can be asked yet
    EXPECT_EQ(Length(u"Left"), 0.0F);
    EXPECT_EQ(Length(u"Width"), 4500.0F);
}

TEST_F(SiteExtenderTest, AnActiveControlAsksItsContainer) {
    Activate();
    EXPECT_EQ(ToText(Call(u"name", InvokeKind::Get)), u"probe");
    EXPECT_EQ(Length(u"Left"), 150.0F);
    EXPECT_EQ(Length(u"Top"), 300.0F);
    EXPECT_EQ(Length(u"Width"), 3000.0F);
    EXPECT_EQ(Length(u"Height"), 1500.0F);
    Put(u"Left", 300.0F);
    Put(u"Top", 0.0F);
    Put(u"Width", 1500.0F);
    Put(u"Height", 750.0F);
    EXPECT_EQ(site_.Log().Take(),
              (Lines{"OnPosRectChange 20,20,220,120", "OnPosRectChange 20,0,220,100",
                     "OnPosRectChange 20,0,120,100", "OnPosRectChange 20,0,120,50"}));
    EXPECT_EQ(Length(u"Left"), 300.0F);
    EXPECT_EQ(Length(u"Height"), 750.0F);
    Call(u"Move", InvokeKind::Call, {Value(15.0F)});
    EXPECT_EQ(site_.Log().Take(), Lines{"OnPosRectChange 1,0,101,50"});
    Call(u"Move", InvokeKind::Call, {Value(0.0F), Value(30.0F), Value(300.0F), Value(450.0F)});
    EXPECT_EQ(site_.Log().Take(), Lines{"OnPosRectChange 0,2,20,32"});
    site_.allowsMoving = false;
    Put(u"Left", 900.0F);
    EXPECT_EQ(Length(u"Left"), 0.0F);
}

TEST_F(SiteExtenderTest, VisibleIsTheWindows) {
    Activate();
    EXPECT_EQ(Call(u"Visible", InvokeKind::Get), Value(true));
    Put(u"Visible", false);
    EXPECT_FALSE(IsWindowVisible(Window()));
    EXPECT_EQ(Call(u"Visible", InvokeKind::Get), Value(false));
    Put(u"Visible", true);
    EXPECT_TRUE(IsWindowVisible(Window()));
    EXPECT_EQ(Call(u"Visible", InvokeKind::Get), Value(true));
}

TEST_F(SiteExtenderTest, RefusesWhatItDoesNotHave) {
    for (const bool active : {false, true}) {
        if (active) {
            Activate();
        }
        EXPECT_EQ(probe_->Extender().FindMember(u"Tag"), std::nullopt);
        EXPECT_EQ(probe_->Extender().FindMember(u""), std::nullopt);
        EXPECT_THROW(probe_->Extender().Invoke(99, InvokeKind::Get, {}), RuntimeError);
        EXPECT_THROW(Put(u"Name", Text(u"other")), RuntimeError);
        EXPECT_THROW(Put(u"Width", -15.0F), RuntimeError);
        EXPECT_THROW(Put(u"Left", Text(u"far")), RuntimeError);
        EXPECT_THROW(Call(u"Move", InvokeKind::Call), RuntimeError);
        EXPECT_EQ(Length(u"Width"), 3000.0F);
    }
}

}  // namespace
}  // namespace lumenkit::ole
