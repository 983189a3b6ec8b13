// Where exceptions become results that COM clients understand, and the other way round.
#pragma once

#include <concepts>
#include <exception>
#include <type_traits>
#include <utility>

#include "frame/runtime_error.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// A failure that is to be returned to a client as it stands.
class ComError : public std::exception {
 public:
    explicit ComError(HRESULT result) : result_(result) {}
    HRESULT Result() const { return result_; }
    const char* what() const noexcept override { return "lumenkit::ole::ComError"; }

 private:
    HRESULT result_;
};

/// Raises a ComError for a failure.
void Check(HRESULT result);

/// Raises E_POINTER for null.
template <typename T>
T& Checked(T* pointer) {
    if (pointer == nullptr) {
        throw ComError(E_POINTER);
    }
    return *pointer;
}

/// The result that stands for an error of the runtime: 0x800A0000 + number, a result carried as a
/// number unchanged, exhausted memory as E_OUTOFMEMORY.
HRESULT ResultOf(const RuntimeError& error);

/// The error of the runtime that another object's result stands for. `description` may be empty.
RuntimeError ErrorOf(HRESULT result, TextView description = {});

/// The result of the exception in flight; call it in a catch block only. An error of the runtime
/// also becomes the thread's error information, as raised by `interfaceId`.
HRESULT CurrentResult(REFIID interfaceId = IID_NULL) noexcept;

/// Runs the body of a method of a COM interface: S_OK, or what it returns, or what it throws.
template <std::invocable Body>
HRESULT Guarded(Body&& body, REFIID interfaceId = IID_NULL) noexcept {
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<Body>>) {
            std::forward<Body>(body)();
            return S_OK;
        } else {
            return std::forward<Body>(body)();
        }
    } catch (...) {
        return CurrentResult(interfaceId);
    }
}

}  // namespace lumenkit::ole
