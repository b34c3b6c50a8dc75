// SPDX-License-Identifier: MIT
#include "base/paths.h"

#include <gtest/gtest.h>

#include "base/files.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

TEST(Paths, AreTakenApart) {
    const struct {
        const char *path, *parent, *name, *base, *extension;
    } cases[] = {
        {"c:\\Skins\\Blue\\SkinSettings.xml", "c:\\Skins\\Blue\\", "SkinSettings.xml", "SkinSettings", "xml"},
        {"/home/x/Cover.PNG", "/home/x/", "Cover.PNG", "Cover", "png"},
        {"a\\b\\", "a\\", "b", "b", ""},
        {"a//b//", "a/", "b", "b", ""},
        {"/", "/", "", "", ""},
        {"a.b\\plain", "a.b\\", "plain", "plain", ""},
        {"x\\.hidden", "x\\", ".hidden", "", "hidden"},
        {"x/end.", "x/", "end.", "end", ""},
        {"x/P.\u00C4", "x/", "P.\u00C4", "P", "\u00E4"},
        {"", "./", "", "", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(GetParentFolderName(c.path), c.parent) << c.path;
        EXPECT_EQ(GetFileName(c.path), c.name) << c.path;
        EXPECT_EQ(GetBaseName(c.path), c.base) << c.path;
        EXPECT_EQ(GetExtensionName(c.path), c.extension) << c.path;
        EXPECT_EQ(GetFileExtension(c.path), *c.extension ? "." + std::string(c.extension) : "") << c.path;
    }
}

TEST(Paths, NamesAreCleaned) {
    EXPECT_EQ(CleanFileName("a/b:c"), "a_b;c");
    EXPECT_EQ(CleanFileName("x\u00A0\\*|?\"<>y"), "x _.!!'y");
    EXPECT_EQ(CleanFileName(std::string_view("a\0b", 3)), "ab");
    EXPECT_TRUE(IsPlainName("Blue Skin") && IsPlainName("...") && IsPlainName("\u4E16"));
    for (const char* name : {"", "  ", ".", "..", "a/b", "a\\b", "c:", "a?", "x\u00A0y"})
        EXPECT_FALSE(IsPlainName(name)) << name;
}

TEST(Paths, EndInASeparator) {
    EXPECT_EQ(WithSeparator("c:\\Skins"), "c:\\Skins\\");
    EXPECT_EQ(WithSeparator("/a\\b"), "/a\\b/");
    EXPECT_EQ(WithSeparator("a"), "a/");
    EXPECT_EQ(WithSeparator("a\\"), "a\\");
    EXPECT_EQ(WithSeparator(""), "./");
}

TEST(OnDisk, PrefersTheExactNameAndElseDisregardsCase) {
    const TemporaryFolder folder;
    folder.Write("Skins/Blue/Cover.png", "");
    folder.Write("Skins/Blue/B\u00C4R.png", "");
    folder.Write("two/a.png", "");
    folder.Write("two/A.png", "");
    const std::string root = ToText(folder.place());
    const struct {
        const char *asked, *found;
    } cases[] = {
        {"\\skins\\BLUE\\cover.PNG", "Skins/Blue/Cover.png"},
        {"/Skins//blue/", "Skins/Blue"},
        {"/skins/blue/b\u00E4r.PNG", "Skins/Blue/B\u00C4R.png"},
        {"/two/a.PNG", "two/A.png"},
        {"/skins/blue/New Name.png", "Skins/Blue/New Name.png"},
        {"/skins/Missing/COVER.png", "Skins/Missing/COVER.png"},
        {"/skins/blue/../BLUE/cover.png", "Skins/Blue/../Blue/Cover.png"},
    };
    for (const auto& c : cases) EXPECT_EQ(OnDisk(root + c.asked), folder / c.found) << c.asked;
}

TEST(OnDisk, StrangeNamesLeadNowhere) {
    const TemporaryFolder folder;
    folder.Write("c:/Skins/x.png", "");
    const fs::path before = fs::current_path();
    fs::current_path(folder.place());
    for (const char* path : {"c:\\Skins\\x.png", "c:/Skins/x.png", "c:"}) {
        EXPECT_FALSE(FileExists(path) || FolderExists(path)) << path;
        EXPECT_FALSE(MakePath(path)) << path;
    }
    EXPECT_EQ(ToText(OnDisk("c:\\Skins\\x.png")), "c:/Skins/x.png");
    fs::current_path(before);

    const std::string root = ToText(folder.place());
    folder.Write("x.png", "");
    for (const std::string& path : {std::string(), root + std::string("/x.png\0.txt", 11), root + "/x.png/y",
                                    root + "/" + std::string(5000, 'n'), root + "/\xFF\xFE"}) {
        EXPECT_FALSE(FileExists(path));
        EXPECT_FALSE(FolderExists(path));
    }
}

}  // namespace
}  // namespace ornavo
