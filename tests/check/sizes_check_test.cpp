// SPDX-License-Identifier: MIT
// What is told of window sizes, beside the places that elements really have in them.
#include "check/sizes_check.h"

#include <QRect>
#include <climits>
#include <random>

#include "check/shape_sizes.h"
#include "check/size_words.h"
#include "document/codes.h"
#include "render/shape.h"

namespace ornavo::testing {
namespace {

constexpr Size Skin = {1001, 800};

/// The anchors have a letter for each locked side, W and H for what is stretched.
dbLayoutElement Make(ElementTypeCode type, Rect at, std::string_view anchors) {
    const auto has = [&](char letter) { return anchors.find(letter) != anchors.npos; };
    dbLayoutElement e;
    e.LeftX = at.left, e.TopY = at.top, e.WidthX = at.width, e.HeightY = at.height;
    e.ElementType = type, e.PicNormal = "a.png";
    e.LockLeft = has('L'), e.LockTop = has('T'), e.LockRight = has('R'), e.LockBottom = has('B');
    e.StretchWidth = has('W'), e.StretchHeight = has('H');
    return e;
}

void Put(dbLayout& layout, const dbPoint& corner) {
    layout.dbPoints->AddObject(std::make_shared<dbPoint>(corner));
}

TEST(SizesCheck, RangesInWords) {
    const Ranges ranges = RangesWhere(CheckedWidths, [](int i) {
        return i < 610 || (i > 616 && i < 640) || i == 700 || (i > 800 && i < 999) || i > 3800;
    });
    EXPECT_EQ(WordsOf(ranges, Axis::X), "below 640 or at 700 or between 801 and 998 or above 3800 wide");
}

TEST(SizesCheck, TellsWhatComesToBe) {
    const auto a = Make(TypeButton, {101, 250, 200, 50}, "LT"), thin = Make(TypeInfo, {9, 0, 9, 99}, "LTB");
    const auto title = Make(TypePicture, {0, 0, 1001, 90}, "LT"),
               badge = Make(TypePicture, {9, 9, 9, 9}, "LT"),
               moved = Make(TypePicture, {300, 100, 90, 90}, "L");
    const std::pair<std::vector<dbLayoutElement>, std::string> rows[] = {
        {{a, Make(TypeInfo, {500, 250, 100, 50}, "TR")}, R"(Below 799 wide "B" covers "A".)"},
        {{a, Make(TypeMain, {500, 500, 90, 250}, "RB")},
         R"(Below 799 wide and below 798 high "B" covers "A".)"},
        {{a, Make(TypeMain, {101, 290, 90, 90}, "L")}, ""},  // lies on it at the skin's own size
        {{title, moved}, R"(Below 775 high "B" covers "A".)"},
        {{title, badge, moved}, ""},  // the title is a ground
        {{Make(TypeMain, {900, 9, 90, 90}, "RT")}, R"(Below 898 wide the window's edge cuts "A" off.)"},
        {{Make(TypePicture, {900, 9, 90, 90}, "RT")}, R"(Below 811 wide the window doesn't reach "A".)"},
        {{thin, thin, thin, thin}, R"(Below 702 high no pixel is left of "A", "B" and 2 more.)"},
        {{Make(TypeButton, {9, 20, 9, 9}, "LB")},
         R"(Above 2117 high at 1001 wide, above 2117 high at 600 wide the window's shape cuts "A" away)"},
        {{Make(TypeInfo, {INT_MAX, 0, 9, 9}, "T")}, ""},  // can't be placed
    };
    dbSkin skin;
    skin.SkinWidth = Skin.width, skin.SkinHeight = Skin.height;
    dbLayout& layout = *skin.AddNewLayout("One");
    for (int i = 0; i < 4; ++i)
        Put(layout, {0, i < 2 ? 0 : 2100, AlignStart, i % 3 ? AlignEnd : AlignStart, i + 1});
    for (const auto& [elements, text] : rows) {
        layout.dbLayoutElements = std::make_shared<dbLayoutElements>();
        for (dbLayoutElement element : elements) {
            element.Order = layout.dbLayoutElements->Count() + 1, element.Key = char('@' + element.Order);
            layout.dbLayoutElements->AddObject(std::make_shared<dbLayoutElement>(element));
        }
        std::string told;
        for (const Finding& finding : CheckSizes(LoadedSkin("none", "None", skin.FileBytes())))
            told += finding.text;
        EXPECT_EQ(told.substr(0, told.find(" (tried")), text);
    }
}

TEST(SizesCheck, HoldsAtRandomSizes) {
    std::mt19937 dice(7);
    const auto below = [&](int most) { return static_cast<int>(dice() % static_cast<unsigned>(most)); };
    const auto any = [&](Interval all) {  // often an end
        return std::clamp(all.first - 300 + below(all.last - all.first + 600), all.first, all.last);
    };
    const auto has = [](const Ranges& ranges, int size) {
        return std::ranges::count_if(ranges, [&](Interval r) { return r.first <= size && size <= r.last; });
    };
    const auto make = [&] {
        std::string anchors;
        for (const char letter : {'L', 'T', 'R', 'B', 'W', 'H'}) anchors.append(below(2), letter);
        return Make(TypeInfo, {below(1000), below(800), 1 + below(300), 1 + below(300)}, anchors);
    };
    for (int i = 0; i < 80; ++i) {
        dbLayout layout;
        for (int n = 1; n < 5; ++n) Put(layout, {below(1000), below(800), below(4), below(4), n});
        const ShapeSizes shape(layout, Skin);
        const dbLayoutElement a = make(), b = make();
        const SpanTable x(a, Axis::X, Skin), y(a, Axis::Y, Skin);
        const Ranges widths = SpanTable::Meeting(x, {b, Axis::X, Skin}, 3);
        const Ranges heights = SpanTable::Meeting(y, {b, Axis::Y, Skin}, 3);
        for (int size = 0; size < 50; ++size) {
            const int width = any(CheckedWidths), height = any(CheckedHeights);
            const Frame frame = {width, height, Skin.width, Skin.height};
            const auto seen = [&](const dbLayoutElement& e) {
                const Rect at = GetElementRect(e, frame);
                const QRect place(at.left, at.top, std::max(at.width, 0), std::max(at.height, 0));
                return place & QRect(0, 0, width, height);
            };
            const QRect place = seen(a), both = place & seen(b), core = place.adjusted(2, 2, -2, -2);
            EXPECT_EQ(has(widths, width) && has(heights, height), both.width() > 2 && both.height() > 2) << i;
            if (core.isEmpty()) continue;
            const SizeLine lines[] = {{Axis::X, height, {width, width}}, {Axis::Y, width, {height, height}}};
            const ShapeSizes::Cuts cuts = shape.Along(lines[size % 2], x, y);
            const QRegion region = ShapeRegion(layout, frame);
            EXPECT_TRUE(!cuts.whole.empty()  ? !region.intersects(core)
                        : !cuts.part.empty() ? (region & place) != place
                                             : (region & core) == core)
                << i;
        }
    }
}

}  // namespace
}  // namespace ornavo::testing
