// The two routines behind every procedure of the controls: the error reporter and the trace hook.
#pragma once

#include <cstdint>

#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "frame/text.h"

namespace lumenkit {

class Object;

class ModuleErrors {
 public:
    /// Both facilities must outlive the object.
    ModuleErrors(host::Application& application, host::Interaction& interaction)
        : application_(application), interaction_(interaction) {}
    virtual ~ModuleErrors() = default;
    ModuleErrors(const ModuleErrors&) = delete;
    ModuleErrors& operator=(const ModuleErrors&) = delete;

    /// Shows an error to the person at the screen: a beep, then a critical-stop message titled
    /// "LUMENKIT ERROR". Returns the recovery code, which is always 0: give the procedure up.
    /// `formObject` is never read; callers pass nothing. What goes wrong while reporting (the
    /// application's name cannot be had, say) is raised to the caller.
    std::int16_t ReportError(TextView moduleFileName, TextView procedureName,
                             const Object* formObject, std::int32_t errorNumber,
                             std::int32_t errorLine, TextView description);

    /// Called on entry to and exit from every procedure; the one place where a trace of them could
    /// be recorded. Does nothing.
    virtual void TraceProc(TextView /*moduleFileName*/, TextView /*procedureName*/,
                           const Object* /*formObject*/) {}

 private:
    host::Application& application_;
    host::Interaction& interaction_;
};

}  // namespace lumenkit
