// SPDX-License-Identifier: MIT
// The built tool, run as a script would run it, and what it leaves on the disk.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "document/catalogue.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

constexpr auto Prefs = std::ssize(Catalogue) + 1;  // with the one of its own

const char* const SkinText =
    "<Skin>\n<SkinWidth>100</SkinWidth>\n<SkinHeight>80</SkinHeight>\n<SkinPrefs>\n<SkinPref>\n"
    "<Key>SP_ColLight</Key>\n<PrefType>1</PrefType>\n<Value>255</Value>\n<Font>\n<Name>Arial</Name>\n"
    "<Size>+8.25</Size>\n<Bold>True</Bold>\n</Font>\n</SkinPref>\n<SkinPref>\n<Key>XX_Text</Key>\n"
    "<Value>G\xFCte</Value>\n</SkinPref>\n</SkinPrefs>\n<Layouts>\n<Layout>\n<Key>Standard</Key>\n"
    "<LayoutName>Main screen</LayoutName>\n<Points>\n<Point>\n<Order>2</Order>\n<X>100</X>\n<Y>0</Y>\n"
    "</Point>\n<Point>\n<Order>1</Order>\n</Point>\n<Point>\n<Order>3</Order>\n<X>0</X>\n<Y>0</Y>\n"
    "<VAlign>2</VAlign>\n</Point>\n</Points>\n<Elements>\n<Element>\n<Key>box</Key>\n<Order>1</Order>\n"
    "<ElementType>4</ElementType>\n<LeftX>10</LeftX>\n<TopY>5</TopY>\n<WidthX>20</WidthX>\n"
    "<HeightY>10</HeightY>\n<LockLeft>True</LockLeft>\n<LockRight>True</LockRight>\n"
    "<LockBottom>True</LockBottom>\n<Visible>Wahr</Visible>\n<BackgroundColor>65280</BackgroundColor>\n"
    "<CapScrollSpeed>-2</CapScrollSpeed>\n</Element>\n</Elements>\n</Layout>\n</Layouts>\n</Skin>\n";

