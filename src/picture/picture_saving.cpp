// SPDX-License-Identifier: MIT
#include "picture/picture_saving.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

#include "base/failure.h"
#include "base/file_layer.h"
#include "base/files.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/current_skin.h"
#include "pixels/cdibsection.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

std::string OriginalFolder() {
    return objSkin->SkinFolder() + "Original";
}

/// The kept source. A disk with regard to case may have several: one in the same case is preferred, then the
/// first by name.
fs::path KeptSource(std::string_view baseName) {
    fs::path best;
    const auto rank = [&](const fs::path& path) {
        const std::string name = ToText(path.filename());
        return std::make_tuple(GetBaseName(name) != baseName, LowerText(name), name);
    };
    std::error_code error;
    for (fs::directory_iterator at(OnDisk(OriginalFolder()), error), end; !error && at != end;
         at.increment(error)) {
        std::error_code ignored;
        const bool fits =
            EqualText(GetBaseName(ToText(at->path().filename())), baseName) && at->is_regular_file(ignored);
        if (fits && (best.empty() || rank(at->path()) < rank(best))) best = at->path();
    }
    return best;
}

/// The folder of the kept sources. Failure if it is a link, because sources must be kept inside the skin.
fs::path FolderForSources() {
    CreateDir(OriginalFolder());
    const fs::path folder = OnDisk(OriginalFolder());
    std::error_code ignored;
    if (!fs::is_directory(fs::symlink_status(folder, ignored)))
        throw Failure(Failure::PathError, "KeepSource",
                      "The folder " + ToText(folder) + " could not be made.");
    RemoveLeftScratchFiles(folder);
    return folder;
}

/// Makes the copy of the source unless there is one; removes it again unless Done is called.
class Keep {
public:
    explicit Keep(const std::string& sourcePath) {
        const fs::path source = FindSkinPicture(sourcePath);
        if (source.empty()) throw Failure(Failure::FileNotFound, "KeepSource", sourcePath + " not found!");
        const fs::path kept = FolderForSources() / source.filename();
        std::error_code ignored;
        if (fs::is_regular_file(kept, ignored)) return;
        CopyFileWhole(source, kept);
        made_ = kept;
    }
    ~Keep() {
        if (!made_.empty()) Attempt([&] { fileLayer().Remove(made_); });
    }
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;
    void Done() { made_.clear(); }

private:
    fs::path made_;
};

QImage Upright(const cDIBSection& picture) {
    const QImage upsideDown(picture.DIBSectionBitsPtr(), picture.Width(), picture.Height(),
                            picture.BytesPerScanLine(), QImage::Format_BGR888);
    return upsideDown.mirrored();
}

/// How often the skin's settings mention the file.
int CountNamed(const std::string& fileName) {
    const std::string text = LowerText(FromFileBytes(objSkin->FileBytes()));
    const std::string value = LowerText(">" + fileName + "<");
    int count = 0;
    for (std::size_t at = text.find(value); at != std::string::npos; at = text.find(value, at + 1)) ++count;
    return count;
}

void RemoveBmp(const Recolouring& what) {
    const fs::path bmp = OnDisk(TargetPath(what.finalName, FileKind::Bmp));
    const std::string name = ToText(bmp.filename());
    const int here = EqualText(what.picture, name) ? 1 : 0;
    std::error_code ignored;
    if (fs::is_regular_file(bmp, ignored) && CountNamed(name) <= here)
        Attempt([&] { fileLayer().Remove(bmp); });
}

}  // namespace

std::string SourcePath(std::string_view picture) {
    const fs::path kept = KeptSource(GetBaseName(picture));
    return kept.empty() ? GetSkinPicturePath(picture) : ToText(kept);
}

void CreateDir(std::string_view path) {
    MakePath(path);
}

std::string TargetPath(std::string_view finalName, FileKind kind) {
    if (objSkin->SkinName.empty())
        throw Failure(Failure::Own, "TargetPath", "The skin has no name yet, and so no folder for pictures.");
    if (!IsPlainName(finalName))
        throw Failure(Failure::Own, "TargetPath",
                      "\"" + std::string(finalName) + "\" can't be the name of a file.");
    return GetSkinPicturePath(finalName) + (kind == FileKind::Jpeg ? ".jpg" : ".bmp");
}

std::string SaveRecoloured(const cDIBSection& result, const Recolouring& what) {
    const fs::path target = OnDisk(TargetPath(what.finalName, what.kind));
    const std::string bytes = FileBytesOf(Upright(result), what.kind);
    Keep keep(what.source);
    ReplaceFileItself(target, bytes);
    keep.Done();
    if (what.kind == FileKind::Jpeg) RemoveBmp(what);
    return ToText(target);
}

}  // namespace ornavo
