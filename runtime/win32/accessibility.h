// What the windows of controls and constituents tell screen readers.
#pragma once

#include <cstddef>
#include <optional>

#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

// The platform's numbers of roles and states.
inline constexpr LONG clientRole = 0x0A;
inline constexpr LONG groupRole = 0x14;
inline constexpr LONG propertyPageRole = 0x26;
inline constexpr LONG staticTextRole = 0x29;
inline constexpr LONG textRole = 0x2A;
inline constexpr LONG radioButtonRole = 0x2D;

/// What screen readers get to know of a window.
struct Description {
    LONG role = clientRole;
    Text name = {};
    Text hint = {};                  ///< the limits of what the user may enter
    std::optional<Text> value = {};  ///< of a text box
    LONG states = 0;                 ///< those that the platform does not derive from the window
    int position = 0;                ///< in a group, from 1; 0: in none
    int groupSize = 0;
    const wchar_t* action = nullptr;  ///< the name of the default action, a click; null: none
};

/// A window that describes itself to screen readers.
class Described {
 public:
    virtual ~Described() = default;

    /// Without a result the platform's own description applies.
    virtual std::optional<Description> Describe() { return std::nullopt; }
    /// The limits of what the user may enter in the control, for its constituents.
    virtual Text SpokenHint() { return {}; }
};

/// Answers WM_GETOBJECT if it asks for the class of the window's description. Without a result the
/// platform's default answer applies.
std::optional<LRESULT> AccessibleKind(HWND window, LPARAM object);

/// Whether a window, of this program or another one, describes itself as a static text.
bool IsStaticText(HWND window);

/// Returns the text of a static text or label as screen readers say it: in one line, without the
/// mark of a mnemonic.
Text SpokenLabel(HWND label);

/// Answers WM_GETTEXT: copies as much of `text` as fits into `room` units with the terminating
/// zero, and returns the number of units before the zero. If `target` is null, returns the length
/// of the whole text.
LRESULT CopyText(TextView text, std::size_t room, wchar_t* target);

}  // namespace lumenkit::win32
