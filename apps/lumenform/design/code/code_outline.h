// The procedures of a form's code, and the names that they mention.
#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "apps/lumenform/design/code/procedure.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// A procedure that mentions a name, with the line of the first mention. For an event procedure of
/// this name, that is the first line of the procedure.
struct Mention {
    std::size_t procedure;  ///< index
    std::size_t line;
    bool isOwn;  ///< an event procedure of this name
};

/// Reads code line by line, once. It needs no correct code: what is in no procedure belongs to the
/// declarations, and a procedure without an end ends at the next one.
class CodeOutline {
 public:
    explicit CodeOutline(TextView code = {});

    /// The declarations first, then the procedures in the order of the code.
    const std::vector<Procedure>& Procedures() const { return procedures_; }
    /// Returns the index of the procedure that begins at a line or before it.
    std::size_t ProcedureAt(std::size_t line) const;
    /// Returns the procedures that mention any of the names, each once: first their own event
    /// procedures, then the others, in the order of the code. Names are whole words in code, not in
    /// texts and comments, without regard to case.
    /// The event procedures of `form`, such as Form_Load of "Form", are those of the form even if a
    /// control has this name, too.
    std::vector<Mention> Mentioning(const std::vector<Text>& names, TextView form = {}) const;

 private:
    class Reader;
    using Places = std::unordered_map<Text, std::vector<Mention>>;  // by name in lower case

    void AddProcedure(Procedure::Kind kind, TextView name, std::size_t line);
    void AddWord(TextView word, std::size_t procedure, std::size_t line);

    std::vector<Procedure> procedures_{{Procedure::Kind::Declarations, {}, 0}};
    Places words_;
    Places own_;
    Text lower_;
};

}  // namespace lumenkit::lumenform
