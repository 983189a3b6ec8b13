#pragma once

#include <utility>

namespace lumenkit::win32 {

/// A share in the current thread's only T, which lives as long as a share exists. Nothing remains
/// to be destroyed when the thread or the program ends.
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

    /// Returns the current thread's T, or null if there is no share.
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
