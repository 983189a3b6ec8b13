// The parts of the message in which a control reports an error.
#pragma once

#include <cstdint>

#include "frame/text.h"

namespace lumenkit::check {

struct ErrorMessage {
    Text procedure;
    std::int32_t number = 0;
    Text description;

    friend bool operator==(const ErrorMessage&, const ErrorMessage&) = default;
};

/// `message` is as ModuleErrors writes it. Parts that are missing in another message are empty.
ErrorMessage ReadErrorMessage(TextView message);

}  // namespace lumenkit::check
