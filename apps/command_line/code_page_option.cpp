#include "apps/command_line/code_page_option.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "apps/command_line/help_formatter.h"
#include "apps/command_line/offered.h"
#include "forms/code_page.h"
#include "forms/known_code_pages.h"

namespace lumenkit::cli {

namespace {

// Replaces the name of a code page by its number. Returns an error text, or an empty text.
std::string RequireCodePage(std::string& name) {
    const std::optional<int> page = forms::CodePageNamed(name);
    if (!page) {
        return name + " is not a supported code page";
    }
    try {
        if (*page != forms::utf8CodePage) {
            static_cast<void>(forms::CodePage(*page));
        }
    } catch (const std::invalid_argument& missing) {
        return missing.what();
    }
    name = std::to_string(*page);
    return {};
}

Offered KnownPages() {
    Offered pages;
    for (const forms::KnownCodePage& page : forms::KnownCodePages()) {
        pages.words.push_back({std::to_string(page.number), std::string(page.title)});
        for (const std::string_view name : page.names) {
            if (!name.empty()) {
                pages.words.push_back({std::string(name), std::string(page.title)});
            }
        }
    }
    return pages;
}

}  // namespace

void AddCodePageOption(CLI::App& command, int& codePage) {
    CLI::Option* const option =
        command
            .add_option(
                "--code-page", codePage,
                std::string("Code page of forms that are not UTF-8: ") + forms::codePageNumbers +
                    ", or a name such as gbk or shift_jis; without it, the fonts and the bytes "
                    "of a form tell, or else it is 1252")
            ->transform(CLI::Validator(RequireCodePage, ""))
            ->option_text("PAGE");
    Offer(command, *option, KnownPages());
}

}  // namespace lumenkit::cli
