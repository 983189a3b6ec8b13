// Creates the option buttons from the items, copies the appearance of the first one to the others
// and arranges them in rows.
#include "frame/checked_integer.h"
#include "voptlist/voptlist.h"

namespace lumenkit {

using host::Constituent;
using host::OptionButton;
using host::Placement;
using host::TextConstituent;

namespace {

// Calls `put` with `value` unless `get` already returns it: a real window repaints on every
// assignment, even of the same value. `get` and `put` are member functions of the target.
template <typename Target, typename Get, typename Put, typename New>
void PutIfDifferent(Target& target, Get get, Put put, const New& value) {
    if ((target.*get)() != value) {
        (target.*put)(value);
    }
}

void PutPlace(Constituent& constituent, const Placement& place) {
    PutIfDifferent(constituent, &Constituent::Place, &Constituent::Move, place);
}

void PutVisible(OptionButton& button, bool visible) {
    PutIfDifferent(button, &OptionButton::Visible, &OptionButton::SetVisible, visible);
}

}  // namespace

// Skips buttons whose items have not changed.
bool VOptList::SetupControls() {
    return module_.Function<bool>(u"SetupControls", [&](bool& loaded) {
        const ContentsChange change =
            shown_ ? FindChange(*shown_, Contents) : ContentsChange{.end = Contents.size()};
        const std::int16_t formerCount = shown_ ? ItemCount : existingCount_;
        shown_.reset();
        ContentsWalk walk(TextView(Contents).substr(0, change.end), change.begin);
        Int16 count = change.firstItem;
        while (const auto item = walk.Next()) {
            SetupItem(count.Value(), *item);
            ++count;
        }
        ItemCount = change.sameCount ? formerCount : count.Value();
        if (ItemCount > LoadedCount) {
            LoadedCount = ItemCount;
            loaded = true;
        }
        for (std::int16_t surplus = ItemCount; surplus < formerCount; ++surplus) {
            PutVisible(Option1->Item(surplus), false);
        }
        shown_ = Contents;
    });
}

void VOptList::SetupItem(std::int16_t index, const ContentsItem& item) {
    if (index >= existingCount_) {
        Option1->Load(index);
        ++existingCount_;
    }
    OptionButton& button = Option1->Item(index);
    PutIfDifferent(button, &OptionButton::Caption, &OptionButton::SetCaption, item.caption);
    PutIfDifferent(button, &OptionButton::Tag, &OptionButton::SetTag, item.value);
    PutVisible(button, true);
}

void VOptList::CopyProperties() {
    module_.Procedure(u"CopyProperties", [&] {
        const OptionButton& model = Option1->Item(0);
        const std::int16_t alignment = model.Alignment();
        const host::FontRef font = model.CurrentFont();
        const Color foreColor = model.ForeColor();
        for (std::int16_t index = 1; index < LoadedCount; ++index) {
            OptionButton& button = Option1->Item(index);
            PutIfDifferent(button, &OptionButton::Alignment, &OptionButton::SetAlignment,
                           alignment);
            PutIfDifferent(button, &TextConstituent::CurrentFont, &TextConstituent::SetCurrentFont,
                           font);
            PutIfDifferent(button, &OptionButton::ForeColor, &OptionButton::SetForeColor,
                           foreColor);
        }
    });
}

void VOptList::MoveControls() {
    module_.Procedure(u"MoveControls", [&] {
        const float width = ToSingle(double{Frame1->Place().width} -
                                     2.0 * screen_.TwipsPerPixelX() - double{LeftMargin});
        if (width <= 20) {
            return;
        }
        float top = TopMargin;
        for (std::int16_t index = 0; index < ItemCount; ++index) {
            PutPlace(Option1->Item(index),
                     {.left = LeftMargin, .top = top, .width = width, .height = Spacing});
            top = ToSingle(double{top} + double{Spacing});
        }
    });
}

void VOptList::UserControl_Resize() {
    module_.Procedure(u"UserControl_Resize", [&] {
        PutPlace(*Frame1, {.width = surface_.ScaleWidth(), .height = surface_.ScaleHeight()});
        MoveControls();
    });
}

}  // namespace lumenkit
