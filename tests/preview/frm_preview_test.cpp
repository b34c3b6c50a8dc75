// SPDX-License-Identifier: MIT
#include "preview/frm_preview.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include "document/codes.h"
#include "editor/settings_keys.h"
#include "platform/clock.h"
#include "render/shape.h"
#include "support/canvas_fixture.h"
#include "support/failure_number.h"

namespace ornavo::testing {
namespace {

/// Half past nine, but out of order where a test says so.
class SmallClock : public Clock {
public:
    SmallClock() { UseClock(this); }
    ~SmallClock() override { UseClock(nullptr); }
    QDateTime Now() const override {
        if (fails) throw Failure(5, "Clock", "no clock");
        return {QDate(2020, 2, 3), QTime(9, 30, 0)};
    }
    bool fails = false;
};

struct CornerRow {
    int x, hAlign, y, vAlign;
};

class PreviewTest : public SkinTest {
protected:
    ~PreviewTest() override { TargetLayout.reset(); }
    void Open() {
        preview_ = std::make_unique<frm_Preview>(windows_);
        preview_->Open({450, 600});
        QCoreApplication::processEvents();
    }
    /// What is left of a picture when the window's mask has cut it.
    QImage Cut(const QImage& picture) const {
        QImage cut(picture.size(), QImage::Format_ARGB32_Premultiplied);
        cut.fill(Qt::transparent);
        QPainter painter(&cut);
        if (!preview_->mask().isEmpty()) painter.setClipRegion(preview_->mask());
        painter.drawImage(0, 0, picture);
        return cut;
    }
    static void SetCorners(const std::vector<CornerRow>& corners) {
        objCurrentLayout->dbPoints = std::make_shared<dbPoints>();
        for (const CornerRow& c : corners) {
            dbPoint& point = *objCurrentLayout->dbPoints->Add(objCurrentLayout->dbPoints->Count() + 1);
            point.X = c.x, point.HAlign = c.hAlign, point.Y = c.y, point.VAlign = c.vAlign;
        }
    }
    QByteArray Saved() const {
        objSkin->SaveSkin(false);
        QFile file(Path("SkinSettings.xml"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    SmallClock clock_;
    ScriptedPrompts prompts_;
    RecordedWindows windows_;
    std::unique_ptr<frm_Preview> preview_;
};

const std::vector<CornerRow> Concave = {{0, 0, 0, 0}, {30, 0, 0, 0}, {60, 0, 30, 0}, {60, 0, 0, 0},
                                        {0, 2, 0, 0}, {0, 2, 0, 2},  {0, 0, 0, 2}};

TEST_F(PreviewTest, TheWindowHasTheShapeAtEverySizeOrIsWhole) {
    const std::pair<bool, std::vector<CornerRow>> shapes[] = {
        {true, Concave},
        {false, {{0, 0, 0, 0}, {50, 0, 50, 0}, {99, 0, 99, 0}}},                       // flat
        {false, {{-90, 0, 0, 0}, {-10, 0, 0, 0}, {-10, 0, 80, 0}, {-90, 0, 80, 0}}}};  // elsewhere
    for (const auto& [cuts, corners] : shapes) {
        SetCorners(corners);
        Open();
        for (const int size : {100, 160, 300, 0}) {
            if (size > 0)
                preview_->resize(size, size + 7);
            else
                preview_->ToggleMaximise();
            QCoreApplication::processEvents();
            const Frame frame = {preview_->width(), preview_->height(), 100, 100};
            EXPECT_EQ(preview_->mask(), cuts ? ShapeRegion(*objCurrentLayout, frame) : QRegion()) << size;
        }
    }
}

TEST_F(PreviewTest, AShapeThatCantBePlacedLeavesTheWindowWhole) {
    SetCorners({{0, 0, 0, 0}, {50, 0, 90, 0}, {std::numeric_limits<int>::max(), 1, 0, 0}});
    Open();
    preview_->ShowOutline({90, 90});
    ASSERT_FALSE(preview_->mask().isEmpty());
    EXPECT_EQ(FailureNumber([&] { preview_->ShowOutline({700, 700}); }), 6);
    preview_->EndOutline();
    EXPECT_TRUE(preview_->mask().isEmpty());
}

TEST_F(PreviewTest, WhatCantBeComposedIsToldAndTheRestIsShown) {
    objSkin->SkinWidth = 0;
    dbLayoutElement& scaled = Add("scaled", TypeButton, {0, 0, 10, 10});
    scaled.LockLeft = false;
    scaled.StretchWidth = true;
    Add("good", TypeButton, {5, 6, 10, 11});
    Open();
    EXPECT_EQ(prompts_.asked.size(), 1u);
    EXPECT_TRUE(preview_->isVisible() && preview_->tmrScroller.isActive());
    EXPECT_EQ(preview_->host().Element[1].Bounds(), (Rect{5, 6, 10, 11}));
    EXPECT_EQ(preview_->host().Element.Top(), 1);
}

TEST_F(PreviewTest, OneThatCantBeOpenedIsNotSeenAndCanBeLeft) {
    clock_.fails = true;
    EXPECT_EQ(FailureNumber([&] { Open(); }), 5);
    EXPECT_FALSE(preview_->isVisible() || preview_->tmrScroller.isActive() ||
                 preview_->tmrSeekerDemo.isActive() || preview_->tmrTip.isActive());
    EXPECT_EQ(windows_.left, 0) << "who asked is told by the failure";
    clock_.fails = false;
    Open();
    EXPECT_TRUE(preview_->isVisible() && preview_->tmrSeekerDemo.isActive());
}

TEST_F(PreviewTest, IsLeftByKeysAndKeepsItsPlace) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F5, Qt::Key_unknown}) {
        windows_.left = 0;
        Open();
        EXPECT_EQ(preview_->pos(), QPoint(30, 40));
        QTest::keyClick(preview_->windowHandle(), Qt::Key_A);
        EXPECT_TRUE(preview_->isVisible());
        if (key == Qt::Key_unknown)
            preview_->close();
        else
            QTest::keyClick(preview_->windowHandle(), key);
        EXPECT_EQ(windows_.left, 1);
        EXPECT_FALSE(preview_->isVisible() || preview_->tmrScroller.isActive());
    }
    Open();
    preview_->move(75, 60);
    preview_->close();
    EXPECT_EQ(settings::PreviewLeft(0).Read(), 75 * TwipsPerPixel);
    Open();
    EXPECT_EQ(preview_->pos(), QPoint(75, 60));
    preview_->ToggleMaximise();
    preview_->close();
    EXPECT_EQ(settings::PreviewTop(0).Read(), 60 * TwipsPerPixel);
}

TEST_F(PreviewTest, TheFirstFrameIsTheToolsPicture) {
    Picture("on.bmp", Qt::green, 40, 10);
    Picture("off.bmp", Qt::blue, 40, 10);
    for (int i = 0; const int type : {1, 17, 5, 0}) {
        dbLayoutElement& e = Add(("I" + std::to_string(type)).c_str(), TypeInfo, {10, 10 + 20 * i++, 80, 18});
        e.InfoType = type, e.PicNormal = "off.bmp", e.PicOn = "on.bmp", e.Seeker = type == 0;
        e.CapScrollSpeed = 2, e.InfoField = "Label", e.Caption = "Old", e.SeekerColor = 255;
    }
    Add("Dial", TypeVolume, {80, 80, 20, 20}).PicNormal = "on.bmp";
    SetCorners(Concave);
    Open();  // a composition gives fonts to those that have none
    preview_->close();
    const QByteArray before = Saved();
    ASSERT_FALSE(before.isEmpty());
    QProcess tool;
    tool.start(QStringLiteral(ORNAVO_BINARY_DIR "/ornavo-cli"),
               {"render", Path(""), "--layout", "Standard", "--out", Path("tool.png"), "--view", "preview",
                "--edge", "hard", "--time", "09:30:00"});
    ASSERT_TRUE(tool.waitForFinished(60'000));
    ASSERT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
    Open();
    const QImage drawn(Path("tool.png"));
    EXPECT_EQ(Cut(preview_->grab().toImage()).convertToFormat(drawn.format()), drawn);
    for (int i = 0; i < 100; ++i) Fire(preview_->tmrScroller);
    Fire(preview_->tmrSeekerDemo);
    EXPECT_NE(Cut(preview_->grab().toImage()).convertToFormat(drawn.format()), drawn);
    preview_->close();
    EXPECT_EQ(Saved(), before);
}

}  // namespace
}  // namespace ornavo::testing
