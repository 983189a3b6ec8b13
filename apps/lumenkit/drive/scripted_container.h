// The form that requests work on, with its controls and pages by identifier.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "apps/lumenkit/drive/loaded_form.h"
#include "frame/automation/value.h"
#include "frame/class_table.h"
#include "frame/text.h"
#include "runtime/memory/constituents.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/hosted_page.h"
#include "runtime/memory/user.h"

namespace lumenkit::cli {

/// Owns the controls and pages. Functions that look one up throw BadRequest if there is none or it
/// is of the other kind. They take the same time however many there are.
class ScriptedContainer {
 public:
    /// The objects that `classes` refers to must outlive the container.
    explicit ScriptedContainer(const ClassTable& classes) : form_(classes) {}

    memory::Form& GetForm() { return form_; }
    memory::User& GetUser() { return user_; }

    /// Throws BadRequest if the identifier is in use, in upper or lower case.
    void RequireFree(const std::string& id) const;
    void Add(const std::string& id, std::unique_ptr<memory::HostedControl> control);
    /// `selected` are the ids of the controls that the page works on. They must exist.
    void Add(const std::string& id, std::unique_ptr<memory::HostedPage> page,
             const std::vector<std::string>& selected);
    /// Ends a control, with the controls inside it on the loaded form, or a page. The loaded form
    /// loses its block. Returns the ids, which are free afterwards. Throws BadRequest, and ends
    /// nothing, if there is none or if a page works on one of the controls.
    std::vector<std::string> Drop(const std::string& id);

    bool IsPage(const std::string& id) const { return pages_.contains(id); }
    memory::HostedControl& Control(const std::string& id) const;
    memory::HostedPage& Page(const std::string& id) const;

    // For a control or a page.
    Object& Automation(const std::string& id) const;
    memory::Constituents& Parts(const std::string& id) const;

    /// The loaded form file; null before one is loaded.
    LoadedForm* Loaded() const { return loaded_.get(); }
    void SetLoaded(std::unique_ptr<LoadedForm> loaded) { loaded_ = std::move(loaded); }

    void Quit() { quit_ = true; }
    bool HasQuit() const { return quit_; }

 private:
    struct OpenPage {
        std::unique_ptr<memory::HostedPage> page;
        std::vector<std::string> selected;
    };

    void DropPage(const std::string& id);
    void DropControls(const std::vector<std::string>& ids);

    memory::Form form_;
    memory::User user_{form_};
    // Pages refer to controls and so must be destroyed first.
    std::unordered_map<std::string, std::unique_ptr<memory::HostedControl>> controls_;
    std::unordered_map<std::string, OpenPage> pages_;
    std::unordered_map<Text, std::string> taken_;  // all identifiers, by their names in lower case
    std::unordered_map<std::string, std::set<std::string>>
        pagesOf_;  // by the controls they work on
    std::unique_ptr<LoadedForm> loaded_;
    bool quit_ = false;
};

}  // namespace lumenkit::cli