class ToolTest : public ::testing::Test {
protected:
    ToolTest() {
        qputenv("XDG_DATA_HOME", Path("data").toUtf8());
        Write(SkinText);
    }
    ~ToolTest() override { qunsetenv("XDG_DATA_HOME"); }
    /// Its exit code, run beside the skin "Blue"; what it wrote is in out_ and err_.
    int Run(const QString& words) {
        QProcess tool;
        tool.setWorkingDirectory(Path(""));
        tool.start(QStringLiteral(ORNAVO_BINARY_DIR "/ornavo-cli"), words.split(' '));
        tool.waitForFinished(60'000);
        out_ = tool.readAllStandardOutput();
        err_ = tool.readAllStandardError();
        return tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1;
    }
    bool Told(const QString& text) const { return err_.contains(text.toUtf8()); }
    /// Draws the layout with these options.
    QImage Rendered(const QString& options) {
        EXPECT_EQ(Run("render Blue --layout Standard --out out.png" + options), 0) << err_.constData();
        return QImage(Path("out.png"));
    }
    QString Path(const char* name) const { return QString::fromStdString(folder_ / name); }
    void Write(const QByteArray& text) const { folder_.Write("Blue/SkinSettings.xml", text.toStdString()); }
    QByteArray Read(const char* name) const {
        return QByteArray::fromStdString(TemporaryFolder::Read(folder_ / name));
    }
    QByteArray Settings() const { return Read("Blue/SkinSettings.xml"); }
    /// Three pixels wide: the padding of a row is a pixel's worth.
    void MakePicture(QRgb top, QRgb bottom) const {
        QImage picture(3, 2, QImage::Format_ARGB32);
        picture.fill(top);
        for (int x = 0; x < 3; ++x) picture.setPixel(x, 1, bottom);
        ASSERT_TRUE(picture.save(Path("in.png")));
    }
    QImage Recoloured(const QString& words) {
        EXPECT_EQ(Run("recolour in.png " + words), 0) << err_.constData();
        return QImage(Path(words.section(' ', 0, 0).toLatin1()));
    }

    const TemporaryFolder folder_;
    QByteArray out_, err_;
};

TEST_F(ToolTest, DumpAndPlaceTellTheModelAndChangeNothing) {
    ASSERT_EQ(Run("dump " + Path("Blue/SkinSettings.xml") + " --raw"), 0) << err_.constData();
    const QJsonObject skin = QJsonDocument::fromJson(out_).object();
    EXPECT_EQ(skin["SkinName"], "Blue");
    EXPECT_EQ(skin["dbSkinPrefs"], QJsonDocument::fromJson(R"([
        {"Key":"SP_ColLight","PrefType":1,"Caption":"","Value":255,"Font":
            {"Name":"Arial","Size":8.25,"Bold":true,"Italic":false,"Strikethrough":false,"Underline":false}},
        {"Key":"XX_Text","PrefType":0,"Caption":"","Value":"G\u00FCte","Font":null}])")
                                       .array());
    const QJsonValue layout = skin["dbLayouts"][0], element = layout["dbLayoutElements"][0];
    EXPECT_EQ(layout["dbPoints"][0]["Order"], 2);
    EXPECT_EQ(element["CapScrollSpeed"], -2);
    EXPECT_EQ(element["Visible"], true);
    Run("dump Blue");
    EXPECT_EQ(QJsonDocument::fromJson(out_)["dbSkinPrefs"].toArray().size(), Prefs);
    EXPECT_EQ(Settings(), SkinText);
    ASSERT_EQ(Run("place Blue --layout standard --size 130x101"), 0) << err_.constData();
    EXPECT_EQ(QJsonDocument::fromJson(out_), QJsonDocument::fromJson(R"({"width":130,"height":101,
        "elements":[{"Key":"box","left":10,"top":96,"width":50,"height":10}],
        "points":[{"Order":1,"x":0,"y":0},{"Order":2,"x":100,"y":0},{"Order":3,"x":0,"y":101}]})"));
    Run("place Blue --layout Standard");
    EXPECT_EQ(QJsonDocument::fromJson(out_)["height"], 80);
}

TEST_F(ToolTest, SaveWritesBackAndUnderAnotherName) {
    ASSERT_EQ(Run("save Blue"), 0);
    const QByteArray once = Settings();
    EXPECT_TRUE(once.contains("\t\t\t<Value>G\xFCte</Value>\r\n"));
    EXPECT_EQ(once.count("<SkinPref>"), Prefs);
    ASSERT_EQ(Run("save Blue --as Red/1"), 0);
    EXPECT_EQ(Read("Red_1/SkinSettings.xml"),
              QByteArray(once).replace("<SkinName>Blue<", "<SkinName>Red_1<"));
    for (const char* bad : {"save Blue --as ..", "save Blue --as "}) EXPECT_EQ(Run(bad), 2) << bad;
}

TEST_F(ToolTest, SaveTakesNoOtherSkinsPlaceUnasked) {
    const char* const red = "Red/skinSETTINGS.xml";
    for (const char* file : {red, "Copy/skinSETTINGS.xml"})
        folder_.Write(file, "<Skin>\n<SkinName>Red</SkinName>\n</Skin>\n");
    const QByteArray before = Read(red);
    for (const char* words : {"save Copy", "save Blue --as Red"}) {
        EXPECT_EQ(Run(words), 1) << words;
        EXPECT_TRUE(Told(Path(red))) << err_.constData();
        EXPECT_EQ(Read(red), before);
    }
    EXPECT_EQ(Run("save Copy --replace"), 0) << err_.constData();
    EXPECT_NE(Read(red), before);
    EXPECT_EQ(Run("save Red"), 0) << "the folder that was opened";
}

