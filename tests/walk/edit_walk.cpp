// SPDX-License-Identifier: MIT
// A designer's way from nothing to a saved skin, by mouse and keys through the real windows.
#include <array>

#include "walk/model.h"
#include "walk/walk_test.h"

namespace ornavo::walk {
namespace {

constexpr QRgb HandleColour = 0xFFFFFF80, BlinkColour = 0xFFFF0000;
constexpr QPoint CanvasPlace = {320, 40}, PanelPlace = {10, 40}, ToolboxPlace = {10, 420},
                 SheetPlace = {1450, 40};
constexpr QSize SkinSize = {1000, 700}, LargerSize = {1101, 803};
constexpr int FirstRow = 84, RowHeight = 13;  // of the list of layouts, in the panel
constexpr const char* SkinName = "Walk";
enum Kind { Button = 1, Graphic, Volume, Info };  // as the toolbox has them

class EditWalk : public WalkTest {
protected:
    // The windows.
    void StartEmpty() {
        desktop_.StartProgram();
        main_ = desktop_.Window("^Ornavo");
        panel_ = desktop_.Window("^Skin Project$");
        desktop_.Place(main_, CanvasPlace);
        desktop_.Place(panel_, PanelPlace);
        desktop_.Resize(panel_, {desktop_.Inside(panel_).width(), 300});
    }
    void CreateSkin() {
        ClickPanelPicture(1);
        desktop_.WaitForFocus("Create new Skin");
        desktop_.Type(QString("%1\t%2\t%3").arg(SkinName).arg(SkinSize.width()).arg(SkinSize.height()));
        Keys({"Return"});
        toolbox_ = desktop_.Window("^Toolbox$");
        desktop_.Place(toolbox_, ToolboxPlace);
        desktop_.ParkPointer();
        CanvasBecomes(SkinSize);
        // The composition that follows a new size some time later would end a drag; of these two it can be
        // seen.
        ResizeCanvas(LargerSize);
        ResetView();
    }
    void ClickPanelPicture(int index) {
        const QRect panel = desktop_.Inside(panel_);
        desktop_.Click(panel.topLeft() + QPoint(panel.width() * (2 * index + 1) / 6, 20));
    }
    void ClickLayout(int row) {
        desktop_.Click(desktop_.Inside(panel_).topLeft() + QPoint(60, FirstRow + row * RowHeight));
        desktop_.WaitForFocus("Skin Project");
        desktop_.ParkPointer();
    }
    /// Keys for the toolbox, beginning at its first button.
    void ToolboxKeys(const QStringList& keys) {
        desktop_.Activate(toolbox_);
        Keys(keys);
    }
    void Save() {
        desktop_.Activate(main_);
        Keys({"ctrl+s"});
        model_.Save();
        Settle();
    }

    // The canvas: each gesture goes to the program and to the model.
    using Path = std::vector<Place>;
    void Add(int type) {
        const QRect box = desktop_.Inside(toolbox_);
        const int column = (type - 1) % 2, row = (type - 1) / 2;
        desktop_.Click(box.topLeft() + QPoint(box.width() * (2 * column + 1) / 4, 30 + 60 * row));
        desktop_.ParkPointer();
        model_.AddElement(type);
        Settle();
    }
    void Click(Place at) {
        desktop_.Click(OnScreen(at));
        desktop_.ParkPointer();
        model_.Press(at);
        model_.Release();
        Settle();
    }
    void RightClick(Place at) {
        desktop_.Click(OnScreen(at), 3);
        desktop_.ParkPointer();
        model_.PressRight(at);
        Settle();
    }
    void Drag(Place from, const Path& path) {
        desktop_.Press(OnScreen(from));
        model_.Press(from);
        for (const Place& by : path) {
            from = {from.x + by.x, from.y + by.y};
            desktop_.MoveTo(OnScreen(from));
            model_.MoveTo(from);
        }
        desktop_.Release();
        desktop_.ParkPointer();
        model_.Release();
        Settle();
    }
    void DragElement(const std::string& key, const Path& by) {
        Drag(model_.Named(key).shown.Middle(), by);
        ASSERT_EQ(model_.SelectedKey(), key);
    }
    void DragHandle(int index, const Path& by) { Drag(model_.Handle(index).Middle(), by); }
    void DragCorner(int index, const Path& by) {
        Drag(model_.CornerPlace(index), by);
        ASSERT_EQ(model_.SelectedKey(), "K" + std::to_string(index + 1));
    }
    void Nudge(const std::string& key, int times = 1, bool shift = false, bool ctrl = false) {
        const QString pressed = QString(ctrl ? "ctrl+" : "") + (shift ? "shift+" : "") + key.c_str();
        desktop_.Activate(main_);
        for (int i = 0; i < times; ++i) {
            Keys({pressed});
            model_.Key(key, shift, ctrl);
        }
        Settle();
    }
    /// The item is chosen by the letter that is underlined in it.
    void Menu(const std::string& key, const char* item, const std::function<void()>& effect) {
        const Place at = model_.Named(key).shown.Middle();
        const int before = desktop_.WindowCount("^Properties$");
        desktop_.Click(OnScreen(at), 3);
        model_.PressRight(at);
        ASSERT_EQ(model_.SelectedKey(), key);
        desktop_.WaitFor("a menu", [&] { return desktop_.WindowCount("^Properties$") > before; });
        Keys({item});
        desktop_.ParkPointer();
        effect();
        Settle();
    }
    void ResizeCanvas(QSize size) {
        desktop_.Resize(main_, size);
        CanvasBecomes(size);
    }
    void ResetView() {
        ToolboxKeys({"alt+r"});
        CanvasBecomes(SkinSize);
    }
    void CanvasBecomes(QSize size) {
        desktop_.WaitFor("the canvas's size", [&] { return desktop_.Inside(main_).size() == size; });
        canvas_ = desktop_.Inside(main_);
        model_.ResizeCanvas(size.width(), size.height());
        Settle();
    }

