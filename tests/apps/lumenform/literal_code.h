// A slow, literal reading of code, against which the outline is compared. It cleans the whole text
// first and then searches it with regular expressions.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace lumenkit::testing {

/// The code in ASCII, with LF after each line.
class LiteralCode {
 public:
    explicit LiteralCode(const std::string& code);

    /// "2 Sub Form_Load", with the number of the line from 0. The first one is "0 Declarations".
    const std::vector<std::string>& Procedures() const { return procedures_; }
    /// Returns the indices of the procedures that mention a word or are its event procedures.
    std::set<std::size_t> Mentioning(const std::string& name) const;

 private:
    struct Statement {
        std::string text;
        std::size_t line;
    };
    void Read(const Statement& statement);

    std::vector<std::string> procedures_{"0 Declarations"};
    std::vector<std::string> owners_{""};
    std::vector<std::string> texts_{""};  // by procedure, in lower case
    std::size_t current_ = 0;
};

}  // namespace lumenkit::testing
