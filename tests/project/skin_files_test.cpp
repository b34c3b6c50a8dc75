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
    SkinFiles Files() const { return SkinFiles(Root().string(), (Root() / "data").string()); }
    /// The last box holds the text.
    bool Told(const std::string& text) const { return prompts_.asked.back().find(text) != std::string::npos; }
    static dbLayoutElement& Main() { return *objSkin->dbLayouts->Item(1)->dbLayoutElements->Item("Main"); }
    TemporaryFolder folder_;
    ScriptedPrompts prompts_;
};

using Saved = SkinFiles::Saved;

TEST_F(FilesTest, WhereASkinLies) {
    const std::string root = Root().string();
    folder_.Write("Party/SkinSettings.xml", "");
    const std::pair<std::string, std::string> rows[] = {{"Party", "/own/Skins/ Party"},
                                                        {root + "/Party/skinsettings.XML", root + "/ Party"},
                                                        {root + "/party", root + "/ Party"},
                                                        {root + "/None", root + "/ None"}};
    for (const auto& [text, expected] : rows) {
        const SkinPlace place = PlaceOfSkin(text, "/own");
        EXPECT_EQ(place.basePath + " " + place.skinName, expected) << text;
    }
}

TEST_F(FilesTest, ASkinIsOpened) {
    folder_.Write("Party/SkinSettings.xml",
                  "<Skin>\n<SkinWidth>640</SkinWidth>\n<Layouts>\n<Layout>\n<Key>A</Key>\n</Layout>\n"
                  "</Layouts>\n</Skin>\n");
    SkinFiles files("/own", (Root() / "data").string());
    prompts_.files = {(Root() / "Party" / "SkinSettings.xml").string()};
    const std::optional<SkinPlace> place = files.AskForSkin();
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(prompts_.questions[0].folder, "/own/Skins");
    objCurrentLayout->Key = "old";
    files.Open(*place);
    EXPECT_TRUE(objSkin->SkinWidth == 640 && objSkin->dbLayouts->Count() == 1);
    EXPECT_TRUE(objSkin->dbSkinPrefs->Find("SP_ColLight") && objCurrentLayout->Key.empty());
    files.AskForSkin();
    EXPECT_EQ(prompts_.questions[1].folder, Root().string() + "/") << "where the last one was found";
}

TEST_F(FilesTest, AForeignFolderIsAskedAbout) {
    SkinFiles files = Files();
    const std::string bytes = "<Skin>\n<SkinName>Original</SkinName>\n</Skin>\n";
    for (const char* name : {"Original", "Copy", "Third"})
        folder_.Write("Skins/" + std::string(name) + "/SkinSettings.xml", bytes);
    const auto text = [&](const char* name) {
        return fileLayer().Read(Root() / "Skins" / name / "SkinSettings.xml");
    };
    files.Open(PlaceOfSkin("Copy", Root().string()));
    prompts_.answers = {Answer::No};
    EXPECT_EQ(files.Save(), Saved::No) << "a copied folder whose file names its original";
    EXPECT_TRUE(prompts_.asked.size() == 1 && Told((Root() / "Skins/Original").string()));
    EXPECT_EQ(text("Original"), bytes);
    prompts_.answers = {Answer::Yes};
    EXPECT_EQ(files.Save(), Saved::Yes);
    EXPECT_NE(text("Original"), bytes);
    EXPECT_EQ(files.Save(), Saved::Yes) << "where it was last saved";
    EXPECT_EQ(prompts_.asked.size(), 2u);
    objSkin->SkinName = "Third";
    prompts_.answers = {Answer::No};
    EXPECT_EQ(files.Save(), Saved::No) << "a typed name that is taken";
    files.Create("third", 800, 600);
    prompts_.answers = {Answer::No};
    EXPECT_EQ(files.Save(), Saved::No) << "a new skin with a taken name, but for its case";
    EXPECT_EQ(prompts_.asked.size(), 4u);
    EXPECT_EQ(text("Third"), bytes);
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
        prompts_.asked.clear();
        fs::remove_all(recovered);
        folder_.Write("Skins/Torn/SkinSettings.xml", bytes);
        SkinFiles files = Files();
        files.Open(PlaceOfSkin("Torn", Root().string()));
        prompts_.answers = {Answer::No};
        EXPECT_EQ(files.Save(), words ? Saved::No : Saved::Yes) << bytes;
        if (!words) continue;
        ASSERT_EQ(prompts_.asked.size(), 1u) << bytes;
        EXPECT_TRUE(Told(words)) << prompts_.asked[0];
        EXPECT_EQ(TemporaryFolder::Read(file), bytes);
        prompts_.answers = {Answer::Yes};
        EXPECT_EQ(files.Save(), Saved::Yes);
        EXPECT_EQ(folder_.Files("data/Recovered").begin()->second, bytes);
    }
}

