// SPDX-License-Identifier: MIT
#include "base/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/lookup.h"
#include "base/paths.h"
#include "support/failure_number.h"
#include "support/step_layer.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    /// Lets each call of the action fail in turn. Whatever happens, "target" holds the new bytes when the
    /// action ends well and the old ones otherwise, and nothing else lies in the folder.
    template <class Action>
    void ExpectAllOrNothing(const std::string& bytes, Action&& action) {
        int failures = 0;
        bool reached = true;
        for (int call = 1; reached; ++call) {
            for (const bool exists : {true, false}) {
                fs::remove(folder / "target");
                if (exists) folder.Write("target", "old");
                auto expected = folder.Files();
                const FullDisk disk(call, call);
                if (Attempt(action))
                    expected["target"] = bytes;
                else
                    ++failures;
                reached = disk.steps >= call;
                EXPECT_TRUE(folder.Files() == expected) << call;
            }
        }
        EXPECT_GE(failures, 10);  // create, write, flush, close, rename; with an old file and without
    }
    const TemporaryFolder folder;
    const std::string root = ToText(folder.place());
};

TEST_F(Files, AreReplacedAndCopiedWholeOrNotAtAll) {
    const std::string bytes = std::string(100'000, 'a') + std::string("\0\r\n\xFF", 4);
    ExpectAllOrNothing(bytes, [&] { ReplaceFile(folder / "target", bytes); });
    const fs::path source = folder.Write("source", bytes);
    ExpectAllOrNothing(bytes, [&] { CopyFileWhole(source, folder / "target"); });
    const FullDisk disk(2, 2);
    const Failure failure = FailureOf([&] { ReplaceFile(folder / "My Skin.xml", "x"); });
    EXPECT_EQ(failure.number(), 61);
    EXPECT_EQ(failure.description(),
              "The file \"" + root + "/My Skin.xml\" could not be written: No space left on device");
}

TEST_F(Files, KeepPermissionsAndLinks) {
    const fs::path real = folder.Write("real/file", "old");
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real/file", folder / "link");
    ReplaceFile(folder / "link", "new");
    EXPECT_EQ(fs::status(real).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    CopyFileWhole(folder.Write("fresh", "fresh"), folder / "link");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "link")));
    EXPECT_EQ(folder.Read(folder / "link") + folder.Read(real), "freshnew");
}

TEST_F(Files, OnlyPlainOnesAreReadAndReplaced) {
    const fs::path plain = folder.Write("plain", "bytes"), pipe = folder / "pipe";
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    for (const fs::path& other : {pipe, folder / "folder", fs::path("/dev/null")}) {
        EXPECT_FALSE(FileExists(ToText(other))) << other;
        EXPECT_EQ(FailureNumber([&] { ReadFile(ToText(other)); }), 75) << other;
        EXPECT_EQ(FailureNumber([&] { ReplaceFile(other, "x"); }), 75) << other;
        EXPECT_EQ(FailureNumber([&] { CopyFileWhole(other, folder / "copy"); }), 75) << other;
        EXPECT_EQ(FailureNumber([&] { CopyFileWhole(plain, other); }), 75) << other;
    }
    EXPECT_EQ(FailureNumber([&] { ReadFile(root + "/none"); }), 53);
    EXPECT_EQ(FailureNumber([&] { CopyFileWhole(folder / "none", folder / "copy"); }), 53);
    EXPECT_EQ(FailureNumber([&] { ReplaceFile(folder / "none/file", "x"); }), 53);
    EXPECT_EQ(folder.Entries(), 3u);
    CopyFileWhole(plain, plain);
    EXPECT_EQ(ReadFile(root + "/PLAIN"), "bytes");
    EXPECT_TRUE(FileExists(ToText(plain)));
}

TEST_F(Files, WhatNobodyWritesAnyMoreIsRemoved) {
    const pid_t ended = fork();
    if (ended == 0) _exit(0);
    ASSERT_EQ(waitpid(ended, nullptr, 0), ended);
    const std::pair<std::string, bool> rows[] = {{".ornavo-" + std::to_string(ended) + "-7.tmp", false},
                                                 {".ornavo-" + std::to_string(getpid()) + "-7.tmp", true},
                                                 {".ornavo-1234567.tmp", true},
                                                 {".ornavo-7654321.tmp", false},  // of yesterday
                                                 {"mine.tmp", true}};
    for (const auto& [name, stays] : rows) folder.Write(name, "");
    fs::last_write_time(folder / rows[3].first, fs::file_time_type::clock::now() - std::chrono::hours(25));
    RemoveLeftScratchFiles(folder.place());
    for (const auto& [name, stays] : rows) EXPECT_EQ(fs::exists(folder / name), stays) << name;
}

