#include "apps/command_line/notes.h"

#include <algorithm>
#include <cstddef>

#include "apps/command_line/wrapped.h"

namespace lumenkit::cli {

namespace {

// The meaning of a longer name begins in a line of its own.
constexpr std::size_t longestName = 32;
constexpr std::size_t margin = 2;

std::size_t MeaningColumn(const std::vector<Entry>& entries) {
    std::size_t widest = 0;
    for (const Entry& entry : entries) {
        if (entry.name.size() <= longestName) {
            widest = std::max(widest, entry.name.size());
        }
    }
    return margin + widest + margin;
}

std::string Line(const Entry& entry, std::size_t column) {
    std::string line = std::string(margin, ' ') + entry.name;
    if (entry.meaning.empty()) {
        return line + '\n';
    }
    if (line.size() + margin > column) {
        line += '\n' + std::string(column, ' ');
    } else {
        line.resize(column, ' ');
    }
    return line + Wrapped(entry.meaning, terminalWidth - column, column) + '\n';
}

std::string Lines(const std::vector<Entry>& entries) {
    const std::size_t column = MeaningColumn(entries);
    std::string lines;
    for (const Entry& entry : entries) {
        lines += Line(entry, column);
    }
    return lines;
}

// An example that continues in further lines is indented as a whole.
std::string Example(const std::string& example) {
    std::string lines = "  ";
    for (const char letter : example) {
        lines += letter;
        if (letter == '\n') {
            lines += "  ";
        }
    }
    return lines + '\n';
}

class Parts {
 public:
    void Add(const std::string& part) { text_ += (text_.empty() ? "" : "\n") + part; }
    std::string Text() const { return text_.substr(0, text_.find_last_not_of('\n') + 1); }

 private:
    std::string text_;
};

std::string PartOf(const Section& section) {
    std::string part;
    if (!section.heading.empty()) {
        part += section.heading + ":\n";
    }
    if (!section.text.empty()) {
        part += Wrapped(section.text, terminalWidth) + '\n';
    }
    return part + Lines(section.entries);
}

}  // namespace

std::string HelpText(const Notes& notes) {
    Parts parts;
    for (const Section& section : notes.sections) {
        parts.Add(PartOf(section));
    }
    if (!notes.exitStatuses.empty()) {
        std::vector<Entry> statuses;
        for (const StatusMeaning& status : notes.exitStatuses) {
            statuses.push_back({std::to_string(status.status), status.meaning});
        }
        parts.Add("Exit status:\n" + Lines(statuses));
    }
    if (!notes.examples.empty()) {
        std::string examples = "Examples:\n";
        for (const std::string& example : notes.examples) {
            examples += Example(example);
        }
        parts.Add(examples);
    }
    return parts.Text();
}

}  // namespace lumenkit::cli
