#pragma once

#include <optional>

#include "frame/host/simple_constituents.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

/// A command button that is pressed by the space bar and by Return.
class CommandButton final : public BasicCaptioned<host::CommandButton> {
 public:
    CommandButton(const Elements& elements, const host::CaptionDesign& design,
                  host::ClickEvents& events);

 protected:
    void DrawContent(Canvas& canvas, SIZE size) const override;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> HandleNotification(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    host::ClickEvents& events_;
};

}  // namespace lumenkit::win32
