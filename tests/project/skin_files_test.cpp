// SPDX-License-Identifier: MIT
#include "project/skin_files.h"

#include "platform/clock.h"
#include "project/own_folder.h"
#include "support/panel_fixture.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

class FilesTest : public ::testing::Test {
protected:
    fs::path Root() const { return fs::canonical(folder_.place()); }
    TemporaryFolder folder_;
};

TEST_F(FilesTest, WhereASkinLies) {
    const std::string root = Root().string();
    folder_.Write("Party/SkinSettings.xml", "");
    const struct {
        std::string text, base, name;
    } rows[] = {
        {"Party", "/own/Skins/", "Party"},
        {root + "/Party", root + "/", "Party"},
        {root + "/Party/SkinSettings.xml", root + "/", "Party"},
        {root + "/Party/skinsettings.XML", root + "/", "Party"},
        {root + "/party", root + "/", "Party"},
        {root + "/x/../Party", root + "/", "Party"},
        {root + "/None", root + "/", "None"},
    };
    for (const auto& row : rows) {
        const SkinPlace place = PlaceOfSkin(row.text, "/own");
        EXPECT_EQ(place.basePath, row.base) << row.text;
        EXPECT_EQ(place.skinName, row.name) << row.text;
    }
    const fs::path before = fs::current_path();
    fs::create_directory(Root() / "gone");
    fs::current_path(Root() / "gone");
    fs::remove(Root() / "gone");
    EXPECT_THROW(PlaceOfSkin("./Party", "/own"), Failure);
    fs::current_path(before);
}

TEST_F(FilesTest, ASkinIsOpened) {
    folder_.Write("Party/SkinSettings.xml",
                  "<Skin>\n<SkinWidth>640</SkinWidth>\n<Layouts>\n<Layout>\n<Key>A</Key>\n</Layout>\n"
                  "</Layouts>\n</Skin>\n");
    ScriptedPrompts prompts;
    SkinFiles files("/own", (Root() / "data").string());
    EXPECT_FALSE(files.AskForSkin().has_value()) << "Cancel";
    prompts.files = {(Root() / "Party" / "SkinSettings.xml").string()};
    const std::optional<SkinPlace> place = files.AskForSkin();
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(prompts.questions[0].title, "Open Skin");
    EXPECT_EQ(prompts.questions[0].filter, "Skin Settings|SkinSettings.xml");
    EXPECT_EQ(prompts.questions[0].folder, "/own/Skins");
    objCurrentLayout->Key = "old";
    files.Open(*place);
    EXPECT_EQ(objSkin->SkinWidth, 640);
    EXPECT_EQ(objSkin->dbSkinPrefs->Count(), 181);
    EXPECT_EQ(objCurrentLayout->Key, "");
    EXPECT_EQ(objSkin->dbLayouts->Count(), 1);
    files.AskForSkin();
    EXPECT_EQ(prompts.questions[2].folder, Root().string() + "/") << "where the last one was found";
    files.Open(PlaceOfSkin("Nobody", Root().string()));
    EXPECT_EQ(objSkin->SkinName, "Nobody");
    EXPECT_EQ(objSkin->dbLayouts->Count(), 0);
}

TEST_F(FilesTest, AForeignFolderIsAskedAbout) {
    ScriptedPrompts prompts;
    SkinFiles files(Root().string(), (Root() / "data").string());
    const std::string bytes = "<Skin>\n<SkinName>Original</SkinName>\n</Skin>\n";
    for (const char* name : {"Original", "Copy", "Third"})
        folder_.Write("Skins/" + std::string(name) + "/SkinSettings.xml", bytes);
    const auto text = [&](const char* name) {
        return fileLayer().Read(Root() / "Skins" / name / "SkinSettings.xml");
    };
    using Saved = SkinFiles::Saved;
    files.Open(PlaceOfSkin("Copy", Root().string()));
    prompts.answers = {Answer::No};
    EXPECT_EQ(files.Save(), Saved::No) << "a copied folder whose file names its original";
    ASSERT_EQ(prompts.asked.size(), 1u);
    EXPECT_NE(prompts.asked[0].find((Root() / "Skins" / "Original").string()), std::string::npos);
    EXPECT_EQ(text("Original"), bytes);
    prompts.answers = {Answer::Yes};
    EXPECT_EQ(files.Save(), Saved::Yes);
    EXPECT_NE(text("Original"), bytes);
    EXPECT_EQ(files.Save(), Saved::Yes) << "where it was last saved";
    EXPECT_EQ(prompts.asked.size(), 2u);
    objSkin->SkinName = "Fresh";
    EXPECT_EQ(files.Save(), Saved::Yes) << "nothing is there";
    objSkin->SkinName = "Third";
    prompts.answers = {Answer::No};
    EXPECT_EQ(files.Save(), Saved::No) << "a typed name that is taken";
    files.Create("third", 800, 600);
    prompts.answers = {Answer::No};
    EXPECT_EQ(files.Save(), Saved::No) << "a new skin with a taken name, but for its case";
    EXPECT_EQ(prompts.asked.size(), 4u);
    EXPECT_EQ(text("Third"), bytes);
}

