#pragma once

#include <optional>

#include "frame/host/simple_constituents.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

class CommandButton final : public BasicCaptioned<host::CommandButton> {
 public:
    CommandButton(const Owner& owner, const host::CaptionDesign& design, host::ClickEvents& events);

 protected:
    std::optional<LRESULT> HandleNotification(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    host::ClickEvents& events_;
};

}  // namespace lumenkit::win32
