#include "apps/lumenkit/check/name_check.h"

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "apps/command_line/spelling/nearest.h"
#include "apps/lumenkit/check/quote.h"
#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/check/saved_properties.h"
#include "forms/property.h"
#include "frame/utf8.h"

namespace lumenkit::check {

namespace {

// The names that form designers write into the block of a control for their own use.
constexpr std::array<TextView, 31> containersNames = {
    u"Align",        u"Cancel",        u"CausesValidation",
    u"DataBindings", u"DataChanged",   u"DataField",
    u"DataFormat",   u"DataMember",    u"DataSource",
    u"Default",      u"DragIcon",      u"DragMode",
    u"Height",       u"HelpContextID", u"Index",
    u"Left",         u"LinkItem",      u"LinkMode",
    u"LinkTimeout",  u"LinkTopic",     u"Name",
    u"Negotiate",    u"OLEDropMode",   u"TabIndex",
    u"TabStop",      u"Tag",           u"ToolTipText",
    u"Top",          u"Visible",       u"WhatsThisHelpID",
    u"Width",
};

struct NamedSetting {
    TextView name;
    forms::Position place;
};

std::vector<NamedSetting> SettingsOf(const forms::Block& block) {
    std::vector<NamedSetting> settings;
    for (const forms::Block::Item& item : block.Items()) {
        if (const auto* property = std::get_if<std::unique_ptr<forms::Property>>(&item)) {
            settings.push_back({(*property)->Name(), (*property)->NamePlace()});
        } else if (const auto* inner = std::get_if<std::unique_ptr<forms::Block>>(&item);
                   inner != nullptr && (*inner)->Kind() == forms::BlockKind::Group) {
            settings.push_back({(*inner)->Name(), (*inner)->NamePlace()});
        }
    }
    return settings;
}

bool IsContainers(TextView name) {
    const auto isName = [&](TextView known) { return SameText(name, known, Compare::IgnoreCase); };
    return name.starts_with(u'_') ||
           std::any_of(containersNames.begin(), containersNames.end(), isName);
}

class NameChecker {
 public:
    explicit NameChecker(SavedControl& control)
        : control_(control), properties_(PropertiesOf(control.Type())) {
        for (const SavedProperty& property : properties_.read) {
            read_.push_back(property.name);
        }
    }

    void Check(const NamedSetting& setting) {
        const std::string type = ToUtf8(control_.Type().name);
        const std::string name = Quote(setting.name);
        if (!seen_.insert(LCase(setting.name)).second) {
            Add(setting, name + " occurs twice; the first value counts", {});
        } else if (!IsOwn(setting.name) && !IsContainers(setting.name)) {
            Add(setting, type + " never reads " + name, ToUtf8(Nearest(setting.name, read_)));
        }
    }

 private:
    bool IsOwn(TextView name) const {
        return Find(properties_.read, name) != nullptr ||
               Find(properties_.written, name) != nullptr;
    }
    void Add(const NamedSetting& setting, std::string message, std::string suggestion) {
        control_.AddAt(setting.name, setting.place,
                       {rules::unreadProperty.name, 0, std::move(message), std::move(suggestion)});
    }

    SavedControl& control_;
    const SavedProperties& properties_;
    std::vector<TextView> read_;
    std::set<Text> seen_;  // in lower case
};

}  // namespace

void CheckNames(SavedControl& control) {
    NameChecker checker(control);
    for (const NamedSetting& setting : SettingsOf(control.Block())) {
        checker.Check(setting);
    }
}

}  // namespace lumenkit::check
