#include "widgets/items/option_rows.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "frame/numbers.h"

namespace lumenkit::widgets {

namespace {

constexpr char16_t itemBar = u'|';
constexpr char16_t valueEnd = u';';

std::optional<std::int32_t> NumberIn(TextView value) {
    constexpr std::size_t mostDigits = 9;
    const bool isNumber =
        !value.empty() && value.size() <= mostDigits &&
        std::ranges::all_of(value, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
    return isNumber ? std::optional(static_cast<std::int32_t>(ParseNumber(value))) : std::nullopt;
}

}  // namespace

OptionRow OptionRow::Of(TextView source) {
    const std::size_t end = source.find(valueEnd);
    return end == TextView::npos
               ? OptionRow{Text(source), Text(source), Text(source)}
               : OptionRow{Text(source), Text(source.substr(0, end)), Text(source.substr(end + 1))};
}

OptionRows::OptionRows(TextView contents) {
    for (;;) {
        const std::size_t end = contents.find(itemBar);
        rows_.push_back(OptionRow::Of(contents.substr(0, end)));
        if (end == TextView::npos) {
            return;
        }
        contents.remove_prefix(end + 1);
        if (contents.empty()) {
            hasLastBar_ = true;
            return;
        }
    }
}

// A last row without a text needs a bar at the end, because it would be no row otherwise.
Text OptionRows::Contents() const {
    Text contents;
    for (const OptionRow& row : rows_) {
        if (&row != &rows_.front()) {
            contents += itemBar;
        }
        contents += row.source;
    }
    if (hasLastBar_ || (rows_.size() > 1 && rows_.back().source.empty())) {
        contents += itemBar;
    }
    return contents;
}

void OptionRows::Set(std::size_t index, TextView value, TextView caption) {
    OptionRow& row = rows_.at(index);
    if (row.value != value || row.caption != caption) {
        row = {Text(value) + valueEnd + Text(caption), Text(value), Text(caption)};
    }
}

void OptionRows::Add() {
    std::int32_t next = 0;
    for (const OptionRow& row : rows_) {
        next = std::max(next, NumberIn(row.value).value_or(-1) + 1);
    }
    const Text number = Decimal(next);
    rows_.push_back(OptionRow::Of(number + u";Item " + number));
}

void OptionRows::Remove(std::size_t index) {
    if (rows_.size() > 1) {
        rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(index));
    }
}

void OptionRows::Move(std::size_t from, std::size_t to) {
    const auto row = [&](std::size_t index) {
        return rows_.begin() + static_cast<std::ptrdiff_t>(index);
    };
    if (from < to) {
        std::rotate(row(from), row(from + 1), row(to + 1));
    } else {
        std::rotate(row(to), row(from), row(from + 1));
    }
}

}  // namespace lumenkit::widgets
