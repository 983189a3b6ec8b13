#include "runtime/win32/interaction.h"

#include "runtime/shared/open_boxes.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/wide_text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

void Interaction::Beep() {
    MessageBeep(MB_OK);
}

void Interaction::MsgBox(TextView message, host::MessageStyle style,
                         std::optional<TextView> title) {
    const ThreadShared<shared::OpenBoxes> boxes;
    const shared::OpenBoxes::Scope open(*boxes);
    const std::wstring text = ToWide(message);
    const std::wstring heading = ToWide(title ? Text(*title) : application_.ExeName());
    // If another message box blocks a window of the thread, that box is the active window.
    const HWND owner = GetActiveWindow();
    const UINT modality = owner == nullptr ? MB_TASKMODAL | MB_SETFOREGROUND : MB_APPLMODAL;
    MessageBoxW(owner, text.c_str(), heading.c_str(), MB_OK | static_cast<UINT>(style) | modality);
}

}  // namespace lumenkit::win32
