#include "apps/lumenkit/drive/session.h"

#include <cstdint>
#include <exception>
#include <stdexcept>
#include <utility>
#include <vector>

#include "frame/automation/interface_table.h"
#include "frame/runtime_error.h"
#include "frame/utf8.h"
#include "runtime/memory/embedded_control.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"

namespace lumenkit::cli {

namespace {

// What the request must have; the message says what is missing.
const Json& Need(const Json& request, const char* key) {
    const auto found = request.find(key);
    if (found == request.end()) {
        throw std::invalid_argument(std::string("the request needs \"") + key + '"');
    }
    return *found;
}

std::string Id(const Json& request) {
    return Need(request, "id").get<std::string>();
}

bool IsUserMode(const Json& request) {
    const std::string mode = request.value("mode", "run");
    if (mode != "run" && mode != "design") {
        throw std::invalid_argument("\"mode\" is \"run\" or \"design\"");
    }
    return mode == "run";
}

memory::PropertyBag BagOf(const Json& json, memory::Form& form) {
    memory::PropertyBag bag;
    for (const auto& [name, value] : json.items()) {
        bag.Store(FromUtf8(name), ValueOf(value, form));
    }
    return bag;
}

// The indices or arguments of a member.
std::vector<Value> ArgumentsOf(const Json& request, memory::Form& form) {
    std::vector<Value> arguments;
    if (const auto index = request.find("index"); index != request.end()) {
        arguments.push_back(ValueOf(*index, form));
    }
    if (const auto list = request.find("args"); list != request.end()) {
        for (const Json& argument : *list) {
            arguments.push_back(ValueOf(argument, form));
        }
    }
    return arguments;
}

std::int32_t MemberOf(const Json& request, const Object& target) {
    if (const auto identifier = request.find("dispid"); identifier != request.end()) {
        return identifier->get<std::int32_t>();
    }
    const std::optional<std::int32_t> found = target.FindMember(TextOf(Need(request, "name")));
    if (!found) {
        Raise(ErrorNumber::NoSuchMember);
    }
    return *found;
}

memory::MouseAction MouseActionOf(const std::string& event) {
    if (event == "MouseDown") {
        return memory::MouseAction::Down;
    }
    if (event == "MouseMove") {
        return memory::MouseAction::Move;
    }
    if (event == "MouseUp") {
        return memory::MouseAction::Up;
    }
    throw std::invalid_argument("\"event\" is \"MouseDown\", \"MouseMove\" or \"MouseUp\"");
}

// An embedded control's own properties beside those of a constituent.
void AddMembers(Json& state, memory::PlacedControl& control) {
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

Json ErrorAnswer(const char* text) {
    return {{"ok", false}, {"error", {{"text", text}}}};
}

}  // namespace

DriveSession::DriveSession(const ClassTable& classes) : form_(classes) {}

const std::map<std::string, DriveSession::Handler, std::less<>>& DriveSession::Handlers() {
    static const std::map<std::string, Handler, std::less<>> handlers = {
        {"allow", &DriveSession::Allow},   {"ambient", &DriveSession::SetAmbient},
        {"apply", &DriveSession::Apply},   {"call", &DriveSession::Call},
        {"click", &DriveSession::Click},   {"dblclick", &DriveSession::DblClick},
        {"draw", &DriveSession::Draw},     {"focus", &DriveSession::Focus},
        {"get", &DriveSession::Get},       {"let", &DriveSession::Let},
        {"mouse", &DriveSession::Mouse},   {"new", &DriveSession::New},
        {"paste", &DriveSession::Paste},   {"quit", &DriveSession::Quit},
        {"resize", &DriveSession::Resize}, {"save", &DriveSession::Save},
        {"scroll", &DriveSession::Scroll}, {"select", &DriveSession::Select},
        {"state", &DriveSession::State},   {"type", &DriveSession::Type},
    };
    return handlers;
}

std::string DriveSession::Serve(std::string_view line) {
    form_.GetLog().Clear();
    Json answer;
    try {
        answer = {{"ok", true}};
        if (Result value = Handle(Json::parse(line))) {
            answer["value"] = std::move(*value);
        }
    } catch (const RuntimeError& error) {
        answer = {{"ok", false},
                  {"error", {{"number", error.Number()}, {"text", ToUtf8(error.Description())}}}};
    } catch (const std::exception& error) {
        answer = ErrorAnswer(error.what());
    }
    answer["log"] = ToJson(form_.GetLog());
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

DriveSession::Result DriveSession::Handle(const Json& request) {
    if (!request.is_object()) {
        throw std::invalid_argument("a request is a JSON object");
    }
    const auto name = Need(request, "do").get<std::string>();
    const auto handler = Handlers().find(name);
    if (handler == Handlers().end()) {
        throw std::invalid_argument("there is no request \"" + name + '"');
    }
    return (this->*handler->second)(request);
}

// ---- The controls' life

DriveSession::Result DriveSession::New(const Json& request) {
    const std::string id = Id(request);
    if (controls_.contains(id) || pages_.contains(id)) {
        throw std::invalid_argument("there is a \"" + id + "\" already");
    }
    const Text className = TextOf(Need(request, "class"));
    const ClassDescriptor& type = form_.FindClass(className);
    if (type.kind == ClassKind::PropertyPage) {
        return NewPage(type, request);
    }
    const Text name = FromUtf8(id);
    const Text tag = request.contains("tag") ? TextOf(request.at("tag")) : Text();
    memory::Placing placing;
    placing.name = name;
    placing.tag = tag;
    placing.userMode = IsUserMode(request);
    placing.width = request.value("width", placing.width);
    placing.height = request.value("height", placing.height);
    auto control = std::make_unique<memory::PlacedControl>(form_, type, placing);
    if (const auto bag = request.find("bag"); bag != request.end()) {
        memory::PropertyBag saved = BagOf(*bag, form_);
        control->StartSaved(saved);
    } else {
        control->StartNew();
    }
    controls_.emplace(id, std::move(control));
    return std::nullopt;
}

DriveSession::Result DriveSession::NewPage(const ClassDescriptor& type, const Json& request) {
    std::vector<memory::PlacedControl*> selected;
    for (const Json& id : Need(request, "select")) {
        selected.push_back(&Control({{"id", id}}));
    }
    auto page = std::make_unique<memory::PlacedPage>(form_, type);
    page->Select(selected);
    pages_.emplace(Id(request), std::move(page));
    return std::nullopt;
}

DriveSession::Result DriveSession::Save(const Json& request) {
    return ToJson(Control(request).Save());
}

DriveSession::Result DriveSession::Resize(const Json& request) {
    Control(request).Resize(Need(request, "width").get<float>(),
                            Need(request, "height").get<float>());
    return std::nullopt;
}

DriveSession::Result DriveSession::Apply(const Json& request) {
    Page(request).Apply();
    return std::nullopt;
}

// ---- Members

DriveSession::Result DriveSession::Get(const Json& request) {
    Object& target = Target(request);
    std::vector<Value> arguments = ArgumentsOf(request, form_);
    return ToJson(target.Invoke(MemberOf(request, target), InvokeKind::Get, arguments));
}

DriveSession::Result DriveSession::Let(const Json& request) {
    Object& target = Target(request);
    std::vector<Value> arguments = ArgumentsOf(request, form_);
    arguments.push_back(ValueOf(Need(request, "value"), form_));
    target.Invoke(MemberOf(request, target), InvokeKind::Let, arguments);
    return std::nullopt;
}

DriveSession::Result DriveSession::Call(const Json& request) {
    Object& target = Target(request);
    std::vector<Value> arguments = ArgumentsOf(request, form_);
    return ToJson(target.Invoke(MemberOf(request, target), InvokeKind::Call, arguments));
}

// ---- Looks

DriveSession::Result DriveSession::Draw(const Json& request) {
    return ToJson(Control(request).Paint());
}

DriveSession::Result DriveSession::State(const Json& request) {
    const auto page = pages_.find(Id(request));
    if (page == pages_.end()) {
        return StateOf(Control(request).Parts());
    }
    Json state = StateOf(page->second->Parts());
    state["Changed"] = page->second->Site().IsChanged();
    return state;
}

// ---- The user

DriveSession::Result DriveSession::Type(const Json& request) {
    return user_.Type(TextBoxOn(request), TextOf(Need(request, "text")));
}

DriveSession::Result DriveSession::Select(const Json& request) {
    return user_.Select(TextBoxOn(request), Need(request, "start").get<std::int32_t>(),
                        Need(request, "length").get<std::int32_t>());
}

DriveSession::Result DriveSession::Paste(const Json& request) {
    return user_.Paste(TextBoxOn(request), TextOf(Need(request, "text")));
}

DriveSession::Result DriveSession::Click(const Json& request) {
    return request.contains("on") ? user_.Click(On(request)) : user_.Click(Control(request));
}

DriveSession::Result DriveSession::DblClick(const Json& request) {
    return request.contains("on") ? user_.DblClick(On(request)) : user_.DblClick(Control(request));
}

DriveSession::Result DriveSession::Mouse(const Json& request) {
    const memory::MouseAction action = MouseActionOf(Need(request, "event").get<std::string>());
    const host::MouseArguments mouse = {
        .button = request.value("button", std::int16_t{0}),
        .shift = request.value("shift", std::int16_t{0}),
        .x = request.value("x", 0.0F),
        .y = request.value("y", 0.0F),
    };
    return request.contains("on") ? user_.Mouse(On(request), action, mouse)
                                  : user_.Mouse(Control(request), action, mouse);
}

DriveSession::Result DriveSession::Scroll(const Json& request) {
    auto* bar = dynamic_cast<memory::ScrollBar*>(&On(request));
    if (bar == nullptr) {
        throw std::invalid_argument("\"on\" is no scroll bar");
    }
    return user_.Scroll(*bar, Need(request, "value").get<std::int32_t>());
}

DriveSession::Result DriveSession::Focus(const Json& request) {
    if (request.contains("on")) {
        return user_.MoveFocusTo(On(request));
    }
    user_.LeaveFocus();
    return std::nullopt;
}

// ---- The container

DriveSession::Result DriveSession::SetAmbient(const Json& request) {
    if (const auto color = request.find("BackColor"); color != request.end()) {
        form_.SetAmbientBackColor(ToColor(ValueOf(*color, form_)));
    }
    if (const auto value = request.find("Font"); value != request.end()) {
        const host::FontRef font = host::ToFont(ValueOf(*value, form_));
        memory::Font& ambient = form_.AmbientFont();
        ambient.SetName(font->Name());
        ambient.SetSize(font->Size());
        ambient.SetBold(font->Bold());
        ambient.SetItalic(font->Italic());
        ambient.SetUnderline(font->Underline());
    }
    return std::nullopt;
}

DriveSession::Result DriveSession::Allow(const Json& request) {
    Control(request).Site().AllowChange(TextOf(Need(request, "name")),
                                        Need(request, "value").get<bool>());
    return std::nullopt;
}

DriveSession::Result DriveSession::Quit(const Json& /*request*/) {
    quit_ = true;
    return std::nullopt;
}

// ---- Who is meant

memory::PlacedControl& DriveSession::Control(const Json& request) {
    const auto found = controls_.find(Id(request));
    if (found == controls_.end()) {
        throw std::invalid_argument("there is no control \"" + Id(request) + '"');
    }
    return *found->second;
}

memory::PlacedPage& DriveSession::Page(const Json& request) {
    const auto found = pages_.find(Id(request));
    if (found == pages_.end()) {
        throw std::invalid_argument("there is no page \"" + Id(request) + '"');
    }
    return *found->second;
}

memory::Constituents& DriveSession::Parts(const Json& request) {
    return pages_.contains(Id(request)) ? Page(request).Parts() : Control(request).Parts();
}

Object& DriveSession::Target(const Json& request) {
    return pages_.contains(Id(request)) ? Page(request).Automation()
                                        : Control(request).Automation();
}

memory::Element& DriveSession::On(const Json& request) {
    const Json& name = Need(request, "on");
    memory::Element* element = Parts(request).Find(TextOf(name));
    if (element == nullptr) {
        throw std::invalid_argument("there is no constituent " + name.dump());
    }
    return *element;
}

memory::TextBox& DriveSession::TextBoxOn(const Json& request) {
    auto* box = request.contains("on") ? dynamic_cast<memory::TextBox*>(&On(request))
                                       : Parts(request).VisibleTextBox();
    if (box == nullptr) {
        throw std::invalid_argument(request.contains("on") ? "\"on\" is no text box"
                                                           : "there is no visible text box");
    }
    return *box;
}

}  // namespace lumenkit::cli
