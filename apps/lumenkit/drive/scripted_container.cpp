#include "apps/lumenkit/drive/scripted_container.h"

#include <utility>

#include "apps/lumenkit/drive/request.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

void ScriptedContainer::RequireFree(const std::string& id) const {
    const auto found = taken_.find(LCase(FromUtf8(id)));
    if (found != taken_.end()) {
        throw BadRequest("there is a \"" + found->second + "\" already" +
                         (found->second == id ? "" : "; upper and lower case make no difference"));
    }
}

void ScriptedContainer::Add(const std::string& id, std::unique_ptr<memory::HostedControl> control) {
    taken_.emplace(LCase(FromUtf8(id)), id);
    controls_.emplace(id, std::move(control));
}

void ScriptedContainer::Add(const std::string& id, std::unique_ptr<memory::HostedPage> page,
                            const std::vector<std::string>& selected) {
    taken_.emplace(LCase(FromUtf8(id)), id);
    pages_.emplace(id, OpenPage{.page = std::move(page), .selected = selected});
    for (const std::string& control : selected) {
        pagesOf_[control].insert(id);
    }
}

std::vector<std::string> ScriptedContainer::Drop(const std::string& id) {
    if (IsPage(id)) {
        DropPage(id);
        return {id};
    }
    Control(id);
    const bool isOnForm = loaded_ != nullptr && loaded_->Has(id);
    std::vector<std::string> ids = isOnForm ? loaded_->Within(id) : std::vector{id};
    for (const std::string& one : ids) {
        if (const auto page = pagesOf_.find(one); page != pagesOf_.end()) {
            throw BadRequest("the page \"" + *page->second.begin() + "\" works on \"" + one +
                             "\"; drop the page first");
        }
    }
    if (isOnForm) {
        loaded_->Drop(id);
    }
    DropControls(ids);
    return ids;
}

void ScriptedContainer::DropPage(const std::string& id) {
    const auto page = pages_.find(id);
    for (const std::string& control : page->second.selected) {
        const auto pages = pagesOf_.find(control);
        if (pages != pagesOf_.end() && pages->second.erase(id) > 0 && pages->second.empty()) {
            pagesOf_.erase(pages);
        }
    }
    pages_.erase(page);
    taken_.erase(LCase(FromUtf8(id)));
}

void ScriptedContainer::DropControls(const std::vector<std::string>& ids) {
    for (const std::string& id : ids) {
        controls_.erase(id);
        taken_.erase(LCase(FromUtf8(id)));
    }
}

memory::HostedControl& ScriptedContainer::Control(const std::string& id) const {
    const auto found = controls_.find(id);
    if (found == controls_.end()) {
        throw BadRequest(IsPage(id) ? '"' + id + "\" is a page, not a control"
                                    : "there is no control \"" + id + '"');
    }
    return *found->second;
}

memory::HostedPage& ScriptedContainer::Page(const std::string& id) const {
    const auto found = pages_.find(id);
    if (found == pages_.end()) {
        throw BadRequest(controls_.contains(id) ? '"' + id + "\" is a control, not a page"
                                                : "there is no page \"" + id + '"');
    }
    return *found->second.page;
}

Object& ScriptedContainer::Automation(const std::string& id) const {
    return IsPage(id) ? Page(id).Automation() : Control(id).Automation();
}

memory::Constituents& ScriptedContainer::Parts(const std::string& id) const {
    return IsPage(id) ? Page(id).Parts() : Control(id).Parts();
}

}  // namespace lumenkit::cli
