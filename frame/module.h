// The error convention that every procedure of a control follows.
//
// Each procedure calls the trace hook on entry, runs its body in a trap and calls the trace hook on
// exit. An error in the body is reported and swallowed: the rest of the body does not run, and the
// caller gets the result assigned so far.
//
//     void VLabel::pLetForeColor(Color color) {
//         module_.Procedure(u"pLetForeColor", [&] { ... });
//     }
//     bool VLabel::pGetEnabled() {
//         return module_.Function<bool>(u"pGetEnabled", [&](bool& result) { result = ...; });
//     }
#pragma once

#include <cassert>
#include <cstddef>
#include <utility>

#include "frame/module_errors.h"
#include "frame/runtime_error.h"
#include "frame/text.h"

namespace lumenkit {

/// Turns the convention on. When it is false, errors propagate to the caller.
inline constexpr bool errorTrapping = true;

/// The name of a procedure in the source. Its length is computed at compile time, because each
/// procedure passes it to the trace hook twice.
class ProcedureName {
 public:
    template <std::size_t size>
    consteval ProcedureName(const char16_t (&name)[size])  // NOLINT(*-explicit-*, *-c-arrays)
        : name_(&name[0], size - 1) {}

    operator TextView() const { return name_; }  // NOLINT(*-explicit-*)

 private:
    TextView name_;
};

/// One source module of a control, with the name that appears in its error reports.
template <bool trapping>
class BasicModule {
 public:
    /// `errors` must outlive the module; `fileName` must be a literal, such as u"VLABEL".
    BasicModule(ModuleErrors& errors, TextView fileName) : errors_(errors), fileName_(fileName) {}

    /// Runs `body()` as the procedure `name`. Also reports running out of memory, as 7, and
    /// exceptions other than RuntimeError, as 51.
    template <typename Body>
    void Procedure(ProcedureName name, Body&& body) const {
        errors_.TraceProc(fileName_, name, nullptr);
        if constexpr (trapping) {
            Trap(name, std::forward<Body>(body));
        } else {
            std::forward<Body>(body)();
        }
        errors_.TraceProc(fileName_, name, nullptr);
    }

    /// Runs `body(result)` as the function `name` and returns `result`, which is initialised to the
    /// default value of its type.
    template <typename Result, typename Body>
    Result Function(ProcedureName name, Body&& body) const {
        Result result{};
        Procedure(name, [&] { std::forward<Body>(body)(result); });
        return result;
    }

 private:
    template <typename Body>
    void Trap(TextView name, Body&& body) const {
        try {
            std::forward<Body>(body)();
        } catch (...) {
            Handle(name);
        }
    }

    // Call it in a catch block. The recovery code that ReportError returns could ask to resume
    // inside the procedure. It is always 0, so the procedure is abandoned.
    void Handle(TextView name) const {
        const RuntimeError error = CurrentError();
        [[maybe_unused]] const std::int16_t recovery = errors_.ReportError(
            fileName_, name, nullptr, error.Number(), error.Line(), error.Description());
        assert(recovery == 0);
    }

    ModuleErrors& errors_;
    TextView fileName_;
};

using Module = BasicModule<errorTrapping>;

}  // namespace lumenkit
