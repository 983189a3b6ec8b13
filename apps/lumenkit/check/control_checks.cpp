#include "apps/lumenkit/check/control_checks.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "apps/lumenkit/check/caption_check.h"
#include "apps/lumenkit/check/contents_check.h"
#include "apps/lumenkit/check/memo_check.h"

namespace lumenkit::check {

namespace {

// The memo uses a negative limit as 0.
std::int16_t Limit(const Value& value) {
    return std::max<std::int16_t>(ToInteger(value), 0);
}

}  // namespace

void CheckLabel(SavedControl& control) {
    if (const std::optional<Text> caption = control.Read(u"Caption", ToText)) {
        control.Add(u"Caption", *caption, CheckCaption(*caption));
    }
}

void CheckMemo(SavedControl& control) {
    const std::optional<Text> text = control.Read(u"Text", ToText);
    const std::optional<std::int16_t> maxCharsPerLine = control.Read(u"MaxCharsPerLine", Limit);
    const std::optional<std::int16_t> maxLines = control.Read(u"MaxLines", Limit);
    if (text && maxCharsPerLine && maxLines) {
        control.Add(u"Text", *text, CheckMemoText(*text, {*maxCharsPerLine, *maxLines}));
    }
}

void CheckOptionList(SavedControl& control) {
    const std::optional<Text> contents = control.Read(u"Contents", ToText);
    const std::optional<std::int16_t> listIndex = control.Read(u"ListIndex", ToInteger);
    if (!contents) {
        return;
    }
    const ContentsCheck check = CheckContents(*contents);
    control.Add(u"Contents", *contents, check.remarks);
    if (listIndex) {
        control.AddWhole(u"ListIndex", CheckListIndex(*listIndex, check.itemCount));
    }
}

}  // namespace lumenkit::check
