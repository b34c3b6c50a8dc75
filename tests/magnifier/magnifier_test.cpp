// SPDX-License-Identifier: MIT
#include "editor/settings_keys.h"
#include "magnifier/frm_magnifier.h"
#include "support/failure_number.h"

namespace ornavo::testing {
namespace {

TEST(Pieces, LieAboutThePointerAndWithinTheScreens) {
    const struct {
        const char* name;
        QPoint pointer;
        QSize picture;
        std::vector<Piece> pieces;
    } rows[] = {{"middle", {100, 80}, {40, 20}, {{0, {95, 78, 10, 5}, {0, 0, 40, 20}}}},
                {"top left", {0, 0}, {40, 40}, {{0, {0, 0, 5, 5}, {20, 20, 20, 20}}}},
                {"end", {1599, 1199}, {40, 40}, {{0, {1594, 1194, 6, 6}, {0, 0, 24, 24}}}},
                {"half to even", {100, 100}, {42, 46}, {{0, {95, 94, 11, 12}, {0, 0, 44, 48}}}},
                {"beyond", {5000, 5000}, {40, 40}, {}}};
    for (const auto& row : rows)
        EXPECT_EQ(PiecesOf(row.pointer, row.picture, 4, {{0, 0, 1600, 1200}}), row.pieces) << row.name;
    const std::vector<Piece> seam = {{0, {95, 15, 5, 10}, {0, 0, 40, 80}},
                                     {1, {100, 20, 5, 5}, {40, 40, 40, 40}}};
    EXPECT_EQ(PiecesOf({100, 20}, {80, 80}, 8, {{0, 0, 100, 100}, {100, 20, 100, 100}}), seam);
}

/// A plane where every pixel tells its place.
class Plane : public PixelSource {
public:
    QPoint Pointer() override { return pointer; }
    std::vector<QRect> Screens() override { return {{0, 0, 100, 100}}; }
    QImage Grab(int, const QRect& area) override {
        if (refuses) return {};
        QImage image(area.size(), QImage::Format_RGB32);
        for (int y = 0; y < area.height(); ++y)
            for (int x = 0; x < area.width(); ++x) image.setPixel(x, y, At(area.x() + x, area.y() + y));
        return image;
    }
    QRgb At(int x, int y) const { return qRgb(x, y, blue); }
    QPoint pointer = {50, 50};
    int blue = 0;
    bool refuses = false;
};

class MagnifyTest : public ::testing::Test {
protected:
    MagnifyTest() : magnify(nullptr, desktop, own) {
        magnify.SetBorderStyle(0);
        magnify.resize(40, 40);
        magnify.tmr.setInterval(1000000);
        own.blue = 200;
        magnify.show();
    }
    void Fire() {
        if (!magnify.tmr.isActive()) return;
        QTimerEvent event(magnify.tmr.timerId());
        QCoreApplication::sendEvent(&magnify.tmr, &event);
    }
    QRgb Shown(int x, int y) { return magnify.grab().toImage().pixel(x, y); }
    Plane desktop, own;
    Magnify magnify;
};

TEST_F(MagnifyTest, EachPixelBecomesABlock) {
    magnify.SetZoom(8);
    Fire();
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(Shown(x, y), desktop.At(48 + x / 8, 48 + y / 8)) << x << ' ' << y;
    desktop.blue = 7;
    desktop.pointer = {0, 99};
    Fire();
    const QRgb background = qRgb(0x80, 0x80, 0x80);
    EXPECT_TRUE(Shown(15, 0) == background && Shown(39, 24) == background);
    EXPECT_EQ(Shown(16, 0), desktop.At(0, 97));
    EXPECT_EQ(Shown(39, 23), desktop.At(2, 99));
    desktop.refuses = true;
    Fire();
    EXPECT_EQ(Shown(0, 0), own.At(48, 48)) << "where the desktop refuses our own windows are shown";
}

TEST_F(MagnifyTest, AFrozenOneKeepsItsPicture) {
    desktop.blue = 3;
    magnify.SetFrozen(true);
    desktop.blue = 7;
    Fire();
    EXPECT_FALSE(magnify.tmr.isActive());
    EXPECT_EQ(Shown(0, 0), qRgb(40, 40, 3)) << "one last capture";
    magnify.SetFrozen(false);
    EXPECT_TRUE(magnify.tmr.isActive());
    EXPECT_EQ(Shown(0, 0), qRgb(40, 40, 7));
    magnify.hide();
    EXPECT_FALSE(magnify.tmr.isActive()) << "nobody looks";
}

TEST_F(MagnifyTest, ZoomsAreSixAndTheWheelStepsThroughThem) {
    EXPECT_EQ(FailureNumber([&] { magnify.SetZoom(3); }), 380);
    magnify.SetZoom(32);
    const auto turn = [&](int eighths) {
        QWheelEvent event({5, 5}, {5, 5}, {}, {0, eighths}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&magnify, &event);
        return magnify.Zoom();
    };
    for (const auto& [eighths, zoom] :
         {std::pair{120, 32}, {-60, 32}, {-60, 16}, {-360, 2}, {-360, 1}, {120, 2}})
        EXPECT_EQ(turn(eighths), zoom) << eighths;
}

TEST(FrmMagnifier, StandsWhereItWasAndMarksTheMiddle) {
    Plane desktop, own;
    SaveSetting("Magnifier", "Width", "wide");
    frm_Magnifier form(nullptr, desktop, own);
    form.Open();
    EXPECT_EQ(QRect(form.pos(), form.size()), QRect(2, 420, 179, 138));
    EXPECT_EQ(form.Magnify1.Zoom(), 4);
    form.resize(150, 146);
    QCoreApplication::processEvents();
    EXPECT_EQ(form.Picture1.pos(), QPoint(76, 72)) << "a grid of four pixels";
    EXPECT_EQ(form.Magnify1.size(), form.size());
    form.Magnify1.StepZoom(1);
    for (const char* state : {"8x frozen", "8x"}) {
        QTest::keyClick(&form, Qt::Key_Space);
        EXPECT_EQ(form.lbl_State.text(), state);
    }
    form.move(300, 200);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ((Rect{settings::MagnifierLeft.Read(), settings::MagnifierTop.Read(),
                    settings::MagnifierWidth.Read(), settings::MagnifierHeight.Read()}),
              (Rect{4500, 3000, (150 + 8) * 15, (146 + 29) * 15}));
}

TEST(OwnWindowPixels, ReadTheWindowUnderThePointer) {
    OwnWindowPixels pixels;
    EXPECT_EQ(pixels.Pointer(), QPoint());
    QWidget window;
    window.setPalette(QColor(Qt::red));
    window.resize(60, 40);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTest::mouseMove(window.windowHandle(), {20, 10});
    QCoreApplication::processEvents();
    EXPECT_EQ(pixels.Pointer(), QPoint(20, 10));
    EXPECT_EQ(pixels.Screens(), (std::vector<QRect>{{0, 0, 60, 40}}));
    const QImage seen = pixels.Grab(0, {10, 5, 7, 6});
    ASSERT_EQ(seen.size(), QSize(7, 6));
    EXPECT_EQ(seen.pixelColor(3, 3), window.palette().color(QPalette::Window));
}

}  // namespace
}  // namespace ornavo::testing
