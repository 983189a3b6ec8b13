#include "runtime/ole/values/dispatch_object.h"

#include <deque>
#include <vector>

#include "frame/runtime_error.h"
#include "runtime/ole/values/exception_info.h"
#include "runtime/ole/values/ole_font.h"
#include "runtime/ole/values/result.h"
#include "runtime/ole/values/variant.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

namespace {

WORD FlagsOf(InvokeKind kind) {
    switch (kind) {
        case InvokeKind::Get:
            return DISPATCH_PROPERTYGET;
        case InvokeKind::Let:
            return DISPATCH_PROPERTYPUT;
        case InvokeKind::Set:
            return DISPATCH_PROPERTYPUTREF;
        case InvokeKind::Call:
            break;
    }
    return DISPATCH_METHOD | DISPATCH_PROPERTYGET;
}

// The arguments in the order of automation: the last one first.
class PassedArguments {
 public:
    PassedArguments(std::span<Value> values, bool assigning) {
        variants_.resize(values.size());
        for (std::size_t index = 0; index < values.size(); ++index) {
            ToVariant(values[index], *held_.emplace_back());
            variants_[values.size() - 1 - index] = *held_.back();
        }
        parameters_.rgvarg = variants_.data();
        parameters_.cArgs = static_cast<UINT>(variants_.size());
        if (assigning) {
            parameters_.rgdispidNamedArgs = &put_;
            parameters_.cNamedArgs = 1;
        }
    }
    DISPPARAMS* Get() { return &parameters_; }

 private:
    std::deque<Variant> held_;
    std::vector<VARIANT> variants_;  // copies of the variants that held_ owns
    DISPID put_ = DISPID_PROPERTYPUT;
    DISPPARAMS parameters_ = {};
};

}  // namespace

std::optional<std::int32_t> DispatchObject::FindMember(TextView name) const {
    std::wstring wide = win32::ToWide(name);
    wchar_t* names = wide.data();
    DISPID identifier = DISPID_UNKNOWN;
    if (FAILED(dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &identifier))) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(identifier);
}

Value DispatchObject::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
    PassedArguments passed(arguments, kind == InvokeKind::Let || kind == InvokeKind::Set);
    Variant result;
    ExceptionInfo exception;
    UINT wrongArgument = 0;
    const HRESULT outcome =
        dispatch_->Invoke(identifier, IID_NULL, LOCALE_USER_DEFAULT, FlagsOf(kind), passed.Get(),
                          result.Get(), exception.Get(), &wrongArgument);
    if (outcome == DISP_E_EXCEPTION) {
        exception.Raise();
    }
    if (FAILED(outcome)) {
        throw ErrorOf(outcome);
    }
    return FromVariant(*result);
}

ObjectRef ObjectOf(IUnknown* object) {
    if (object == nullptr) {
        return nullptr;
    }
    ComPtr<IFont> font;
    if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(&font)))) {
        return OleFont::Of(font.Get());
    }
    ComPtr<IDispatch> dispatch;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&dispatch)))) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return std::make_shared<DispatchObject>(dispatch.Get());
}

bool DispatchObject::IsSame(const Object& other) const {
    const auto* backed = dynamic_cast<const ComBacked*>(&other);
    if (backed == nullptr) {
        return false;
    }
    ComPtr<IUnknown> own;
    ComPtr<IUnknown> others;
    return SUCCEEDED(dispatch_.As(&own)) && SUCCEEDED(backed->Dispatch().As(&others)) &&
           own.Get() == others.Get();
}

}  // namespace lumenkit::ole
