// Matchers for errors of the runtime.
#pragma once

#include <cstdint>

#include <gmock/gmock.h>

#include "frame/runtime_error.h"

namespace lumenkit {

/// Matches a callable that raises the error `number`.
inline auto Raises(std::int32_t number) {
    return ::testing::Throws<RuntimeError>(
        ::testing::Property("Number", &RuntimeError::Number, number));
}

}  // namespace lumenkit
