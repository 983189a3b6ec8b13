#pragma once

#include <cstddef>
#include <memory>
#include <unordered_map>

#include "frame/text.h"
#include "runtime/win32/screen_font.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The realised fonts of one thread, each made once; hold it as ThreadShared<FontCache>. Fonts that
/// nobody uses are kept for a while, as captions switch to and fro.
class FontCache {
 public:
    /// The font of this design, whose height says for which resolution it is. Allocates nothing
    /// when the font is known. Raises 7 when the platform has no more fonts.
    ScreenFontRef Find(const LOGFONTW& design);
    /// The font of the same design as one that somebody else owns; its own fonts are known by their
    /// handles.
    ScreenFontRef Find(HFONT handle);

 private:
    // Designs are the same if all of their parts are, names up to their end.
    struct Hash {
        std::size_t operator()(const LOGFONTW& design) const;
    };
    struct Equal {
        bool operator()(const LOGFONTW& left, const LOGFONTW& right) const;
    };

    void DropUnused();

    std::unordered_map<LOGFONTW, ScreenFontRef, Hash, Equal> fonts_;
    std::unordered_map<HFONT, const ScreenFont*> own_;  // the same by their handles
};

}  // namespace lumenkit::win32
