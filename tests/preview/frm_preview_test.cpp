// SPDX-License-Identifier: MIT
#include "preview/frm_preview.h"

#include <QProcess>

#include "editor/settings_keys.h"
#include "platform/clock.h"
#include "render/shape.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

struct HalfPastNine : Clock {
    HalfPastNine() { UseClock(this); }
    ~HalfPastNine() override { UseClock(nullptr); }
    QDateTime Now() const override { return {QDate(2020, 2, 3), QTime(9, 30, 0)}; }
};

using CornerRow = std::array<int, 4>;  // x, its alignment, y, its alignment

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
        painter.setClipRegion(preview_->mask());
        painter.drawImage(0, 0, picture);
        return cut;
    }
    static void SetCorners(const std::vector<CornerRow>& corners) {
        dbPoints& points = *(objCurrentLayout->dbPoints = std::make_shared<dbPoints>());
        for (const auto& [x, hAlign, y, vAlign] : corners) {
            dbPoint& point = *points.Add(points.Count() + 1);
            point.X = x, point.HAlign = hAlign, point.Y = y, point.VAlign = vAlign;
        }
    }

    RecordedWindows windows_;
    std::unique_ptr<frm_Preview> preview_;
};

const std::vector<CornerRow> Concave = {{0, 0, 0, 0}, {30, 0, 0, 0}, {60, 0, 30, 0}, {60, 0, 0, 0},
                                        {0, 2, 0, 0}, {0, 2, 0, 2},  {0, 0, 0, 2}};

TEST_F(PreviewTest, TheWindowHasTheShapeAtEverySizeOrIsWhole) {
    const std::pair<bool, std::vector<CornerRow>> shapes[] = {
        {true, Concave},
        {false, {{-90, 0, 0, 0}, {-10, 0, 0, 0}, {-10, 0, 80, 0}, {-90, 0, 80, 0}}}};  // elsewhere
    for (const auto& [cuts, corners] : shapes) {
        SetCorners(corners);
        Open();
        for (const int size : {100, 160}) {
            preview_->resize(size, size + 7);
            QCoreApplication::processEvents();
            const Frame frame = {preview_->width(), preview_->height(), 100, 100};
            EXPECT_EQ(preview_->mask(), cuts ? ShapeRegion(*objCurrentLayout, frame) : QRegion()) << size;
        }
    }
}

TEST_F(PreviewTest, IsLeftByKeysAndKeepsItsPlace) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F5}) {
        windows_.left = 0;
        Open();
        EXPECT_EQ(preview_->pos(), QPoint(30, 40));
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
    const HalfPastNine clock;
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
    objSkin->SaveSkin(false);
    const std::string before = objSkin->FileBytes();
    QProcess tool;
    tool.start(QStringLiteral(ORNAVO_BINARY_DIR "/ornavo-cli"),
               {"render", Path(""), "--layout", "Standard", "--out", Path("tool.png"), "--view", "preview",
                "--edge", "hard", "--time", "09:30:00"});
    ASSERT_TRUE(tool.waitForFinished(60'000));
    ASSERT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
    Open();
    const QImage drawn(Path("tool.png")), first = preview_->grab().toImage();
    EXPECT_EQ(Cut(first).convertToFormat(drawn.format()), drawn);
    for (int i = 0; i < 100; ++i) Fire(preview_->tmrScroller);
    Fire(preview_->tmrSeekerDemo);
    EXPECT_NE(preview_->grab().toImage(), first);
    preview_->close();
    EXPECT_EQ(objSkin->FileBytes(), before);
}

}  // namespace
}  // namespace ornavo::testing
