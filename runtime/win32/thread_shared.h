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
            instance = new T;
        }
        ++shares;
        instance_ = instance;
    }
    ~ThreadShared() {
        if (--shares == 0) {
            delete std::exchange(instance, nullptr);
        }
    }
    ThreadShared(const ThreadShared&) = delete;
    ThreadShared& operator=(const ThreadShared&) = delete;

    T& operator*() const { return *instance_; }
    T* operator->() const { return instance_; }

 private:
    static inline thread_local T* instance = nullptr;
    static inline thread_local int shares = 0;

    T* instance_;
};

}  // namespace lumenkit::win32
