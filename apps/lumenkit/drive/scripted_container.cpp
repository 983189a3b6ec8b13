#include "apps/lumenkit/drive/scripted_container.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "apps/lumenkit/drive/request.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

void ScriptedContainer::RequireFree(const std::string& id) const {
    const Text name = FromUtf8(id);
    const auto refuseSame = [&](const std::string& other) {
        if (SameText(FromUtf8(other), name, Compare::IgnoreCase)) {
            throw BadRequest("there is a \"" + other + "\" already" +
                             (other == id ? "" : "; upper and lower case make no difference"));
        }
    };
    std::ranges::for_each(controls_ | std::views::keys, refuseSame);
    std::ranges::for_each(pages_ | std::views::keys, refuseSame);
}

void ScriptedContainer::Add(const std::string& id, std::unique_ptr<memory::HostedControl> control) {
    controls_.emplace(id, std::move(control));
}

void ScriptedContainer::Add(const std::string& id, std::unique_ptr<memory::HostedPage> page) {
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
