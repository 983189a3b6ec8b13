// The boundary between the runtime and Qt. Exceptions must not pass through Qt's frames, and a
// handler that runs inside an event may destroy the receiver of the event.
#pragma once

#include <QObject>
#include <exception>
#include <functional>
#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit::qt {

/// Receives an error that leaves an event handler. No caller of such a handler could catch it.
using ErrorSink = std::function<void(const RuntimeError&)>;

/// A widget that knows where errors go that reach no caller, also those of the widgets inside it.
class ErrorReceiver {
 public:
    virtual ~ErrorReceiver() = default;
    virtual const ErrorSink& Errors() const = 0;
};

/// Marks that a notification is running. Widgets must not be deleted meanwhile.
class Notifying {
 public:
    Notifying() { ++depth; }
    ~Notifying() { --depth; }
    Notifying(const Notifying&) = delete;
    Notifying& operator=(const Notifying&) = delete;

    static bool Anywhere() { return depth > 0; }

 private:
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): used by one thread only
    static int depth;
};

/// Collects the errors of notifications that Qt delivers while the runtime calls Qt, so that the
/// caller receives them.
class Causing {
 public:
    Causing() : outer_(std::exchange(current, this)) {}
    ~Causing() { current = outer_; }
    Causing(const Causing&) = delete;
    Causing& operator=(const Causing&) = delete;

    /// Raises the first error that was collected.
    void Finish() const;

 private:
    friend void RunHandler(const ErrorSink& sink, const std::function<void()>& handler);
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): used by one thread only
    static Causing* current;

    Causing* outer_;
    std::exception_ptr first_;
};

/// Runs `action`, which calls Qt, and raises the first error that a notification raised meanwhile.
template <typename Action>
void Cause(Action&& action) {
    const Notifying notifying;
    const Causing causing;
    std::forward<Action>(action)();
    causing.Finish();
}

void RunHandler(const ErrorSink& sink, const std::function<void()>& handler);

/// Runs the handler of an event that Qt delivers. No exception leaves: an error goes to the Cause
/// call that led to the event, or to `sink` if there is none.
template <typename Handler>
void HandleEvent(const ErrorSink& sink, const Handler& handler) {
    RunHandler(sink, std::cref(handler));  // with std::cref the std::function allocates no memory
}

/// Deletes `object`. While a notification is running, the deletion is deferred. `object` may be
/// null.
void DeleteSafely(QObject* object);

}  // namespace lumenkit::qt
