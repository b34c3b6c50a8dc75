// SPDX-License-Identifier: MIT
#include "check/element_texts.h"

#include <QFontMetrics>
#include <algorithm>

#include "document/codes.h"
#include "platform/fonts.h"
#include "playback/info_show.h"
#include "render/element_button.h"
#include "render/element_info.h"

namespace ornavo {
namespace {

constexpr int FarFromBox = 1 << 24;  // pixels; nothing so far out is seen

/// The control in the element's slot, if the element is seen there.
template <class T>
T* SeenControl(const Pool<T>& pool, const dbLayoutElement& element) {
    const int slot = element.ControlIndex;
    const bool isIts = slot > 0 && slot <= pool.Top() && pool[slot].Tag == element.Key;
    return isIts && element.Visible ? &pool[slot] : nullptr;
}

void AddCaption(std::vector<ElementText>& texts, const dbLayoutElementRef& element, TileButton& button) {
    for (const TileLayer& layer : button.Elements) {
        if (!layer.Visible || layer.Text.empty()) continue;
        const TextPlace place = PlaceOfText(layer, {button.width(), button.height()});
        texts.push_back({element, &button, layer.Text, layer.Font, place.line, place.area.width, false});
    }
}

void AddInfo(std::vector<ElementText>& texts, const dbLayoutElementRef& element, PictureBox& box) {
    const std::string text = FirstText(*element);
    if (text.empty()) return;
    const int width = box.TextWidth(text), height = QFontMetrics(ScreenFont(box.Font)).height();
    const int top = std::clamp(element->CaptionY, -FarFromBox, FarFromBox);
    const bool scrolls = element->InfoType != InfoUserLabel && element->CapScrollSpeed != 0;
    texts.push_back({element, &box, text, box.Font, {0, top, width, height}, box.width(), scrolls});
}

}  // namespace

bool ElementText::IsButton() const {
    return element->ElementType != TypeInfo;
}

std::vector<ElementText> TextsOf(LayoutPicture& picture) {
    std::vector<ElementText> texts;
    const LayoutHost& host = picture.host();
    for (const dbLayoutElementRef& element : *picture.layout().dbLayoutElements) {
        const std::int32_t type = element->ElementType;
        if (type == TypeInfo) {
            if (PictureBox* box = SeenControl(host.pInfo, *element)) AddInfo(texts, element, *box);
        } else if (type == TypeButton || type == TypePicture || type == TypeVolume) {
            if (TileButton* button = SeenControl(host.Element, *element)) AddCaption(texts, element, *button);
        }
    }
    return texts;
}

void RedrawTexts(LayoutPicture& picture, const std::vector<ElementText>& texts) {
    for (const ElementText& text : texts)
        if (text.IsButton())
            SetupElementButton(static_cast<TileButton&>(*text.control), *text.element, View::Preview);
        else
            SetupInfoElement(static_cast<PictureBox&>(*text.control), *text.element, View::Preview);
    InfoShow().Begin(picture.host(), picture.layout());
}

}  // namespace ornavo
