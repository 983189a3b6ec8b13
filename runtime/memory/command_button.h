#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/memory/basic_constituent.h"

namespace lumenkit::memory {

class CommandButton final : public BasicCaptioned<host::CommandButton> {
 public:
    CommandButton(Elements& elements, const host::CaptionDesign& design, host::ClickEvents& events);

    bool TakesFocus() const override { return true; }
    void ReceiveClick() override;

 private:
    host::ClickEvents& events_;
};

}  // namespace lumenkit::memory
