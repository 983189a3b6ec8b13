// Conversion between exceptions and the results that COM clients understand.
#pragma once

#include <concepts>
#include <exception>
#include <type_traits>
#include <utility>

#include "frame/runtime_error.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// A failure that is returned to the client unchanged.
class ComError : public std::exception {
 public:
    explicit ComError(HRESULT result) : result_(result) {}
    HRESULT Result() const { return result_; }
    const char* what() const noexcept override { return "lumenkit::ole::ComError"; }

 private:
    HRESULT result_;
};

/// Raises a ComError if `result` is a failure.
void Check(HRESULT result);

/// Raises E_POINTER for null.
template <typename T>
T& Checked(T* pointer) {
    if (pointer == nullptr) {
        throw ComError(E_POINTER);
    }
    return *pointer;
}

/// Returns the result for a runtime error: 0x800A0000 + number. A number that is itself a result is
/// returned unchanged; exhausted memory becomes E_OUTOFMEMORY.
HRESULT ResultOf(const RuntimeError& error);

/// Returns the runtime error for another object's result. `description` may be empty.
RuntimeError ErrorOf(HRESULT result, TextView description = {});

/// Returns the result for the current exception. Must be called in a catch block. A runtime error
/// also becomes the error information of the thread, as raised by `interfaceId`.
HRESULT CurrentResult(REFIID interfaceId = IID_NULL) noexcept;

/// Runs the body of a method of a COM interface. Returns S_OK, or the result that the body returns
/// or throws.
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
