#pragma once

#include <memory>

#include "apps/lumenform/form_view/live_control.h"

namespace lumenkit::lumenform {

/// Creates a library control if the block has a class of the class table, and a plain control
/// otherwise. Throws FormError if the control rejects a value of the block.
std::unique_ptr<LiveControl> MakeControl(const Stage& stage, const Surroundings& around,
                                         forms::Block& block);

}  // namespace lumenkit::lumenform
