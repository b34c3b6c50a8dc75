// SPDX-License-Identifier: MIT
// A picture of a skin is recoloured through the real windows: sliders, presets, both kinds of file, once more
// from the kept source, and cancelled.
#include <QBuffer>
#include <QSettings>

#include "pixels/ccolourise.h"
#include "walk/walk_test.h"

namespace ornavo::walk {
namespace {

constexpr QRgb SourceColour = 0xFF5A1EC8, KnobColour = 0xFF2F5F9E, PencilColour = 0xFFFFC86D;
constexpr QPoint SheetPlace = {1420, 40}, InElement = {200, 200};
constexpr QPoint InPicture = {60, 90};  // from the corner of the dialog's inside, in the source's box
constexpr QSize DialogSize = {1000, 660};
constexpr int PictureSize = 200;  // pixels

QRgb Recoloured(int hue, int saturation) {
    const QRgb pixel = SourceColour;
    cDIBSection dib;
    dib.CreateFromPicture(reinterpret_cast<const std::uint8_t*>(&pixel), 1, 1, 4);
    cColourise engine;
    engine.Hue = hue;
    engine.Saturation = saturation;
    engine.ProcessByRule(dib, dib);
    const std::uint8_t* bits = dib.DIBSectionBitsPtr();
    return qRgb(bits[2], bits[1], bits[0]);
}

class PictureWalk : public WalkTest {
protected:
    /// A skin of one button that shows one picture.
    void MakeSkin() {
        WritePicture("a.png", {PictureSize, PictureSize}, SourceColour);
        source_ = Contents(Path("a.png"));
        SkinText skin("Walk", {800, 600});
        skin.AddElement("E1", 2, {100, 100, 200, 200},
                        "<LockLeft>True</LockLeft><LockTop>True</LockTop><PicNormal>a.png</PicNormal>");
        WriteSkin(skin);
    }
    void Start() {
        desktop_.StartProgram({"Walk"});
        main_ = desktop_.Window("^Ornavo.*Walk");
        const QRect canvas = desktop_.Inside(main_);
        desktop_.WaitFor("the element",
                         [&] { return desktop_.Pixel(canvas.topLeft() + InElement) == SourceColour; });
        desktop_.Click(canvas.topLeft() + InElement);
        const QString sheet = desktop_.Window("^Properties$");
        desktop_.Place(sheet, SheetPlace);
        sheet_ = desktop_.Inside(sheet);
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
        const QRgb before = ResultPixel();
        desktop_.Press(knob);
        for (const int step : {by / 2, by}) desktop_.MoveTo(knob + QPoint(step, 0));
        desktop_.Release();
        desktop_.ParkPointer();
        desktop_.WaitFor("another colour", [&] { return ResultPixel() != before; });
    }
    void SavePreset(const char* name) {
        Keys({"alt+a"});
        desktop_.WaitForFocus("Save preset");
        desktop_.Type(name);
        Keys({"Return"});
        desktop_.WaitForFocus("Picture Editor");
    }
    void WaitForResult(int hue, int saturation) {
        const QRgb expected = Recoloured(hue, saturation);
        desktop_.WaitFor("the result of " + std::to_string(hue) + ' ' + std::to_string(saturation),
                         [&] { return ResultPixel() == expected; });
    }
    QRgb ResultPixel() const { return desktop_.Pixel(Inside() + QPoint(DialogSize.width() / 2, 0)); }
    QPoint Inside() const { return dialog_.topLeft() + InPicture; }
    /// Presets come and go, and the result is saved as a BMP.
    void FirstTime() {
        OpenEditor();
        WaitForResult(100, 100);
        DragKnob(60);
        Keys({"Home", "Page_Up", "Page_Up", "Right"});
        WaitForResult(17, 100);
        Keys({"Tab", "End", "Left"});
        WaitForResult(17, 254);
        SavePreset("Sea");
        Keys({"Home"});
        SavePreset("Grey");
        WaitForResult(17, 0);
        Keys({"Tab", "Down", "Up"});  // into the list, to the second preset and back
        WaitForResult(17, 254);
        Keys({"alt+d", "Return"});
        desktop_.WaitUntilGone("^Picture Editor$");
        EXPECT_EQ(Files(), (QStringList{"SkinSettings.xml", "a.bmp", "a.png", "Original/a.png"}));
        EXPECT_EQ(Contents(Path("a.bmp")).size(), 54 + PictureSize * PictureSize * 3);
        EXPECT_EQ(PixelOf("a.bmp"), Recoloured(17, 254));
    }
    /// From the kept source once more; a JPEG takes the place of the BMP.
    void SecondTime() {
        OpenEditor();
        WaitForResult(17, 254);
        Keys({"End"});
        WaitForResult(255, 254);
        Keys({"Tab", "Tab", "space"});  // into the list, to its one preset
        WaitForResult(17, 0);
        Keys({"Tab", "Tab", "Tab", "Tab", "Right", "Return"});  // over the buttons and the name to the kinds
        desktop_.WaitUntilGone("^Picture Editor$");
        EXPECT_EQ(Files(), (QStringList{"SkinSettings.xml", "a.jpg", "a.png", "Original/a.png"}));
        const QRgb saved = PixelOf("a.jpg"), expected = Recoloured(17, 0);
        for (const int shift : {0, 8, 16}) EXPECT_NEAR(saved >> shift & 255, expected >> shift & 255, 3);
    }
    void Cancelled() {
        OpenEditor();
        const QStringList files = Files();
        const QByteArray jpeg = Contents(Path("a.jpg"));
        Keys({"Page_Up"});
        WaitForResult(25, 0);
        Keys({"Escape"});
        desktop_.WaitUntilGone("^Picture Editor$");
        EXPECT_EQ(Files(), files);
        EXPECT_EQ(Contents(Path("a.jpg")), jpeg);
    }

    QStringList Files() const {
        QStringList files = QDir(Path("")).entryList(QDir::Files, QDir::Name);
        for (const QString& kept : QDir(Path("Original")).entryList(QDir::Files, QDir::Name))
            files += "Original/" + kept;
        return files;
    }
    QString Setting(const QString& key) const {
        const QString file = desktop_.Home() + "/Ornavo/Ornavo for Quillmar's Jukebox 3.2.ini";
        return QSettings(file, QSettings::IniFormat).value("Picture-Editor/" + key, "-").toString();
    }
    QRgb PixelOf(const QString& file) const { return QImage(Path(file)).pixel(7, 7); }

    QRect dialog_, sheet_;
    QByteArray source_;
};

TEST_F(PictureWalk, Recolour) {
    MakeSkin();
    Start();
    FirstTime();
    SecondTime();
    Cancelled();
    desktop_.Activate(main_);
    Keys({"ctrl+s"});
    Close();
    EXPECT_EQ(Contents(Path("Original/a.png")), source_);
    EXPECT_TRUE(Saved().contains("<PicNormal>a.jpg</PicNormal>"));
    const std::pair<const char*, const char*> settings[] = {
        {"Hue", "17"},           {"Saturation", "0"}, {"SaveAsBMP", "False"}, {"PresetCount", "1"},
        {"PresetName1", "Grey"}, {"HUE1", "17"},      {"Sat1", "0"},          {"PresetName2", "-"}};
    for (const auto& [key, value] : settings) EXPECT_EQ(Setting(key), value) << key;
}

}  // namespace
}  // namespace ornavo::walk
