// Help strings and parameters of the members and events that many controls share.
#pragma once

#include <array>

#include "frame/automation/interface_table.h"
#include "frame/text.h"

namespace lumenkit::stock {

// Help strings of properties and methods.
inline constexpr TextView backColorHelp =
    u"Returns/sets the background color used to display text and graphics in an object.";
inline constexpr TextView foreColorHelp =
    u"Returns/sets the foreground color used to display text and graphics in an object.";
inline constexpr TextView enabledHelp =
    u"Returns/sets a value that determines whether an object can respond to user-generated events.";
inline constexpr TextView fontHelp = u"Returns a Font object.";
inline constexpr TextView borderStyleHelp = u"Returns/sets the border style for an object.";
inline constexpr TextView mousePointerHelp =
    u"Returns/sets the type of mouse pointer displayed when over part of an object.";
inline constexpr TextView fontNameHelp =
    u"Specifies the name of the font that appears in each row for the given level.";
inline constexpr TextView fontSizeHelp =
    u"Specifies the size (in points) of the font that appears in each row for the given level.";
inline constexpr TextView refreshHelp = u"Forces a complete repaint of a object.";

// Help strings of events.
inline constexpr TextView clickHelp =
    u"Occurs when the user presses and then releases a mouse button over an object.";
inline constexpr TextView dblClickHelp =
    u"Occurs when the user presses and releases a mouse button and then presses and releases it "
    u"again over an object.";
inline constexpr TextView mouseDownHelp =
    u"Occurs when the user presses the mouse button while an object has the focus.";
inline constexpr TextView mouseMoveHelp = u"Occurs when the user moves the mouse.";
inline constexpr TextView mouseUpHelp =
    u"Occurs when the user releases the mouse button while an object has the focus.";
inline constexpr TextView keyDownHelp =
    u"Occurs when the user presses a key while an object has the focus.";
inline constexpr TextView keyPressHelp = u"Occurs when the user presses and releases an ANSI key.";
inline constexpr TextView keyUpHelp =
    u"Occurs when the user releases a key while an object has the focus.";
inline constexpr TextView changeHelp = u"Occurs when the contents of a control have changed.";
inline constexpr TextView validateHelp =
    u"Occurs when a control loses focus to a control that causes validation.";

// Parameters of events.
inline constexpr std::array mouseParameters = {
    Parameter{u"Button", ValueType::Integer},
    Parameter{u"Shift", ValueType::Integer},
    Parameter{u"X", ValueType::Single},
    Parameter{u"Y", ValueType::Single},
};
inline constexpr std::array keyParameters = {
    Parameter{u"KeyCode", ValueType::Integer},
    Parameter{u"Shift", ValueType::Integer},
};
inline constexpr std::array keyPressParameters = {
    Parameter{u"KeyAscii", ValueType::Integer},
};
inline constexpr std::array validateParameters = {
    Parameter{u"Cancel", ValueType::Boolean},
};

}  // namespace lumenkit::stock
