// SPDX-License-Identifier: MIT
#include "project/skin_files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "base/failure.h"
#include "base/paths.h"
#include "document/current_skin.h"
#include "project/own_folder.h"
#include "support/scripted_prompts.h"

namespace ornavo::testing {
namespace {

namespace fs = std::filesystem;

class FakeCanvas : public Canvas {
public:
    void UpdateCurrentLayout() override { calls += "layout "; }
    void UpdateCaption() override { calls += "caption "; }
    void ResetFormToOriginal() override { calls += "size "; }
    std::string calls;
};

class FilesTest : public ::testing::Test {
protected:
    fs::path Root() const { return fs::canonical(folder_.path().toStdString()); }
    void Write(const fs::path& path, const QByteArray& bytes) const {
        fs::create_directories(path.parent_path());
        QFile file(QString::fromStdString(path.string()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

private:
    QTemporaryDir folder_;
};

TEST_F(FilesTest, WhereASkinLies) {
    const std::string root = Root().string();
    Write(Root() / "Party" / "SkinSettings.xml", "");
    const struct {
        std::string text, base, name;
    } rows[] = {
        {"Party", "/own/Skins/", "Party"},
        {"Big Party", "/own/Skins/", "Big Party"},
        {root + "/Party", root + "/", "Party"},
        {root + "/Party/", root + "/", "Party"},
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
}

TEST_F(FilesTest, ASkinIsOpenedWithItsFirstLayout) {
    Write(Root() / "Party" / "SkinSettings.xml",
          "<Skin>\n<SkinWidth>640</SkinWidth>\n<Layouts>\n<Layout>\n<Key>A</Key>\n</"
          "Layout>\n<Layout>\n<Key>B</Key>\n"
          "</Layout>\n</Layouts>\n</Skin>\n");
    FakeCanvas canvas;
    OpenSkin(PlaceOfSkin(Root().string() + "/Party", ""), canvas);
    EXPECT_EQ(objSkin->SkinWidth, 640);
    EXPECT_EQ(objCurrentLayout->Key, "A");
    EXPECT_EQ(canvas.calls, "size layout ");
    OpenSkin(PlaceOfSkin("Nobody", Root().string()), canvas);
    EXPECT_EQ(objSkin->SkinName, "Nobody");
    EXPECT_EQ(objSkin->dbLayouts->Count(), 0);
    EXPECT_EQ(objCurrentLayout->Key, "");
}

TEST_F(FilesTest, TheQuestionAtTheEnd) {
    ScriptedPrompts prompts;
    FakeCanvas canvas;
    OpenSkin({Root().string() + "/", "New"}, canvas);
    EXPECT_TRUE(AskToSaveSkin());
    EXPECT_TRUE(prompts.asked.empty()) << "an unchanged skin asks nothing";
    objSkin->Dirty = true;
    prompts.answers = {Answer::No, Answer::Cancel, Answer::Yes};
    EXPECT_TRUE(AskToSaveSkin());
    EXPECT_FALSE(AskToSaveSkin());
    EXPECT_FALSE(fs::exists(Root() / "New"));
    EXPECT_TRUE(AskToSaveSkin());
    EXPECT_TRUE(fs::exists(Root() / "New" / "SkinSettings.xml"));
    EXPECT_FALSE(objSkin->Dirty);
    EXPECT_EQ(prompts.asked[0], "Save current Skin: Save changes of current Skin before closing Ornavo?");
    Write(Root() / "file", "");
    objSkin->SetBasePath((Root() / "file").string());
    objSkin->Dirty = true;
    prompts.answers = {Answer::Yes};
    EXPECT_FALSE(AskToSaveSkin());
    EXPECT_TRUE(objSkin->Dirty);
    EXPECT_EQ(prompts.asked.size(), 5u) << "the failed save is told";
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
    Write(Root() / "skins" / "Blue" / "SkinSettings.xml", "x");
    Write(Root() / "skins" / "Blue" / "back.jpg", "y");
    Write(Root() / "skins" / "art" / "draw.py", "no skin");
    fs::create_directories(Root() / "build");
    EXPECT_EQ(SampleFolder(Root() / "build"), Root() / "skins");
    EXPECT_EQ(SampleFolder(Root()), fs::path());
    const fs::path own = Root() / "data" / "ornavo";
    BringSamples(Root() / "skins", own);
    EXPECT_TRUE(fs::exists(own / "Skins" / "Blue" / "back.jpg"));
    EXPECT_FALSE(fs::exists(own / "Skins" / "art"));
    fs::remove_all(own / "Skins" / "Blue");
    BringSamples(Root() / "skins", own);
    EXPECT_FALSE(fs::exists(own / "Skins" / "Blue")) << "a skin that was deleted stays so";
    Write(Root() / "blocked", "");
    EXPECT_THROW(BringSamples(Root() / "skins", Root() / "blocked"), Failure);
}

}  // namespace
}  // namespace ornavo::testing
