#include "apps/lumenkit/check/exceptions.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <utility>

#include <fnmatch.h>

#include "apps/command_line/spelling/printable.h"
#include "apps/lumenkit/check/rules.h"
#include "forms/form_error.h"
#include "forms/plain_file.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::check {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Words(std::string_view line) {
    std::istringstream stream{std::string(line)};
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(std::move(word));
    }
    return words;
}

std::string Quoted(std::string_view text) {
    return '"' + Printable(text) + '"';
}

bool Matches(const std::string& pattern, const std::string& text) {
    return fnmatch(pattern.c_str(), text.c_str(), FNM_CASEFOLD) == 0;
}

bool MatchesPath(const std::string& pattern, const std::string& path) {
    const bool isForName = pattern.find('/') == std::string::npos;
    return Matches(pattern, isForName ? fs::path(path).filename().string() : path);
}

void RequireRule(const std::string& name) {
    if (name != "*" && FindRule(name) == nullptr) {
        throw BadException("there is no rule " + Quoted(name));
    }
}

bool IsComment(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    return first == std::string_view::npos || line[first] == '#';
}

std::string BytesOf(const fs::path& file) {
    try {
        return forms::ReadPlainFile(file);
    } catch (const forms::FormError& error) {
        throw BadException(file.string() + ": " + error.Description());
    }
}

std::vector<Exception> ReadFile(const fs::path& file) {
    std::vector<Exception> exceptions;
    std::string bytes = BytesOf(file);
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(byteOrderMark)) {
        bytes.erase(0, byteOrderMark.size());
    }
    std::istringstream stream(std::move(bytes));
    std::size_t number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        try {
            if (!IsComment(line)) {
                exceptions.push_back(ReadException(line));
            }
        } catch (const BadException& error) {
            throw BadException(file.string() + ':' + std::to_string(number) + ": " + error.what());
        }
    }
    return exceptions;
}

// The text of an allowing comment after its introduction.
std::optional<std::string> AllowedBy(TextView line) {
    constexpr TextView introduction = u"lumenkit: allow ";
    const TextView code = Trim(line);
    if (!code.starts_with(u'\'')) {
        return std::nullopt;
    }
    const TextView comment = Trim(code.substr(1));
    const bool allows =
        comment.size() > introduction.size() &&
        SameText(comment.substr(0, introduction.size()), introduction, Compare::IgnoreCase);
    return allows ? std::optional(ToUtf8(comment.substr(introduction.size()))) : std::nullopt;
}

Exception FromComment(const std::string& allowed) {
    const std::vector<std::string> words = Words(allowed);
    if (words.empty() || words.size() > 2) {
        throw BadException("expected a rule and at most one control, found " + Quoted(allowed));
    }
    RequireRule(words.front());
    return {.rule = words.front(), .subject = words.size() > 1 ? words[1] : "*"};
}

class Comments {
 public:
    Comments(const forms::Document& document, Findings& findings)
        : document_(document), findings_(findings) {}

    void Apply() {
        TextView rest = document_.Tail();
        for (std::size_t line = document_.TailPlace().line; !rest.empty(); ++line) {
            const std::size_t end = rest.find(u'\n');
            ApplyLine(rest.substr(0, end), line);
            rest.remove_prefix(end == TextView::npos ? rest.size() : end + 1);
        }
    }

 private:
    void ApplyLine(TextView text, std::size_t line) {
        const std::optional<std::string> allowed = AllowedBy(text);
        if (!allowed) {
            return;
        }
        try {
            const Exception exception = FromComment(*allowed);
            std::erase_if(findings_,
                          [&](const Finding& finding) { return Covers(exception, finding, {}); });
        } catch (const BadException& error) {
            Finding finding;
            finding.rule = rules::notUnderstood.name;
            finding.file = document_.Name();
            finding.place = {.line = line, .column = text.find(u'\'') + 1};
            finding.message = error.what();
            findings_.push_back(std::move(finding));
        }
    }

    const forms::Document& document_;
    Findings& findings_;
};

}  // namespace

Exception ReadException(std::string_view line) {
    const std::vector<std::string> words = Words(line.substr(0, line.find(" #")));
    if (words.empty() || words.size() > 3) {
        throw BadException("expected a rule, a path and a control, found " + Quoted(line));
    }
    RequireRule(words.front());
    Exception exception = {.rule = words.front()};
    if (words.size() > 1) {
        exception.path = words[1];
    }
    if (words.size() > 2) {
        exception.subject = words[2];
    }
    return exception;
}

bool Covers(const Exception& exception, const Finding& finding, const std::string& path) {
    const std::string whole = finding.control + '.' + finding.property;
    return (exception.rule == "*" || exception.rule == finding.rule) &&
           (exception.path == "*" || MatchesPath(exception.path, path)) &&
           (exception.subject == "*" || Matches(exception.subject, finding.control) ||
            Matches(exception.subject, whole));
}

const ExceptionFiles::Folder& ExceptionFiles::In(const fs::path& folder) {
    const auto known = known_.find(folder);
    if (known != known_.end()) {
        return known->second;
    }
    const fs::path file = folder / ".lumenkit";
    std::error_code unknown;
    Folder found;
    if (fs::exists(file, unknown)) {
        found.exceptions = ReadFile(file);
    }
    found.isLast = fs::exists(folder / ".git", unknown) || folder == folder.root_path();
    return known_.emplace(folder, std::move(found)).first->second;
}

void ExceptionFiles::Apply(const fs::path& file, Findings& findings) {
    const fs::path whole = fs::absolute(file).lexically_normal();
    bool isLast = false;
    for (fs::path path = whole.parent_path(); !isLast; path = path.parent_path()) {
        const Folder& folder = In(path);
        const std::string name = whole.lexically_relative(path).generic_string();
        for (const Exception& exception : folder.exceptions) {
            std::erase_if(findings,
                          [&](const Finding& finding) { return Covers(exception, finding, name); });
        }
        isLast = folder.isLast;
    }
}

void ApplyComments(const forms::Document& document, Findings& findings) {
    Comments(document, findings).Apply();
}

}  // namespace lumenkit::check
