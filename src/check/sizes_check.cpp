// SPDX-License-Identifier: MIT
#include "check/sizes_check.h"

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <optional>

#include "base/failure.h"
#include "check/element_name.h"
#include "check/shape_sizes.h"
#include "check/size_words.h"
#include "document/codes.h"

namespace ornavo {
namespace {

constexpr int LeastDepth = 3;  // pixels; less neither covers nor cuts off
constexpr Size Screens[] = {{800, 600}, {1024, 600}, {1024, 768}, {1366, 768}, {1920, 1080}};

/// An element that the user sees.
struct Shown {
    Shown(const dbLayoutElement& of, const Size& skin)
        : element(of), x(of, Axis::X, skin), y(of, Axis::Y, skin) {}
    const dbLayoutElement& element;
    SpanTable x, y;
    bool isGround = false;  // others lie on it at the skin's own size
    bool IsPicture() const { return element.ElementType == TypePicture; }
};
using ShownList = std::vector<const Shown*>;

bool IsSeen(const dbLayoutElement& element) {
    const bool isNothing = element.ElementType == TypePicture && element.PicNormal.empty() &&
                           element.Caption.empty() && element.UseTransparency;
    const bool isKnown = static_cast<std::size_t>(element.ElementType) < ElementTypeNames.size();
    return isKnown && !isNothing && (element.Visible || element.ElementType == TypeMain);
}

std::string NameOf(const Shown& shown) {
    return QuotedName(shown.element);
}

/// One, two or three names, or two and how many more.
std::string NamesOf(const ShownList& list) {
    const std::size_t named = list.size() > 3 ? 2 : list.size();
    std::string names = NameOf(*list[0]);
    for (std::size_t i = 1; i < named; ++i)
        names += (i + 1 == list.size() ? " and " : ", ") + NameOf(*list[i]);
    return named == list.size() ? names : names + " and " + std::to_string(list.size() - named) + " more";
}

/// Whether something of the span is in the window, and whether something of it is outside.
bool IsIn(const Span& span, int window) {
    return span.IsShown() && span.end > 0 && span.start < window;
}
bool IsCut(const Span& span, int window) {
    return span.IsShown() && (span.start <= -LeastDepth || span.end >= window + LeastDepth);
}

/// The elements that cover another in windows of the same sizes.
struct Cover {
    ShownList by;
    std::int64_t windows;  // how many sizes
};

std::int64_t CountOf(const Ranges& ranges) {
    std::int64_t count = 0;
    for (const Interval& range : ranges) count += range.last - range.first + 1;
    return count;
}

/// Goes through the window sizes of one layout.
class LayoutSizes {
public:
    LayoutSizes(const LoadedSkin& loaded, const dbLayout& layout);
    Findings Run();

private:
    /// What stands in front of and behind the names of the elements that a finding is about.
    struct Sentence {
        std::string_view code;
        std::string before, behind;
        auto operator<=>(const Sentence&) const = default;
    };
    /// A sentence of several elements becomes one finding.
    void Tell(const Sentence& sentence, const Shown& shown);
    bool MeetAtOwnSize(const Shown& one, const Shown& other) const;
    void FindGround();
    void CheckCovered(const Shown& lower, std::size_t above);
    void CheckWindow(const Shown& shown);
    void CheckShape();
    void CheckShape(const Shown& shown, const ShapeSizes& shape);
    std::array<SizeLine, 4> Lines() const;

