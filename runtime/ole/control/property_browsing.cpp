#include "runtime/ole/control/property_browsing.h"

#include <algorithm>

#include "frame/numbers.h"
#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/property_page_of.h"
#include "runtime/ole/values/basic_string.h"
#include "runtime/ole/values/result.h"
#include "runtime/ole/values/task_memory.h"
#include "runtime/ole/values/variant.h"

namespace lumenkit::ole {

namespace {

// Returns a text such as "2 - scrollBarsVertical".
Text Shown(const EnumerationMember& member) {
    Text text = Decimal(member.value);
    text += u" - ";
    text += member.name;
    return text;
}

// A client's array while it is filled. It is freed with its texts unless it is handed over.
class TaskTexts {
 public:
    explicit TaskTexts(std::size_t size)
        : texts_(static_cast<LPOLESTR*>(NewTaskMemory(size * sizeof(LPOLESTR)))) {}
    ~TaskTexts() {
        for (ULONG index = 0; index < count_; ++index) {
            CoTaskMemFree(texts_[index]);
        }
        CoTaskMemFree(texts_);
    }
    TaskTexts(const TaskTexts&) = delete;
    TaskTexts& operator=(const TaskTexts&) = delete;

    void Add(TextView text) {
        texts_[count_] = NewTaskText(text);
        ++count_;
    }
    CALPOLESTR Detach() {
        return {.cElems = std::exchange(count_, 0), .pElems = std::exchange(texts_, nullptr)};
    }

 private:
    LPOLESTR* texts_;
    ULONG count_ = 0;
};

}  // namespace

const EnumerationTable* PropertyBrowsing::EnumerationOf(DISPID property) const {
    const Member* member = core_.Type().interfaceTable->Find(static_cast<std::int32_t>(property));
    if (member == nullptr || member->kind != MemberKind::Property) {
        throw ComError(DISP_E_MEMBERNOTFOUND);
    }
    const EnumerationLibrary* library = core_.GetComponent().Classes().enumerations;
    return library == nullptr ? nullptr : library->Find(member->type);
}

HRESULT PropertyBrowsing::GetDisplayString(DISPID property, BSTR* text) {
    return Guarded([&] {
        Checked(text) = nullptr;
        const EnumerationTable* enumeration = EnumerationOf(property);
        if (enumeration == nullptr) {
            return S_FALSE;  // the browser shows the value as it is
        }
        const std::int32_t value =
            ToLong(core_.Started().Automation().Get(static_cast<std::int32_t>(property)));
        const auto found =
            std::ranges::find(enumeration->members, value, &EnumerationMember::value);
        if (found == enumeration->members.end()) {
            return S_FALSE;
        }
        *text = BasicString(Shown(*found)).Detach();
        return S_OK;
    });
}

HRESULT PropertyBrowsing::MapPropertyToPage(DISPID property, CLSID* page) {
    return Guarded([&] {
        Checked(page) = CLSID_NULL;
        const ClassDescriptor* own = PropertyPageOf(core_.GetComponent().Classes(), core_.Type());
        if (own == nullptr || !IsOnPage(core_.Type(), property)) {
            return PERPROP_E_NOPAGEAVAILABLE;
        }
        *page = GuidOf(own->uniqueIdentifier);
        return S_OK;
    });
}

HRESULT PropertyBrowsing::GetPredefinedStrings(DISPID property, CALPOLESTR* texts,
                                               CADWORD* cookies) {
    return Guarded([&] {
        Checked(texts) = {};
        Checked(cookies) = {};
        const EnumerationTable* enumeration = EnumerationOf(property);
        if (enumeration == nullptr) {
            return S_FALSE;
        }
        const std::size_t count = enumeration->members.size();
        TaskTexts shown(count);
        for (const EnumerationMember& member : enumeration->members) {
            shown.Add(Shown(member));
        }
        cookies->pElems = static_cast<DWORD*>(NewTaskMemory(count * sizeof(DWORD)));
        cookies->cElems = static_cast<ULONG>(count);
        for (std::size_t index = 0; index < count; ++index) {
            cookies->pElems[index] = static_cast<DWORD>(enumeration->members[index].value);
        }
        *texts = shown.Detach();
        return S_OK;
    });
}

HRESULT PropertyBrowsing::GetPredefinedValue(DISPID property, DWORD cookie, VARIANT* value) {
    return Guarded([&] {
        VariantInit(&Checked(value));
        const EnumerationTable* enumeration = EnumerationOf(property);
        const auto number = static_cast<std::int32_t>(cookie);
        if (enumeration == nullptr ||
            std::ranges::find(enumeration->members, number, &EnumerationMember::value) ==
                enumeration->members.end()) {
            return E_INVALIDARG;
        }
        ToVariant(number, *value);
        return S_OK;
    });
}

}  // namespace lumenkit::ole
