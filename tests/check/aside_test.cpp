// SPDX-License-Identifier: MIT
// What works on the side leaves everything as it was.
#include <QImage>

#include "base/paths.h"
#include "check/check.h"
#include "document/current_skin.h"
#include "platform/prompts.h"
#include "render/layout_picture.h"
#include "render/target.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

TEST(Aside, NothingOfTheSkinChanges) {
    const TemporaryFolder folder;
    std::filesystem::copy(std::filesystem::path(ORNAVO_SOURCE_DIR) / "skins/Aurora", folder / "Aurora");
    const dbSkinRef skin = objSkin = std::make_shared<dbSkin>();
    skin->SetBasePath(folder.place().string());
    skin->SkinName = "Aurora";
    ASSERT_TRUE(skin->LoadSkin());
    const dbLayoutRef layout = objCurrentLayout = TargetLayout = skin->dbLayouts->Item(1);
    const std::string bytes = skin->FileBytes();
    const auto files = folder.Files();
    const Frame frame = TargetFrame = {11, 12, 13, 14};
    CheckSkin(*skin);
    {
        LayoutPicture picture(*skin, skin->dbLayouts->Item(2)->Key, {700, 600}, View::Preview);
        EXPECT_EQ(picture.Shaped(true).size(), QSize(700, 600));
        EXPECT_EQ(picture.failures(), std::vector<std::string>());
        EXPECT_NE(objSkin, skin);
    }
    EXPECT_EQ(skin->FileBytes(), bytes);
    EXPECT_FALSE(skin->Dirty);
    EXPECT_EQ(std::tuple(objSkin, objCurrentLayout, TargetLayout), std::tuple(skin, layout, layout));
    EXPECT_EQ(TargetFrame.TargetWidth, frame.TargetWidth);
    EXPECT_EQ(folder.Files(), files);
    TargetLayout.reset();
}

}  // namespace
}  // namespace ornavo::testing
