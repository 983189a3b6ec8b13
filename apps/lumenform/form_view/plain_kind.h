// How the controls of one class are shown: a row of a table.
#pragma once

#include <cstdint>

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/look.h"
#include "apps/lumenform/form_view/plain_widget.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The role of a class's controls in the tab order.
enum class TabRole : std::uint8_t {
    None,   ///< they have no TabIndex
    Index,  ///< they have a TabIndex, and Tab skips them
    Stop,
};

struct PlainKind {
    TextView className;  ///< empty: any other class
    PlainWidget (*make)(const BlockReader& reader, const PlainSink& raise);
    WidgetColors usual = {};
    host::Placement place = {.width = 1215, .height = 495};  ///< default for the block's place
    TabRole tab = TabRole::Stop;
    bool isInBack = false;
    bool isContainer = false;
    bool isField = false;  ///< whether the label before it names it
    bool isSeen = true;    ///< whether it is visible at run time
    bool docks = false;    ///< whether Align places it at an edge of its container
};

/// The colours of lists and text boxes.
inline constexpr WidgetColors paperColors = {Color::WindowText, Color::WindowBackground};

/// The default place of a control that only the designer shows.
inline constexpr host::Placement iconPlace = {.width = 420, .height = 420};

}  // namespace lumenkit::lumenform
