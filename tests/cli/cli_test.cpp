// SPDX-License-Identifier: MIT
// The built tool, run as a script would run it, and what it leaves on the disk.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdlib>

namespace ornavo::testing {
namespace {

struct Outcome {
    int code;
    QByteArray out, err;
};

Outcome RunTool(const QStringList& words, const QString& workingFolder = {}) {
    QProcess tool;
    tool.setWorkingDirectory(workingFolder);
    tool.start(QStringLiteral(ORNAVO_BINARY_DIR "/ornavo-cli"), words);
    tool.waitForFinished(60'000);
    return {tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1, tool.readAllStandardOutput(),
            tool.readAllStandardError()};
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

const char* const SkinText =
    "<Skin>\n<SkinWidth>100</SkinWidth>\n<SkinHeight>80</SkinHeight>\n"
    "<SkinPrefs>\n<SkinPref>\n<Key>SP_ColLight</Key>\n<PrefType>1</PrefType>\n<Value>255</Value>\n<Font>\n"
    "<Name>Arial</Name>\n<Size>+8.25</Size>\n<Bold>True</Bold>\n</Font>\n</SkinPref>\n"
    "<SkinPref>\n<Key>XX_Text</Key>\n<Value>G\xFCte</Value>\n</SkinPref>\n</SkinPrefs>\n"
    "<Layouts>\n<Layout>\n<Key>Standard</Key>\n<LayoutName>Main screen</LayoutName>\n"
    "<Points>\n<Point>\n<Order>2</Order>\n<X>100</X>\n<Y>0</Y>\n</Point>\n<Point>\n<Order>1</Order>\n</"
    "Point>\n"
    "<Point>\n<Order>3</Order>\n<X>0</X>\n<Y>0</Y>\n<VAlign>2</VAlign>\n</Point>\n</Points>\n"
    "<Elements>\n<Element>\n<Key>box</Key>\n<Order>1</Order>\n<ElementType>4</ElementType>\n<LeftX>10</"
    "LeftX>\n"
    "<TopY>5</TopY>\n<WidthX>20</WidthX>\n<HeightY>10</HeightY>\n<LockLeft>True</LockLeft>\n"
    "<LockRight>True</LockRight>\n<LockBottom>True</LockBottom>\n<Visible>Wahr</Visible>\n"
    "<BackgroundColor>65280</BackgroundColor>\n<CapScrollSpeed>-2</CapScrollSpeed>\n</Element>\n</Elements>\n"
    "</Layout>\n</Layouts>\n</Skin>\n";

class ToolTest : public ::testing::Test {
protected:
    ToolTest() {
        qputenv("XDG_DATA_HOME", folder_.filePath("data").toUtf8());
        Write(SkinText);
    }
    ~ToolTest() override { qunsetenv("XDG_DATA_HOME"); }
    void Write(const QByteArray& text) const { Write(skin_ + "/SkinSettings.xml", text); }
    static void Write(const QString& path, const QByteArray& text) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    const QTemporaryDir folder_;
    const QString skin_ = folder_.filePath("Blue");
};

TEST_F(ToolTest, DumpTellsTheModelAndChangesNothing) {
    const Outcome raw = RunTool({"dump", skin_ + "/SkinSettings.xml", "--raw"});
    ASSERT_EQ(raw.code, 0) << raw.err.toStdString();
    const QJsonObject skin = QJsonDocument::fromJson(raw.out).object();
    EXPECT_EQ(skin["SkinName"], "Blue");
    EXPECT_EQ(skin["SkinHeight"], 80);
    const QJsonArray prefs = skin["dbSkinPrefs"].toArray();
    ASSERT_EQ(prefs.size(), 2);
    EXPECT_EQ(prefs[0]["Value"], 255);
    EXPECT_EQ(prefs[0]["Font"]["Size"], 8.25);
    EXPECT_EQ(prefs[0]["Font"]["Bold"], true);
    EXPECT_EQ(prefs[1]["Value"], QString::fromUtf8("G\xC3\xBCte"));
    EXPECT_TRUE(prefs[1]["Font"].isNull());
    const QJsonObject layout = skin["dbLayouts"][0].toObject();
    EXPECT_EQ(layout["LayoutName"], "Main screen");
    EXPECT_EQ(layout["dbPoints"][0]["Order"], 2);
    const QJsonObject element = layout["dbLayoutElements"][0].toObject();
    EXPECT_EQ(element["CapScrollSpeed"], -2);
    EXPECT_EQ(element["Visible"], true);
    EXPECT_EQ(element["PicNormal"], "");
    EXPECT_FALSE(element.contains("ControlIndex"));
    EXPECT_TRUE(element.contains("Font") && element["Font"].isNull());
    const Outcome whole = RunTool({"dump", skin_});
    EXPECT_EQ(QJsonDocument::fromJson(whole.out)["dbSkinPrefs"].toArray().size(), 182);
    EXPECT_EQ(Bytes(skin_ + "/SkinSettings.xml"), SkinText);
}

TEST_F(ToolTest, PlaceTellsRectanglesAndCorners) {
    const Outcome placed = RunTool({"place", skin_, "--layout", "standard", "--size", "130x101"});
    ASSERT_EQ(placed.code, 0) << placed.err.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(placed.out), QJsonDocument::fromJson(R"({"width":130,"height":101,
        "elements":[{"Key":"box","left":10,"top":96,"width":50,"height":10}],
        "points":[{"Order":1,"x":0,"y":0},{"Order":2,"x":100,"y":0},{"Order":3,"x":0,"y":101}]})"));
    EXPECT_EQ(QJsonDocument::fromJson(RunTool({"place", skin_, "--layout", "Standard"}).out)["height"], 80);
}

TEST_F(ToolTest, SaveWritesBackAndUnderAnotherName) {
    ASSERT_EQ(RunTool({"save", skin_}).code, 0);
    const QByteArray once = Bytes(skin_ + "/SkinSettings.xml");
    EXPECT_TRUE(
        once.startsWith("<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\r\n<!-- Generated by Ornavo "));
    EXPECT_TRUE(once.contains("\t\t\t<Value>G\xFCte</Value>\r\n"));
    EXPECT_EQ(once.count("<SkinPref>"), 182);
    ASSERT_EQ(RunTool({"save", skin_, "--as", "Red/1"}).code, 0);
    EXPECT_EQ(Bytes(folder_.filePath("Red_1/SkinSettings.xml")),
              QByteArray(once).replace("<SkinName>Blue<", "<SkinName>Red_1<"));
    for (const char* bad : {"..", "**", "", "  "})
        EXPECT_EQ(RunTool({"save", skin_, "--as", bad}).code, 2) << bad;
}

TEST_F(ToolTest, SaveTakesNoOtherSkinsPlaceUnasked) {
    const QString copy = folder_.filePath("Copy"), red = folder_.filePath("Red"), file = "/skinSETTINGS.xml";
    for (const QString& folder : {copy, red})
        Write(folder + file, "<Skin>\n<SkinName>Red</SkinName>\n</Skin>\n");
    const QByteArray before = Bytes(red + file);
    for (const QStringList& words : {QStringList{"save", copy}, {"save", skin_, "--as", "Red"}}) {
        const Outcome refused = RunTool(words);
        EXPECT_EQ(refused.code, 1) << words.join(' ').toStdString();
        EXPECT_TRUE(refused.err.contains((red + file).toUtf8())) << refused.err.constData();
        EXPECT_EQ(Bytes(red + file), before);
    }
    const Outcome asked = RunTool({"save", copy, "--replace"});
    EXPECT_EQ(asked.code, 0) << asked.err.constData();
    EXPECT_EQ(asked.out, (red + file + '\n').toUtf8());
    EXPECT_NE(Bytes(red + file), before);
    EXPECT_EQ(RunTool({"save", red}).code, 0) << "the folder that was opened";
}

TEST_F(ToolTest, SaveTellsWhatIsLost) {
    const auto withPicture = [](const QString& path) {
        return QByteArray(SkinText).replace(
            "<Value>G", "<PrefType>5</PrefType>\n<Value>" + path.toUtf8() + "</Value>\n<Caption>G");
    };
    Write(withPicture("gone.png"));
    const Outcome dropped = RunTool({"save", skin_});
    EXPECT_EQ(dropped.code, 0);
    EXPECT_TRUE(dropped.err.contains("gone.png is not there")) << dropped.err.toStdString();
    QFile::copy(skin_ + "/SkinSettings.xml", folder_.filePath("a.png"));
    QDir(skin_).mkdir("a.png");
    Write(withPicture(folder_.filePath("a.png")));
    const Outcome uncopied = RunTool({"save", skin_});
    EXPECT_EQ(uncopied.code, 1);
    EXPECT_TRUE(uncopied.err.contains("could not be copied")) << uncopied.err.toStdString();
    const QByteArray torn = QByteArray(SkinText).left(700);
    Write(torn);
    EXPECT_TRUE(RunTool({"dump", skin_}).err.contains("damaged"));
    EXPECT_EQ(RunTool({"save", skin_}).code, 1);
    EXPECT_EQ(Bytes(skin_ + "/SkinSettings.xml"), torn);
    EXPECT_EQ(RunTool({"save", skin_, "--replace"}).code, 0);
    const QDir recovered(folder_.filePath("data/ornavo/Recovered"));
    ASSERT_EQ(recovered.entryList(QDir::Files).size(), 1);
    EXPECT_EQ(Bytes(recovered.filePath(recovered.entryList(QDir::Files).first())), torn);
}

TEST_F(ToolTest, RenderCutsThePreviewAndDrawsTheCanvas) {
    const QString out = folder_.filePath("out.png");
    ASSERT_EQ(RunTool({"render", skin_, "--layout", "Standard", "--out", out, "--edge", "hard"}).code, 0);
    const QImage preview(out);
    EXPECT_EQ(preview.size(), QSize(100, 80));
    EXPECT_EQ(preview.pixelColor(99, 79).alpha(), 0);
    EXPECT_EQ(preview.pixelColor(2, 2).alpha(), 255);
    ASSERT_EQ(RunTool({"render", skin_, "--layout", "Standard", "--out", out, "--view", "canvas", "--size",
                       "90x90"})
                  .code,
              0);
    const QImage canvas(out);
    EXPECT_EQ(canvas.size(), QSize(90, 90));
    EXPECT_EQ(canvas.pixelColor(18, 88), QColor(Qt::green)) << "the element, from the bottom edge";
}

TEST_F(ToolTest, AHugeSkinIsDrawnAsLargeAsAWindow) {
    Write(QByteArray(SkinText).replace(">100</SkinWidth", ">900000</SkinWidth"));
    const QString out = folder_.filePath("out.png");
    const Outcome drawn = RunTool({"render", skin_, "--layout", "Standard", "--out", out});
    EXPECT_EQ(drawn.code, 0);
    EXPECT_TRUE(drawn.err.contains("composed at 8192 x 80")) << drawn.err.toStdString();
    EXPECT_EQ(QImageReader(out).size(), QSize(8192, 80));
    EXPECT_EQ(RunTool({"place", skin_, "--layout", "Standard", "--size", "900001x80"}).code, 0);
}

TEST_F(ToolTest, ANameIsThatOfAUsersSkinUnlessSomethingStandsThere) {
    const QString own = folder_.filePath("data/ornavo/Skins");
    EXPECT_EQ(RunTool({"dump", "Blue"}).code, 1);
    EXPECT_FALSE(QFile::exists(folder_.filePath("data"))) << "nothing is made";
    ASSERT_TRUE(QDir().mkpath(own) && QDir().rename(skin_, own + "/Blue"));
    EXPECT_EQ(RunTool({"save", "blue"}).out, (own + "/Blue/SkinSettings.xml\n").toUtf8());
    QDir().mkdir(skin_);
    EXPECT_TRUE(RunTool({"dump", "Blue"}, folder_.path()).err.contains(skin_.toUtf8()));
}

TEST_F(ToolTest, ExitCodes) {
    const struct {
        QStringList words;
        int code;
    } rows[] = {
        {{}, 2},
        {{"paint", skin_}, 2},
        {{"dump"}, 2},
        {{"dump", ""}, 2},
        {{"dump", skin_, "--nonsense"}, 2},
        {{"dump", skin_, skin_}, 2},
        {{"place", skin_}, 2},
        {{"place", skin_, "--layout", "Standard", "--size", "0x5"}, 2},
        {{"place", skin_, "--layout", "Standard", "--size", "5"}, 2},
        {{"render", skin_, "--layout", "Standard", "--out", "x.png", "--view", "both"}, 2},
        {{"render", skin_, "--layout", "Standard", "--out", "x.png", "--size", "8193x80"}, 2},
        {{"dump", folder_.filePath("None")}, 1},
        {{"place", skin_, "--layout", "None"}, 1},
        {{"render", skin_, "--layout", "Standard", "--out", folder_.filePath("no/folder.png")}, 1},
        {{"--help"}, 0},
        {{"--version"}, 0},
    };
    for (const auto& row : rows) {
        const Outcome outcome = RunTool(row.words);
        EXPECT_EQ(outcome.code, row.code) << row.words.join(' ').toStdString();
        EXPECT_EQ(outcome.err.isEmpty(), row.code == 0) << row.words.join(' ').toStdString();
    }
}

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
    const QStringList one = {"--hue", "1", "--saturation", "1"};
    const std::pair<QStringList, int> rows[] = {{{in, out, "--hue", "256", "--saturation", "1"}, 2},
                                                {{in, out, "--hue=-1", "--saturation", "1"}, 2},
                                                {{in, out, "--hue", "1", "--saturation", "1.5"}, 2},
                                                {{in, out, "--hue", "", "--saturation", "1"}, 2},
                                                {{in, out, "--hue", "1"}, 2},
                                                {QStringList{in} + one, 2},
                                                {QStringList{in, out, out} + one, 2},
                                                {QStringList{in, Path("out.png")} + one, 2},
                                                {QStringList{Path("none.png"), out} + one, 1},
                                                {QStringList{Path("text.png"), out} + one, 1},
                                                {QStringList{in, Path("no/out.bmp")} + one, 1},
                                                {QStringList{in, Path("no/out.jpg")} + one, 1}};
    for (const auto& [words, code] : rows) {
        EXPECT_EQ(Run(words), code) << words.join(' ').toStdString();
        EXPECT_FALSE(said_.isEmpty()) << words.join(' ').toStdString();
    }
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

}  // namespace
}  // namespace ornavo::testing
