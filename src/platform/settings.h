// SPDX-License-Identifier: MIT
// The user's settings: text by section and key, and typed constants over them.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "base/failure.h"

namespace ornavo {

/// Sections and keys are compared without regard to case.
std::string GetSetting(std::string_view section, std::string_view key, std::string_view standard);
void SaveSetting(std::string_view section, std::string_view key, std::string_view value);
void DeleteSetting(std::string_view section, std::string_view key);
/// The file to use from now on, or the one that a link leads to; the default is in the user's configuration
/// folder. Where something else stands the settings are empty and last for this run alone, which is told on
/// the error stream.
void UseSettingsFile(const QString& path);

/// One setting with its key and default. Read fails (Failure 13) on a text that is not of the type, so that
/// the caller keeps its designed value.
template <class T>
struct Setting {
    const char* section;
    const char* key;
    T standard;
    T Read() const;
    T ReadOrStandard() const;  // the default also for a text that is not of the type
    void Write(const T& value) const;
};
template <>
int Setting<int>::Read() const;
template <>
void Setting<int>::Write(const int& value) const;
template <>
bool Setting<bool>::Read() const;  // "True", "False", or a number
template <>
void Setting<bool>::Write(const bool& value) const;

template <class T>
T Setting<T>::ReadOrStandard() const {
    T value = standard;
    Attempt([&] { value = Read(); });
    return value;
}

}  // namespace ornavo
