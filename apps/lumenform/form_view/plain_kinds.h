// Which plain widget stands for which class of control.
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/look.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::form {

struct PlainWidget {
    std::unique_ptr<QWidget> widget;
    QWidget* inside = nullptr;  ///< what others lie on; null: the widget
    int reach = 0;              ///< pixels that it goes beyond the control's place on each side
};

/// Tells that the person did something: the event's name.
using PlainSink = std::function<void(TextView event)>;

/// What Tab has to do with the controls of a class.
enum class TabRole : std::uint8_t {
    None,   ///< they have no TabIndex
    Index,  ///< they have one, and Tab passes over them
    Stop,
};

struct PlainKind {
    TextView className;  ///< empty: any other
    PlainWidget (*make)(const BlockReader& reader, const PlainSink& raise);
    Colors usual = {};
    host::Placement place = {.width = 1215, .height = 495};  ///< where the block has none
    TabRole tab = TabRole::Stop;
    bool isInBack = false;
    bool isContainer = false;
    bool isSeen = true;  ///< whether the form's users see it
};

/// Never fails: what is not known is a box with its name and class.
const PlainKind& PlainKindOf(const forms::Block& block);

}  // namespace lumenkit::form
