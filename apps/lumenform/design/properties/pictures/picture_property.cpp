#include "apps/lumenform/design/properties/pictures/picture_property.h"

#include <QCoreApplication>

#include "apps/lumenform/design/properties/pictures/picture_format.h"
#include "apps/lumenform/design/properties/stored_property.h"
#include "forms/companion.h"
#include "forms/form_error.h"
#include "forms/picture_mark.h"
#include "forms/picture_record.h"
#include "frame/utf8.h"

namespace lumenkit::lumenform {

namespace {

// Returns the picture of the property, empty if the block has no such property. Throws BadRecord if
// the property refers to no picture.
Text PictureOf(const forms::Document& document, const forms::Block& block, TextView name) {
    const forms::Property* const property = block.FindProperty(name);
    if (property == nullptr) {
        return {};
    }
    const auto* const reference = std::get_if<forms::Reference>(&property->Literal());
    if (reference == nullptr) {
        throw forms::BadRecord(
            QCoreApplication::translate("records", "the form does not refer to a picture")
                .toStdString());
    }
    if (document.IsLost(*reference)) {
        throw forms::BadRecord(
            QCoreApplication::translate("records", "its record in the companion is missing")
                .toStdString());
    }
    return TextOfBytes(forms::ReadPictureRecord(document.RecordOf(*property)));
}

void StorePicture(FormDesign& design, forms::Block& block, TextView name, TextView picture) {
    forms::Document& document = design.Document();
    if (picture == PictureOf(document, block, name)) {
        return;
    }
    if (picture.empty()) {
        block.Remove(name);
        return;
    }
    try {
        const std::string record = forms::WritePictureRecord(BytesOfText(picture));
        StoreLiteral(block, name, document.AddRecord(record));
    } catch (const forms::BadRecord& bad) {
        throw forms::FormError(document.Name(), bad.what());
    }
}

}  // namespace

bool HoldsPicture(const forms::Document& document, const forms::Property& property) {
    const auto* const reference = std::get_if<forms::Reference>(&property.Literal());
    return reference != nullptr && !document.IsLost(*reference) &&
           forms::IsPictureRecord(document.RecordOf(property));
}

ObjectProperty PictureProperty(FormDesign& design, forms::Block& block, TextView name,
                               const char* help) {
    ObjectProperty made{.name = Text(name), .help = HelpText(help)};
    try {
        PictureOf(design.Document(), block, name);
    } catch (const forms::BadRecord& bad) {
        made.help += made.help.empty() ? TextView() : TextView(u" ");
        made.help += WhyNotEditable(bad.what());
        made.get = []() -> Value { return CompanionText(); };
        return made;
    }
    made.kind = PropertyKind::Picture;
    made.get = [&design, &block, name = made.name]() -> Value {
        return PictureOf(design.Document(), block, name);
    };
    made.set = [&design, &block, name = made.name](const Value& value) {
        StorePicture(design, block, name, ToText(value));
    };
    made.isChanged = [&block, name = made.name] { return block.FindProperty(name) != nullptr; };
    made.reset = [&block, name = made.name] { block.Remove(name); };
    return made;
}

}  // namespace lumenkit::lumenform
