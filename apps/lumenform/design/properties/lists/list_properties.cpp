#include "apps/lumenform/design/properties/lists/list_properties.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "apps/lumenform/design/properties/stored_property.h"
#include "forms/companion.h"
#include "forms/form_error.h"
#include "forms/hexadecimal.h"
#include "forms/list_record.h"
#include "frame/numbers.h"
#include "frame/utf8.h"

namespace lumenkit::lumenform {

namespace {

constexpr TextView listName = u"List";
constexpr TextView dataName = u"ItemData";
constexpr const char* listHelp = QT_TRANSLATE_NOOP("help", "The items of the list, one a line.");
constexpr const char* dataHelp = QT_TRANSLATE_NOOP(
    "help",
    "The numbers of the items for the use of the program, one a line in the order of the items.");

struct Records {
    Q_DECLARE_TR_FUNCTIONS(records)
};

using Items = std::vector<Text>;
using Numbers = std::vector<std::int32_t>;

// Returns the record of a property, empty if the block has no such property. Throws BadRecord if
// the property refers to no record.
std::string_view RecordIn(const forms::Document& document, const forms::Block& block,
                          TextView name) {
    const forms::Property* const property = block.FindProperty(name);
    if (property == nullptr) {
        return {};
    }
    const auto* const reference = std::get_if<forms::Reference>(&property->Literal());
    if (reference == nullptr || reference->marked) {
        throw forms::BadRecord(
            QCoreApplication::translate("records", "the form does not refer to a list")
                .toStdString());
    }
    if (document.IsLost(*reference)) {
        throw forms::BadRecord(
            QCoreApplication::translate("records", "its record in the companion is missing")
                .toStdString());
    }
    return document.RecordOf(*property);
}

Items ItemsIn(const forms::Document& document, const forms::Block& block) {
    const std::string_view record = RecordIn(document, block, listName);
    if (record.empty()) {
        return {};
    }
    Items items = forms::ReadListRecord(record, forms::CodePage(document.CompanionCodePage()));
    const auto hasBreak = [](const Text& item) {
        return item.find_first_of(u"\r\n") != Text::npos;
    };
    if (std::ranges::any_of(items, hasBreak)) {
        throw forms::BadRecord(Records::tr("an item has a line break").toStdString());
    }
    return items;
}

// A control without the property has zeros.
Numbers NumbersIn(const forms::Document& document, const forms::Block& block, std::size_t count) {
    const std::string_view record = RecordIn(document, block, dataName);
    return record.empty() ? Numbers(count) : forms::ReadItemDataRecord(record, count);
}

Text Joined(const Items& lines) {
    Text joined;
    for (const Text& line : lines) {
        joined += (&line == &lines.front() ? TextView() : crLf);
        joined += line;
    }
    return joined;
}

// An empty text has no lines.
Items LinesOf(TextView text) {
    Items lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(u'\n'), text.size());
        TextView line = text.substr(0, end);
        if (line.ends_with(u'\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        if (end + 1 == text.size()) {
            lines.emplace_back();  // after the last line break
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

Text JoinedNumbers(const Numbers& numbers) {
    Items lines;
    for (const std::int32_t number : numbers) {
        lines.push_back(Decimal(number));
    }
    return Joined(lines);
}

// Lets each number follow its item: items at the beginning and at the end that stay the same keep
// their numbers, and those between them get zeros.
Numbers Followed(const Items& former, const Items& now, const Numbers& numbers) {
    if (former.size() == now.size()) {
        return numbers;  // items have other texts
    }
    const std::size_t shorter = std::min(former.size(), now.size());
    std::size_t before = 0;
    while (before < shorter && former[before] == now[before]) {
        ++before;
    }
    std::size_t after = 0;
    while (after < shorter - before &&
           former[former.size() - 1 - after] == now[now.size() - 1 - after]) {
        ++after;
    }
    Numbers followed(now.size());
    std::copy_n(numbers.begin(), before, followed.begin());
    std::copy_n(numbers.rbegin(), after, followed.rbegin());
    return followed;
}

void StoreRecord(FormDesign& design, forms::Block& block, TextView name,
                 const std::string& record) {
    StoreLiteral(block, name, design.Document().AddRecord(record));
}

std::string EncodedList(const forms::Document& document, const Items& items,
                        std::string_view former) {
    for (std::size_t index = 0; index < items.size(); ++index) {
        try {
            forms::CodePage(document.CompanionCodePage()).Encode(items[index]);
        } catch (const forms::Unmappable& unmappable) {
            throw forms::FormError(
                document.Name(),
                QCoreApplication::translate("records",
                                            "item %1: %2 cannot be written in code page %3")
                    .arg(index + 1)
                    .arg(QString::fromStdString(forms::UnitName(items[index][unmappable.index])))
                    .arg(document.CompanionCodePage())
                    .toStdString());
        }
    }
    return forms::WriteListRecord(items, forms::CodePage(document.CompanionCodePage()), former);
}

// The numbers of a record that cannot be read stay as they are.
void LetNumbersFollow(FormDesign& design, forms::Block& block, const Items& former,
                      const Items& now) {
    const forms::Document& document = design.Document();
    if (block.FindProperty(dataName) == nullptr) {
        return;
    }
    Numbers numbers;
    try {
        numbers = NumbersIn(document, block, former.size());
    } catch (const forms::BadRecord&) {
        return;
    }
    const Numbers followed = Followed(former, now, numbers);
    if (followed != numbers) {
        StoreRecord(design, block, dataName, forms::WriteItemDataRecord(followed));
    }
}

void RemoveList(forms::Block& block) {
    block.Remove(listName);
    block.Remove(dataName);
}

void SetItems(FormDesign& design, forms::Block& block, const Value& value) {
    const forms::Document& document = design.Document();
    const Items now = LinesOf(ToText(value));
    const Items former = ItemsIn(document, block);
    if (now == former) {
        return;
    }
    if (now.empty()) {
        RemoveList(block);
        return;
    }
    const std::string record = EncodedList(document, now, RecordIn(document, block, listName));
    LetNumbersFollow(design, block, former, now);
    StoreRecord(design, block, listName, record);
}

void SetNumbers(FormDesign& design, forms::Block& block, const Value& value) {
    const forms::Document& document = design.Document();
    Numbers now;
    for (const Text& line : LinesOf(ToText(value))) {
        now.push_back(ToLong(line));
    }
    const std::size_t count = ItemsIn(document, block).size();
    if (now.size() != count) {
        throw forms::FormError(document.Name(),
                               Records::tr("expected one number for each of the %1 items, found %2")
                                   .arg(count)
                                   .arg(now.size())
                                   .toStdString());
    }
    if (now != NumbersIn(document, block, count)) {
        StoreRecord(design, block, dataName, forms::WriteItemDataRecord(now));
    }
}

// Runs a change, and raises the reason if a record does not fit.
template <typename Change>
void WithReason(const forms::Document& document, const Change& change) {
    try {
        change();
    } catch (const forms::BadRecord& bad) {
        throw forms::FormError(document.Name(), bad.what());
    }
}

struct ListParts {
    TextView name;
    const char* help;
    Text (*read)(const forms::Document& document, const forms::Block& block);
    void (*write)(FormDesign& design, forms::Block& block, const Value& value);
    void (*remove)(forms::Block& block);
};

constexpr std::array listParts = {
    ListParts{listName, listHelp,
              [](const forms::Document& document, const forms::Block& block) {
                  return Joined(ItemsIn(document, block));
              },
              SetItems, RemoveList},
    ListParts{dataName, dataHelp,
              [](const forms::Document& document, const forms::Block& block) {
                  const std::size_t count = ItemsIn(document, block).size();
                  return JoinedNumbers(NumbersIn(document, block, count));
              },
              SetNumbers, [](forms::Block& block) { block.Remove(dataName); }},
};

ObjectProperty UnreadableList(const ListParts& parts, const forms::BadRecord& why) {
    return {.name = Text(parts.name),
            .help = HelpText(parts.help) + u' ' + WhyNotEditable(why.what()),
            .get = []() -> Value { return CompanionText(); }};
}

ObjectProperty MakeListProperty(FormDesign& design, forms::Block& block, const ListParts& parts) {
    try {
        parts.read(design.Document(), block);
    } catch (const forms::BadRecord& bad) {
        return UnreadableList(parts, bad);
    }
    return {.name = Text(parts.name),
            .help = HelpText(parts.help),
            .kind = PropertyKind::Lines,
            .get = [&design, &block, &parts]() -> Value {
                return parts.read(design.Document(), block);
            },
            .set =
                [&design, &block, &parts](const Value& value) {
                    WithReason(design.Document(), [&] { parts.write(design, block, value); });
                },
            .isChanged =
                [&design, &block, &parts] {
                    return block.FindProperty(parts.name) != nullptr &&
                           !parts.read(design.Document(), block).empty();
                },
            .reset = [&block, &parts] { parts.remove(block); }};
}

bool HasItems(const forms::Block& block) {
    return SameText(block.ClassName(), u"VB.ListBox", Compare::IgnoreCase) ||
           SameText(block.ClassName(), u"VB.ComboBox", Compare::IgnoreCase);
}

}  // namespace

std::vector<ObjectProperty> ListProperties(FormDesign& design, forms::Block& block) {
    std::vector<ObjectProperty> properties;
    if (HasItems(block)) {
        for (const ListParts& parts : listParts) {
            properties.push_back(MakeListProperty(design, block, parts));
        }
    }
    return properties;
}

}  // namespace lumenkit::lumenform
