// SPDX-License-Identifier: MIT
#include "pixels/ccolourise.h"

#include <gtest/gtest.h>

#include <array>

#include "pixels/bands.h"
#include "pixels/mhlsrgb.h"
#include "support/failure_number.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

using Rgb = std::array<int, 3>;
using ByteList = std::vector<int>;

ByteList BytesOf(const cDIBSection& picture) {
    const std::uint8_t* bits = picture.DIBSectionBitsPtr();
    return ByteList(bits, bits + std::ptrdiff_t{picture.BytesPerScanLine()} * picture.Height());
}

cDIBSection Filled(int width, int height, std::uint8_t byte) {
    cDIBSection picture;
    EXPECT_TRUE(picture.Create(width, height));
    std::fill_n(picture.DIBSectionBitsPtr(), picture.BytesPerScanLine() * height, byte);
    return picture;
}

int FailureOfProcess(int hue, int saturation, const cDIBSection& source, cDIBSection& dest) {
    cColourise engine;
    engine.Hue = hue;
    engine.Saturation = saturation;
    return FailureNumber([&] { engine.Process(source, dest); });
}

/// A picture of greys, given from the bottom row up.
cDIBSection Greys(int width, int height, const ByteList& levels) {
    cDIBSection picture;
    EXPECT_TRUE(picture.Create(width, height));
    for (int i = 0; i < width * height; ++i)
        std::fill_n(picture.ScanLine(i / width) + i % width * 3, 3, static_cast<std::uint8_t>(levels[i]));
    return picture;
}

TEST(DIBSection, RowsArePaddedAndRefusedSizesLeaveNoPicture) {
    cDIBSection picture;
    for (const auto& [width, stride] : {std::pair{1, 4}, {3, 12}, {4, 12}, {5, 16}}) {
        ASSERT_TRUE(picture.Create(width, 7));
        EXPECT_EQ(picture.BytesPerScanLine(), stride);
        EXPECT_EQ(picture.ScanLine(6) - picture.DIBSectionBitsPtr(), 6 * stride);
    }
    for (const auto& [width, height] : {std::pair{0, 1}, {1, 0}, {-4, 4}, {4, -4}, {30000, 30000}}) {
        picture = Filled(2, 2, 1);
        EXPECT_EQ(FailureNumber([&, w = width, h = height] { picture.Resample(h, w); }), 7);
        EXPECT_FALSE(picture.Create(width, height)) << width << 'x' << height;
        EXPECT_EQ((ByteList{picture.Width(), picture.Height(), picture.BytesPerScanLine()}), ByteList(3, 0));
    }
}

TEST(DIBSection, TakesAPictureFromTheTop) {
    const std::uint32_t words[] = {0xff102030, 0x00405060, 7, 0x12708090, 0xffa0b0c0, 7};
    cDIBSection picture;
    ASSERT_TRUE(picture.CreateFromPicture(reinterpret_cast<const std::uint8_t*>(words), 2, 2, 12));
    EXPECT_EQ(BytesOf(picture),
              (ByteList{0x90, 0x80, 0x70, 0xc0, 0xb0, 0xa0, 0, 0, 0x30, 0x20, 0x10, 0x60, 0x50, 0x40, 0, 0}));
}

