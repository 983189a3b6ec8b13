#pragma once

#include <utility>

namespace lumenkit::win32 {

/// A share in the one T of the current thread, which lives as long as somebody holds a share.
/// Nothing is left to be destroyed when the thread or the program ends.
template <typename T>
class ThreadShared {
 public:
    ThreadShared() {
        if (instance == nullptr) {
            instance = new T;  // NOLINT(cppcoreguidelines-owning-memory): the shares own it
        }
        ++shares;
        instance_ = instance;
    }
    ~ThreadShared() {
        if (--shares == 0) {
            // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
            delete std::exchange(instance, nullptr);
        }
    }
    ThreadShared(const ThreadShared&) = delete;
    ThreadShared& operator=(const ThreadShared&) = delete;

    /// The current thread's T; null where nobody holds a share.
    static T* IfAny() { return instance; }

    T& operator*() const { return *instance_; }
    T* operator->() const { return instance_; }

 private:
    // NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): one for each thread
    static inline thread_local T* instance = nullptr;
    static inline thread_local int shares = 0;
    // NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

    T* instance_;
};

}  // namespace lumenkit::win32
