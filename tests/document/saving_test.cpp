// SPDX-License-Identifier: MIT
#include "support.h"

namespace ornavo {
namespace {

class Packaging : public SkinTest {
protected:
    /// The picture of the lowest element of the current skin's layout.
    static std::string& Picture() {
        if (objSkin->dbLayouts->Count() == 0) objSkin->AddNewLayout("One");
        return Lowest().PicNormal;
    }
    /// What the picture is called after a save.
    static std::string Saved(const std::string& name, bool keepExisting = false) {
        Picture() = name;
        objSkin->SaveSkin(keepExisting);
        return Picture();
    }
    /// The same, with the bytes that lie there then.
    std::string Stored(const std::string& name, bool keepExisting = false) const {
        const std::string stored = Saved(name, keepExisting);
        return stored + "=" + InSkin(stored);
    }
    std::string InSkin(const std::string& name) const { return BytesOf(objSkin->SkinName + "/" + name); }
    const std::string nowhere = folder.string() + "/nowhere/", pics = folder.string() + "/Pics/";
};

TEST_F(Packaging, EveryKindOfReferenceIsGathered) {
    const std::string a = Put("Elsewhere/a.png", "A");
    Put("Blue/b.png", "B");
    objSkin->AddNewLayout("One");
    dbLayoutElement& element = *objSkin->dbLayouts->Item(1)->dbLayoutElements->Item(2);
    element.PicNormal = element.PicOn = a;
    element.PicOver = "b.png";
    element.PicDown = "gone.png";
    element.PicDisabled = "  ";
    objSkin->dbSkinPrefs->Add("P", "", a, 5);
    objSkin->dbSkinPrefs->Add("Text", "", a, 6);
    objSkin->SaveSkin(false);
    EXPECT_EQ(element.PicNormal + "," + element.PicOn + "," + element.PicOver, "a.png,a.png,b.png");
    EXPECT_EQ(element.PicDown + element.PicDisabled, "");
    EXPECT_EQ(objSkin->dbSkinPrefs->Item("P")->value, Value("a.png"));
    EXPECT_EQ(objSkin->dbSkinPrefs->Item("Text")->value, Value(a));
    EXPECT_EQ(InSkin("a.png"), "A");
}

TEST_F(Packaging, ARenamedSkinTakesItsPicturesAlong) {
    Put("Blue/a.png", "A");
    Put("Blue/b.png", "B");
    Put("Red/b.png", "own");
    objSkin->LoadSkin();
    objSkin->SkinName = "Red";
    const std::pair<std::string, fs::path> found[] = {{"a.png", folder / "Blue/a.png"},
                                                      {"b.png", folder / "Red/b.png"},
                                                      {nowhere + "b.png", folder / "Blue/b.png"},
                                                      {"c.png", ""}};
    for (const auto& [name, path] : found) EXPECT_EQ(FindSkinPicture(name), path) << name;
    EXPECT_EQ(Stored("a.png"), "a.png=A");
    EXPECT_EQ(Stored("b.png"), "b.png=own");
    objSkin->OldSkinName = "Blue";
    EXPECT_EQ(Stored(nowhere + "b.png"), "b.png=B");
    EXPECT_EQ(BytesOf("Blue/a.png"), "A");
}

TEST_F(Packaging, NamesOfAnotherDiskAndAnotherCase) {
    Put("Blue/Back.JPG", "A");
    Put("Pics/Over.png", "B");
    EXPECT_EQ(Saved("back.jpg"), "back.jpg");
    EXPECT_EQ(Stored(folder.string() + "\\pics\\over.PNG"), "over.PNG=B");
    EXPECT_EQ(Saved("c:\\old disk\\back.jpg"), "back.jpg");
    EXPECT_EQ(MakeSkinRelative(folder.string() + "/blue/x.png"), "x.png");
    EXPECT_EQ(GetSkinPicturePath("x.png") + GetSkinPicturePath(""), folder.string() + "/Blue/x.png");
    Put("Pics/a.png", "new");
    Put("Blue/A.png", "old");
    for (const bool keep : {true, false}) {
        EXPECT_EQ(Saved(pics + "a.png", keep), "a.png");
        EXPECT_EQ(InSkin("A.png"), keep ? "old" : "new");
    }
    EXPECT_FALSE(fs::exists(folder / "Blue/a.png"));
}

TEST_F(Packaging, TheDiskIsAskedOnceForEachPicture) {
    constexpr int pictures = 10, besides = 1;  // folders, the settings file
    const auto name = [](std::string_view format, int i) { return std::string(format) + std::to_string(i); };
    for (int i = 0; i < pictures; ++i) Put("Blue/" + name("Pic", i), "A"), Put("Pics/" + name("Pic", i), "B");
    Put("Blue/SkinSettings.xml", "");
    for (const std::string& format :
         {std::string("Pic"), std::string("pic"), std::string("gone"), pics + "Pic"}) {
        objSkin = NewSkin("Blue");
        dbLayoutElements& elements = *objSkin->AddNewLayout("One")->dbLayoutElements;
        for (int i = 0; i < 3 * pictures; ++i)
            elements.Add(9 + i, std::to_string(i), TypeButton, 0)->PicNormal = name(format, i % pictures);
        const StepLayer disk;
        objSkin->SaveSkin(false);
        // Copied once, and asked for again as it is opened.
        const int elsewhere = format.starts_with(pics) ? pictures : 0;
        EXPECT_LE(disk.asked, 2 * elsewhere + besides) << format;
        EXPECT_EQ(disk.made, elsewhere + 1) << format;
        EXPECT_EQ(disk.listed, 1) << format;
    }
}

TEST_F(Packaging, APictureThatIsCopiedIsThereForTheNext) {
    Put("Pics/Over.png", "B");
    objSkin->AddNewLayout("One");
    Lowest().PicNormal = "over.png";  // not there yet
    Lowest().PicOn = pics + "Over.png";
    Lowest().PicOver = "OVER.png";
    objSkin->SaveSkin(false);
    EXPECT_EQ(Lowest().PicNormal + Lowest().PicOn + Lowest().PicOver, "Over.pngOVER.png");
    EXPECT_EQ(FindSkinPicture("OVER.png"), folder / "Blue/Over.png");
}

TEST_F(Packaging, WhatIsNoPlainFileStaysOutside) {
    fs::create_directories(pics + "folder.png");
    EXPECT_EQ(Saved(pics + "folder.png"), "");
    const std::string real = Put("Pics/real.png", "A"), letter = Put("Outside/letter.txt", "precious");
    fs::create_symlink(letter, folder / "Blue/a.png");  // a copy is not led outside
    Put("Pics/a.png", "A");
    Saved(pics + "a.png");
    EXPECT_EQ(BytesOf("Outside/letter.txt"), "precious");
    fs::create_directories(folder / "Blue/real.png");
    EXPECT_EQ(Saved(real), real);
    const std::string trap = Put("Pics/SKINsettings.XML", "not a skin");
    for (const bool keep : {false, true}) {
        EXPECT_EQ(Saved(trap, keep), trap);
        EXPECT_EQ(InSkin("SkinSettings.xml").substr(0, 5), "<?xml");
    }
}

TEST_F(Packaging, NamesThatTheFileCannotHold) {
    for (const char* name : {"中.png", "文.png", "tail\n.png", "Größe €.png"})
        Put(std::string("Pics/") + name, name);
    EXPECT_EQ(Stored(pics + "中.png"), "_.png=中.png");
    EXPECT_EQ(Stored(pics + "文.png"), "_-2.png=文.png");
    EXPECT_EQ(Stored(pics + "中.png"), "_.png=中.png");
    EXPECT_EQ(Saved(pics + "tail\n.png"), "tail_.png");
    EXPECT_EQ(Saved(pics + "Größe €.png"), "Größe €.png");
    Put("Blue/字.png", "inside");
    EXPECT_EQ(Saved("字.png"), "_-3.png");
    for (const char* name : {"+vol.down.bmp", "1.50", "Wahr"}) {
        const std::string stored = Saved(Put(std::string("Pics/") + name, name));
        Load("Blue");
        EXPECT_EQ(Picture(), stored) << "and not as a number";
        EXPECT_EQ(Stored(stored), stored + "=" + name);
    }
    Put("皮/a.png", "A");
    Put("_/SkinSettings.xml", "another skin");
    Load("皮");
    EXPECT_EQ(Stored("a.png"), "a.png=A");
    EXPECT_EQ(objSkin->SkinName, "_-2");
    EXPECT_EQ(BytesOf("_/SkinSettings.xml"), "another skin");
}

/// A save that is broken off at any step leaves the old skin or the new one.
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
        int refused = 0;
        for (int bad = 1; bad <= steps; ++bad) {
            SCOPED_TRACE(name + ", step " + std::to_string(bad));
            Prepare(name);
            const std::string settings = name + "/SkinSettings.xml", model = Model(), old = BytesOf(settings);
            const int failure = FailureNumber([bad] {
                // A full disk stays full, other failures pass.
                const FullDisk disk(bad, bad % 2 == 0 ? std::numeric_limits<int>::max() : bad);
                objSkin->SaveSkin(false);
            });
            if (failure != 0) {
                ++refused;
                EXPECT_EQ(Model(), model);
                EXPECT_EQ(BytesOf(settings), old);
                ExpectWhole();
            }
            ExpectReferencesTrue("Blue");
            ExpectReferencesTrue(name);
        }
        EXPECT_GT(refused, 3);
    }
}

}  // namespace
}  // namespace ornavo
