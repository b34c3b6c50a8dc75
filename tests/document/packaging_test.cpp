// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include "document/skin_packaging.h"
#include "support.h"

namespace ornavo {
namespace {

class Packaging : public SkinTest {
protected:
    /// The current skin with one layout, and the picture of its lowest element.
    std::string& Picture() {
        if (objSkin->dbLayouts->Count() == 0) objSkin->AddNewLayout("One");
        return objSkin->dbLayouts->Item(1)->dbLayoutElements->Item(1)->PicNormal;
    }
    /// What the picture is called after a save.
    std::string Saved(const std::string& name, bool keepExisting = false) {
        Picture() = name;
        objSkin->SaveSkin(keepExisting);
        return Picture();
    }
    std::string InSkin(const std::string& name) { return BytesOf(folder / objSkin->SkinName / name); }
};

TEST_F(Packaging, EveryKindOfReferenceIsGathered) {
    Put(folder / "Elsewhere/a.png", "A");
    Put(folder / "Blue/b.png", "B");
    const std::string a = folder / "Elsewhere/a.png";
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
    const auto once = scratch.Files();
    objSkin->SaveSkin(false);
    EXPECT_EQ(scratch.Files(), once);
}

TEST_F(Packaging, ARenamedSkinTakesItsPicturesAlong) {
    Put(folder / "Blue/a.png", "A");
    Put(folder / "Blue/b.png", "B");
    Put(folder / "Red/b.png", "own");
    objSkin->LoadSkin();
    objSkin->SkinName = "Red";
    EXPECT_EQ(FindSkinPicture("a.png"), folder / "Blue/a.png");
    EXPECT_EQ(FindSkinPicture("b.png"), folder / "Red/b.png");
    EXPECT_EQ(FindSkinPicture(folder.string() + "/nowhere/a.png"), folder / "Blue/a.png");
    EXPECT_EQ(FindSkinPicture(folder.string() + "/nowhere/b.png"), folder / "Blue/b.png");
    EXPECT_EQ(FindSkinPicture("c.png"), fs::path());
    EXPECT_EQ(Saved("a.png"), "a.png");
    EXPECT_EQ(InSkin("a.png"), "A");
    EXPECT_EQ(Saved("b.png"), "b.png");
    EXPECT_EQ(InSkin("b.png"), "own");
    objSkin->OldSkinName = "Blue";
    EXPECT_EQ(Saved(folder.string() + "/nowhere/b.png"), "b.png");
    EXPECT_EQ(InSkin("b.png"), "B");
    EXPECT_EQ(BytesOf(folder / "Blue/a.png"), "A");
}

TEST_F(Packaging, NamesOfAnotherDisk) {
    Put(folder / "Blue/Back.JPG", "A");
    Put(folder / "Pics/Over.png", "B");
    EXPECT_EQ(Saved("back.jpg"), "back.jpg");
    EXPECT_EQ(Saved(folder.string() + "\\pics\\over.PNG"), "over.PNG");
    EXPECT_EQ(InSkin("over.PNG"), "B");
    EXPECT_EQ(Saved("c:\\old disk\\back.jpg"), "back.jpg");
    EXPECT_EQ(MakeSkinRelative(folder.string() + "/blue/x.png"), "x.png");
    EXPECT_EQ(MakeSkinRelative(folder.string() + "/Pics/Over.png"), folder.string() + "/Pics/Over.png");
    EXPECT_EQ(GetSkinPicturePath("x.png"), folder.string() + "/Blue/x.png");
    EXPECT_EQ(GetSkinPicturePath(""), "");
}

TEST_F(Packaging, AnExistingFileIsReplacedOrKept) {
    Put(folder / "Pics/a.png", "new");
    Put(folder / "Blue/A.png", "old");
    EXPECT_EQ(Saved(folder / "Pics/a.png", true), "a.png");
    EXPECT_EQ(InSkin("A.png"), "old");
    EXPECT_EQ(Saved(folder / "Pics/a.png", false), "a.png");
    EXPECT_EQ(InSkin("A.png"), "new");
    EXPECT_FALSE(fs::exists(folder / "Blue/a.png"));
}

TEST_F(Packaging, WhatIsNoPlainFileStaysOutside) {
    fs::create_directories(folder / "Pics/folder.png");
    ASSERT_EQ(mkfifo((folder / "Pics/pipe.png").c_str(), 0600), 0);
    fs::create_symlink("nowhere", folder / "Pics/broken.png");
    for (const char* name : {"folder.png", "pipe.png", "broken.png"})
        EXPECT_EQ(Saved(folder / "Pics" / name), "");
    Put(folder / "Pics/real.png", "A");
    fs::create_symlink("real.png", folder / "Pics/link.png");
    EXPECT_EQ(Saved(folder / "Pics/link.png"), "link.png");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "Blue/link.png")));
    // A folder in the picture's place can't be replaced.
    fs::create_directories(folder / "Blue/real.png");
    const std::string real = folder / "Pics/real.png";
    EXPECT_EQ(Saved(real), real);
    EXPECT_EQ(scratch.Files("Blue").size(), 2u);
}

