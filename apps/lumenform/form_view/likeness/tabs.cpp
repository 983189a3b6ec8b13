#include "apps/lumenform/form_view/likeness/tabs.h"

#include <algorithm>
#include <array>
#include <utility>

#include "apps/lumenform/form_view/companion_records.h"
#include "apps/lumenform/form_view/likeness/item_groups.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/likeness/still.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "forms/controls.h"
#include "frame/numbers.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr int thinnestTab = 8;  // pixels

QTabBar::Shape TabSideOf(const BlockReader& reader, TextView name) {
    constexpr std::array sides = {QTabBar::RoundedNorth, QTabBar::RoundedSouth,
                                  QTabBar::RoundedWest, QTabBar::RoundedEast};
    return sides[static_cast<std::size_t>(reader.Choice(name, int{sides.size()}, 0))];
}

TabPages::Page PageOf(const BlockReader& reader, int page) {
    const Text index = u'(' + Decimal(page) + u')';
    return {.title = qt::ToQString(reader.String(u"TabCaption" + index, u"Tab " + Decimal(page))),
            .picture = PictureIn(reader.Record(u"TabPicture" + index)),
            .isEnabled = reader.Flag(u"TabEnabled" + index, true),
            .isVisible = reader.Flag(u"TabVisible" + index, true)};
}

}  // namespace

PlainWidget MakeTabbedBox(const BlockReader& reader, const PlainSink& raise) {
    constexpr std::int32_t propertyPage = 1;
    constexpr float usualHeight = 529;  // hundredths of a millimetre
    const SavedPages saved(reader.Block());
    std::vector<TabPages::Page> pages;
    pages.reserve(static_cast<std::size_t>(saved.Count()));
    for (int page = 0; page < saved.Count(); ++page) {
        pages.push_back(PageOf(reader, page));
    }
    const TabPages::Look look{
        .shape = TabSideOf(reader, u"TabOrientation"),
        .perRow = std::clamp(reader.Whole(u"TabsPerRow", 3), 1, SavedPages::most),
        .thickness =
            std::max(PixelsOfExtent(reader.Number(u"TabHeight", usualHeight)), thinnestTab),
        .longest = PixelsOfExtent(reader.Number(u"TabMaxWidth", 0)),
        .fitsText = reader.Whole(u"Style", 0) == propertyPage};
    auto box = std::make_unique<TabPages>(std::move(pages), look, saved.Current());
    box->LetUserChoose([raise] { raise(u"Click"); });
    box->setAccessibleName(qt::ToQString(forms::NameInCode(reader.Block())));
    TabPages* const made = box.get();
    return {.widget = std::move(box), .pages = made};
}

PlainWidget MakeTabStrip(const BlockReader& reader, const PlainSink& /*raise*/) {
    constexpr int thickness = 22;
    std::vector<TabPages::Page> pages;
    for (const BlockReader& saved : NumberedGroups(reader, u"Tabs", u"Tab")) {
        if (pages.size() < SavedPages::most) {
            pages.push_back({.title = qt::ToQString(saved.String(u"Caption"))});
        }
    }
    if (pages.empty()) {
        pages.emplace_back();
    }
    const TabPages::Look look{.shape = TabSideOf(reader, u"Placement"),
                              .perRow = static_cast<int>(pages.size()),
                              .thickness = thickness,
                              .fitsText = true};
    return Likeness(reader, std::make_unique<TabPages>(std::move(pages), look, 0));
}

}  // namespace lumenkit::lumenform
