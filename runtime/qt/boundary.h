// Where the runtime's own code and Qt meet. Exceptions must not pass through Qt's frames, and what
// runs inside an event may destroy what the event was for.
#pragma once

#include <QObject>
#include <exception>
#include <functional>
#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit::qt {

/// What becomes of an error that leaves a handler of an event: nobody called, so nobody catches it.
using ErrorSink = std::function<void(const RuntimeError&)>;

/// Whether code that notifications call is running: widgets must not be deleted meanwhile.
class Notifying {
 public:
    Notifying() { ++depth; }
    ~Notifying() { --depth; }
    Notifying(const Notifying&) = delete;
    Notifying& operator=(const Notifying&) = delete;

    static bool Anywhere() { return depth > 0; }

 private:
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): of the one thread
    static int depth;
};

/// Gathers the errors of notifications that Qt delivers while code of ours makes it do something,
/// so that they reach whoever caused them.
class Causing {
 public:
    Causing() : outer_(std::exchange(current, this)) {}
    ~Causing() { current = outer_; }
    Causing(const Causing&) = delete;
    Causing& operator=(const Causing&) = delete;

    /// Raises the first error that was gathered.
    void Finish() const;

 private:
    friend void RunHandler(const ErrorSink& sink, const std::function<void()>& handler);
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): of the one thread
    static Causing* current;

    Causing* outer_;
    std::exception_ptr first_;
};

/// Runs `action`, which has Qt do something, and raises what notifications on the way raised.
template <typename Action>
void Cause(Action&& action) {
    const Notifying notifying;
    const Causing causing;
    std::forward<Action>(action)();
    causing.Finish();
}

void RunHandler(const ErrorSink& sink, const std::function<void()>& handler);

/// Runs the handler of an event that Qt delivers. Nothing that it throws leaves: errors go to
/// whoever caused the event, else to `sink`.
template <typename Handler>
void HandleEvent(const ErrorSink& sink, const Handler& handler) {
    RunHandler(sink, std::cref(handler));  // a function that takes no memory
}

/// Deletes `object`, later where a notification may still be under way in it. Null is allowed.
void DeleteSafely(QObject* object);

}  // namespace lumenkit::qt
