// Linked into test programs that need a QApplication. It exists while the tests run. If
// QT_QPA_PLATFORM is not set, Qt uses no screen.
#include <QApplication>
#include <QtGlobal>
#include <array>
#include <memory>
#include <optional>

#include <gtest/gtest.h>

namespace lumenkit::testing {
namespace {

class QtEnvironment final : public ::testing::Environment {
 public:
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        application_.emplace(count_, arguments_.data());
    }
    void TearDown() override { application_.reset(); }

 private:
    std::array<char, 5> name_{"test"};
    std::array<char*, 2> arguments_{name_.data(), nullptr};
    int count_ = 1;
    std::optional<QApplication> application_;
};

[[maybe_unused]] const auto* const environment =
    ::testing::AddGlobalTestEnvironment(std::make_unique<QtEnvironment>().release());

}  // namespace
}  // namespace lumenkit::testing
