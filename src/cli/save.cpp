// SPDX-License-Identifier: MIT
// A skin is read and written back, also under another name; tells where.
#include <cstdio>
#include <filesystem>

#include "base/files.h"
#include "base/paths.h"
#include "cli/open_skin.h"

namespace ornavo {
namespace {

/// A folder other than the one that was opened keeps its skin. Failure 58 if it has one.
void RefuseOtherSkin() {
    const std::string opened = objSkin->BasePath() + objSkin->OldSkinName;
    const std::string file = objSkin->SkinFile();
    std::error_code ignored;
    if (!NothingStandsAt(file) &&
        !std::filesystem::equivalent(OnDisk(opened), OnDisk(objSkin->SkinFolder()), ignored))
        throw Failure(58, "Save", ToText(OnDisk(file)) + " is there already; --replace takes its place.");
}

}  // namespace

int Save(const Arguments& arguments) {
    OpenNamedSkin(arguments);
    if (arguments.Has("as")) {
        const std::string name = CleanFileName(arguments.Get("as"));
        if (!IsPlainName(name)) throw UsageError("--as takes the name of a folder");
        objSkin->SkinName = name;
    }
    if (!arguments.Has("replace")) RefuseOtherSkin();
    objSkin->SaveSkin(arguments.Has("keep-existing"));
    return std::puts(ToText(OnDisk(objSkin->SkinFile())).c_str()) < 0 ? 1 : 0;
}

}  // namespace ornavo
