// SPDX-License-Identifier: MIT
// The installed programs and what a desktop needs of them.
#include <gtest/gtest.h>

#include <cstdlib>

#include "project/own_folder.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

TEST(Install, PutsProgramsSamplesAndDesktopFilesIntoOneTree) {
    const TemporaryFolder tree;
    const std::string command = "DESTDIR='" + tree.place().string() +
                                "' cmake --install '" ORNAVO_BINARY_DIR "' --prefix /usr >'" +
                                (tree.place() / "log").string() + "' 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0) << tree.Read(tree / "log");
    for (const char* file :
         {"bin/ornavo", "bin/ornavo-cli", "share/applications/ornavo.desktop",
          "share/metainfo/ornavo.metainfo.xml", "share/icons/hicolor/scalable/apps/ornavo.svg",
          "share/icons/hicolor/16x16/apps/ornavo.png", "share/icons/hicolor/128x128/apps/ornavo.png"})
        EXPECT_TRUE(std::filesystem::is_regular_file(tree.place() / "usr" / file)) << file;
    BringSamples(SampleFolder(tree.place() / "usr/bin"), tree.place() / "own");
    for (const char* sample : {"Aurora", "Classic"})
        EXPECT_TRUE(std::filesystem::exists(tree.place() / "own/Skins" / sample / "SkinSettings.xml"))
            << sample;
    EXPECT_FALSE(std::filesystem::exists(tree.place() / "usr/share/ornavo/skins/art"));
}

}  // namespace
}  // namespace ornavo
