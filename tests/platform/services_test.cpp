// SPDX-License-Identifier: MIT
#include <QFontMetrics>
#include <QScreen>
#include <QTemporaryDir>

#include "base/numbers.h"
#include "platform/dbline.h"
#include "platform/fonts.h"
#include "platform/form.h"
#include "platform/panel_scale.h"
#include "platform/picture_box.h"
#include "platform/places.h"
#include "platform/settings.h"
#include "platform/symbol_fonts.h"
#include "support/failure_number.h"

namespace ornavo {
namespace {

class Settings : public ::testing::Test {
protected:
    Settings() { UseSettingsFile(folder_.filePath("one.ini")); }
    QTemporaryDir folder_;
};

TEST_F(Settings, AwkwardValuesComeBackAndKeysHaveNoCase) {
    const std::vector<std::string> names = {"General", "a/b",          "a",        "/",
                                            "",        "Skin-Preview", "%General", "back\\slash"};
    std::map<std::pair<std::string, std::string>, std::string> saved;
    for (const char* value : {"", " outer ", "\"q\"", "a;b,c", "%20", "\\n\\", "@Invalid()", "two\nlines",
                              "\xC3\xA9\xE2\x82\xAC", "1,5", "=", "[x]"})
        for (const std::string& section : names) {
            const std::string key = names[saved.size() / 8 % 8] + std::to_string(saved.size());
            SaveSetting(section, key, saved[{section, key}] = value);
        }
    SaveSetting("Ornavo", "Left", "1");
    SaveSetting("ORNAVO", "left", "2");
    for (const char* next : {"other.ini", "one.ini"}) UseSettingsFile(folder_.filePath(next));
    for (const auto& [place, value] : saved)
        EXPECT_EQ(GetSetting(place.first, place.second, "?"), value) << place.first;
    EXPECT_EQ(GetSetting("ornavo", "LEFT", "?"), "2");
    DeleteSetting("oRNAVO", "lEFT");
    EXPECT_EQ(GetSetting("Ornavo", "Left", "?"), "?");
}

TEST_F(Settings, TypedOnes) {
    constexpr Setting<int> number = {"S", "Number", 7};
    constexpr Setting<bool> flag = {"S", "Flag", true};
    EXPECT_TRUE(number.Read() == 7 && flag.Read());
    number.Write(-12);
    flag.Write(false);
    EXPECT_EQ(GetSetting("S", "Number", "") + GetSetting("S", "Flag", ""), "-12False");
    EXPECT_TRUE(number.Read() == -12 && !flag.Read());
    SaveSetting("S", "Flag", "-1");
    EXPECT_TRUE(flag.Read());
    SaveSetting("S", "Flag", "perhaps");
    EXPECT_EQ(FailureNumber([&] { flag.Read(); }), 13);
    for (const auto& [text, failure] : {std::pair{"wide", 13}, {"99999999999", 6}}) {
        SaveSetting("S", "Number", text);
        EXPECT_EQ(FailureNumber([&] { number.Read(); }), failure) << text;
    }
}

TEST(Fonts, HavePointsAttributesAndStandInsOfTheRightWidths) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (const auto& [points, pixels] : {std::pair{8.0, 11}, {8.25, 11}, {22.0, 29}, {-5.0, 1}, {none, 1}})
        EXPECT_EQ(ScreenFont({"Arial", points}).pixelSize(), pixels) << points;
    const QFont all = ScreenFont({"Arial", 8, true, true, true, true});
    EXPECT_TRUE(all.bold() && all.italic() && all.underline() && all.strikeOut());
    EXPECT_FALSE(ScreenFont({}).bold());
    const auto width = [](const char* name) {
        return QFontMetrics(ScreenFont({name, 10})).horizontalAdvance("The quick brown fox jumps");
    };
    EXPECT_NEAR(width("Tahoma"), width("Verdana") * 0.89, 5) << "narrower than the face that stands in";
    for (const char* same : {"tahoma", "", "14"}) EXPECT_EQ(width("Tahoma"), width(same));
    const QFontMetrics fixed(ScreenFont({"courier new", 10}));
    EXPECT_EQ(fixed.horizontalAdvance("iiii"), fixed.horizontalAdvance("WWWW"));
    EXPECT_LT(width("Times New Roman"), width("Arial"));
    EXPECT_EQ(QFontInfo(ScreenFont({"No such face", 10})).family(), "DejaVu Sans");
}

TEST(Fonts, SymbolsAreFoundByTheirCodes) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"wingdings", "\u00EC", "\U0001F87D"}, {"Webdings", "i", "\U0001F6C8"},
        {"Wingdings", "\uF0D6", "\u2326"},     {"Symbol", "p", "\u03C0"},
        {"Arial", "i\u00EC", "i\u00EC"},       {"Wingdings", " \u4E2D", " \u4E2D"}};  // no code, no symbol
    for (const auto& [font, text, shown] : rows)
        EXPECT_EQ(ShownText({font}, text), QString::fromUtf8(shown)) << font << text;
}

