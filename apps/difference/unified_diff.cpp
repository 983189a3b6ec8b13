#include "apps/difference/unified_diff.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <span>
#include <vector>

#include <dtl/dtl.hpp>

namespace lumenkit::difference {

namespace {

using Lines = std::vector<std::string_view>;

// The lines with their line feeds.
Lines LinesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

// Lines of the first file that are replaced by lines of the second. Numbers are from 0.
struct Change {
    std::size_t oldBegin = 0;
    std::size_t oldEnd = 0;
    std::size_t newBegin = 0;
    std::size_t newEnd = 0;
};

// Returns the changes from the beginning to the end.
std::vector<Change> ChangesBetween(const Lines& before, const Lines& after) {
    dtl::Diff<std::string_view, Lines> diff(before, after);
    diff.onHuge();
    diff.compose();
    std::vector<Change> changes;
    Change at;  // where the next change would be
    for (const auto& [line, edit] : diff.getSes().getSequence()) {
        if (edit.type == dtl::SES_COMMON) {
            ++at.oldEnd;
            ++at.newEnd;
            at.oldBegin = at.oldEnd;
            at.newBegin = at.newEnd;
            continue;
        }
        ++(edit.type == dtl::SES_DELETE ? at.oldEnd : at.newEnd);
        if (!changes.empty() && changes.back().oldBegin == at.oldBegin &&
            changes.back().newBegin == at.newBegin) {
            changes.back() = at;
        } else {
            changes.push_back(at);
        }
    }
    return changes;
}

constexpr std::size_t context = 3;

// Whether both changes are shown with the lines between them.
bool AreClose(const Change& change, const Change& next) {
    return next.oldBegin - change.oldEnd <= 2 * context;
}

class HunkWriter {
 public:
    HunkWriter(const Lines& before, const Lines& after) : before_(before), after_(after) {}

    std::string Write(std::span<const Change> changes) const {
        const Change& first = changes.front();
        const Change& last = changes.back();
        const std::size_t lead = std::min(context, first.oldBegin);
        const std::size_t trail = std::min(context, before_.size() - last.oldEnd);
        std::string text = "@@ -" + Range(first.oldBegin - lead, last.oldEnd + trail) + " +" +
                           Range(first.newBegin - lead, last.newEnd + trail) + " @@\n";
        std::size_t at = first.oldBegin - lead;
        for (const Change& change : changes) {
            AddLines(text, ' ', before_, at, change.oldBegin);
            AddLines(text, '-', before_, change.oldBegin, change.oldEnd);
            AddLines(text, '+', after_, change.newBegin, change.newEnd);
            at = change.oldEnd;
        }
        AddLines(text, ' ', before_, at, at + trail);
        return text;
    }

 private:
    // Lines count from 1; an empty range is named after the line before it.
    static std::string Range(std::size_t begin, std::size_t end) {
        const std::size_t count = end - begin;
        return std::to_string(count == 0 ? begin : begin + 1) +
               (count == 1 ? "" : ',' + std::to_string(count));
    }

    static void AddLines(std::string& text, char mark, const Lines& lines, std::size_t begin,
                         std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            text += mark;
            text += lines[i];
            if (!lines[i].ends_with('\n')) {
                text += "\n\\ No newline at end of file\n";
            }
        }
    }

    const Lines& before_;
    const Lines& after_;
};

// A name with unusual characters is quoted as in C. A tab ends a name with blanks.
std::string Name(const std::string& prefix, const std::string& file) {
    const std::string path = std::filesystem::path(file).lexically_normal().generic_string();
    const std::string name = prefix + (path.starts_with('/') ? "" : "/") + path;
    const auto isUnusual = [](char letter) {
        return (letter >= 0 && letter < ' ') || letter == '"' || letter == '\\' || letter == '\x7f';
    };
    if (std::ranges::none_of(name, isUnusual)) {
        return name + (name.find(' ') == std::string::npos ? "" : "\t");
    }
    std::string quoted = "\"";
    for (const char letter : name) {
        if (isUnusual(letter)) {
            const auto byte = static_cast<unsigned char>(letter);
            constexpr unsigned octal = 8;
            quoted += '\\';
            quoted += static_cast<char>('0' + byte / octal / octal);
            quoted += static_cast<char>('0' + byte / octal % octal);
            quoted += static_cast<char>('0' + byte % octal);
        } else {
            quoted += letter;
        }
    }
    return quoted + '"';
}

}  // namespace

std::string UnifiedDiff(const std::string& file, std::string_view before, std::string_view after) {
    const Lines oldLines = LinesOf(before);
    const Lines newLines = LinesOf(after);
    const std::vector<Change> changes = ChangesBetween(oldLines, newLines);
    if (changes.empty()) {
        return {};
    }
    std::string diff = "--- " + Name("a", file) + "\n+++ " + Name("b", file) + '\n';
    const HunkWriter hunks(oldLines, newLines);
    const auto areApart = [](const Change& change, const Change& next) {
        return !AreClose(change, next);
    };
    for (auto begin = changes.begin(); begin != changes.end();) {
        const auto last = std::adjacent_find(begin, changes.end(), areApart);
        const auto end = last == changes.end() ? last : last + 1;
        diff += hunks.Write({begin, end});
        begin = end;
    }
    return diff;
}

}  // namespace lumenkit::difference
