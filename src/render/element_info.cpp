// SPDX-License-Identifier: MIT
#include "render/element_info.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "base/failure.h"
#include "base/find_row.h"
#include "document/codes.h"
#include "platform/clock.h"
#include "render/prefs.h"
#include "render/skin_picture.h"

namespace ornavo {
namespace {

constexpr double NewFontSize = 10;
constexpr int FarAway = 1 << 24;  // pixels to the left or above; nothing so far out is visible

struct InfoSample {
    InfoTypeCode infoType;
    std::string_view text;
};
// The texts of those that do not show their own name.
constexpr InfoSample Samples[] = {
    {InfoArtistAndSongTitle, "Artist - Song Title"},
    {InfoVolume, ""},
    {InfoElapsedTime, "00:10"},
    {InfoRemainingTime, "01:00"},
    {InfoSongDuration, "03:45"},
    {InfoPlaylistDuration, ""},
    {InfoSongProperty, ""},
};

std::int32_t Absolute(std::int32_t value) {
    if (value == std::numeric_limits<std::int32_t>::min()) throw Failure(Failure::Overflow, "Composition");
    return std::abs(value);
}

}  // namespace

std::string InfoSampleText(const dbLayoutElement& element) {
    if (element.InfoType == InfoUserLabel) return element.InfoField;
    if (element.InfoType == InfoSystemTime) return TimeOfDay();
    if (const InfoSample* sample = FindRow(Samples, &InfoSample::infoType, element.InfoType))
        return std::string(sample->text);
    const auto type = static_cast<std::size_t>(element.InfoType);  // a negative type is beyond the names
    return type < InfoTypeNames.size() ? std::string(InfoTypeNames[type]) : "";
}

void DrawInfoText(PictureBox& box, std::string_view text, const Point& at) {
    if (text.empty()) return;
    const Rect bounds = box.Bounds();
    const int left = std::clamp(at.x, -FarAway, bounds.width);
    const int top = std::clamp(at.y, -FarAway, bounds.height);
    box.DrawText(text, {left, top, bounds.width - left, bounds.height - top});
}

void SetupInfoElement(PictureBox& box, dbLayoutElement& element, View view) {
    box.SetBackColor(element.BackgroundColor);
    Attempt([&] { element.CapScrollSpeed = Absolute(element.CapScrollSpeed); });
    box.SetPicture(LoadSkinPicture(element.PicNormal));
    box.ForeColor = element.TextColor;
    box.Font = *GetElementFont(element, NewFontSize);
    box.Cls();
    // In the preview only a user label has its text from the start; playback/info_show draws the others.
    if (view == View::Preview && element.InfoType != InfoUserLabel) return;
    DrawInfoText(box, InfoSampleText(element), {0, element.CaptionY});
}

}  // namespace ornavo
