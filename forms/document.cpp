#include "forms/document.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <set>
#include <stdexcept>
#include <utility>

#include "forms/container_values.h"
#include "forms/controls.h"
#include "forms/literal.h"
#include "forms/position.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

Encoding EncodingOf(const std::string& name, std::string_view bytes, int codePage) {
    try {
        return Encoding::Of(bytes, codePage);
    } catch (const std::invalid_argument& unknown) {
        throw FormError(name, unknown.what());
    }
}

Text Decode(const std::string& name, const Encoding& encoding, std::string_view bytes) {
    try {
        return encoding.Decode(bytes);
    } catch (const MalformedUtf8& malformed) {
        throw FormError(name, PlaceBehind(encoding.Decode(bytes.substr(0, malformed.offset))),
                        "expected UTF-8");
    }
}

std::string FileNameOf(const std::string& path) {
    const std::size_t separator = path.find_last_of("/\\");
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

std::string DefaultCompanionName(const std::string& path) {
    const std::string file = FileNameOf(path);
    const std::size_t dot = file.rfind('.');
    const std::string stem = file.substr(0, dot);
    const std::string extension = dot == std::string::npos ? "" : file.substr(dot);
    using Names = std::pair<std::string_view, std::string_view>;
    constexpr std::array companions = {Names{".frm", ".frx"}, Names{".ctl", ".ctx"},
                                       Names{".pag", ".pgx"}, Names{".dob", ".dox"}};
    for (const auto& [form, companion] : companions) {
        if (SameText(FromUtf8(extension), FromUtf8(form), Compare::IgnoreCase)) {
            return stem + std::string(companion);
        }
    }
    return stem + ".frx";
}

// A property and its new state.
struct ChangedProperty {
    Property& property;
    Property changed;
};

bool IsSameFile(TextView one, TextView other) {
    return SameText(one, other, Compare::IgnoreCase);
}

// Collects the references to `former` in `block` that must change to refer to `file`. The recursion
// is as deep as the blocks are nested, which the parser and the editors limit.
void CollectReferencesToChange(const Text& former, const Text& file, const Block& block,
                               std::vector<ChangedProperty>& collected) {
    for (const Block::Item& item : block.Items()) {
        if (const auto* inner = std::get_if<std::unique_ptr<Block>>(&item)) {
            CollectReferencesToChange(former, file, **inner, collected);
        } else if (const auto* property = std::get_if<std::unique_ptr<Property>>(&item)) {
            const auto* reference = std::get_if<Reference>(&(*property)->Literal());
            if (reference != nullptr && reference->file != file &&
                IsSameFile(reference->file, former)) {
                Property changed = **property;
                changed.Set(Reference{file, reference->offset, reference->marked});
                collected.push_back({**property, std::move(changed)});
            }
        }
    }
}

// Lets `change` edit all references in a block. The recursion is as deep as in
// CollectReferencesToChange.
template <typename Change>
void ForEachReference(Block& block, const Change& change) {
    for (const Block::Item& item : block.Items()) {
        if (const auto* inner = std::get_if<std::unique_ptr<Block>>(&item)) {
            ForEachReference(**inner, change);
        } else if (const auto* property = std::get_if<std::unique_ptr<Property>>(&item)) {
            const auto* reference = std::get_if<Reference>(&(*property)->Literal());
            if (reference != nullptr) {
                Reference changed = *reference;
                change(changed);
                if (changed.offset != reference->offset) {
                    (*property)->Replace(changed);
                }
            }
        }
    }
}

// Returns the lines after a form with the name in the attribute VB_Name replaced.
Text WithName(Text tail, TextView name) {
    constexpr TextView attribute = u"Attribute VB_Name = \"";
    const std::size_t line = tail.find(attribute);
    if (line == Text::npos || (line > 0 && tail[line - 1] != u'\n')) {
        return tail;
    }
    const std::size_t start = line + attribute.size();
    const std::size_t end = tail.find_first_of(u"\"\r\n", start);
    if (end != Text::npos && tail[end] == u'"') {
        tail.replace(start, end - start, name);
    }
    return tail;
}

}  // namespace

Document Document::Parse(std::string name, std::string_view bytes,
                         const CompanionReader& readCompanion, int codePage) {
    Encoding encoding = EncodingOf(name, bytes, codePage);
    return Read(std::move(name), encoding, bytes, readCompanion);
}

