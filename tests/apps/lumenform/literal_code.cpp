#include "tests/apps/lumenform/literal_code.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <sstream>

namespace lumenkit::testing {

namespace {

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char letter) { return std::tolower(letter); });
    return text;
}

bool IsContinued(const std::string& line) {
    static const std::regex mark("[ \t]_[ \t]*$");
    return std::regex_search(line, mark);
}

// Replaces the texts of a line, and cuts a comment off. Sets `isComment` if there is one.
std::string Cleaned(const std::string& line, bool& isComment) {
    static const std::regex part(R"re(^("([^"]|"")*("|$)|'|[A-Za-z_][A-Za-z0-9_]*|[\s\S]))re");
    std::string clean;
    std::string rest = line;
    for (std::smatch match; std::regex_search(rest, match, part); rest = match.suffix()) {
        const std::string found = match.str();
        const bool isMember = !clean.empty() && (clean.back() == '.' || clean.back() == '!');
        isComment = found == "'" || (Lower(found) == "rem" && !isMember);
        if (isComment) {
            break;
        }
        clean += found.front() == '"' ? "\"\"" : found;
    }
    return clean;
}

}  // namespace

LiteralCode::LiteralCode(const std::string& code) {
    std::istringstream lines(code);
    std::vector<Statement> statements(1, Statement{"", 0});
    bool isComment = false;
    bool isContinued = false;
    std::size_t number = 0;
    for (std::string line; std::getline(lines, line); ++number) {
        const bool isCommentLine = isContinued && isComment;
        std::string clean;
        if (!isCommentLine) {
            if (!isContinued) {
                statements.push_back({"", number});
            }
            clean = Cleaned(line, isComment);
        }
        isContinued = IsContinued(isComment || isCommentLine ? line : clean);
        if (isContinued && !isComment) {
            clean = std::regex_replace(clean, std::regex("_[ \t]*$"), "");
        }
        static const std::regex separator(":(?!=)");
        std::sregex_token_iterator piece(clean.begin(), clean.end(), separator, -1);
        for (bool isFirst = true; piece != std::sregex_token_iterator(); ++piece) {
            Statement& last = statements.back();
            const bool isBlank = last.text.find_first_not_of(" \t0123456789") == std::string::npos;
            if (!isFirst) {
                statements.push_back({piece->str(), number});
            } else {
                last.line = isBlank ? number : last.line;
                last.text += " " + piece->str();
            }
            isFirst = false;
        }
        static const std::regex colonAtEnd(":$");
        if (std::regex_search(clean, colonAtEnd)) {
            statements.push_back({"", number});
        }
    }
    for (const Statement& statement : statements) {
        Read(statement);
    }
}

void LiteralCode::Read(const Statement& statement) {
    static const std::regex header(
        R"(^[\s0-9]*((public|private|friend|static|global)\s+)*(sub|function|property\s+(get|let|set))(\s*\[([^\]]*)\]|\s+([a-z_]\w*)))",
        std::regex::icase);
    static const std::regex end(R"(^[\s0-9]*end\s+(sub|function|property)\b)", std::regex::icase);
    static const std::regex forCompiler(R"(^[\s0-9]*(#|attribute\b))", std::regex::icase);
    std::smatch match;
    if (std::regex_search(statement.text, match, header)) {
        const std::string name = match[6].matched ? match[6].str() : match[7].str();
        const std::string kind = Lower(match[4].matched ? match[4].str() : match[3].str());
        const std::string title(1, static_cast<char>(std::toupper(kind.front())));
        procedures_.push_back(std::to_string(statement.line) + " " + title + kind.substr(1) + " " +
                              name);
        const auto bar = name.rfind('_');
        owners_.push_back(kind == "sub" && bar != std::string::npos ? Lower(name.substr(0, bar))
                                                                    : "");
        texts_.emplace_back();
        current_ = procedures_.size() - 1;
    }
    if (!std::regex_search(statement.text, forCompiler)) {
        texts_[current_] += " : " + Lower(statement.text);
    }
    if (std::regex_search(statement.text, end)) {
        current_ = 0;
    }
}

std::set<std::size_t> LiteralCode::Mentioning(const std::string& name) const {
    std::set<std::size_t> found;
    const std::regex word("\\b" + Lower(name) + "\\b");
    for (std::size_t index = 0; index < texts_.size(); ++index) {
        if (owners_[index] == Lower(name) || std::regex_search(texts_[index], word)) {
            found.insert(index);
        }
    }
    return found;
}

}  // namespace lumenkit::testing
