// Benchmarks of requests to "lumenkit drive": how their cost grows with the number of controls of a
// session. The peer is a session with one control of each class.
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "apps/lumenkit/drive/session.h"
#include "bench/ratio_table.h"
#include "bench/require.h"
#include "project/lumenkit_classes.h"

namespace {

using lumenkit::lumenkitClasses;
using lumenkit::bench::AddComparison;
using lumenkit::bench::Ratio;
using lumenkit::bench::Require;
using lumenkit::bench::Side;
using lumenkit::cli::DriveSession;

constexpr std::array<const char*, 3> classes = {"VLabel", "VMemo", "VOptList"};
constexpr std::size_t many = 100000;

void Ask(DriveSession& session, const std::string& request) {
    Require(session.Serve(request).starts_with(R"({"ok":true)"), request.c_str());
}

std::string Id(std::size_t index) {
    return "control" + std::to_string(index);
}

std::string Creating(const std::string& type, const std::string& id) {
    return R"({"do":"new","class":")" + type + R"(","id":")" + id + R"("})";
}

std::string To(const std::string& id, const std::string& request, const std::string& rest = "") {
    return R"({"do":")" + request + R"(","id":")" + id + '"' + rest + '}';
}

std::shared_ptr<DriveSession> SessionOf(std::size_t controls) {
    auto session = std::make_shared<DriveSession>(lumenkitClasses);
    for (std::size_t i = 0; i < controls; ++i) {
        Ask(*session, Creating(classes[i % classes.size()], Id(i)));
    }
    return session;
}

// The requests to the last control of each class.
std::vector<std::string> UsesOfTheLast(std::size_t controls) {
    std::vector<std::string> requests;
    for (std::size_t i = controls - classes.size(); i < controls; ++i) {
        const std::string id = Id(i);
        requests.push_back(To(id, "get", R"(,"name":"Enabled")"));
        requests.push_back(To(id, "let", R"(,"name":"Enabled","value":true)"));
        requests.push_back(To(id, "resize", R"(,"width":3000,"height":1500)"));
        for (const char* request : {"draw", "save", "state", "click"}) {
            requests.push_back(To(id, request));
        }
    }
    return requests;
}

std::vector<std::string> LifeAndDeath() {
    std::vector<std::string> requests;
    for (const char* type : classes) {
        requests.push_back(Creating(type, "another"));
        requests.push_back(To("another", "drop"));
    }
    return requests;
}

Side Asking(std::shared_ptr<DriveSession> session, std::vector<std::string> requests) {
    const auto count = static_cast<double>(requests.size());
    return {[session = std::move(session), requests = std::move(requests)] {
                for (const std::string& request : requests) {
                    Ask(*session, request);
                }
            },
            count};
}

}  // namespace

int main(int argc, char** argv) {
    const auto crowded = SessionOf(many);
    const auto empty = SessionOf(classes.size());
    AddComparison({.what = "drive: use a control among 100,000, against one of three",
                   .unit = "request",
                   .ours = Asking(crowded, UsesOfTheLast(many)),
                   .other = Asking(empty, UsesOfTheLast(classes.size())),
                   .ratio = Ratio::TimesSlower,
                   .aim = "<= 1.10x"});
    AddComparison({.what = "drive: make and drop a control beside 100,000, against beside three",
                   .unit = "request",
                   .ours = Asking(crowded, LifeAndDeath()),
                   .other = Asking(empty, LifeAndDeath()),
                   .ratio = Ratio::TimesSlower,
                   .aim = "<= 1.10x"});
    return lumenkit::bench::RunComparisons(argc, argv);
}
