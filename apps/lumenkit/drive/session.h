// A scripted container: controls on a windowless form, driven by requests.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "apps/lumenkit/drive/json.h"
#include "frame/class_table.h"
#include "runtime/memory/constituents.h"
#include "runtime/memory/form.h"
#include "runtime/memory/placed_control.h"
#include "runtime/memory/placed_page.h"
#include "runtime/memory/user.h"

namespace lumenkit::cli {

/// One run of `lumenkit drive`; docs/drive.md describes the requests and answers.
class DriveSession {
 public:
    explicit DriveSession(const ClassTable& classes);

    /// Serves one line, a request in JSON, and gives the answer. Whatever is wrong with the request
    /// is said in the answer.
    std::string Serve(std::string_view line);
    /// Whether the last request was to quit.
    bool HasQuit() const { return quit_; }

 private:
    /// What a request comes to; nothing where there is no result.
    using Result = std::optional<Json>;
    using Handler = Result (DriveSession::*)(const Json& request);
    static const std::map<std::string, Handler, std::less<>>& Handlers();

    Result Handle(const Json& request);

    // The controls' life.
    Result New(const Json& request);
    Result NewPage(const ClassDescriptor& type, const Json& request);
    Result Save(const Json& request);
    Result Resize(const Json& request);
    Result Apply(const Json& request);

    // Their members.
    Result Get(const Json& request);
    Result Let(const Json& request);
    Result Call(const Json& request);

    // What they look like.
    Result Draw(const Json& request);
    Result State(const Json& request);

    // The user.
    Result Type(const Json& request);
    Result Select(const Json& request);
    Result Paste(const Json& request);
    Result Click(const Json& request);
    Result DblClick(const Json& request);
    Result Mouse(const Json& request);
    Result Scroll(const Json& request);
    Result Focus(const Json& request);

    // The container.
    Result SetAmbient(const Json& request);
    Result Allow(const Json& request);
    Result Quit(const Json& request);

    memory::PlacedControl& Control(const Json& request);
    memory::PlacedPage& Page(const Json& request);
    memory::Constituents& Parts(const Json& request);
    Object& Target(const Json& request);
    memory::Element& On(const Json& request);
    memory::TextBox& TextBoxOn(const Json& request);

    memory::Form form_;
    memory::User user_{form_};
    // Declared in this order because pages refer to controls and must go first.
    std::map<std::string, std::unique_ptr<memory::PlacedControl>, std::less<>> controls_;
    std::map<std::string, std::unique_ptr<memory::PlacedPage>, std::less<>> pages_;
    bool quit_ = false;
};

}  // namespace lumenkit::cli
