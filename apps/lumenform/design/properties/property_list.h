#pragma once

#include <QString>
#include <cstddef>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/library_defaults.h"
#include "apps/lumenform/design/properties/object_property.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// A property that all selected objects have.
struct PropertyRow {
    Text name;
    Text help;
    PropertyKind kind = PropertyKind::Text;
    std::vector<Choice> choices;
    bool canSet = false;
    bool isOnPage = false;
    bool isChanged = false;  ///< one of the objects has another value than the default
    bool canReset = false;
    std::optional<Value> value;  ///< empty if the objects have different values
    std::vector<ObjectProperty> properties;
};

/// The properties that all selected objects have in common, sorted by name.
class PropertyList {
 public:
    /// Both arguments must outlive the list.
    PropertyList(FormDesign& design, ControlMessages& messages);

    /// Reads the rows of the present selection. They are valid until the design signals a change;
    /// after that, new rows must be passed to Take before any other use of the list.
    std::vector<PropertyRow> Read() const;
    void Take(std::vector<PropertyRow> rows) { rows_ = std::move(rows); }
    const std::vector<PropertyRow>& Rows() const { return rows_; }
    /// Assigns the value to all selected objects in one step of the history. If one rejects it,
    /// raises RuntimeError or FormError and changes nothing.
    void Assign(std::size_t row, const Value& value);
    /// Gives all selected objects the default value in one step of the history with this title.
    /// Raises the same errors. The row must have `canReset`.
    void Reset(std::size_t row, const QString& title);

 private:
    std::vector<ObjectProperty> PropertiesOf(LiveControl& control) const;
    std::vector<std::vector<ObjectProperty>> PropertiesOfSelection() const;
    using Change = std::function<void(const ObjectProperty& property)>;

    void ChangeAll(std::size_t row, const QString& title, const Change& change);
    void Apply(const std::vector<ObjectProperty>& properties, const Change& change);
    void ApplyToBlocks(const std::vector<ObjectProperty>& properties, const QString& title,
                       const Change& change);

    FormDesign& design_;
    ControlMessages& messages_;
    mutable LibraryDefaults defaults_;
    std::vector<PropertyRow> rows_;
};

/// The value as the list shows it.
Text ShownValue(const PropertyRow& row);

/// The value as it is edited in one line.
Text EditedValue(const PropertyRow& row);

}  // namespace lumenkit::lumenform
