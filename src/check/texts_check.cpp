// SPDX-License-Identifier: MIT
#include "check/texts_check.h"

#include <QFontMetrics>
#include <algorithm>
#include <iterator>
#include <map>

#include "check/contrast.h"
#include "check/element_name.h"
#include "check/element_texts.h"
#include "check/size_ranges.h"
#include "platform/fonts.h"
#include "platform/form.h"

namespace ornavo {
namespace {

constexpr int LargeText = 24, LargeBoldText = 19;  // pixels: 18 and 14 points
constexpr double LeastContrast = 4.5, LeastContrastOfLarge = 3;
constexpr int FarBelow = 1 << 20;  // pixels; nothing so far down is seen

/// A picture that a button shows instead of the normal one.
struct ShownState {
    std::string dbLayoutElement::*picture;
    const char* words;
};
constexpr ShownState ShownStates[] = {{&dbLayoutElement::PicNormal, ""},
                                      {&dbLayoutElement::PicOver, " under the pointer"},
                                      {&dbLayoutElement::PicDown, " when it is pressed"}};

bool IsNormal(const ShownState& state) {
    return state.picture == &dbLayoutElement::PicNormal;
}

bool HasPicture(const ElementText& text, const ShownState& state) {
    return text.IsButton() && !((*text.element).*state.picture).empty();
}

bool IsLarge(const Font& font) {
    const int pixels = ScreenFont(font).pixelSize();
    return pixels >= LargeText || (font.Bold && pixels >= LargeBoldText);
}

/// Where the line is in the window, as far as its control doesn't clip it.
QRect SeenPart(const ElementText& text) {
    const Rect& line = text.line;
    const QRect whole(line.left, line.top, line.width, line.height);
    return (whole & text.control->rect()).translated(text.control->pos());
}

using Points = std::vector<QPoint>;  // of the window

/// The pixels that the text covers by more than half. In white and in black its letters differ by what of a
/// pixel they cover, whatever is behind them, and what lies in front of them counts as well.
Points Covered(const ElementText& text, const QImage& white, const QImage& black) {
    Points covered;
    const QRect part = SeenPart(text) & white.rect();
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (qGreen(white.pixel(x, y)) - qGreen(black.pixel(x, y)) > 127) covered.emplace_back(x, y);
    return covered;
}

/// The opaque colours there; what is behind a clear pixel isn't known.
std::vector<QRgb> ColoursAt(const Points& points, const QImage& picture) {
    std::vector<QRgb> colours;
    for (const QPoint& at : points)
        if (const QRgb pixel = picture.pixel(at); qAlpha(pixel) == 255) colours.push_back(pixel);
    return colours;
}

/// Draws texts in other ways than the skin does. The picture has a copy of the skin.
class OtherTexts {
public:
    OtherTexts(LayoutPicture& picture, const std::vector<ElementText>& texts)
        : picture_(picture), texts_(texts) {
        for (const ElementText& text : texts) region_ += SeenPart(text);
    }
    template <class Change>
    QImage With(Change change) {
        for (const ElementText& text : texts_) change(text, *text.element);
        RedrawTexts(picture_, texts_);
        return picture_.Controls(region_);
    }

private:
    LayoutPicture& picture_;
    const std::vector<ElementText>& texts_;
    QRegion region_;
};

std::vector<Points> LettersOf(OtherTexts& drawing, const std::vector<ElementText>& texts) {
    const auto drawn = [&](Colour colour) {
        return drawing.With([=](const ElementText&, dbLayoutElement& one) { one.TextColor = colour; });
    };
    const QImage white = drawn(Rgb(255, 255, 255)), black = drawn(0);
    std::vector<Points> letters(texts.size());
    std::ranges::transform(texts, letters.begin(),
                           [&](const ElementText& text) { return Covered(text, white, black); });
    return letters;
}

std::string OneDecimal(double number) {
    const int tenths = static_cast<int>(number * 10);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

/// What is cut of a text: its letters at the top or at the bottom, or its ends.
std::string CutOf(const ElementText& text) {
    const QFontMetrics metrics(ScreenFont(text.font));
    const QRect ink = metrics.tightBoundingRect(ShownText(text.font, text.text))
                          .translated(0, text.line.top + metrics.ascent());
    const int lost = std::max(-ink.top(), ink.bottom() + 1 - text.control->height());
    if (lost > 0) return "loses " + std::to_string(std::min(lost, ink.height())) + " pixels of its height";
    if (text.scrolls || text.line.width <= text.room) return "";
    return "is " + std::to_string(text.line.width) + " pixels wide and has a room of " +
           std::to_string(text.room);
}

std::string WordsOfFace(const Font& font) {
    const std::string face = StandInFor(font);
    return face.empty() ? "" : ", in " + face + ", which stands in for " + font.Name;
}

/// The texts of one layout.
class LayoutTexts {
public:
    LayoutTexts(const LoadedSkin& loaded, const dbLayout& layout) : loaded_(loaded), layout_(layout) {}
    /// `where` is the window in words.
    void CheckWindow(const Size& window, const std::string& where);
    Findings Tell() const;

private:
    /// What is told of an element's text.
    struct Result {
        double contrast = 21;  // the least
        std::string where, cut;
        bool isLarge = false;
    };
    void CheckCuts(const std::vector<ElementText>& texts, const std::string& where);
    void CheckContrast(LayoutPicture& picture, const std::vector<ElementText>& texts,
                       const std::string& where);
    Finding Make(std::string_view code, const dbLayoutElement& element, const char* field,
                 const std::string& text) const {
        return MakeFinding(code, {layout_.Key, element.Key, field}, loaded_.LineOf(&element, field),
                           "The text of " + QuotedName(element) + " " + text + ".");
    }

    const LoadedSkin& loaded_;
    const dbLayout& layout_;
    std::map<std::string, Result> results_;  // by the element's key
};

void LayoutTexts::CheckWindow(const Size& window, const std::string& where) {
    LayoutPicture picture(loaded_.skin(), layout_.Key, window, View::Preview);
    const std::vector<ElementText> texts = TextsOf(picture);
    for (const ElementText& text : texts) results_[text.element->Key].isLarge = IsLarge(text.font);
    CheckCuts(texts, where);
    CheckContrast(picture, texts, where);
}

void LayoutTexts::CheckCuts(const std::vector<ElementText>& texts, const std::string& where) {
    for (const ElementText& text : texts) {
        std::string& told = results_[text.element->Key].cut;
        const std::string cut = CutOf(text);
        if (told.empty() && !cut.empty()) told = cut + where + WordsOfFace(text.font);
    }
}

/// The text's own colour is compared with what is behind its letters, because their blended edges would make
/// every text look paler than it is read.
void LayoutTexts::CheckContrast(LayoutPicture& picture, const std::vector<ElementText>& texts,
                                const std::string& where) {
    std::vector<QRgb> colours(texts.size());
    std::ranges::transform(texts, colours.begin(), [](const ElementText& text) {
        return ScreenColour(text.element->TextColor).rgb();
    });
    OtherTexts drawing(picture, texts);
    const std::vector<Points> letters = LettersOf(drawing, texts);
    for (const ShownState& state : ShownStates) {
        const QImage ground = drawing.With([&](const ElementText& text, dbLayoutElement& one) {
            one.CaptionY = FarBelow;
            if (HasPicture(text, state)) one.PicNormal = one.*state.picture;
        });
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (!IsNormal(state) && !HasPicture(texts[i], state)) continue;
            const std::vector<QRgb> grounds = ColoursAt(letters[i], ground);
            const double contrast = grounds.empty() ? 21 : ContrastOf(colours[i], grounds);
            Result& result = results_[texts[i].element->Key];
            if (contrast < result.contrast) result.contrast = contrast, result.where = state.words + where;
        }
    }
}

Findings LayoutTexts::Tell() const {
    Findings findings;
    for (const dbLayoutElementRef& element : *layout_.dbLayoutElements) {
        const auto found = results_.find(element->Key);
        if (found == results_.end()) continue;
        const Result& result = found->second;
        const double least = result.isLarge ? LeastContrastOfLarge : LeastContrast;
        if (result.contrast < least)
            findings.push_back(Make("low-contrast", *element, "TextColor",
                                    "has a contrast of " + OneDecimal(result.contrast) +
                                        " to what is behind it" + result.where + ": below " +
                                        OneDecimal(least) + " it is hard to read"));
        if (!result.cut.empty()) findings.push_back(Make("cut-text", *element, "Caption", result.cut));
    }
    return findings;
}

}  // namespace

Findings CheckTexts(const LoadedSkin& loaded) {
    const dbSkin& skin = loaded.skin();
    const Size own = {std::clamp(skin.SkinWidth, 1, MostWindowPixels),
                      std::clamp(skin.SkinHeight, 1, MostWindowPixels)};
    Findings findings;
    for (const dbLayoutRef& layout : *skin.dbLayouts) {
        LayoutTexts texts(loaded, *layout);
        texts.CheckWindow(own, "");
        texts.CheckWindow(LeastWindow, " in a window of 600 x 600");
        std::ranges::move(texts.Tell(), std::back_inserter(findings));
    }
    return findings;
}

}  // namespace ornavo
