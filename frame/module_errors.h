// The error reporter and the trace hook that every procedure of the controls calls.
#pragma once

#include <cstdint>

#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "frame/text.h"

namespace lumenkit {

class Object;

class ModuleErrors {
 public:
    /// Both arguments must outlive the object.
    ModuleErrors(host::Application& application, host::Interaction& interaction)
        : application_(application), interaction_(interaction) {}
    virtual ~ModuleErrors() = default;
    ModuleErrors(const ModuleErrors&) = delete;
    ModuleErrors& operator=(const ModuleErrors&) = delete;

    /// Shows an error to the user: a beep, then a critical-stop message titled "LUMENKIT ERROR".
    /// Returns the recovery code, which is always 0: abandon the procedure. `formObject` is never
    /// read; callers pass null. An error while reporting, such as a failure to get the
    /// application's name, propagates to the caller.
    std::int16_t ReportError(TextView moduleFileName, TextView procedureName,
                             const Object* formObject, std::int32_t errorNumber,
                             std::int32_t errorLine, TextView description);

    /// Called on entry to and exit from every procedure. Override it to record a trace; the base
    /// implementation does nothing.
    virtual void TraceProc(TextView /*moduleFileName*/, TextView /*procedureName*/,
                           const Object* /*formObject*/) {}

 private:
    host::Application& application_;
    host::Interaction& interaction_;
};

}  // namespace lumenkit
