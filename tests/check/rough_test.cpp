// SPDX-License-Identifier: MIT
// A skin with every fault, which are told, each once, and go as they are mended.
#include <QImage>
#include <functional>
#include <set>

#include "base/text.h"
#include "check/check.h"
#include "check/pictures_check.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "support/small_gif.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

using Codes = std::set<std::string_view>;

/// A skin without a fault, and what is done to it.
class Rough {
public:
    Rough() {
        skin.SetBasePath(folder.place().string());
        skin.SkinName = "Rough";
        skin.SkinWidth = 700, skin.SkinHeight = 600;
        for (const char* key : {"Standard", "Two"}) AddLayout(key);
        Picture("preview.png", 1);
    }
    /// A layout that can be closed, moved and sized, with a tiny panel.
    dbLayout& AddLayout(const std::string& key) {
        dbLayout& layout = *skin.AddNewLayout(key);
        layout.AddDummyPoints();
        for (const dbLayoutElementRef& element : *layout.dbLayoutElements) {
            element->Visible = element->LockRight = element->LockBottom = false, element->LockLeft = true;
            element->LeftX = 0, element->TopY = 590, element->WidthX = element->HeightY = 9;
        }
        for (int i = 0; i < 3; ++i) {
            dbLayoutElement& able = Add("Able" + std::to_string(i), TypeButton, key.c_str());
            able.Dragger = i == 1, able.Resizer = i == 2;
        }
        return layout;
    }
    /// A layout whose shape ends where the skin ends, in wider windows too.
    void FixShape(const std::string& key) {
        const dbPoints& points = *AddLayout(key).dbPoints;
        for (const int i : {3, 4}) points.Item(i)->HAlign = AlignStart, points.Item(i)->X = 700;
    }
    /// The names of elements are those of the codes that they have.
    dbLayoutElement& Add(const std::string& key, int type = TypePicture, const char* layout = "Standard") {
        dbLayoutElements& elements = *skin.dbLayouts->Item(layout)->dbLayoutElements;
        const int i = elements.Count();
        dbLayoutElement& element = *elements.Add(i + 1, key, type, ActionClose);
        element.LeftX = 60 * (i % 9), element.TopY = 60 * (i / 9), element.WidthX = element.HeightY = 50;
        element.LockLeft = element.LockTop = true;
        return element;
    }
    std::string Picture(const std::string& name, int size, QColor colour = Qt::red) const {
        QImage image(size, size, QImage::Format_ARGB32);
        image.fill(colour);
        const std::string path =
            folder.Write((name.find('/') == name.npos ? "Rough/" : "") + name, "").string();
        image.save(QString::fromStdString(path), "PNG");
        return name.find('/') == name.npos ? name : path;
    }
    /// Puts lines behind that of this key.
    void Insert(const std::string& key, const std::string& lines) {
        edits.emplace_back([=](std::string& text) {
            text.insert(text.find('\n', text.find("<Key>" + key + "<")) + 1, lines + "\n");
        });
    }
    Codes Told() {
        std::string text = skin.FileBytes();
        for (const auto& edit : edits) edit(text);
        folder.Write("Rough/SkinSettings.xml", text);
        objSkin = std::make_shared<dbSkin>(skin);
        Codes codes;
        for (const Finding& finding : CheckSkin(skin)) codes.insert(finding.kind->code);
        return codes;
    }
    const TemporaryFolder folder;
    dbSkin skin;
    std::vector<std::function<void(std::string&)>> edits;
};

struct Fault {
    std::string_view code;
    void (*spoil)(Rough& rough, const std::string& code);
};

