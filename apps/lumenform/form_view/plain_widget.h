#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "apps/lumenform/form_view/block_reader.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

class TabPages;

/// A widget that shows a control of another library.
struct PlainWidget {
    std::unique_ptr<QWidget> widget;
    QWidget* inside = nullptr;  ///< parent of contained controls; null: the widget
    int reach = 0;              ///< pixels by which it exceeds the control's place on each side
    int border = 0;             ///< pixels of the border around `inside`, on each side
    /// Returns the place that the control takes when it is moved to a place, once it has its font.
    /// Empty: the same place.
    std::function<host::Placement(const host::Placement&)> fit = {};
    bool hasBackColor = true;   ///< false: BackColor has no effect
    TabPages* pages = nullptr;  ///< the widget itself if contained controls are on its pages
};

/// Reports an action of the user, with the name of the event.
using PlainSink = std::function<void(TextView event)>;

}  // namespace lumenkit::lumenform
