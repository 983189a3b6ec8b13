#include "frame/runtime_error.h"

#include <array>
#include <new>
#include <utility>

namespace lumenkit {

namespace {

struct KnownError {
    ErrorNumber number;
    TextView text;
};

constexpr std::array knownErrors = {
    KnownError{ErrorNumber::InvalidProcedureCall, u"Invalid procedure call or argument"},
    KnownError{ErrorNumber::Overflow, u"Overflow"},
    KnownError{ErrorNumber::OutOfMemory, u"Out of memory"},
    KnownError{ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"},
    KnownError{ErrorNumber::DivisionByZero, u"Division by zero"},
    KnownError{ErrorNumber::TypeMismatch, u"Type mismatch"},
    KnownError{ErrorNumber::OutOfStackSpace, u"Out of stack space"},
    KnownError{ErrorNumber::InternalError, u"Internal error"},
    KnownError{ErrorNumber::ObjectNotSet, u"Object variable or With block variable not set"},
    KnownError{ErrorNumber::InvalidUseOfNull, u"Invalid use of Null"},
    KnownError{ErrorNumber::NoSuchArrayElement, u"Control array element doesn't exist"},
    KnownError{ErrorNumber::AlreadyLoaded, u"Object already loaded"},
    KnownError{ErrorNumber::InvalidPropertyValue, u"Invalid property value"},
    KnownError{ErrorNumber::SetNotSupportedAtRunTime, u"Set not supported at runtime"},
    KnownError{ErrorNumber::SetNotSupported, u"Set not supported (read-only property)"},
    KnownError{ErrorNumber::SetNotPermitted, u"Set not permitted"},
    KnownError{ErrorNumber::GetNotSupportedAtRunTime, u"Get not supported at runtime"},
    KnownError{ErrorNumber::GetNotSupported, u"Get not supported (write-only property)"},
    KnownError{ErrorNumber::ObjectRequired, u"Object required"},
    KnownError{ErrorNumber::CannotCreateObject, u"ActiveX component can't create object"},
    KnownError{ErrorNumber::NoSuchMember, u"Object doesn't support this property or method"},
    KnownError{ErrorNumber::ArgumentNotOptional, u"Argument not optional"},
    KnownError{ErrorNumber::WrongNumberOfArguments,
               u"Wrong number of arguments or invalid property assignment"},
    KnownError{ErrorNumber::SavingFailed, u"Error saving to file"},
};

}  // namespace

TextView RuntimeErrorText(std::int32_t number) {
    for (const KnownError& known : knownErrors) {
        if (static_cast<std::int32_t>(known.number) == number) {
            return known.text;
        }
    }
    return u"Application-defined or object-defined error";
}

RuntimeError::RuntimeError(std::int32_t number, Text description, std::int32_t line)
    : number_(number), line_(line), description_(std::move(description)) {}

RuntimeError::RuntimeError(ErrorNumber number)
    : RuntimeError(static_cast<std::int32_t>(number),
                   Text(RuntimeErrorText(static_cast<std::int32_t>(number)))) {}

void Raise(ErrorNumber number) {
    throw RuntimeError(number);
}

void Raise(std::int32_t number) {
    throw RuntimeError(number, Text(RuntimeErrorText(number)));
}

RuntimeError CurrentError() {
    try {
        throw;
    } catch (const RuntimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return RuntimeError(ErrorNumber::OutOfMemory);
    } catch (...) {
        return RuntimeError(ErrorNumber::InternalError);
    }
}

}  // namespace lumenkit