const Fault Faults[] = {
    {"damaged-file",
     [](Rough& r, auto&) { r.edits.push_back([](auto& text) { text.resize(text.rfind('<')); }); }},
    {"lost-object", [](Rough& r, auto&) { r.Insert("Standard", "<Element>\n</Element>"); }},
    {"not-written",
     [](Rough& r, auto& code) {
         r.Add(code);
         r.edits.push_back([code](auto& text) {
             const auto at = text.find("<Order>", text.find(code));
             text.replace(at, 8, "<Order>99");
         });
     }},
    {"unknown-line",
     [](Rough& r, auto& code) {
         r.Add(code);
         r.Insert(code, "<Foo>1</Foo>");
     }},
    {"stray-text",
     [](Rough& r, auto& code) {
         r.Add(code);
         r.Insert(code, "text");
     }},
    {"refused-value",
     [](Rough& r, auto& code) {
         r.Add(code);
         r.Insert(code, "<Rotation>abc</Rotation>");
     }},
    {"overwritten-line",
     [](Rough& r, auto& code) {
         r.Add(code);
         r.Insert(code, "<LeftX>9999</LeftX>");
     }},
    {"changed-value",
     [](Rough& r, auto& code) {
         r.Add(code).Rotation = 1;
         r.edits.push_back(
             [](auto& text) { text = ReplaceAll(text, "<Rotation>1<", "<Rotation>+1.23456<"); });
     }},
    {"new-preferences", [](Rough& r, auto&) { r.skin.dbSkinPrefs->Remove("LA_Font"); }},
    {"missing-picture", [](Rough& r, auto& code) { r.Add(code).PicDown = "gone.png"; }},
    {"unreadable-picture",
     [](Rough& r, auto& code) {
         r.folder.Write("Rough/text.png", "text"), r.Add(code).PicOver = "text.png";
     }},
    {"refused-picture",
     [](Rough& r, auto& code) { r.Add(code).PicOver = r.Picture("else/SkinSettings.xml", 5); }},
    {"outside-picture", [](Rough& r, auto& code) { r.Add(code).PicOver = r.Picture("else/out.png", 5); }},
    {"two-pictures-one-name",
     [](Rough& r, auto& code) {
         r.Picture("twice.png", 5, Qt::blue), r.Add(code).PicOver = "twice.png",
                                              r.Add(code + "2").PicOver = r.Picture("TWICE.png", 5);
     }},
    {"mixed-animation",
     [](Rough& r, auto& code) {
         r.folder.Write("Rough/moving.gif", SmallGif(2));
         dbLayoutElement& e = r.Add(code);
         e.PicNormal = "moving.gif", e.PicOver = r.Picture("still.png", 5);
     }},
    {"clear-pixels",
     [](Rough& r, auto& code) { r.Add(code).PicNormal = r.Picture("clear.png", 5, Qt::transparent); }},
    {"picture-case",
     [](Rough& r, auto& code) { r.Picture("CASE.png", 5), r.Add(code).PicNormal = "case.png"; }},
    {"large-picture", [](Rough& r, auto& code) { r.Add(code).PicNormal = r.Picture("large.png", 101); }},
    {"unused-key-colour",
     [](Rough& r, auto& code) {
         dbLayoutElement& e = r.Add(code);
         e.PicNormal = r.Picture("keyed.png", 5), e.UseTransparency = true, e.TransparentColor = Rgb(1, 2, 3);
     }},
    {"unnamed-file", [](Rough& r, auto&) { r.Picture("nobody.png", 5); }},
    {"covered-element",
     [](Rough& r, auto& code) {
         dbLayoutElement &still = r.Add(code, TypeButton), &moving = r.Add(code + "2", TypeButton);
         still.LeftX = 300, moving.LeftX = 600, still.TopY = moving.TopY = 500;
         moving.LockLeft = false, moving.LockRight = true;
     }},
    {"outside-window",
     [](Rough& r, auto& code) {
         dbLayoutElement& e = r.Add(code, TypeButton);
         e.LeftX = 640, e.TopY = 400;
     }},
    {"no-size",
     [](Rough& r, auto& code) {
         dbLayoutElement& e = r.Add(code, TypeButton);
         e.TopY = 540, e.LockRight = true;
     }},
    {"outside-shape",
     [](Rough& r, auto& code) {
         r.FixShape(code);
         dbLayoutElement& e = r.Add(code, TypeButton, code.c_str());
         e.LeftX = 60, e.TopY = 300, e.LockLeft = false, e.LockRight = true;
     }},
    {"cut-by-shape",
     [](Rough& r, auto& code) {
         r.FixShape(code);
         dbLayoutElement& e = r.Add(code, TypeButton, code.c_str());
         e.LeftX = 100, e.WidthX = 500, e.TopY = 300, e.LockRight = true;
     }},
    {"small-target", [](Rough& r, auto& code) { r.Add(code, TypeButton).WidthX = 33; }},
    {"close-targets",
     [](Rough& r, auto& code) {
         dbLayoutElement &one = r.Add(code), &other = r.Add(code + "2");
         other.LeftX = one.LeftX + 55, other.TopY = one.TopY;
     }},
    {"low-contrast",
     [](Rough& r, auto& code) {
         dbLayoutElement& e = r.Add(code, TypeButton);
         e.Caption = "A", e.TextColor = ButtonFace;
     }},
    {"cut-text", [](Rough& r, auto& code) { r.Add(code, TypeButton).Caption = "A long text"; }},
    {"few-corners",
     [](Rough& r, auto&) {
         for (int i = 4; i > 2; --i) r.skin.dbLayouts->Item("Two")->dbPoints->Remove(i);
     }},
    {"unusual-font",
     [](Rough& r, auto& code) { r.Add(code).Font = std::make_shared<Font>(Font{.Name = "Own"}); }},
    {"idle-button", [](Rough& r, auto& code) { r.Add(code, TypeButton).ActionType = 0; }},
    {"no-close",
     [](Rough& r, auto&) {
         for (const auto& e : *r.skin.dbLayouts->Item("Two")->dbLayoutElements) e->ActionType = 1;
     }},
    {"no-move",
     [](Rough& r, auto&) {
         r.skin.dbLayouts->Item("Two")->dbLayoutElements->Item("Able1")->Dragger = false;
     }},
    {"no-resize",
     [](Rough& r, auto&) {
         r.skin.dbLayouts->Item("Two")->dbLayoutElements->Item("Able2")->Resizer = false;
     }},
    {"no-standard",
     [](Rough& r, auto&) {
         r.edits.push_back([](auto& text) { text = ReplaceAll(text, "<Key>Standard<", "<Key>One<"); });
     }},
    {"no-preview", [](Rough& r, auto&) { std::filesystem::remove(r.folder / "Rough/preview.png"); }},
};