TEST_F(FilesTest, AFailedSaveIsToldAndLosesNothing) {
    ScriptedPrompts prompts;
    SkinFiles files(Root().string(), (Root() / "data").string());
    files.Create("New", 800, 600);
    objSkin->Dirty = true;
    {
        const FullDisk full(5);  // the folders can still be made
        EXPECT_EQ(files.Save(), SkinFiles::Saved::Failed);
    }
    ASSERT_EQ(prompts.asked.size(), 1u);
    EXPECT_NE(prompts.asked[0].find((Root() / "Skins" / "New" / "SkinSettings.xml").string()),
              std::string::npos);
    EXPECT_NE(prompts.asked[0].find("No space left on device"), std::string::npos);
    EXPECT_TRUE(objSkin->Dirty);
    EXPECT_EQ(files.Save(), SkinFiles::Saved::Yes);
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(FilesTest, ADamagedFileIsAskedAboutAndKept) {
    const std::string open =
        "<Skin>\n<Layouts>\n<Layout>\n<Key>A</Key>\n<Elements>\n<Element>\n<Key>b</Key>\n";
    const std::string end = "</Elements>\n</Layout>\n</Layouts>\n</Skin>\n", element = "</Element>\n";
    const std::pair<std::string, const char*> rows[] = {
        {"", nullptr},
        {open + element + end, nullptr},
        {"no tag in sight\n", "no <Skin>"},
        {std::string("\xFF\xFE<\0S\0k\0i\0n\0>\0", 14), "UTF-16"},
        {open + element, "layout \"A\" with 1 elements"},
        {open + end, "element \"b\""},
        {open + element + "<Element>\n<Key>B</Key>\n" + element + end, "element \"B\""},
        {"<Skin>\n</Skin>\n<Skin>\n</Skin>\n", "more than one <Skin>"},
    };
    const fs::path recovered = Root() / "data" / "Recovered", file = Root() / "Skins/Torn/SkinSettings.xml";
    for (const auto& [bytes, words] : rows) {
        ScriptedPrompts prompts;
        fs::remove_all(recovered);
        folder_.Write("Skins/Torn/SkinSettings.xml", bytes);
        SkinFiles files(Root().string(), (Root() / "data").string());
        files.Open(PlaceOfSkin("Torn", Root().string()));
        prompts.answers = {Answer::No};
        EXPECT_EQ(files.Save(), words ? SkinFiles::Saved::No : SkinFiles::Saved::Yes) << bytes;
        if (!words) continue;
        ASSERT_EQ(prompts.asked.size(), 1u) << bytes;
        EXPECT_NE(prompts.asked[0].find(words), std::string::npos) << prompts.asked[0];
        EXPECT_EQ(TemporaryFolder::Read(file), bytes);
        prompts.answers = {Answer::Yes};
        EXPECT_EQ(files.Save(), SkinFiles::Saved::Yes);
        ASSERT_TRUE(fs::exists(recovered)) << bytes;
        EXPECT_EQ(folder_.Files("data/Recovered").begin()->second, bytes);
        EXPECT_EQ(files.Save(), SkinFiles::Saved::Yes);
        EXPECT_EQ(prompts.asked.size(), 2u) << "the file is whole now";
    }
}

TEST_F(FilesTest, PicturesThatASaveWouldLose) {
    ScriptedPrompts prompts;
    SkinFiles files(Root().string(), (Root() / "data").string());
    files.Create("New", 800, 600);
    const std::string a = folder_.Write("a/x.png", "A"), b = folder_.Write("b/x.png", "B");
    dbLayoutElement& main = *objSkin->dbLayouts->Item(1)->dbLayoutElements->Item("Main");
    const auto change = [&] { main.PicNormal = "gone.png", main.PicOn = a, main.PicOver = b; };
    change();
    prompts.answers = {Answer::No, Answer::Yes};
    EXPECT_EQ(files.Save(), SkinFiles::Saved::No);
    ASSERT_EQ(prompts.asked.size(), 1u);
    EXPECT_NE(prompts.asked[0].find("gone.png is not there (Admin-Mode, Main, Normal)\n" + a +
                                    " gives way to " + b + " (Admin-Mode, Main, On)"),
              std::string::npos)
        << prompts.asked[0];
    EXPECT_EQ(main.PicNormal + main.PicOn + main.PicOver, "gone.png" + a + b);
    EXPECT_FALSE(fs::exists(Root() / "Skins"));
    EXPECT_EQ(files.Save(), SkinFiles::Saved::Yes);
    EXPECT_EQ(main.PicNormal + main.PicOn + main.PicOver, "x.pngx.png");
    EXPECT_EQ(folder_.Files("Skins/New")["x.png"], "B");
    change();
    EXPECT_EQ(files.Save(), SkinFiles::Saved::Yes);
    EXPECT_EQ(prompts.asked.size(), 2u) << "not again about the same";
    main.PicDown = "b.png";
    EXPECT_EQ(files.Save(), SkinFiles::Saved::No) << "but about another";
}

TEST_F(FilesTest, APictureThatCannotBeCopiedIsNamed) {
    ScriptedPrompts prompts;
    SkinFiles files(Root().string(), (Root() / "data").string());
    files.Create("New", 800, 600);
    const std::string real = folder_.Write("a/x.png", "A");
    fs::create_directories(Root() / "Skins/New/x.png");
    dbLayoutElement& main = *objSkin->dbLayouts->Item(1)->dbLayoutElements->Item("Main");
    main.PicNormal = main.PicOn = real;
    objSkin->Dirty = true;
    EXPECT_EQ(files.Save(), SkinFiles::Saved::Yes);
    EXPECT_FALSE(objSkin->Dirty);
    ASSERT_EQ(prompts.asked.size(), 1u) << "one box";
    EXPECT_NE(prompts.asked[0].find(real + "\" could not be copied: "), std::string::npos)
        << prompts.asked[0];
}

class TickingClock : public Clock {
public:
    TickingClock() { UseClock(this); }
    ~TickingClock() override { UseClock(nullptr); }
    QDateTime Now() const override { return QDateTime({2026, 1, 31}, {23, 59, 50}).addSecs(ticks++); }
    mutable int ticks = 0;
};

TEST_F(FilesTest, DroppedChangesAreRecoverable) {
    const TickingClock time;
    ScriptedPrompts prompts;
    SkinFiles files(Root().string(), (Root() / "data").string());
    const fs::path recovered = Root() / "data" / "Recovered";
    files.Create("Quiet", 800, 600);
    files.Create("First", 800, 600);
    EXPECT_FALSE(fs::exists(recovered)) << "an unchanged skin leaves no trace";
    for (int i = 0; i < 12; ++i) {
        objSkin->Dirty = true;
        objSkin->SkinWidth = 1000 + i;
        files.Create(i % 2 ? "Zebra" : "Ape", 800, 600);
    }
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(recovered)) names.push_back(entry.path().filename());
    EXPECT_EQ(names.size(), 10u);
    EXPECT_FALSE(fs::exists(recovered / "First 2026-01-31 23-59-50-000.xml")) << "the oldest is gone";
    const fs::path last = recovered / "Ape 2026-02-01 00-00-01-000.xml";
    ASSERT_TRUE(fs::exists(last));
    EXPECT_NE(fileLayer().Read(last).find("<SkinWidth>1011</SkinWidth>"), std::string::npos);
    EXPECT_TRUE(prompts.asked.empty()) << "silently";
    folder_.Write("blocked", "");
    SkinFiles blocked(Root().string(), (Root() / "blocked").string());
    objSkin->SkinWidth = 5, objSkin->Dirty = true;
    blocked.KeepDropped();
    EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(FilesTest, WhatSetsNoMarkIsRecoverableToo) {
    SkinFiles files(Root().string(), (Root() / "data").string());
    const auto kept = [&] { return fs::exists(Root() / "data") ? folder_.Files("data").size() : 0; };
    files.Create("New", 800, 600);
    dbLayoutElement& main = *objSkin->dbLayouts->Item(1)->dbLayoutElements->Item("Main");
    main.Font = objSkin->dbSkinPrefs->Item("AA_Font")->Font = std::make_shared<Font>();
    main.TransparentColor = 77;
    objSkin->dbSkinPrefs->Item("KB_TransparentColor")->value = 77;
    files.KeepDropped();
    EXPECT_EQ(kept(), 0u) << "what a composition writes by itself";
    objSkin->dbLayouts->Item(1)->LayoutName = "Renamed";
    files.Create("Other", 800, 600);
    EXPECT_EQ(kept(), 1u);
}

TEST_F(FilesTest, TheOwnFolder) {
    const fs::path portable = Root() / "portable", plain = Root() / "plain", data = Root() / "data";
    fs::create_directories(portable / "Skins");
    fs::create_directories(plain);
    EXPECT_EQ(OwnFolder(portable, data), portable);
    EXPECT_EQ(OwnFolder(plain, data), data);
    EXPECT_TRUE(fs::is_empty(portable / "Skins"));
}

TEST_F(FilesTest, SamplesComeOnce) {
    folder_.Write("skins/Blue/SkinSettings.xml", "x");
    folder_.Write("skins/Blue/back.jpg", "y");
    folder_.Write("skins/art/draw.py", "no skin");
    fs::create_directories(Root() / "build");
    EXPECT_EQ(SampleFolder(Root() / "build"), Root() / "skins");
    EXPECT_EQ(SampleFolder(Root() / "data" / "bin"), fs::path());
    const fs::path own = Root() / "data" / "ornavo";
    BringSamples(Root() / "skins", own);
    EXPECT_TRUE(fs::exists(own / "Skins" / "Blue" / "back.jpg"));
    EXPECT_FALSE(fs::exists(own / "Skins" / "art"));
    fs::remove_all(own / "Skins" / "Blue");
    BringSamples(Root() / "skins", own);
    EXPECT_FALSE(fs::exists(own / "Skins" / "Blue")) << "a skin that was deleted stays so";
    folder_.Write("blocked", "");
    EXPECT_THROW(BringSamples(Root() / "skins", Root() / "blocked"), Failure);
}

}  // namespace
}  // namespace ornavo::testing