Document Document::Read(std::string name, Encoding encoding, std::string_view bytes,
                        const CompanionReader& readCompanion) {
    ParsedForm form = ParseForm(Decode(name, encoding, bytes), name);
    Document document(std::move(name), encoding, std::move(form));
    document.spelling_ = document.encoding_.SpellingOf(bytes);
    document.ReadCompanion(readCompanion);
    for (Warning& warning : ContainerWarnings(document.Root())) {
        document.Warn(warning.place, std::move(warning.text));
    }
    for (const NameClash& clash : NameClashes(document.Root())) {
        document.Warn(clash.control->NamePlace(), forms::TextOf(clash));
    }
    return document;
}

Document Document::WithBytes(const FormBytes& bytes, const Encoding& encoding) const {
    const auto companion = [&](const std::string& file) -> std::optional<std::string> {
        const bool isLost = isCompanionMissing_ || IsOtherFile(FromUtf8(file));
        return isLost ? std::nullopt : std::optional(bytes.companion);
    };
    Document document = Read(name_, encoding, bytes.form, companion);
    if (!document.isCompanionMissing_) {
        document.UseCompanion(companionName_);
    }
    for (const Text& other : otherFiles_) {
        document.RememberOtherFile(other);
    }
    document.files_ = files_;
    return document;
}

Document::Document(std::string name, Encoding encoding, ParsedForm form)
    : name_(std::move(name)),
      encoding_(encoding),
      form_(std::move(form)),
      companionName_(form_.references.empty() ? DefaultCompanionName(encoding_.Utf8NameOf(name_))
                                              : ToUtf8(form_.references.front().reference.file)) {
    for (Warning& warning : form_.warnings) {
        Warn(warning.place, std::move(warning.text));
    }
    form_.warnings.clear();
}

std::vector<Warning> Document::Warnings() const {
    std::vector<Warning> warnings;
    for (const auto& [place, text] : warnings_) {
        warnings.push_back({{place.first, place.second}, text});
    }
    return warnings;
}

void Document::Warn(Position place, std::string text) const {
    warnings_.emplace(std::pair(place.line, place.column), std::move(text));
}

void Document::Warn(const Property& property, std::string text) const {
    if (!std::holds_alternative<UnreadValue>(property.Literal())) {
        Warn(property.ValuePlace(), std::move(text));
    }
}

void Document::Fail(Position position, const std::string& text) const {
    throw FormError(name_, position, text);
}

bool Document::IsInCompanion(const Reference& reference) const {
    return IsSameFile(reference.file, FromUtf8(companionName_));
}

bool Document::IsLost(const Reference& reference) const {
    return !IsInCompanion(reference) || reference.offset >= companion_.Bytes().size();
}

bool Document::IsOtherFile(TextView file) const {
    return std::ranges::any_of(otherFiles_,
                               [&](const Text& other) { return IsSameFile(other, file); });
}

void Document::RememberOtherFile(TextView file) {
    if (!IsOtherFile(file)) {
        otherFiles_.emplace_back(file);
    }
}

// Returns the references into the companion, and warns about the others.
std::vector<PlacedReference> Document::OwnReferences() {
    std::vector<PlacedReference> own;
    for (const PlacedReference& placed : form_.references) {
        if (IsInCompanion(placed.reference)) {
            own.push_back(placed);
        } else {
            RememberOtherFile(placed.reference.file);
            Warn(placed.place, "expected a reference into " + companionName_ + ", found " +
                                   ToUtf8(placed.reference.file));
        }
    }
    return own;
}

void Document::ReadCompanion(const CompanionReader& readCompanion) {
    const std::vector<PlacedReference> references = OwnReferences();
    if (references.empty()) {
        return;
    }
    std::vector<std::uint32_t> offsets;
    offsets.reserve(references.size());
    for (const PlacedReference& placed : references) {
        offsets.push_back(placed.reference.offset);
    }
    std::optional<std::string> bytes;
    std::string reason = "cannot be read";
    try {
        bytes = readCompanion ? readCompanion(companionName_) : std::nullopt;
    } catch (const FormError& error) {
        reason = error.Description();
    }
    isCompanionMissing_ = !bytes.has_value();
    companion_ = Companion(std::move(bytes).value_or(std::string()), std::move(offsets));
    if (isCompanionMissing_) {
        hasLostRecords_ = true;
        Warn(references.front().place,
             companionName_ + " " + reason + "; its texts and pictures are missing");
        return;
    }
    // Checks each record once, however many references share it.
    std::set<std::pair<std::uint32_t, bool>> checked;
    for (const PlacedReference& placed : references) {
        if (checked.emplace(placed.reference.offset, placed.reference.marked).second) {
            Check(placed);
        }
    }
}

void Document::Check(const PlacedReference& placed) {
    hasLostRecords_ = hasLostRecords_ || IsLost(placed.reference);
    try {
        companion_.RequireOffset(placed.reference.offset);
        if (placed.reference.marked) {
            companion_.String(placed.reference.offset);
        }
    } catch (const BadRecord& bad) {
        Warn(placed.place, bad.what());
    }
}

