#include "apps/lumenkit/check/fix/unified_diff.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <span>
#include <vector>

#include "apps/command_line/spelling/printable.h"

namespace lumenkit::check {

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

// Finds changes from the beginning to the end. After a difference, it goes on at the nearest two
// lines that are equal: mendings change few lines.
class Comparison {
 public:
    Comparison(const Lines& before, const Lines& after) : before_(before), after_(after) {}

    std::vector<Change> Changes() {
        std::vector<Change> changes;
        while (old_ < before_.size() || new_ < after_.size()) {
            if (IsSame(old_, new_)) {
                ++old_;
                ++new_;
                continue;
            }
            Change change{old_, old_, new_, new_};
            PassDifference();
            change.oldEnd = old_;
            change.newEnd = new_;
            changes.push_back(change);
        }
        return changes;
    }

 private:
    bool IsSame(std::size_t left, std::size_t right) const {
        return left < before_.size() && right < after_.size() && before_[left] == after_[right];
    }

    void PassDifference() {
        const std::size_t oldLeft = before_.size() - old_;
        const std::size_t newLeft = after_.size() - new_;
        for (std::size_t distance = 1; distance < oldLeft + newLeft; ++distance) {
            const std::size_t least = distance > newLeft ? distance - newLeft : 0;
            for (std::size_t skipped = least; skipped <= std::min(distance, oldLeft); ++skipped) {
                if (IsSame(old_ + skipped, new_ + distance - skipped)) {
                    old_ += skipped;
                    new_ += distance - skipped;
                    return;
                }
            }
        }
        old_ = before_.size();
        new_ = after_.size();
    }

    const Lines& before_;
    const Lines& after_;
    std::size_t old_ = 0;
    std::size_t new_ = 0;
};

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

const char* ColorOf(std::string_view line) {
    if (line.starts_with("---") || line.starts_with("+++")) {
        return "\x1b[1m";
    }
    switch (line.empty() ? ' ' : line.front()) {
        case '-':
            return "\x1b[31m";
        case '+':
            return "\x1b[32m";
        case '@':
            return "\x1b[36m";
        default:
            return "";
    }
}

}  // namespace

std::string UnifiedDiff(const std::string& file, std::string_view before, std::string_view after) {
    const Lines oldLines = LinesOf(before);
    const Lines newLines = LinesOf(after);
    const std::vector<Change> changes = Comparison(oldLines, newLines).Changes();
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

std::string DiffForTerminal(std::string_view diff, bool isColored) {
    std::string shown;
    for (std::string_view line : LinesOf(diff)) {
        line.remove_suffix(line.ends_with("\r\n") ? 2 : line.ends_with('\n') ? 1 : 0);
        const std::string color = isColored ? ColorOf(line) : "";
        shown += color + Printable(line) + (color.empty() ? "" : "\x1b[0m") + '\n';
    }
    return shown;
}

}  // namespace lumenkit::check