TEST_F(Packaging, NoPictureLandsOnTheSettings) {
    const std::string trap = folder / "Pics/SKINsettings.XML";
    Put(trap, "not a skin");
    for (const bool keep : {false, true}) {
        EXPECT_EQ(Saved(trap, keep), trap);
        EXPECT_EQ(InSkin("SkinSettings.xml").substr(0, 5), "<?xml");
    }
    EXPECT_EQ(scratch.Files("Blue").size(), 1u);
}

TEST_F(Packaging, ALinkInTheFolderLeadsNoCopyOutside) {
    Put(folder / "Outside/letter.txt", "precious");
    Put(folder / "Pics/a.png", "A");
    fs::create_directories(folder / "Blue");
    fs::create_symlink(folder / "Outside/letter.txt", folder / "Blue/a.png");
    Saved(folder / "Pics/a.png");
    EXPECT_EQ(BytesOf(folder / "Outside/letter.txt"), "precious");
}

TEST_F(Packaging, NamesThatTheFileCannotHold) {
    Put(folder / "Pics/中.png", "one");
    Put(folder / "Pics/文.png", "two");
    Put(folder / "Pics/_-3.png", "its own");
    Put(folder / "Pics/tail\n.png", "three");
    Put(folder / "Pics/Größe €.png", "fits");
    EXPECT_EQ(Saved(folder / "Pics/中.png"), "_.png");
    EXPECT_EQ(Saved(folder / "Pics/文.png"), "_-2.png");
    EXPECT_EQ(Saved(folder / "Pics/中.png"), "_.png");
    EXPECT_EQ(InSkin("_.png") + "," + InSkin("_-2.png"), "one,two");
    EXPECT_EQ(Saved(folder / "Pics/tail\n.png"), "tail_.png");
    EXPECT_EQ(Saved(folder / "Pics/Größe €.png"), "Größe €.png");
    Put(folder / "Blue/字.png", "inside");
    EXPECT_EQ(Saved("字.png"), "_-3.png");
    const dbSkinRef read = NewSkin("Blue");
    read->LoadSkin();
    EXPECT_EQ(read->dbLayouts->Item(1)->dbLayoutElements->Item(1)->PicNormal, "_-3.png");
}

TEST_F(Packaging, ANameThatReadsAsANumberGetsASubstitute) {
    for (const char* name : {"+.png", "+vol.down.bmp", "007", "1.50", "Wahr", "3000000000"}) {
        Put(folder / "Pics" / name, name);
        const std::string stored = Saved(folder / "Pics" / name);
        objSkin->LoadSkin();
        EXPECT_EQ(Picture(), stored);
        EXPECT_EQ(Saved(Picture()), stored);
        EXPECT_EQ(InSkin(Picture()), name);
    }
}

TEST_F(Packaging, ASkinWhoseNameTheFileCannotHold) {
    Put(folder / "皮/a.png", "A");
    Put(folder / "_/SkinSettings.xml", "another skin");
    objSkin->SkinName = "皮";
    objSkin->LoadSkin();
    EXPECT_EQ(Saved("a.png"), "a.png");
    EXPECT_EQ(objSkin->SkinName, "_-2");
    EXPECT_EQ(InSkin("a.png"), "A");
    EXPECT_EQ(BytesOf(folder / "_/SkinSettings.xml"), "another skin");
}

}  // namespace
}  // namespace ornavo
