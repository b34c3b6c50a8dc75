// SPDX-License-Identifier: MIT
// Reads a skin and writes it back, also under another name, and prints its file.
#include <cstdio>
#include <filesystem>

#include "base/files.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "cli/open_skin.h"
#include "document/recovered.h"
#include "document/skin_packaging.h"
#include "platform/clock.h"
#include "platform/startup.h"

namespace ornavo {
namespace {

bool IsSavedWhereItWas() {
    const std::string opened = objSkin->BasePath() + objSkin->OldSkinName;
    std::error_code ignored;
    return std::filesystem::equivalent(OnDisk(opened), OnDisk(objSkin->SkinFolder()), ignored);
}

/// Whether the save replaces a damaged file.
bool IsDamaged() {
    return !objSkin->Damage.empty() && IsSavedWhereItWas();
}

/// Failure 58 if the save would replace a damaged file, or a skin in a folder other than the one that was
/// opened.
void RefuseToReplace() {
    const std::string file = ToText(OnDisk(objSkin->SkinFile()));
    if (IsDamaged())
        throw Failure(Failure::FileExists, "Save", file + " is damaged; --replace takes its place.");
    if (!NothingStandsAt(file) && !IsSavedWhereItWas())
        throw Failure(Failure::FileExists, "Save", file + " is there already; --replace takes its place.");
}

}  // namespace

int Save(const Arguments& arguments) {
    OpenNamedSkin(arguments.operands[0]);
    if (arguments.Has("as")) {
        const std::string name = CleanFileName(arguments.Get("as"));
        if (!IsPlainName(name)) throw UsageError("--as takes the name of a folder");
        objSkin->SkinName = name;
    }
    const bool keepExisting = arguments.Has("keep-existing");
    if (!arguments.Has("replace")) RefuseToReplace();
    for (const std::string& loss : LossesOfSave(*objSkin, keepExisting)) Tell(loss);
    if (IsDamaged())
        KeepRecovered(DataFolder(), objSkin->SkinName, TimeStamp(), ReadFile(objSkin->SkinFile()));
    const std::vector<std::string> uncopied = objSkin->SaveSkin(keepExisting);
    for (const std::string& reason : uncopied) Tell(reason);
    const bool told = std::puts(ToText(OnDisk(objSkin->SkinFile())).c_str()) >= 0;
    return told && uncopied.empty() ? 0 : 1;
}

}  // namespace ornavo
