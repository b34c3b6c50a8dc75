// SPDX-License-Identifier: MIT
#include "platform/tile_button.h"

#include <QEnterEvent>
#include <QLineEdit>

#include "platform/text_controls.h"
#include "platform/tile_cache.h"
#include "platform/tile_command.h"
#include "support/failure_number.h"
#include "support/small_gif.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

PictureRef Plain(const QColor& colour) {
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(colour);
    return std::make_shared<Picture>(image);
}

/// What a control tells: "down" or "up", its name, button, keys and place.
class Heard : public ControlEvents {
public:
    void MouseDown(Control& control, const Mouse& m) override { Note("down ", control, m); }
    void MouseUp(Control& control, const Mouse& m) override { Note("up ", control, m); }
    void Repeat(Control&) override { said += "repeat, "; }
    std::string said;

private:
    void Note(const std::string& what, const Control& control, const Mouse& m) {
        said += what + control.Name;
        for (const int number : {m.button, m.shift, m.x, m.y}) said += ' ' + std::to_string(number);
        said += ", ";
    }
};

TEST(Controls, KeepTheirPlace) {
    QWidget window;
    Control control(&window, "Element", 3);
    control.Move({-5, 6, 7, 0});
    EXPECT_EQ(control.Bounds(), (Rect{-5, 6, 7, 0}));
    for (const Rect& none : {Rect{0, 0, -1, 5}, {0, 0, 5, -1}})
        EXPECT_EQ(FailureNumber([&] { control.Move(none); }), 380);
    EXPECT_EQ(control.Bounds(), (Rect{-5, 6, 7, 0}));
}

TEST(Controls, TheMouseStopsAtTheFrontOne) {
    QWidget window;
    window.resize(100, 100);
    Heard heard;
    Control back(&window, "back"), front(&window, "front");
    TextBox text(&window, "text");
    for (Control* control : {&back, &front, static_cast<Control*>(&text)}) control->Listen(&heard);
    back.Move({0, 0, 50, 50});
    front.Move({20, 20, 50, 20});
    text.Move({0, 60, 50, 20});
    text.SetBorderStyle(1);
    text.Edit().setReadOnly(true);
    window.show();
    QTest::mousePress(window.windowHandle(), Qt::RightButton, Qt::ShiftModifier | Qt::AltModifier, {25, 25});
    QTest::mouseRelease(window.windowHandle(), Qt::RightButton, {}, {25, 25});
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::ControlModifier, {10, 70});
    EXPECT_EQ(std::exchange(heard.said, ""),
              "down front 2 5 5 5, up front 2 0 5 5, down text 1 2 10 10, up text 1 2 10 10, ");
    back.ZOrder();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {25, 25});
    EXPECT_EQ(heard.said, "down back 1 0 25 25, up back 1 0 25 25, ");
}

class TileButtonTest : public ::testing::Test {
protected:
    TileButtonTest() {
        window.resize(100, 50);
        button.Move({10, 10, 20, 10});
        button.State.BackStyle = 0;
        window.show();
    }
    QColor Shown() { return window.grab().toImage().pixelColor(15, 15); }
    void Send(QEvent&& event) { QCoreApplication::sendEvent(&button, &event); }
    void Enter() { Send(QEnterEvent({5, 5}, {5, 5}, {5, 5})); }
    void Leave() { Send(QEvent(QEvent::Leave)); }
    void Press(Qt::MouseButton with = Qt::LeftButton) { QTest::mousePress(&button, with, {}, {5, 5}); }
    std::string Gif() { return folder.Write("moving.gif", SmallGif(2)).string(); }

    TemporaryFolder folder;
    QWidget window;
    TileButton& button = *new TileButton(&window, "Element", 1);
    Heard heard;
};

TEST_F(TileButtonTest, ShowsThePictureOfItsState) {
    button.Picture = Plain(Qt::red);
    button.PictureOver = Plain(Qt::green);
    button.PictureDown = Plain(Qt::blue);
    button.Refresh();
    std::string seen;
    const auto see = [&] { seen += Shown() == Qt::red ? 'r' : Shown() == Qt::green ? 'g' : 'b'; };
    see(), Enter(), see(), Press(), see();
    for (const int x : {-5, 5}) QTest::mouseMove(&button, {x, 5}), see();
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {5, 5});
    see(), Leave(), see(), Press(), button.hide(), button.show(), see();
    EXPECT_EQ(seen, "rgbgbgrr") << "held outside as over; hidden while held as left";
    button.PictureOver = nullptr;
    button.Refresh();
    Enter();
    EXPECT_EQ(Shown(), QColor(Qt::red)) << "what is missing shows the normal one";
}

