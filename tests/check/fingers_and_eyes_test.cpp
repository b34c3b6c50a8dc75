// SPDX-License-Identifier: MIT
// What is hard to press or to read: changes of a layout that has no such fault.
#include <QImage>

#include "check/targets_check.h"
#include "check/texts_check.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

using E = dbLayoutElement;

/// What is told of two buttons and an info field after the change.
std::string Told(const TemporaryFolder& folder, void (*change)(E& play, E& next, E& title)) {
    const dbSkinRef skin = objSkin = std::make_shared<dbSkin>();
    skin->SetBasePath((folder / "").string());
    skin->SkinWidth = 640, skin->SkinHeight = 600;
    skin->dbSkinPrefs = std::make_shared<dbSkinPrefs>();
    dbLayoutElements& elements = *skin->AddNewLayout("One")->dbLayoutElements;
    const auto add = [&](const char* key, int type, int left, int width) -> E& {
        E& e = *elements.Add(elements.Count() + 1, key, type, 1);
        e.LeftX = left, e.TopY = 100, e.WidthX = width, e.HeightY = 40, e.LockLeft = e.LockTop = true;
        e.BackgroundColor = Rgb(255, 255, 255), e.Caption = key, e.InfoType = InfoSongTitle;
        e.Font = std::make_shared<Font>(Font{.Name = "Arial", .Size = 10});
        return e;
    };
    E &play = add("Play", TypeButton, 0, 60), &next = add("Next", TypeButton, 68, 60);
    change(play, next, add("Title", TypeInfo, 200, 300));
    const LoadedSkin loaded(skin->BasePath(), skin->SkinName, skin->FileBytes());
    std::string told;
    for (const auto check : {CheckTargets, CheckTexts})
        for (const Finding& one : check(loaded)) told.append(one.kind->code).append(": " + one.text + "\n");
    return told;
}

TEST(FingersAndEyes, AreToldOfEachFaultAndOfNothingElse) {
    const TemporaryFolder folder;
    QImage dark(8, 8, QImage::Format_RGB32);
    dark.fill(Qt::darkBlue);
    ASSERT_TRUE(dark.save(QString::fromStdString((folder / "dark.png").string())));
    // clang-format off
    const std::pair<const char*, void (*)(E&, E&, E&)> rows[] = {
        {"small-target: \"Play\" is 33 x 40", [](E& play, E&, E&) { play.WidthX = 33; }},
        {"", [](E& play, E&, E&) { play.WidthX = 33, play.ActionType = 0; }},
        {"", [](E& play, E& next, E&) { play.WidthX = 68, play.HeightY = 33, play.Dragger = next.Dragger = true; }},
        {"20 x 40 pixels in a window of 600", [](E&, E& next, E&) { next.LockRight = next.StretchWidth = true, next.Caption = ""; }},
        {"small-target: \"Title\"", [](E&, E&, E& title) { title.InfoType = InfoVolume, title.VolumeChangeable = true, title.HeightY = 33; }},
        {"\"Play\" and \"Next\" are 7 pixels", [](E&, E& next, E&) { next.LeftX = 67; }},
        {"", [](E&, E& next, E&) { next.LeftX = 67, next.TopY = 150; }},
        {"low-contrast: The text of \"Title\" has a contrast of 3.9", [](E&, E&, E& title) { title.TextColor = 0x808080; }},
        {"", [](E&, E&, E& title) { title.TextColor = 0x808080, title.Font->Size = 18; }},
        {"when it is pressed:", [](E& play, E&, E&) { play.PicDown = "dark.png"; }},
        {"", [](E& play, E&, E&) { play.UseTransparency = true; }},
        {"cut-text: The text of \"Title\" is ", [](E&, E&, E& title) { title.WidthX = 100; }},
        {"", [](E&, E&, E& title) { title.WidthX = 100, title.CapScrollSpeed = 2; }},
        {"of its height, in Liberation Sans, which stands in for Arial", [](E&, E& next, E&) { next.CaptionY = 30; }},
    };
    // clang-format on
    for (const auto& [told, change] : rows) {
        const std::string text = Told(folder, change);
        EXPECT_EQ(std::ranges::count(text, '\n'), *told ? 1 : 0) << told << "\n" << text;
        EXPECT_NE(text.find(told), std::string::npos) << told << "\n" << text;
    }
}

}  // namespace
}  // namespace ornavo::testing
