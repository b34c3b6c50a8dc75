// SPDX-License-Identifier: MIT
// Finds the picture to recolour and saves the result. The source is kept once, in the skin's folder
// "Original"; the result is written into the skin's folder.
#pragma once

#include <string>
#include <string_view>

#include "platform/picture_bytes.h"

namespace ornavo {

class cDIBSection;

/// The path of the picture to start from: the kept source with the same base name and any extension, or else
/// the picture itself, with a bare name as a path in the skin's folder.
std::string SourcePath(std::string_view picture);

/// Makes the folder and its missing parents. Failures are ignored.
void CreateDir(std::string_view path);

/// What is to be saved.
struct Recolouring {
    std::string source;     // the path that was opened
    std::string picture;    // as the skin names it now
    std::string finalName;  // without folder and extension
    FileKind kind = FileKind::Bmp;
};

/// The path of the file that SaveRecoloured would write. Failure 513 if the name cannot be that of a file, or
/// the skin has no name yet.
std::string TargetPath(std::string_view finalName, FileKind kind);

/// Keeps the source unless one is kept already, and writes the result. Both are written whole or not at all,
/// and a Failure leaves the disk as it was. A JPEG replaces the BMP file of the same base name unless the
/// skin uses that elsewhere. Returns the path written.
std::string SaveRecoloured(const cDIBSection& result, const Recolouring& what);

}  // namespace ornavo
