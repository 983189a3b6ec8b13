#include "apps/lumenform/design/model/menu_shortcuts.h"

#include <algorithm>
#include <cstdint>

#include "apps/lumenform/form_view/menu_bar.h"
#include "frame/numbers.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

MenuShortcut Offered(Text written) {
    const QString shown = KeysOf(written).toString(QKeySequence::PortableText);
    return {std::move(written), qt::ToText(shown)};
}

std::vector<MenuShortcut> AllShortcuts() {
    constexpr std::int32_t functionKeys = 12;
    std::vector<MenuShortcut> all;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        all.push_back(Offered(Text(u"^") + letter));
    }
    for (const TextView held : {u"", u"^", u"+", u"+^"}) {
        for (std::int32_t number = 1; number <= functionKeys; ++number) {
            all.push_back(Offered(Text(held) + u"{F" + Decimal(number) + u'}'));
        }
    }
    for (const TextView written : {u"^{INSERT}", u"+{INSERT}", u"{DEL}", u"+{DEL}", u"%{BKSP}"}) {
        all.push_back(Offered(Text(written)));
    }
    return all;
}

}  // namespace

const std::vector<MenuShortcut>& MenuShortcuts() {
    static const std::vector<MenuShortcut> all = AllShortcuts();
    return all;
}

const MenuShortcut* FindShortcut(TextView written) {
    const QKeySequence keys = KeysOf(written);
    if (keys.isEmpty()) {
        return nullptr;
    }
    const Text shown = qt::ToText(keys.toString(QKeySequence::PortableText));
    const auto found = std::ranges::find(MenuShortcuts(), shown, &MenuShortcut::shown);
    return found == MenuShortcuts().end() ? nullptr : &*found;
}

Text ShownShortcut(TextView written) {
    const MenuShortcut* const offered = FindShortcut(written);
    return offered == nullptr ? Text(written) : offered->shown;
}

}  // namespace lumenkit::lumenform
