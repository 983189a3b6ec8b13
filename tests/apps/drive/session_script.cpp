#include "tests/apps/drive/session_script.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace lumenkit::testing {

namespace {

using Json = nlohmann::ordered_json;

// Whether `whole` has all members of `part`. Arrays must have the same length.
bool Holds(const Json& whole, const Json& part) {
    if (part.is_object() && whole.is_object()) {
        return std::all_of(part.items().begin(), part.items().end(), [&](const auto& member) {
            const auto found = whole.find(member.key());
            return found != whole.end() && Holds(*found, member.value());
        });
    }
    if (part.is_array() && whole.is_array()) {
        return std::equal(whole.begin(), whole.end(), part.begin(), part.end(), Holds);
    }
    return whole.dump() == part.dump();
}

}  // namespace

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

Script ParseScript(const std::string& text) {
    Script script;
    int number = 0;
    for (const std::string& line : LinesOf(text)) {
        ++number;
        if (line.starts_with("> ")) {
            script.push_back({.line = number, .request = line.substr(2)});
        } else if (line.starts_with("<")) {
            Exchange& exchange = script.at(script.size() - 1);
            exchange.isPartial = exchange.isPartial || line.starts_with("<~");
            exchange.answer += line.substr(std::min(line.size(), line.find(' ')));
        }
    }
    return script;
}

std::vector<Script> ScriptsIn(const std::string& markdown) {
    std::vector<Script> scripts;
    bool inside = false;
    std::string block;
    int line = 0;
    int first = 0;
    for (const std::string& text : LinesOf(markdown)) {
        ++line;
        if (!inside && text == "```session") {
            inside = true;
            first = line;
            block.clear();
        } else if (inside && text == "```") {
            inside = false;
            Script script = ParseScript(block);
            for (Exchange& exchange : script) {
                exchange.line += first;
            }
            scripts.push_back(script);
        } else if (inside) {
            block += text + '\n';
        }
    }
    return scripts;
}

std::string Difference(const Exchange& exchange, const std::string& answer) {
    const Json expected = Json::parse(exchange.answer);
    const bool isExpected =
        exchange.isPartial ? Holds(Json::parse(answer), expected) : answer == expected.dump();
    return isExpected ? "" : "expected " + expected.dump() + "\n but got " + answer;
}

}  // namespace lumenkit::testing
