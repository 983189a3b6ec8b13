#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/setting.h"
#include "frame/text.h"

namespace lumenkit::form {

/// One property that everything that is selected has.
struct PropertyRow {
    Text name;
    Text help;
    SettingKind kind = SettingKind::Text;
    std::vector<Choice> choices;
    bool canSet = false;
    bool isOnPage = false;
    std::optional<Value> value;  ///< nothing: it is not the same everywhere
    std::vector<Setting> settings;
};

/// The properties that everything that is selected has in common, by their names.
class PropertyList {
 public:
    /// Both must outlive the list.
    PropertyList(Design& design, ControlMessages& messages);

    /// The rows of what is selected, as it is now. They are valid until the design says that
    /// something changed; others must be taken then before anything else is done with the list.
    std::vector<PropertyRow> Read() const;
    void Take(std::vector<PropertyRow> rows) { rows_ = std::move(rows); }
    const std::vector<PropertyRow>& Rows() const { return rows_; }
    /// Gives all that is selected the value, in one step. What refuses it raises RuntimeError or
    /// FormError, and nothing was changed.
    void Assign(std::size_t row, const Value& value);

 private:
    std::vector<std::vector<Setting>> SettingsOfSelection() const;
    void Apply(const std::vector<Setting>& settings, const Value& value);
    void ApplyToBlocks(const std::vector<Setting>& settings, const Value& value);

    Design& design_;
    ControlMessages& messages_;
    std::vector<PropertyRow> rows_;
};

/// The value as the list shows it.
Text ShownValue(const PropertyRow& row);

/// The value as it is edited in one line.
Text EditedValue(const PropertyRow& row);

}  // namespace lumenkit::form
