// SPDX-License-Identifier: MIT
#include "render/standard_elements.h"

#include <QPainter>

#include "document/current_skin.h"
#include "render/element_button.h"
#include "render/key_colour.h"
#include "render/prefs.h"
#include "render/skin_picture.h"

namespace ornavo {

void DrawMainBackground(LayoutHost& host, bool stretch) {
    PictureBox& panel = host.pMain;
    panel.Cls();
    const PictureRef& picture = host.pMainBack.GetPicture();
    if (!picture) return;
    if (!stretch) return panel.Tile(picture);
    panel.SetBackColor(0);
    panel.Draw([&](QPainter& painter) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(panel.rect(), picture->image());
    });
}

void SetupMainPanel(LayoutHost& host, const dbLayoutElement& element) {
    host.pMain.SetBackColor(element.BackgroundColor);
    host.pMainBack.SetPicture(LoadSkinPicture(element.PicNormal));
    DrawMainBackground(host, element.StretchBackground);
}

void SetupSearchElement(TextBox& box, const dbLayoutElement& element) {
    if (element.Font) box.SetFont(*element.Font);
    box.SetForeColor(element.TextColor);
    box.SetBackColor(element.BackgroundColor);
    box.SetBorderStyle(element.ShowBorder ? 1 : 0);
}

Rect ScrollBarRect(const Rect& frame) {
    constexpr int gap = 15, shortBar = 50, tallFrame = 300, rest = 250;
    return {frame.left, frame.top + gap, frame.width,
            frame.height >= tallFrame ? frame.height - rest : shortBar};
}

void SetupScrollElement(LayoutHost& host, dbLayoutElement& element) {
    TileButton& frame = host.Scrollframe;
    if (element.PicNormal.empty())
        frame.SetBackColor(element.BackgroundColor);
    else
        SetTilePicture(frame.Picture, frame.AniPicture, element.PicNormal);
    SetupElementGround(frame, element);
    frame.Refresh();
    host.ScrollBar.Move(ScrollBarRect(frame.Bounds()));
    SetupScrollBar(host.ScrollBar, element);
}

void SetupScrollBar(TileButton& bar, dbLayoutElement& element) {
    TileState& state = bar.State;
    SetupElementGround(bar, element);
    ExchangeTransparentColor(bar, element.UseTopLeftTransparency, objCurrentLayout, element.TransparentColor,
                             [&](Colour colour) { element.TransparentColor = colour; });
    state.UseShadow = element.ShowShadow;
    state.ShadowColor = element.ShadowColor;
    state.ShadowDistance = element.ShadowDistance;
    SetTilePicture(bar.Picture, bar.AniPicture, element.PicOn);
    SetSeldomPicture(bar.PictureOver, bar.AniPictureOver, element.PicOver);
    SetSeldomPicture(bar.PictureDown, bar.AniPictureDown, element.PicDown);
    SetupElementRotation(bar, element);
    bar.Elements.Clear();
    TileLayer& layer = bar.Elements.Add("Caption");
    layer.Text = element.Caption;
    layer.Top = static_cast<float>(element.CaptionY);
    if (element.Font) layer.Font = *element.Font;
    layer.Height = TextHeight(layer.Font);
    layer.ForeColor = element.TextColor;
    bar.Refresh();
}

}  // namespace ornavo
