// SPDX-License-Identifier: MIT
#include "platform/tile_command.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

namespace ornavo::testing {
namespace {

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
