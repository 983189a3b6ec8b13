#include <utility>
#include <vector>

#include "apps/lumenkit/drive/requests.h"
#include "frame/automation/interface_table.h"
#include "frame/runtime_error.h"
#include "frame/utf8.h"

namespace lumenkit::cli::requests {

namespace {

// The use of a member in a request: the object, the member and its indices or arguments.
struct Use {
    Object& target;
    std::int32_t member;
    std::vector<Value> arguments;
};

std::int32_t MemberOf(const Object& target, const Fields& request) {
    if (request.Has("dispid")) {
        return request.Whole<std::int32_t>("dispid");
    }
    const std::optional<std::int32_t> found = target.FindMember(FromUtf8(request.String("name")));
    if (!found) {
        Raise(ErrorNumber::NoSuchMember);
    }
    return *found;
}

Use UseOf(ScriptedContainer& container, const Fields& request) {
    Object& target = container.Automation(request.String("id"));
    Use use = {.target = target, .member = MemberOf(target, request), .arguments = {}};
    if (request.Has("index")) {
        use.arguments.push_back(ValueOf(request.At("index"), container.GetForm()));
    }
    for (const RequestJson& argument : request.List("args")) {
        use.arguments.push_back(ValueOf(argument, container.GetForm()));
    }
    return use;
}

}  // namespace

Result Get(ScriptedContainer& container, const Fields& request) {
    Use use = UseOf(container, request);
    return ToJson(use.target.Invoke(use.member, InvokeKind::Get, use.arguments));
}

Result Let(ScriptedContainer& container, const Fields& request) {
    Use use = UseOf(container, request);
    use.arguments.push_back(ValueOf(request.At("value"), container.GetForm()));
    use.target.Invoke(use.member, InvokeKind::Let, use.arguments);
    return std::nullopt;
}

Result Call(ScriptedContainer& container, const Fields& request) {
    Use use = UseOf(container, request);
    const Value result = use.target.Invoke(use.member, InvokeKind::Call, use.arguments);
    const memory::HostedControl& control = container.Control(request.String("id"));
    const Member* member = control.Type().interfaceTable->Find(use.member);
    return member->type == ValueType::None ? std::nullopt : Result(ToJson(result));
}

}  // namespace lumenkit::cli::requests
