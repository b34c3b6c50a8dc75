// SPDX-License-Identifier: MIT
// The program's exception, a way to ignore it, and a flag that is set for the length of a scope.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace ornavo {

/// An error that a routine throws: its number, the source that threw it and a description for the user.
class Failure : public std::exception {
public:
    enum Number {
        InvalidCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        NotFound = 9,  // an index or a key
        DivisionByZero = 11,
        TypeMismatch = 13,
        FileNotFound = 53,
        FileExists = 58,
        DiskFull = 61,
        PathError = 75,
        NothingSet = 91,  // an object that does not exist
        InvalidValue = 380,
        NoSuchField = 438,
        DuplicateKey = 457,
        Own = 513  // the program's own errors
    };
    /// Takes the number's usual description; empty where it has none.
    Failure(Number number, std::string source);
    Failure(int number, std::string source, std::string description)
        : number_(number), source_(std::move(source)), description_(std::move(description)) {}
    int number() const { return number_; }
    const std::string& source() const { return source_; }
    const std::string& description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    int number_;
    std::string source_;
    std::string description_;
};

/// Runs one statement. A Failure in it skips the rest of the statement and is dropped. Returns whether the
/// statement ran to its end. Only for failures that are meant to be ignored.
template <class Statement>
bool Attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

/// Sets a flag while it lives and then restores the flag's former value.
class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~Raised() { flag_ = before_; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& flag_;
    bool before_;
};

}  // namespace ornavo
