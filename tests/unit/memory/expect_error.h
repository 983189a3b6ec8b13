#pragma once

#include <gtest/gtest.h>

#include "frame/runtime_error.h"

namespace lumenkit::testing {

/// Whether `action` raises the runtime's error `number`.
template <typename Action>
::testing::AssertionResult Raises(ErrorNumber number, Action&& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        if (error.Number() == static_cast<std::int32_t>(number)) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "raised " << error.Number();
    }
    return ::testing::AssertionFailure() << "raised nothing";
}

}  // namespace lumenkit::testing