/// What is told of a skin with all faults but one.
Codes ToldWithout(std::string_view mended) {
    Rough rough;
    for (const Fault& fault : Faults)
        if (fault.code != mended) fault.spoil(rough, std::string(fault.code));
    return rough.Told();
}

TEST(RoughSkin, EachFaultIsToldUntilItIsMended) {
    EXPECT_EQ(Rough().Told(), Codes());
    Codes all = {};
    for (const Fault& fault : Faults) all.insert(fault.code);
    EXPECT_EQ(ToldWithout(""), all);
    for (const Fault& fault : Faults) {
        Codes others = all;
        others.erase(fault.code);
        EXPECT_EQ(ToldWithout(fault.code), others) << fault.code;
    }
}

TEST(RoughSkin, WhatCannotBeWithTheOthers) {
    Rough rough;
    rough.edits = {
        [](std::string& text) { text = ReplaceAll(text, "<SkinName>Rough<", "<SkinName>Other<"); }};
    EXPECT_EQ(rough.Told(), (Codes{"other-name"})) << "in a folder that was copied";
    rough.Add("heavy").PicNormal = rough.Picture("heavy.png", 50);
    rough.edits.clear();
    rough.Told();
    const LoadedSkin loaded(objSkin->BasePath(), "Rough", rough.skin.FileBytes());
    EXPECT_TRUE(CheckPictures(loaded, 4 * 50 * 50).empty());
    EXPECT_EQ(CheckPictures(loaded, 4 * 50 * 50 - 1).front().kind->code, "heavy-skin");
}

TEST(RoughSkin, ThePageHasAllCodes) {
    const std::string page = TemporaryFolder::Read(ORNAVO_SOURCE_DIR "/docs/checking.md");
    for (const FindingKind& kind : FindingKinds())
        EXPECT_NE(page.find("`" + std::string(kind.code) + "`"), page.npos) << kind.code;
}

}  // namespace
}  // namespace ornavo::testing
