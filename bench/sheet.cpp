// SPDX-License-Identifier: MIT
// Filling the properties panel for a button, compared with placing and painting as many pairs of a label and
// a text box. A frame has 16 ms.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>

#include "document/codes.h"
#include "document/current_skin.h"
#include "properties/frm_properties.h"
#include "support/recorded_windows.h"

namespace ornavo {
namespace {

constexpr int RowCount = 40, Width = 312;

void FillSheet(benchmark::State& state) {
    objCurrentLayout = std::make_shared<dbLayout>();
    for (int i = 1; i <= 60; ++i) {
        const std::string key = "Button" + std::to_string(i);
        objCurrentLayout->dbLayoutElements->Add(i, key, TypeButton, 0)->ElementName = key;
    }
    testing::RecordedWindows windows;
    testing::RecordedCanvas canvas;
    frm_Properties panel(nullptr, windows, canvas);
    Control selected(nullptr, "Element");
    selected.Tag = "Button1";
    canvas.selection().Select(selected);
    panel.Open();
    for (auto _ : state) {
        panel.ShowProperties();
        QCoreApplication::processEvents();
    }
}

void PlainRows(benchmark::State& state) {
    QWidget window;
    window.resize(Width, RowCount * RowPitch);
    std::vector<QLabel*> labels;
    std::vector<QLineEdit*> boxes;
    for (int i = 0; i < RowCount; ++i) {
        labels.push_back(new QLabel(&window));
        boxes.push_back(new QLineEdit(&window));
    }
    window.show();
    for (auto _ : state) {
        for (int i = 0; i < RowCount; ++i) labels[i]->hide(), boxes[i]->hide();
        for (int i = 0; i < RowCount; ++i) {
            labels[i]->setText("Caption");
            labels[i]->setGeometry(0, i * RowPitch, CaptionWidth, RowPitch);
            boxes[i]->setText("Value");
            boxes[i]->setGeometry(CaptionWidth, i * RowPitch, Width - CaptionWidth, RowPitch);
            labels[i]->show();
            boxes[i]->show();
        }
        QCoreApplication::processEvents();
    }
}

BENCHMARK(FillSheet)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainRows)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ornavo
