#include "apps/command_line/console_host.h"

#include <iostream>

#include "frame/utf8.h"

namespace lumenkit::cli {

void ConsoleHost::MsgBox(TextView message, host::MessageStyle /*style*/,
                         std::optional<TextView> title) {
    hasReported_ = true;
    Text lines(message);
    std::erase(lines, u'\r');
    std::cerr << ToUtf8(title.value_or(u"lumenkit")) << '\n' << ToUtf8(lines) << "\n";
}

}  // namespace lumenkit::cli
