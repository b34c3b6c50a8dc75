// SPDX-License-Identifier: MIT
#include "render/sample_families.h"

#include <array>

#include "base/find_row.h"
#include "render/style_builders.h"

namespace ornavo {
namespace {

constexpr HeadingSize Untold = HeadingSize::Untold, Told = HeadingSize::Told;
using Sample = SamplePanel;

// In the order of styling: if several write their key colour to the same preference, the last one wins. Each
// row has a line for what the control is and one for how it is styled.
// clang-format off
constexpr std::array Families = {
    SampleFamily{"but_Song", "SO", "D", "Main Button (Song & Artist)", Untold, Redraw::Places,
                 &Sample::but_Song, SetupSongButton},
    SampleFamily{"but_Song2", "SO", "S", "Main Button (Song only)", Untold, Redraw::Places,
                 &Sample::but_Song2, SetupSongButton},
    SampleFamily{"but_AddAll", "AA", "", "Add All Button", Told, Redraw::Button,
                 &Sample::but_AddAll, SetupAddAllButton, {"", "AA_Caption", "AA_Font", 22}},
    SampleFamily{"but_Info", "IN", "", "Info Button", Untold, Redraw::Places,
                 &Sample::but_Info, SetupInfoButton, {"", "IN_Caption", "IN_Font", 18}},
    SampleFamily{"KeyN", "KB", "N", "Key General", Told, Redraw::Button,
                 &Sample::KeyN, SetupKey, {"X", "", "KB_Font", 16}},
    SampleFamily{"KeyB", "KB", "B", "Key Backspace", Told, Redraw::Button,
                 &Sample::KeyB, SetupKey, {"", "KBB_Caption", "KBB_Font", 16}},
    SampleFamily{"KeyE", "KB", "E", "Key Enter", Told, Redraw::Button,
                 &Sample::KeyE, SetupKey, {"Enter", "", "KB_Font", 16}},
    SampleFamily{"KeyU", "KB", "U", "Key Shift", Told, Redraw::Button,
                 &Sample::KeyU, SetupKey, {"", "KBU_Caption", "KBU_Font", 16}},
    SampleFamily{"KeyS", "KB", "S", "Key Space", Told, Redraw::Button,
                 &Sample::KeyS, SetupKey, {"Space", "", "KB_Font", 16}},
    SampleFamily{"lbl_SL", "SL", "", "Search Letters", Untold, Redraw::Letters,
                 nullptr, StyleLetter, {"", "", "SL_Font", 8}, &Sample::lbl_SL},
    SampleFamily{"lbl_Kiosk", "LA", "", "General Labels", Untold, Redraw::Labels},
    SampleFamily{"but_Picture", "PI", "", "Album/Artist Picture", Untold, Redraw::Places,
                 &Sample::but_Picture, nullptr, {}, nullptr, "but_Label"},
    SampleFamily{"btn_SkinProperties", "SP", "", "Skin Properties", Untold, Redraw::Panel},
    SampleFamily{"cmd_Button", "CB", "S", "Command Button (1 Row)", Told, Redraw::Layout},
    SampleFamily{"cmd_Button2", "CB", "D", "Command Button (2 Rows)", Told, Redraw::Layout},
};
// clang-format on

}  // namespace

std::span<const SampleFamily> SampleFamilies() {
    return Families;
}

const SampleFamily* FindSample(std::string_view controlName) {
    if (controlName.empty()) return nullptr;
    const SampleFamily* family = FindRow(Families, &SampleFamily::control, controlName);
    return family ? family : FindRow(Families, &SampleFamily::label, controlName);
}

Control& SelectedBy(Control& clicked, SamplePanel& sample, const SampleFamily& family) {
    if (family.button) return sample.*family.button;
    return family.pool ? (sample.*family.pool)[0] : clicked;
}

void StyleButton(SamplePanel& sample, const SampleFamily& family) {
    if (!family.button || !family.style) return;
    TileButton& button = sample.*family.button;
    family.style(family, button);
    button.Refresh();
}

void TakeTransparentColor(SamplePanel& sample, std::string_view prefix) {
    for (const SampleFamily& family : Families) {
        if (family.prefix != prefix) continue;
        if (family.button) (sample.*family.button).ColourOwner.reset();
        if (!family.pool) continue;
        for (int slot = 1; slot <= (sample.*family.pool).Top(); ++slot)
            (sample.*family.pool)[slot].ColourOwner.reset();
    }
}

}  // namespace ornavo
