#include "apps/lumenform/design/properties/stored_property.h"

#include <QCoreApplication>
#include <array>
#include <cstddef>
#include <utility>

#include "frame/host/font.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Returns the property after which a new one is inserted. Designers keep properties in alphabetical
// order. In blocks of components, the properties of the container come first and end at the
// extents.
Text Predecessor(const forms::Block& block, TextView name) {
    Text found;
    const Text sought = LCase(name);
    for (const forms::Block::Item& item : block.Items()) {
        const auto* property = std::get_if<std::unique_ptr<forms::Property>>(&item);
        const auto* inner = std::get_if<std::unique_ptr<forms::Block>>(&item);
        if (property == nullptr && inner == nullptr) {
            continue;
        }
        const Text& present = property != nullptr ? (*property)->Name() : (*inner)->Name();
        if (present.starts_with(u'_')) {
            break;
        }
        if (LCase(present) < sought &&
            (inner == nullptr || (*inner)->Kind() == forms::BlockKind::Group)) {
            found = present;
        }
    }
    return found;
}

void Write(FormDesign& design, forms::Block& block, TextView name, const Value& value,
           const Value& otherwise) {
    forms::FormBag bag = BagOf(design.Document(), block);
    bag.Keep(Predecessor(block, name));
    bag.WriteProperty(name, value, otherwise);
}

Value AsText(const Value& value) {
    return ToText(value);
}
Value AsTruth(const Value& value) {
    return ToBoolean(value);
}
Value AsWhole(const Value& value) {
    return ToLong(value);
}
Value AsNumber(const Value& value) {
    return ToDouble(value);
}
Value AsColor(const Value& value) {
    return FromColor(ToColor(value));
}
Value AsFont(const Value& value) {
    return ObjectRef(host::ToFont(value));
}

bool IsStated(const forms::Block& block, TextView name) {
    return block.FindProperty(name) != nullptr || block.FindGroup(name) != nullptr;
}

void Remove(forms::Block& block, TextView name) {
    while (block.Remove(name)) {
    }
}

// Fonts that are stated and properties with an unknown default count as changed.
bool IsChanged(FormDesign& design, forms::Block& block, const StoredProperty& property) {
    if (!IsStated(block, property.name)) {
        return false;
    }
    const Value value =
        BagOf(design.Document(), block).ReadProperty(property.name, property.otherwise);
    return std::holds_alternative<ObjectRef>(value) || !SameValue(value, property.otherwise);
}

// How a type is shown and converted.
struct TypeTraits {
    PropertyKind kind;
    Value (*convert)(const Value&);
};

const TypeTraits& TraitsOf(StoredType type) {
    static constexpr std::array<TypeTraits, 8> traits = {{
        {PropertyKind::Text, AsText},
        {PropertyKind::LongText, AsText},
        {PropertyKind::Choice, AsTruth},
        {PropertyKind::Number, AsWhole},
        {PropertyKind::Number, AsNumber},
        {PropertyKind::Choice, AsWhole},
        {PropertyKind::Color, AsColor},
        {PropertyKind::Font, AsFont},
    }};
    return traits[static_cast<std::size_t>(type)];
}

}  // namespace

void StoreLiteral(forms::Block& block, TextView name, forms::Literal literal) {
    block.Set(name, std::move(literal), Predecessor(block, name));
}

void StoreShortcut(forms::Block& menu, Text written) {
    if (written.empty()) {
        Remove(menu, u"Shortcut");
    } else {
        StoreLiteral(menu, u"Shortcut", forms::Shortcut{std::move(written)});
    }
}

Text HelpText(const char* help) {
    return *help == '\0' ? Text() : qt::ToText(QCoreApplication::translate("help", help));
}

Text CompanionText() {
    return qt::ToText(QCoreApplication::translate("records", "(companion)"));
}

Text WhyNotEditable(const char* why) {
    return qt::ToText(QCoreApplication::translate("records", "It cannot be edited here: %1.")
                          .arg(QString::fromUtf8(why)));
}

ObjectProperty MakeProperty(FormDesign& design, forms::Block& block, StoredProperty property) {
    const TypeTraits& type = TraitsOf(property.type);
    ObjectProperty made{.name = property.name, .help = HelpText(property.help), .kind = type.kind};
    made.choices = property.type == StoredType::Truth ? TruthChoices() : property.choices;
    made.get = [&design, &block, &type, property] {
        const Value value =
            BagOf(design.Document(), block).ReadProperty(property.name, property.otherwise);
        return std::holds_alternative<Empty>(value) ? value : type.convert(value);
    };
    if (!property.isRequired) {
        made.isChanged = [&design, &block, property] { return IsChanged(design, block, property); };
        made.reset = [&block, name = property.name] { Remove(block, name); };
    }
    made.set = [&design, &block, &type, property = std::move(property)](const Value& value) {
        Write(design, block, property.name, type.convert(value), property.otherwise);
    };
    return made;
}

}  // namespace lumenkit::lumenform
