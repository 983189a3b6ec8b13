#include "runtime/ole/values/result.h"

#include <array>
#include <new>

#include "runtime/ole/stored/stream_format.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

namespace {

constexpr std::int32_t largestNumber = 0xFFFF;

struct Correspondence {
    HRESULT result;
    ErrorNumber number;
};

// The results of automation and the runtime errors that correspond to them.
constexpr std::array correspondences = {
    Correspondence{DISP_E_MEMBERNOTFOUND, ErrorNumber::NoSuchMember},
    Correspondence{DISP_E_UNKNOWNNAME, ErrorNumber::NoSuchMember},
    Correspondence{DISP_E_TYPEMISMATCH, ErrorNumber::TypeMismatch},
    Correspondence{DISP_E_OVERFLOW, ErrorNumber::Overflow},
    Correspondence{DISP_E_BADPARAMCOUNT, ErrorNumber::WrongNumberOfArguments},
    Correspondence{DISP_E_PARAMNOTOPTIONAL, ErrorNumber::ArgumentNotOptional},
    Correspondence{DISP_E_DIVBYZERO, ErrorNumber::DivisionByZero},
    Correspondence{DISP_E_BADINDEX, ErrorNumber::SubscriptOutOfRange},
    Correspondence{E_OUTOFMEMORY, ErrorNumber::OutOfMemory},
    Correspondence{E_INVALIDARG, ErrorNumber::InvalidProcedureCall},
};

std::int32_t NumberOf(HRESULT result) {
    if (HRESULT_FACILITY(result) == FACILITY_CONTROL) {
        return HRESULT_CODE(result);
    }
    for (const Correspondence& each : correspondences) {
        if (each.result == result) {
            return static_cast<std::int32_t>(each.number);
        }
    }
    return static_cast<std::int32_t>(result);
}

void SetErrorInformation(const RuntimeError& error, REFIID interfaceId) {
    ComPtr<ICreateErrorInfo> created;
    ComPtr<IErrorInfo> information;
    if (FAILED(CreateErrorInfo(&created)) || FAILED(created.As(&information))) {
        return;
    }
    Text description = error.Description();
    std::wstring source = L"lumenkit";
    created->SetGUID(interfaceId);
    created->SetDescription(win32::AsWide(description.data()));
    created->SetSource(source.data());
    SetErrorInfo(0, information.Get());
}

}  // namespace

void Check(HRESULT result) {
    if (FAILED(result)) {
        throw ComError(result);
    }
}

HRESULT ResultOf(const RuntimeError& error) {
    const std::int32_t number = error.Number();
    if (number == static_cast<std::int32_t>(ErrorNumber::OutOfMemory)) {
        return E_OUTOFMEMORY;
    }
    if (number > 0 && number <= largestNumber) {
        return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
    }
    return number < 0 ? static_cast<HRESULT>(number) : E_FAIL;
}

RuntimeError ErrorOf(HRESULT result, TextView description) {
    const std::int32_t number = NumberOf(result);
    return {number, Text(description.empty() ? RuntimeErrorText(number) : description)};
}

HRESULT CurrentResult(REFIID interfaceId) noexcept {
    try {
        throw;
    } catch (const ComError& error) {
        return error.Result();
    } catch (const RuntimeError& error) {
        try {
            SetErrorInformation(error, interfaceId);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
        return ResultOf(error);
    } catch (const stored::Corrupt&) {
        return STG_E_DOCFILECORRUPT;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

}  // namespace lumenkit::ole
