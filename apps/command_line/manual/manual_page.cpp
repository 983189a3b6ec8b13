#include "apps/command_line/manual/manual_page.h"

#include <algorithm>

#include "apps/command_line/manual/roff.h"

namespace lumenkit::cli {

namespace {

using roff::Bold;
using roff::Escaped;
using roff::Heading;
using roff::Italic;
using roff::Tagged;

// "Find mistakes." becomes "find mistakes", as the line of a name is written.
std::string Summary(const DescribedCommand& command) {
    std::string summary = command.description;
    if (summary.ends_with('.')) {
        summary.pop_back();
    }
    if (!summary.empty() && summary[0] >= 'A' && summary[0] <= 'Z') {
        summary[0] = static_cast<char>(summary[0] - 'A' + 'a');
    }
    return summary;
}

std::string Sentence(const std::string& text) {
    return text.ends_with('.') ? text : text + '.';
}

std::string Reference(const std::string& page) {
    return Bold(page) + "(1)";
}

class Page {
 public:
    Page(const DescribedCommand& program, const DescribedCommand& shown, const std::string& version)
        : program_(program), shown_(shown), isProgram_(&program == &shown) {
        text_ = ".TH " + Escaped(Name()) + R"( 1 "" ")" + Escaped(version) + "\" \"" +
                Escaped(program.name) + "\"\n";
        AddSynopsis();
        AddDescription();
        AddList("Arguments", shown.positionals);
        AddList("Options", shown.options);
        AddCommands();
        AddSections();
        AddExitStatuses();
        AddExamples();
        AddReferences();
    }

    std::string Name() const {
        return isProgram_ ? program_.name : program_.name + '-' + shown_.name;
    }
    const std::string& Text() const { return text_; }

 private:
    void AddSynopsis() {
        text_ += Heading("Name") + Escaped(Name()) + " \\- " + Escaped(Summary(shown_)) + '\n' +
                 Heading("Synopsis") +
                 Bold(isProgram_ ? program_.name : program_.name + ' ' + shown_.name);
        for (const DescribedOption& option : shown_.options) {
            if (option.required) {
                text_ += ' ' + Bold(option.names.front()) + ' ' + Italic(option.placeholder);
            }
        }
        text_ += " [" + Italic("OPTIONS") + ']';
        for (const DescribedOption& positional : shown_.positionals) {
            const std::string name =
                Italic(positional.placeholder) + (positional.repeats ? "..." : "");
            text_ += positional.required ? ' ' + name : " [" + name + ']';
        }
        if (!shown_.commands.empty()) {
            text_ += shown_.needsCommand ? " " + Italic("COMMAND") : " [" + Italic("COMMAND") + ']';
        }
        text_ += '\n';
    }

    void AddDescription() {
        text_ += Heading("Description") + Escaped(Sentence(shown_.description)) + '\n';
        for (const Section& section : shown_.notes.sections) {
            if (section.heading.empty()) {
                text_ += ".PP\n" + Escaped(section.text) + '\n';
                AddEntries(section.entries);
            }
        }
    }

    void AddList(const std::string& heading, const std::vector<DescribedOption>& options) {
        if (options.empty()) {
            return;
        }
        text_ += Heading(heading);
        for (const DescribedOption& option : options) {
            std::string tag;
            for (const std::string& name : option.names) {
                tag += (tag.empty() ? "" : ", ") + Bold(name);
            }
            if (!option.optionalValue.empty()) {
                tag += '[' + option.optionalValue + ']';
            }
            if (TakesValue(option)) {
                tag += (tag.empty() ? "" : " ") + Italic(option.placeholder);
            }
            text_ += Tagged(tag, Sentence(option.description));
        }
    }

    void AddCommands() {
        if (shown_.commands.empty()) {
            return;
        }
        text_ += Heading("Commands");
        for (const DescribedCommand& command : shown_.commands) {
            text_ += Tagged(Reference(program_.name + '-' + command.name),
                            Sentence(command.description));
        }
    }

    void AddSections() {
        for (const Section& section : shown_.notes.sections) {
            if (section.heading.empty()) {
                continue;
            }
            text_ += Heading(section.heading);
            if (!section.text.empty()) {
                text_ += Escaped(section.text) + '\n';
            }
            AddEntries(section.entries);
        }
    }

    void AddEntries(const std::vector<Entry>& entries) {
        for (const Entry& entry : entries) {
            text_ += Tagged(Bold(entry.name), entry.meaning);
        }
    }

    void AddExitStatuses() {
        if (shown_.notes.exitStatuses.empty()) {
            return;
        }
        text_ += Heading("Exit status");
        for (const StatusMeaning& status : shown_.notes.exitStatuses) {
            text_ += Tagged(Bold(std::to_string(status.status)), status.meaning);
        }
    }

    void AddExamples() {
        if (shown_.notes.examples.empty()) {
            return;
        }
        text_ += Heading("Examples") + ".nf\n";
        for (const std::string& example : shown_.notes.examples) {
            text_ += Escaped(example) + '\n';
        }
        text_ += ".fi\n";
    }

    void AddReferences() {
        std::vector<std::string> pages;
        if (!isProgram_) {
            pages.push_back(program_.name);
        }
        for (const DescribedCommand& command : program_.commands) {
            if (&command != &shown_) {
                pages.push_back(program_.name + '-' + command.name);
            }
        }
        if (pages.empty()) {
            return;
        }
        text_ += Heading("See also");
        for (const std::string& page : pages) {
            text_ += Reference(page) + (page == pages.back() ? "\n" : ",\n");
        }
    }

    const DescribedCommand& program_;
    const DescribedCommand& shown_;
    bool isProgram_;
    std::string text_;
};

}  // namespace

std::vector<ManualPage> ManualPages(const DescribedCommand& program, const std::string& version) {
    std::vector<ManualPage> pages;
    const auto add = [&](const DescribedCommand& shown) {
        const Page page(program, shown, version);
        pages.push_back({page.Name() + ".1", page.Text()});
    };
    add(program);
    std::ranges::for_each(program.commands, add);
    return pages;
}

}  // namespace lumenkit::cli
