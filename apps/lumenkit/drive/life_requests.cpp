#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "apps/lumenkit/drive/requests.h"
#include "frame/automation/interface_table.h"
#include "frame/utf8.h"
#include "runtime/memory/embedded_control.h"

namespace lumenkit::cli::requests {

namespace {

const ClassDescriptor& ClassNamed(const std::string& name, const memory::Form& form) {
    try {
        return form.FindClass(FromUtf8(name));
    } catch (const std::out_of_range&) {
        throw BadRequest("there is no class \"" + name + '"');
    }
}

std::unique_ptr<memory::HostedControl> NewControl(ScriptedContainer& container,
                                                  const ClassDescriptor& type,
                                                  const Fields& request) {
    const Text name = FromUtf8(request.String("id"));
    const Text tag = FromUtf8(request.String("tag", ""));
    memory::Placing placing;
    placing.name = name;
    placing.tag = tag;
    placing.userMode = IsUserMode(request);
    placing.width = request.Single("width", placing.width);
    placing.height = request.Single("height", placing.height);
    std::optional<memory::PropertyBag> bag;
    if (request.Has("bag")) {
        bag = BagOf(request.At("bag"), container.GetForm());
    }
    auto control = std::make_unique<memory::HostedControl>(container.GetForm(), type, placing);
    if (bag) {
        control->StartSaved(*bag);
    } else {
        control->StartNew();
    }
    return control;
}

std::unique_ptr<memory::HostedPage> NewPage(ScriptedContainer& container,
                                            const ClassDescriptor& type,
                                            const std::vector<std::string>& selected) {
    std::vector<memory::HostedControl*> controls;
    controls.reserve(selected.size());
    for (const std::string& id : selected) {
        controls.push_back(&container.Control(id));
    }
    auto page = std::make_unique<memory::HostedPage>(container.GetForm(), type);
    page->Select(controls);
    return page;
}

// Adds the properties of an embedded control to the common properties of a constituent.
void AddMembers(Json& state, memory::HostedControl& control) {
    for (const Member& member : control.Type().interfaceTable->members) {
        if (member.read != nullptr && member.parameters.empty()) {
            state[ToUtf8(member.name)] = ToJson(control.Automation().Get(member.identifier));
        }
    }
}

Json StateOf(const memory::Constituents& parts) {
    Json state = Json::object();
    for (memory::Element* element : parts.All()) {
        Json properties = ToJson(element->Properties());
        if (auto* embedded = dynamic_cast<memory::EmbeddedControl*>(element)) {
            AddMembers(properties, embedded->Inner());
        }
        state[ToUtf8(element->FullName())] = std::move(properties);
    }
    return state;
}

}  // namespace

Result New(ScriptedContainer& container, const Fields& request) {
    const std::string id = request.String("id");
    container.RequireFree(id);
    const ClassDescriptor& type = ClassNamed(request.String("class"), container.GetForm());
    if (type.kind == ClassKind::PropertyPage) {
        const std::vector<std::string> selected = request.Strings("select");
        container.Add(id, NewPage(container, type, selected), selected);
    } else {
        container.Add(id, NewControl(container, type, request));
    }
    return std::nullopt;
}

Result Drop(ScriptedContainer& container, const Fields& request) {
    return Json(container.Drop(request.String("id")));
}

Result Save(ScriptedContainer& container, const Fields& request) {
    return ToJson(container.Control(request.String("id")).Save());
}

Result Resize(ScriptedContainer& container, const Fields& request) {
    container.Control(request.String("id"))
        .Resize(request.Single("width"), request.Single("height"));
    return std::nullopt;
}

Result Apply(ScriptedContainer& container, const Fields& request) {
    container.Page(request.String("id")).Apply();
    return std::nullopt;
}

Result Draw(ScriptedContainer& container, const Fields& request) {
    return ToJson(container.Control(request.String("id")).Paint());
}

Result State(ScriptedContainer& container, const Fields& request) {
    const std::string id = request.String("id");
    Json state = StateOf(container.Parts(id));
    if (container.IsPage(id)) {
        state["Changed"] = container.Page(id).Site().IsChanged();
    }
    return state;
}

}  // namespace lumenkit::cli::requests
