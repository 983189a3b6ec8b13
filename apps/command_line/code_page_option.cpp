#include "apps/command_line/code_page_option.h"

#include <stdexcept>
#include <string>

#include "forms/code_page.h"
#include "forms/encoding.h"

namespace lumenkit::cli {

namespace {

std::string RequireCodePage(const std::string& number) {
    try {
        const int page = std::stoi(number);
        if (page != forms::utf8CodePage) {
            static_cast<void>(forms::CodePage(page));
        }
        return {};
    } catch (const std::logic_error&) {
        return number + " is not a supported code page";
    }
}

}  // namespace

void AddCodePageOption(CLI::App& command, int& codePage) {
    command
        .add_option("--code-page", codePage,
                    "Code page of forms that are not UTF-8: 1250 to 1258 or 65001")
        ->capture_default_str()
        ->check(RequireCodePage, "");
}

}  // namespace lumenkit::cli