    const LoadedSkin& loaded_;
    const dbLayout& layout_;
    const Size skin_;
    std::deque<Shown> shown_;  // from the lowest to the topmost
    std::vector<std::pair<Sentence, ShownList>> told_;
    std::map<Sentence, std::size_t> toldAt_;
};

LayoutSizes::LayoutSizes(const LoadedSkin& loaded, const dbLayout& layout)
    : loaded_(loaded), layout_(layout), skin_{loaded.skin().SkinWidth, loaded.skin().SkinHeight} {
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements)
        if (IsSeen(*element)) Attempt([&] { shown_.emplace_back(*element, skin_); });
}

Findings LayoutSizes::Run() {
    FindGround();
    for (std::size_t i = 0; i < shown_.size(); ++i) CheckCovered(shown_[i], i + 1);
    for (const Shown& shown : shown_) CheckWindow(shown);
    CheckShape();
    Findings findings;
    for (const auto& [sentence, list] : told_) {
        const dbLayoutElement& first = list.front()->element;
        std::string text = sentence.before + NamesOf(list) + sentence.behind + ".";
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
        findings.push_back(MakeFinding(sentence.code, {layout_.Key, first.Key, ""},
                                       loaded_.LineOf(&first, "Key"), std::move(text)));
    }
    return findings;
}

void LayoutSizes::Tell(const Sentence& sentence, const Shown& shown) {
    const auto [at, isNew] = toldAt_.try_emplace(sentence, told_.size());
    if (isNew) told_.push_back({sentence, {}});
    told_[at->second].second.push_back(&shown);
}

bool LayoutSizes::MeetAtOwnSize(const Shown& one, const Shown& other) const {
    return Overlap(one.x.Own(), other.x.Own(), skin_.width) > 0 &&
           Overlap(one.y.Own(), other.y.Own(), skin_.height) > 0;
}

void LayoutSizes::FindGround() {
    for (std::size_t i = 0; i < shown_.size(); ++i)
        for (std::size_t above = i + 1; above < shown_.size() && !shown_[i].isGround; ++above)
            shown_[i].isGround = MeetAtOwnSize(shown_[i], shown_[above]);
}

/// Which elements come to cover this one. What lies on a ground, or as a button on a picture, is seen well.
void LayoutSizes::CheckCovered(const Shown& lower, std::size_t above) {
    constexpr std::size_t most = 3;  // of covers that are told
    if (lower.IsPicture() && lower.isGround) return;
    std::map<std::string, Cover> byWords;
    for (; above < shown_.size(); ++above) {
        const Shown& upper = shown_[above];
        if ((lower.IsPicture() && !upper.IsPicture()) || MeetAtOwnSize(lower, upper)) continue;
        const Ranges widths = SpanTable::Meeting(lower.x, upper.x, LeastDepth);
        if (widths.empty()) continue;
        const Ranges heights = SpanTable::Meeting(lower.y, upper.y, LeastDepth);
        if (heights.empty()) continue;
        Cover& cover = byWords[WordsOfBoth(widths, heights)];
        cover.by.push_back(&upper);
        cover.windows = CountOf(widths) * CountOf(heights);
    }
    if (byWords.empty()) return;
    std::vector<std::pair<std::string, Cover>> covers(byWords.begin(), byWords.end());
    std::ranges::stable_sort(covers, std::greater(), [](const auto& cover) { return cover.second.windows; });
    const auto& [words, first] = covers[0];
    Sentence sentence = {"covered-element",
                         words + " " + NamesOf(first.by) + (first.by.size() == 1 ? " covers " : " cover "),
                         ""};
    for (std::size_t i = 1; i < std::min(covers.size(), most); ++i)
        sentence.behind += (i == 1 ? "; also " : ", ") + NamesOf(covers[i].second.by) + " " + covers[i].first;
    if (covers.size() > most) sentence.behind += ", and others at fewer sizes";
    Tell(sentence, lower);
}

/// Whether this element leaves the window (of a picture or what is cut off anyway, whether nothing of it is
/// left), and whether it has a size.
void LayoutSizes::CheckWindow(const Shown& shown) {
    const Span x = shown.x.Own(), y = shown.y.Own();
    if (!IsIn(x, skin_.width) || !IsIn(y, skin_.height)) return;
    const auto isNothing = [](const Span& span, int) { return !span.IsShown(); };
    const auto isGone = [](const Span& span, int window) { return span.IsShown() && !IsIn(span, window); };
    const auto sizes = [&](auto condition) {
        return WordsOfEither(shown.x.Where(condition), shown.y.Where(condition));
    };
    const bool isWhole = !IsCut(x, skin_.width) && !IsCut(y, skin_.height) && !shown.IsPicture();
    if (const std::string words = isWhole ? sizes(IsCut) : sizes(isGone); !words.empty())
        Tell({"outside-window", words + (isWhole ? " the window's edge cuts " : " the window doesn't reach "),
              isWhole ? " off" : ""},
             shown);
    if (const std::string words = sizes(isNothing); !words.empty())
        Tell({"no-size", words + " no pixel is left of ", ""}, shown);
}

std::array<SizeLine, 4> LayoutSizes::Lines() const {
    const int width = std::clamp(skin_.width, CheckedWidths.first, CheckedWidths.last);
    const int height = std::clamp(skin_.height, CheckedHeights.first, CheckedHeights.last);
    return {{{Axis::X, height, CheckedWidths},
             {Axis::X, CheckedHeights.first, CheckedWidths},
             {Axis::Y, width, CheckedHeights},
             {Axis::Y, CheckedWidths.first, CheckedHeights}}};
}

void LayoutSizes::CheckShape() {
    std::optional<ShapeSizes> shape;
    Attempt([&] { shape.emplace(layout_, skin_); });
    if (!shape || !shape->IsShape()) return;
    for (const Shown& shown : shown_)
        if (!shown.IsPicture()) CheckShape(shown, *shape);
}

/// Along a few lines of window sizes, and at common screens if nothing is told of those.
void LayoutSizes::CheckShape(const Shown& shown, const ShapeSizes& shape) {
    const Rest own = shape.AtOwnSize(shown.x, shown.y);
    if (own == Rest::Nothing) return;
    std::string part, whole;
    const auto lines = Lines();
    const auto add = [](std::string& text, const Ranges& ranges, Axis axis, const std::string& at) {
        if (!ranges.empty()) text = Joined(text, ", ", Joined(WordsOf(ranges, axis), " ", at));
    };
    for (const auto& [axis, fixed, sizes] : lines) {
        const ShapeSizes::Cuts cuts = shape.Along({axis, fixed, sizes}, shown.x, shown.y);
        const std::string at = "at " + std::to_string(fixed) + (axis == Axis::X ? " high" : " wide");
        add(part, cuts.part, axis, at);
        add(whole, cuts.whole, axis, at);
    }
    for (const auto& [width, height] : Screens) {
        const ShapeSizes::Cuts cuts = shape.Along({Axis::X, height, {width, width}}, shown.x, shown.y);
        const std::string at = "at " + std::to_string(width) + " x " + std::to_string(height);
        if (part.empty() && !cuts.part.empty()) part = at;
        if (whole.empty() && !cuts.whole.empty()) whole = at;
    }
    const std::string tried = " (tried: every width at " + std::to_string(lines[0].fixed) +
                              " and 600 high, every height at " + std::to_string(lines[2].fixed) +
                              " and 600 wide, and common screens)";
    if (!whole.empty())
        Tell({"outside-shape", whole + " the window's shape cuts ", " away" + tried}, shown);
    else if (!part.empty() && own == Rest::All)
        Tell({"cut-by-shape", part + " the window's shape cuts a part of ", " off" + tried}, shown);
}

}  // namespace

Findings CheckSizes(const LoadedSkin& loaded) {
    Findings findings;
    for (const dbLayoutRef& layout : *loaded.skin().dbLayouts)
        std::ranges::move(LayoutSizes(loaded, *layout).Run(), std::back_inserter(findings));
    return findings;
}

}  // namespace ornavo
