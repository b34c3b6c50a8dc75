// SPDX-License-Identifier: MIT
// The pictures of the guide's first page, of the sample skin Aurora.
#include <QDir>

#include "pictures.h"

namespace ornavo::guide {
namespace {

using namespace walk;

constexpr QPoint SheetPlace = {1290, 40};
constexpr int PencilFromRight = 26;  // pixels
// Places on the canvas at the skin's own size.
constexpr QPoint PlayButton = {512, 705}, Panel = {400, 560}, Dial = {949, 108};
constexpr QPoint Elements[] = {Dial, {400, 107}, {950, 681}, Panel, {820, 226}, {988, 400}, {331, 22}};
constexpr QPoint Sample[] = {{273, 289}, {273, 338}, {41, 424},  {825, 379},
                             {672, 295}, {920, 483}, {151, 609}, {167, 451}};

const Captions PanelRows = Element + Position + Captions{"Margins",
                                                         "Left",
                                                         "Right",
                                                         "Top",
                                                         "Bottom",
                                                         "Appearance",
                                                         "Background Picture",
                                                         "Background Color",
                                                         "Stretch Background"};

/// The sheet of what is clicked, once it is another than before.
QImage SheetAfter(Desktop& desktop, Camera& camera, Editor& editor, const std::function<void()>& click) {
    const auto now = [&] { return desktop.Picture().copy(editor.Frame(editor.sheet.window())); };
    const QImage before = now();
    click();
    desktop.ParkPointer();
    desktop.WaitFor("another sheet", [&] { return now() != before; });
    return camera.Still(editor.Frame(editor.sheet.window()));
}

void TakeSheets(Desktop& desktop, Camera& camera, Editor& editor) {
    const auto sheetOf = [&](const QPoint& place) {
        return SheetAfter(desktop, camera, editor, [&] { editor.Click(place); });
    };
    const QImage button = camera.Still(editor.Frame(editor.sheet.window()));
    QList<QImage> elements, sample;
    for (const QPoint& place : Elements) elements += sheetOf(place);
    for (const QPoint& place : Sample) sample += sheetOf(place);
    const QImage skin = SheetAfter(desktop, camera, editor, [&] { editor.ClickSkinProperties(); });
    camera.KeepBeside("sheets", {button, sample.first(), skin});
    camera.KeepBeside("sheets-elements", elements, 100, 4);
    camera.KeepBeside("sheets-sample", sample << skin, 100, 5);
}

void TakeMenu(Desktop& desktop, Camera& camera, Editor& editor) {
    editor.OpenMenu({174, 226});
    camera.Take("menu", editor.Part({40, 190, 620, 300}));
    desktop.Key({"Escape"});
}

void TakeMagnifier(Desktop& desktop, Camera& camera, Editor& editor) {
    desktop.Activate(editor.toolbox());
    desktop.Key({"alt+m"});
    const QString magnifier = desktop.Window("^Magnifier$");
    desktop.Place(magnifier, editor.Canvas().topLeft() + QPoint(240, 250));
    desktop.MoveTo(editor.Canvas().topLeft() + QPoint(221, 208));
    camera.Take("magnifier", editor.Part({100, 190, 560, 420}));
    desktop.Activate(magnifier);
    desktop.Key({"alt+F4"});
    desktop.WaitUntilGone("^Magnifier$");
}

void TakePictureEditor(Desktop& desktop, Camera& camera, Editor& editor) {
    SheetAfter(desktop, camera, editor, [&] { editor.Click(Panel); });
    editor.sheet.Becomes(PanelRows);
    const QRect row = editor.sheet.Row("Background Picture");
    desktop.Click({row.right() - PencilFromRight, row.center().y()});
    const QString window = desktop.Window("^Picture Editor$");
    desktop.WaitForFocus("Picture Editor");
    desktop.Resize(window, {1000, 600});
    desktop.Key(QStringList{"Home"} + QStringList(3, "Page_Up") + QStringList{"Tab", "Home"} +
                QStringList(16, "Page_Up"));
    desktop.ParkPointer();
    camera.Take("picture-editor", editor.Frame(window), 80);
    desktop.Key({"Escape"});
    desktop.WaitUntilGone("^Picture Editor$");
}

void FilmPreview(Desktop& desktop, Camera& camera, Editor& editor) {
    desktop.Activate(editor.main());
    desktop.Key({"F5"});
    const QRect window = desktop.Inside(desktop.Window("^Skin Preview$"));
    camera.Still(window);
    const auto drag = [&](const QPoint& from, const QPoint& by, int steps) {
        const QPoint start = window.topLeft() + from;
        desktop.Press(start);
        for (int step = 0; step <= steps; ++step) {
            desktop.MoveTo(start + by * step / steps);
            camera.Film(window);
        }
        desktop.Release();
    };
    drag(Dial, {0, -60}, 10);
    drag({400, 180}, {220, 0}, 14);
    drag(Dial, {0, 40}, 8);
    camera.KeepFilm("preview", 51, 14);
    desktop.Key({"Escape"});
    desktop.WaitUntilGone("^Skin Preview$");
}

QString Run(Desktop& desktop, const QStringList& arguments) {
    return desktop.Tool(ORNAVO_BINARY_DIR "/ornavo-cli", arguments);
}

/// The skin as it is, and with two of its pictures in another hue.
void TakeRecoloured(Desktop& desktop, Camera& camera, Editor& editor) {
    const QString skin = editor.Skins() + "Aurora/", file = desktop.Home() + "/recoloured.png";
    QList<QImage> pictures;
    const auto render = [&] {
        Run(desktop, {"render", skin, "--layout", "Standard", "--out", file, "--view", "preview"});
        pictures += QImage(file);
    };
    render();
    for (const char* name : {"backdrop.jpg", "panel_standard.jpg"}) {
        const QString kept = desktop.Home() + '/' + name;
        QFile::rename(skin + name, kept);
        Run(desktop, {"recolour", kept, skin + name, "--hue", "60", "--saturation", "110"});
    }
    render();
    camera.KeepBeside("recoloured", pictures, 52);
}

/// The sample where the program looks for it, with a clock that stands still.
void PutSkin(const Desktop& desktop) {
    const QString skin = desktop.Home() + "/ornavo/Skins/Aurora/";
    QDir().mkpath(skin);
    for (const QFileInfo& file : QDir(ORNAVO_SOURCE_DIR "/skins/Aurora").entryInfoList(QDir::Files))
        QFile::copy(file.filePath(), skin + file.fileName());
    QFile settings(skin + "SkinSettings.xml");
    settings.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (!settings.open(QIODevice::ReadWrite)) throw std::runtime_error("can't write the sample skin");
    const QByteArray text = settings.readAll().replace(
        "<InfoType>17</InfoType>", "<InfoType>0</InfoType>\r\n<InfoField>21:15:00</InfoField>");
    settings.seek(0);
    settings.write(text);
}

}  // namespace

void TakeGuide(Desktop& desktop, Camera& camera) {
    PutSkin(desktop);
    Editor editor(desktop, {"Aurora"});
    editor.Arrange();
    editor.Click(PlayButton);
    editor.sheet.Open(SheetPlace);
    desktop.ParkPointer();
    camera.Take("editor", editor.Everything(), 80);
    TakeSheets(desktop, camera, editor);
    TakeMenu(desktop, camera, editor);
    TakeMagnifier(desktop, camera, editor);
    TakePictureEditor(desktop, camera, editor);
    FilmPreview(desktop, camera, editor);
    TakeRecoloured(desktop, camera, editor);
}

}  // namespace ornavo::guide
