// Written conversations with "lumenkit drive".
//
// "> " begins a request; the lines that follow with "< " are, joined, the answer expected. "<~ "
// instead expects an answer that holds at least these members. Anything else is a remark.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace lumenkit::testing {

struct Exchange {
    int line = 0;  ///< where the request stands, from 1
    std::string request = {};
    std::string answer = {};
    bool isPartial = false;
};

using Script = std::vector<Exchange>;

Script ParseScript(const std::string& text);

/// One script for each block that a Markdown text fences as "```session".
std::vector<Script> ScriptsIn(const std::string& markdown);

/// Nothing where `answer` is what the exchange expects, else what differs.
std::string Difference(const Exchange& exchange, const std::string& answer);

std::vector<std::string> LinesOf(const std::string& text);

}  // namespace lumenkit::testing
