// The pages of a tabbed control in its block: the number of pages, the current one, and for each
// page the names of its controls.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "forms/block.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Twips by which form files move the controls of all pages but the current one to the left.
inline constexpr float pageOffset = 75000;

/// Whether the controls in this one are on pages.
bool HasPages(const forms::Block& block);

class SavedPages {
 public:
    static constexpr int most = 250;

    explicit SavedPages(const forms::Block& block);

    int Count() const { return count_; }
    /// The page that is shown when the form is opened, from 0 to Count() - 1.
    int Current() const { return current_; }
    /// Returns the page that lists the control, or nullopt if none does. `name` is the name in
    /// code.
    std::optional<int> PageOf(TextView name) const;
    /// The names of the controls on a page in the order of the list. Empty for any other number.
    const std::vector<Text>& NamesOn(int page) const;

 private:
    int count_;
    int current_;
    std::map<Text, int> pages_;  // by the name in lower case
    std::map<int, std::vector<Text>> names_;
};

/// Replaces the names on a page. Lines that stay the same are not changed.
void StoreNames(forms::Block& block, int page, const std::vector<Text>& names);

}  // namespace lumenkit::lumenform
