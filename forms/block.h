// The tree of a form: blocks of properties, property groups and further blocks, each with the lines
// it was read from.
#pragma once

#include <cstddef>
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

/// A blank or comment line, which is only kept.
struct IdleLine {
    Text line;
};

/// A control, or a property group of one. Editing changes the lines of what is edited and no
/// others; new lines look as designers write them. Names are told apart without regard to case;
/// of several properties of one name the first one counts. An edit that throws has changed nothing.
///
/// Pointers to properties and blocks stay valid until these are removed.
class Block {
 public:
    /// What stands in a block, never null.
    using Item =
        std::variant<std::unique_ptr<Property>, std::unique_ptr<Block>, std::unique_ptr<IdleLine>>;

    struct Places {
        Position className;
        Position name;
    };

    /// `open` and `close` are the first and the last line.
    Block(BlockKind kind, Text className, Text name, Text open, Text close = {},
          Places places = {});

    BlockKind Kind() const { return kind_; }
    /// The control's class, "lumenkit.VLabel"; a group's identifier with its braces, or empty.
    const Text& ClassName() const { return className_; }
    const Text& Name() const { return name_; }
    /// Where they stood in the file that was read; line 0 for a block that was added.
    Position ClassPlace() const { return places_.className; }
    Position NamePlace() const { return places_.name; }
    /// In the order of the file.
    const std::vector<Item>& Items() const { return items_; }
    const Text& OpenLine() const { return open_; }
    const Text& CloseLine() const { return close_; }

    /// Null when there is none.
    Property* FindProperty(TextView name) const;
    Block* FindGroup(TextView name) const;
    /// The controls that lie in this one, in the order of the file.
    std::vector<Block*> Controls() const;

    /// Gives the property `name` a value. A new property stands behind the property or group
    /// `after`, or where there is none of that name behind the last one. One that takes the place
    /// of a group stands where the group stood.
    Property& Set(TextView name, forms::Literal literal, TextView after = {});
    /// The group `name`, made where there is none, in the place that Set would choose.
    Block& Group(TextView name, TextView identifier, TextView after = {});
    /// Removes the property or group `name`; false when there is none.
    bool Remove(TextView name);

    /// Adds a control behind everything else in this block, or before the control `before`.
    Block& AddControl(TextView className, TextView name, const Block* before = nullptr);
    /// Removes one of Controls() with all that is in it; false when it is none of them.
    bool RemoveControl(const Block& control);
    /// Puts one of Controls() before another one of them, or behind them all; false when it is none
    /// of them.
    bool MoveControl(const Block& control, const Block* before);
    /// Gives a control another name; the line keeps what stands around it.
    void Rename(TextView name);

    /// For the parser: adds what comes next in the file.
    Block& Append(std::unique_ptr<Block> block);
    void Append(std::unique_ptr<Property> property) { items_.emplace_back(std::move(property)); }
    void Append(std::unique_ptr<IdleLine> line) { items_.emplace_back(std::move(line)); }
    void Close(Text line) { close_ = std::move(line); }

 private:
    using Iterator = std::vector<Item>::const_iterator;

    Iterator FindSetting(TextView name) const;
    Iterator FindControl(const Block& control) const;
    void Place(TextView name, Item setting, TextView after);
    Text InnerIndentation() const;
    Text LineBreak() const;

    BlockKind kind_;
    Text className_;
    Text name_;
    Text open_;
    Text close_;
    Places places_;
    std::vector<Item> items_;
};

}  // namespace lumenkit::forms
