#include "apps/lumenkit/check/spoken_name_check.h"

#include <algorithm>
#include <cstdint>

#include "apps/lumenkit/check/rules.h"
#include "forms/form_bag.h"
#include "forms/form_error.h"
#include "frame/runtime_error.h"
#include "vlabel/spoken_caption.h"

namespace lumenkit::check {

namespace {

constexpr TextView ownLabel = u"lumenkit.VLabel";
constexpr TextView ownLabelsCaption = u"VLabel";  // if none is saved

bool IsBlank(TextView text) {
    constexpr TextView blanks = u" \t\r\n";
    return text.find_first_not_of(blanks) == TextView::npos;
}

// A value that cannot be read counts as the default. Those of library controls are reported
// elsewhere.
Text SavedText(const forms::Document& document, forms::Block& block, TextView name,
               TextView otherwise) {
    try {
        return ToText(forms::FormBag(document, block, nullptr).ReadProperty(name, Text(otherwise)));
    } catch (const RuntimeError&) {
        return Text(otherwise);
    } catch (const forms::FormError&) {
        return Text(otherwise);
    }
}

bool HasText(const forms::Document& document, forms::Block& label) {
    if (!SameText(label.ClassName(), ownLabel, Compare::IgnoreCase)) {
        return !IsBlank(SavedText(document, label, u"Caption", {}));
    }
    const Text caption = SavedText(document, label, u"Caption", ownLabelsCaption);
    return !IsBlank(SpokenCaption(caption, SavedText(document, label, u"BulletPrefix", {})));
}

bool ShowsCaption(SavedControl& list) {
    const std::int16_t border = list.Read(u"BorderStyle", ToInteger).value_or(std::int16_t{1});
    return border != 0 && !IsBlank(list.Read(u"Caption", ToText).value_or(Text()));
}

}  // namespace

void CheckSpokenName(SavedControl& control, const forms::Document& document, forms::Block* label) {
    const bool isList = control.Type().name == u"VOptList";
    const bool isMemo = control.Type().name == u"VMemo";
    const bool isNamed =
        (label != nullptr && HasText(document, *label)) || (isList && ShowsCaption(control));
    if ((isList || isMemo) && !isNamed) {
        control.AddAboutControl(
            {rules::unnamedControl.name,
             0,
             isList ? "the frame shows no caption, and no label with a text is directly before the "
                      "list in the tab order; screen readers have no name for it"
                    : "no label with a text is directly before the memo in the tab order; screen "
                      "readers have no name for it",
             {}});
    }
}

}  // namespace lumenkit::check
