// Message boxes of a process under test, read and closed as a user does.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace lumenkit::clients {

struct Box {
    std::wstring title;
    std::wstring text;
};

/// Reads a message box of the process, passes it to `note` and presses its button. Returns nothing
/// if there is no box.
std::optional<Box> CloseBox(DWORD process, const std::function<void(const Box&)>& note = {});

/// Returns the error in an error box as "VLABEL pLetFont 13". Returns an empty text if the box
/// differs in any detail from the boxes of the error reporter.
std::wstring ErrorIn(const Box& box);

/// Closes the message boxes of this process on a separate thread until it is destroyed.
class BoxCloser {
 public:
    BoxCloser();
    ~BoxCloser();
    BoxCloser(const BoxCloser&) = delete;
    BoxCloser& operator=(const BoxCloser&) = delete;

    /// Returns the errors shown since the last call, oldest first. Other boxes give "title: text".
    /// An error is there when the call that shows its box returns.
    std::vector<std::wstring> Errors();

 private:
    static DWORD WINAPI Run(void* self);
    void Note(const Box& box);

    HANDLE end_;
    HANDLE thread_ = nullptr;
    CRITICAL_SECTION lock_;
    std::vector<std::wstring> errors_;
};

}  // namespace lumenkit::clients
