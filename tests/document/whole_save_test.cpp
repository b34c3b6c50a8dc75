// SPDX-License-Identifier: MIT
// A save that is broken off at any step leaves the old skin or the new one.
#include "support.h"

namespace ornavo {
namespace {

class WholeSave : public SkinTest {
protected:
    /// "Blue" on the disk, loaded, changed and renamed or not; two pictures are new, one of them replaces.
    void Prepare(const std::string& name) {
        fs::remove_all(folder);
        const std::string added = Put("Pics/new.png", "new picture");
        const std::string same = Put("Pics/same.png", "the other picture of that name");
        Put("Blue/same.png", "same");
        Put("Blue/old.png", "old");
        objSkin = NewSkin("Blue");
        objSkin->AddNewLayout("One")->dbLayoutElements->Item(1)->PicNormal = "old.png";
        objSkin->SaveSkin(false);
        Load("Blue");
        Lowest().PicOn = added;
        Lowest().PicOver = same;
        objSkin->dbSkinPrefs->Add("P", "", added, 5);
        objSkin->SkinName = name;
        objSkin->Dirty = true;
        before = scratch.Files();
    }
    /// Prepares and saves; how many steps that takes.
    int SavedWhole(const std::string& name) {
        Prepare(name);
        StepLayer counting;
        objSkin->SaveSkin(false);
        after = scratch.Files();
        return counting.steps;
    }
    static std::string Model() {
        return objSkin->SkinName + "," + objSkin->OldSkinName + "," + (objSkin->Dirty ? "dirty" : "clean") +
               "," + Lowest().PicNormal + "," + Lowest().PicOn + "," + Lowest().PicOver + "," +
               objSkin->dbSkinPrefs->Item("P")->value.ToText();
    }
    /// Each file of the skins is as it was or as it shall be; others are scratch files.
    void ExpectWhole() {
        const auto now = scratch.Files();
        for (const auto& [file, bytes] : before) EXPECT_TRUE(now.contains(file)) << file;
        for (const auto& [file, bytes] : now) {
            const bool asBefore = before.contains(file) && before.at(file) == bytes;
            const bool asAfter = after.contains(file) && after.at(file) == bytes;
            EXPECT_TRUE(asBefore || asAfter || file.ends_with(".tmp")) << file;
        }
    }
    void ExpectReferencesTrue(const std::string& name) {
        const dbSkinRef read = NewSkin(name);
        read->LoadSkin();
        for (const dbLayoutRef& layout : *read->dbLayouts)
            for (const dbLayoutElementRef& e : *layout->dbLayoutElements)
                for (const std::string& picture : {e->PicNormal, e->PicOn, e->PicOver})
                    EXPECT_TRUE(picture.empty() || fs::exists(fs::path(read->SkinFolder()) / picture))
                        << picture;
    }
    std::map<std::string, std::string> before, after;
};

TEST_F(WholeSave, AFailureAtEachStep) {
    for (const std::string name : {"Blue", "Red"}) {
        const int steps = SavedWhole(name);
        EXPECT_EQ(Model(), name + "," + name + ",clean,old.png,new.png,same.png,new.png");
        ASSERT_GT(steps, 15);
        int refused = 0;
        for (int bad = 1; bad <= steps; ++bad) {
            SCOPED_TRACE(name + ", step " + std::to_string(bad));
            Prepare(name);
            const std::string settings = name + "/SkinSettings.xml", model = Model(), old = BytesOf(settings);
            const Failure failure = FailureOf([bad] {
                // A full disk stays full, other failures pass.
                const FullDisk disk(bad, bad % 2 == 0 ? std::numeric_limits<int>::max() : bad);
                objSkin->SaveSkin(false);
            });
            if (failure.number() != 0) {
                ++refused;
                EXPECT_NE(failure.description().find(name), std::string::npos) << failure.description();
                EXPECT_EQ(Model(), model);
                EXPECT_EQ(BytesOf(settings), old);
                ExpectWhole();
            } else {
                EXPECT_TRUE(!objSkin->Dirty && objSkin->OldSkinName == name);
            }
            ExpectReferencesTrue("Blue");
            ExpectReferencesTrue(name);
        }
        EXPECT_GT(refused, 3);
    }
    Put("file", "");
    objSkin->SetBasePath((folder / "file").string());
    EXPECT_NE(FailureOf([] { objSkin->SaveSkin(false); }).description().find((folder / "file/Red").string()),
              std::string::npos);
}

}  // namespace
}  // namespace ornavo
