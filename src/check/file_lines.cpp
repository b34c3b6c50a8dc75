// SPDX-License-Identifier: MIT
#include "check/file_lines.h"

#include <map>
#include <optional>
#include <set>
#include <type_traits>

#include "base/failure.h"
#include "base/text.h"
#include "document/codes.h"
#include "document/fields.h"
#include "document/skin_lines.h"
#include "document/skin_packaging.h"

namespace ornavo {
namespace {

/// The object that the reference means, if it has fields: a function of it is called.
template <class Visit>
void WithFields(const LoadedObject& object, Visit&& visit) {
    std::visit(
        [&](const auto& held) {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (!std::is_same_v<Held, std::monostate>) {
                using T = std::remove_cvref_t<decltype(*held)>;
                constexpr bool isCollection = std::is_same_v<T, dbLayouts> || std::is_same_v<T, dbPoints> ||
                                              std::is_same_v<T, dbLayoutElements>;
                if constexpr (!isCollection)
                    if (held) visit(*held);
            }
        },
        object);
}

std::optional<Value> FieldOf(const LoadedObject& object, std::string_view name) {
    std::optional<Value> value;
    WithFields(object, [&]<class T>(const T& held) {
        if (const Field<T>* field = FindField<T>(name)) value = field->get(held);
    });
    return value;
}

/// Whether the bytes of a line mean the value; other spellings of a number or a boolean are the same.
bool Means(std::string_view bytes, const Value& value) {
    const Value read = ReadValue(bytes);
    bool same = false;
    Attempt([&] { same = read.ToText() == value.ToText(); });
    if (same || TrimBlanks(bytes).empty()) return true;
    const bool isText = value.Is<std::string>();
    Attempt([&] {
        if (value.Is<bool>())
            same = read.ToBoolean() == value.As<bool>();
        else if (!isText && !read.Is<bool>())
            same = read.ToDouble() == value.ToDouble();
    });
    return same;
}

bool IsPicture(const LoadedObject& object, std::string_view field) {
    if (const auto* pref = std::get_if<dbSkinPrefRef>(&object))
        return (*pref)->PrefType == KindPicture && EqualText(field, "Value");
    return std::holds_alternative<dbLayoutElementRef>(object) && field.size() > 3 &&
           EqualText(field.substr(0, 3), "Pic");
}

std::string QuotedBytes(std::string_view bytes) {
    return Quoted(FromFileBytes(bytes));
}

/// What an object is called in a sentence, and how many parts it has if it is a list; "" for an empty list.
std::string WordsOf(const LoadedObject& object) {
    const auto list = [](const auto* items, const char* words) {
        return items && (*items)->Count() > 0 ? std::to_string((*items)->Count()) + words : std::string();
    };
    if (const auto* pref = std::get_if<dbSkinPrefRef>(&object)) return "preference " + Quoted((*pref)->Key);
    if (const auto* layout = std::get_if<dbLayoutRef>(&object)) return "layout " + Quoted((*layout)->Key);
    if (const auto* element = std::get_if<dbLayoutElementRef>(&object))
        return "element " + Quoted((*element)->Key);
    if (std::holds_alternative<dbPointRef>(object)) return "a corner";
    if (std::holds_alternative<FontRef>(object)) return "a font";
    if (const auto* layouts = std::get_if<std::shared_ptr<dbLayouts>>(&object))
        return list(layouts, " layouts");
    if (const auto* points = std::get_if<std::shared_ptr<dbPoints>>(&object)) return list(points, " corners");
    return list(std::get_if<std::shared_ptr<dbLayoutElements>>(&object), " elements");
}

/// Goes through the lines of a file.
class LineCheck {
public:
    explicit LineCheck(const LoadedSkin& loaded) : loaded_(loaded) {}
    Findings Run();

private:
    void Add(std::string_view code, const LineReport& line, const LoadedObject& object, std::string text);
    void CheckSkin();
    void CheckText(const LineReport& line);
    void CheckObject(const LineReport& line);
    void CheckValue(const LineReport& line);
    void FindLastLines();
    void TellOf(const LineReport& line, const Value& after);

