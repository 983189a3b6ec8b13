#pragma once

#include <QPixmap>
#include <QString>
#include <functional>

#include "forms/document.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

struct DrawnDesign {
    QString form;
    int codePage;
    bool page;
};

/// Draws the designer after it has opened the form and selected its first control. With `page`, the
/// property page of the first control that has one is in front. If `form` is empty, draws the start
/// screen. Calls `opened` with the form that it has opened. Throws forms::FormError if the form
/// cannot be read, and passes on what `opened` throws.
QPixmap DesignPicture(const qt::Context& context, const DrawnDesign& drawn,
                      const std::function<void(const forms::Document&)>& opened);

/// Shows the messages of controls that wait for the end of a painting.
void ShowDeferredMessages();

}  // namespace lumenkit::lumenform
