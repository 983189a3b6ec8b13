// The error convention that every procedure of a control follows.
//
// A procedure tells the trace hook that it is entered, runs its body in a trap and tells the hook
// that it is left. An error in the body is reported and swallowed: the rest of the body does not
// run, and the caller gets what the procedure had assigned so far.
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

/// The switch of the whole convention: where it is false, errors travel to the caller.
inline constexpr bool errorTrapping = true;

/// A procedure's name in the source. Its length is found when that is compiled: traces are many.
class ProcedureName {
 public:
    template <std::size_t size>
    consteval ProcedureName(const char16_t (&name)[size])  // NOLINT(*-explicit-*, *-c-arrays)
        : name_(&name[0], size - 1) {}

    operator TextView() const { return name_; }  // NOLINT(*-explicit-*)

 private:
    TextView name_;
};

/// One source module of a control, under the name that its error reports bear.
template <bool trapping>
class BasicModule {
 public:
    /// `errors` must outlive the module; `fileName` must be a literal, such as u"VLABEL".
    BasicModule(ModuleErrors& errors, TextView fileName) : errors_(errors), fileName_(fileName) {}

    /// Runs `body()` as the procedure `name`. Out of memory and exceptions that are no errors of
    /// the runtime are reported too, as 7 and 51.
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

    /// Runs `body(result)` as the function `name` and returns `result`, which starts as the default
    /// value of its type.
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

    // In a catch block. The reporter's answer could ask to resume inside the procedure; it never
    // does, so giving up is all there is.
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
