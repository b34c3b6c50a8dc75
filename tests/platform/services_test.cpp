// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFontMetrics>
#include <QLineEdit>
#include <QPainter>
#include <QRawFont>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include "base/numbers.h"
#include "platform/dbline.h"
#include "platform/fonts.h"
#include "platform/form.h"
#include "platform/panel_scale.h"
#include "platform/picture_box.h"
#include "platform/places.h"
#include "platform/settings.h"
#include "platform/symbol_fonts.h"
#include "platform/text_controls.h"
#include "support/failure_number.h"
#include "support/temporary_folder.h"

namespace ornavo {
namespace {

class Settings : public ::testing::Test {
protected:
    Settings() { UseSettingsFile(folder_.filePath("one.ini")); }
    /// As the next run of the program finds it.
    void Reopen() {
        UseSettingsFile(folder_.filePath("other.ini"));
        UseSettingsFile(folder_.filePath("one.ini"));
    }

private:
    QTemporaryDir folder_;
};

TEST_F(Settings, AwkwardValuesComeBack) {
    const std::vector<std::string> values = {
        "",      " outer ",     "\"q\"",      "a;b,c",      "%20",
        "\\n\\", "@Variant(x)", "@Invalid()", "two\nlines", "\xC3\xA9\xE2\x82\xAC",
        "1,5",   "True",        "=",          "[x]"};
    const std::vector<std::string> names = {"General", "a/b",          "a",        "/",
                                            "",        "Skin-Preview", "%General", "back\\slash"};
    for (const std::string& section : names)
        for (std::size_t i = 0; i < values.size(); ++i)
            SaveSetting(section, names[i % 8] + std::to_string(i), values[i]);
    Reopen();
    for (const std::string& section : names)
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_EQ(GetSetting(section, names[i % 8] + std::to_string(i), "?"), values[i]) << section;
}

TEST_F(Settings, KeysHaveNoCase) {
    SaveSetting("Ornavo", "Left", "1");
    SaveSetting("ORNAVO", "left", "2");
    Reopen();
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
    SaveSetting("S", "Number", "wide");
    EXPECT_EQ(FailureNumber([&] { flag.Read(); }), 13);
    EXPECT_EQ(FailureNumber([&] { number.Read(); }), 13);
    SaveSetting("S", "Number", "99999999999");
    EXPECT_EQ(FailureNumber([&] { number.Read(); }), 6);
}

TEST(SettingsFile, OnlyAPlainOneIsWritten) {
    const TemporaryFolder folder;
    const std::filesystem::path link = folder / "link.ini", real = folder / "real.ini",
                                pipe = folder / "pipe.ini";
    const auto writeTo = [](const std::filesystem::path& file) {
        ::testing::internal::CaptureStderr();
        UseSettingsFile(QString::fromStdString(file.string()));
        SaveSetting("S", "Key", "value");
        EXPECT_EQ(GetSetting("S", "Key", ""), "value");
        UseSettingsFile(QString::fromStdString(file.string() + ".other"));
        return ::testing::internal::GetCapturedStderr();
    };
    std::filesystem::create_symlink("real.ini", link);
    const std::string told = writeTo(link);
    ASSERT_FALSE(std::filesystem::exists(real)) << "a link that leads nowhere";
    EXPECT_NE(told.find(link.string()), std::string::npos) << told;
    folder.Write("real.ini", "");
    EXPECT_EQ(writeTo(link), "");
    EXPECT_NE(TemporaryFolder::Read(real).find("Key=value"), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_NE(writeTo(pipe), "");
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST(Fonts, PointsAndAttributes) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (const auto& [points, pixels] : {std::pair{8.0, 11}, {8.25, 11}, {22.0, 29}, {-5.0, 1}, {none, 1}})
        EXPECT_EQ(ScreenFont({"Arial", points}).pixelSize(), pixels) << points;
    const QFont all = ScreenFont({"Arial", 8, true, true, true, true});
    EXPECT_TRUE(all.bold() && all.italic() && all.underline() && all.strikeOut());
    EXPECT_FALSE(ScreenFont({}).bold());
}

TEST(Fonts, StandInsHaveTheRightWidths) {
    const auto width = [](const char* name) {
        return QFontMetrics(ScreenFont({name, 10})).horizontalAdvance("The quick brown fox jumps");
    };
    EXPECT_NEAR(width("Tahoma"), width("Verdana") * 0.89, 5) << "narrower than the face that stands in";
    EXPECT_EQ(width("Tahoma"), width("tahoma"));
    EXPECT_EQ(width("Tahoma"), width(""));
    EXPECT_EQ(width("Tahoma"), width("14"));
    const QFontMetrics fixed(ScreenFont({"courier new", 10}));
    EXPECT_EQ(fixed.horizontalAdvance("iiii"), fixed.horizontalAdvance("WWWW"));
    EXPECT_LT(width("Times New Roman"), width("Arial"));
    EXPECT_EQ(QFontInfo(ScreenFont({"No such face", 10})).family(), "DejaVu Sans");
}

TEST(Fonts, SymbolsHaveTheirGlyphs) {
    const QRawFont first = QRawFont::fromFont(QFont("Symbola")),
                   second = QRawFont::fromFont(QFont("DejaVu Sans"));
    for (const auto& [font, missing] : {std::pair{"Wingdings", 0}, {"Webdings", 0}, {"Symbol", 35}}) {
        int without = 0;
        for (int code = 0x21; code <= 0xFF; ++code) {
            const char32_t symbol = SymbolOf(font, code);
            without += symbol == 0;
            EXPECT_TRUE(!symbol || first.supportsCharacter(symbol) || second.supportsCharacter(symbol))
                << font << " " << std::hex << code;
        }
        EXPECT_EQ(without, missing) << font;
        EXPECT_EQ(SymbolOf(font, 0x20), 0u);
    }
}

TEST(Fonts, SymbolsOfCharacters) {
    struct Case {
        const char* font;
        const char* text;
        char32_t symbol;
    };
    for (const Case& one : {Case{"wingdings", "\u00EC", 0x1F87D}, Case{"Webdings", "i", 0x1F6C8},
                            Case{"Wingdings", "\uF0D6", 0x2326}, Case{"Wingdings", "\u20AC", 0x24EA},
                            Case{"Webdings", "\u00FF", 0x1F54A}, Case{"Symbol", "p", 0x3C0}})
        EXPECT_EQ(ShownText({one.font}, one.text), QString::fromUcs4(&one.symbol, 1)) << one.text;
    EXPECT_EQ(ShownText({"Arial"}, "i\u00EC"), QString::fromUtf8("i\u00EC"));
    EXPECT_EQ(ShownText({"Wingdings"}, " \u4E2D"), QString::fromUtf8(" \u4E2D")) << "no code, no symbol";
}

TEST(Controls, KeepTheirPlace) {
    QWidget window;
    Control control(&window, "Element", 3);
    control.Move({-5, 6, 7, 0});
    EXPECT_EQ(control.Bounds(), (Rect{-5, 6, 7, 0}));
    EXPECT_EQ(FailureNumber([&] { control.Move({0, 0, -1, 5}); }), 380);
    EXPECT_EQ(FailureNumber([&] { control.Move({0, 0, 5, -1}); }), 380);
    EXPECT_EQ(control.Bounds(), (Rect{-5, 6, 7, 0}));
    constexpr int most = std::numeric_limits<int>::max();
    control.Move({most, -most, most, most});
    EXPECT_LT(control.Bounds().left, most);
    for (const auto& [pointer, shape] :
         {std::pair{PointerSizeAll, Qt::SizeAllCursor}, {PointerDefault, Qt::ArrowCursor}}) {
        control.SetMousePointer(pointer);
        EXPECT_EQ(control.cursor().shape(), shape);
    }
    EXPECT_EQ(ScreenColour(-1), QColor(Qt::black));
}

class Listener : public ControlEvents {
public:
    void MouseDown(Control& control, const Mouse& m) override { Note("down", control, m); }
    void MouseMove(Control& control, const Mouse& m) override { Note(m.button ? "drag" : "", control, m); }
    void MouseUp(Control& control, const Mouse& m) override { Note("up", control, m); }
    std::vector<std::string> heard;

private:
    void Note(const std::string& what, const Control& control, const Mouse& m) {
        if (what.empty()) return;  // the mouse on its way
        heard.push_back(what + " " + control.Name + " " + std::to_string(m.button) + " " +
                        std::to_string(m.shift) + " " + std::to_string(m.x) + "," + std::to_string(m.y));
    }
};

TEST(Controls, TheMouseStopsAtTheFrontOne) {
    struct Window : QWidget {
        int pressed = 0;
        void mousePressEvent(QMouseEvent*) override { ++pressed; }
    } window;
    window.resize(100, 100);
    Listener listener;
    Control back(&window, "back"), front(&window, "front");
    TextBox text(&window, "text");
    for (Control* control : {&back, &front, static_cast<Control*>(&text)}) control->Listen(&listener);
    back.Move({0, 0, 50, 50});
    front.Move({20, 20, 50, 20});
    text.Move({0, 60, 50, 20});
    text.SetBorderStyle(1);
    text.Edit().setReadOnly(true);
    window.show();
    QTest::mousePress(window.windowHandle(), Qt::RightButton, Qt::ShiftModifier | Qt::AltModifier, {25, 25});
    QTest::mouseRelease(window.windowHandle(), Qt::RightButton, {}, {25, 25});
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::ControlModifier, {10, 70});
    EXPECT_EQ(listener.heard, (std::vector<std::string>{"down front 2 5 5,5", "up front 2 0 5,5",
                                                        "down text 1 2 10,10", "up text 1 2 10,10"}));
    back.ZOrder();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {25, 25});
    EXPECT_EQ(listener.heard[4], "down back 1 0 25,25");
    EXPECT_EQ(window.pressed, 0);
}

TEST(PictureBox, GroundPictureLayer) {
    PictureBox box(nullptr, "pInfo");
    box.Move({0, 0, 4, 2});
    box.SetBackColor(Rgb(255, 0, 0));
    QImage image(2, 1, QImage::Format_RGB32);
    image.fill(Qt::green);
    box.SetPicture(std::make_shared<Picture>(Picture{image, {}}));
    box.Draw([](QPainter& painter) { painter.fillRect(1, 0, 1, 2, Qt::blue); });
    const auto row = [&](int y) {
        std::string colours;
        const QImage seen = box.grab().toImage();
        for (int x = 0; x < 4; ++x) {
            const QColor at = seen.pixelColor(x, y);
            colours += at == Qt::red ? 'r' : at == Qt::green ? 'g' : at == Qt::blue ? 'b' : '?';
        }
        return colours;
    };
    EXPECT_EQ(row(0), "gbrr");
    EXPECT_EQ(row(1), "rbrr");
    box.Cls();
    EXPECT_EQ(row(0), "ggrr");
    box.SetPicture(nullptr);
    EXPECT_EQ(row(0), "rrrr");
}

TEST(dbLine, SurroundsItsLine) {
    QWidget window;
    dbLine line(&window, "cPoint");
    struct Case {
        int x1, y1, x2, y2;
        Rect bounds, inner;
    };
    for (const Case& one :
         {Case{10, 10, 10, 100, {10, 10, 2, 92}, {0, 0, 0, 90}}, Case{0, 0, 5, 7, {0, 0, 7, 9}, {0, 0, 5, 7}},
          Case{5, 7, 0, 0, {0, 0, 7, 9}, {5, 7, -5, -7}}, Case{5, 0, 0, 7, {0, 0, 7, 9}, {5, 0, -5, 7}},
          Case{-3, 9, 4, 2, {-3, 2, 9, 9}, {0, 7, 7, -7}}}) {
        line.MoveTo(one.x1, one.y1, one.x2, one.y2);
        EXPECT_EQ(line.Bounds(), one.bounds);
        EXPECT_EQ(line.InnerLine(), one.inner);
    }
    line.MoveTo(0, 0, 10, 10);
    line.SetX1(20);
    line.SetY2(-10);
    EXPECT_EQ(line.Bounds(), (Rect{10, -10, 12, 12}));
    EXPECT_EQ(line.InnerLine(), (Rect{10, 10, -10, -10}));
    constexpr int most = std::numeric_limits<int>::max();
    line.MoveTo(-most, most, most, -most);
    EXPECT_GE(line.InnerLine().left, 0);
}

class Window : public Form {
public:
    Window() : Form(nullptr, "frm", Qt::Window) {}
    bool mayClose = true;
    int resized = 0, unloaded = 0;

protected:
    void Form_Resize() override { ++resized; }
    bool Form_QueryUnload() override { return mayClose; }
    void Form_Unload() override { ++unloaded; }
};

TEST(Forms, TwipsAreOutside) {
    Window window;
    window.MoveTwips({1020, 135, 12120, 9435});
    EXPECT_EQ(window.ScaleWidth(), 800);
    EXPECT_EQ(window.ScaleHeight(), 600);
    EXPECT_EQ(window.pos(), QPoint(68, 9));
    window.show();
    EXPECT_EQ(window.TwipBounds(), (Rect{1020, 135, 12120, 9435}));
    EXPECT_GT(window.resized, 0);
    window.SetWindowState(StateMinimised);
    EXPECT_EQ(window.WindowState(), StateMinimised);
    window.SetWindowState(StateNormal);
    for (const bool may : {false, true}) {
        window.mayClose = may;
        EXPECT_EQ(window.close(), may);
        EXPECT_EQ(window.unloaded, may ? 1 : 0);
    }
}

TEST(Forms, ComeUpMaximisedAndGoBack) {
    Window window;
    const Rect saved = {300, 450, 6000, 4500};
    window.MoveTwips(saved);
    window.SetWindowState(StateMaximised);
    window.show();
    EXPECT_EQ(window.WindowState(), StateMaximised);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.ScaleWidth() > 600; }));
    EXPECT_EQ(window.TwipBounds(), saved);
    window.SetWindowState(StateNormal);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.ScaleWidth() < 600; }));
    EXPECT_EQ(window.TwipBounds(), saved);
}

