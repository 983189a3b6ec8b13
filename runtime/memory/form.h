#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "frame/class_table.h"
#include "frame/color.h"
#include "frame/text.h"
#include "runtime/memory/application.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/focus.h"
#include "runtime/memory/font.h"
#include "runtime/memory/interaction.h"
#include "runtime/memory/log.h"
#include "runtime/memory/screen.h"

namespace lumenkit::memory {

/// What the controls of one container share: the screen, the surroundings, the classes, the log and
/// the planned faults. Must outlive the controls and pages on it.
class Form {
 public:
    /// What `classes` refers to must outlive the form.
    explicit Form(const ClassTable& classes);
    ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    FaultPlan& Faults() { return *faults_; }
    const std::shared_ptr<FaultPlan>& SharedFaults() const { return faults_; }
    Log& GetLog() { return log_; }
    Screen& GetScreen() { return screen_; }
    Application& GetApplication() { return application_; }
    Interaction& GetInteraction() { return interaction_; }
    Focus& GetFocus() { return focus_; }

    // What controls see as Ambient. A change is not announced to them.
    Color AmbientBackColor() const { return ambientBackColor_; }
    void SetAmbientBackColor(Color color) { ambientBackColor_ = color; }
    /// "MS Sans Serif", 10 points, unless changed; controls get copies.
    Font& AmbientFont() { return *ambientFont_; }

    const ClassTable& Classes() const { return classes_; }
    /// The class named "VLabel" or "lumenkit.VLabel", without regard to case. Throws
    /// std::out_of_range when there is none.
    const ClassDescriptor& FindClass(TextView name) const;

    /// A new font, regular weight. Raises 380 for a size that Font refuses.
    std::shared_ptr<Font> NewFont(TextView name, float points) const;
    /// A name for a new control: the class's and a number counted from 1, "VLabel1".
    Text NewName(TextView className);
    std::int32_t NewWindowHandle() { return nextWindowHandle_++; }

 private:
    ClassTable classes_;
    std::shared_ptr<FaultPlan> faults_ = std::make_shared<FaultPlan>();
    Log log_;
    Screen screen_{*faults_};
    Application application_{*faults_};
    Interaction interaction_{*faults_, log_};
    Focus focus_;
    Color ambientBackColor_ = Color::ButtonFace;
    std::shared_ptr<Font> ambientFont_;
    std::map<Text, std::int32_t, std::less<>> named_;
    std::int32_t nextWindowHandle_ = 0x10000;
};

}  // namespace lumenkit::memory
