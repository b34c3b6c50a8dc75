// SPDX-License-Identifier: MIT
#include "app/tool_places.h"

#include <QScreen>
#include <algorithm>

#include "platform/places.h"
#include "platform/settings.h"

namespace ornavo {
namespace {

QRect Outside(const Form& form) {
    const Rect twips = form.TwipBounds();
    return {form.Corner(), QSize(twips.width / TwipsPerPixel, twips.height / TwipsPerPixel)};
}

bool HoldsPlace(const char* section) {
    return !GetSetting(section, "Left", "").empty() || !GetSetting(section, "Top", "").empty();
}

}  // namespace

void ToolPlaces::Add(Form& tool, const char* section, int leastHeight) {
    tools_.push_back({&tool, HoldsPlace(section), leastHeight, {}, std::nullopt});
    // Tools that may grow come last, so that they are below the others.
    std::stable_sort(tools_.begin(), tools_.end(),
                     [](const Tool& one, const Tool& other) { return one.leastHeight < other.leastHeight; });
}

void ToolPlaces::Arrange(const Form& main) {
    userHasMovedOne_ = userHasMovedOne_ || std::any_of(tools_.begin(), tools_.end(), [](const Tool& tool) {
                           return tool.put && *tool.put != tool.form->Corner();
                       });
    if (userHasMovedOne_) return;
    std::vector<QRect> taken;
    for (const Tool& tool : tools_)
        if (tool.hasPlace) taken.push_back(Outside(*tool.form));
    const QRect room = main.screen()->availableGeometry();
    for (Tool& tool : tools_) {
        if (tool.hasPlace) continue;
        if (!tool.put) tool.designed = tool.form->Corner();
        const QSize size = Outside(*tool.form).size(), grown = size.expandedTo({0, tool.leastHeight});
        const std::optional<QPoint> beside = PlaceBeside(room, Outside(main), grown, taken);
        tool.put = beside.value_or(WithinRoom(room, tool.designed, size));
        tool.form->MoveFrame(*tool.put);
        if (beside) taken.emplace_back(*beside, grown);
    }
}

}  // namespace ornavo
