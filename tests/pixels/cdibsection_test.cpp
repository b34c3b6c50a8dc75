// SPDX-License-Identifier: MIT
#include "pixels/cdibsection.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/failure_number.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

/// A picture of greys, given from the bottom row up.
cDIBSection Greys(int width, int height, const Bytes& levels) {
    cDIBSection picture;
    EXPECT_TRUE(picture.Create(width, height));
    for (int i = 0; i < width * height; ++i)
        std::fill_n(picture.ScanLine(i / width) + i % width * 3, 3, static_cast<std::uint8_t>(levels[i]));
    return picture;
}

/// The levels of a grey picture; -1 where it isn't grey.
Bytes LevelsOf(const cDIBSection& picture) {
    Bytes levels;
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x) {
            const std::uint8_t* pixel = picture.ScanLine(y) + x * 3;
            levels.push_back(pixel[0] == pixel[1] && pixel[1] == pixel[2] ? pixel[0] : -1);
        }
    return levels;
}

TEST(DIBSection, RowsArePadded) {
    cDIBSection picture;
    for (const auto& [width, stride] : {std::pair{1, 4}, {2, 8}, {3, 12}, {4, 12}, {5, 16}, {10, 32}}) {
        ASSERT_TRUE(picture.Create(width, 7));
        EXPECT_EQ(picture.BytesPerScanLine(), stride);
        EXPECT_EQ(picture.ScanLine(6) - picture.DIBSectionBitsPtr(), 6 * stride);
    }
}

TEST(DIBSection, RefusedSizesLeaveNoPicture) {
    constexpr int Most = std::numeric_limits<int>::max();
    const std::pair<int, int> sizes[] = {{0, 1},       {1, 0},    {-4, 4},           {4, -4},
                                         {Most, Most}, {Most, 1}, {1, Most / 4 + 1}, {30000, 30000}};
    for (const auto& [width, height] : sizes) {
        cDIBSection picture = Greys(2, 2, {1, 2, 3, 4});
        EXPECT_FALSE(picture.Create(width, height)) << width << 'x' << height;
        EXPECT_EQ((Bytes{picture.Width(), picture.Height(), picture.BytesPerScanLine()}), Bytes(3, 0));
        EXPECT_EQ(FailureNumber([&, w = width, h = height] { Greys(2, 2, {1, 2, 3, 4}).Resample(h, w); }), 7);
    }
}

TEST(DIBSection, TakesAPictureFromTheTop) {
    const std::uint32_t words[] = {0xff102030, 0x00405060, 7, 0x12708090, 0xffa0b0c0, 7};
    cDIBSection picture;
    ASSERT_TRUE(picture.CreateFromPicture(reinterpret_cast<const std::uint8_t*>(words), 2, 2, 12));
    const std::uint8_t* bits = picture.DIBSectionBitsPtr();
    EXPECT_EQ(Bytes(bits, bits + 16),
              (Bytes{0x90, 0x80, 0x70, 0xc0, 0xb0, 0xa0, 0, 0, 0x30, 0x20, 0x10, 0x60, 0x50, 0x40, 0, 0}));
}

TEST(DIBSection, Resamples) {
    const struct {
        int width, height, newWidth, newHeight;
        Bytes from, to;
    } cases[] = {
        {2, 1, 4, 1, {0, 100}, {0, 25, 50, 75}},
        {1, 2, 1, 4, {0, 100}, {0, 25, 50, 75}},
        {1, 1, 3, 2, {42}, {42, 42, 42, 42, 42, 42}},
        {4, 1, 2, 1, {0, 10, 20, 90}, {0, 15}},  // 1.5 columns a step
        {2, 1, 2, 2, {2, 3}, {2, 2, 2, 2}},      // 2.5 to the even
        {2, 1, 2, 2, {3, 4}, {3, 4, 3, 4}},      // 3.5 to the even
        // First along y, rounded, then along x.
        {2, 2, 4, 4, {0, 1, 1, 2}, {0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 1, 2, 1, 1, 2, 2}},
        {2, 2, 2, 2, {9, 8, 7, 6}, {9, 8, 7, 6}},
    };
    for (const auto& c : cases) {
        const cDIBSection result = Greys(c.width, c.height, c.from).Resample(c.newHeight, c.newWidth);
        EXPECT_EQ(result.Width(), c.newWidth);
        EXPECT_EQ(LevelsOf(result), c.to) << c.width << 'x' << c.height << " to " << c.newWidth;
    }
}

TEST(DIBSection, SavesWithLongHeadersOrNotAtAll) {
    const TemporaryFolder folder;
    cDIBSection picture;
    picture.Create(10, 10);
    picture.RandomiseBits(3);
    const std::filesystem::path path = folder.Write("a.bmp", "old");
    picture.SavePicture(path);
    const std::string bytes = TemporaryFolder::Read(path);
    ASSERT_EQ(bytes.size(), 378u);
    const auto* start = reinterpret_cast<const std::uint8_t*>(bytes.data());
    EXPECT_EQ(Bytes(start, start + 38),
              (Bytes{'B', 'M', 0x7a, 1, 0,    0, 0, 0, 0,  0, 58, 0, 0, 0,         // file
                     40,  0,   0,    0, 10,   0, 0, 0, 10, 0, 0,  0, 1, 0, 24, 0,  // size, planes, depth
                     0,   0,   0,    0, 0x40, 1, 0, 0}));                          // bytes
    EXPECT_EQ(bytes.substr(38, 20), std::string(20, '\0')) << "resolution, palette";
    EXPECT_EQ(bytes.substr(58), std::string(reinterpret_cast<const char*>(picture.DIBSectionBitsPtr()), 320));
    EXPECT_EQ(FailureNumber([&] { cDIBSection().SavePicture(folder / "empty.bmp"); }), 5);
    EXPECT_EQ(FailureNumber([&] { cDIBSection().Resample(2, 2); }), 5);
    const Failure failure = FailureOf([&] { picture.SavePicture(folder / "gone/a.bmp"); });
    EXPECT_EQ(failure.source(), "Ornavo.cDIBSection");
    EXPECT_NE(failure.description().find("a.bmp"), std::string::npos);
    EXPECT_EQ(folder.Entries(), 1u);
}

}  // namespace
}  // namespace ornavo
