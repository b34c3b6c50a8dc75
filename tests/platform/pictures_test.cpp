// SPDX-License-Identifier: MIT
#include "platform/pictures.h"

#include <QBuffer>
#include <QLoggingCategory>
#include <chrono>

#include "platform/png_bytes.h"
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

/// A GIF whose canvas, which only its header tells, is larger than its frames.
std::string Canvas(int frames, int width, int height) {
    return With(SmallGif(frames), 6, {width & 0xFF, width >> 8, height & 0xFF, height >> 8});
}

class Pictures : public ::testing::Test {
protected:
    // Decoders may complain of what is broken.
    Pictures() { QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false")); }
    ~Pictures() override { QLoggingCategory::setFilterRules({}); }
    std::filesystem::path File(const std::string& bytes) {
        return folder.Write(std::to_string(++files) + ".jpg", bytes);
    }
    PictureRef Load(const std::string& bytes) { return LoadPicture(File(bytes)); }
    TemporaryFolder folder;
    int files = 0;
};

TEST_F(Pictures, EveryFormatIsKnownByItsContent) {
    const QImage image = Gradient(8, 8);
    for (const char* format : {"png", "bmp", "ppm"}) {
        const PictureRef picture = Load(Encoded(image, format));
        ASSERT_TRUE(picture) << format;
        EXPECT_EQ(picture->image(), image) << format;
        EXPECT_EQ(picture->image().format(), QImage::Format_RGB32);
    }
    EXPECT_TRUE(LoadPicture(folder.Write("a.bmp", Encoded(image, "jpg"))) && Load(SmallGif(1)));
    QImage clear(2, 1, QImage::Format_ARGB32);
    clear.fill(0x80FF0000);
    const PictureRef picture = Load(Encoded(clear, "png"));
    EXPECT_EQ(picture->image().format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(qAlpha(picture->image().pixel(0, 0)), 0x80);
}

TEST_F(Pictures, APngFileHoldsThePicture) {
    for (const auto& [width, height] : {std::pair{1, 1}, {7, 5}, {64, 2}, {300, 200}})
        for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32}) {
            QImage image = Gradient(width, height).convertToFormat(format);
            image.setPixel(width / 2, 0, 0xFF102030 ^ (format == QImage::Format_ARGB32 ? 0x80000000 : 0));
            const std::string bytes = PngBytesOf(image);
            const QImage read = QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                                                 static_cast<int>(bytes.size()));
            EXPECT_EQ(read.format(), format);
            EXPECT_EQ(read, image) << width;
        }
}

TEST_F(Pictures, WhatIsTooLargeOrNoneIsRefused) {
    const std::string bmp = Encoded(Gradient(16, 16), "bmp"), jpeg = Encoded(Gradient(16, 16), "jpg");
    const std::size_t frame = jpeg.find(Bytes({0xFF, 0xC0}));
    ASSERT_NE(frame, std::string::npos);
    const std::string huge[] = {With(bmp, 18, {0, 0, 0, 0x80, 0, 0, 0, 0x80}),
                                With(jpeg, frame + 5, {0xFF, 0xDC, 0xFF, 0xDC}),
                                Encoded(QImage(16385, 1, QImage::Format_Mono), "png"), Canvas(1, 8192, 8192)};
    for (const std::string& bytes : huge) EXPECT_FALSE(Load(bytes)) << &bytes - huge;
    EXPECT_TRUE(Load(Encoded(QImage(1, 16384, QImage::Format_Mono), "png")));
    EXPECT_TRUE(LoadThumbnail(File(Canvas(1, 5000, 5000)), {10, 10}).isNull());
    for (const char* text : {"", "GIF89a", "no picture", "\xFF\xD8\xFF"}) EXPECT_FALSE(Load(text));
    for (const std::filesystem::path& none : {folder.place(), folder / "missing", {}})
        EXPECT_FALSE(LoadPicture(none) || IsAnimatedGIF(none)) << none;
    const std::string whole = Encoded(Gradient(64, 64), "jpg");
    EXPECT_TRUE(Load(whole.substr(0, whole.size() / 2))) << "a part is shown";
}

