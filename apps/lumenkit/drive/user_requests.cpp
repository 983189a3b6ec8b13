#include "apps/lumenkit/drive/requests.h"
#include "frame/utf8.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"

namespace lumenkit::cli::requests {

namespace {

memory::Element& On(ScriptedContainer& container, const Fields& request) {
    const std::string name = request.String("on");
    memory::Element* element = container.Parts(request.String("id")).Find(FromUtf8(name));
    if (element == nullptr) {
        throw BadRequest("there is no constituent \"" + name + '"');
    }
    return *element;
}

// The element that the user acts on: the one named by "on", or the visible text box. May be null.
memory::Element* Reached(ScriptedContainer& container, const Fields& request) {
    return request.Has("on") ? &On(container, request)
                             : container.Parts(request.String("id")).VisibleTextBox();
}

// Applies `act` to the element that the user acts on, or to the surface of the control if there is
// none.
template <typename Act>
bool ActOn(ScriptedContainer& container, const Fields& request, Act act) {
    memory::Element* element = Reached(container, request);
    return element != nullptr ? act(*element) : act(container.Control(request.String("id")));
}

memory::TextBox& TextBoxOf(ScriptedContainer& container, const Fields& request) {
    auto* box = dynamic_cast<memory::TextBox*>(Reached(container, request));
    if (box == nullptr) {
        throw BadRequest(request.Has("on") ? '"' + request.String("on") + "\" is no text box"
                                           : "there is no visible text box");
    }
    return *box;
}

memory::MouseAction ActionOf(const std::string& event) {
    if (event == "MouseDown") {
        return memory::MouseAction::Down;
    }
    if (event == "MouseMove") {
        return memory::MouseAction::Move;
    }
    if (event == "MouseUp") {
        return memory::MouseAction::Up;
    }
    throw BadRequest(R"("event" must be "MouseDown", "MouseMove" or "MouseUp")");
}

}  // namespace

Result Type(ScriptedContainer& container, const Fields& request) {
    return container.GetUser().Type(TextBoxOf(container, request),
                                    FromUtf8(request.String("text")));
}

Result Select(ScriptedContainer& container, const Fields& request) {
    return container.GetUser().Select(TextBoxOf(container, request),
                                      request.Whole<std::int32_t>("start"),
                                      request.Whole<std::int32_t>("length"));
}

Result Paste(ScriptedContainer& container, const Fields& request) {
    return container.GetUser().Paste(TextBoxOf(container, request),
                                     FromUtf8(request.String("text")));
}

Result Click(ScriptedContainer& container, const Fields& request) {
    return ActOn(container, request,
                 [&](auto& receiver) { return container.GetUser().Click(receiver); });
}

Result DblClick(ScriptedContainer& container, const Fields& request) {
    return ActOn(container, request,
                 [&](auto& receiver) { return container.GetUser().DblClick(receiver); });
}

Result Mouse(ScriptedContainer& container, const Fields& request) {
    const memory::MouseAction action = ActionOf(request.String("event"));
    const host::MouseArguments mouse = {
        .button = request.Whole<std::int16_t>("button", 0),
        .shift = request.Whole<std::int16_t>("shift", 0),
        .x = request.Single("x", 0),
        .y = request.Single("y", 0),
    };
    return ActOn(container, request, [&](auto& receiver) {
        return container.GetUser().Mouse(receiver, action, mouse);
    });
}

Result Scroll(ScriptedContainer& container, const Fields& request) {
    auto* bar = dynamic_cast<memory::ScrollBar*>(&On(container, request));
    if (bar == nullptr) {
        throw BadRequest('"' + request.String("on") + "\" is no scroll bar");
    }
    return container.GetUser().Scroll(*bar, request.Whole<std::int32_t>("value"));
}

Result Focus(ScriptedContainer& container, const Fields& request) {
    if (request.Has("on")) {
        return container.GetUser().MoveFocusTo(On(container, request));
    }
    container.GetUser().LeaveFocus();
    return std::nullopt;
}

}  // namespace lumenkit::cli::requests
