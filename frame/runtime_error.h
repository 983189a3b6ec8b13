// The errors that the control runtime raises: their numbers, their texts and the exception type.
#pragma once

#include <cstdint>
#include <exception>

#include "frame/text.h"

namespace lumenkit {

enum class ErrorNumber : std::int32_t {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    OutOfStackSpace = 28,
    InternalError = 51,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    NoSuchArrayElement = 340,
    AlreadyLoaded = 360,
    InvalidPropertyValue = 380,
    SetNotSupportedAtRunTime = 382,
    SetNotSupported = 383,
    SetNotPermitted = 387,
    GetNotSupportedAtRunTime = 393,
    GetNotSupported = 394,
    ObjectRequired = 424,
    CannotCreateObject = 429,
    NoSuchMember = 438,
    ArgumentNotOptional = 449,
    WrongNumberOfArguments = 450,
    SavingFailed = 31036,
};

/// Returns the runtime's text for an error number, or "Application-defined or object-defined error"
/// for a number without a text. The view is valid for the life of the program.
TextView RuntimeErrorText(std::int32_t number);

/// An error of the control runtime, thrown to the nearest trap. `line` is the line number of the
/// failing statement, 0 when lines are not numbered.
class RuntimeError : public std::exception {
 public:
    RuntimeError(std::int32_t number, Text description, std::int32_t line = 0);
    explicit RuntimeError(ErrorNumber number);

    std::int32_t Number() const { return number_; }
    std::int32_t Line() const { return line_; }
    const Text& Description() const { return description_; }
    const char* what() const noexcept override { return "lumenkit::RuntimeError"; }

 private:
    std::int32_t number_;
    std::int32_t line_;
    Text description_;
};

/// Raise an error with the runtime's text for the number, as Err.Raise does when it is given only a
/// number.
[[noreturn]] void Raise(ErrorNumber number);
[[noreturn]] void Raise(std::int32_t number);

/// Returns the exception being handled as the runtime's error object shows it: a RuntimeError
/// unchanged, running out of memory as 7, anything else as 51 (internal error). Call it only in a
/// catch block.
RuntimeError CurrentError();

}  // namespace lumenkit
