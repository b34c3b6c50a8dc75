// SPDX-License-Identifier: MIT
// The keyboard between the canvas, the sheet and its dialogs: rows are clicked and filled, and the saved file
// has what was typed last.
#include "walk/walk_test.h"

namespace ornavo::walk {
namespace {

constexpr QPoint SheetPlace = {1450, 40}, ProjectPlace = {10, 40}, CanvasPlace = {320, 40};
constexpr int RowHeight = 15, ValueLeft = 120;  // pixels, of the sheet
// Rows of a button's sheet, those behind the name as they are when its action has an amount.
enum ButtonRow { ButtonName = 2, ButtonX = 7, ButtonFont = 21, ButtonNormal = 30, ButtonRows = 40 };
constexpr int CornerRows = 5, CornerY = 2;

class SheetsWalk : public WalkTest {
protected:
    void Start() {
        WritePicture("new.bmp", {8, 8}, Qt::darkMagenta);
        SkinText skin("Walk", {1000, 700});
        for (const QPoint at : {QPoint(30, 30), QPoint(970, 30), QPoint(970, 670), QPoint(30, 670)})
            skin.AddPoint(at.x(), at.y());
        skin.AddElement("Play", 1, {100, 400, 120, 60});  // on the side where no tool window stands
        WriteSkin(skin);
        desktop_.StartProgram({Path("")});
        main_ = desktop_.Window("^Ornavo");
        desktop_.Place(desktop_.Window("^Skin Project$"), ProjectPlace);
        desktop_.Place(main_, CanvasPlace);
        desktop_.Activate(main_);
    }
    void ClickCanvas(const QPoint& at) { desktop_.Click(desktop_.Inside(main_).topLeft() + at); }
    void ClickGround() {
        ClickCanvas({10, 300});
        desktop_.WaitUntilGone("^Properties$");
    }
    void SheetBecomes(int rows) {
        sheet_ = desktop_.Window("^Properties$");
        desktop_.WaitFor("a sheet of " + std::to_string(rows) + " rows",
                         [&] { return desktop_.Inside(sheet_).height() == RowHeight * rows - 1; });
    }
    QRgb Ground(int row) {
        return desktop_.Pixel(desktop_.Inside(sheet_).topLeft() +
                              QPoint(ValueLeft + 100, RowHeight * row + 3));
    }
    void ClickRow(int row) {
        desktop_.Click(desktop_.Inside(sheet_).topLeft() +
                       QPoint(ValueLeft + 6, RowHeight * row + RowHeight / 2));
        desktop_.WaitForFocus("Properties");
    }
    void Type(int row, const QString& text) {
        ClickRow(row);
        Keys({"ctrl+a"});
        desktop_.Type(text);
    }
    void ChooseFont() {
        ClickRow(ButtonFont);
        Keys({"F4"});
        desktop_.WaitForFocus("Font");
        desktop_.Type("Verdana");
        Keys(QStringList(4, "Tab") + QStringList{"space", "Return"});  // bold
        desktop_.WaitForFocus("Properties");
    }
    void ChoosePicture() {
        ClickRow(ButtonNormal);
        Keys({"F4"});
        desktop_.WaitForFocus("Open Picture");
        desktop_.Type("new.bmp");
        // The first Return may only close a list of proposals.
        desktop_.WaitFor("a chosen picture", [&] {
            Keys({"Return"});
            return desktop_.FocusTitle() != "Open Picture";
        });
        desktop_.WaitForFocus("Properties");
    }
    /// What was just typed may not yet be drawn.
    void Save() {
        const QByteArray before = Saved();
        Keys({"ctrl+s"});
        desktop_.WaitFor("a saved skin", [&] { return Saved() != before; });
    }

    QString sheet_;
};

TEST_F(SheetsWalk, Sheets) {
    Start();
    ClickCanvas({160, 430});
    sheet_ = desktop_.Window("^Properties$");
    desktop_.Place(sheet_, SheetPlace);
    SheetBecomes(ButtonRows - 1);
    Type(ButtonName, "Go");
    Keys(QStringList(2, "Tab") + QStringList(10, "Down"));  // an action with an amount
    SheetBecomes(ButtonRows);
    desktop_.WaitFor("the heading behind the new row",
                     [&] { return Ground(6) == Ground(1) && Ground(5) != Ground(1); });
    ChooseFont();
    ChoosePicture();
    const QPoint place = desktop_.Inside(sheet_).topLeft();
    ClickGround();
    ClickCanvas({30, 30});
    SheetBecomes(CornerRows);
    EXPECT_TRUE(desktop_.Inside(sheet_).topLeft() == place) << "of another height";
    Type(CornerY, "33");
    Keys({"Tab", "Down"});
    ClickGround();
    ClickCanvas({160, 430});
    SheetBecomes(ButtonRows);
    Type(ButtonX, "105");
    Save();
    for (const char* line : {"<ElementName>Go<", "<ActionType>10<", "<Name>Verdana<", "<Bold>True<",
                             "<PicNormal>new.bmp<", "<Y>33<", "<HAlign>1<", "<LeftX>105<"})
        EXPECT_EQ(Saved().count(line), 1) << line;
    Close();
}

}  // namespace
}  // namespace ornavo::walk
