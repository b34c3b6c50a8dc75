// SPDX-License-Identifier: MIT
// A failure as a value that travels, and flags that are held up by scope.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace ornavo {

/// What went wrong, where and why.
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
        NothingSet = 91,  // an object that isn't there
        InvalidValue = 380,
        NoSuchField = 438,
        DuplicateKey = 457,
        Own = 513  // of the program itself
    };
    /// With the usual description of the number.
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

/// Runs one statement. A Failure in it skips the rest of the statement and is dropped; the result says
/// whether the statement ran to its end. Only for failures that are declared ignored.
template <class Statement>
bool Attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

/// Holds a flag up while it lives and puts it back as it was.
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
