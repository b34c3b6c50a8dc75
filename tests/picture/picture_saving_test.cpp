// SPDX-License-Identifier: MIT
#include "picture/picture_saving.h"

#include "document/current_skin.h"
#include "pixels/cdibsection.h"
#include "support/failure_number.h"
#include "support/step_layer.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

class SavingTest : public ::testing::Test {
protected:
    SavingTest() {
        objSkin = std::make_shared<dbSkin>();
        objSkin->SetBasePath(folder_.place().string());
        objSkin->SkinName = "Blue";
        layout_ = objSkin->AddNewLayout("Standard");
        result_.Create(3, 2);
        result_.RandomiseBits(7);
    }

    /// Opens the picture as the skin names it and saves it.
    std::string Save(const std::string& picture, const std::string& name,
                     FileKind kind = FileKind::Bmp) const {
        return SaveRecoloured(result_, {SourcePath(picture), picture, name, kind});
    }
    std::string Named(const std::string& path) const {
        return fs::path(path).lexically_relative(folder_.place()).generic_string();
    }

    const TemporaryFolder folder_;
    dbLayoutRef layout_;
    cDIBSection result_;
};

TEST_F(SavingTest, TheKeptSourceIsFound) {
    for (const char* name : {"a.PNG", "b.jpg", "B.png", "b.bmp", "c.d.png"})
        folder_.Write(std::string("Blue/Original/") + name, "kept");
    const std::pair<const char*, const char*> cases[] = {
        {"A.jpg", "Blue/Original/a.PNG"},     {"b.bmp", "Blue/Original/b.bmp"},
        {"B.bmp", "Blue/Original/B.png"},     {"c.bmp", "Blue/c.bmp"},
        {"c.d.bmp", "Blue/Original/c.d.png"}, {"/far/b.gif", "Blue/Original/b.bmp"}};
    for (const auto& [picture, source] : cases) EXPECT_EQ(Named(SourcePath(picture)), source) << picture;
}

TEST_F(SavingTest, KeepsTheSourceOnceAndWritesTheFile) {
    folder_.Write("Blue/a.bmp", "source");
    folder_.Write("far/z.gif", "far");
    EXPECT_EQ(Named(Save("a.bmp", "a")), "Blue/a.bmp");
    EXPECT_EQ(Named(Save("a.bmp", "a", FileKind::Jpeg)), "Blue/a.jpg");
    EXPECT_EQ(Named(Save((folder_ / "far/z.gif").string(), "y")), "Blue/y.bmp");
    const std::map<std::string, std::string> files = folder_.Files();
    const std::string jpeg = files.at("Blue/a.jpg"), bmp = files.at("Blue/y.bmp");
    std::string names;
    for (const auto& [name, bytes] : files) names += name + " ";
    EXPECT_EQ(names, "Blue/Original/a.bmp Blue/Original/z.gif Blue/a.jpg Blue/y.bmp far/z.gif ");
    EXPECT_EQ(files.at("Blue/Original/a.bmp") + files.at("Blue/Original/z.gif"), "sourcefar");
    EXPECT_EQ(jpeg.substr(0, 2), "\xFF\xD8");
    ASSERT_EQ(bmp.size(), 54u + 2 * 12);
    EXPECT_EQ(bmp[10], 54);
    for (int row = 0; row < 2; ++row)
        EXPECT_EQ(bmp.substr(54 + row * 12, 9),
                  std::string(reinterpret_cast<const char*>(result_.ScanLine(row)), 9));
}

TEST_F(SavingTest, AJpegTakesTheBmpsPlaceUnlessItIsShownElsewhere) {
    const struct {
        const char *shown, *alsoShown, *picture;
        bool stays;
    } cases[] = {{"k.bmp", "x.png", "k.bmp", false},
                 {"k.bmp", "K.BMP", "k.bmp", true},
                 {"k.bmp", "s.png", "s.png", true},
                 {"x.png", "s.png", "s.png", false}};
    for (const auto& c : cases) {
        layout_->dbLayoutElements->Item("Main")->PicNormal = c.shown;
        layout_->dbLayoutElements->Item("SearchBox")->PicNormal = c.alsoShown;
        folder_.Write("Blue/k.bmp", "old");
        folder_.Write("Blue/s.png", "source");
        Save(c.picture, "k", FileKind::Jpeg);
        EXPECT_EQ(folder_.Files().contains("Blue/k.bmp"), c.stays) << c.shown << ' ' << c.alsoShown;
    }
}

TEST_F(SavingTest, LeavesTheSkinsFolderByNoRoad) {
    folder_.Write("Blue/a.png", "source");
    folder_.Write("far/b.bmp", "far");
    const auto before = folder_.Files();
    for (const char* name : {"../far/b", "", "..", "a*"})
        EXPECT_EQ(FailureNumber([&] { Save("a.png", name); }), 513) << name;
    EXPECT_EQ(FailureNumber([&] { Save("gone.png", "a"); }), 53);
    EXPECT_EQ(folder_.Files(), before);
}

/// Each step towards the disk fails once: the skin has its old picture and no kept source, or all is new.
TEST_F(SavingTest, AnyStepMayFail) {
    for (const FileKind kind : {FileKind::Bmp, FileKind::Jpeg}) {
        int failed = 0;
        bool reached = true;
        for (int bad = 1; reached; ++bad) {
            fs::remove_all(folder_ / "Blue");
            folder_.Write("Blue/a.bmp", "source");
            folder_.Write("Blue/a.jpg", "old");
            const auto before = folder_.Files();
            const FullDisk disk(bad, bad);
            const bool wentWell = FailureNumber([&] { Save("a.bmp", "a", kind); }) == 0;
            reached = disk.steps >= bad;
            failed += !wentWell;
            const auto after = folder_.Files();
            EXPECT_TRUE(wentWell || after == before) << "step " << bad;
            if (!wentWell) continue;
            EXPECT_EQ(after.at("Blue/Original/a.bmp"), "source") << "step " << bad;
            EXPECT_NE(after.at(kind == FileKind::Bmp ? "Blue/a.bmp" : "Blue/a.jpg").substr(0, 3), "old");
        }
        EXPECT_GE(failed, 9);
    }
}

}  // namespace
}  // namespace ornavo
