// SPDX-License-Identifier: MIT
// A picture of a skin is recoloured through the real windows: the keyboard goes to the editor, to the box it
// asks in and back, and what was saved shows on the canvas.
#include "walk/walk_test.h"

namespace ornavo::walk {
namespace {

constexpr QRgb SourceColour = 0xFF5A1EC8, KnobColour = 0xFF2F5F9E, PencilColour = 0xFFFFC86D;
constexpr QRgb Grey = 0xFF737373;  // of the source's lightness
constexpr QPoint SheetPlace = {1420, 40}, InElement = {200, 200};
constexpr QPoint InPicture = {60, 90};  // from the corner of the dialog's inside, in the source's box
constexpr QSize DialogSize = {1000, 660};

class PictureWalk : public WalkTest {
protected:
    /// A skin of one button that shows one picture, and its sheet.
    void Start() {
        WritePicture("a.png", {200, 200}, SourceColour);
        SkinText skin("Walk", {800, 600});
        skin.AddElement("E1", 2, {100, 100, 200, 200},
                        "<LockLeft>True</LockLeft><LockTop>True</LockTop><PicNormal>a.png</PicNormal>");
        WriteSkin(skin);
        desktop_.StartProgram({"Walk"});
        main_ = desktop_.Window("^Ornavo.*Walk");
        ElementBecomes(SourceColour);
        desktop_.Click(desktop_.Inside(main_).topLeft() + InElement);
        const QString sheet = desktop_.Window("^Properties$");
        desktop_.Place(sheet, SheetPlace);
        sheet_ = desktop_.Inside(sheet);
    }
    void ElementBecomes(QRgb colour) {
        const QPoint at = desktop_.Inside(main_).topLeft() + InElement;
        desktop_.WaitFor("the element's colour", [&] { return desktop_.Pixel(at) == colour; });
    }
    /// The first pixel of a colour, row by row.
    QPoint Find(const char* what, const QRect& area, QRgb colour) {
        QPoint found;
        desktop_.WaitFor(what, [&] {
            const QImage screen = desktop_.Picture();
            for (int y = area.top(); y <= area.bottom(); ++y)
                for (int x = area.left(); x <= area.right(); ++x)
                    if (screen.pixel(x, y) == colour) return found = {x, y}, true;
            return false;
        });
        return found;
    }
    /// By the pencil of the first picture's row.
    void OpenEditor() {
        desktop_.Click(Find("a pencil", sheet_, PencilColour));
        const QString window = desktop_.Window("^Picture Editor$");
        desktop_.WaitForFocus("Picture Editor");
        if (desktop_.Inside(window).size() != DialogSize) desktop_.Resize(window, DialogSize);
        dialog_ = desktop_.Inside(window);
        desktop_.ParkPointer();
        desktop_.WaitFor("the source", [&] { return desktop_.Pixel(Inside()) == SourceColour; });
    }
    /// That of the slider which has the focus: nothing else has its colour in the lower part.
    void DragKnob(int by) {
        const QRect lower = dialog_.adjusted(0, dialog_.height() / 2, -dialog_.width() / 2, 0);
        const QPoint knob = Find("a knob", lower, KnobColour) + QPoint(3, 9);
        const QRgb before = Result();
        desktop_.Press(knob);
        for (const int step : {by / 2, by}) desktop_.MoveTo(knob + QPoint(step, 0));
        desktop_.Release();
        desktop_.ParkPointer();
        desktop_.WaitFor("another colour", [&] { return Result() != before; });
    }
    void ResultBecomes(QRgb colour) {
        desktop_.WaitFor("the result", [&] { return Result() == colour; });
    }
    QRgb Result() const { return desktop_.Pixel(Inside() + QPoint(DialogSize.width() / 2, 0)); }
    QPoint Inside() const { return dialog_.topLeft() + InPicture; }

    QRect dialog_, sheet_;
};

TEST_F(PictureWalk, Recolour) {
    Start();
    OpenEditor();
    DragKnob(60);
    Keys({"Tab", "Home"});  // to the saturation
    ResultBecomes(Grey);
    Keys({"alt+a"});
    desktop_.WaitForFocus("Save preset");
    desktop_.Type("Grey");
    Keys({"Return"});
    desktop_.WaitForFocus("Picture Editor");
    Keys({"End"});
    desktop_.WaitFor("a colour", [&] { return Result() != Grey; });
    Keys({"Tab", "space"});  // into the list, to its one preset
    ResultBecomes(Grey);
    Keys({"alt+d", "Return"});
    desktop_.WaitUntilGone("^Picture Editor$");
    ElementBecomes(Grey);
    OpenEditor();
    Keys({"Page_Up", "Escape"});
    desktop_.WaitUntilGone("^Picture Editor$");
    desktop_.Activate(main_);
    Keys({"ctrl+s"});
    Close();
    EXPECT_EQ(QImage(Path("a.bmp")).pixel(7, 7), Grey);
    EXPECT_TRUE(Saved().contains("<PicNormal>a.bmp</PicNormal>"));
}

}  // namespace
}  // namespace ornavo::walk
