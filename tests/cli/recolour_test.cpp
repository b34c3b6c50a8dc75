// SPDX-License-Identifier: MIT
// The built tool recolours pictures.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <cstdlib>

#include "cli/tool.h"

namespace ornavo::testing {
namespace {

class RecolourTest : public ::testing::Test {
protected:
    int Run(const QStringList& words) {
        const Outcome outcome = RunTool(QStringList("recolour") + words);
        said_ = outcome.err;
        return outcome.code;
    }
    QString Path(const QString& name) const { return folder_.filePath(name); }
    /// Three pixels wide: the padding of a row is a pixel's worth.
    void MakePicture(const QString& name, QRgb top, QRgb bottom) const {
        QImage picture(3, 2, QImage::Format_ARGB32);
        picture.fill(top);
        for (int x = 0; x < 3; ++x) picture.setPixel(x, 1, bottom);
        ASSERT_TRUE(picture.save(Path(name)));
    }
    QTemporaryDir folder_;
    QByteArray said_;
};

TEST_F(RecolourTest, BmpHasLongHeadersAndTheBottomRowFirst) {
    MakePicture("in.png", qRgb(255, 0, 0), qRgb(10, 200, 30));
    ASSERT_EQ(Run({Path("in.png"), Path("OUT.BMP"), "--hue", "20", "--saturation", "100"}), 0);
    EXPECT_TRUE(said_.isEmpty()) << said_.constData();
    const QByteArray bytes = Bytes(Path("OUT.BMP"));
    ASSERT_EQ(bytes.size(), 58 + 2 * 12);
    EXPECT_EQ(bytes.mid(58, 3).toHex(), "6b4092");      // 10, 200, 30 recoloured
    EXPECT_EQ(bytes.mid(58 + 9, 3).toHex(), "000000");  // padding recoloured: black stays black
    const QImage back(Path("OUT.BMP"));
    ASSERT_EQ(back.size(), QSize(3, 2));
    EXPECT_EQ(back.pixel(2, 1), qRgb(146, 64, 107));
    EXPECT_GT(qRed(back.pixel(0, 0)), qGreen(back.pixel(0, 0)));
}

TEST_F(RecolourTest, JpegIsOfTheBestQuality) {
    MakePicture("in.png", qRgb(255, 0, 0), qRgb(255, 0, 0));
    ASSERT_EQ(Run({Path("in.png"), Path("out.jpg"), "--hue", "20", "--saturation", "100"}), 0);
    const QImage back(Path("out.jpg"));
    ASSERT_EQ(back.size(), QSize(3, 2));
    ASSERT_EQ(Run({Path("in.png"), Path("out.bmp"), "--hue", "20", "--saturation", "100"}), 0);
    const QRgb got = back.pixel(1, 1), wanted = QImage(Path("out.bmp")).pixel(1, 1);
    EXPECT_LE(std::abs(qRed(got) - qRed(wanted)), 2);
    EXPECT_LE(std::abs(qGreen(got) - qGreen(wanted)), 2);
    EXPECT_LE(std::abs(qBlue(got) - qBlue(wanted)), 2);
    EXPECT_EQ(Bytes(Path("out.jpg")).left(2).toHex(), "ffd8");
}

TEST_F(RecolourTest, TransparencyIsToldAndPutOnWhite) {
    MakePicture("in.png", qRgba(0, 0, 0, 0), qRgb(0, 0, 0));
    ASSERT_EQ(Run({Path("in.png"), Path("out.bmp"), "--hue", "0", "--saturation", "255"}), 0);
    EXPECT_TRUE(said_.contains("in.png is transparent")) << said_.constData();
    EXPECT_EQ(QImage(Path("out.bmp")).pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_EQ(QImage(Path("out.bmp")).pixel(0, 1), qRgb(0, 0, 0));
}

TEST_F(RecolourTest, RefusesAndWritesNothing) {
    MakePicture("in.png", qRgb(1, 2, 3), qRgb(4, 5, 6));
    QFile text(Path("text.png"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("no picture") > 0);
    text.close();
    const QString in = Path("in.png"), out = Path("out.bmp");
    const struct {
        QStringList words;
        int code;
    } rows[] = {
        {{in, out, "--hue", "256", "--saturation", "1"}, 2},
        {{in, out, "--hue=-1", "--saturation", "1"}, 2},
        {{in, out, "--hue", "1", "--saturation", "1.5"}, 2},
        {{in, out, "--hue", "", "--saturation", "1"}, 2},
        {{in, out, "--hue", "1"}, 2},
        {{in, "--hue", "1", "--saturation", "1"}, 2},
        {{in, out, out, "--hue", "1", "--saturation", "1"}, 2},
        {{in, Path("out.png"), "--hue", "1", "--saturation", "1"}, 2},
        {{Path("none.png"), out, "--hue", "1", "--saturation", "1"}, 1},
        {{Path("text.png"), out, "--hue", "1", "--saturation", "1"}, 1},
        {{in, Path("no/out.bmp"), "--hue", "1", "--saturation", "1"}, 1},
        {{in, Path("no/out.jpg"), "--hue", "1", "--saturation", "1"}, 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Run(row.words), row.code) << row.words.join(' ').toStdString();
        EXPECT_FALSE(said_.isEmpty()) << row.words.join(' ').toStdString();
    }
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

}  // namespace
}  // namespace ornavo::testing
