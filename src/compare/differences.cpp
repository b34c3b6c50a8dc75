// SPDX-License-Identifier: MIT
#include "compare/differences.h"

#include <algorithm>
#include <utility>

#include "base/text_map.h"
#include "document/fields.h"

namespace ornavo {
namespace {

/// The places whose numbers make the longest rising sequence: the things that keep their order.
std::vector<bool> Kept(const std::vector<int>& numbers) {
    std::vector<std::size_t> last, before(numbers.size());  // the ends of the best sequences by their length
    constexpr auto none = static_cast<std::size_t>(-1);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto at =
            std::ranges::lower_bound(last, numbers[i], {}, [&](std::size_t one) { return numbers[one]; });
        before[i] = at == last.begin() ? none : *(at - 1);
        if (at == last.end())
            last.push_back(i);
        else
            *at = i;
    }
    std::vector<bool> kept(numbers.size());
    for (std::size_t i = last.empty() ? none : last.back(); i != none; i = before[i]) kept[i] = true;
    return kept;
}

class Comparison {
public:
    Differences Run(const dbSkin& before, const dbSkin& after);

private:
    void Add(Difference::Kind kind, const std::string& layout, const std::string& item) {
        found_.push_back({kind, layout, item, "", {}, {}});
    }
    template <class T>
    void CompareFields(const std::string& layout, const std::string& item, const T& before, const T& after,
                       const std::string& prefix = "");
    void CompareFonts(const std::string& layout, const std::string& item, const FontRef& before,
                      const FontRef& after);
    template <class Ref, class Name, class Compare>
    void CompareLists(const std::string& layout, const std::vector<Ref>& before,
                      const std::vector<Ref>& after, Name&& nameOf, Compare&& compare);
    void CompareLayouts(const dbLayout& before, const dbLayout& after);

    Differences found_;
};

/// The order is compared as a whole, and the font by its own fields.
template <class T>
void Comparison::CompareFields(const std::string& layout, const std::string& item, const T& before,
                               const T& after, const std::string& prefix) {
    for (const Field<T>& field : Fields<T>()) {
        if (!field.saved || field.name == "Order" || field.name == "Font") continue;
        Value was = field.get(before), is = field.get(after);
        if (was != is)
            found_.push_back({Difference::Changed, layout, item, prefix + std::string(field.name),
                              std::move(was), std::move(is)});
    }
}

void Comparison::CompareFonts(const std::string& layout, const std::string& item, const FontRef& before,
                              const FontRef& after) {
    if (!before && !after) return;
    CompareFields(layout, item, before ? *before : Font(), after ? *after : Font(), "Font.");
}

/// Compares what both lists have, and tells what only one of them has and what has moved among the others.
template <class Ref, class Name, class Compare>
void Comparison::CompareLists(const std::string& layout, const std::vector<Ref>& before,
                              const std::vector<Ref>& after, Name&& nameOf, Compare&& compare) {
    TextMap<std::string, int> places;
    for (const Ref& item : after) places.emplace(nameOf(*item), static_cast<int>(places.size()));
    std::vector<int> numbers;
    std::vector<Ref> shared;
    for (const Ref& item : before) {
        const auto place = places.find(nameOf(*item));
        if (place == places.end()) {
            Add(Difference::Removed, layout, nameOf(*item));
            continue;
        }
        numbers.push_back(place->second);
        shared.push_back(item);
    }
    const std::vector<bool> kept = Kept(numbers);
    for (std::size_t i = 0; i < shared.size(); ++i) {
        if (!kept[i]) Add(Difference::Moved, layout, nameOf(*shared[i]));
        places.erase(nameOf(*shared[i]));
        compare(*shared[i], *after[static_cast<std::size_t>(numbers[i])]);
    }
    for (const Ref& item : after)
        if (places.contains(nameOf(*item))) Add(Difference::Added, layout, nameOf(*item));
}

template <class Collection>
auto Listed(const Collection& items) {
    return std::vector<typename Collection::Ref>(items.begin(), items.end());
}

template <class Collection>
auto ByOrder(const Collection& items) {
    auto list = Listed(items);
    std::ranges::stable_sort(list, {}, [](const auto& item) { return item->Order; });
    return list;
}

void Comparison::CompareLayouts(const dbLayout& before, const dbLayout& after) {
    const std::string& layout = before.Key;
    CompareFields(layout, "", before, after);
    CompareLists(
        layout, ByOrder(*before.dbPoints), ByOrder(*after.dbPoints),
        [](const dbPoint& point) { return "corner " + std::to_string(point.Order); },
        [&](const dbPoint& was, const dbPoint& is) {
            CompareFields(layout, "corner " + std::to_string(was.Order), was, is);
        });
    CompareLists(
        layout, ByOrder(*before.dbLayoutElements), ByOrder(*after.dbLayoutElements),
        [](const dbLayoutElement& element) { return element.Key; },
        [&](const dbLayoutElement& was, const dbLayoutElement& is) {
            CompareFields(layout, was.Key, was, is);
            CompareFonts(layout, was.Key, was.Font, is.Font);
        });
}

Differences Comparison::Run(const dbSkin& before, const dbSkin& after) {
    CompareFields("", "", before, after);
    const bool isOwnName = before.SkinName == before.OldSkinName && after.SkinName == after.OldSkinName;
    if (isOwnName) std::erase_if(found_, [](const Difference& one) { return one.field == "SkinName"; });
    CompareLists(
        "", Listed(*before.dbSkinPrefs), Listed(*after.dbSkinPrefs),
        [](const dbSkinPref& pref) { return pref.Key; },
        [&](const dbSkinPref& was, const dbSkinPref& is) {
            CompareFields("", was.Key, was, is);
            CompareFonts("", was.Key, was.Font, is.Font);
        });
    CompareLists(
        "", Listed(*before.dbLayouts), Listed(*after.dbLayouts),
        [](const dbLayout& layout) { return layout.Key; },
        [&](const dbLayout& was, const dbLayout& is) { CompareLayouts(was, is); });
    return std::move(found_);
}

std::string Shown(const Value& value) {
    if (value.IsEmpty()) return "nothing";
    return value.Is<std::string>() ? "\"" + value.ToText() + "\"" : value.ToText();
}

}  // namespace

Differences CompareSkins(const dbSkin& before, const dbSkin& after) {
    return Comparison().Run(before, after);
}

std::string_view NameOf(Difference::Kind kind) {
    constexpr std::string_view Names[] = {"added", "removed", "moved", "changed"};
    return Names[kind];
}

std::string WordsOf(const Difference& difference) {
    std::string words;
    for (const std::string* part : {&difference.layout, &difference.item})
        if (!part->empty()) words.append(words.empty() ? "" : ", ").append(*part);
    if (words.empty()) words = "the skin";
    if (difference.kind != Difference::Changed) return words.append(": ").append(NameOf(difference.kind));
    return words + ": " + difference.field + " was " + Shown(difference.before) + ", is " +
           Shown(difference.after);
}

}  // namespace ornavo
