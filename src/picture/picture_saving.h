// SPDX-License-Identifier: MIT
// Which picture is opened, and what becomes of it: the source is kept once, in the folder "Original" of the
// skin, and the recoloured picture is written into the skin.
#pragma once

#include <string>
#include <string_view>

#include "platform/picture_bytes.h"

namespace ornavo {

class cDIBSection;

/// The picture to start from: the kept source of that base name, whatever its extension; without one the
/// picture itself, a bare name as a path into the skin's folder.
std::string SourcePath(std::string_view picture);

/// The folder and every missing one above it. Failures are ignored.
void CreateDir(std::string_view path);

/// What is to be written, and in whose place.
struct Recolouring {
    std::string source;     // path that was opened
    std::string picture;    // as the skin names it at present
    std::string finalName;  // of the new file, without folder and extension
    FileKind kind = FileKind::Bmp;
};

/// The path of the file that SaveRecoloured would write. Failure 513 if the name is none for a file of the
/// skin's folder, or the skin itself has no name yet.
std::string TargetPath(std::string_view finalName, FileKind kind);

/// Keeps the source, unless one is kept, and writes the result; both whole or not at all, and after a Failure
/// the disk is as it was. A JPEG takes the place of the BMP of its name, unless the skin shows that
/// elsewhere. Gives back the path written.
std::string SaveRecoloured(const cDIBSection& result, const Recolouring& what);

}  // namespace ornavo