TEST_F(Files, FoldersAreMadeWhereTheyAreMissing) {
    folder.Write("file", "");
    for (const std::string& path : {std::string(), root + "/a/b", root + "/file"})
        EXPECT_FALSE(CreateFolderOnce(path)) << path;
    for (const char* name : {"\\One\\", "/one"}) EXPECT_TRUE(CreateFolderOnce(root + name)) << name;
    for (const std::string& path : {root + "\\ONE\\\\two/Three\\", root, std::string("/")})
        EXPECT_TRUE(MakePath(path)) << path;
    EXPECT_TRUE(FolderExists(root + "/One/two/Three"));
    for (const std::string& path : {root + "/file/x", std::string()}) EXPECT_FALSE(MakePath(path)) << path;
    EXPECT_EQ(folder.Entries(), 2u);
    std::string path = R"(c:\\\Skins\\\\\\Blue\\\)";
    std::vector<std::string> parts{NextPathPart(path, false)};
    while (parts.back() != "*eod*") parts.push_back(NextPathPart(path, true));
    EXPECT_EQ(parts, (std::vector<std::string>{"c:", "Skins", "", "Blue", "*eod*"}));
}

TEST_F(Files, AreAskedForOnceInAnOperation) {
    folder.Write("Back.png", "A");
    folder.Write("over.png", "B");
    const StepLayer disk;
    const LookupScope scope;
    const auto found = [&](const char* name) { return GetFileName(FindFile(root + "/" + name)); };
    const auto questions = [&] { return std::pair(disk.asked, disk.listed); };
    for (int times = 0; times < 2; ++times)
        EXPECT_EQ(found("Back.png") + found("over.png"), "Back.pngover.png");
    EXPECT_EQ(questions(), std::pair(2, 0));
    for (int times = 0; times < 2; ++times) EXPECT_EQ(found("BACK.png") + found("gone"), "Back.png");
    EXPECT_EQ(questions(), std::pair(4, 1)) << "the name that is not there, and its folder";
    CopyFileWhole(folder / "over.png", folder / "New.png");
    fileLayer().Remove(folder / "Back.png");
    EXPECT_EQ(found("new.png") + found("back.png"), "New.png");
    EXPECT_EQ(disk.listed, 1);
}

TEST(Paths, AreTakenApart) {
    const std::pair<const char*, const char*> cases[] = {
        // folder|name|name without extension|extension
        {"c:\\Blue\\SkinSettings.xml", "c:\\Blue\\|SkinSettings.xml|SkinSettings|xml"},
        {"a//b//", "a/|b|b|"},
        {"/", "/|||"},
        {"a.b\\plain", "a.b\\|plain|plain|"},
        {"x\\.hidden", "x\\|.hidden||hidden"},
        {"x/P.\u00C4", "x/|P.\u00C4|P|\u00E4"},
        {"", "./|||"}};
    for (const auto& [path, parts] : cases)
        EXPECT_EQ(GetParentFolderName(path) + "|" + GetFileName(path) + "|" + GetBaseName(path) + "|" +
                      GetExtensionName(path),
                  parts);
    EXPECT_EQ(GetFileExtension("x/A.b.PNG") + GetFileExtension("end.") + GetFileExtension("x"), ".png");
}

TEST(Paths, NamesAreCleanedAndFoldersEndInASeparator) {
    EXPECT_EQ(CleanFileName("a/b:c"), "a_b;c");
    EXPECT_EQ(CleanFileName("x\u00A0\\*|?\"<>y"), "x _.!!'y");
    EXPECT_EQ(CleanFileName(std::string_view("a\0b", 3)), "ab");
    EXPECT_TRUE(IsPlainName("Blue Skin") && IsPlainName("...") && IsPlainName("\u4E16"));
    for (const char* name : {"", "  ", ".", "..", "a/b", "c:", "x\u00A0y"})
        EXPECT_FALSE(IsPlainName(name)) << name;
    for (const auto& [path, ended] : std::map<const char*, const char*>{
             {"c:\\Skins", "c:\\Skins\\"}, {"/a\\b", "/a\\b/"}, {"a", "a/"}, {"a\\", "a\\"}, {"", "./"}})
        EXPECT_EQ(WithSeparator(path), ended);
}

TEST_F(Files, AreFoundByTheExactNameAndElseWithoutRegardToCase) {
    for (const char* name : {"Skins/Blue/Cover.png", "Skins/Blue/B\u00C4R.png", "two/a.png", "two/A.png"})
        folder.Write(name, "");
    const std::pair<const char*, const char*> cases[] = {
        {"\\skins\\BLUE\\cover.PNG", "Skins/Blue/Cover.png"},
        {"/Skins//blue/", "Skins/Blue"},
        {"/skins/blue/b\u00E4r.PNG", "Skins/Blue/B\u00C4R.png"},
        {"/two/a.png", "two/a.png"},
        {"/two/a.PNG", "two/A.png"},
        {"/skins/Missing/COVER.png", "Skins/Missing/COVER.png"},
        {"/skins/blue/../BLUE/cover.png", "Skins/Blue/../Blue/Cover.png"}};
    for (const auto& [asked, found] : cases) EXPECT_EQ(OnDisk(root + asked), folder / found) << asked;
    folder.Write("x.png", "");
    EXPECT_FALSE(MakePath("c:"));
    EXPECT_EQ(ToText(OnDisk("c:\\Skins\\x.png")), "c:/Skins/x.png");
    for (const std::string& path : {std::string(), root + std::string("/x.png\0.txt", 11), root + "/x.png/y",
                                    root + "/" + std::string(5000, 'n'), root + "/\xFF\xFE"})
        EXPECT_FALSE(FileExists(path) || FolderExists(path));
}

}  // namespace
}  // namespace ornavo
