#pragma once

#include <string>

#include "apps/lumenform/design/properties/property_browser.h"
#include "frame/text.h"

namespace lumenkit::testing {

/// A user of a property list with the keyboard.
class PropertyUser {
 public:
    PropertyUser() = default;
    /// The browser must outlive its user.
    explicit PropertyUser(lumenform::PropertyBrowser& browser) { Use(browser); }
    /// For a default-constructed user, before anything else.
    void Use(lumenform::PropertyBrowser& browser) { browser_ = &browser; }

    /// Returns the row of a property. Throws if there is none.
    int Row(TextView property) const;
    bool Has(TextView property) const { return browser_->Model().Find(property) >= 0; }
    /// Returns the value of a property as the list shows it.
    std::string Shown(TextView property) const;
    bool CanEdit(TextView property) const;
    /// Goes to the property in the list and types `text` and Enter.
    void Type(TextView property, const std::string& text);
    /// Picks an entry of a property's list with the keyboard.
    void Choose(TextView property, const std::string& label);
    /// Presses F4 on a property. Returns the window of this class that opens; null if none does.
    template <typename Dialog>
    Dialog* More(TextView property) const {
        PressMore(property);
        return browser_->findChild<Dialog*>();
    }
    /// The reason for the last rejection.
    std::string Message() const { return browser_->Message().toStdString(); }

 private:
    void PressMore(TextView property) const;

    lumenform::PropertyBrowser* browser_ = nullptr;
};

}  // namespace lumenkit::testing
