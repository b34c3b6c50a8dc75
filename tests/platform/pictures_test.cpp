// SPDX-License-Identifier: MIT
#include "platform/pictures.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QLoggingCategory>
#include <chrono>

#include "platform/tile_movie.h"
#include "support/small_gif.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

using testing::Bytes;
using testing::SmallGif;

QImage Gradient(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x & 255, y & 255, (x * y) & 255));
    return image;
}

std::string Encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes.toStdString();
}

std::string With(std::string bytes, std::size_t at, std::initializer_list<int> values) {
    return bytes.replace(at, values.size(), Bytes(values));
}

/// The same JPEG whose frame header claims 65,500 x 65,500 pixels.
std::string HugeJpeg() {
    const std::string bytes = Encoded(Gradient(16, 16), "jpg");
    const std::size_t frame = bytes.find(Bytes({0xFF, 0xC0}));
    EXPECT_NE(frame, std::string::npos);
    return With(bytes, frame + 5, {0xFF, 0xDC, 0xFF, 0xDC});
}

class Pictures : public ::testing::Test {
protected:
    // Decoders may complain of what is broken.
    Pictures() { QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false")); }
    ~Pictures() override { QLoggingCategory::setFilterRules({}); }
    PictureRef Load(const std::string& bytes, std::string_view name = "picture") {
        return LoadPicture(folder.Write(std::to_string(++files) + std::string(name), bytes));
    }
    TemporaryFolder folder;
    int files = 0;
};

TEST_F(Pictures, EveryFormatIsKnownByItsContent) {
    const QImage image = Gradient(8, 8);
    for (const char* format : {"png", "bmp", "ppm"}) {
        const PictureRef picture = Load(Encoded(image, format), ".jpg");
        ASSERT_TRUE(picture) << format;
        EXPECT_EQ(picture->image, image) << format;
        EXPECT_EQ(picture->image.format(), QImage::Format_RGB32);
    }
    EXPECT_TRUE(Load(Encoded(image, "jpg"), ".bmp"));
    EXPECT_TRUE(Load(SmallGif(1), ".jpg"));
    QImage clear(2, 1, QImage::Format_ARGB32);
    clear.fill(0x80FF0000);
    const PictureRef picture = Load(Encoded(clear, "png"));
    EXPECT_EQ(picture->image.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(qAlpha(picture->image.pixel(0, 0)), 0x80);
}

TEST_F(Pictures, WhatIsTooLargeIsRefused) {
    const QImage image = Gradient(16, 16);
    EXPECT_FALSE(Load(With(Encoded(image, "bmp"), 18, {0xA0, 0x86, 1, 0, 0xA0, 0x86, 1, 0})));
    EXPECT_FALSE(Load(With(Encoded(image, "bmp"), 18, {0, 0, 0, 0x80, 0, 0, 0, 0x80})));
    EXPECT_FALSE(Load(SmallGif(1, 65000, 65000)));
    EXPECT_FALSE(Load(Encoded(QImage(16385, 1, QImage::Format_Mono), "png")));
    EXPECT_TRUE(Load(Encoded(QImage(1, 16384, QImage::Format_Mono), "png")));
    EXPECT_FALSE(Load(HugeJpeg()));
    EXPECT_FALSE(Load("P6 2000000000 2000000000 255 x"));
    EXPECT_FALSE(IsAnimatedGIF(folder.Write("large.gif", SmallGif(2, 65000, 65000))));
}

/// Each frame of a GIF is painted on the whole canvas, which only the header tells.
TEST_F(Pictures, ACanvasCountsWhereFramesAreSmaller) {
    const auto canvas = [](int frames, int width, int height) {
        return With(SmallGif(frames), 6, {width & 0xFF, width >> 8, height & 0xFF, height >> 8});
    };
    EXPECT_FALSE(Load(canvas(1, 8192, 8192)));
    EXPECT_TRUE(LoadThumbnail(folder.Write("tile.gif", canvas(1, 5000, 5000)), {10, 10}).isNull());
    EXPECT_FALSE(IsAnimatedGIF(folder.Write("large.gif", canvas(2, 8192, 8192))));
    EXPECT_FALSE(IsAnimatedGIF(folder.Write("long.gif", canvas(2, 16385, 1))));
    EXPECT_TRUE(IsAnimatedGIF(folder.Write("fits.gif", canvas(2, 1000, 1000))));
    const PictureMemory others = PictureMemory::Take(PicturePixelLimit),
                        more = PictureMemory::Take(PicturePixelLimit);
    const TileMovie movie(folder.Write("many.gif", canvas(2, 2500, 2500)), [] {});
    EXPECT_TRUE(movie.Frame().isNull()) << "beyond what all may have together";
}

TEST_F(Pictures, BrokenFilesGiveAPartOrNothing) {
    const QImage image = Gradient(64, 64);
    for (const std::string& whole :
         {Encoded(image, "png"), Encoded(image, "bmp"), Encoded(image, "jpg"), SmallGif(2)})
        for (std::size_t length = 0; length < whole.size();
             length += std::max<std::size_t>(1, whole.size() / 23)) {
            const PictureRef picture = Load(whole.substr(0, length));
            EXPECT_TRUE(!picture || (picture->image.width() <= 64 && picture->image.height() <= 64));
        }
    for (const char* text : {"", "GIF89a", "BM", "no picture", "\xFF\xD8\xFF", "<html></html>"})
        EXPECT_FALSE(Load(text));
}

TEST_F(Pictures, OnlyPlainFilesAreOpened) {
    const std::filesystem::path pipe = folder / "pipe.png";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(LoadPicture(pipe));
    EXPECT_FALSE(IsAnimatedGIF(pipe));
    EXPECT_FALSE(LoadPicture(folder.place()));
    EXPECT_FALSE(LoadPicture(folder / "missing.png"));
    EXPECT_FALSE(LoadPicture({}));
}

TEST_F(Pictures, AreDecodedOnceUntilTheFileChanges) {
    const std::filesystem::path path = folder.Write("a.png", Encoded(Gradient(4, 4), "png"));
    const Picture* first = LoadPicture(path).get();
    EXPECT_EQ(LoadPicture(path).get(), first);
    folder.Write("a.png", Encoded(Gradient(5, 4), "png"));
    const PictureRef second = LoadPicture(path);
    EXPECT_EQ(second->image.width(), 5);
    std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + std::chrono::seconds(2));
    EXPECT_NE(LoadPicture(path), second) << "another time of the same size";
}

TEST_F(Pictures, AllTogetherStayWithinTheirLimit) {
    const auto share = PicturePixelLimit;
    EXPECT_FALSE(PictureMemory::Take(share + 1));
    EXPECT_FALSE(PictureMemory::Take(0));
    PictureMemory first = PictureMemory::Take(share), second = PictureMemory::Take(share);
    ASSERT_TRUE(first && second);
    const PictureMemory rest = PictureMemory::Take(PictureByteLimit / 4 - 2 * share);
    ASSERT_TRUE(rest) << "pictures that nobody holds make room";
    const std::string bytes = Encoded(Gradient(4, 4), "png");
    EXPECT_FALSE(Load(bytes));
    first = PictureMemory();
    const PictureRef loaded = Load(bytes);
    EXPECT_TRUE(loaded);
    EXPECT_FALSE(PictureMemory::Take(share)) << "a picture in use counts";
}

TEST_F(Pictures, AnimatedMeansMoreThanOneFrame) {
    EXPECT_TRUE(IsAnimatedGIF(folder.Write("two.gif", SmallGif(2))));
    EXPECT_FALSE(IsAnimatedGIF(folder.Write("one.gif", SmallGif(1))));
    EXPECT_FALSE(IsAnimatedGIF(folder.Write("png.gif", Encoded(Gradient(4, 4), "png"))));
    EXPECT_FALSE(IsAnimatedGIF(folder / "missing.gif"));
}

}  // namespace
}  // namespace ornavo
