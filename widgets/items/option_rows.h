// The items of an option list, each with the text that it has in the property Contents.
#pragma once

#include <cstddef>
#include <vector>

#include "frame/text.h"

namespace lumenkit::widgets {

/// One item: its text, and the value and caption in it.
struct OptionRow {
    Text source;
    Text value;
    Text caption;

    /// Reads "value;caption". A text without a semicolon is both.
    static OptionRow Of(TextView source);
};

/// The rows of a contents text. Rows that are not edited keep their texts, and so does a bar at the
/// end, which adds no row. There is always at least one row.
class OptionRows {
 public:
    explicit OptionRows(TextView contents);

    /// Returns the text of all rows.
    Text Contents() const;

    std::size_t Count() const { return rows_.size(); }
    const OptionRow& At(std::size_t index) const { return rows_.at(index); }
    /// Sets value and caption. The text of the row stays if both stay.
    void Set(std::size_t index, TextView value, TextView caption);
    /// Adds a row at the end: the next number with a caption.
    void Add();
    void Remove(std::size_t index);
    void Move(std::size_t from, std::size_t to);

 private:
    std::vector<OptionRow> rows_;
    bool hasLastBar_ = false;
};

}  // namespace lumenkit::widgets
