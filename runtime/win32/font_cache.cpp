#include "runtime/win32/font_cache.h"

#include <iterator>
#include <string_view>

#include "frame/runtime_error.h"

namespace lumenkit::win32 {

namespace {

constexpr std::size_t mostKept = 64;

// Returns the fields before the name.
std::string_view Numbers(const LOGFONTW& design) {
    return {reinterpret_cast<const char*>(&design), offsetof(LOGFONTW, lfFaceName)};
}

std::wstring_view FaceName(const LOGFONTW& design) {
    const wchar_t* const name = std::data(design.lfFaceName);
    return {name, wcsnlen(name, LF_FACESIZE)};
}

}  // namespace

std::size_t FontCache::Hash::operator()(const LOGFONTW& design) const {
    return std::hash<std::string_view>()(Numbers(design)) ^
           std::hash<std::wstring_view>()(FaceName(design));
}

bool FontCache::Equal::operator()(const LOGFONTW& left, const LOGFONTW& right) const {
    return Numbers(left) == Numbers(right) && FaceName(left) == FaceName(right);
}

ScreenFontRef FontCache::Find(const LOGFONTW& design) {
    const auto known = fonts_.find(design);
    if (known != fonts_.end()) {
        return known->second;
    }
    auto font = std::make_shared<const ScreenFont>(design);
    if (fonts_.size() >= mostKept) {
        DropUnused();
    }
    own_.emplace(font->Handle(), font.get());
    fonts_.emplace(design, font);
    return font;
}

ScreenFontRef FontCache::Find(HFONT handle) {
    if (const auto own = own_.find(handle); own != own_.end()) {
        return own->second->shared_from_this();
    }
    LOGFONTW design = {};
    if (GetObjectW(handle, sizeof design, &design) == 0) {
        Raise(ErrorNumber::OutOfMemory);
    }
    return Find(design);
}

void FontCache::DropUnused() {
    std::erase_if(fonts_, [&](const auto& entry) {
        const bool isUnused = entry.second.use_count() == 1;
        if (isUnused) {
            own_.erase(entry.second->Handle());
        }
        return isUnused;
    });
}

}  // namespace lumenkit::win32
