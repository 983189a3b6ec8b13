#pragma once

#include "vlabel/text_list.h"

namespace lumenkit {

/// The result of compiling a caption.
///
/// Each bar left in CaptionLines marks the place of one command. The k-th bar, counted from the
/// first line to the last, belongs to the k-th entry of CommandNames and CommandParams.
struct CompiledCaption {
    TextList CaptionLines;
    TextList CommandNames;
    TextList CommandParams;

    void Clear() {
        CaptionLines.Clear();
        CommandNames.Clear();
        CommandParams.Clear();
    }
};

}  // namespace lumenkit
