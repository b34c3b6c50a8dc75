// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "house/house.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

const Plan OurPlan = {
    {"base", {}},
    {"document", {"base"}},
    {"pixels", {"base"}},
    {"platform", {"base"}},
    {"render", {"platform", "document", "base"}},
    {"playback", {"render", "platform", "document", "base"}},
    {"dialogs", {"platform", "base"}},
    {"editor", {"platform"}},
    {"project", {"editor", "dialogs", "platform", "document", "base"}},
    {"canvas", {"editor", "render", "platform", "document", "base"}},
    {"preview", {"playback", "editor", "render", "platform", "document", "base"}},
    {"properties", {"editor", "dialogs", "render", "platform", "document", "base"}},
    {"picture", {"editor", "render", "platform", "pixels", "document", "base"}},
    {"magnifier", {"editor", "platform", "base"}},
    {"app",
     {"project", "canvas", "properties", "preview", "magnifier", "picture", "dialogs", "editor", "platform",
      "document", "base"}},
    {"cli", {"playback", "render", "platform", "pixels", "document", "base"}},
};

std::string Listed(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) list += "\n  " + text;
    return list;
}

TEST(House, NobodyLooksUp) {
    const House house(ORNAVO_SOURCE_DIR "/src");
    ASSERT_GT(house.Files(), 20u);
    const auto wrong = house.WaysUp(OurPlan);
    EXPECT_TRUE(wrong.empty()) << Listed(wrong);
    const auto windows = house.WindowHeadersIn({"base", "document", "pixels"});
    EXPECT_TRUE(windows.empty()) << "These know no windows:" << Listed(windows);
}

TEST(House, HasNoRing) {
    const House house(ORNAVO_SOURCE_DIR "/src");
    const auto ring = house.Ring();
    EXPECT_TRUE(ring.empty()) << Listed(ring);
}

TEST(House, FilesStayShort) {
    for (const char* folder : {"/src", "/tests"}) {
        const auto files = House(std::string(ORNAVO_SOURCE_DIR) + folder).LongerThan(500);
        EXPECT_TRUE(files.empty()) << Listed(files);
    }
}

TEST(Inspection, FindsWhatIsWrong) {
    const TemporaryFolder tree;
    tree.Write("low/a.h", "#include <string>\n#include \"low/b.h\"\n");
    tree.Write("low/b.h", "#include \"high/up.h\"  // a way up\n");
    tree.Write("high/up.h", "  #  include \"low/c.h\"\n// #include \"low/a.h\"\n");
    tree.Write("low/c.h", "#include \"low/a.h\"\n#include <QWidget>\n#include \"low/gone.h\"\n");
    tree.Write("side/s.cpp", "#include \"high/up.h\"\n");
    tree.Write("high/long.cpp", std::string(501, '\n'));
    tree.Write("high/fits.cpp", std::string(500, '\n'));
    const House house(tree.place());
    using Texts = std::vector<std::string>;
    EXPECT_EQ(
        house.WaysUp({{"low", {}}, {"high", {"low"}}}),
        (Texts{"side/s.cpp lies in no room of the plan", "low/b.h must not include high/up.h",
               "low/c.h includes low/gone.h, which is not there", "side/s.cpp must not include high/up.h"}));
    EXPECT_EQ(house.Ring(), (Texts{"high/up.h", "low/c.h", "low/a.h", "low/b.h", "high/up.h"}));
    EXPECT_EQ(house.WindowHeadersIn({"low"}), Texts{"low/c.h"});
    EXPECT_TRUE(house.WindowHeadersIn({"high"}).empty());
    EXPECT_EQ(house.LongerThan(500), Texts{"high/long.cpp has 501 lines"});
}

}  // namespace
}  // namespace ornavo
