// SPDX-License-Identifier: MIT
#include "cli/open_skin.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <charconv>
#include <cstdio>

#include "base/files.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/startup.h"

namespace ornavo {
namespace {

bool ReadWhole(std::string_view text, int most, int& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number >= 1 && number <= most;
}

/// The user's skins as the editor finds them: beside the program in a portable copy, otherwise in the user's
/// data folder. Makes no folder.
std::string UserSkins() {
    const QFileInfo beside(QCoreApplication::applicationDirPath() + "/Skins");
    if (beside.isDir() && beside.isWritable()) return WithSeparator(beside.filePath().toStdString());
    return WithSeparator(DataFolder()) + "Skins/";
}

/// The skin's folder with a separator at its end, for a name or a path.
std::string FolderOf(const std::string& skin) {
    if (!ContainsSeparator(skin) && NothingStandsAt(skin)) {
        const std::string skins = UserSkins();
        if (!FolderExists(skins + skin))
            throw Failure(Failure::FileNotFound, "Skin",
                          "There is no skin \"" + skin + "\" here, and none in " + skins);
        return WithSeparator(ToText(OnDisk(skins + skin)));
    }
    std::string path = ToText(std::filesystem::absolute(OnDisk(skin)).lexically_normal());
    return EqualText(GetFileName(path), SettingsFileName) && !FolderExists(path) ? GetParentFolderName(path)
                                                                                 : WithSeparator(path);
}

}  // namespace

void Tell(const std::string& text) {
    std::fprintf(stderr, "ornavo-cli: %s\n", text.c_str());
}

void FlushOutput() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout))
        throw Failure(Failure::PathError, "Output", "The output can't be written.");
}

void OpenNamedSkin(const std::string& skin, bool upgraded) {
    const std::string folder = FolderOf(skin);
    const std::string file = folder + std::string(SettingsFileName);
    const std::string bare = folder.substr(0, folder.size() - 1);
    objSkin = std::make_shared<dbSkin>();
    objCurrentLayout = std::make_shared<dbLayout>();
    objSkin->SetBasePath(GetParentFolderName(bare));
    objSkin->SkinName = GetFileName(bare);
    if (!objSkin->LoadSkin()) throw Failure(Failure::FileNotFound, "Skin", file + " not found!");
    for (const std::string& line : objSkin->Damage) Tell(file + " is damaged: " + line);
    if (upgraded) objSkin->SetupSkinPrefs();
}

dbLayoutRef NamedLayout(const Arguments& arguments) {
    return LayoutOf(arguments.Need("layout"));
}

dbLayoutRef LayoutOf(const std::string& key) {
    const dbLayoutRef layout = objSkin->dbLayouts->Find(key);
    if (!layout) throw Failure(Failure::NotFound, "Skin", "The skin has no layout '" + key + "'.");
    return layout;
}

Size NamedSize(const Arguments& arguments, int most) {
    if (!arguments.Has("size")) return {objSkin->SkinWidth, objSkin->SkinHeight};
    return SizeOf(arguments.Get("size"), most);
}

Size SizeOf(std::string_view text, int most) {
    const std::size_t times = text.find('x');
    Size size;
    if (times == std::string_view::npos || !ReadWhole(text.substr(0, times), most, size.width) ||
        !ReadWhole(text.substr(times + 1), most, size.height))
        throw UsageError("a size is WIDTHxHEIGHT, 1 to " + std::to_string(most) + " pixels each");
    return size;
}

}  // namespace ornavo