TEST_F(FilesTest, PicturesThatASaveWouldLose) {
    SkinFiles files = Files();
    files.Create("New", 800, 600);
    const std::string a = folder_.Write("a/x.png", "A"), b = folder_.Write("b/x.png", "B");
    dbLayoutElement& main = Main();
    const auto change = [&] { main.PicNormal = "gone.png", main.PicOn = a, main.PicOver = b; };
    change();
    prompts_.answers = {Answer::No, Answer::Yes};
    EXPECT_EQ(files.Save(), Saved::No);
    EXPECT_TRUE(Told("gone.png is not there (Admin-Mode, Main, Normal)\n" + a + " gives way to " + b +
                     " (Admin-Mode, Main, On)"))
        << prompts_.asked[0];
    EXPECT_EQ(main.PicNormal + main.PicOn + main.PicOver, "gone.png" + a + b);
    EXPECT_FALSE(fs::exists(Root() / "Skins"));
    EXPECT_EQ(files.Save(), Saved::Yes);
    EXPECT_EQ(main.PicNormal + main.PicOn + main.PicOver, "x.pngx.png");
    EXPECT_EQ(folder_.Files("Skins/New")["x.png"], "B");
    change();
    EXPECT_EQ(files.Save(), Saved::Yes);
    EXPECT_EQ(prompts_.asked.size(), 2u) << "not again about the same";
    main.PicDown = "b.png";
    EXPECT_EQ(files.Save(), Saved::No) << "but about another";
}

TEST_F(FilesTest, ASaveThatFailsAndAPictureThatCannotBeCopied) {
    SkinFiles files = Files();
    files.Create("New", 800, 600);
    objSkin->Dirty = true;
    {
        const FullDisk full(5);  // the folders can still be made
        EXPECT_EQ(files.Save(), Saved::Failed);
    }
    EXPECT_TRUE(Told((Root() / "Skins/New/SkinSettings.xml").string()) && Told("No space left on device"));
    EXPECT_TRUE(objSkin->Dirty);
    fs::create_directories(Root() / "Skins/New/x.png");
    Main().PicNormal = Main().PicOn = folder_.Write("a/x.png", "A").string();
    EXPECT_EQ(files.Save(), Saved::Yes);
    EXPECT_FALSE(objSkin->Dirty);
    EXPECT_EQ(prompts_.asked.size(), 2u) << "one box each";
    EXPECT_TRUE(Told("could not be copied")) << prompts_.asked.back();
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
    SkinFiles files = Files();
    const fs::path recovered = Root() / "data" / "Recovered";
    files.Create("First", 800, 600);
    for (int i = 0; i < 12; ++i) {
        objSkin->Dirty = true;
        objSkin->SkinWidth = 1000 + i;
        files.Create(i % 2 ? "Zebra" : "Ape", 800, 600);
    }
    auto kept = folder_.Files("data/Recovered");
    EXPECT_EQ(kept.size(), 10u);
    EXPECT_FALSE(kept.contains("First 2026-01-31 23-59-50-000.xml")) << "the oldest is gone";
    const std::string last = kept["Ape 2026-02-01 00-00-01-000.xml"];
    EXPECT_NE(last.find("<SkinWidth>1011</SkinWidth>"), std::string::npos);
    files.Create("New", 800, 600);
    fs::remove_all(recovered);
    Main().Font = objSkin->dbSkinPrefs->Item("AA_Font")->Font = std::make_shared<Font>();
    Main().TransparentColor = 77;
    objSkin->dbSkinPrefs->Item("KB_TransparentColor")->value = 77;
    files.KeepDropped();
    EXPECT_FALSE(fs::exists(recovered)) << "what a composition writes by itself";
    objSkin->dbLayouts->Item(1)->LayoutName = "Renamed";
    files.Create("Other", 800, 600);
    EXPECT_EQ(folder_.Files("data/Recovered").size(), 1u) << "what sets no mark";
}

TEST_F(FilesTest, SamplesComeOnce) {
    folder_.Write("skins/Blue/SkinSettings.xml", "x");
    folder_.Write("skins/Blue/back.jpg", "y");
    folder_.Write("skins/art/draw.py", "no skin");
    fs::create_directories(Root() / "build");
    EXPECT_EQ(SampleFolder(Root() / "build"), Root() / "skins");
    EXPECT_EQ(SampleFolder(Root() / "data" / "bin"), fs::path());
    const fs::path data = Root() / "data", own = data / "ornavo";
    BringSamples(Root() / "skins", own);
    EXPECT_TRUE(fs::exists(own / "Skins" / "Blue" / "back.jpg"));
    EXPECT_FALSE(fs::exists(own / "Skins" / "art"));
    EXPECT_EQ(OwnFolder(own, data), own) << "a portable copy";
    fs::remove_all(own / "Skins" / "Blue");
    BringSamples(Root() / "skins", own);
    EXPECT_FALSE(fs::exists(own / "Skins" / "Blue")) << "a skin that was deleted stays so";
}

TEST_F(FilesTest, AnInstallPutsProgramsSamplesAndDesktopFilesIntoOneTree) {
    const std::string command =
        "DESTDIR='" + Root().string() + "' cmake --install '" ORNAVO_BINARY_DIR "' --prefix /usr >/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0);
    for (const char* file : {"bin/ornavo", "bin/ornavo-cli", "share/applications/ornavo.desktop",
                             "share/icons/hicolor/128x128/apps/ornavo.png"})
        EXPECT_TRUE(fs::is_regular_file(Root() / "usr" / file)) << file;
    BringSamples(SampleFolder(Root() / "usr/bin"), Root() / "own");
    EXPECT_TRUE(fs::exists(Root() / "own/Skins/Aurora/SkinSettings.xml"));
    EXPECT_FALSE(fs::exists(Root() / "usr/share/ornavo/skins/art"));
}

}  // namespace
}  // namespace ornavo::testing
