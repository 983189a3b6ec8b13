// Generated uses of an option list.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "frame/text.h"

namespace lumenkit::testing {

enum class ListAction {
    Contents,
    ListIndex,
    Text,
    ItemCaption,
    UserClick,
    Mode,
    Reload,
    Enabled,
    BorderStyle,
    Caption,
    NewFont,  ///< of the frame
    NoFont,
    ChangeFont,  ///< through the object that Font returns
    ItemAlignment,
    ItemFontBold,
    ItemFontItalic,
    ItemFontName,
    ItemFontSize,
    ItemForeColor,
    LeftMargin,
    Spacing,
    TopMargin,
    Width,      ///< of the control
    AllowText,  ///< whether the container lets Text change
    OnClick,    ///< the container's reaction to Click, a ListReaction
    Count,
};

enum class ListReaction { Nothing, Deselect, SelectFirst, AssignText, AssignContents };

/// One action with its arguments. Each action reads only some of them.
struct ListStep {
    ListAction action = ListAction::Contents;
    std::int16_t number = 0;
    float distance = 0;
    Text text = {};
};

/// Describes a step for messages. Long texts are cut.
std::string Describe(const ListStep& step);

class OptionListGenerator {
 public:
    explicit OptionListGenerator(std::uint32_t seed) : random_(seed) {}

    std::vector<ListStep> Steps();

 private:
    /// Returns a number from 0 to below - 1.
    int Number(int below);
    bool OneIn(int count) { return Number(count) == 0; }
    template <typename T, std::size_t count>
    const T& Any(const T (&choices)[count]) {
        return choices[Number(static_cast<int>(count))];
    }
    ListStep Step();
    ListAction Action();
    Text Value();
    Text Item();
    Text Contents();
    Text LongContents();

    std::mt19937 random_;
    Text contents_;
};

}  // namespace lumenkit::testing
