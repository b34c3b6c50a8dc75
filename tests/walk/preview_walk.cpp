// SPDX-License-Identifier: MIT
// The preview of a small skin, worked by the skin's own buttons: its shape on the screen, its place, the
// windows that make way for it.
#include <QRegion>
#include <vector>

#include "walk/walk_test.h"

namespace ornavo::walk {
namespace {

constexpr QRgb Desk = 0xFF000000, Ground = 0xFF202830;
constexpr QSize SkinSize = {700, 650};
constexpr int Least = 600;  // pixels, of a resized preview
constexpr int PointerSize = 20;
constexpr int Chamfer = 80, NotchLeft = 200, Notch = 60;  // the notch is cut into the upper edge
constexpr const char *Main = "^Ornavo", *Preview = "^Skin Preview$";
constexpr const char* Others[] = {Main, "^Toolbox$", "^Skin Project$"};

/// A button; the grip's corner is counted from the right and bottom edge.
struct Element {
    const char* key;
    int action;
    QRect at;
    const char* more = "<LockLeft>True</LockLeft><LockTop>True</LockTop>";
};
constexpr Element Buttons[] = {
    {"Dragger",
     0,
     {100, 80, 200, 40},
     "<LockLeft>True</LockLeft><LockTop>True</LockTop><Dragger>True</Dragger>"},
    {"Maximise", 14, {320, 80, 30, 30}},
    {"Minimise", 15, {360, 80, 30, 30}},
    {"Close", 13, {400, 80, 30, 30}},
    {"Grip",
     0,
     {120, 120, 30, 30},
     "<LockRight>True</LockRight><LockBottom>True</LockBottom><Resizer>True</Resizer>"}};
constexpr int Far = 2;
constexpr struct {
    int x, y, across, down;
} Corners[] = {{0, 0, 0, 0},
               {NotchLeft, 0, 0, 0},
               {NotchLeft + Notch, Notch, 0, 0},
               {NotchLeft + 2 * Notch, 0, 0, 0},
               {0, 0, Far, 0},
               {0, Chamfer, Far, Far},
               {Chamfer, 0, Far, Far},
               {0, 0, 0, Far}};

SkinText TheSkin() {
    SkinText skin("Walk", SkinSize);
    for (const auto& c : Corners)
        skin.AddPoint(c.x, c.y, QString("<HAlign>%1</HAlign><VAlign>%2</VAlign>").arg(c.across).arg(c.down));
    skin.AddElement("Ground", 4, {{}, SkinSize},
                    "<LockLeft>True</LockLeft><LockTop>True</LockTop><LockRight>True</LockRight>"
                    "<LockBottom>True</LockBottom><BackgroundColor>3156000</BackgroundColor>");
    for (const Element& e : Buttons)
        skin.AddElement(e.key, 1, e.at, QString("<ActionType>%1</ActionType>").arg(e.action) + e.more);
    return skin;
}

/// Whether the pixel is the window's, by the corners above: its sides are level, upright or diagonal.
bool IsInside(const QPoint& at, const QSize& window) {
    const bool inNotch = at.x() >= NotchLeft + at.y() && at.x() < NotchLeft + 2 * Notch - at.y();
    const bool cutOff = at.x() + at.y() >= window.width() + window.height() - Chamfer + 2;
    return !inNotch && !cutOff;
}

QRect PlaceIn(const Element& e, const QSize& window) {
    if (e.key != std::string_view("Grip")) return e.at;
    return {QPoint(window.width() - e.at.x(), window.height() - e.at.y()), e.at.size()};
}

class PreviewWalk : public WalkTest {
protected:
    void StartProgram() {
        desktop_.StartProgram({Path("SkinSettings.xml")});
        main_ = desktop_.Window(Main);
        const QPoint places[] = {{300, 200}, {10, 420}, {10, 40}};
        for (int i = 0; i < 3; ++i) desktop_.Place(desktop_.Window(Others[i]), places[i]);
    }
    void Open(const std::function<void()>& how) {
        how();
        preview_ = desktop_.Window(Preview);
        for (const char* other : Others) desktop_.WaitUntilGone(other);
        window_ = desktop_.Inside(preview_);
        desktop_.ParkPointer();
        desktop_.WaitFor("the shape", [&] { return ShapeIsRight(); });
    }
    void Leave(const std::function<void()>& how) {
        how();
        desktop_.WaitUntilGone(Preview);
        for (const char* other : Others) desktop_.Window(other);
    }
    void BecomesAt(const QRect& place) {
        desktop_.ParkPointer();
        desktop_.WaitFor("the preview's place", [&] { return desktop_.Inside(preview_) == place; });
        window_ = place;
        desktop_.WaitFor("the shape", [&] { return ShapeIsRight(); });
    }
    /// Inside it is the skin, outside the desktop. The pointer is parked over the corner of a maximised one.
    bool ShapeIsRight() const {
        const QSize size = window_.size();
        QRegion plain(QRect({}, size));
        for (const Element& element : Buttons) plain -= PlaceIn(element, size);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x) {
                if (size.width() - x < PointerSize && size.height() - y < PointerSize) continue;
                const bool inside = IsInside({x, y}, size);
                if (inside && !plain.contains(QPoint(x, y))) continue;
                if (desktop_.Pixel(window_.topLeft() + QPoint(x, y)) != (inside ? Ground : Desk))
                    return false;
            }
        return true;
    }
    QPoint On(const char* key) const {
        for (const Element& element : Buttons)
            if (element.key == std::string_view(key))
                return window_.topLeft() + PlaceIn(element, window_.size()).center();
        throw std::runtime_error(key);
    }
    /// `seen` while the button is down: not every manager lets a quick hand's events through in their order.
    void DragFrom(const char* key, const QPoint& by, const QPoint& seen = {}) {
        const QPoint from = On(key);
        desktop_.Press(from);
        desktop_.MoveTo(from + by / 3);
        desktop_.MoveTo(from + by);
        const QPoint corner = window_.topLeft() + seen;
        desktop_.WaitFor("a drag", [&] { return desktop_.Inside(preview_).topLeft() == corner; });
        desktop_.Release();
    }
    void MoveAndResize() {
        DragFrom("Dragger", {137, 91}, {137, 91});
        BecomesAt(window_.translated(137, 91));
        DragFrom("Grip", {45, 30});
        BecomesAt({window_.topLeft(), window_.size() + QSize(45, 30)});
        DragFrom("Grip", {-500, -400});
        BecomesAt({window_.topLeft(), QSize(Least, Least)});
        const QString here = desktop_.WindowAt(window_.topLeft() + QPoint(50, 50));
        const QPoint notch = window_.topLeft() + QPoint(NotchLeft + Notch, Notch / 2);
        EXPECT_NE(desktop_.WindowAt(notch), here);
        EXPECT_EQ(desktop_.WindowAt(notch + QPoint(0, Notch)), here);
    }
    void MaximiseAndMinimise() {
        const QRect normal = window_, whole({}, desktop_.Picture().size());
        desktop_.DoubleClick(On("Dragger"));
        BecomesAt(whole);
        DragFrom("Grip", {-500, -400});
        DragFrom("Dragger", {40, 40});
        desktop_.Click(On("Maximise"));
        BecomesAt(normal);
        desktop_.Click(On("Maximise"));
        BecomesAt(whole);
        desktop_.DoubleClick(On("Dragger"));
        BecomesAt(normal);
        desktop_.Click(On("Minimise"));
        desktop_.WaitUntilGone(Preview);
        desktop_.Activate(preview_);
        BecomesAt(normal);
    }

    QString preview_;
    QRect window_;  // of the preview
};

TEST_F(PreviewWalk, Preview) {
    WriteSkin(TheSkin());
    StartProgram();
    std::vector<QRect> places;
    for (const char* other : Others) places.push_back(desktop_.Inside(desktop_.Window(other)));

    desktop_.Activate(main_);
    Open([&] { Keys({"F5"}); });
    MoveAndResize();
    MaximiseAndMinimise();
    const QPoint corner = window_.topLeft();
    Leave([&] { Keys({"Escape"}); });

    desktop_.Activate(main_);
    Open([&] { Keys({"F5"}); });
    EXPECT_EQ(window_, QRect(corner, SkinSize));
    Leave([&] { Keys({"F5"}); });

    desktop_.Activate(desktop_.Window(Others[1]));
    Open([&] { Keys({"alt+p"}); });
    Leave([&] { desktop_.Click(On("Close")); });

    for (std::size_t i = 0; i < places.size(); ++i)
        desktop_.WaitFor(std::string(Others[i]) + " where it was",
                         [&] { return desktop_.Inside(desktop_.Window(Others[i])) == places[i]; });
    Close();
}

}  // namespace
}  // namespace ornavo::walk