TEST_F(Pictures, AnimatedMeansMoreThanOneFrameOnACanvasThatFits) {
    const std::pair<std::string, bool> rows[] = {{SmallGif(2), true},
                                                 {SmallGif(1), false},
                                                 {Encoded(Gradient(4, 4), "png"), false},
                                                 {Canvas(2, 1000, 1000), true},
                                                 {Canvas(2, 8192, 8192), false},
                                                 {Canvas(2, 16385, 1), false}};
    for (const auto& [bytes, animated] : rows) EXPECT_EQ(IsAnimatedGIF(File(bytes)), animated) << files;
    const PictureMemory others = PictureMemory::Take(PicturePixelLimit),
                        more = PictureMemory::Take(PicturePixelLimit);
    const TileMovie movie(File(Canvas(2, 2500, 2500)), [] {});
    EXPECT_TRUE(movie.Frame().isNull()) << "beyond what all may have together";
}

TEST_F(Pictures, AreDecodedOnceUntilAnotherProgramChangesThem) {
    const auto write = [&](int width, int seconds) {
        const std::filesystem::path path = folder.Write("a.png", Encoded(Gradient(width, 4), "png"));
        const std::filesystem::file_time_type start{std::chrono::hours(24)};
        std::filesystem::last_write_time(path, start + std::chrono::seconds(seconds));
        std::filesystem::last_write_time(folder.place(), start);
        return path;
    };
    PicturesChanged();  // what others asked for
    const PictureRef first = LoadPicture(write(4, 0));
    EXPECT_FALSE(PicturesChanged());
    EXPECT_EQ(LoadPicture(write(4, 0)), first);
    const std::filesystem::path path = write(5, 0);
    EXPECT_EQ(LoadPicture(path)->image().width(), 5) << "another size at the same time";
    write(5, 2);
    EXPECT_TRUE(PicturesChanged());
    EXPECT_FALSE(PicturesChanged()) << "told once";
    const PictureRef last = LoadPicture(path);
    EXPECT_NE(last, first);
    write(5, 1);
    EXPECT_NE(LoadPicture(path), last) << "an older file is another one too";
    EXPECT_TRUE(PicturesChanged());
    LoadPicture(folder / "gone.png");
    EXPECT_FALSE(PicturesChanged());
    folder.Write("gone.png", Encoded(Gradient(4, 4), "png"));
    EXPECT_TRUE(PicturesChanged()) << "what was missed is there now";
}

TEST_F(Pictures, DecodedLaterOrAheadTheyAreTheSame) {
    const PictureRef later = LoadPictureForLater(File(Encoded(Gradient(16, 16), "png")));
    EXPECT_EQ(later ? later->image() : QImage(), Gradient(16, 16));
    EXPECT_FALSE(LoadPictureForLater(File("no picture")));
    std::vector<std::filesystem::path> paths;
    for (int width = 1; width <= 40; ++width)
        paths.push_back(File(width % 9 == 0 ? "no picture" : Encoded(Gradient(width, 3), "png")));
    const PicturesAhead ahead([&] { return paths; });
    for (int width = 1; width <= 40; ++width) {
        const PictureRef picture = LoadPicture(paths[static_cast<std::size_t>(width) - 1]);
        EXPECT_EQ(picture ? picture->image() : QImage(), width % 9 == 0 ? QImage() : Gradient(width, 3));
    }
}

TEST_F(Pictures, AllTogetherStayWithinTheirLimit) {
    const auto share = PicturePixelLimit;
    EXPECT_FALSE(PictureMemory::Take(share + 1) || PictureMemory::Take(0));
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

}  // namespace
}  // namespace ornavo
