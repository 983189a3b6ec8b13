#include "runtime/qt/boundary.h"

#include <memory>

namespace lumenkit::qt {

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
int Notifying::depth = 0;
Causing* Causing::current = nullptr;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void Causing::Finish() const {
    if (first_) {
        std::rethrow_exception(first_);
    }
}

namespace {

// Must be called in a catch block. Errors that the sink itself raises are dropped.
void Report(const ErrorSink& sink) noexcept {
    try {
        if (sink) {
            sink(CurrentError());
        }
    } catch (...) {
        return;
    }
}

}  // namespace

void RunHandler(const ErrorSink& sink, const std::function<void()>& handler) {
    const Notifying notifying;
    Causing* cause = std::exchange(Causing::current, nullptr);
    try {
        handler();
        Causing::current = cause;
    } catch (...) {
        Causing::current = cause;
        if (cause == nullptr) {
            Report(sink);
        } else if (!cause->first_) {
            cause->first_ = std::current_exception();
        }
    }
}

void DeleteSafely(QObject* object) {
    if (object == nullptr) {
        return;
    }
    if (Notifying::Anywhere()) {
        object->deleteLater();
    } else {
        const std::unique_ptr<QObject> owned(object);
    }
}

}  // namespace lumenkit::qt
