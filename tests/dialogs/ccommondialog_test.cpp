// SPDX-License-Identifier: MIT
#include "dialogs/ccommondialog.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/scripted_prompts.h"

namespace ornavo::testing {
namespace {

class FailingPrompts : public ScriptedPrompts {
public:
    std::optional<std::string> File(const FileQuestion&) override { throw Failure(513, "", "no dialog"); }
};

TEST(CommonDialog, AFileIsGivenWithItsTitleOrNothingChanges) {
    ScriptedPrompts prompts;
    cCommonDialog dialog;
    std::string file = "old.jpg", title = "old";
    prompts.files = {"/skins/Blue/back.jpg"};
    EXPECT_TRUE(dialog.VBGetOpenFileName(file, title, {"A|*.a", "/skins", "Open Picture", "bmp"}));
    EXPECT_EQ(file, "/skins/Blue/back.jpg");
    EXPECT_EQ(title, "back.jpg");
    EXPECT_EQ(dialog.APIReturn(), 1);
    const FileQuestion& asked = prompts.questions.at(0);
    EXPECT_EQ(asked.title + ' ' + asked.filter + ' ' + asked.folder + ' ' + asked.name,
              "Open Picture A|*.a /skins old.jpg");
    EXPECT_FALSE(asked.save);
    EXPECT_FALSE(dialog.VBGetOpenFileName(file, title, {}));
    EXPECT_EQ(file + ' ' + title, "/skins/Blue/back.jpg back.jpg");
    EXPECT_EQ(dialog.APIReturn(), 0);
    EXPECT_EQ(dialog.ExtendedError(), 0) << "cancelled";
}

TEST(CommonDialog, ASavedNameGetsTheExtensionItLacks) {
    ScriptedPrompts prompts;
    cCommonDialog dialog;
    const std::pair<const char*, const char*> rows[] = {{"/a.b/c", "/a.b/c.bmp"}, {"/a/c.jpg", "/a/c.jpg"}};
    for (const auto& [typed, saved] : rows) {
        std::string file, title;
        prompts.files = {typed};
        EXPECT_TRUE(dialog.VBGetSaveFileName(file, title, {"", "", "", "bmp"}));
        EXPECT_EQ(file, saved);
    }
    EXPECT_TRUE(prompts.questions.at(0).save);
}

TEST(CommonDialog, AFailureGivesFalseAndItsNumber) {
    FailingPrompts prompts;
    cCommonDialog dialog;
    std::string file, title;
    EXPECT_FALSE(dialog.VBGetOpenFileName(file, title, {}));
    EXPECT_NE(dialog.ExtendedError(), 0);
    const int failed = dialog.ExtendedError();
    file.assign(261, 'x');
    EXPECT_FALSE(dialog.VBGetOpenFileName(file, title, {}));
    EXPECT_NE(dialog.ExtendedError(), failed) << "the name is too long to be asked for";
    EXPECT_EQ(file.size(), 261u);
}

TEST(CommonDialog, CustomColoursLiveAsLongAsTheProgram) {
    ScriptedPrompts prompts;
    Colour colour = Rgb(1, 2, 3);
    cCommonDialog().SetCustomColor(15, Rgb(9, 9, 9));
    EXPECT_FALSE(cCommonDialog().VBChooseColor(colour));
    EXPECT_EQ(colour, Rgb(1, 2, 3));
    EXPECT_EQ(prompts.customColours[15], Rgb(9, 9, 9));
    EXPECT_EQ(prompts.customColours[0], Rgb(255, 255, 255));
    prompts.colours = {Rgb(4, 5, 6)};
    EXPECT_TRUE(cCommonDialog().VBChooseColor(colour));
    EXPECT_EQ(colour, Rgb(4, 5, 6));
    EXPECT_EQ(cCommonDialog().CustomColor(15), Rgb(9, 9, 9));
}

}  // namespace
}  // namespace ornavo::testing