/// The desktop tells a place without the frame while it takes the frame off and puts it on again.
TEST(Forms, ArePlacedByTheUserOnlyOnceTheyAreSeen) {
    struct : QObject {
        bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::Move; }
    } deaf;
    Window window;
    window.MoveTwips({300, 450, 6000, 4500});
    window.show();
    window.installEventFilter(&deaf);
    window.move(21, 50);
    window.removeEventFilter(&deaf);
    for (const QPoint& corner : {QPoint(20, 30), QPoint(21, 50)}) {
        QMoveEvent moved(window.pos(), {});
        QSpontaneKeyEvent::setSpontaneous(&moved);
        qApp->notify(&window, &moved);
        EXPECT_EQ(window.Corner(), corner);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
}

TEST(Forms, APlaceOffEveryScreenComesBack) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const Rect& lost :
         {Rect{900000, 0, 4500, 4500}, Rect{0, -90000, 4500, 4500}, Rect{-90000, 900000, 4500, 4500},
          Rect{-2147483647, 2147483647, 2147483647, 2147483647}}) {
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
    EXPECT_GE(PanelScale(QFont(ScreenFont({.Size = 14})))(15), 22);
    for (const int shown : {4800, 6001, 7211}) {  // what is stored doesn't wander from run to run
        const PanelScale scale(23, 14);
        const int stored = scale.Designed(shown);
        EXPECT_EQ(scale.Designed(scale(stored)), stored);
    }
}

TEST(Panels, StandBesideTheMainWindow) {
    const QRect screen(0, 0, 1600, 1200), project(1100, 9, 203, 206);
    const struct {
        QRect main;
        QSize window;
        std::vector<QRect> taken;
        std::optional<QPoint> place;
    } cases[] = {
        {{68, 9, 1032, 797}, {203, 206}, {}, QPoint(1100, 9)},
        {{68, 9, 1032, 797}, {183, 381}, {project}, QPoint(1303, 9)},
        {{68, 9, 1032, 797}, {320, 669}, {project, {1303, 9, 183, 381}}, QPoint(1100, 390)},
        {{500, 9, 1032, 797}, {203, 206}, {}, QPoint(297, 9)},
        {{68, 9, 1032, 797}, {320, 669}, {{1100, 0, 500, 700}}, std::nullopt},
        {{0, 0, 1600, 1200}, {203, 206}, {}, std::nullopt},
    };
    for (const auto& row : cases)
        EXPECT_EQ(PlaceBeside(screen, row.main, row.window, row.taken), row.place) << row.window.height();
}

}  // namespace
}  // namespace ornavo
