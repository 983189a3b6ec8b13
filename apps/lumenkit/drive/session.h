// A session of `lumenkit drive`: controls on a windowless form, driven by requests.
#pragma once

#include <string>
#include <string_view>

#include "apps/lumenkit/drive/scripted_container.h"
#include "frame/class_table.h"

namespace lumenkit::cli {

/// One run of `lumenkit drive`. docs/drive.md describes the requests and answers.
class DriveSession {
 public:
    /// The objects that `classes` refers to must outlive the session.
    explicit DriveSession(const ClassTable& classes) : container_(classes) {}

    /// Serves one line, a request in JSON, and returns the answer without a line break. Errors in
    /// the request are part of the answer.
    std::string Serve(std::string_view line);
    /// Whether "quit" has been requested.
    bool HasQuit() const { return container_.HasQuit(); }

 private:
    ScriptedContainer container_;
};

}  // namespace lumenkit::cli
