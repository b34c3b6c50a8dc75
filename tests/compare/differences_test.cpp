// SPDX-License-Identifier: MIT
#include "compare/differences.h"

#include <gtest/gtest.h>

#include "document/codes.h"
#include "document/skin_copy.h"

namespace ornavo::testing {
namespace {

dbSkin& Edited(dbSkin& skin, const char* layout, const char* edit) {
    const dbLayoutRef one = skin.dbLayouts->Item(layout);
    dbLayoutElements& elements = *one->dbLayoutElements;
    const std::string what = edit;
    if (what == "caption") elements.Item("Play")->Caption = "Go";
    if (what == "font") elements.Item("Play")->Font = std::make_shared<Font>(Font{.Size = 20});
    if (what == "remove") elements.Remove("Play");
    if (what == "add") elements.Add(6, "New", TypeButton, 0);
    if (what == "to bottom") elements.Item("Stop")->Order = 0;
    if (what == "corner") one->dbPoints->Item(2)->X = 7;
    if (what == "preference") skin.dbSkinPrefs->Item("SP_ColLight")->value = Value(1);
    if (what == "layout") skin.AddNewLayout("More");
    return skin;
}

TEST(Differences, AreToldOncePerThing) {
    dbSkin skin;
    skin.AddNewLayout("One")->AddDummyPoints();
    dbLayoutElements& elements = *skin.dbLayouts->Item(1)->dbLayoutElements;
    for (const char* key : {"Play", "Stop"}) elements.Add(elements.Count() + 1, key, TypeButton, 0);
    const std::pair<const char*, const char*> cases[] = {
        {"nothing", ""},
        {"caption", "One, Play: Caption was \"\", is \"Go\"\n"},
        {"font", "One, Play: Font.Size was 8, is 20\n"},
        {"remove", "One, Play: removed\n"},
        {"add", "One, New: added\n"},
        {"to bottom", "One, Stop: moved\n"},
        {"corner", "One, corner 2: X was 0, is 7\n"},
        {"preference", "SP_ColLight: Value was 16777215, is 1\n"},
        {"layout", "More: added\n"}};
    for (const auto& [edit, expected] : cases) {
        const dbSkinRef after = DeepCopy(skin);
        std::string told;
        for (const Difference& one : CompareSkins(skin, Edited(*after, "One", edit)))
            told += WordsOf(one) + "\n";
        EXPECT_EQ(told, expected) << edit;
    }
}

}  // namespace
}  // namespace ornavo::testing