void Document::AddLibrary(TextView library, TextView file) {
    const TextView lineBreak = form_.head.find(crLf) == Text::npos ? TextView(u"\n") : crLf;
    Text head = form_.head + u"Object = " + SourceOf(Text(library)) + u"; " + SourceOf(Text(file));
    head += lineBreak;
    form_.libraries.push_back({Text(library), Text(file), {}});
    form_.head = std::move(head);
}

Text Document::TextOf(const Property& property) const {
    const Literal& literal = property.Literal();
    if (const auto* text = std::get_if<Text>(&literal)) {
        return *text;
    }
    if (const auto* text = std::get_if<CompanionText>(&literal)) {
        return text->text;
    }
    const auto* reference = std::get_if<Reference>(&literal);
    if (reference == nullptr) {
        Fail(property.ValuePlace(), "expected a text");
    }
    if (IsLost(*reference)) {
        return {};
    }
    try {
        return encoding_.CompanionPage().Decode(companion_.String(reference->offset));
    } catch (const BadRecord& bad) {
        if (reference->marked) {
            return {};  // reading the document has warned
        }
        Fail(property.ValuePlace(), bad.what());
    }
}

std::string_view Document::RecordOf(const Property& property) const {
    const auto* reference = std::get_if<Reference>(&property.Literal());
    if (reference == nullptr) {
        Fail(property.ValuePlace(), "expected a reference into the companion");
    }
    if (IsLost(*reference)) {
        return {};
    }
    try {
        return companion_.Record(reference->offset);
    } catch (const BadRecord& bad) {
        Fail(property.ValuePlace(), bad.what());
    }
}

Reference Document::AddRecord(std::string_view record) {
    if (hasLostRecords_) {
        throw FormError(name_, lostRecords);
    }
    try {
        return {FromUtf8(companionName_), companion_.Append(record), false};
    } catch (const BadRecord& full) {
        throw FormError(name_, full.what());
    }
}

void Document::Rename(std::string name) {
    std::string companionName = DefaultCompanionName(encoding_.Utf8NameOf(name));
    Rename(std::move(name), std::move(companionName));
}

void Document::Rename(std::string name, std::string companionName) {
    if (!isCompanionMissing_) {
        UseCompanion(std::move(companionName));
    }
    name_ = std::move(name);
}

void Document::RenameForm(TextView name) {
    Text tail = WithName(form_.tail, name);
    form_.root->Rename(name);
    form_.tail = std::move(tail);
}

void Document::UseCompanion(std::string name) {
    const Text file = FromUtf8(name);
    std::vector<ChangedProperty> redirected;
    CollectReferencesToChange(FromUtf8(companionName_), file, *form_.root, redirected);
    std::vector<PlacedReference> references = form_.references;
    for (PlacedReference& placed : references) {
        if (IsInCompanion(placed.reference)) {
            placed.reference.file = file;
        }
    }
    // The following statements cannot fail.
    for (ChangedProperty& replacement : redirected) {
        replacement.property = std::move(replacement.changed);
    }
    form_.references = std::move(references);
    companionName_ = std::move(name);
}

void Document::MoveBehind(std::string_view kept) {
    if (hasLostRecords_) {
        throw FormError(name_, lostRecords);
    }
    const std::size_t start = companion_.AgreesWith(kept);
    const std::uint64_t by = kept.size() - start;
    const std::string bytes = std::string(kept) + companion_.Bytes().substr(start);
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw FormError(name_, "the companion would be longer than 32-bit offsets reach");
    }
    std::vector<std::uint32_t> offsets;
    const auto move = [&](Reference& reference) {
        if (IsInCompanion(reference)) {
            reference.offset += reference.offset >= start ? static_cast<std::uint32_t>(by) : 0;
            offsets.push_back(reference.offset);
        }
    };
    ForEachReference(*form_.root, move);
    companion_ = Companion(bytes, std::move(offsets));
}

FormBytes Document::Write() const {
    FormBytes bytes = FormWriter(name_, encoding_, spelling_,
                                 {FromUtf8(companionName_), companion_.Bytes(), !hasLostRecords_})
                          .Write(form_);
    const bool wouldBeUtf8 =
        Encoding::Of(bytes.form, CompanionCodePage()).FormCodePage() == utf8CodePage;
    if (wouldBeUtf8 && FormCodePage() != utf8CodePage) {
        throw FormError(name_, "all its characters beyond ASCII together would be read as UTF-8");
    }
    return bytes;
}

}  // namespace lumenkit::forms
