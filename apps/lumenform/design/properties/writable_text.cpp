#include "apps/lumenform/design/properties/writable_text.h"

#include <QCoreApplication>
#include <variant>

#include "forms/code_page.h"
#include "forms/hexadecimal.h"
#include "forms/known_code_pages.h"
#include "forms/literal.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Returns the whole character at a unit of the text.
QString CharacterAt(TextView text, std::size_t index) {
    const QChar first(text[index]);
    const bool isPair = first.isHighSurrogate() && index + 1 < text.size();
    return qt::ToQString(Text(text.substr(index, isPair ? 2 : 1)));
}

}  // namespace

QString WhyUnwritable(const forms::Document& document, TextView text) {
    const bool isInCompanion =
        std::holds_alternative<forms::CompanionText>(forms::TextLiteral(text));
    const int page = isInCompanion ? document.CompanionCodePage() : document.FormCodePage();
    if (page == forms::utf8CodePage) {
        return {};
    }
    try {
        forms::CodePage(page).Encode(text);
        return {};
    } catch (const forms::Unmappable& unmappable) {
        const char16_t unit = text[unmappable.index];
        return QCoreApplication::translate("writable_text",
                                           "\"%1\" (%2) cannot be written in code page %3")
            .arg(CharacterAt(text, unmappable.index), QString::fromStdString(forms::UnitName(unit)))
            .arg(page);
    }
}

}  // namespace lumenkit::lumenform