    // The parts of the walk.
    /// Each kind, added and dragged away from where it lies over another.
    void AddOneOfEach() {
        Add(Button);
        desktop_.Place(desktop_.Window("^Properties$"), SheetPlace);
        DragElement("Button1", {{60, 23}, {51, 14}});
        Add(Graphic);
        DragElement("Graphic1", {{505, 575}});
        Add(Volume);
        DragElement("Volume1", {{-311, 9}});
        Add(Info);
        DragElement("Info1", {{-33, 590}});
    }
    void SizeAndNudge() {
        Save();
        Click(model_.Named("Button1").shown.Middle());  // marks nothing as changed
        constexpr Place by[] = {{-11, -7}, {5, -9}, {13, 4}, {8, 30}, {7, 9}, {-20, -5}, {-6, 12}, {4, -3}};
        for (int i = 0; i < 8; ++i) DragHandle(i, {by[i]});
        Nudge("Right", 3);
        Nudge("Down", 2);
        Nudge("Left");
        Nudge("Right", 4, true);
        Nudge("Up", 1, true);
        Nudge("Down", 1, false, true);
        Nudge("Left", 1, true, true);
        DragElement("Main", {{7, 11}});
        Nudge("Up", 2, true);
        Save();
        Nudge("Delete");  // stays, but counts as a change
    }
    void EditShape() {
        Click({1, 350});
        Click({501, 698});  // from the left as the corner before it, from the bottom since that is near
        Click({998, 60});
        DragCorner(1, {{30, -43}});
        DragCorner(1, {{-7, 12}});
        Nudge("Right", 2);
        Nudge("Down", 1, true);
        Nudge("Left", 1, false, true);
        DragCorner(4, {{-40, 20}});
        DragCorner(2, {{-2000, 300}});  // no further than the canvas
        RightClick(model_.CornerPlace(3));
        DragCorner(3, {{-5, 6}});
        Nudge("Delete");
    }
    void CloneAndRestack() {
        Menu("Button1", "c", [&] { model_.CloneElement(); });
        DragElement("Button2", {{230, 5}});
        Menu("Graphic1", "n", [&] { model_.Restack(false); });
        Save();
        Menu("Main", "b", [&] { model_.Restack(true); });  // a new stack alone is no change
        Menu("Info1", "d", [&] { model_.Key("Delete"); });
        Add(Button);
    }
    /// In a layout of its own, where search box and scroll bar show.
    void AddLayout() {
        ClickLayout(2);
        desktop_.Type("Big Party");
        Keys({"Return"});
        model_.AddLayout("Big Party");
        Settle();
        DragElement("SearchBox", {{13, -6}, {1, 0}});
        DragElement("Scrollbar", {{-60, 25}});
    }
    void CloneRenameDelete() {
        const QRect panel = desktop_.Inside(panel_);
        desktop_.Click(panel.bottomLeft() + QPoint(panel.width() / 2, -42));
        desktop_.WaitForFocus("New Layout");
        Keys({"Return"});
        model_.CloneLayout("Big Party (cloned2)");
        Settle();
        ClickLayout(3);
        Keys({"F2"});
        desktop_.Type("Small Party");
        Keys({"Return"});
        model_.RenameLayout("Big_Party_(cloned2)", "Small Party");  // no change that asks for a save
        Settle();
        DragElement("SearchBox", {{2, 40}});
        ClickLayout(3);  // the one that is shown
        model_.ChooseLayout("Big_Party_(cloned2)");
        Settle();
        Keys({"Delete"});
        desktop_.WaitForFocus("Delete Layout");
        Keys({"alt+y"});
        desktop_.WaitUntilGone("^Delete Layout$");
        model_.DeleteLayout("Big_Party_(cloned2)");
        Settle();
        ClickLayout(0);
        model_.ChooseLayout("Admin-Mode");
        Settle();
    }

