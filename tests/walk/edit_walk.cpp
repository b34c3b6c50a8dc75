// SPDX-License-Identifier: MIT
// A designer's way from nothing to a saved skin, by mouse and keys through the real windows. The places are
// worked out by hand.
#include <QRegularExpression>

#include "walk/walk_test.h"

namespace ornavo::walk {
namespace {

constexpr QRgb HandleColour = 0xFFFFFF80, BlinkColour = 0xFFFF0000;
constexpr QPoint CanvasPlace = {320, 40}, PanelPlace = {10, 40}, ToolboxPlace = {10, 420},
                 SheetPlace = {1450, 40};
constexpr QSize SkinSize = {1000, 700}, LargerSize = {1101, 803};
constexpr int FirstRow = 84, RowHeight = 13;  // of the list of layouts, in the panel

enum Action { Add, Drag, Click, RightClick, Menu, Keyboard, Size };
struct Step {
    Action action;
    QPoint at;         // on the canvas; of Add the column and row in the toolbox, of Size the new size
    QPoint by;         // of a drag
    const char* keys;  // of a menu the letter that is underlined in the item
    QRect shown;       // what the handles stand round; of 1 by 1: the place of a corner
    const char* mark = "*";
};

// Its window has 1000 x 700 pixels; Main begins at 30, 120 with 740 x 450.
constexpr Step First[] = {{Add, {0, 0}, {}, "", {25, 25, 50, 50}}};
constexpr Step Elements[] = {
    {Drag, {50, 50}, {111, 37}, "", {136, 62, 50, 50}},
    {Add, {1, 0}, {}, "", {25, 25, 50, 50}},
    {Drag, {50, 50}, {505, 575}, "", {530, 600, 50, 50}},
    {Add, {0, 1}, {}, "", {925, 25, 50, 50}},
    {Drag, {950, 50}, {-311, 9}, "", {614, 34, 50, 50}},
    {Add, {1, 1}, {}, "", {100, 20, 400, 50}},
    {Drag, {300, 45}, {-33, 590}, "", {67, 610, 400, 50}},
    {Keyboard, {}, {}, "ctrl+s", {67, 610, 400, 50}, ""},
    {Click, {161, 87}, {}, "", {136, 62, 50, 50}, ""},
    {Drag, {132, 58}, {-11, -7}, "", {125, 55, 61, 57}},
    {Drag, {155, 115}, {13, 8}, "", {125, 55, 61, 65}},
    {Drag, {189, 87}, {9, 30}, "", {125, 55, 70, 65}},
    {Keyboard, {}, {}, "Right Right Right Down Up Left", {127, 55, 70, 65}},
    {Keyboard, {}, {}, "shift+Right shift+Right ctrl+Down", {127, 55, 72, 75}},
    {Drag, {400, 345}, {7, 11}, "", {37, 131, 740, 450}},
    {Size, {1101, 803}, {}, "", {37, 131, 841, 553}},
    {Size, {1000, 700}, {}, "", {37, 131, 740, 450}},
    {Keyboard, {}, {}, "ctrl+s", {37, 131, 740, 450}, ""},
    {Keyboard, {}, {}, "Delete", {37, 131, 740, 450}},
};
constexpr Step Shape[] = {
    {Click, {1, 350}, {}, "", {1, 350, 1, 1}},
    {Click, {998, 60}, {}, "", {998, 60, 1, 1}},
    {Drag, {1, 350}, {30, -43}, "", {31, 307, 1, 1}},
    {Keyboard, {}, {}, "Right Right shift+Down", {33, 317, 1, 1}},
    {Drag, {33, 317}, {-300, 100}, "", {0, 417, 1, 1}},  // no further than the canvas
    {Drag, {998, 60}, {-40, 20}, "", {958, 80, 1, 1}},
    {RightClick, {0, 699}, {}, "", {}},
    {Click, {501, 698}, {}, "", {501, 698, 1, 1}},
    {Drag, {501, 698}, {3, -5}, "", {504, 693, 1, 1}},
    {Keyboard, {}, {}, "Delete", {}},
};
constexpr Step Stacking[] = {
    {Menu, {160, 90}, {}, "c", {127, 55, 72, 75}},
    {Drag, {160, 90}, {230, -5}, "", {357, 50, 72, 75}},
    {Menu, {555, 625}, {}, "n", {530, 600, 50, 50}},
    {Keyboard, {}, {}, "ctrl+s", {530, 600, 50, 50}, ""},
    {Menu, {400, 345}, {}, "b", {37, 131, 740, 450}, ""},  // a new stack alone is no change
    {Menu, {267, 635}, {}, "d", {}},
    {Add, {0, 0}, {}, "", {25, 25, 50, 50}},
};
constexpr Step OtherLayout[] = {{Drag, {430, 97}, {14, -6}, "", {344, 79, 200, 25}},
                                {Drag, {950, 345}, {-60, 25}, "", {870, 145, 40, 450}}};
constexpr Step Clone[] = {{Drag, {430, 90}, {2, 40}, "", {346, 119, 200, 25}}};

// Of each layout its name and corners, then its elements, the first at the back, with the first letters of
// their locks.
constexpr const char* Expected = R"(Admin-Mode 0 0 0 0 0 417 0 0 1 1 2 2 42 80 2 0 1 0 2 0
Graphic1 530 600 50 50 LT
Search Box 330 85 200 25 LT
Scrollbar 70 120 40 450 TRB
Button1 127 55 72 75 LT
Volume1 386 34 50 50 TR
Clone of Button1 357 50 72 75 LT
Main 37 131 740 450 LTRB
Button3 25 25 50 50 LT
Kiosk-Mode 0 0 0 0 0 1 0 2 1 1 2 2 1 0 2 0
Main 30 120 740 450 LTRB
Search Box 330 85 200 25 LT
Scrollbar 70 120 40 450 TRB
Big Party 0 0 0 0 0 1 0 2 1 1 2 2 1 0 2 0
Main 30 120 740 450 LTRB
Search Box 344 79 200 25 LT
Scrollbar 130 145 40 450 TRB
)";

class EditWalk : public WalkTest {
protected:
    void StartEmpty() {
        desktop_.StartProgram();
        main_ = desktop_.Window("^Ornavo");
        panel_ = desktop_.Window("^Skin Project$");
        desktop_.Place(main_, CanvasPlace);
        desktop_.Place(panel_, PanelPlace);
        desktop_.Resize(panel_, {desktop_.Inside(panel_).width(), 300});
    }
    void CreateSkin() {
        const QRect panel = desktop_.Inside(panel_);
        desktop_.Click(panel.topLeft() + QPoint(panel.width() / 2, 20));
        desktop_.WaitForFocus("Create new Skin");
        desktop_.Type("Walk\t1000\t700");
        Keys({"Return"});
        toolbox_ = desktop_.Window("^Toolbox$");
        desktop_.Place(toolbox_, ToolboxPlace);
        desktop_.ParkPointer();
        CanvasBecomes(SkinSize);
        // The composition that follows a new size some time later would end a drag; of these two it can be
        // seen.
        desktop_.Resize(main_, LargerSize);
        CanvasBecomes(LargerSize);
        desktop_.Activate(toolbox_);
        Keys({"alt+r"});
        CanvasBecomes(SkinSize);
    }
    void CanvasBecomes(QSize size) {
        desktop_.WaitFor("the canvas's size", [&] { return desktop_.Inside(main_).size() == size; });
        canvas_ = desktop_.Inside(main_);
        CaptionBecomes(mark_);
    }
    void CaptionBecomes(const QString& mark) {
        mark_ = mark;
        const QString caption = QString("Ornavo -> Walk -> %1%2 -> Current Size: %3x%4")
                                    .arg(layout_, mark, Number(canvas_.width()), Number(canvas_.height()));
        desktop_.WaitFor("the caption " + caption.toStdString(),
                         [&] { return desktop_.Title(main_) == caption; });
    }
    template <std::size_t Count>
    void Take(const Step (&steps)[Count]) {
        for (const Step& step : steps) {
            const auto number = std::to_string(&step - steps);
            Do(step);
            desktop_.ParkPointer();
            if (step.action == Size) CanvasBecomes({step.at.x(), step.at.y()});
            CaptionBecomes(step.mark);
            if (step.shown.isNull()) continue;
            desktop_.WaitFor(
                "the handles or the corner of step " + number + " at " + std::to_string(step.at.x()), [&] {
                    canvas_ = desktop_.Inside(main_);  // a manager may place it late
                    return IsShown(step.shown);
                });
        }
    }
    void Do(const Step& step) {
        const QPoint at = canvas_.topLeft() + step.at;
        QRect toolbox;
        int windows = 0;
        switch (step.action) {
            case Add:
                toolbox = desktop_.Inside(toolbox_);
                desktop_.Click(toolbox.topLeft() +
                               QPoint(toolbox.width() * (2 * step.at.x() + 1) / 4, 30 + 60 * step.at.y()));
                break;
            case Drag:
                desktop_.Press(at);
                for (const QPoint by : {step.by / 2, step.by}) desktop_.MoveTo(at + by);
                // Not every window manager lets a quick hand's events through in their order. Where the
                // pointer covers the corner there is nothing to wait for.
                if (step.shown.width() > 1)
                    desktop_.WaitFor("a drag",
                                     [&] { return ShowsFirst(step.shown) || ShowsLast(step.shown); });
                desktop_.Release();
                break;
            case Click:
                desktop_.Click(at);
                break;
            case RightClick:
                desktop_.Click(at, 3);
                break;
            case Menu:
                windows = desktop_.WindowCount("^Properties$");
                desktop_.Click(at, 3);
                desktop_.WaitFor("a menu", [&] { return desktop_.WindowCount("^Properties$") > windows; });
                Keys({step.keys});
                break;
            case Keyboard:
                desktop_.Activate(main_);
                Keys(QString(step.keys).split(' '));
                break;
            case Size:
                desktop_.Resize(main_, {step.at.x(), step.at.y()});
                break;
        }
    }
    bool IsShown(const QRect& shown) const {
        if (shown.width() == 1) return Shows({shown.topLeft() - QPoint(2, 2), QSize(5, 5)});
        return ShowsFirst(shown) && ShowsLast(shown);
    }
    /// The first and the fifth handle stand at the corners, a pixel of frame round each.
    bool ShowsFirst(const QRect& shown) const { return Shows({shown.topLeft() - QPoint(6, 6), QSize(5, 5)}); }
    bool ShowsLast(const QRect& shown) const {
        return Shows({shown.bottomRight() + QPoint(2, 2), QSize(5, 5)});
    }
    /// What of the square lies on the canvas has the colour.
    bool Shows(const QRect& square) const {
        const QRect seen = square.translated(canvas_.topLeft()) & canvas_;
        for (int y = seen.top(); y <= seen.bottom(); ++y)
            for (int x = seen.left(); x <= seen.right(); ++x)
                if (const QRgb pixel = desktop_.Pixel({x, y}); pixel != HandleColour && pixel != BlinkColour)
                    return false;
        return true;
    }
    void ClickLayout(int row) {
        desktop_.Click(desktop_.Inside(panel_).topLeft() + QPoint(60, FirstRow + row * RowHeight));
        desktop_.WaitForFocus("Skin Project");
        desktop_.ParkPointer();
    }
    void LayoutBecomes(const char* name, const char* mark) {
        layout_ = name;
        CaptionBecomes(mark);
    }
    /// In a layout of its own, where search box and scroll bar show.
    void AddLayout() {
        ClickLayout(2);
        desktop_.Type("Big Party");
        Keys({"Return"});
        LayoutBecomes("Big Party", "*");
        Take(OtherLayout);
    }
    void CloneRenameDelete() {
        const QRect panel = desktop_.Inside(panel_);
        desktop_.Click(panel.bottomLeft() + QPoint(panel.width() / 2, -42));
        desktop_.WaitForFocus("New Layout");
        Keys({"Return"});
        LayoutBecomes("Big Party (cloned2)", "");  // a clone is also a save
        ClickLayout(3);
        Keys({"F2"});
        desktop_.Type("Small Party");
        Keys({"Return"});
        LayoutBecomes("Small Party", "");
        Take(Clone);
        ClickLayout(3);  // the one that is shown
        Keys({"Delete"});
        desktop_.WaitForFocus("Delete Layout");
        Keys({"alt+y"});
        desktop_.WaitUntilGone("^Delete Layout$");
        LayoutBecomes("Big Party", "*");
        ClickLayout(0);
        LayoutBecomes("Admin-Mode", "*");
    }
    static std::string Digest(const QByteArray& file) {
        static const QRegularExpression told(
            "<(?:LayoutName|[XY]|[HV]Align|ElementName|LeftX|TopY|WidthX|HeightY)>(.*)</|<Lock(.)");
        QString digest;
        for (const QString& line : QString(file).split('\n')) {
            const auto match = told.match(line);
            if (match.hasMatch()) digest += match.captured(1) + (match.captured(2) + ' ').left(1);
            if (line.contains("</Element>") || line.contains("</Points>")) digest += '\n';
        }
        return digest.replace(" \n", "\n").toStdString();
    }

    QString panel_, toolbox_, layout_ = "Admin-Mode", mark_ = "";
    QRect canvas_;
};

TEST_F(EditWalk, Edit) {
    StartEmpty();
    CreateSkin();
    Take(First);
    desktop_.Place(desktop_.Window("^Properties$"), SheetPlace);
    Take(Elements);
    Take(Shape);
    Take(Stacking);
    AddLayout();
    CloneRenameDelete();
    desktop_.Activate(main_);
    Keys({"ctrl+s"});
    CaptionBecomes("");
    Close();
    EXPECT_EQ(Digest(Saved()), Expected);
    // The head, and all preferences with their defaults.
    EXPECT_EQ(qChecksum(Saved().left(Saved().indexOf("<Layouts>"))), 8374);
}

}  // namespace
}  // namespace ornavo::walk