TEST(PictureBox, GroundPictureLayer) {
    PictureBox box(nullptr, "pInfo");
    box.Move({0, 0, 4, 2});
    box.SetBackColor(Rgb(255, 0, 0));
    QImage image(2, 1, QImage::Format_RGB32);
    image.fill(Qt::green);
    box.SetPicture(std::make_shared<Picture>(image));
    box.Draw([](QPainter& painter) { painter.fillRect(1, 0, 1, 2, Qt::blue); });
    const auto seen = [&] {
        std::string colours;
        const QImage shown = box.grab().toImage();
        for (int i = 0; i < 8; ++i) colours += "?rgb"[(shown.pixelColor(i % 4, i / 4).hue() + 120) / 120];
        return colours;
    };
    EXPECT_EQ(seen(), "gbrrrbrr");
    box.Cls();
    EXPECT_EQ(seen(), "ggrrrrrr");
    box.SetPicture(nullptr);
    EXPECT_EQ(seen(), "rrrrrrrr");
}

TEST(dbLine, SurroundsItsLine) {
    QWidget window;
    dbLine line(&window, "cPoint");
    const std::pair<std::array<int, 4>, std::array<Rect, 2>> rows[] = {
        {{10, 10, 10, 100}, {Rect{10, 10, 2, 92}, {0, 0, 0, 90}}},
        {{0, 0, 5, 7}, {Rect{0, 0, 7, 9}, {0, 0, 5, 7}}},
        {{5, 7, 0, 0}, {Rect{0, 0, 7, 9}, {5, 7, -5, -7}}},
        {{-3, 9, 4, 2}, {Rect{-3, 2, 9, 9}, {0, 7, 7, -7}}}};
    for (const auto& [ends, bounds] : rows) {
        line.MoveTo(ends[0], ends[1], ends[2], ends[3]);
        EXPECT_EQ((std::array{line.Bounds(), line.InnerLine()}), bounds);
    }
    line.MoveTo(0, 0, 10, 10);
    line.SetX1(20);
    line.SetY2(-10);
    EXPECT_EQ(line.Bounds(), (Rect{10, -10, 12, 12}));
    EXPECT_EQ(line.InnerLine(), (Rect{10, 10, -10, -10}));
}

class Window : public Form {
public:
    Window() : Form(nullptr, "frm", Qt::Window) {}
    int resized = 0;
    void Form_Resize() override { ++resized; }
};

TEST(Forms, TwipsAreOutside) {
    Window window;
    window.MoveTwips({1020, 135, 6000, 4500});
    EXPECT_EQ(QRect(window.pos(), QSize(window.ScaleWidth(), window.ScaleHeight())), QRect(68, 9, 392, 271));
    window.SetWindowState(StateMinimised);
    EXPECT_EQ(window.WindowState(), StateMinimised);
    window.SetWindowState(StateMaximised);
    window.show();
    EXPECT_EQ(window.WindowState(), StateMaximised) << "it comes up so";
    EXPECT_GT(window.resized, 0);
    for (const int state : {StateMaximised, StateNormal}) {
        window.SetWindowState(state);
        const auto isWide = [&] { return window.ScaleWidth() > 790; };
        EXPECT_TRUE(QTest::qWaitFor([&] { return isWide() == (state == StateMaximised); }));
        EXPECT_EQ(window.WindowState(), state);
        EXPECT_EQ(window.TwipBounds(), (Rect{1020, 135, 6000, 4500}));
    }
}

TEST(Forms, APlaceOffEveryScreenComesBack) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    constexpr int most = std::numeric_limits<int>::max();
    for (const Rect& lost :
         {Rect{900000, 0, 4500, 4500}, {0, -90000, 4500, 4500}, {-most, most, most, most}}) {
        Window window;
        window.MoveTwips(lost);
        EXPECT_TRUE(screen.contains(QRect(window.pos(), QSize(100, 20)))) << lost.left;
        EXPECT_LE(window.ScaleWidth(), 8192);
    }
    Window partly;
    partly.MoveTwips({-1500, 0, 4500, 4500});
    EXPECT_EQ(partly.pos().x(), -100) << "can still be grasped";
}

TEST(Panels, GrowWithTheLineAndNeverShrink) {
    const int line = QFontMetrics(ScreenFont({.Size = 9})).height();
    EXPECT_EQ(PanelScale(2 * line, line)(3045), 6090);
    EXPECT_EQ(PanelScale(QFont(ScreenFont({.Size = 8})))(15), 15);
    for (const int shown : {4800, 6001, 7211}) {  // what is stored doesn't wander from run to run
        const PanelScale scale(23, 14);
        const int stored = scale.Designed(shown);
        EXPECT_EQ(scale.Designed(scale(stored)), stored);
    }
}

TEST(Panels, StandBesideTheMainWindow) {
    const QRect screen(0, 0, 1600, 1200), project(1100, 9, 203, 206), main(68, 9, 1032, 797);
    const struct {
        QRect main;
        QSize window;
        std::vector<QRect> taken;
        std::optional<QPoint> place;
    } cases[] = {{main, {203, 206}, {}, QPoint(1100, 9)},
                 {main, {183, 381}, {project}, QPoint(1303, 9)},
                 {main, {320, 669}, {project, {1303, 9, 183, 381}}, QPoint(1100, 390)},
                 {main.translated(432, 0), {203, 206}, {}, QPoint(297, 9)},
                 {screen, {203, 206}, {}, std::nullopt}};
    for (const auto& row : cases)
        EXPECT_EQ(PlaceBeside(screen, row.main, row.window, row.taken), row.place) << row.window.height();
}

}  // namespace
}  // namespace ornavo
