// SPDX-License-Identifier: MIT
// The user's settings: texts by section and key, and typed settings on top of them.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "base/failure.h"

namespace ornavo {

/// Sections and keys are compared without regard to case. `standard` is returned for a missing setting.
std::string GetSetting(std::string_view section, std::string_view key, std::string_view standard);
void SaveSetting(std::string_view section, std::string_view key, std::string_view value);
void DeleteSetting(std::string_view section, std::string_view key);
/// Sets the file to use from now on, followed if it is a link; the default is in the user's configuration
/// folder. If the path names something that is not a file, the settings are empty and last only for this run,
/// and a message goes to the error stream.
void UseSettingsFile(const QString& path);

/// One setting with its key and default. Read throws Failure 13 for a text that is not of the type, so that
/// the caller can keep its own value.
template <class T>
struct Setting {
    const char* section;
    const char* key;
    T standard;
    T Read() const;
    T ReadOrStandard() const;  // the default also if Read fails
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
