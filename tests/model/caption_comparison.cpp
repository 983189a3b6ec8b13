#include "tests/model/caption_comparison.h"

#include <algorithm>

#include "frame/utf8.h"

namespace lumenkit::testing {

namespace {

std::vector<Text> Entries(const TextList& list) {
    std::vector<Text> entries;
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
        entries.emplace_back(list.Item(i));
    }
    return entries;
}

std::string Shown(const std::vector<Text>& entries, std::size_t index) {
    return index < entries.size() ? "\"" + ToUtf8(entries[index]) + "\"" : "nothing";
}

std::string FirstDifference(std::string_view what, const std::vector<Text>& ours,
                            const std::vector<Text>& literal) {
    for (std::size_t i = 0; i < std::max(ours.size(), literal.size()); ++i) {
        if (i >= ours.size() || i >= literal.size() || ours[i] != literal[i]) {
            return std::string(what) + " " + std::to_string(i + 1) + ": " + Shown(ours, i) +
                   ", literally " + Shown(literal, i) + "\n";
        }
    }
    return "";
}

}  // namespace

std::string CaptionComparison::Difference(TextView caption) {
    module_.reporter.messages.clear();
    compiler_.CompileCaption(caption);
    literal_ = CompileLiterally(caption);
    const CompiledCaption& compiled = compiler_.Compiled();
    const std::string difference =
        FirstDifference("line", Entries(compiled.CaptionLines), literal_.CaptionLines) +
        FirstDifference("name", Entries(compiled.CommandNames), literal_.CommandNames) +
        FirstDifference("parameter", Entries(compiled.CommandParams), literal_.CommandParams) +
        FirstDifference("report", module_.reporter.messages, literal_.reports);
    return difference.empty() ? difference : difference + "of the caption " + ToUtf8(caption);
}

Text CaptionFromBytes(std::string_view bytes) {
    try {
        return FromUtf8(bytes);
    } catch (const MalformedUtf8&) {
        Text text;
        for (const char byte : bytes) {
            text += static_cast<unsigned char>(byte);
        }
        return text;
    }
}

}  // namespace lumenkit::testing
