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

void ScriptedContainer::Add(const std::string& id, std::unique_ptr<memory::HostedPage> page) {
    taken_.emplace(LCase(FromUtf8(id)), id);
    pages_.emplace(id, std::move(page));
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
    return *found->second;
}

Object& ScriptedContainer::Automation(const std::string& id) const {
    return IsPage(id) ? Page(id).Automation() : Control(id).Automation();
}

memory::Constituents& ScriptedContainer::Parts(const std::string& id) const {
    return IsPage(id) ? Page(id).Parts() : Control(id).Parts();
}

}  // namespace lumenkit::cli