TEST_F(ToolTest, SaveTellsWhatIsLost) {
    const auto withPicture = [](const QString& path) {
        return QByteArray(SkinText).replace(
            "<Value>G", "<PrefType>5</PrefType>\n<Value>" + path.toUtf8() + "</Value>\n<Caption>G");
    };
    Write(withPicture("gone.png"));
    EXPECT_EQ(Run("save Blue"), 0);
    EXPECT_TRUE(Told("gone.png is not there")) << err_.constData();
    folder_.Write("a.png", "");
    folder_.Write("Blue/a.png/in the way", "");
    Write(withPicture(Path("a.png")));
    EXPECT_EQ(Run("save Blue"), 1);
    EXPECT_TRUE(Told("could not be copied")) << err_.constData();
    const QByteArray torn = QByteArray(SkinText).left(700);
    Write(torn);
    EXPECT_EQ(Run("save Blue"), 1);
    EXPECT_EQ(Settings(), torn);
    EXPECT_EQ(Run("save Blue --replace"), 0);
    const auto recovered = folder_.Files("data/ornavo/Recovered");
    ASSERT_EQ(recovered.size(), 1u);
    EXPECT_EQ(recovered.begin()->second, torn.toStdString());
}

TEST_F(ToolTest, CheckAndCompareTellWhatTheyFind) {
    const QByteArray inside = QByteArray(SkinText).replace("<TopY>5<", "<TopY>60<");
    Write(QByteArray(inside).replace("<Visible>", "<Foo>1</Foo>\n<Visible>"));
    EXPECT_EQ(Run("check Blue"), 0) << out_.constData();
    EXPECT_EQ(Run("check Blue --strict"), 1);
    Write(QByteArray(inside).replace("<Visible>", "<PicDown>gone.png</PicDown>\n<Visible>"));
    EXPECT_EQ(Run("check Blue --json"), 1);
    const QJsonValue first = QJsonDocument::fromJson(out_)["findings"][0];
    EXPECT_EQ(first["code"], "missing-picture");
    EXPECT_EQ(first["item"].toString() + first["field"].toString(), "boxPicDown");
    EXPECT_EQ(first["line"], Settings().left(Settings().indexOf("gone")).count('\n') + 1);
    folder_.Write("ignore", "# its reason\nmissing-picture\t*\tbox\n");
    EXPECT_EQ(Run("check Blue --ignore ignore"), 0) << out_.constData();
    folder_.Write("Red/SkinSettings.xml", QByteArray(inside).replace(">65280<", ">255<").toStdString());
    Write(inside);
    EXPECT_EQ(Run("compare Blue Red --out out --json"), 1);
    const QJsonDocument told = QJsonDocument::fromJson(out_);
    EXPECT_EQ(told["differences"].toArray().size(), 1);
    EXPECT_EQ(told["differences"][0]["after"], 255);
    EXPECT_NEAR(told["pixels"][0]["share"].toDouble(), 200.0 / 8000, 0.001);
    EXPECT_EQ(QImage(Path("out/Standard-difference.png")).size(), QSize(100, 80));
}

TEST_F(ToolTest, TheSamplesAreRight) {
    const QString skins = ORNAVO_SOURCE_DIR "/skins/";
    for (const QString name : {"Aurora", "Classic"})
        EXPECT_EQ(Run("check " + skins + name + " --strict --ignore " + skins + "art/" + name + ".check"), 0)
            << out_.constData();
}

TEST_F(ToolTest, ASheetHasTheLayoutsAtAllSizes) {
    EXPECT_EQ(Run("sheet Blue --out x.html --sizes 90x80 --sizes 200x100 --states"), 0) << err_.constData();
    const QByteArray page = Read("x.html");
    EXPECT_EQ(page.count("src=\"data:image/png;base64,"), 2);
    EXPECT_TRUE(page.contains("200 x 100") && page.contains("no preview picture"));
    EXPECT_EQ(Run("sheet Blue --out x.png --layouts standard"), 0) << err_.constData();
    EXPECT_GT(QImage(Path("x.png")).width(), 1000);
}

