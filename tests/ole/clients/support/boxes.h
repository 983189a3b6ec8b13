// Message boxes of a process under test, read and closed as a person would.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace lumenkit::clients {

struct Box {
    std::wstring title;
    std::wstring text;
};

/// Reads a box that the process shows and presses its button; nothing where there is none.
std::optional<Box> CloseBox(DWORD process);

/// What an error box says of its error; empty where the box is not one of the error reporter's in
/// every detail: "VLABEL pLetFont 13".
std::wstring ErrorIn(const Box& box);

/// Closes the boxes of this process from a thread of its own, until it ends.
class BoxCloser {
 public:
    BoxCloser();
    ~BoxCloser();
    BoxCloser(const BoxCloser&) = delete;
    BoxCloser& operator=(const BoxCloser&) = delete;

    /// The errors shown since it was last asked, oldest first.
    std::vector<std::wstring> Errors();
    /// The same, once there is one: what was shown may still be on its way when a call returns.
    /// Empty when there is none for ten seconds.
    std::vector<std::wstring> AwaitErrors();

 private:
    static DWORD WINAPI Run(void* self);

    HANDLE end_;
    HANDLE thread_;
    CRITICAL_SECTION lock_;
    std::vector<std::wstring> errors_;
};

}  // namespace lumenkit::clients
