// The fixture for all tests of the host contract.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frame/runtime_error.h"
#include "tests/contract/contract_runtime.h"
#include "tests/contract/probe_control.h"

namespace lumenkit::contract {

using Lines = std::vector<std::string>;
using Integers = std::vector<std::int16_t>;

/// A newly placed probe on the runtime under test.
class ContractTest : public ::testing::TestWithParam<RuntimeKind> {
 protected:
    ContractTest() : runtime_(GetParam().create(ProbeClasses())) {
        runtime_->PlaceNew(ProbeClasses().classes[0]);
    }

    ProbeControl& Probe() { return *ProbeControl::Last(); }
    const ControlHost& Host() { return Probe().Host(); }
    host::Surface& Surface() { return Host().surface; }
    host::Constituents& Parts() { return Host().constituents; }
    /// The largest error of rounding to whole pixels, in twips.
    float Pixel() { return Host().screen.TwipsPerPixelX(); }

    std::unique_ptr<ContractRuntime> runtime_;
};

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

}  // namespace lumenkit::contract
