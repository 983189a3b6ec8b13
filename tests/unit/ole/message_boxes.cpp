#include "tests/unit/ole/message_boxes.h"

#include <utility>

namespace lumenkit::ole {

namespace {

int refused = 0;

LRESULT CALLBACK RefuseDialogs(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND) {
        const auto* created = reinterpret_cast<const CBT_CREATEWNDW*>(lParam);
        if (created->lpcs->lpszClass == MAKEINTRESOURCEW(32770)) {
            ++refused;
            return 1;
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

MessageBoxes::MessageBoxes()
    : hook_(SetWindowsHookExW(WH_CBT, &RefuseDialogs, nullptr, GetCurrentThreadId())) {}

MessageBoxes::~MessageBoxes() {
    UnhookWindowsHookEx(hook_);
}

int MessageBoxes::Take() {
    return std::exchange(refused, 0);
}

}  // namespace lumenkit::ole
