#include "tests/support/placed_caption_page.h"

#include "frame/utf8.h"

namespace lumenkit::testing {

std::string PlacedCaptionPage::Previewed(TextView property) {
    return ToUtf8(ToText(Preview().Get(property)));
}

std::string PlacedCaptionPage::LabelText(TextView label) {
    return ToUtf8(Part<memory::Label>(label).Caption());
}

std::string PlacedCaptionPage::Magnifier() {
    std::string middle;
    if (IsVisible(u"labChar")) {
        middle += LabelText(u"labChar");
    }
    if (IsVisible(u"labSelect")) {
        middle += "[" + LabelText(u"labSelect") + "]";
    }
    return LabelText(u"labLeft") + "|" + middle + "|" + LabelText(u"labRight");
}

bool PlacedCaptionPage::IsMagnifierVisible() {
    return IsVisible(u"labLeft") || IsVisible(u"labChar") || IsVisible(u"labSelect") ||
           IsVisible(u"labRight");
}

std::string PlacedCaptionPage::Selection() {
    std::int32_t start = 0;
    std::int32_t end = 0;
    Caption().GetSelection(start, end);
    return std::to_string(start) + "-" + std::to_string(end);
}

}  // namespace lumenkit::testing
