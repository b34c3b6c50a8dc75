// SPDX-License-Identifier: MIT
#include "canvas/view_settings.h"

#include <tuple>

#include "base/failure.h"
#include "editor/settings_keys.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

/// Each setting with the switch that it stores.
constexpr auto Table = std::tuple{
    std::pair{&settings::GridX, &ViewSwitches::GridX},
    std::pair{&settings::GridY, &ViewSwitches::GridY},
    std::pair{&settings::ShowLines, &ViewSwitches::ShowLines},
    std::pair{&settings::ShowPoints, &ViewSwitches::ShowPoints},
    std::pair{&settings::ShowShape, &ViewSwitches::ShowShape},
    std::pair{&settings::ShapeInverted, &ViewSwitches::ShapeInverted},
    std::pair{&settings::ShowElements, &ViewSwitches::ShowElements},
    std::pair{&settings::ShowGrid, &ViewSwitches::ShowGrid},
    std::pair{&settings::SnapGrid, &ViewSwitches::SnapGrid},
};

}  // namespace

void ReadViewSettings() {
    std::apply(
        [](const auto&... row) { (Attempt([&] { viewSwitches.*row.second = row.first->Read(); }), ...); },
        Table);
}

void WriteViewSettings() {
    std::apply([](const auto&... row) { (row.first->Write(viewSwitches.*row.second), ...); }, Table);
}

}  // namespace ornavo
