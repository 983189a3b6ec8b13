#include "project/published/idl_text.h"

#include <utility>

#include "frame/utf8.h"

namespace lumenkit::idl {

Attributes& Attributes::Add(std::string attribute) {
    attributes_.push_back(std::move(attribute));
    return *this;
}

Attributes& Attributes::AddIf(bool condition, std::string_view attribute) {
    return condition ? Add(std::string(attribute)) : *this;
}

Attributes& Attributes::AddHelp(TextView help) {
    return help.empty() ? *this : Add("helpstring(" + Quoted(help) + ")");
}

std::string Attributes::Written() const {
    return attributes_.empty() ? "" : "[" + Listed(attributes_) + "]";
}

std::string Quoted(TextView text) {
    std::string quoted = "\"";
    for (const char unit : ToUtf8(text)) {
        if (unit == '"' || unit == '\\') {
            quoted += '\\';
        }
        quoted += unit;
    }
    return quoted + "\"";
}

std::string Listed(const std::vector<std::string>& items) {
    std::string listed;
    for (const std::string& item : items) {
        listed += (listed.empty() ? "" : ", ") + item;
    }
    return listed;
}

}  // namespace lumenkit::idl