TEST_F(TileButtonTest, RepeatsWhileHeld) {
    button.Listen(&heard);
    button.Repeats = true;
    auto* timer = button.findChild<QTimer*>();
    ASSERT_TRUE(timer);
    Press();
    for (const int interval : {300, 100}) {
        EXPECT_EQ(timer->interval(), interval);
        QTimerEvent tick(timer->timerId());
        QCoreApplication::sendEvent(timer, &tick);
    }
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(heard.said, "down Element 1 0 5 5, repeat, repeat, up Element 1 0 5 5, ");
    Press(Qt::RightButton);
    EXPECT_FALSE(timer->isActive());
    Press();
    button.hide();
    EXPECT_FALSE(timer->isActive());
}

TEST_F(TileButtonTest, AnimationsRunOnlyWhileSeen) {
    button.Picture = Plain(Qt::green);
    button.AniPicture = Gif();
    button.Refresh();
    EXPECT_EQ(Shown(), QColor(Qt::red)) << "goes before the plain one";
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown() == QColor(Qt::blue); })) << "the second frame";
    button.hide();
    EXPECT_FALSE(button.IsRunning());
    button.show();
    EXPECT_TRUE(button.IsRunning());
    button.PictureOver = Plain(Qt::green);
    button.Refresh();
    Enter();
    EXPECT_FALSE(button.IsRunning());
}

TEST(TileCache, MakesAPictureOnceForALook) {
    const PictureRef picture = Plain(Qt::red);
    TileState state;
    const auto made = [&](Size size = {50, 50}) { return FinishedTile(picture, state, size, 1); };
    const auto first = made();
    state.BackColor = Rgb(1, 2, 3);  // not of the picture
    EXPECT_EQ(made(), first);
    EXPECT_TRUE(made({51, 50}) != first && made({50, 51}) != first);
    state.UseTransparency = state.TransColorTopLeft = true;
    const auto keyed = made();
    EXPECT_NE(keyed, first);
    state.TransColorTopLeft = false;
    state.TransparentColor = Rgb(255, 0, 0);
    EXPECT_EQ(made(), keyed) << "the same key colour by another function";
    for (int width = 3900; width < 3920; ++width) made({width, 1000});
    EXPECT_LE(TileCacheSize(), TileCacheBytes);
    EXPECT_NE(made(), keyed) << "dropped for the large ones";
}

class TileCommandTest : public ::testing::Test {
protected:
    TileCommandTest() : command(&window, "btn_Save") {
        QObject::connect(&command, &TileCommand::Click, [this] { ++clicks; });
        command.SetCaption("&Save skin");
        command.Move({10, 10, 120, 30});
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QWidget window;
    TileCommand command;
    int clicks = 0;
};

TEST_F(TileCommandTest, IsClickedByMouseByKeysAndByItsMnemonic) {
    QTest::mouseClick(&command, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::mouseDClick(&command, Qt::LeftButton);
    QTest::mouseRelease(&command, Qt::LeftButton);
    EXPECT_EQ(clicks, 2) << "the second of two quick presses is one too";
    QTest::mouseClick(&command, Qt::RightButton);
    QTest::mousePress(&command, Qt::LeftButton);
    QTest::mouseRelease(&command, Qt::LeftButton, {}, {500, 5});
    EXPECT_EQ(clicks, 2);
    command.setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A})
        QTest::keyClick(&command, key);
    EXPECT_EQ(clicks, 5);
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(clicks, 6);
    QTest::keyPress(&command, Qt::Key_Space);
    command.clearFocus();
    QTest::keyRelease(&command, Qt::Key_Space);
    EXPECT_EQ(clicks, 6) << "the focus went away in between";
    command.setEnabled(false);
    QTest::mouseClick(&command, Qt::LeftButton);
    command.PerformClick();
    EXPECT_EQ(clicks, 6);
}

}  // namespace
}  // namespace ornavo::testing
