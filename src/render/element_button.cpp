// SPDX-License-Identifier: MIT
#include "render/element_button.h"

#include "base/failure.h"
#include "render/skin_picture.h"

namespace ornavo {
namespace {

MousePointer PointerOf(const dbLayoutElement& element, View view) {
    if (view == View::Canvas) return PointerDefault;
    if (element.Dragger) return PointerSizeAll;
    return element.Resizer ? PointerDiagonalDown : PointerDefault;
}

}  // namespace

void SetupElementCaption(TileButton& button, const dbLayoutElement& element) {
    Attempt([&] { button.Elements.Add("Caption"); });  // fails if it exists already
    TileLayer& layer = button.Elements.Item("Caption");
    layer.Visible = !element.Caption.empty();
    if (!layer.Visible) return;
    button.State.UseShadow = element.ShowShadow;
    button.State.ShadowDistance = element.ShadowDistance;
    button.State.ShadowColor = element.ShadowColor;
    layer.Font = element.Font ? *element.Font : Font();
    layer.ForeColor = element.TextColor;
    layer.Left = static_cast<float>(element.CaptionX);
    layer.Top = static_cast<float>(element.CaptionY);
    layer.Height = static_cast<float>(button.Bounds().height);
    layer.Text = element.Caption;
}

void SetupElementGround(TileButton& button, const dbLayoutElement& element) {
    TileState& state = button.State;
    state.BorderColor = element.BorderColor;
    state.ShowBorder = element.ShowBorder;
    state.BackStyle = element.UseTransparency ? 0 : 1;
    state.UseTransparency = element.UseTransparency;
    state.TransColorTopLeft = element.UseTopLeftTransparency;
    // Also with UseTopLeftTransparency: TransparentColor() returns it if there is no picture.
    state.TransparentColor = element.TransparentColor;
    state.ShowSmooth = element.ShowSmooth;
}

void SetupElementRotation(TileButton& button, const dbLayoutElement& element) {
    button.State.UseRotation = element.Rotation != 0;
    button.State.Rotation = element.Rotation;
}

void SetupElementButton(TileButton& button, dbLayoutElement& element, View view) {
    SetTilePicture(button.Picture, button.AniPicture, element.PicNormal);
    SetSeldomPicture(button.PictureDown, button.AniPictureDown, element.PicDown);
    SetSeldomPicture(button.PictureOver, button.AniPictureOver, element.PicOver);
    SetupElementCaption(button, element);
    SetupElementGround(button, element);
    SetupElementRotation(button, element);
    button.SetMousePointer(PointerOf(element, view));
    button.Repeats = view == View::Preview;
    button.Refresh();
    if (element.UseTopLeftTransparency) element.TransparentColor = button.TransparentColor();
}

}  // namespace ornavo
