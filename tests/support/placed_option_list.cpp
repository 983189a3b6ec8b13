#include "tests/support/placed_option_list.h"

#include <cstdlib>
#include <variant>

#include "frame/utf8.h"
#include "tests/support/fake_reporter.h"

namespace lumenkit::testing {

namespace {

const ClassTable optionListClasses = {.libraryName = u"lumenkit", .classes = {&voptlistClass, 1}};

memory::Placing InMode(PlacedOptionList::Mode mode, memory::Placing placing) {
    placing.userMode = mode == PlacedOptionList::Mode::Run;
    return placing;
}

// Returns the text after `label` up to the end of the line.
std::string Field(const std::string& message, const std::string& label) {
    const std::size_t found = message.find(label);
    if (found == std::string::npos) {
        return {};
    }
    const std::size_t start = found + label.size();
    return message.substr(start, message.find("\r\n", start) - start);
}

std::string Describe(const memory::ShownMessage& shown) {
    const std::string message = ToUtf8(shown.text);
    const std::string procedure = Field(message, "Proc = ");
    const std::string code = Field(message, "Error Code =");
    const auto number = static_cast<ErrorNumber>(std::atoi(code.c_str()));
    const bool isReport = shown.text == ReportMessage(u"VOPTLIST", FromUtf8(procedure), number) &&
                          shown.title == u"LUMENKIT ERROR" &&
                          shown.style == host::MessageStyle::Critical;
    return isReport ? "error " + code + " in " + procedure : "message " + message;
}

}  // namespace

PlacedOptionList::PlacedOptionList(Mode mode, const memory::Placing& placing)
    : form_(optionListClasses), placed_(form_, voptlistClass, InMode(mode, placing)) {}

std::unique_ptr<PlacedOptionList> PlacedOptionList::New(Mode mode, const memory::Placing& placing) {
    auto list = std::make_unique<PlacedOptionList>(mode, placing);
    list->Placed().StartNew();
    return list;
}

std::unique_ptr<PlacedOptionList> PlacedOptionList::Saved(Mode mode, host::PropertyBag& bag,
                                                          const memory::Placing& placing) {
    auto list = std::make_unique<PlacedOptionList>(mode, placing);
    list->Placed().StartSaved(bag);
    return list;
}

std::vector<memory::OptionButton*> PlacedOptionList::Buttons() const {
    std::vector<memory::OptionButton*> buttons;
    for (memory::Element* element : const_cast<memory::HostedControl&>(placed_).Parts().All()) {
        if (auto* button = dynamic_cast<memory::OptionButton*>(element)) {
            buttons.push_back(button);
        }
    }
    return buttons;
}

std::vector<std::string> PlacedOptionList::Items() const {
    std::vector<std::string> items;
    for (const memory::OptionButton* button : Buttons()) {
        std::string item = ToUtf8(button->Tag()) + ";" + ToUtf8(button->Caption());
        if (button->IsSelected()) {
            item += " *";
        }
        items.push_back(button->IsVisible() ? item : "(" + item + ")");
    }
    return items;
}

std::vector<std::string> PlacedOptionList::TakeLog() {
    std::vector<std::string> lines;
    bool beeped = false;
    for (const memory::LogEntry& entry : form_.GetLog().Entries()) {
        if (std::holds_alternative<memory::HeardBeep>(entry)) {
            beeped = true;
            continue;
        }
        if (const auto* changed = std::get_if<memory::ChangedProperty>(&entry)) {
            lines.push_back("changed " + ToUtf8(changed->name));
        } else if (const auto* event = std::get_if<memory::RaisedEvent>(&entry)) {
            lines.push_back("event " + ToUtf8(event->name));
        } else {
            lines.push_back((beeped ? "" : "no beep, ") +
                            Describe(std::get<memory::ShownMessage>(entry)));
        }
        beeped = false;
    }
    if (beeped) {
        lines.emplace_back("beep");
    }
    form_.GetLog().Clear();
    return lines;
}

}  // namespace lumenkit::testing
