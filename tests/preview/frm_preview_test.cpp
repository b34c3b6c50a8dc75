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

class HalfPastNine : public Clock {
public:
    HalfPastNine() { UseClock(this); }
    ~HalfPastNine() override { UseClock(nullptr); }
    QDateTime Now() const override { return {QDate(2020, 2, 3), QTime(9, 30, 0)}; }
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
    void Corner(std::int32_t x, std::int32_t hAlign, std::int32_t y, std::int32_t vAlign) {
        dbPoint& point = *objCurrentLayout->dbPoints->Add(objCurrentLayout->dbPoints->Count() + 1);
        point.X = x, point.HAlign = hAlign, point.Y = y, point.VAlign = vAlign;
    }
    QByteArray Saved() const {
        objSkin->SaveSkin(false);
        QFile file(Path("SkinSettings.xml"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    RecordedWindows windows_;
    std::unique_ptr<frm_Preview> preview_;
};

/// By the number of the polygon's sides to the left of the pixel.
bool Inside(const QPolygon& shape, int x, int y) {
    bool inside = false;
    for (int i = 0; i < shape.size(); ++i) {
        const QPoint a = shape[i], b = shape[(i + 1) % shape.size()];
        if ((a.y() <= y) == (b.y() <= y)) continue;
        if (a.x() + (y - a.y()) * (b.x() - a.x()) / (b.y() - a.y()) <= x) inside = !inside;
    }
    return inside;
}

struct CornerRow {
    int x, hAlign, y, vAlign;
};
struct ShapeCase {
    const char* name;
    bool leavesWhole;
    std::vector<CornerRow> corners;
};
// The sides are upright, level or at half a right angle, so that each pixel's side is beyond doubt.
const ShapeCase Shapes[] = {
    {"convex",
     false,
     {{20, 0, 0, 0},
      {20, 2, 0, 0},
      {0, 2, 20, 0},
      {0, 2, 20, 2},
      {20, 2, 0, 2},
      {20, 0, 0, 2},
      {0, 0, 20, 2},
      {0, 0, 20, 0}}},
    {"concave",
     false,
     {{0, 0, 0, 0}, {30, 0, 0, 0}, {60, 0, 30, 0}, {60, 0, 0, 0}, {0, 2, 0, 0}, {0, 2, 0, 2}, {0, 0, 0, 2}}},
    {"crossing", false, {{0, 3, 0, 3}, {100, 3, 100, 3}, {100, 3, 0, 3}, {0, 3, 100, 3}}},
    {"two points", true, {{0, 0, 0, 0}, {0, 2, 0, 2}}},
    {"flat", true, {{0, 0, 0, 0}, {50, 0, 50, 0}, {99, 0, 99, 0}}},
    {"elsewhere", true, {{-90, 0, 0, 0}, {-10, 0, 0, 0}, {-10, 0, 80, 0}, {-90, 0, 80, 0}}},
};

TEST_F(PreviewTest, TheWindowHasTheShapeAtEverySize) {
    for (const ShapeCase& one : Shapes) {
        while (objCurrentLayout->dbPoints->Count() > 0) objCurrentLayout->dbPoints->Remove(1);
        for (const CornerRow& c : one.corners) Corner(c.x, c.hAlign, c.y, c.vAlign);
        Open();
        for (const int size : {100, 160, 300, 0}) {
            if (size > 0)
                preview_->resize(size, size);
            else
                preview_->ToggleMaximise();
            QCoreApplication::processEvents();
            const QPolygon shape =
                ShapePolygon(*objCurrentLayout, {preview_->width(), preview_->height(), 100, 100}, true);
            ASSERT_EQ(preview_->mask().isEmpty(), one.leavesWhole) << one.name;
            if (one.leavesWhole) continue;
            QImage solid(preview_->size(), QImage::Format_ARGB32_Premultiplied);
            solid.fill(Qt::white);
            const QImage cut = Cut(solid);
            for (int y = 0; y < cut.height(); ++y)
                for (int x = 0; x < cut.width(); ++x)
                    ASSERT_EQ(qAlpha(cut.pixel(x, y)) != 0, Inside(shape, x, y))
                        << one.name << size << ' ' << x << ' ' << y;
        }
    }
}

TEST_F(PreviewTest, AShapeThatCantBePlacedLeavesTheWindowWhole) {
    for (const CornerRow& c :
         {CornerRow{0, 0, 0, 0}, {50, 0, 90, 0}, {std::numeric_limits<int>::max(), 1, 0, 0}})
        Corner(c.x, c.hAlign, c.y, c.vAlign);
    Open();
    preview_->ShowOutline({90, 90});
    ASSERT_FALSE(preview_->mask().isEmpty());
    EXPECT_EQ(FailureNumber([&] { preview_->ShowOutline({700, 700}); }), 6);
    preview_->EndOutline();
    EXPECT_TRUE(preview_->mask().isEmpty());
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
    const HalfPastNine clock;
    Picture("on.bmp", Qt::green, 40, 10);
    Picture("off.bmp", Qt::blue, 40, 10);
    const int types[] = {1, 17, 5, 0};
    for (int i = 0; i < 4; ++i) {
        dbLayoutElement& e = Add(("I" + std::to_string(i)).c_str(), TypeInfo, {10, 10 + 20 * i, 80, 18});
        e.InfoType = types[i], e.PicNormal = "off.bmp", e.PicOn = "on.bmp", e.Seeker = i == 3,
        e.CapScrollSpeed = 2;
        e.InfoField = "Label", e.Caption = "Old", e.SeekerColor = 255;
    }
    Add("Dial", TypeVolume, {80, 80, 20, 20}).PicNormal = "on.bmp";
    for (const CornerRow& c : Shapes[0].corners) Corner(c.x, c.hAlign, c.y, c.vAlign);
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
