#pragma once

#include <cstddef>
#include <memory>
#include <unordered_map>

#include "frame/text.h"
#include "runtime/win32/screen_font.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The realised fonts of one thread, each created once. Hold the cache as ThreadShared<FontCache>.
/// Unused fonts are kept for a while, because captions switch back and forth between fonts.
class FontCache {
 public:
    /// Returns the font of this design, whose height determines the resolution. Allocates nothing
    /// if the font is known. Raises 7 if the platform cannot create more fonts.
    ScreenFontRef Find(const LOGFONTW& design);
    /// Returns the font with the design of a font that someone else owns. The cache finds its own
    /// fonts by their handles.
    ScreenFontRef Find(HFONT handle);

 private:
    // Designs are equal if all their fields are; names are compared up to their end.
    struct Hash {
        std::size_t operator()(const LOGFONTW& design) const;
    };
    struct Equal {
        bool operator()(const LOGFONTW& left, const LOGFONTW& right) const;
    };

    void DropUnused();

    std::unordered_map<LOGFONTW, ScreenFontRef, Hash, Equal> fonts_;
    std::unordered_map<HFONT, const ScreenFont*> own_;  // the same fonts by their handles
};

}  // namespace lumenkit::win32
