// Runs every operation of a container or a user on the controls and the page, and makes each call
// of the contract and each allocation in it fail in turn. An error must be reported once, or be
// raised by a procedure without a trap. The operation must work the next time, and nothing may
// leak.
#include <cstdint>
#include <functional>
#include <memory>
#include <new>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/hosted_page.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"
#include "runtime/memory/user.h"
#include "tests/support/allocation_counter.h"

namespace lumenkit::testing {

namespace {

// A form with the object under test: a control, or a page together with the control that it edits.
class Stage {
 public:
    explicit Stage(const ClassDescriptor& type);

    memory::Form& Form() { return form_; }
    memory::HostedControl& Control() { return *control_; }
    memory::HostedPage& Page() { return *page_; }
    Object& Automation() { return page_ ? page_->Automation() : control_->Automation(); }
    memory::Constituents& Parts() { return page_ ? page_->Parts() : control_->Parts(); }
    memory::User& User() { return user_; }
    const ClassDescriptor& Type() const { return type_; }

 private:
    memory::Form form_{lumenkitClasses};
    const ClassDescriptor& type_;
    std::unique_ptr<memory::HostedControl> control_;
    std::unique_ptr<memory::HostedPage> page_;
    memory::User user_{form_};
};

// Stores the properties of saved controls of all classes. Each control reads its own.
void FillBag(memory::PropertyBag& bag, const memory::Form& form) {
    bag.Store(u"Caption",
              Text(u"|B:1|Title|B:0||CR||before:60|* one two |fore:0,128,0|three|u:1|"));
    bag.Store(u"BulletPrefix", Text(u"* "));
    bag.Store(u"BulletIndent", std::int16_t{300});
    bag.Store(u"WordWrap", true);
    bag.Store(u"Font", form.NewFont(u"Arial", 12));
    bag.Store(u"Text", Text(u"abc\r\ndef"));
    bag.Store(u"MaxCharsPerLine", std::int16_t{4});
    bag.Store(u"MaxLines", std::int16_t{3});
    bag.Store(u"ScrollBars", std::int32_t{2});
    bag.Store(u"Contents", Text(u"1;The first one|2;The second one|3;The third one"));
    bag.Store(u"ListIndex", std::int16_t{1});
    bag.Store(u"TopMargin", 100.0F);
}

Stage::Stage(const ClassDescriptor& type) : type_(type) {
    const bool isPage = type.kind == ClassKind::PropertyPage;
    memory::PropertyBag bag;
    FillBag(bag, form_);
    const memory::Placing placing = {.userMode = !isPage, .width = 20000, .height = 20000};
    const ClassDescriptor& placed = isPage ? form_.FindClass(u"VLabel") : type;
    control_ = memory::PlaceControl(form_, placed.name, placing, &bag);
    control_->Paint();
    if (isPage) {
        page_ = std::make_unique<memory::HostedPage>(form_, type);
        page_->Select({control_.get()});
    }
    form_.GetLog().Clear();
}

struct Operation {
    std::string name;
    std::function<void(Stage&)> run;
};

using Operations = std::vector<Operation>;

// ---- Operations

Value ArgumentFor(Stage& stage, ValueType type, TextView member) {
    switch (type) {
        case ValueType::Integer:
            return static_cast<std::int16_t>(member == u"ListIndex" ? 2 : 1);
        case ValueType::Long:
            return std::int32_t{3};
        case ValueType::MousePointer:
        case ValueType::ScrollBars:
            return std::int32_t{1};
        case ValueType::Single:
            return 150.5F;
        case ValueType::Boolean:
            return false;
        case ValueType::Color:
            return std::int32_t{0x00AABBCC};
        case ValueType::Font:
            return stage.Form().NewFont(u"A font with quite a long name", 14);
        case ValueType::None:
        case ValueType::String:
        case ValueType::Variant:
            break;
    }
    return Text(member == u"Text" && stage.Type().name == u"VOptList" ? u"3"
                : member == u"GetProperty"                            ? u"Width"
                                           : u"first line, too long|CR|second;line\r\n|4;fourth");
}

std::vector<Value> ArgumentsOf(Stage& stage, const Member& member) {
    std::vector<Value> arguments;
    for (const Parameter& parameter : member.parameters) {
        arguments.push_back(ArgumentFor(stage, parameter.type, member.name));
    }
    return arguments;
}

void AddMember(Operations& operations, const Member& member) {
    const std::string name = ToUtf8(member.name);
    const auto add = [&](const char* how, InvokeKind kind, bool takesValue) {
        operations.push_back({how + name, [&member, kind, takesValue](Stage& stage) {
                                  std::vector<Value> arguments = ArgumentsOf(stage, member);
                                  if (takesValue) {
                                      arguments.push_back(
                                          ArgumentFor(stage, member.type, member.name));
                                  }
                                  stage.Automation().Invoke(member.identifier, kind, arguments);
                              }});
    };
    if (member.read != nullptr) {
        add("get ", InvokeKind::Get, false);
    }
    if (member.assign != nullptr) {
        add("assign ", member.assignment == Assignment::Set ? InvokeKind::Set : InvokeKind::Let,
            true);
    }
    if (member.call != nullptr) {
        add("call ", InvokeKind::Call, false);
    }
}

void UseMouse(Stage& stage, memory::Element& part) {
    for (const auto action :
         {memory::MouseAction::Down, memory::MouseAction::Move, memory::MouseAction::Up}) {
        stage.User().Mouse(part, action, {.button = 1, .x = 10, .y = 20});
    }
}

void UsePart(Stage& stage, memory::Element& part) {
    memory::User& user = stage.User();
    if (auto* const box = dynamic_cast<memory::TextBox*>(&part)) {
        user.Select(*box, 1, 1);
        user.Type(*box, u"x\r");
        user.Paste(*box, u"1");
    }
    if (auto* const bar = dynamic_cast<memory::ScrollBar*>(&part)) {
        user.Scroll(*bar, 30);
    }
    user.Click(part);
    user.DblClick(part);
    UseMouse(stage, part);
    user.LeaveFocus();
}

void AddParts(Operations& operations, const ClassDescriptor& type) {
    Stage stage(type);
    for (const memory::Element* const part : stage.Parts().All()) {
        const Text name = part->FullName();
        operations.push_back({"use " + ToUtf8(name), [name](Stage& used) {
                                  if (memory::Element* const found = used.Parts().Find(name)) {
                                      UsePart(used, *found);
                                  }
                              }});
    }
}

// The control reports an error and the runtime raises it too: one failure.
void Save(Stage& stage) {
    const memory::Log& log = stage.Form().GetLog();
    try {
        stage.Control().Save();
        EXPECT_TRUE(log.Messages().empty()) << "a failed save has succeeded";
    } catch (...) {
        if (log.Messages().empty()) {
            throw;
        }
    }
}

void AddControlEvents(Operations& operations) {
    operations.push_back({"start a new one", [](Stage& stage) {
                              memory::HostedControl(stage.Form(), stage.Type()).StartNew();
                          }});
    operations.push_back({"start a saved one", [](Stage& stage) {
                              memory::PropertyBag bag;
                              FillBag(bag, stage.Form());
                              memory::HostedControl(stage.Form(), stage.Type()).StartSaved(bag);
                          }});
    operations.push_back({"save", Save});
    operations.push_back({"resize", [](Stage& stage) {
                              memory::HostedControl& control = stage.Control();
                              const float width = control.Drawing().CurrentWidth();
                              control.Resize(width - 10, 900);
                          }});
    operations.push_back({"show", [](Stage& stage) {
                              stage.Control().SetShown(false);
                              stage.Control().SetShown(true);
                          }});
    operations.push_back({"paint", [](Stage& stage) { stage.Control().Paint(); }});
    operations.push_back({"click", [](Stage& stage) { memory::User::Click(stage.Control()); }});
    operations.push_back(
        {"double-click", [](Stage& stage) { memory::User::DblClick(stage.Control()); }});
    for (const auto& [name, action] : {std::pair("mouse down", memory::MouseAction::Down),
                                       std::pair("mouse move", memory::MouseAction::Move),
                                       std::pair("mouse up", memory::MouseAction::Up)}) {
        operations.push_back({name, [kind = action](Stage& stage) {
                                  memory::User::Mouse(stage.Control(), kind, {.button = 1});
                              }});
    }
}

void AddPageEvents(Operations& operations) {
    operations.push_back(
        {"make a page", [](Stage& stage) { memory::HostedPage(stage.Form(), stage.Type()); }});
    operations.push_back({"select", [](Stage& stage) { stage.Page().Select({&stage.Control()}); }});
    operations.push_back({"apply", [](Stage& stage) { stage.Page().Apply(); }});
}

Operations OperationsOf(const ClassDescriptor& type) {
    Operations operations;
    for (const Member& member : type.interfaceTable->members) {
        AddMember(operations, member);
    }
    type.kind == ClassKind::PropertyPage ? AddPageEvents(operations) : AddControlEvents(operations);
    AddParts(operations, type);
    return operations;
}

// ---- Outcomes

struct Outcome {
    std::int64_t count = 0;  // calls or allocations in the operation
    bool raised = false;
    bool fired = false;
    std::size_t reports = 0;
    bool isUsable = false;
};

// Makes one call of the contract or one allocation fail: the `failing`-th, or none for 0.
class Fault {
 public:
    virtual ~Fault() = default;
    virtual std::int64_t Count(Stage& stage) const = 0;
    virtual void Arm(Stage& stage, std::int64_t failing) const = 0;
    /// Cancels a failure that is still to come. Returns whether it has happened.
    virtual bool Disarm(Stage& stage) const = 0;
};

class ContractFault final : public Fault {
 public:
    std::int64_t Count(Stage& stage) const override { return stage.Form().Faults().Calls(); }
    void Arm(Stage& stage, std::int64_t failing) const override {
        if (failing > 0) {
            stage.Form().Faults().FailCall(failing, ErrorNumber::OutOfMemory);
        }
    }
    bool Disarm(Stage& stage) const override {
        const bool fired = !stage.Form().Faults().IsArmed();
        stage.Form().Faults().Clear();
        return fired;
    }
};

class AllocationFault final : public Fault {
 public:
    std::int64_t Count(Stage& /*stage*/) const override { return AllocationCount(); }
    void Arm(Stage& /*stage*/, std::int64_t failing) const override { FailAllocation(failing); }
    bool Disarm(Stage& /*stage*/) const override {
        const bool fired = !AllocationFailurePending();
        FailAllocation(0);
        return fired;
    }
};

bool Raises(Stage& stage, const Operation& operation) {
    try {
        operation.run(stage);
    } catch (const RuntimeError& error) {
        return error.Number() == static_cast<std::int32_t>(ErrorNumber::OutOfMemory);
    } catch (const std::bad_alloc&) {
        return true;
    }
    return false;
}

// Counts the reports of "out of memory".
std::size_t ReportsIn(const memory::Log& log) {
    std::size_t reports = 0;
    for (const memory::ShownMessage* const message : log.Messages()) {
        reports += message->text.find(u"Error Code =7\r\n") != Text::npos ? 1 : 0;
    }
    return reports;
}

// Whether the operation works when it is repeated, and resizing, painting and saving after it.
bool WorksOn(Stage& stage, const Operation& operation) {
    stage.Form().GetLog().Clear();
    operation.run(stage);
    stage.Control().Resize(20000, 15000);
    stage.Control().Paint();
    stage.Control().Save();
    return ReportsIn(stage.Form().GetLog()) == 0;
}

Outcome RunWith(const ClassDescriptor& type, const Operation& operation, const Fault& fault,
                std::int64_t failing) {
    Outcome outcome;
    Stage stage(type);
    const std::int64_t before = fault.Count(stage);
    fault.Arm(stage, failing);
    outcome.raised = Raises(stage, operation);
    outcome.fired = failing > 0 && fault.Disarm(stage);
    outcome.count = fault.Count(stage) - before;
    outcome.reports = ReportsIn(stage.Form().GetLog());
    outcome.isUsable = WorksOn(stage, operation);
    return outcome;
}

class FaultSweep : public ::testing::TestWithParam<const ClassDescriptor*> {
 protected:
    // Makes each fault of one kind happen in each operation. Returns the operations that raise an
    // error.
    static std::set<std::string> Sweep(const Fault& fault);
    // The operations with a procedure without a trap, and those in which the constituents are made.
    static std::set<std::string> Untrapped();
};

std::set<std::string> FaultSweep::Untrapped() {
    const TextView name = GetParam()->name;
    if (name == u"VLabel") {
        return {
            "assign AutoSize",     "assign BackColor", "assign BackStyle", "assign BulletIndent",
            "assign BulletPrefix", "assign Caption",   "assign WordWrap",  "click",
            "double-click"};
    }
    if (name == u"VMemo") {
        return {"assign MaxCharsPerLine", "assign MaxLines", "start a new one", "start a saved one",
                "use Text1(2)"};
    }
    if (name == u"VOptList") {
        return {"start a new one", "start a saved one", "use Option1(0)", "use Option1(2)"};
    }
    return {"apply",          "make a page",         "select",
            "use HScroll1",   "use VScroll1",        "use chkWordWrap",
            "use txtCaption", "use txtBulletIndent", "use txtBulletPrefix"};
}

std::set<std::string> FaultSweep::Sweep(const Fault& fault) {
    std::set<std::string> raising;
    std::int64_t faults = 0;
    for (const Operation& operation : OperationsOf(*GetParam())) {
        SCOPED_TRACE(operation.name);
        const Outcome whole = RunWith(*GetParam(), operation, fault, 0);
        EXPECT_EQ(whole.reports, 0U) << "the operation itself is in order";
        EXPECT_FALSE(whole.raised);
        faults += whole.count;
        for (std::int64_t failing = 1; failing <= whole.count; ++failing) {
            const std::int64_t live = LiveAllocations();
            const Outcome outcome = RunWith(*GetParam(), operation, fault, failing);
            EXPECT_EQ(LiveAllocations(), live) << "leak at " << failing;
            EXPECT_TRUE(outcome.fired) << failing;
            EXPECT_TRUE(outcome.isUsable) << failing;
            EXPECT_EQ(outcome.reports + (outcome.raised ? 1 : 0), 1U)
                << failing << ": " << outcome.reports << " reports, raised: " << outcome.raised;
            if (outcome.raised) {
                raising.insert(operation.name);
            }
        }
    }
    EXPECT_GT(faults, 100);
    return raising;
}

TEST_P(FaultSweep, EachCallOfTheContract) {
    EXPECT_EQ(Sweep(ContractFault()), Untrapped());
}

TEST_P(FaultSweep, EachAllocation) {
    Sweep(AllocationFault());
}

TEST_P(FaultSweep, LeavesNoEventOut) {
    if (GetParam()->eventTable == nullptr) {
        return;
    }
    std::set<Text> raised;
    for (const Operation& operation : OperationsOf(*GetParam())) {
        Stage stage(*GetParam());
        operation.run(stage);
        for (const memory::RaisedEvent* const event : stage.Form().GetLog().Events()) {
            raised.insert(event->name);
        }
    }
    std::set<Text> all;
    for (const Event& event : GetParam()->eventTable->events) {
        if (event.name != u"Validate") {  // declared, but never raised
            all.emplace(event.name);
        }
    }
    EXPECT_EQ(raised, all);
}

std::vector<const ClassDescriptor*> AllClasses() {
    std::vector<const ClassDescriptor*> classes;
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        classes.push_back(&type);
    }
    return classes;
}

INSTANTIATE_TEST_SUITE_P(Classes, FaultSweep, ::testing::ValuesIn(AllClasses()),
                         [](const auto& type) { return ToUtf8(type.param->name); });

TEST(ValueThatCannotBeCopied, LeavesNothingBehind) {
    const Value value = Text(100, u'x');
    const std::int64_t live = LiveAllocations();
    FailAllocation(1);
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): copying is what throws
    EXPECT_THROW(const Value copy(value), std::bad_alloc);
    FailAllocation(0);
    EXPECT_EQ(LiveAllocations(), live);
}

}  // namespace

}  // namespace lumenkit::testing
