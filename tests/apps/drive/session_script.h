// Written conversations with "lumenkit drive".
//
// "> " begins a request. The lines with "< " that follow it are joined to the expected answer.
// "<~ " instead gives members that the answer must have. Any other line is a remark.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace lumenkit::testing {

struct Exchange {
    int line = 0;  ///< the line of the request, from 1
    std::string request = {};
    std::string answer = {};
    bool isPartial = false;
};

using Script = std::vector<Exchange>;

Script ParseScript(const std::string& text);

/// Returns one script for each block that a Markdown text fences as "```session".
std::vector<Script> ScriptsIn(const std::string& markdown);

/// Returns what differs from the expected answer; empty if nothing does.
std::string Difference(const Exchange& exchange, const std::string& answer);

std::vector<std::string> LinesOf(const std::string& text);

}  // namespace lumenkit::testing
