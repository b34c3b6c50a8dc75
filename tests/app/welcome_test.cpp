// SPDX-License-Identifier: MIT
// The card of an empty canvas: the user's skins on it, and one of them opened by a click.
#include <sys/stat.h>

#include <QListWidget>
#include <filesystem>
#include <fstream>

#include "app/program_fixture.h"

namespace ornavo::testing {
namespace {

namespace fs = std::filesystem;

class WelcomeTest : public ProgramTest {
protected:
    /// A skin's folder with that text in its settings file, saved so many hours ago, and a picture.
    void Make(const std::string& name, std::string_view text, int hours, const char* picture = "",
              QColor colour = {}) const {
        const fs::path folder = root_ / "Skins" / name;
        fs::create_directories(folder);
        std::ofstream(folder / "SkinSettings.xml") << text;
        fs::last_write_time(folder / "SkinSettings.xml",
                            fs::file_time_type::clock::now() - std::chrono::hours(hours));
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(colour);
        if (!*picture) return;
        ASSERT_TRUE(image.save(QString::fromStdString((folder / picture).string())));
    }
    const fs::path root_ = folder_.path().toStdString();
};

TEST_F(WelcomeTest, ShowsTheNewestSkinsAndOpensOneByAClick) {
    constexpr std::string_view named =
        "<Skin>\n<SkinPrefs>\n<SkinPref>\n<Key>SP_PicPreview</Key>\n<Value>look.png</Value>\n</SkinPref>\n"
        "</SkinPrefs>\n<Layouts>\n<Layout>\n<Key>Party</Key>\n</Layout>\n</Layouts>\n</Skin>\n";
    for (int i = 0; i < 40; ++i) Make("Old" + std::to_string(i), "<Skin>\n</Skin>", 100 + i);
    Make("Third", "<Skin>\n<SkinPrefs>\n<Skin", 3, "Preview.BMP", Qt::blue);
    Make("Second", named, 2, "look.png", Qt::red);
    Make("First", "", 1, "preview.png");
    std::ofstream(root_ / "Skins/First/preview.png") << "no picture";
    fs::create_directories(root_ / "Skins/NoSkin");
    fs::create_directories(root_ / "Skins/Pipe");
    ASSERT_EQ(::mkfifo((root_ / "Skins/Pipe/SkinSettings.xml").c_str(), 0600), 0);

    Start("");
    auto* tiles = Main().findChild<QListWidget*>();
    ASSERT_NE(tiles, nullptr);
    EXPECT_EQ(tiles->count(), 0) << "the first picture of the window waits for none of them";
    const auto colour = [&](int row) {
        return tiles->grab(tiles->visualItemRect(tiles->item(row))).toImage().pixelColor(76, 40);
    };
    const auto filled = [&] { return tiles->count() > 2 && colour(2) == QColor(Qt::blue); };
    ASSERT_TRUE(QTest::qWaitFor(filled, 10000));
    ASSERT_EQ(tiles->count(), 24);
    for (const auto& [row, name] : {std::pair(0, "First"), {1, "Second"}, {2, "Third"}, {23, "Old20"}})
        EXPECT_EQ(tiles->item(row)->text(), name);
    EXPECT_EQ(colour(1), QColor(Qt::red));
    QTest::mouseClick(tiles->viewport(), Qt::LeftButton, {}, tiles->visualItemRect(tiles->item(1)).center());
    EXPECT_EQ(objSkin->SkinName, "Second");
    EXPECT_EQ(objCurrentLayout->Key, "Party");
    EXPECT_FALSE(tiles->isVisible());
}

}  // namespace
}  // namespace ornavo::testing