TEST_F(ToolTest, RenderCutsThePreviewAndDrawsTheCanvas) {
    const QImage preview = Rendered(" --edge hard");
    EXPECT_EQ(preview.size(), QSize(100, 80));
    EXPECT_EQ(preview.pixelColor(99, 79).alpha(), 0);
    EXPECT_EQ(preview.pixelColor(2, 2).alpha(), 255);
    const QImage canvas = Rendered(" --view canvas --size 90x90");
    EXPECT_EQ(canvas.size(), QSize(90, 90));
    EXPECT_EQ(canvas.pixelColor(18, 88), QColor(Qt::green)) << "the element, from the bottom edge";
}

TEST_F(ToolTest, ANameIsThatOfAUsersSkin) {
    const std::filesystem::path own = folder_ / "data/ornavo/Skins";
    std::filesystem::create_directories(own);
    std::filesystem::rename(folder_ / "Blue", own / "Blue");
    Run("save blue");
    EXPECT_EQ(out_.toStdString(), (own / "Blue/SkinSettings.xml").string() + "\n");
}

TEST_F(ToolTest, RecolourWritesBmpsAndJpegs) {
    MakePicture(qRgb(255, 0, 0), qRgb(10, 200, 30));
    Recoloured("OUT.BMP --hue 20 --saturation 100");
    const QByteArray bytes = Read("OUT.BMP");
    ASSERT_EQ(bytes.size(), 58 + 2 * 12);
    EXPECT_EQ(bytes.mid(58, 3).toHex(), "6b4092");      // the bottom row's 10, 200, 30 recoloured
    EXPECT_EQ(bytes.mid(58 + 9, 3).toHex(), "000000");  // padding recoloured: black stays black
    EXPECT_EQ(Recoloured("out.jpg --hue 20 --saturation 100").size(), QSize(3, 2));
    EXPECT_EQ(Read("out.jpg").left(2).toHex(), "ffd8");
    MakePicture(qRgba(0, 0, 0, 0), qRgb(0, 0, 0));
    const QImage onWhite = Recoloured("white.bmp --hue 0 --saturation 255");
    EXPECT_EQ(onWhite.pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_EQ(onWhite.pixel(0, 1), qRgb(0, 0, 0));
}

TEST_F(ToolTest, ExitCodes) {
    MakePicture(qRgb(1, 2, 3), qRgb(4, 5, 6));
    folder_.Write("text.png", "no picture");
    const std::size_t files = folder_.Files().size();
    const QString render = "render Blue --layout Standard --out ", in = "recolour in.png out.bmp ";
    const QString one = " --hue 1 --saturation 1";
    const std::pair<int, std::vector<QString>> codes[] = {
        {2,
         {"", "paint Blue", "dump", "dump Blue --nonsense", "dump Blue Blue", "place Blue",
          "place Blue --layout Standard --size 0x5", render + "x.png --view both",
          render + "x.png --size 8193x80", "check", "compare Blue", "compare Blue Blue --tolerance 256",
          "sheet Blue --out x.bmp", "sheet Blue --out x.png --sizes 1", in + "--hue 256 --saturation 1",
          in + "--hue=-1 --saturation 1", in + "--hue 1 --saturation 1.5", in + "--hue 1",
          "recolour in.png out.png" + one}},
        {1,
         {"dump None", "place Blue --layout None", render + "no/folder.png",
          "recolour text.png out.bmp" + one, "recolour in.png no/out.bmp" + one}},
        {3, {"check None", "compare Blue None", "check Blue --ignore none"}},
        {0, {"--version", "check --help", "compare Blue Blue"}}};
    for (const auto& [code, lines] : codes)
        for (const QString& words : lines) {
            EXPECT_EQ(Run(words), code) << words.toStdString();
            EXPECT_EQ(err_.isEmpty(), code == 0) << words.toStdString();
        }
    EXPECT_EQ(folder_.Files().size(), files);
}

}  // namespace
}  // namespace ornavo::testing
