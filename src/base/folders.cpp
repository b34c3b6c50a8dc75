// SPDX-License-Identifier: MIT
#include <string>

#include "base/failure.h"
#include "base/file_layer.h"
#include "base/files.h"
#include "base/lookup.h"
#include "base/text.h"

namespace ornavo {

namespace {

constexpr std::string_view Separator = "\\\\\\";  // three, so that no part of a path can contain it
constexpr std::string_view End = "*eod*";         // "*" is in no folder's name

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

}  // namespace

bool CreateFolderOnce(std::string_view path) {
    if (path.size() > 1 && IsSeparator(path.back())) path.remove_suffix(1);
    if (path.empty()) return false;
    if (!FolderExists(path)) Attempt([&] { fileLayer().MakeFolder(OnDisk(path)); });
    return FolderExists(path);
}

std::string NextPathPart(std::string& path, bool first) {
    std::size_t begin = 0;
    if (first) {
        if (!path.starts_with(Separator)) return std::string(End);
        begin = Separator.size();
    }
    const std::size_t next = path.find(Separator, begin);
    if (next == std::string::npos) return std::string(End);
    std::string part = path.substr(begin, next - begin);
    path.erase(0, next);
    return part;
}

bool MakePath(std::string_view path) {
    if (path.empty()) return false;
    const bool rooted = IsSeparator(path.front());
    std::string rest = ReplaceAll(ReplaceAll(std::string(path), "/", "\\"), "\\", Separator);
    rest += Separator;
    std::string folder;
    for (std::string part = NextPathPart(rest, rooted); part != End; part = NextPathPart(rest, true)) {
        if (part.empty()) continue;
        if (rooted || !folder.empty()) folder += '/';
        folder += part;
        if (!CreateFolderOnce(folder)) return false;
    }
    return FolderExists(folder.empty() ? path : folder);
}

}  // namespace ornavo
