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

/// The shared objects of the controls in one container: the screen, the ambient properties, the
/// classes, the log and the planned faults. It must outlive its controls and pages.
class Form {
 public:
    /// The data that `classes` refers to must outlive the form.
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

    // The ambient properties. Changes are not announced to the controls.
    Color AmbientBackColor() const { return ambientBackColor_; }
    void SetAmbientBackColor(Color color) { ambientBackColor_ = color; }
    /// Initially "MS Sans Serif", 10 points; controls get copies.
    Font& AmbientFont() { return *ambientFont_; }

    const ClassTable& Classes() const { return classes_; }
    /// Returns the class named "VLabel" or "lumenkit.VLabel", compared without regard to case.
    /// Throws std::out_of_range when there is none.
    const ClassDescriptor& FindClass(TextView name) const;

    /// Creates a font of regular weight. Raises 380 for a size that Font does not accept.
    std::shared_ptr<Font> NewFont(TextView name, float points) const;
    /// Returns a name for a new control: the name of the class and a number counted from 1,
    /// "VLabel1".
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
