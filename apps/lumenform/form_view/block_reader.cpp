#include "apps/lumenform/form_view/block_reader.h"

#include <string>
#include <utility>

#include "forms/form_error.h"
#include "frame/runtime_error.h"
#include "frame/utf8.h"

namespace lumenkit::lumenform {

std::shared_ptr<qt::Font> MakeFont(const forms::FontDescription& description) {
    auto font = std::make_shared<qt::Font>(description.name, description.size);
    forms::SetStyle(*font, description);
    return font;
}

forms::FormBag BagOf(const forms::Document& document, forms::Block& block) {
    return {document, block,
            [](const forms::FontDescription& description) { return MakeFont(description); }};
}

void WarnAbout(const forms::Document& document, const forms::Block& block, TextView name,
               const RuntimeError& error) {
    std::string text = ToUtf8(name) + ": " + ToUtf8(error.Description());
    if (const forms::Property* property = block.FindProperty(name)) {
        document.Warn(*property, std::move(text));
        return;
    }
    const forms::Block* group = block.FindGroup(name);
    document.Warn(group == nullptr ? block.NamePlace() : group->NamePlace(), std::move(text));
}

void Refuse(const forms::Document& document, forms::Position place, TextView what, TextView why) {
    throw forms::FormError(document.Name(), place, ToUtf8(what) + ": " + ToUtf8(why));
}

template <typename T>
T BlockReader::Read(TextView name, const Value& otherwise, T (*convert)(const Value&)) const {
    try {
        return convert(BagOf(document_, block_).ReadProperty(name, otherwise));
    } catch (const RuntimeError& error) {
        WarnAbout(document_, block_, name, error);
        return convert(otherwise);
    }
}

float BlockReader::Number(TextView name, float otherwise) const {
    return Read(name, otherwise, ToSingle);
}

std::int32_t BlockReader::Whole(TextView name, std::int32_t otherwise) const {
    return Read(name, otherwise, ToLong);
}

std::int32_t BlockReader::Choice(TextView name, std::int32_t count, std::int32_t otherwise) const {
    const std::int32_t number = Whole(name, otherwise);
    return number >= 0 && number < count ? number : otherwise;
}

bool BlockReader::Flag(TextView name, bool otherwise) const {
    return Read(name, otherwise, ToBoolean);
}

Text BlockReader::String(TextView name, TextView otherwise) const {
    return Read(name, Text(otherwise), ToText);
}

Color BlockReader::ColorOf(TextView name, Color otherwise) const {
    return Read(name, FromColor(otherwise), ToColor);
}

std::shared_ptr<qt::Font> BlockReader::Font() const {
    const auto font = Read<host::FontRef>(u"Font", ObjectRef(), host::ToFont);
    return font == nullptr ? nullptr : qt::Font::From(font);
}

std::string_view BlockReader::Record(TextView name) const {
    const forms::Property* property = block_.FindProperty(name);
    if (property == nullptr || !std::holds_alternative<forms::Reference>(property->Literal())) {
        return {};
    }
    return document_.RecordOf(*property);
}

}  // namespace lumenkit::lumenform
