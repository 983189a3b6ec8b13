#include "runtime/shared/saving.h"

#include <exception>

#include "frame/runtime_error.h"

namespace lumenkit::shared {

namespace {

// Passes the values on to another bag and keeps the first error of that bag.
class WatchedBag final : public host::PropertyBag {
 public:
    explicit WatchedBag(host::PropertyBag& bag) : bag_(bag) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override {
        return bag_.ReadProperty(name, defaultValue);
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        try {
            bag_.WriteProperty(name, value, defaultValue);
        } catch (...) {
            if (error_ == nullptr) {
                error_ = std::current_exception();
            }
            throw;
        }
    }
    void RaiseError() const {
        if (error_ != nullptr) {
            std::rethrow_exception(error_);
        }
    }

 private:
    host::PropertyBag& bag_;
    std::exception_ptr error_;
};

}  // namespace

void ReportCounter::MsgBox(TextView message, host::MessageStyle style,
                           std::optional<TextView> title) {
    if (style == host::MessageStyle::Critical) {
        ++reports_;
    }
    shown_.MsgBox(message, style, title);
}

void SaveControl(Control& control, host::PropertyBag& bag, const ReportCounter& reports) {
    const int before = reports.Reports();
    WatchedBag watched(bag);
    control.UserControl_WriteProperties(watched);
    watched.RaiseError();
    if (reports.Reports() != before) {
        Raise(ErrorNumber::SavingFailed);
    }
}

}  // namespace lumenkit::shared
