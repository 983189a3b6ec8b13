#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "project/lumenkit_classes.h"
#include "runtime/ole/entries.h"
#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/objects/component.h"
#include "runtime/ole/values/basic_string.h"
#include "runtime/ole/values/variant.h"
#include "tests/ole/container/site.h"
#include "tests/unit/ole/message_boxes.h"

namespace lumenkit::ole {

/// Returns the number of objects of the table's classes, class factories included, that clients
/// hold.
inline int LiveObjects(const ClassTable& classes) {
    return Component::Of(classes).LiveObjects();
}

using Lines = container::CallLog::Lines;

inline GUID ClassIdOf(TextView name) {
    Text whole(u"lumenkit.");
    whole += name;
    return GuidOf(lumenkitClasses.Find(whole)->uniqueIdentifier);
}

/// Checks after each test that no object is left and that no unexpected message box was shown.
class OleTest : public ::testing::Test {
 protected:
    static ComPtr<IUnknown> Create(TextView name) {
        return container::Create(lumenkitClasses, name);
    }
    template <typename Interface>
    static ComPtr<Interface> Create(TextView name) {
        ComPtr<Interface> found;
        Create(name).As(&found);
        return found;
    }

    void TearDown() override {
        EXPECT_EQ(LiveObjects(lumenkitClasses), 0);
        EXPECT_EQ(VBDllCanUnloadNow(lumenkitClasses), S_OK);
        EXPECT_EQ(MessageBoxes::Take(), 0);
    }

 private:
    MessageBoxes boxes_;
};

/// A control that is used through its IDispatch, as late-bound clients use it.
class Late {
 public:
    explicit Late(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}

    DISPID Identifier(std::wstring name) const {
        wchar_t* names = name.data();
        DISPID found = DISPID_UNKNOWN;
        dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &found);
        return found;
    }
    /// The arguments are in the order of DISPPARAMS: the last one comes first.
    HRESULT Invoke(const std::wstring& name, WORD flags, std::vector<VARIANT> arguments,
                   VARIANT* result = nullptr, EXCEPINFO* exception = nullptr,
                   UINT* wrong = nullptr) const {
        DISPID put = DISPID_PROPERTYPUT;
        const bool puts = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        DISPPARAMS parameters = {arguments.data(), puts ? &put : nullptr,
                                 static_cast<UINT>(arguments.size()), puts ? 1U : 0U};
        return dispatch_->Invoke(Identifier(name), IID_NULL, LOCALE_USER_DEFAULT, flags,
                                 &parameters, result, exception, wrong);
    }
    HRESULT Put(const std::wstring& name, const Value& value) const {
        Variant variant;
        ToVariant(value, *variant);
        return Invoke(name, DISPATCH_PROPERTYPUT, {*variant});
    }
    HRESULT PutVariant(const std::wstring& name, const VARIANT& variant) const {
        return Invoke(name, DISPATCH_PROPERTYPUT, {variant});
    }
    Value Get(const std::wstring& name) const {
        Variant result;
        const HRESULT outcome =
            Invoke(name, DISPATCH_PROPERTYGET | DISPATCH_METHOD, {}, result.Get());
        EXPECT_EQ(outcome, S_OK);
        return FromVariant(*result);
    }
    IDispatch* operator->() const { return dispatch_.Get(); }
    const ComPtr<IDispatch>& Get() const { return dispatch_; }

 private:
    ComPtr<IDispatch> dispatch_;
};

}  // namespace lumenkit::ole
