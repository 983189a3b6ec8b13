#include "forms/change_encoding.h"

#include <algorithm>
#include <memory>
#include <string>
#include <variant>

#include "forms/ascii.h"
#include "forms/companion.h"
#include "forms/hexadecimal.h"
#include "forms/known_code_pages.h"
#include "forms/list_record.h"
#include "forms/position.h"

namespace lumenkit::forms {

namespace {

bool IsAsciiText(TextView text) {
    return std::ranges::all_of(text, [](char16_t unit) { return unit < 0x80; });
}

// Whether the companion holds a text for the property: a string or the items of a list.
bool HasTextInCompanion(const Document& document, const Property& property) {
    const auto* const reference = std::get_if<Reference>(&property.Literal());
    if (reference == nullptr || document.IsLost(*reference)) {
        return false;
    }
    if (reference->marked) {
        return !IsAsciiText(document.TextOf(property));
    }
    if (!SameText(property.Name(), u"List", Compare::IgnoreCase)) {
        return false;
    }
    try {
        const CodePage page(document.CompanionCodePage());
        return !std::ranges::all_of(ReadListRecord(document.RecordOf(property), page), IsAsciiText);
    } catch (const BadRecord&) {
        return true;  // not understood, so it may have texts
    }
}

// The recursion is as deep as the blocks are nested, which the parser and the editors limit.
bool HasTextsInCompanion(const Document& document, const Block& block) {
    return std::ranges::any_of(block.Items(), [&](const Block::Item& item) {
        if (const auto* inner = std::get_if<std::unique_ptr<Block>>(&item)) {
            return HasTextsInCompanion(document, **inner);
        }
        const auto* property = std::get_if<std::unique_ptr<Property>>(&item);
        return property != nullptr && HasTextInCompanion(document, **property);
    });
}

Text Decoded(const Document& document, const std::string& form) {
    const Encoding& encoding = document.TextEncoding();
    if (document.FormCodePage() != utf8CodePage && !encoding.CompanionPage().Defines(form)) {
        throw FormError(document.Name(), "has bytes that are no characters of code page " +
                                             std::to_string(document.FormCodePage()));
    }
    return encoding.Decode(form);
}

std::string Encoded(const Document& document, TextView text, const Encoding& encoding) {
    try {
        return encoding.Encode(text);
    } catch (const Unmappable& unmappable) {
        throw UnwritableText(
            document.Name(), PlaceBehind(text.substr(0, unmappable.index)),
            UnitName(text[unmappable.index]) + " cannot be written in " + unmappable.encoding);
    }
}

// The page in which the companion of a form is read if nobody names one.
int CompanionPageOf(std::string_view form) {
    return Encoding::Of(form, guessedCodePage).CompanionPage().Number();
}

}  // namespace

Document InCodePage(const Document& document, int codePage) {
    const Encoding encoding = document.TextEncoding().In(codePage);
    FormBytes bytes = document.Write();
    bytes.form = Encoded(document, Decoded(document, bytes.form), encoding);
    const int former = document.CompanionCodePage();
    const int later =
        codePage == utf8CodePage ? CompanionPageOf(bytes.form) : encoding.CompanionPage().Number();
    if (later != former && HasTextsInCompanion(document, document.Root())) {
        throw FormError(document.Name(), document.CompanionName() + " has texts in code page " +
                                             std::to_string(former) +
                                             ", which would be read in code page " +
                                             std::to_string(later));
    }
    Document changed = document.WithBytes(bytes, encoding);
    static_cast<void>(changed.Write());  // refuses what would be read in another encoding
    return changed;
}

}  // namespace lumenkit::forms
