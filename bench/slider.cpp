// SPDX-License-Identifier: MIT
// One step of the picture editor's slider, from the value to the painted result, with source and result of a
// picture of 12 megapixels visible, beside a copy of the picture's bytes on one thread.
#include <QApplication>
#include <QTemporaryDir>
#include <cstring>

#include "document/current_skin.h"
#include "judge.h"
#include "picture/frm_pictureeditor.h"
#include "platform/settings.h"
#include "platform/startup.h"

namespace ornavo {
namespace {

constexpr int Width = 4000, Height = 3000;

/// Gradients of colour, like a photograph.
QImage Scene() {
    QImage scene(Width, Height, QImage::Format_RGB32);
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            scene.setPixel(x, y, qRgb((x / 20 + y / 31) & 255, (x / 33) & 255, (y / 12 + (x ^ y) % 3) & 255));
    return scene;
}

/// The dialog with the scene, shown.
class Editor {
public:
    Editor() {
        UseSettingsFile(folder_.filePath("settings.ini"));
        objSkin->SetBasePath(folder_.path().toStdString());
        objSkin->SkinName = "Bench";
        const QString file = folder_.filePath("scene.bmp");
        if (!Scene().save(file)) qFatal("no picture");
        form_.SetFinalName("scene");
        form_.SetEditPicture(file.toStdString());
        form_.Form_Load();
        form_.resize(1300, 800);
        form_.show();
        QCoreApplication::processEvents();
    }
    void Step() { form_.hscHue->setValue((form_.hscHue->value() + 1) % 256); }

private:
    QTemporaryDir folder_;
    frm_PictureEditor form_{nullptr};
};

int Run(int count, char** words) {
    Editor editor;
    std::vector<char> from(Width * Height * 3, 'a'), to(from.size(), 'b');
    const auto copy = [&] { std::memcpy(to.data(), from.data(), from.size()); };
    return bench::Judge({{"a step of the slider, 12 megapixels, painted, wall",
                          [&] { return bench::Wall([&] { editor.Step(); }); }, "memcpy",
                          [&] { return bench::Wall(copy); }, 3}},
                        count, words);
}

}  // namespace
}  // namespace ornavo

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ornavo::PrepareProcess();
    QApplication application(argc, argv);
    ornavo::InitCommonControls(application);
    return ornavo::Run(argc, argv);
}