TEST(DIBSection, Resamples) {
    const struct {
        int width, height, newWidth, newHeight;
        ByteList from, to;
    } cases[] = {
        {2, 1, 4, 1, {0, 100}, {0, 25, 50, 75}},
        {1, 2, 1, 4, {0, 100}, {0, 25, 50, 75}},
        {4, 1, 2, 1, {0, 10, 20, 90}, {0, 15}},  // 1.5 columns a step
        {2, 1, 2, 2, {2, 3}, {2, 2, 2, 2}},      // 2.5 to the even
        {2, 1, 2, 2, {3, 4}, {3, 4, 3, 4}},      // 3.5 to the even
        // First along y, rounded, then along x.
        {2, 2, 4, 4, {0, 1, 1, 2}, {0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 1, 2, 1, 1, 2, 2}},
    };
    for (const auto& c : cases) {
        const cDIBSection result = Greys(c.width, c.height, c.from).Resample(c.newHeight, c.newWidth);
        EXPECT_EQ(BytesOf(result), BytesOf(Greys(c.newWidth, c.newHeight, c.to))) << &c - cases;
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
    EXPECT_EQ(ByteList(bytes.begin(), bytes.begin() + 38),
              (ByteList{'B', 'M', 'z', 1, 0,   0, 0, 0, 0,  0, 58, 0, 0, 0,         // file
                        40,  0,   0,   0, 10,  0, 0, 0, 10, 0, 0,  0, 1, 0, 24, 0,  // size, planes, depth
                        0,   0,   0,   0, '@', 1, 0, 0}));                          // bytes
    EXPECT_EQ(bytes.substr(38, 20), std::string(20, '\0')) << "resolution, palette";
    EXPECT_EQ(bytes.substr(58), std::string(reinterpret_cast<const char*>(picture.DIBSectionBitsPtr()), 320));
    EXPECT_EQ(FailureNumber([&] { cDIBSection().SavePicture(folder / "empty.bmp"); }), 5);
}

TEST(Hls, OfChannels) {
    // Red wins over green and green over blue; magenta is -1 and not 5.
    const std::pair<Rgb, std::array<float, 3>> cases[] = {
        {{255, 255, 0}, {1, 1, 0.5f}},   {{0, 255, 255}, {3, 1, 0.5f}},       {{255, 0, 255}, {-1, 1, 0.5f}},
        {{0, 0, 255}, {4, 1, 0.5f}},     {{255, 255, 255}, {0, 0, 1}},        {{51, 51, 51}, {0, 0, 0.2f}},
        {{102, 51, 0}, {0.5f, 1, 0.2f}}, {{51, 153, 102}, {2.5f, 0.5f, 0.4f}}};
    for (const auto& [rgb, hsl] : cases) {
        std::array<float, 3> got;
        RGBToHLS(rgb[0], rgb[1], rgb[2], got[0], got[1], got[2]);
        EXPECT_EQ(got, hsl);
        Rgb back;
        HLSToRGB(got[0], got[1], got[2], back[0], back[1], back[2]);
        EXPECT_EQ(back, rgb);
    }
}

TEST(Colourise, KnownColours) {
    const struct {
        int hue, saturation;
        std::uint32_t from, to;
    } cases[] = {
        // Those without saturation round what is nearly a tie; the last four are two pairs of pixels whose
        // sums agree and whose colours do not.
        {43, 255, 0xff0000, 0xff0300},  {0, 255, 0xff0000, 0xff00ff}, {20, 100, 0x0ac81e, 0x92406b},
        {190, 255, 0x5a5a5b, 0x0060b5}, {7, 0, 0x000100, 0x010101},   {100, 200, 0x1a1919, 0x1f2e05},
        {100, 200, 0x131e20, 0x1f2e06}, {100, 0, 0x818080, 0x818181}, {100, 0, 0x827f7f, 0x808080},
    };
    for (const auto& c : cases) {
        cDIBSection picture;
        picture.CreateFromPicture(reinterpret_cast<const std::uint8_t*>(&c.from), 1, 1, 4);
        FailureOfProcess(c.hue, c.saturation, picture, picture);
        const ByteList to = BytesOf(picture);
        EXPECT_EQ(to[2] << 16 | to[1] << 8 | to[0], c.to) << &c - cases;
    }
    cDIBSection padded = Filled(3, 1, 0x20);
    FailureOfProcess(0, 255, padded, padded);
    EXPECT_EQ(BytesOf(padded).back(), 0x40) << "padding of three bytes is a pixel";
}

TEST(Colourise, FastAsTheRule) {
    // Every pair of greatest and least channel, at all places that the two can have in a pixel.
    cDIBSection source = Filled(256, 256, 0);
    for (int a = 0; a < 256; ++a)
        for (int b = 0; b < 256; ++b) {
            std::uint8_t* pixel = source.ScanLine(a) + b * 3;
            const int order = (a + b) % 3;
            pixel[order] = static_cast<std::uint8_t>(a);
            pixel[(order + 1) % 3] = static_cast<std::uint8_t>(b);
            pixel[(order + 2) % 3] = static_cast<std::uint8_t>((a * 3 + b) / 4);
        }
    cDIBSection fast = source, literal = source;
    cColourise engine;  // one for all, so that a step follows another
    const std::pair<int, int> settings[] = {{0, 0},   {0, 255},  {255, 255}, {42, 254},
                                            {43, 1},  {85, 128}, {127, 51},  {170, 100},
                                            {213, 3}, {254, 85}, {254, 85},  {100, 100}};
    for (const auto& [hue, saturation] : settings) {
        engine.Hue = hue;
        engine.Saturation = saturation;
        engine.Process(source, fast);
        engine.ProcessByRule(source, literal);
        EXPECT_TRUE(BytesOf(fast) == BytesOf(literal)) << "hue " << hue << " saturation " << saturation;
    }
    std::vector<std::pair<int, int>> sizes = {{1021, 1100}, {1024, 1100}};  // divided among the processors
    for (int width = 1; width < 140; ++width) sizes.emplace_back(width, 3);
    for (const auto& [width, height] : sizes) {
        literal = Filled(width, height, 0);
        literal.RandomiseBits(static_cast<std::uint32_t>(width));
        fast = literal;
        engine.Process(fast, fast);
        engine.ProcessByRule(literal, literal);
        EXPECT_TRUE(BytesOf(fast) == BytesOf(literal)) << width;
    }
}

TEST(Bands, CoverEachRowOnce) {
    for (const auto& [rows, workers] : {std::pair{0, 2}, {1, 4}, {7, 3}, {5, 0}, {4, 4}}) {
        ByteList calls(static_cast<std::size_t>(rows));
        InBands(rows, workers, [&](int first, int end) {
            for (int row = first; row < end; ++row) ++calls[row];
        });
        EXPECT_EQ(calls, ByteList(calls.size(), 1)) << workers;
    }
}

TEST(Colourise, FailsPartWayAndBeyondTheScale) {
    // Columns come first: too few rows end it within the first column, too few columns after the last.
    const struct {
        int width, height, failure, written;
    } cases[] = {{8, 5, 9, 5}, {4, 6, 9, 4 * 6}, {4, 2, 9, 2}, {12, 9, 0, 8 * 6}};
    for (const auto& c : cases) {
        cDIBSection dest = Filled(c.width, c.height, 0x5a);
        EXPECT_EQ(FailureOfProcess(0, 0, Filled(8, 6, 0x80), dest), c.failure) << c.width;
        const ByteList bytes = BytesOf(dest);
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), 0x80), c.written * 3);
    }
    cDIBSection black = Filled(2, 2, 0), grey = Filled(2, 2, 0x80);
    for (const auto& [hue, saturation] : {std::pair{300, 255}, {0, 600}, {-1'000'000'000, 200}}) {
        EXPECT_EQ(FailureOfProcess(hue, saturation, grey, grey), 6) << hue;
        EXPECT_EQ(FailureOfProcess(hue, saturation, black, black), 0) << "black stays black";
    }
}

}  // namespace
}  // namespace ornavo
