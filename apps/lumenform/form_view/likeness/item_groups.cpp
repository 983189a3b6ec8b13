#include "apps/lumenform/form_view/likeness/item_groups.h"

#include <algorithm>

#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

bool IsNumbered(TextView name, TextView stem) {
    if (name.size() <= stem.size() ||
        !SameText(name.substr(0, stem.size()), stem, Compare::IgnoreCase)) {
        return false;
    }
    return name.substr(stem.size()).find_first_not_of(u"()0123456789") == TextView::npos;
}

}  // namespace

std::vector<BlockReader> NumberedGroups(const BlockReader& reader, TextView stem) {
    std::vector<BlockReader> groups;
    for (const forms::Block::Item& item : reader.Block().Items()) {
        const auto* const inner = std::get_if<std::unique_ptr<forms::Block>>(&item);
        if (inner != nullptr && (*inner)->Kind() == forms::BlockKind::Group &&
            IsNumbered((*inner)->Name(), stem)) {
            groups.emplace_back(reader.Document(), **inner);
        }
    }
    return groups;
}

std::vector<BlockReader> NumberedGroups(const BlockReader& reader, TextView around, TextView stem) {
    forms::Block* const group = reader.Block().FindGroup(around);
    return group == nullptr ? std::vector<BlockReader>()
                            : NumberedGroups(BlockReader(reader.Document(), *group), stem);
}

int PixelsOfExtent(float hundredths) {
    constexpr double hundredthsPerInch = 2540;
    constexpr double twipsPerInch = 1440;
    constexpr double longest = 16384;
    const double twips = hundredths * twipsPerInch / hundredthsPerInch;
    const double perPixel = qt::TwipsPerPixel::OfScreens().x;
    return qt::ToPixels(std::clamp(twips, 0.0, longest * perPixel), perPixel);
}

}  // namespace lumenkit::lumenform