    const LoadedSkin& loaded_;
    Findings findings_;
    bool inComment_ = false;
    std::map<std::pair<const void*, std::string>, const LineReport*> last_;  // by object and lower-case field
    std::map<const void*, std::size_t> lost_;                                // finding of a list, by the list
};

void LineCheck::Add(std::string_view code, const LineReport& line, const LoadedObject& object,
                    std::string text) {
    const LoadedSkin::Part* part = loaded_.Find(object);
    FindingPlace place = part ? part->place : FindingPlace();
    if (line.fate == LineFate::Assigned || line.fate == LineFate::Refused)
        place.field = place.field.empty() ? std::string(line.tag) : place.field + "." + std::string(line.tag);
    findings_.push_back(MakeFinding(code, std::move(place), line.number, std::move(text)));
}

Findings LineCheck::Run() {
    CheckSkin();
    FindLastLines();
    for (const LineReport& line : loaded_.lines()) {
        CheckText(line);
        switch (line.fate) {
            case LineFate::Opened:
                CheckObject(line);
                break;
            case LineFate::Assigned:
            case LineFate::Refused:
                CheckValue(line);
                break;
            case LineFate::NoField:
                if (!TrimBlanks(line.value).empty())
                    Add("unknown-line", line, line.object,
                        "Nothing here has a field " + QuotedBytes(line.tag) +
                            ": the next save drops the line.");
                break;
            case LineFate::Unknown:
                Add("unknown-line", line, line.object,
                    "The tag " + QuotedBytes(line.tag) + " means nothing: the next save drops the line.");
                break;
            default:
                break;
        }
    }
    return std::move(findings_);
}

void LineCheck::CheckSkin() {
    const dbSkin& skin = loaded_.skin();
    for (const std::string& damage : skin.Damage)
        if (!damage.starts_with("Lost: ") && damage != "There is more.")
            findings_.push_back(MakeFinding("damaged-file", {}, 0, damage));
    if (skin.SkinName != skin.OldSkinName)
        findings_.push_back(MakeFinding("other-name", {"", "", "SkinName"}, loaded_.LineOf(&skin, "SkinName"),
                                        "The file calls the skin " + Quoted(skin.SkinName) + ", its folder " +
                                            Quoted(skin.OldSkinName) +
                                            ": the next save writes into a folder of the file's name."));
    if (const int count = loaded_.newPreferences(); count > 0)
        findings_.push_back(
            MakeFinding("new-preferences", {}, 0,
                        "The next save adds " + std::to_string(count) + " preferences with their defaults."));
}

/// The text without blanks and tabs at its ends.
std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? ""
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Text in front of, behind or instead of a tag.
void LineCheck::CheckText(const LineReport& line) {
    const std::string_view text = Trimmed(line.line);
    const bool isComment = inComment_ || text.starts_with("<!--");
    if (isComment) inComment_ = text.find("-->") == std::string_view::npos;
    if (isComment || text.empty() || text.starts_with("<?") || text.starts_with("<!")) return;
    if (line.fate != LineFate::Nothing && TrimTag(line.line) == text) return;
    Add("stray-text", line, line.object, "Text outside of a tag means nothing: the next save drops it.");
}

/// An object that begins here and doesn't come through. Of objects in each other the outermost is told, and
/// of several in one list the first.
void LineCheck::CheckObject(const LineReport& line) {
    const LoadedSkin::Part* part = loaded_.Find(line.object);
    const bool isWritten = part && AddressOf(part->after);
    if (isWritten) return;
    const bool isPref = std::holds_alternative<dbSkinPrefRef>(line.object);
    const bool isOfPrefs = std::holds_alternative<std::shared_ptr<dbLayouts>>(line.object) &&
                           !EqualText(line.tag, "Layouts");  // a list of preferences has no object of its own
    const std::string words = WordsOf(line.object);
    const bool isInner = !isPref && AddressOf(line.parent) && !loaded_.Find(line.parent);
    if (isOfPrefs || isInner || words.empty()) return;
    if (part) {
        const LoadedSkin::Part* parent = loaded_.Find(line.parent);
        if (parent && !AddressOf(parent->after)) return;
        Add("not-written", line, line.object,
            "The order of " + words +
                " isn't one of 1 to their number, or another has it: the next save drops it.");
        return;
    }
    const auto [known, isFirst] = lost_.try_emplace(AddressOf(line.parent), findings_.size());
    const std::string text = "There is no place for " + words + ": the next save drops it.";
    if (isFirst) return Add("lost-object", line, line.parent, text);
    Finding& first = findings_[known->second];
    if (!first.text.ends_with(" And more.")) first.text += " And more.";
}

void LineCheck::FindLastLines() {
    for (const LineReport& line : loaded_.lines())
        if (line.fate == LineFate::Assigned) last_[{AddressOf(line.object), LowerText(line.tag)}] = &line;
}

void LineCheck::CheckValue(const LineReport& line) {
    const LoadedSkin::Part* part = loaded_.Find(line.object);
    if (!part || !AddressOf(part->after)) return;  // told where the object begins
    const auto last = last_.find({AddressOf(line.object), LowerText(line.tag)});
    const bool isLast = last == last_.end() || last->second == &line || line.fate == LineFate::Refused;
    if (!isLast && !Means(line.value, ReadValue(last->second->value)))
        return Add("overwritten-line", line, line.object,
                   "Line " + std::to_string(last->second->number) + " sets " + std::string(line.tag) +
                       " again: the next save drops this value.");
    if (!isLast || IsPicture(line.object, line.tag)) return;
    if (const auto after = FieldOf(part->after, line.tag); after && !Means(line.value, *after))
        TellOf(line, *after);
}

void LineCheck::TellOf(const LineReport& line, const Value& after) {
    std::string now;
    Attempt([&] { now = after.ToText(); });
    const std::string drops =
        ": the next save " + (now.empty() ? "drops it." : "writes " + Quoted(now) + " in its place.");
    const std::string tag(line.tag);
    if (line.fate == LineFate::Refused)
        Add("refused-value", line, line.object, tag + " can't be " + QuotedBytes(line.value) + drops);
    else
        Add("changed-value", line, line.object, tag + " is " + QuotedBytes(line.value) + drops);
}

}  // namespace

Findings CheckLines(const LoadedSkin& loaded) {
    return LineCheck(loaded).Run();
}

}  // namespace ornavo
