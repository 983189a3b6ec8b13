#include "forms/block.h"

#include <algorithm>
#include <utility>

#include "forms/layout.h"

namespace lumenkit::forms {

namespace {

const Property* AsProperty(const Block::Item& item) {
    const auto* property = std::get_if<std::unique_ptr<Property>>(&item);
    return property == nullptr ? nullptr : property->get();
}

Block* AsBlock(const Block::Item& item, BlockKind kind) {
    const auto* block = std::get_if<std::unique_ptr<Block>>(&item);
    return block != nullptr && (*block)->Kind() == kind ? block->get() : nullptr;
}

// Returns the name of a property or group; empty for other items.
TextView SettingName(const Block::Item& item) {
    if (const Property* property = AsProperty(item)) {
        return property->Name();
    }
    const Block* group = AsBlock(item, BlockKind::Group);
    return group == nullptr ? TextView() : group->Name();
}

// The order of names without regard to case.
bool IsBefore(TextView left, TextView right) {
    return std::ranges::lexicographical_compare(left, right, {}, LowerUnit, LowerUnit);
}

}  // namespace

Block::Block(BlockKind kind, Text className, Text name, Text open, Text close, Places places)
    : kind_(kind),
      className_(std::move(className)),
      name_(std::move(name)),
      open_(std::move(open)),
      close_(std::move(close)),
      places_(places) {}

Block::Iterator Block::FindInOrder(TextView name) const {
    return std::find_if(items_.begin(), items_.end(), [&](const Item& item) {
        const TextView own = SettingName(item);
        return !own.empty() && SameText(own, name, Compare::IgnoreCase);
    });
}

// Of several items with the same name, the first one stays the first.
void Block::SortByName() const {
    std::vector<std::size_t> sorted;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (!SettingName(items_[i]).empty()) {
            sorted.push_back(i);
        }
    }
    std::ranges::stable_sort(sorted, IsBefore,
                             [this](std::size_t i) { return SettingName(items_[i]); });
    byName_ = std::move(sorted);
}

// Searching the items one after the other is quick in a block that a designer wrote. A file with a
// million properties would take hours.
Block::Iterator Block::FindSetting(TextView name) const {
    constexpr std::size_t many = 100;
    if (items_.size() < many || ++lookups_ < many) {
        return FindInOrder(name);
    }
    if (byName_.empty()) {
        SortByName();
    }
    const auto found = std::ranges::lower_bound(
        byName_, name, IsBefore, [this](std::size_t i) { return SettingName(items_[i]); });
    const bool isFound =
        found != byName_.end() && SameText(SettingName(items_[*found]), name, Compare::IgnoreCase);
    return isFound ? items_.begin() + static_cast<std::ptrdiff_t>(*found) : items_.end();
}

Block::Iterator Block::FindControl(const Block& control) const {
    return std::find_if(items_.begin(), items_.end(), [&](const Item& item) {
        return AsBlock(item, BlockKind::Control) == &control;
    });
}

Property* Block::FindProperty(TextView name) const {
    const auto found = FindSetting(name);
    const auto* property =
        found == items_.end() ? nullptr : std::get_if<std::unique_ptr<Property>>(&*found);
    return property == nullptr ? nullptr : property->get();
}

Block* Block::FindGroup(TextView name) const {
    const auto found = FindSetting(name);
    return found == items_.end() ? nullptr : AsBlock(*found, BlockKind::Group);
}

std::vector<Block*> Block::Controls() const {
    std::vector<Block*> controls;
    for (const Item& item : items_) {
        if (Block* control = AsBlock(item, BlockKind::Control)) {
            controls.push_back(control);
        }
    }
    return controls;
}

Text Block::InnerIndentation() const {
    return Text(layout::IndentationOf(open_)) + Text(layout::indent);
}

Text Block::LineBreak() const {
    return Text(layout::LineBreakOf(open_));
}

void Block::Place(TextView name, Item setting, TextView after) {
    const auto present = FindSetting(name);
    const auto before = FindSetting(after);
    ItemsChanged();
    if (present != items_.end()) {
        items_[static_cast<std::size_t>(present - items_.begin())] = std::move(setting);
        return;
    }
    if (before != items_.end()) {
        items_.insert(before + 1, std::move(setting));
        return;
    }
    const auto last = std::find_if(items_.rbegin(), items_.rend(),
                                   [](const Item& item) { return !SettingName(item).empty(); });
    items_.insert(last.base(), std::move(setting));
}

Property& Block::Set(TextView name, forms::Literal literal, TextView after) {
    if (Property* property = FindProperty(name)) {
        property->Set(std::move(literal));
        return *property;
    }
    Text value = SourceOf(literal);
    auto property =
        std::make_unique<Property>(Text(name), std::move(literal),
                                   PropertySource{layout::PropertyPrefix(InnerIndentation(), name),
                                                  std::move(value), LineBreak()});
    Property& added = *property;
    Place(name, std::move(property), after);
    return added;
}

void Block::Replace(Property& present, Property changed) {
    ItemsChanged();
    present = std::move(changed);
}

