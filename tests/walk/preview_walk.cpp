// SPDX-License-Identifier: MIT
// The preview of a small skin, worked by the skin's own buttons through real windows.
#include <QRegion>
#include <vector>

#include "walk/walk_test.h"

namespace ornavo::walk {
namespace {

constexpr QRgb Desk = 0xFF000000, Ground = 0xFF202830, Bar = 0xFFF04010, Full = 0xFF20C040,
               Empty = 0xFF3040A0;
constexpr QSize SkinSize = {700, 650};
constexpr int Least = 600;  // pixels, of a resized preview
constexpr int PointerSize = 20;
constexpr int Chamfer = 80, NotchLeft = 200, Notch = 60;  // the notch is cut into the upper edge
constexpr const char *Main = "^Ornavo", *Preview = "^Skin Preview$";
constexpr const char* Others[] = {Main, "^Toolbox$", "^Skin Project$"};

/// An element whose corner is counted from the left and top, or from the right and bottom edge.
struct Element {
    const char* key;
    int type, action;
    QRect at;
    const char* more;
    bool fromRight = false, fromBottom = false;
};
constexpr const char* Coloured =
    "<BackgroundColor>3156000</BackgroundColor><SeekerColor>1065200</SeekerColor>";
constexpr const char* VolumePictures =
    "<PicNormal>off.png</PicNormal><PicOn>on.png</PicOn><InfoType>5</InfoType>";
constexpr Element Elements[] = {
    {"Ground", 4, 0, {0, 0, 700, 650}, "<LockRight>True</LockRight><LockBottom>True</LockBottom>"},
    {"Dragger", 1, 0, {100, 80, 200, 40}, "<Dragger>True</Dragger>"},
    {"Seeker", 4, 0, {100, 150, 300, 20}, "<Seeker>True</Seeker>"},
    {"Volume", 4, 0, {100, 200, 255, 20}, VolumePictures},
    {"Dial", 3, 0, {100, 250, 60, 60}, ""},
    {"Louder", 1, 10, {200, 250, 40, 40}, "<Value>15</Value>"},
    {"Maximise", 1, 14, {320, 80, 30, 30}, ""},
    {"Minimise", 1, 15, {360, 80, 30, 30}, ""},
    {"Close", 1, 13, {400, 80, 30, 30}, ""},
    {"Grip", 1, 0, {120, 120, 30, 30}, "<Resizer>True</Resizer>", true, true},
};
struct Corner {
    int x, y;
    bool fromRight, fromBottom;
};
constexpr Corner Corners[] = {
    {0, 0, false, false},
    {NotchLeft, 0, false, false},
    {NotchLeft + Notch, Notch, false, false},
    {NotchLeft + 2 * Notch, 0, false, false},
    {0, 0, true, false},
    {0, Chamfer, true, true},
    {Chamfer, 0, true, true},
    {0, 0, false, true},
};

SkinText TheSkin() {
    SkinText skin("Walk", SkinSize);
    const auto aligned = [](bool right, bool bottom) {
        return QString("<HAlign>%1</HAlign><VAlign>%2</VAlign>").arg(right ? 2 : 0).arg(bottom ? 2 : 0);
    };
    for (const Corner& c : Corners) skin.AddPoint(c.x, c.y, aligned(c.fromRight, c.fromBottom));
    for (const Element& e : Elements)
        skin.AddElement(e.key, e.type, e.at,
                        QString("<ActionType>%1</ActionType>").arg(e.action) +
                            (e.fromRight ? "<LockRight>True</LockRight>" : "<LockLeft>True</LockLeft>") +
                            (e.fromBottom ? "<LockBottom>True</LockBottom>" : "<LockTop>True</LockTop>") +
                            Coloured + e.more);
    return skin;
}

/// Whether the pixel is the window's, by the corners above: its sides are level, upright or diagonal.
bool IsInside(const QPoint& at, const QSize& window) {
    const bool inNotch = at.x() >= NotchLeft + at.y() && at.x() < NotchLeft + 2 * Notch - at.y();
    const bool cutOff = at.x() + at.y() >= window.width() + window.height() - Chamfer + 2;
    return !inNotch && !cutOff;
}

QRect PlaceIn(const Element& e, const QSize& window) {
    return {QPoint(e.fromRight ? window.width() - e.at.x() : e.at.x(),
                   e.fromBottom ? window.height() - e.at.y() : e.at.y()),
            e.at.size()};
}

class PreviewWalk : public WalkTest {
protected:
    void MakeSkin() {
        WritePicture("on.png", {255, 20}, Full);
        WritePicture("off.png", {255, 20}, Empty);
        WriteSkin(TheSkin());
    }
    void StartProgram() {
        desktop_.StartProgram({Path("SkinSettings.xml")});
        main_ = desktop_.Window(Main);
        const QPoint places[] = {{300, 200}, {10, 420}, {10, 40}};
        for (int i = 0; i < 3; ++i) desktop_.Place(desktop_.Window(Others[i]), places[i]);
    }
    QByteArray SavedAnew() {
        const QString file = Path("SkinSettings.xml");
        EXPECT_TRUE(QFile::remove(file));
        desktop_.Activate(main_);
        Keys({"ctrl+s"});
        desktop_.WaitFor("a saved skin", [&] { return QFile::exists(file); });
        return Saved();
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
        for (const Element& element : Elements)
            if (element.key != Elements[0].key) plain -= PlaceIn(element, size);
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
        for (const Element& element : Elements)
            if (element.key == std::string_view(key))
                return window_.topLeft() + PlaceIn(element, window_.size()).center();
        throw std::runtime_error(key);
    }
    void DragFrom(const char* key, const QPoint& by) {
        const QPoint from = On(key);
        desktop_.Press(from);
        desktop_.MoveTo(from + by / 3);
        desktop_.MoveTo(from + by);
        desktop_.Release();
    }
    /// Of a pixel in the middle row of an element, x from its left.
    void ColourComes(const char* key, int x, QRgb colour) {
        const QPoint at = {window_.left() + 100 + x, On(key).y()};
        desktop_.WaitFor(std::string(key) + " at " + std::to_string(x),
                         [&] { return desktop_.Pixel(at) == colour; });
    }
    void VolumeBecomes(int volume) {
        if (volume > 0) ColourComes("Volume", volume - 1, Full);
        if (volume < 255) ColourComes("Volume", volume, Empty);
    }
    void Seek() {
        const QPoint start = {window_.left() + 100, On("Seeker").y()};
        ColourComes("Seeker", 58, Bar);
        desktop_.Press(start + QPoint(150, 0));
        ColourComes("Seeker", 140, Bar);  // the pointer covers what is beside it
        ColourComes("Seeker", 180, Ground);
        desktop_.MoveTo(start + QPoint(240, 0));
        ColourComes("Seeker", 230, Bar);
        desktop_.Release();
        desktop_.ParkPointer();
        ColourComes("Seeker", 241, Bar);  // a pixel in a second
    }
    void TurnAndHold() {
        VolumeBecomes(128);
        DragFrom("Dial", {3, -20});
        VolumeBecomes(168);
        DragFrom("Dial", {200, 15});
        VolumeBecomes(138);
        desktop_.Click({window_.left() + 160, On("Volume").y()});
        desktop_.ParkPointer();
        VolumeBecomes(60);
        desktop_.Press(On("Louder"));
        VolumeBecomes(255);
        desktop_.Release();
        desktop_.Click(On("Louder"));
        VolumeBecomes(255);
    }
    void MoveAndResize() {
        DragFrom("Dragger", {137, 91});
        BecomesAt(window_.translated(137, 91));
        DragFrom("Grip", {45, 30});
        BecomesAt({window_.topLeft(), window_.size() + QSize(45, 30)});
        VolumeBecomes(255);  // a rebuild keeps it
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
    MakeSkin();
    StartProgram();
    const QByteArray before = SavedAnew();
    EXPECT_TRUE(before.contains("<Key>Grip</Key>"));
    std::vector<QRect> places;
    for (const char* other : Others) places.push_back(desktop_.Inside(desktop_.Window(other)));

    Open([&] { Keys({"F5"}); });
    Seek();
    TurnAndHold();
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
    EXPECT_EQ(SavedAnew().split('\n'), before.split('\n'));
    Close();
}

}  // namespace
}  // namespace ornavo::walk
