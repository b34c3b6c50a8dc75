// SPDX-License-Identifier: MIT
// The entry point of the benches with windows; they use no screen unless QT_QPA_PLATFORM asks for one.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "platform/startup.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ornavo::PrepareProcess();
    QApplication application(argc, argv);
    ornavo::InitCommonControls(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
