#include "apps/lumenform/design/code/code_outline.h"

#include <algorithm>
#include <map>

#include "apps/lumenform/design/code/code_line.h"
#include "apps/lumenform/design/code/statement_reader.h"

namespace lumenkit::lumenform {

TextView OwnerOf(const Procedure& procedure) {
    const TextView name = procedure.name;
    const std::size_t bar = name.rfind(u'_');
    return procedure.kind == Procedure::Kind::Sub && bar != TextView::npos ? name.substr(0, bar)
                                                                           : TextView();
}

// Reads one line after the other.
class CodeOutline::Reader {
 public:
    explicit Reader(CodeOutline& outline) : outline_(outline) {}

    void Take(TextView line) {
        if (continued_ != Continued::Statement) {
            BeginStatement();
        }
        continued_ = DivideLine(line, continued_, parts_);
        for (const CodePart& part : parts_) {
            TakePart(part.kind, line.substr(part.start, part.length));
        }
        ++line_;
    }

 private:
    void BeginStatement() {
        statement_ = {};
        current_ = isEnd_ ? 0 : current_;
        isEnd_ = false;
    }

    void TakePart(CodePart::Kind kind, TextView text) {
        if (kind == CodePart::Kind::Comment) {
            return;
        }
        if (kind == CodePart::Kind::Sign && text == u":") {
            BeginStatement();
            return;
        }
        if (statement_.IsAtStart()) {
            statementLine_ = line_;
        }
        switch (statement_.Take(kind, text)) {
            case StatementReader::Meaning::Begins:
                outline_.AddProcedure(statement_.Kind(), text, statementLine_);
                current_ = outline_.procedures_.size() - 1;
                break;
            case StatementReader::Meaning::Ends:
                isEnd_ = true;
                break;
            case StatementReader::Meaning::Other:
                break;
        }
        const bool isName = kind == CodePart::Kind::Word || kind == CodePart::Kind::Name;
        if (isName && !statement_.IsForCompiler()) {
            outline_.AddWord(text, current_, line_);
        }
    }

    CodeOutline& outline_;
    std::vector<CodePart> parts_;
    StatementReader statement_;
    Continued continued_ = Continued::Nothing;
    std::size_t line_ = 0;
    std::size_t statementLine_ = 0;
    std::size_t current_ = 0;  // procedure
    bool isEnd_ = false;       // the statement ends it
};

CodeOutline::CodeOutline(TextView code) {
    Reader reader(*this);
    while (!code.empty()) {
        const std::size_t end = std::min(code.find(u'\n'), code.size());
        const std::size_t length = end > 0 && code[end - 1] == u'\r' ? end - 1 : end;
        reader.Take(code.substr(0, length));
        code.remove_prefix(std::min(end + 1, code.size()));
    }
}

void CodeOutline::AddProcedure(Procedure::Kind kind, TextView name, std::size_t line) {
    const Procedure& added = procedures_.emplace_back(Procedure{kind, Text(name), line});
    if (const TextView owner = OwnerOf(added); !owner.empty()) {
        own_[LCase(owner)].push_back({procedures_.size() - 1, line, true});
    }
}

void CodeOutline::AddWord(TextView word, std::size_t procedure, std::size_t line) {
    lower_.clear();
    AppendLCase(lower_, word);
    std::vector<Mention>& places = words_[lower_];
    if (places.empty() || places.back().procedure != procedure) {
        places.push_back({procedure, line, false});
    }
}

std::size_t CodeOutline::ProcedureAt(std::size_t line) const {
    const auto after = std::ranges::upper_bound(procedures_, line, {}, &Procedure::line);
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(after - procedures_.begin() - 1, 0));
}

std::vector<Mention> CodeOutline::Mentioning(const std::vector<Text>& names, TextView form) const {
    std::map<std::pair<bool, std::size_t>, Mention> found;  // their own ones first
    const auto add = [&](const Places& places, const Text& name) {
        if (const auto at = places.find(LCase(name)); at != places.end()) {
            for (const Mention& mention : at->second) {
                const auto [entry, isNew] =
                    found.emplace(std::pair(!mention.isOwn, mention.procedure), mention);
                if (!isNew && mention.line < entry->second.line) {
                    entry->second = mention;
                }
            }
        }
    };
    for (const Text& name : names) {
        if (!SameText(name, form, Compare::IgnoreCase)) {
            add(own_, name);
        }
        add(words_, name);
    }
    std::vector<Mention> mentions;
    for (const auto& [order, mention] : found) {
        if (order.first && found.contains({false, order.second})) {
            continue;
        }
        mentions.push_back(mention);
    }
    return mentions;
}

}  // namespace lumenkit::lumenform
