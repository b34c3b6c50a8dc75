// SPDX-License-Identifier: MIT
#include "pixels/ccolourise.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

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

void Set(cColourise& engine, int hue, int saturation) {
    engine.Hue = hue;
    engine.Saturation = saturation;
}

int FailureOfProcess(int hue, int saturation, const cDIBSection& source, cDIBSection& dest) {
    cColourise engine;
    Set(engine, hue, saturation);
    return FailureNumber([&] { engine.Process(source, dest); });
}

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
    EXPECT_EQ(BytesOf(picture),
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

TEST(Hls, OfChannels) {
    // Red wins over green and green over blue; magenta is -1 and not 5.
    const std::pair<Rgb, std::array<float, 3>> cases[] = {
        {{255, 255, 0}, {1, 1, 0.5f}},   {{0, 255, 255}, {3, 1, 0.5f}},       {{255, 0, 255}, {-1, 1, 0.5f}},
        {{0, 0, 255}, {4, 1, 0.5f}},     {{255, 255, 255}, {0, 0, 1}},        {{51, 51, 51}, {0, 0, 0.2f}},
        {{102, 51, 0}, {0.5f, 1, 0.2f}}, {{51, 153, 102}, {2.5f, 0.5f, 0.4f}}};
    for (const auto& [rgb, hsl] : cases) {
        float H, S, L;
        RGBToHLS(rgb[0], rgb[1], rgb[2], H, S, L);
        EXPECT_FLOAT_EQ(H, hsl[0]) << rgb[0] << ' ' << rgb[1] << ' ' << rgb[2];
        EXPECT_FLOAT_EQ(S, hsl[1]);
        EXPECT_FLOAT_EQ(L, hsl[2]);
        std::int32_t r, g, b;
        HLSToRGB(H, S, L, r, g, b);
        EXPECT_EQ((Rgb{r, g, b}), rgb);
    }
}

TEST(Colourise, KnownColours) {
    const struct {
        int hue, saturation;
        Rgb from, to;
    } cases[] = {
        // Those without saturation round what is nearly a tie; the last four are two pairs of pixels whose
        // sums agree and whose colours do not.
        {43, 255, {255, 0, 0}, {255, 3, 0}},
        {0, 255, {255, 0, 0}, {255, 0, 255}},
        {20, 100, {10, 200, 30}, {146, 64, 107}},
        {190, 255, {90, 90, 91}, {0, 96, 181}},
        {7, 0, {0, 1, 0}, {1, 1, 1}},
        {100, 200, {26, 25, 25}, {31, 46, 5}},
        {100, 200, {19, 30, 32}, {31, 46, 6}},
        {100, 0, {129, 128, 128}, {129, 129, 129}},
        {100, 0, {130, 127, 127}, {128, 128, 128}},
    };
    for (const auto& c : cases) {
        cDIBSection picture = Filled(1, 1, 0);
        std::uint8_t* bits = picture.DIBSectionBitsPtr();
        for (int channel = 0; channel < 3; ++channel)
            bits[2 - channel] = static_cast<std::uint8_t>(c.from[channel]);
        FailureOfProcess(c.hue, c.saturation, picture, picture);
        EXPECT_EQ((Rgb{bits[2], bits[1], bits[0]}), c.to)
            << "hue " << c.hue << " saturation " << c.saturation << " of " << c.from[0] << ' ' << c.from[1];
    }
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
    const std::pair<int, int> settings[] = {{0, 0},    {0, 255},  {255, 255}, {42, 254},  {43, 1},
                                            {85, 128}, {127, 51}, {128, 204}, {170, 100}, {213, 253},
                                            {213, 3},  {254, 85}, {254, 85},  {100, 100}};
    for (const auto& [hue, saturation] : settings) {
        Set(engine, hue, saturation);
        engine.Process(source, fast);
        engine.ProcessByRule(source, literal);
        EXPECT_TRUE(BytesOf(fast) == BytesOf(literal)) << "hue " << hue << " saturation " << saturation;
    }
}

TEST(Colourise, EveryWidthInPlaceAndBeside) {
    for (int width = 1; width < 140; ++width) {
        cColourise engine;
        Set(engine, width, 150);
        cDIBSection source = Filled(width, 3, 0);
        source.RandomiseBits(static_cast<std::uint32_t>(width));
        cDIBSection literal = Filled(width, 3, 0x5a), fast = literal, inPlace = source;
        engine.Process(source, fast);
        engine.ProcessByRule(source, literal);
        EXPECT_EQ(BytesOf(fast), BytesOf(literal)) << width;
        engine.Process(inPlace, inPlace);
        for (int y = 0; y < 3; ++y)
            EXPECT_TRUE(std::equal(fast.ScanLine(y), fast.ScanLine(y) + width * 3, inPlace.ScanLine(y)));
    }
    // Padding of three bytes is a pixel.
    for (const auto& [width, last] : {std::pair{1, 0x20}, {2, 0x20}, {3, 0x40}}) {
        cDIBSection picture = Filled(width, 1, 0x20);
        FailureOfProcess(0, 255, picture, picture);
        EXPECT_EQ(BytesOf(picture).front(), 0x40);
        EXPECT_EQ(BytesOf(picture).back(), last) << width;
    }
}

TEST(Colourise, FailsPartWay) {
    const struct {
        int width, height, failure, written;
    } cases[] = {{8, 5, 9, 5}, {4, 6, 9, 4 * 6}, {4, 2, 9, 2}, {12, 9, 0, 8 * 6}};
    // Columns come first: too few rows end it within the first column, too few columns after the last that
    // fits.
    for (const auto& c : cases) {
        const cDIBSection source = Filled(8, 6, 0x80);
        cDIBSection dest = Filled(c.width, c.height, 0x5a);
        EXPECT_EQ(FailureOfProcess(0, 0, source, dest), c.failure) << c.width;
        const ByteList bytes = BytesOf(dest);
        EXPECT_EQ(static_cast<int>(bytes.size()) - std::count(bytes.begin(), bytes.end(), 0x5a),
                  c.written * 3);
    }
    cDIBSection nothing, some = Filled(2, 2, 1);
    EXPECT_EQ(FailureOfProcess(0, 0, some, nothing), 9);
    EXPECT_EQ(FailureOfProcess(0, 0, nothing, some), 0);
}

TEST(Colourise, SettingsBeyondTheScale) {
    cDIBSection black = Filled(2, 2, 0), grey = Filled(2, 2, 0x80);
    for (const auto& [hue, saturation] : {std::pair{300, 255}, {0, 600}, {-1'000'000'000, 200}}) {
        EXPECT_EQ(FailureOfProcess(hue, saturation, grey, grey), 6) << hue;
        EXPECT_EQ(FailureOfProcess(hue, saturation, black, black), 0) << "black stays black";
    }
    FailureOfProcess(512, 0, grey, grey);
    EXPECT_EQ(BytesOf(grey), ByteList(16, 0x80));
}

}  // namespace
}  // namespace ornavo
