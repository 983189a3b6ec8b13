#include "tests/unit/forms/form_check.h"

#include <exception>
#include <optional>
#include <variant>

#include "forms/document.h"
#include "forms/scanner.h"
#include "forms/value_reader.h"
#include "frame/utf8.h"

namespace lumenkit::forms::testing {

namespace {

Document Parse(std::string_view form, std::string_view companion, int codePage) {
    return Document::Parse(
        "x.frm", form, [&](const std::string&) { return std::string(companion); }, codePage);
}

std::optional<double> Number(const Literal& literal) {
    if (const auto* whole = std::get_if<std::int32_t>(&literal)) {
        return *whole;
    }
    const auto* number = std::get_if<double>(&literal);
    return number == nullptr ? std::nullopt : std::optional<double>(*number);
}

bool Same(const Literal& left, const Literal& right) {
    return left == right || (Number(left) && Number(left) == Number(right));
}

class ValueCheck {
 public:
    explicit ValueCheck(const Document& document) : document_(document) {}

    std::string Fault(const Block& block) {
        for (const Block::Item& item : block.Items()) {
            std::string fault = std::visit([&](const auto& held) { return Fault(*held); }, item);
            if (!fault.empty()) {
                return fault;
            }
        }
        return {};
    }

 private:
    std::string Fault(const IdleLine&) { return {}; }
    std::string Fault(const Property& property) {
        if (std::holds_alternative<UnreadValue>(property.Literal())) {
            return property.Source().value == SourceOf(property.Literal())
                       ? ""
                       : "an unread value is not kept";
        }
        const Text source = SourceOf(property.Literal());
        Scanner scanner(source, "value");
        if (!Same(ReadValue(scanner).literal, property.Literal())) {
            return "a value is not written as it was read: " + ToUtf8(source);
        }
        const auto* reference = std::get_if<Reference>(&property.Literal());
        if (reference == nullptr) {
            return {};
        }
        if (document_.RecordOf(property).empty() != document_.IsLost(*reference)) {
            return "an empty record";
        }
        try {
            document_.TextOf(property);
        } catch (const FormError& error) {
            if (reference->marked) {
                return std::string("a string was accepted and cannot be read: ") + error.what();
            }
        }
        return {};
    }

    const Document& document_;
};

std::string EditFault(const Document& document, int codePage) {
    const Text text = u"two\r\nlines";
    document.Root().Set(u"Edited", TextLiteral(text));
    document.Root().Set(u"Number", NumberLiteral(1.5));
    FormBytes written;
    try {
        written = document.Write();
    } catch (const FormError&) {
        return document.Warnings().empty() ? "an edit is refused" : "";
    }
    const Document again = Parse(written.form, written.companion, codePage);
    const Property* edited = again.Root().FindProperty(u"Edited");
    const Property* number = again.Root().FindProperty(u"Number");
    const bool same = edited != nullptr && again.TextOf(*edited) == text && number != nullptr &&
                      number->Literal() == Literal(1.5);
    return same ? "" : "an edit does not read back";
}

std::string FaultOfSound(const Document& document, std::string_view form,
                         std::string_view companion, int codePage) {
    const FormBytes written = document.Write();
    if (written.form != form) {
        return "the form is not written as it was read";
    }
    if (!written.companion.empty() && written.companion != companion) {
        return "the companion is not written as it was read";
    }
    std::string fault = ValueCheck(document).Fault(document.Root());
    return fault.empty() ? EditFault(document, codePage) : fault;
}

}  // namespace

std::string FaultWith(std::string_view form, std::string_view companion, int codePage) {
    std::optional<Document> document;
    try {
        document = Parse(form, companion, codePage);
    } catch (const FormError& error) {
        return error.Place().line == 0 || error.Place().column == 0 ? "a refusal without a place"
                                                                    : "";
    } catch (const std::exception& other) {
        return std::string("not a FormError: ") + other.what();
    }
    try {
        return FaultOfSound(*document, form, companion, codePage);
    } catch (const std::exception& error) {
        return std::string("a sound form makes trouble: ") + error.what();
    }
}

std::string FaultWith(std::string_view file) {
    const std::size_t mark = file.find(companionMark);
    if (mark == std::string_view::npos) {
        return FaultWith(file, {}, defaultCodePage);
    }
    return FaultWith(file.substr(0, mark), file.substr(mark + companionMark.size()),
                     defaultCodePage);
}

}  // namespace lumenkit::forms::testing
