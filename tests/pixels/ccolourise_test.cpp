// SPDX-License-Identifier: MIT
#include "pixels/ccolourise.h"

#include <gtest/gtest.h>

#include <array>

#include "pixels/mhlsrgb.h"
#include "support/failure_number.h"

namespace ornavo {
namespace {

using Rgb = std::array<int, 3>;
using Bytes = std::vector<int>;

cDIBSection Made(int width, int height, std::uint32_t seed = 1) {
    cDIBSection picture;
    EXPECT_TRUE(picture.Create(width, height));
    picture.RandomiseBits(seed);
    return picture;
}

Bytes BytesOf(const cDIBSection& picture) {
    const std::uint8_t* bits = picture.DIBSectionBitsPtr();
    return Bytes(bits, bits + std::ptrdiff_t{picture.BytesPerScanLine()} * picture.Height());
}

void Fill(cDIBSection& picture, std::uint8_t byte) {
    std::fill_n(picture.DIBSectionBitsPtr(), picture.BytesPerScanLine() * picture.Height(), byte);
}

cColourise Engine(int hue, int saturation) {
    cColourise engine;
    engine.Hue = hue;
    engine.Saturation = saturation;
    return engine;
}

TEST(Hls, OfChannels) {
    struct Case {
        Rgb rgb;
        float H, S, L;
    };
    // Red wins over green and green over blue; magenta is -1 and not 5.
    const Case cases[] = {{{255, 255, 0}, 1, 1, 0.5f},   {{0, 255, 255}, 3, 1, 0.5f},
                          {{255, 0, 255}, -1, 1, 0.5f},  {{0, 0, 255}, 4, 1, 0.5f},
                          {{255, 255, 255}, 0, 0, 1},    {{51, 51, 51}, 0, 0, 0.2f},
                          {{102, 51, 0}, 0.5f, 1, 0.2f}, {{51, 153, 102}, 2.5f, 0.5f, 0.4f}};
    for (const Case& c : cases) {
        float H, S, L;
        RGBToHLS(c.rgb[0], c.rgb[1], c.rgb[2], H, S, L);
        EXPECT_FLOAT_EQ(H, c.H) << c.rgb[0] << ' ' << c.rgb[1] << ' ' << c.rgb[2];
        EXPECT_FLOAT_EQ(S, c.S);
        EXPECT_FLOAT_EQ(L, c.L);
        std::int32_t r, g, b;
        HLSToRGB(H, S, L, r, g, b);
        EXPECT_EQ((Rgb{r, g, b}), c.rgb);
    }
}

TEST(Colourise, KnownColours) {
    struct Case {
        int hue, saturation;
        Rgb from, to;
    };
    // One per sixth of the circle and the ends of the scale; the ones without saturation round what is nearly
    // a tie, and the last four are two pairs of pixels whose sums agree and whose colours do not.
    const Case cases[] = {
        {43, 255, {255, 0, 0}, {255, 3, 0}},
        {0, 255, {255, 0, 0}, {255, 0, 255}},
        {255, 255, {0, 255, 0}, {255, 0, 255}},
        {20, 100, {10, 200, 30}, {146, 64, 107}},
        {110, 200, {1, 2, 3}, {2, 4, 0}},
        {140, 77, {250, 240, 3}, {88, 165, 111}},
        {190, 255, {90, 90, 91}, {0, 96, 181}},
        {240, 30, {255, 254, 0}, {132, 113, 142}},
        {7, 0, {0, 1, 0}, {1, 1, 1}},
        {100, 200, {26, 25, 25}, {31, 46, 5}},
        {100, 200, {19, 30, 32}, {31, 46, 6}},
        {100, 0, {129, 128, 128}, {129, 129, 129}},
        {100, 0, {130, 127, 127}, {128, 128, 128}},
    };
    for (const Case& c : cases) {
        cDIBSection picture = Made(1, 1);
        std::uint8_t* bits = picture.DIBSectionBitsPtr();
        for (int channel = 0; channel < 3; ++channel)
            bits[2 - channel] = static_cast<std::uint8_t>(c.from[channel]);
        Engine(c.hue, c.saturation).Process(picture, picture);
        EXPECT_EQ((Rgb{bits[2], bits[1], bits[0]}), c.to)
            << "hue " << c.hue << " saturation " << c.saturation << " of " << c.from[0] << ' ' << c.from[1];
    }
}

/// Every pair of greatest and least channel, at all places that the two can have in a pixel.
cDIBSection AllPairs() {
    cDIBSection picture = Made(256, 256);
    for (int a = 0; a < 256; ++a)
        for (int b = 0; b < 256; ++b) {
            std::uint8_t* pixel = picture.ScanLine(a) + b * 3;
            const int order = (a + b) % 3;
            pixel[order] = static_cast<std::uint8_t>(a);
            pixel[(order + 1) % 3] = static_cast<std::uint8_t>(b);
            pixel[(order + 2) % 3] = static_cast<std::uint8_t>((a * 3 + b) / 4);
        }
    return picture;
}

TEST(Colourise, FastAsTheRule) {
    const cDIBSection source = AllPairs();
    cDIBSection fast = source, literal = source;
    cColourise engine;  // one for all, so that a step follows another
    const std::array<int, 2> settings[] = {{0, 0},    {0, 255},  {255, 255}, {42, 254},  {43, 1},
                                           {85, 128}, {127, 51}, {128, 204}, {170, 100}, {213, 253},
                                           {213, 3},  {254, 85}, {254, 85},  {100, 100}, {7, 200}};
    for (const auto& [hue, saturation] : settings) {
        engine.Hue = hue;
        engine.Saturation = saturation;
        engine.Process(source, fast);
        engine.ProcessByRule(source, literal);
        EXPECT_TRUE(BytesOf(fast) == BytesOf(literal)) << "hue " << hue << " saturation " << saturation;
    }
}

TEST(Colourise, EveryWidthInPlaceAndBeside) {
    for (int width = 1; width < 140; ++width) {
        cColourise engine = Engine(width, 150);
        const cDIBSection source = Made(width, 3, width);
        cDIBSection literal = source, fast = source, inPlace = source;
        Fill(fast, 0x5a);
        Fill(literal, 0x5a);
        engine.Process(source, fast);
        engine.ProcessByRule(source, literal);
        EXPECT_EQ(BytesOf(fast), BytesOf(literal)) << width;
        engine.Process(inPlace, inPlace);
        for (int y = 0; y < 3; ++y)
            EXPECT_TRUE(std::equal(fast.ScanLine(y), fast.ScanLine(y) + width * 3, inPlace.ScanLine(y)));
    }
}

TEST(Colourise, PaddingOfThreeBytesIsAPixel) {
    for (const auto& [width, last] : {std::pair{1, 0x20}, {2, 0x20}, {3, 0x40}}) {
        cDIBSection picture = Made(width, 1);
        Fill(picture, 0x20);
        Engine(0, 255).Process(picture, picture);
        const Bytes bytes = BytesOf(picture);
        EXPECT_EQ(bytes.front(), 0x40);
        EXPECT_EQ(bytes.back(), last) << width;
    }
}

/// How many pixels of a picture filled with 0x5a were written.
int Written(const cDIBSection& picture) {
    const Bytes bytes = BytesOf(picture);
    return static_cast<int>((bytes.size() - std::count(bytes.begin(), bytes.end(), 0x5a)) / 3);
}

TEST(Colourise, FailsPartWay) {
    struct Case {
        int width, height, written;
    };
    // Columns come first: too few rows end it within the first column, too few columns after the last that
    // fits.
    for (const Case& c : {Case{8, 5, 5}, Case{4, 6, 4 * 6}, Case{4, 2, 2}, Case{12, 9, 8 * 6}}) {
        cDIBSection source = Made(8, 6), dest = Made(c.width, c.height);
        Fill(source, 0x80);
        Fill(dest, 0x5a);
        const bool fits = c.width >= 8 && c.height >= 6;
        EXPECT_EQ(FailureNumber([&] { Engine(0, 0).Process(source, dest); }), fits ? 0 : 9) << c.width;
        EXPECT_EQ(Written(dest), c.written) << c.width << 'x' << c.height;
    }
    cDIBSection nothing, some = Made(2, 2);
    EXPECT_EQ(FailureNumber([&] { Engine(0, 0).Process(some, nothing); }), 9);
    EXPECT_EQ(FailureNumber([&] { Engine(0, 0).Process(nothing, some); }), 0);
}

TEST(Colourise, SettingsBeyondTheScale) {
    cDIBSection black = Made(2, 2), grey = black;
    Fill(black, 0);
    Fill(grey, 0x80);
    for (const std::array<int, 2> setting : {std::array{300, 255}, {0, 600}, {-1'000'000'000, 200}}) {
        cColourise engine = Engine(setting[0], setting[1]);
        EXPECT_EQ(FailureNumber([&] { engine.Process(grey, grey); }), 6) << setting[0];
        EXPECT_EQ(FailureNumber([&] { engine.Process(black, black); }), 0);  // black stays black
    }
    Engine(512, 0).Process(grey, grey);
    EXPECT_EQ(BytesOf(grey), Bytes(16, 0x80));
}

}  // namespace
}  // namespace ornavo
