// SPDX-License-Identifier: MIT
#include "base/paths.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/text.h"

namespace ornavo {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Separators = "\\/";

#ifdef _WIN32
constexpr bool HasDrives = true;
#else
constexpr bool HasDrives = false;
#endif

constexpr char NativeSeparator = HasDrives ? '\\' : '/';

/// A place where no file can exist or be made, because the parent is not a folder.
constexpr std::string_view Nowhere = "/dev/null/";

fs::path Native(std::string_view text) {
    return fs::path(std::u8string(reinterpret_cast<const char8_t*>(text.data()), text.size()));
}

std::string Utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

bool NamesDrive(std::string_view path) {
    const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    return path.size() >= 2 && letter(path[0]) && path[1] == ':' &&
           (path.size() == 2 || Separators.find(path[2]) != std::string_view::npos);
}

std::string_view WithoutTrailingSeparators(std::string_view path) {
    const std::size_t last = path.find_last_not_of(Separators);
    return path.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string_view LastPart(std::string_view path) {
    const std::string_view whole = WithoutTrailingSeparators(path);
    const std::size_t at = whole.find_last_of(Separators);
    return at == std::string_view::npos ? whole : whole.substr(at + 1);
}

}  // namespace

std::string GetParentFolderName(std::string_view path) {
    const std::string_view whole = WithoutTrailingSeparators(path);
    const std::size_t at = whole.find_last_of(Separators);
    if (at == std::string_view::npos)  // a bare name, or the root itself
        return whole.empty() && !path.empty() ? std::string(path.substr(0, 1)) : "./";
    const std::string_view parent = WithoutTrailingSeparators(whole.substr(0, at));
    return std::string(path.substr(0, parent.size() + 1));
}

std::string GetFileName(std::string_view path) {
    return std::string(LastPart(path));
}

std::string GetBaseName(std::string_view path) {
    const std::string_view name = LastPart(path);
    return std::string(name.substr(0, name.rfind('.')));
}

std::string GetExtensionName(std::string_view path) {
    const std::string_view name = LastPart(path);
    const std::size_t point = name.rfind('.');
    return point == std::string_view::npos ? "" : LowerText(name.substr(point + 1));
}

std::string GetFileExtension(std::string_view path) {
    const std::string extension = GetExtensionName(path);
    return extension.empty() ? "" : "." + extension;
}

std::string CleanFileName(std::string_view name) {
    using namespace std::string_view_literals;
    static constexpr std::pair<std::string_view, std::string_view> Replacements[] = {
        {"\u00A0"sv, " "sv}, {"/"sv, "_"sv},  {"\\"sv, "_"sv}, {":"sv, ";"sv}, {"*"sv, "."sv}, {"|"sv, "!"sv},
        {"?"sv, "!"sv},      {"\""sv, "'"sv}, {">"sv, ""sv},   {"<"sv, ""sv},  {"\0"sv, ""sv},
    };
    std::string clean(name);
    for (const auto& [from, to] : Replacements) clean = ReplaceAll(std::move(clean), from, to);
    return clean;
}

std::string WithSeparator(std::string_view folder) {
    if (folder.empty()) return "./";  // a bare separator would be the root
    std::string path(folder);
    if (Separators.find(path.back()) != std::string_view::npos) return path;
    const bool onlyBackslashes = path.find('\\') != std::string::npos && path.find('/') == std::string::npos;
    return path + (onlyBackslashes ? '\\' : '/');
}

bool IsPlainName(std::string_view name) {
    return !TrimBlanks(name).empty() && name != "." && name != ".." && CleanFileName(name) == name;
}

std::string NativeText(std::string_view path) {
    std::string text(path);
    if (text.find('\0') != std::string::npos) text = ReplaceAll(text, std::string_view("\0", 1), "\uFFFD");
    std::ranges::replace(text, HasDrives ? '/' : '\\', NativeSeparator);
    while (text.size() > 1 && text.back() == NativeSeparator && !(HasDrives && text.size() == 3))
        text.pop_back();
    return !HasDrives && NamesDrive(text) ? std::string(Nowhere) + text : text;
}

fs::path NativePath(std::string_view path) {
    return Native(NativeText(path));
}

std::pair<std::string, std::string> SplitPath(const std::string& native) {
    const std::size_t separator = native.rfind(NativeSeparator);
    if (separator == std::string::npos) return {"", native};
    return {native.substr(0, std::max<std::size_t>(separator, 1)), native.substr(separator + 1)};
}

std::string JoinPath(std::string folder, std::string_view name) {
    if (!folder.empty() && folder.back() != NativeSeparator) folder += NativeSeparator;
    return folder.append(name);
}

std::string ToText(const fs::path& path) {
    std::string text = Utf8(path);
    return !HasDrives && text.starts_with(Nowhere) ? text.substr(Nowhere.size()) : text;
}

}  // namespace ornavo
