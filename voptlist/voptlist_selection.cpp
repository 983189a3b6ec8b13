// Reads and changes the selection through the option buttons and notifies the container.
#include "frame/automation/raise_event.h"
#include "voptlist/voptlist.h"

namespace lumenkit {

namespace {

constexpr std::int16_t none = -1;

}  // namespace

std::int16_t VOptList::GetListIndex() const {
    return module_.Function<std::int16_t>(u"GetListIndex", [&](std::int16_t& selected) {
        std::int16_t index = 0;
        while (index < ItemCount && !Option1->Item(index).IsSelected()) {
            ++index;
        }
        selected = index < ItemCount ? index : none;
    });
}

std::int16_t VOptList::FindValue(TextView value) const {
    for (std::int16_t index = 0; index < ItemCount; ++index) {
        if (SameText(Option1->Item(index).Tag(), value, Compare::IgnoreCase)) {
            return index;
        }
    }
    return none;
}

Text VOptList::SelectedValue() const {
    const std::int16_t selected = GetListIndex();
    return selected >= 0 ? Option1->Item(selected).Tag() : Text();
}

void VOptList::NotifyChangedListIndexText() {
    module_.Procedure(u"NotifyChangedListIndexText", [&] {
        container_.PropertyChanged(u"ListIndex");
        if (container_.CanPropertyChange(u"Text")) {
            container_.PropertyChanged(u"Text");
        }
    });
}

// Selecting a button by code also causes a click, so the container is notified here. Deselecting
// causes no click; the code that deselects notifies the container itself.
void VOptList::Option1_Click(std::int16_t /*index*/) {
    if (!IgnoreClicks) {
        NotifyChangedListIndexText();
        RaiseEvent(container_, static_cast<std::int32_t>(VOptListEvent::Click));
    }
}

std::int16_t VOptList::pGetListIndex() const {
    return Get<std::int16_t>(u"pGetListIndex", [&] { return GetListIndex(); });
}

void VOptList::pLetListIndex(std::int16_t index) {
    module_.Procedure(u"pLetListIndex", [&] {
        const bool hasItem = index >= 0 && index < ItemCount;
        const std::int16_t selected = GetListIndex();
        if (hasItem) {
            if (index != selected) {
                Option1->Item(index).Select(true);
            }
        } else if (selected >= 0) {
            Option1->Item(selected).Select(false);
            if (!IgnoreClicks) {
                NotifyChangedListIndexText();
            }
        }
    });
}

Text VOptList::pGetText() const {
    return Get<Text>(u"pGetText", [&] { return SelectedValue(); });
}

void VOptList::pLetText(TextView text) {
    module_.Procedure(u"pLetText", [&] {
        if (!ambient_.UserMode()) {
            Raise(ErrorNumber::SetNotPermitted);
        }
        const std::int16_t selected = GetListIndex();
        const std::int16_t match = FindValue(text);
        if (match >= 0) {
            if (match != selected) {
                Option1->Item(match).Select(true);
            }
        } else if (selected >= 0) {
            Option1->Item(selected).Select(false);
            NotifyChangedListIndexText();
        }
    });
}

Text VOptList::pGetValue() const {
    return Get<Text>(u"pGetValue", [&] { return SelectedValue(); });
}

}  // namespace lumenkit
