// SPDX-License-Identifier: MIT
#include "base/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/failure.h"
#include "base/paths.h"
#include "support/failure_number.h"
#include "support/step_layer.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

/// Lets each call of the action fail in turn. Whatever happens, the target holds the new bytes when the
/// action ends well and the old ones otherwise, and nothing else lies in the folder.
template <class Action>
void ExpectAllOrNothing(const TemporaryFolder& folder, const fs::path& target, const std::string& bytes,
                        Action&& action) {
    bool reached = true;
    int failures = 0;
    for (int call = 1; reached; ++call) {
        for (const bool exists : {true, false}) {
            fs::remove(target);
            if (exists) folder.Write("target", "old");
            const std::size_t entries = folder.Entries();
            bool done = false;
            {
                const FullDisk disk(call, call);
                done = Attempt(action);
                reached = disk.steps >= call;
            }
            failures += !done;
            EXPECT_EQ(fs::exists(target), done || exists) << call;
            const bool right = TemporaryFolder::Read(target) == (done ? bytes : exists ? "old" : "");
            EXPECT_TRUE(right) << call;
            EXPECT_EQ(folder.Entries(), entries + (done && !exists)) << call;
        }
    }
    EXPECT_GE(failures, 10);  // create, write, flush, close and rename at least, with and without an old file
}

TEST(ReplaceFile, IsAllOrNothingAtEveryStep) {
    const TemporaryFolder folder;
    const fs::path target = folder / "target";
    const std::string bytes(100'000, 'n');
    ExpectAllOrNothing(folder, target, bytes, [&] { ReplaceFile(target, bytes); });
}

TEST(CopyFileWhole, IsAllOrNothingAtEveryStep) {
    const TemporaryFolder folder;
    const std::string bytes = std::string(200'000, 'a') + std::string("\0\r\n\xFF", 4);
    const fs::path source = folder.Write("source", bytes);
    const fs::path target = folder / "target";
    ExpectAllOrNothing(folder, target, bytes, [&] { CopyFileWhole(source, target); });
    EXPECT_EQ(TemporaryFolder::Read(source), bytes);
}

TEST(ReplaceFile, TellsTheUserWhatFailed) {
    const TemporaryFolder folder;
    const fs::path target = folder / "My Skin.xml";
    const FullDisk disk(2, 2);
    try {
        ReplaceFile(target, "x");
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), 61);
        EXPECT_EQ(failure.description(),
                  "The file \"" + ToText(target) + "\" could not be written: No space left on device");
    }
}

TEST(ReplaceFile, KeepsPermissionsAndLinks) {
    const TemporaryFolder folder;
    const fs::path real = folder.Write("real/file", "old");
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real/file", folder / "link");
    fs::create_symlink("link", folder / "link2");
    ReplaceFile(folder / "link2", "new");
    EXPECT_EQ(TemporaryFolder::Read(real), "new");
    EXPECT_EQ(fs::status(real).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(fs::is_symlink(folder / "link") && fs::is_symlink(folder / "link2"));

    fs::create_symlink("real/fresh", folder / "dangling");
    ReplaceFile(folder / "dangling", "fresh");
    EXPECT_EQ(TemporaryFolder::Read(folder / "real/fresh"), "fresh");

    CopyFileWhole(folder / "real/fresh", folder / "link");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "link")));
    EXPECT_EQ(TemporaryFolder::Read(folder / "link"), "fresh");
    EXPECT_EQ(TemporaryFolder::Read(real), "new");

    fs::create_symlink("loop", folder / "loop");
    EXPECT_NE(FailureNumber([&] { ReplaceFile(folder / "loop", "x"); }), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "loop"));
}

TEST(Files, OnlyPlainFilesAreReadAndReplaced) {
    const TemporaryFolder folder;
    const fs::path plain = folder.Write("plain", "bytes");
    fs::create_directory(folder / "folder");
    const fs::path pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    for (const fs::path& other : {pipe, folder / "folder", fs::path("/dev/null")}) {
        EXPECT_FALSE(FileExists(ToText(other))) << other;
        EXPECT_EQ(FailureNumber([&] { ReadFile(ToText(other)); }), 75) << other;
        EXPECT_EQ(FailureNumber([&] { ReplaceFile(other, "x"); }), 75) << other;
        EXPECT_EQ(FailureNumber([&] { CopyFileWhole(other, folder / "copy"); }), 75) << other;
        EXPECT_EQ(FailureNumber([&] { CopyFileWhole(plain, other); }), 75) << other;
    }
    EXPECT_EQ(FailureNumber([&] { ReadFile(ToText(folder / "none")); }), 53);
    EXPECT_EQ(FailureNumber([&] { CopyFileWhole(folder / "none", folder / "copy"); }), 53);
    EXPECT_EQ(FailureNumber([&] { ReplaceFile(folder / "none/file", "x"); }), 53);
    EXPECT_EQ(folder.Entries(), 3u);
    CopyFileWhole(plain, plain);
    EXPECT_EQ(ReadFile(ToText(folder / "PLAIN")), "bytes");
}

TEST(Files, NamesOfFullLengthAndEmptyFilesWork) {
    const TemporaryFolder folder;
    const fs::path longest = folder / std::string(255, 'n');
    ReplaceFile(longest, "");
    EXPECT_TRUE(FileExists(ToText(longest)));
    EXPECT_EQ(ReadFile(ToText(longest)), "");
    CopyFileWhole(longest, folder / "copy");
    EXPECT_EQ(fs::file_size(folder / "copy"), 0u);
}

TEST(Folders, AreMadeWhereTheyAreMissing) {
    const TemporaryFolder folder;
    const std::string root = ToText(folder.place());
    folder.Write("file", "");
    EXPECT_FALSE(CreateFolderOnce(""));
    EXPECT_FALSE(CreateFolderOnce(root + "/a/b"));
    EXPECT_FALSE(CreateFolderOnce(root + "/file"));
    EXPECT_TRUE(CreateFolderOnce(root + "\\One\\"));
    EXPECT_TRUE(CreateFolderOnce(root + "/one"));

    EXPECT_TRUE(MakePath(root + "\\ONE\\\\two/Three\\"));
    EXPECT_TRUE(FolderExists(root + "/One/two/Three"));
    EXPECT_TRUE(MakePath(root));
    EXPECT_TRUE(MakePath("/"));
    EXPECT_FALSE(MakePath(root + "/file/x"));
    EXPECT_FALSE(MakePath(""));
    EXPECT_EQ(folder.Entries(), 2u);
    {
        const FullDisk disk(2, 2);
        EXPECT_FALSE(MakePath(root + "/p/q"));
    }
    EXPECT_TRUE(FolderExists(root + "/p"));
}

TEST(Folders, PathPartsAreCutOffOneByOne) {
    std::string path = R"(c:\\\Skins\\\\\\Blue\\\)";
    std::vector<std::string> parts{NextPathPart(path, false)};
    while (parts.back() != "*eod*") parts.push_back(NextPathPart(path, true));
    EXPECT_EQ(parts, (std::vector<std::string>{"c:", "Skins", "", "Blue", "*eod*"}));
}

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
