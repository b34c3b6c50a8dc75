// SPDX-License-Identifier: MIT
// The pictures of the page "Your first skin", taken while its steps are done.
#include "pictures.h"

namespace ornavo::guide {
namespace {

using namespace walk;

constexpr QSize SkinSize = {1024, 768};
constexpr QPoint SheetPlace = {1290, 40};
constexpr int Half = 50;         // percent
constexpr int ShowElements = 2;  // its line in the toolbox
constexpr int Cut = 80;          // pixels, of the upper corners
const Captions VolumeRows = InfoHead + Captions{"db-Script Name", "Volume Picture 0%", "Volume Picture 100%",
                                                "Vertical",       "Can change Volume", "Appearance",
                                                "Visible"};
const Captions SkinRows = FirstOf({"Skin Properties", "Editor", "Background Helper"}, 25);

class FirstSkin {
public:
    FirstSkin(Desktop& desktop, Camera& camera)
        : desktop_(desktop), camera_(camera), editor_(desktop, {}), art_(editor_.Skins() + "Aurora/") {}

    void Create() {
        editor_.ClickProject(1);
        desktop_.WaitForFocus("Create new Skin");
        desktop_.Type(QString("Seaside\t%1\t%2").arg(SkinSize.width()).arg(SkinSize.height()));
        const QString dialog = desktop_.Window("^Create new Skin$");
        desktop_.Place(dialog, {260, 40});
        desktop_.ParkPointer();
        camera_.TakeBeside("new-skin", {editor_.Frame(editor_.panel()), editor_.Frame(dialog)});
        desktop_.Key({"Return"});
        desktop_.WaitUntilGone("^Create new Skin$");
        editor_.Arrange();
        editor_.Save();
        camera_.Take("first-windows", editor_.Everything(), Half);
    }
    void AddBackground() {
        editor_.Add(Graphic);
        sheet_.Open(SheetPlace);
        sheet_.Becomes(PictureRows);
        Fill("Background", {0, 0, SkinSize.width(), SkinSize.height()});
        sheet_.ClickRow("Lock Right");
        sheet_.ClickRow("Lock Bottom");
        sheet_.ChoosePicture("Normal", art_ + "backdrop.jpg");
        editor_.Menu({900, 500}, "n");
        editor_.Save();
        editor_.Click({900, 500});
        desktop_.ParkPointer();
        camera_.Take("first-background", editor_.Everything(), Half);
    }
    void AddButton() {
        editor_.Add(Button);
        sheet_.Becomes(ButtonRows);
        sheet_.Type("Name", "Play");
        desktop_.Key({"Tab", "Tab", "Down"});
        sheet_.ChoosePicture("Normal", art_ + "transport_play_normal.png");
        sheet_.ChoosePicture("Over", art_ + "transport_play_over.png");
        sheet_.ChoosePicture("Down", art_ + "transport_play_down.png");
        editor_.Menu({50, 50}, "r");
        desktop_.ParkPointer();
        camera_.Still(editor_.Part({0, 0, 200, 200}));
        editor_.Drag({60, 60}, {95, 667});
        desktop_.ParkPointer();
        const QRect corner = editor_.Part({0, 590, 240, 178});
        const QImage before = camera_.Still(corner);
        sheet_.ClickRow("Use Transparency");
        desktop_.ParkPointer();
        camera_.KeepBeside("first-transparency", {before, camera_.Still(corner)});
        TakeSheet("first-button", {95, 667}, {0, 418, 340, 350});
    }
    void AddTitle() {
        editor_.Add(Info);
        sheet_.Becomes(LabelRows);
        Fill("Title", {30, 40, 740, 40});
        desktop_.Key(QStringList(7, "Tab") + QStringList(1, "Down"));
        sheet_.Becomes(TitleRows);
        sheet_.Type("Text Color", "16777215");
        sheet_.ClickRow("Font");
        desktop_.Key({"F4"});
        desktop_.WaitForFocus("Font");
        desktop_.Type("Tahoma");
        desktop_.Key({"Tab", "Tab", "ctrl+a"});
        desktop_.Type("20");
        desktop_.Key({"Return"});
        desktop_.WaitForFocus("Properties");
        editor_.Menu({400, 60}, "p");
        TakeSheet("first-info", {400, 60}, {0, 0, 520, 350});
    }
    void AddVolume() {
        editor_.Add(Info);
        sheet_.Becomes(LabelRows);
        Fill("Volume", {180, 650, 100, 32});
        sheet_.ClickRow("Lock Right");
        sheet_.ClickRow("Height");
        desktop_.Key(QStringList(7, "Tab") + QStringList(5, "Down"));
        sheet_.Becomes(VolumeRows);
        sheet_.ClickRow("Can change Volume");
        sheet_.ChoosePicture("Volume Picture 0%", art_ + "volume_0.bmp");
        sheet_.ChoosePicture("Volume Picture 100%", art_ + "volume_100.bmp");
        TakeSheet("first-volume", {230, 666}, {0, 418, 420, 350});
    }
    void CutShape() {
        editor_.ClickSkinProperties();
        sheet_.Becomes(SkinRows);
        sheet_.ChoosePicture("Background Helper", art_ + "backdrop.jpg");
        editor_.ToolboxLine(ShowElements);
        const int right = SkinSize.width() - 1;
        editor_.Click({Cut, 0});
        editor_.Drag({0, 0}, {0, Cut});
        editor_.Click({right - Cut, 0});
        editor_.Drag({right, 0}, {right, Cut});
        desktop_.ParkPointer();
        camera_.Take("first-shape", editor_.Everything(), Half);
        editor_.ToolboxLine(ShowElements);
    }
    void Preview() {
        desktop_.Activate(editor_.main());
        desktop_.Key({"F5"});
        const QString preview = desktop_.Window("^Skin Preview$");
        desktop_.ParkPointer();
        camera_.Take("first-preview", desktop_.Inside(preview).adjusted(-16, -16, 16, 34), Half);
        desktop_.Key({"Escape"});
        desktop_.WaitUntilGone("^Skin Preview$");
        desktop_.Window("^Ornavo");
    }
    void Save() { editor_.Save(); }
    void Close() { editor_.Close(); }

private:
    /// Once it is saved, a picture's row has the file's name alone.
    void TakeSheet(const char* name, const QPoint& element, const QRect& part) {
        editor_.Save();
        editor_.Click(element);
        desktop_.ParkPointer();
        camera_.TakeBeside(name, {editor_.Part(part), editor_.Frame(sheet_.window())});
    }
    void Fill(const char* name, const QRect& place) {
        sheet_.Type("Name", name);
        sheet_.Type("X", Number(place.x()));
        sheet_.Type("Y", Number(place.y()));
        sheet_.Type("Width", Number(place.width()));
        sheet_.Type("Height", Number(place.height()));
    }

    Desktop& desktop_;
    Camera& camera_;
    Editor editor_;
    Sheet& sheet_ = editor_.sheet;
    QString art_;
};

}  // namespace

void TakeFirstSkin(Desktop& desktop, Camera& camera) {
    FirstSkin first(desktop, camera);
    first.Create();
    first.AddBackground();
    first.AddButton();
    first.AddTitle();
    first.AddVolume();
    first.CutShape();
    first.Preview();
    first.Save();
    first.Close();
}

}  // namespace ornavo::guide
