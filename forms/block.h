// The tree of a form: blocks of properties, property groups and further blocks, each with the lines
// that it was read from.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <variant>
#include <vector>

#include "forms/form_error.h"
#include "forms/literal.h"
#include "forms/property.h"
#include "frame/text.h"

namespace lumenkit::forms {

enum class BlockKind {
    Control,  ///< Begin Class Name ... End
    Group,    ///< BeginProperty Name {identifier} ... EndProperty
};

/// A blank or comment line, which is kept unchanged.
struct IdleLine {
    Text line;
    Position place;  ///< of its beginning in the file that was read
};

/// A control, or a property group of a control. An edit changes only the lines of the edited item;
/// new lines have the standard layout (see forms/layout.h). Names are compared without regard to
/// case; of several properties with the same name, the first one counts. An edit that throws
/// changes nothing.
///
/// Pointers to properties and blocks stay valid until the item is removed.
class Block {
 public:
    /// An item of a block, never null.
    using Item =
        std::variant<std::unique_ptr<Property>, std::unique_ptr<Block>, std::unique_ptr<IdleLine>>;

    struct Places {
        Position className;
        Position name;
    };

    /// `open` and `close` are the first and the last line of the block.
    Block(BlockKind kind, Text className, Text name, Text open, Text close = {},
          Places places = {});

    BlockKind Kind() const { return kind_; }
    /// The class of a control, "lumenkit.VLabel"; the identifier of a group with its braces, or
    /// empty.
    const Text& ClassName() const { return className_; }
    const Text& Name() const { return name_; }
    /// The positions of both in the file that was read; line 0 for a block that was added.
    Position ClassPlace() const { return places_.className; }
    Position NamePlace() const { return places_.name; }
    /// The number of the last line in the file that was read; 0 for a block that was added.
    std::size_t CloseLineNumber() const { return closeLine_; }
    /// In the order of the file.
    const std::vector<Item>& Items() const { return items_; }
    const Text& OpenLine() const { return open_; }
    const Text& CloseLine() const { return close_; }

    /// Return null when there is none.
    Property* FindProperty(TextView name) const;
    Block* FindGroup(TextView name) const;
    /// Returns the controls directly inside this one, in the order of the file.
    std::vector<Block*> Controls() const;

    /// Sets the value of the property `name`. A new property is placed after the property or group
    /// `after`, or after the last one if `after` does not exist. A property that replaces a group
    /// takes its place.
    Property& Set(TextView name, forms::Literal literal, TextView after = {});
    /// Puts `changed` in the place of the property `present` of this block.
    void Replace(Property& present, Property changed);
    /// Returns the group `name`. Creates it if there is none, in the place that Set would choose.
    Block& Group(TextView name, TextView identifier, TextView after = {});
    /// Removes the property or group `name`. Returns false when there is none.
    bool Remove(TextView name);

    /// Adds a control at the end of this block, or before the control `before`.
    Block& AddControl(TextView className, TextView name, const Block* before = nullptr);
    /// Removes one of Controls() with its contents. Returns false when `control` is not one of
    /// them.
    bool RemoveControl(const Block& control);
    /// Removes those of Controls() that `isMeant` accepts, with their contents.
    void RemoveControls(const std::function<bool(const Block& control)>& isMeant);
    /// Moves one of Controls() before another one, or to the end. Returns false when `control` is
    /// not one of them.
    bool MoveControl(const Block& control, const Block* before);
    /// Moves one of the Controls() of `from` into this block, before one of its own controls or to
    /// the end. The lines of the control get the indentation of their new level and stay otherwise
    /// the same. Returns false when `control` is not one of them. `control` must not be this block
    /// or contain it.
    bool TakeControl(Block& from, const Block& control, const Block* before);
    /// Renames a control; the rest of its first line stays unchanged.
    void Rename(TextView name);

    /// For the parser: appends the next item of the file.
    Block& Append(std::unique_ptr<Block> block);
    void Append(std::unique_ptr<Property> property);
    void Append(std::unique_ptr<IdleLine> line);
    void Close(Text line, std::size_t number) {
        close_ = std::move(line);
        closeLine_ = number;
    }

 private:
    using Iterator = std::vector<Item>::const_iterator;

    Iterator FindSetting(TextView name) const;
    Iterator FindInOrder(TextView name) const;
    void SortByName() const;
    void ItemsChanged() {
        byName_.clear();
        lookups_ = 0;
    }
    Iterator FindControl(const Block& control) const;
    void Place(TextView name, Item setting, TextView after);
    template <typename Change>
    void ForEachLine(const Change& change);
    void Indent(TextView former, TextView now);
    Text InnerIndentation() const;
    Text LineBreak() const;

    BlockKind kind_;
    Text className_;
    Text name_;
    Text open_;
    Text close_;
    Places places_;
    std::size_t closeLine_ = 0;
    std::vector<Item> items_;
    // The indices of the properties and groups, in the order of their names; empty if not known.
    // Built when a block with many items is searched often.
    mutable std::vector<std::size_t> byName_;
    mutable std::size_t lookups_ = 0;  // since the items changed
};

}  // namespace lumenkit::forms
