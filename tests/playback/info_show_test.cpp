// SPDX-License-Identifier: MIT
#include "playback/info_show.h"

#include "document/codes.h"
#include "platform/clock.h"
#include "support/skin_fixture.h"

namespace ornavo::testing {
namespace {

const QColor Ground(10, 20, 30), BarColour(200, 60, 20), On(0, 250, 0), Off(0, 0, 250);

struct SetClock : Clock {
    SetClock() { UseClock(this); }
    ~SetClock() override { UseClock(nullptr); }
    QDateTime Now() const override { return {QDate(2020, 2, 3), time}; }
    QTime time = {12, 34, 56};
};

class InfoShowTest : public SkinTest {
protected:
    dbLayoutElement& Info(const char* key, int infoType, Rect at) {
        dbLayoutElement& e = Add(key, TypeInfo, at);
        e.InfoType = infoType;
        e.BackgroundColor = Rgb(10, 20, 30);
        e.TextColor = Rgb(255, 255, 255);
        e.SeekerColor = Rgb(200, 60, 20);
        e.CapScrollSpeed = 3;
        return e;
    }
    void Begin() {
        ComposePreview(target_, objCurrentLayout, 100, 100);
        infos_.Begin(target_.host(), *objCurrentLayout);
    }
    QImage Seen(const dbLayoutElement& e) {
        return target_.host().pInfo[e.ControlIndex].grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    /// The picture of a box whose left `width` and top `height` pixels have one colour, and the rest another.
    static QImage Filled(QSize size, QColor inside, int width, int height, QColor outside) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(outside);
        QPainter(&image).fillRect(0, 0, width, height, inside);
        return image;
    }
    SetClock clock_;
    Target target_{100, 100};
    InfoShow infos_;
};

TEST_F(InfoShowTest, BarsFollowTheSong) {
    dbLayoutElement& bar = Info("Bar", 0, {0, 0, 60, 10});
    bar.Seeker = true;
    bar.SeekTopOffset = bar.SeekLeftOffset = 0;
    Begin();
    EXPECT_EQ(Seen(bar), Filled({60, 10}, BarColour, 12, 10, Ground));
    for (const auto& [position, width] : {std::pair{149500, 30}, {300000, 0}}) {
        infos_.SeekPos = position;
        infos_.tmrSeekerDemo_Timer();
        infos_.tmrScroller_Timer();
        EXPECT_EQ(Seen(bar), Filled({60, 10}, BarColour, width, 10, Ground));
    }
}

TEST_F(InfoShowTest, VolumeFillsPicturesAndTurnsDials) {
    Picture("on.bmp", On, 50, 20);
    Picture("off.bmp", Off, 50, 20);
    dbLayoutElement& across = Info("Across", 5, {0, 0, 50, 20});
    dbLayoutElement& up = Info("Up", 5, {50, 0, 50, 20});
    for (dbLayoutElement* e : {&across, &up}) e->PicNormal = "off.bmp", e->PicOn = "on.bmp";
    up.Value = 1;
    const dbLayoutElement& dial = Add("Dial", TypeVolume, {50, 50, 20, 20});
    Begin();
    for (const auto& [volume, width, height, angle] :
         {std::tuple{255, 50, 0, 152}, {0, 0, 20, 206}, {102, 20, 12, 329}, {204, 40, 4, 91}}) {
        infos_.Volume = volume;
        infos_.ShowLine();
        EXPECT_EQ(Seen(across), Filled({50, 20}, On, width, 20, Off)) << volume;
        EXPECT_EQ(Seen(up), Filled({50, 20}, Off, 50, height, On)) << volume;
        EXPECT_EQ(target_.host().Element[dial.ControlIndex].State.Rotation, angle);
    }
}

TEST_F(InfoShowTest, TextsScrollAndTheClockGoes) {
    const dbLayoutElement& wide = Info("Wide", 1, {0, 0, 60, 20});
    const dbLayoutElement& time = Info("Time", 17, {0, 20, 90, 20});
    Begin();
    const QImage start = Seen(wide), noon = Seen(time);
    EXPECT_NE(start, Filled({60, 20}, Ground, 0, 0, Ground));
    for (int i = 0; i < ScrollPause; ++i) infos_.tmrScroller_Timer();
    EXPECT_EQ(Seen(wide), start);
    infos_.tmrScroller_Timer();
    EXPECT_EQ(Seen(wide).copy(0, 0, 50, 20), start.copy(3, 0, 50, 20));
    infos_.tmrSeekerDemo_Timer();
    EXPECT_EQ(Seen(time), noon);
    clock_.time = {12, 34, 58};
    infos_.tmrSeekerDemo_Timer();
    EXPECT_NE(Seen(time), noon);
}

}  // namespace
}  // namespace ornavo::testing