Block& Block::Group(TextView name, TextView identifier, TextView after) {
    if (Block* group = FindGroup(name)) {
        return *group;
    }
    const Text indentation = InnerIndentation();
    auto group = std::make_unique<Block>(
        BlockKind::Group, Text(identifier), Text(name),
        layout::BeginPropertyLine(indentation, name, identifier) + LineBreak(),
        indentation + u"EndProperty" + LineBreak());
    Block& added = *group;
    Place(name, std::move(group), after);
    return added;
}

bool Block::Remove(TextView name) {
    const auto found = FindSetting(name);
    if (found == items_.end()) {
        return false;
    }
    ItemsChanged();
    items_.erase(found);
    return true;
}

Block& Block::AddControl(TextView className, TextView name, const Block* before) {
    const Text indentation = InnerIndentation();
    auto control =
        std::make_unique<Block>(BlockKind::Control, Text(className), Text(name),
                                layout::BeginLine(indentation, className, name) + LineBreak(),
                                indentation + u"End" + LineBreak());
    Block& added = *control;
    ItemsChanged();
    items_.insert(before == nullptr ? items_.end() : FindControl(*before), std::move(control));
    return added;
}

bool Block::RemoveControl(const Block& control) {
    const auto found = FindControl(control);
    if (found == items_.end()) {
        return false;
    }
    ItemsChanged();
    items_.erase(found);
    return true;
}

void Block::RemoveControls(const std::function<bool(const Block& control)>& isMeant) {
    ItemsChanged();
    std::erase_if(items_, [&](const Item& item) {
        const Block* control = AsBlock(item, BlockKind::Control);
        return control != nullptr && isMeant(*control);
    });
}

bool Block::MoveControl(const Block& control, const Block* before) {
    const auto found = FindControl(control);
    if (found == items_.end()) {
        return false;
    }
    ItemsChanged();
    if (&control != before) {
        const auto index = found - items_.begin();
        Item item = std::move(items_[static_cast<std::size_t>(index)]);
        items_.erase(items_.begin() + index);
        items_.insert(before == nullptr ? items_.end() : FindControl(*before), std::move(item));
    }
    return true;
}

bool Block::TakeControl(Block& from, const Block& control, const Block* before) {
    if (&from == this) {
        return MoveControl(control, before);
    }
    const auto found = from.FindControl(control);
    if (found == from.items_.end()) {
        return false;
    }
    items_.reserve(items_.size() + 1);
    AsBlock(*found, BlockKind::Control)
        ->Indent(layout::IndentationOf(control.open_), InnerIndentation());
    // From here on nothing throws.
    const auto index = found - from.items_.begin();
    Item item = std::move(from.items_[static_cast<std::size_t>(index)]);
    from.items_.erase(from.items_.begin() + index);
    from.ItemsChanged();
    ItemsChanged();
    items_.insert(before == nullptr ? items_.end() : FindControl(*before), std::move(item));
    return true;
}

// Calls `change` for the beginning of each line of the block. The recursion is as deep as the
// blocks are nested, which the parser limits.
template <typename Change>
void Block::ForEachLine(const Change& change) {
    change(open_);
    for (const Item& item : items_) {
        if (const auto* property = std::get_if<std::unique_ptr<Property>>(&item)) {
            (*property)->ChangePrefix(change);
        } else if (const auto* inner = std::get_if<std::unique_ptr<Block>>(&item)) {
            (*inner)->ForEachLine(change);
        } else {
            change(std::get<std::unique_ptr<IdleLine>>(item)->line);
        }
    }
    change(close_);
}

// Replaces the indentation `former` of all lines. A line with another indentation keeps it. The
// first pass takes all memory, so that the second one does not fail.
void Block::Indent(TextView former, TextView now) {
    const Text from(former);  // the lines change
    ForEachLine([&](Text& line) { line.reserve(line.size() + now.size()); });
    ForEachLine([&](Text& line) {
        if (TextView(line).starts_with(from)) {
            line.replace(0, from.size(), now);
        }
    });
}

void Block::Rename(TextView name) {
    constexpr TextView blanks = u" \t";
    constexpr TextView keyword = u"Begin";
    const std::size_t afterKeyword = layout::IndentationOf(open_).size() + keyword.size();
    const std::size_t classAt = open_.find_first_not_of(blanks, afterKeyword);
    const std::size_t nameAt = open_.find_first_not_of(blanks, classAt + className_.size());
    Text renamed(name);
    open_.replace(nameAt, name_.size(), name);
    name_ = std::move(renamed);
}

Block& Block::Append(std::unique_ptr<Block> block) {
    Block& added = *block;
    ItemsChanged();
    items_.emplace_back(std::move(block));
    return added;
}

void Block::Append(std::unique_ptr<Property> property) {
    ItemsChanged();
    items_.emplace_back(std::move(property));
}

void Block::Append(std::unique_ptr<IdleLine> line) {
    ItemsChanged();
    items_.emplace_back(std::move(line));
}

}  // namespace lumenkit::forms
