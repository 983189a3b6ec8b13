#include "apps/lumenform/design/model/refusal.h"

#include "forms/form_error.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

std::optional<QString> Attempt(const std::function<void()>& work) {
    try {
        work();
        return std::nullopt;
    } catch (const RuntimeError& error) {
        return qt::ToQString(error.Description());
    } catch (const forms::FormError& error) {
        return QString::fromUtf8(error.what());
    }
}

QString RefusalOf(const std::function<void()>& change) {
    try {
        change();
        return {};
    } catch (const forms::FormError& error) {
        return QString::fromStdString(error.Description());
    } catch (...) {
        return qt::ToQString(CurrentError().Description());
    }
}

}  // namespace lumenkit::lumenform
