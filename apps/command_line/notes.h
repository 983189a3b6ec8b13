// What help says about a program or a command besides its options.
#pragma once

#include <string>
#include <vector>

namespace lumenkit::cli {

/// A row of a list: a word, and what it means.
struct Entry {
    std::string name;
    std::string meaning;
};

/// What shells offer where an argument is written: words, or folders and the files with one of some
/// extensions.
struct Offered {
    std::vector<Entry> words = {};
    std::vector<std::string> extensions = {};  ///< "frm"
};

/// All parts may be empty. Without a heading, a section is a paragraph of the description.
struct Section {
    std::string heading = {};  ///< "Rules"
    std::string text = {};     ///< one paragraph, without line breaks
    std::vector<Entry> entries = {};
};

struct StatusMeaning {
    int status = 0;
    std::string meaning;
};

struct Notes {
    std::vector<Section> sections = {};
    std::vector<StatusMeaning> exitStatuses = {};
    std::vector<std::string> examples = {};  ///< for a shell; a line break continues a command
    Offered insteadOfCommand = {};  ///< where the program takes a command; help does not show it
};

/// Returns the notes as help prints them, in lines that fit a terminal, without a final line break.
std::string HelpText(const Notes& notes);

}  // namespace lumenkit::cli
