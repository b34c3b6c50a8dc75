// SPDX-License-Identifier: MIT
#include "base/failure.h"

#include <array>

#include "base/find_row.h"

namespace ornavo {
namespace {

/// The usual description of a failure number.
struct Usual {
    Failure::Number number;
    const char* description;
};
constexpr std::array Usuals = {
    Usual{Failure::Overflow, "Overflow"},
    Usual{Failure::NotFound, "Subscript out of range"},
    Usual{Failure::DivisionByZero, "Division by zero"},
    Usual{Failure::TypeMismatch, "Type mismatch"},
    Usual{Failure::FileNotFound, "File not found"},
    Usual{Failure::NothingSet, "Object variable not set"},
    Usual{Failure::InvalidValue, "Invalid property value"},
    Usual{Failure::DuplicateKey, "This key is already in use"},
};

}  // namespace

Failure::Failure(Number number, std::string source) : number_(number), source_(std::move(source)) {
    if (const Usual* usual = FindRow(Usuals, &Usual::number, number)) description_ = usual->description;
}

}  // namespace ornavo
