#pragma once

#include "runtime/win32/canvas.h"
#include "runtime/win32/caption_picture.h"

namespace lumenkit::win32 {

/// The places of the parts of an option button or check box, as the platform lays them out.
struct MarkedCaption {
    RECT mark = {};     ///< the ring or box
    RECT caption = {};  ///< the caption is clipped to it
    POINT text = {};    ///< upper left corner of the caption

    /// `pixelsPerInch` determines the size of the mark.
    static MarkedCaption In(SIZE size, const CaptionPicture& picture, int pixelsPerInch,
                            bool markOnRight);
};

}  // namespace lumenkit::win32