    QPoint OnScreen(Place at) const { return canvas_.topLeft() + QPoint(at.x, at.y); }
    static Box Inside(const Box& frame) {
        return {frame.left + 1, frame.top + 1, frame.width - 2, frame.height - 2};
    }
    /// What of the box lies on the canvas has the colour.
    bool Shows(const Box& box, QRgb colour) const {
        const QRect seen = QRect(OnScreen({box.left, box.top}), QSize(box.width, box.height)) & canvas_;
        for (int y = seen.top(); y <= seen.bottom(); ++y)
            for (int x = seen.left(); x <= seen.right(); ++x)
                if (desktop_.Pixel({x, y}) != colour) return false;
        return true;
    }
    /// Until the windows show what the model has come to.
    void Settle() {
        const std::string caption = model_.Caption();
        desktop_.WaitFor("the caption " + caption,
                         [&] { return desktop_.Title(main_).toStdString() == caption; });
        for (int i = 0; model_.handles && i < 8; ++i)
            desktop_.WaitFor("handle " + std::to_string(i) + " of " + model_.SelectedKey(),
                             [&] { return Shows(Inside(model_.Handle(i)), HandleColour); });
        for (int i = 0; i < static_cast<int>(model_.current().corners.size()); ++i) {
            const Place at = model_.CornerPlace(i);
            const Box box = {at.x - 2, at.y - 2, 5, 5};
            desktop_.WaitFor("corner " + std::to_string(i + 1),
                             [&] { return Shows(box, HandleColour) || Shows(box, BlinkColour); });
        }
    }
    /// A new skin has all preferences with their defaults. The sample on its panel has made the fonts that it
    /// shows: the last column is their size.
    QByteArray Expected() const {
        constexpr const char* tags[] = {"Key", "PrefType", "Caption", "Value"};
        QByteArray lines = "\t<SkinPrefs>\r\n";
        for (const QByteArray& row :
             Contents(ORNAVO_SOURCE_DIR "/tests/walk/preferences.txt").trimmed().split('\n')) {
            lines += "\t\t<SkinPref>\r\n";
            const QByteArrayList values = row.split('\t');
            for (int i = 0; i < static_cast<int>(std::size(tags)); ++i)
                if (!values[i].isEmpty())
                    lines += QByteArray("\t\t\t<") + tags[i] + '>' + QString::fromUtf8(values[i]).toLatin1() +
                             "</" + tags[i] + ">\r\n";
            if (values.size() > static_cast<int>(std::size(tags)))
                lines += "\t\t\t<Font>\r\n\t\t\t\t<Name>" + values[3] + "</Name>\r\n\t\t\t\t<Size>" +
                         values[4] + "</Size>\r\n\t\t\t</Font>\r\n";
            lines += "\t\t</SkinPref>\r\n";
        }
        return QByteArray::fromStdString(model_.HeadLines()) + lines + "\t</SkinPrefs>\r\n" +
               QByteArray::fromStdString(model_.LayoutLines());
    }

    QString panel_, toolbox_;
    QRect canvas_;
    Model model_{SkinName, SkinSize.width(), SkinSize.height()};
};

TEST_F(EditWalk, Edit) {
    StartEmpty();
    CreateSkin();
    AddOneOfEach();
    SizeAndNudge();
    EditShape();
    CloneAndRestack();
    AddLayout();
    CloneRenameDelete();
    Save();
    Close();
    EXPECT_EQ(Saved().split('\n'), Expected().split('\n'));
}

}  // namespace
}  // namespace ornavo::walk
