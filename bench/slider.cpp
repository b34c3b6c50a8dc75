// SPDX-License-Identifier: MIT
// One step of the picture editor's slider, from the value to the painted result, with source and result of a
// picture of 12 megapixels visible, compared with a copy of the picture's bytes.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstring>

#include "document/current_skin.h"
#include "picture/frm_pictureeditor.h"
#include "platform/settings.h"

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

void CopyBytes(benchmark::State& state) {
    std::vector<char> from(Width * Height * 3, 'a'), to(from.size(), 'b');
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::ClobberMemory();
    }
}

void SliderStep(benchmark::State& state) {
    QTemporaryDir folder;
    UseSettingsFile(folder.filePath("settings.ini"));
    objSkin->SetBasePath(folder.path().toStdString());
    objSkin->SkinName = "Bench";
    const QString file = folder.filePath("scene.bmp");
    if (!Scene().save(file)) return state.SkipWithError("no picture");
    frm_PictureEditor editor(nullptr);
    editor.SetFinalName("scene");
    editor.SetEditPicture(file.toStdString());
    editor.Form_Load();
    editor.resize(1300, 800);
    editor.show();
    QCoreApplication::processEvents();
    for (auto _ : state) editor.hscHue->setValue((editor.hscHue->value() + 1) % 256);
}

BENCHMARK(CopyBytes)->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly();
BENCHMARK(SliderStep)->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly();

}  // namespace
}  // namespace ornavo
