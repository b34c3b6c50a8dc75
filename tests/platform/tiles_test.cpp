// SPDX-License-Identifier: MIT
#include "platform/tile_button.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QEnterEvent>
#include <QTest>

#include "platform/tile_cache.h"
#include "platform/tile_command.h"
#include "support/small_gif.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

PictureRef Plain(const QColor& colour, int width = 4, int height = 4) {
    QImage image(width, height,
                 colour.alpha() < 255 ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    image.fill(colour);
    return std::make_shared<Picture>(Picture{image, {}});
}

class Counting : public TileButton {
public:
    using TileButton::TileButton;
    int painted = 0;

protected:
    void paintEvent(QPaintEvent* event) override {
        ++painted;
        TileButton::paintEvent(event);
    }
};

class Heard : public ControlEvents {
public:
    void MouseDown(Control&, const Mouse& mouse) override { said += "down" + std::to_string(mouse.button); }
    void MouseUp(Control&, const Mouse&) override { said += " up"; }
    void Repeat(Control&) override { said += " repeat"; }
    std::string said;
};

class TileButtonTest : public ::testing::Test {
protected:
    TileButtonTest() {
        window.resize(100, 50);
        button.Move({10, 10, 20, 10});
        button.State.BackStyle = 0;
        window.show();
    }
    QColor Shown() { return window.grab().toImage().pixelColor(15, 15); }
    void Enter() {
        QEnterEvent event({5, 5}, {5, 5}, {5, 5});
        QCoreApplication::sendEvent(&button, &event);
    }
    void Leave() {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(&button, &event);
    }
    std::string Gif() { return folder.Write("moving.gif", SmallGif(2)).string(); }

    TemporaryFolder folder;
    QWidget window;
    Counting& button = *new Counting(&window, "Element", 1);
    Heard heard;
};

TEST_F(TileButtonTest, ShowsThePictureOfItsState) {
    button.Picture = Plain(Qt::red);
    button.PictureOver = Plain(Qt::green);
    button.PictureDown = Plain(Qt::blue);
    button.Refresh();
    EXPECT_EQ(Shown(), QColor(Qt::red));
    Enter();
    EXPECT_EQ(Shown(), QColor(Qt::green));
    QTest::mousePress(&button, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(Shown(), QColor(Qt::blue));
    QTest::mouseMove(&button, {-5, 5});
    EXPECT_EQ(Shown(), QColor(Qt::green)) << "held, but outside";
    QTest::mouseMove(&button, {5, 5});
    EXPECT_EQ(Shown(), QColor(Qt::blue));
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(Shown(), QColor(Qt::green));
    Leave();
    EXPECT_EQ(Shown(), QColor(Qt::red));
    QTest::mousePress(&button, Qt::LeftButton, {}, {5, 5});
    button.hide();
    button.show();
    EXPECT_EQ(Shown(), QColor(Qt::red)) << "hidden while held";
    button.PictureOver = button.PictureDown = nullptr;
    button.Refresh();
    Enter();
    EXPECT_EQ(Shown(), QColor(Qt::red)) << "what is missing shows the normal one";
}

TEST_F(TileButtonTest, RefreshPaintsOnlyWhatHasChanged) {
    button.Picture = Plain(Qt::red);
    button.Elements.Add("Caption").Text = "one";
    button.Refresh();
    QCoreApplication::processEvents();
    button.painted = 0;
    const auto reuse = [&](const char* text) {
        const PictureRef picture = button.Picture;
        button.Reset();
        button.State.BackStyle = 0;
        button.Picture = picture;
        button.Elements.Add("Caption").Text = text;
        button.Move({10, 10, 20, 10});
        button.Refresh();
        QCoreApplication::processEvents();
        return std::exchange(button.painted, 0);
    };
    EXPECT_EQ(reuse("one"), 0);
    EXPECT_EQ(reuse("two"), 1);
}

TEST_F(TileButtonTest, AReusedSlotHasNothingOfBefore) {
    button.Picture = button.PictureOver = Plain(Qt::red);
    button.AniPictureDown = Gif();
    button.Repeats = true;
    button.SetMousePointer(PointerSizeAll);
    button.State.ShowBorder = true;
    button.Elements.Add("Caption").Text = "before";
    button.Reset();
    EXPECT_TRUE(button.State == TileState() && button.Elements == TileLayers());
    EXPECT_FALSE(button.Picture || button.PictureOver || button.PictureDown || button.Repeats);
    EXPECT_EQ(button.AniPicture + button.AniPictureOver + button.AniPictureDown, "");
    EXPECT_EQ(button.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(TileButtonTest, ReadsBackTheTopLeftColour) {
    button.State.TransparentColor = Rgb(1, 2, 3);
    button.State.UseTransparency = button.State.TransColorTopLeft = true;
    button.Picture = Plain(QColor(9, 8, 7));
    button.Refresh();
    EXPECT_EQ(button.TransparentColor(), Rgb(9, 8, 7));
    button.Picture = nullptr;
    button.Refresh();
    EXPECT_EQ(button.TransparentColor(), Rgb(1, 2, 3));
    button.AniPicture = Gif();
    button.Refresh();
    EXPECT_EQ(button.TransparentColor(), Rgb(255, 0, 0)) << "of the first frame";
}

TEST_F(TileButtonTest, RepeatsWhileHeld) {
    button.Listen(&heard);
    button.Repeats = true;
    auto* timer = button.findChild<QTimer*>();
    ASSERT_TRUE(timer);
    QTest::mousePress(&button, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(timer->interval(), 300);
    const auto fire = [&] {
        QTimerEvent tick(timer->timerId());
        QCoreApplication::sendEvent(timer, &tick);
    };
    fire();
    EXPECT_EQ(timer->interval(), 100);
    fire();
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {5, 5});
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(heard.said, "down1 repeat repeat up");
    QTest::mousePress(&button, Qt::RightButton);
    EXPECT_FALSE(timer->isActive());
    QTest::mousePress(&button, Qt::LeftButton);
    button.hide();
    EXPECT_FALSE(timer->isActive());
}

TEST_F(TileButtonTest, AnimationsRunOnlyWhileSeen) {
    button.Picture = Plain(Qt::green);
    button.AniPicture = Gif();
    EXPECT_TRUE(button.IsAnimatedGIF(button.AniPicture));
    button.Refresh();
    EXPECT_TRUE(button.IsRunning());
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
    EXPECT_EQ(Shown(), QColor(Qt::green));
    Leave();
    window.hide();
    EXPECT_FALSE(button.IsRunning());
}

TEST(TileCache, MakesAPictureOnceForALook) {
    const PictureRef picture = Plain(Qt::red);
    TileState state;
    const auto first = FinishedTile(picture, state, {50, 50}, 1);
    state.BackColor = Rgb(1, 2, 3);  // not of the picture
    EXPECT_EQ(FinishedTile(picture, state, {50, 50}, 1), first);
    EXPECT_NE(FinishedTile(picture, state, {51, 50}, 1), first);
    EXPECT_NE(FinishedTile(picture, state, {50, 51}, 1), first);
    state.UseTransparency = state.TransColorTopLeft = true;
    const auto keyed = FinishedTile(picture, state, {50, 50}, 1);
    EXPECT_NE(keyed, first);
    state.TransColorTopLeft = false;
    state.TransparentColor = Rgb(255, 0, 0);
    EXPECT_EQ(FinishedTile(picture, state, {50, 50}, 1), keyed) << "the same key colour by another road";
    for (int width = 3900; width < 3920; ++width) FinishedTile(picture, state, {width, 1000}, 1);
    EXPECT_LE(TileCacheSize(), TileCacheBytes);
    EXPECT_NE(FinishedTile(picture, state, {50, 50}, 1), keyed) << "dropped for the large ones";
    EXPECT_EQ(FinishedTile(nullptr, state, {50, 50}, 1), nullptr);
    const PictureRef clear = Plain(Qt::transparent);
    state.TransparentColor = 0;
    const auto black = FinishedTile(clear, state, {50, 50}, 1);
    state.TransColorTopLeft = true;
    EXPECT_NE(FinishedTile(clear, state, {50, 50}, 1), black) << "a clear corner is no black one";
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

TEST_F(TileCommandTest, IsClickedByMouseWhenThePointerHasNotLeft) {
    QTest::mouseClick(&command, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::mouseDClick(&command, Qt::LeftButton);
    QTest::mouseRelease(&command, Qt::LeftButton);
    EXPECT_EQ(clicks, 2) << "the second of two quick presses is one too";
    QTest::mouseClick(&command, Qt::RightButton);
    QTest::mousePress(&command, Qt::LeftButton);
    QTest::mouseRelease(&command, Qt::LeftButton, {}, {500, 5});
    EXPECT_EQ(clicks, 2);
}

TEST_F(TileCommandTest, IsClickedByKeysAndByItsMnemonic) {
    command.setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) QTest::keyClick(&command, key);
    EXPECT_EQ(clicks, 3);
    QTest::keyClick(&command, Qt::Key_A);
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(clicks, 4);
    command.SetCaption("&Keep skin");
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(clicks, 4);
    QTest::keyPress(&command, Qt::Key_Space);
    command.clearFocus();
    QTest::keyRelease(&command, Qt::Key_Space);
    EXPECT_EQ(clicks, 4) << "the focus went away in between";
}

TEST_F(TileCommandTest, DoesNothingWhileItIsDisabled) {
    command.setEnabled(false);
    QTest::mouseClick(&command, Qt::LeftButton);
    command.PerformClick();
    EXPECT_EQ(clicks, 0);
}

TEST_F(TileCommandTest, IsAButtonForAScreenReader) {
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&command);
    EXPECT_EQ(told->role(), QAccessible::Button);
    EXPECT_EQ(told->text(QAccessible::Name), "Save skin");
    told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks, 1);
    command.SetCaption("");
    command.setToolTip("Save");
    EXPECT_EQ(told->text(QAccessible::Name), "Save");
}

TEST_F(TileCommandTest, ItsSizeHoldsPictureAndCaption) {
    const QSize text = command.sizeHint();
    command.SetPicture("none.png", 32);
    EXPECT_EQ(command.sizeHint().width(), text.width() + 32 + 5);
    command.SetPictureAbove(true);
    EXPECT_EQ(command.sizeHint().width(), text.width());
    EXPECT_GT(command.sizeHint().height(), text.height() + 32);
}

}  // namespace
}  // namespace ornavo::testing
