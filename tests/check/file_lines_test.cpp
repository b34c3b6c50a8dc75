// SPDX-License-Identifier: MIT
// What the check of a file's lines tells, beside what a save really leaves of them.
#include "check/file_lines.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>
#include <sstream>

#include "base/files.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "document/fields.h"
#include "support/step_layer.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

using Lines = std::vector<std::string>;

Lines Split(const std::string& text) {
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::string Joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

/// A small skin with something of everything; no two lines with a value are the same, but those of booleans.
Lines SkinLines() {
    dbSkin skin;
    skin.SkinName = "Blue";
    skin.SkinWidth = 640, skin.SkinHeight = 480;
    skin.dbSkinPrefs = std::make_shared<dbSkinPrefs>();
    skin.dbSkinPrefs->Add("SP_ColLight", "Light", 255, KindColour)->Font = std::make_shared<Font>();
    skin.dbSkinPrefs->Add("XX_Text", "Text", "Some text", KindText);
    for (const char* name : {"One", "Two"}) skin.AddNewLayout(name)->AddDummyPoints();
    int unique = 1000;
    for (int i = 4; i < 7; ++i) {
        dbLayoutElement& element =
            *skin.dbLayouts->Item(1)->dbLayoutElements->Add(i, "Key" + std::to_string(i), TypeButton, 0);
        element.LockTop = element.ShowBorder = true;
        for (const Field<dbLayoutElement>& field : Fields<dbLayoutElement>())
            if (field.saved && field.get(element).Is<std::int32_t>() && field.name != "Order")
                field.set(element, ++unique);
        element.Caption = "Caption " + std::to_string(i), element.Rotation = 12.5 + i;
        element.Font = std::make_shared<Font>(Font{.Name = "Arial", .Size = 8.25 + i, .Bold = true});
    }
    return Split(skin.FileBytes());
}

/// A line as the same text for all its spellings; "" for one that holds nothing, a comment or the form of a
/// file.
std::string Plain(const std::string& line) {
    static const std::set<std::string> structure = {"Skin",   "SkinPrefs", "SkinPref", "Layouts", "Layout",
                                                    "Points", "Point",     "Elements", "Element", "Font"};
    const std::size_t first = line.find_first_not_of("\t\r "), last = line.find_last_not_of("\t\r ");
    if (first == std::string::npos) return "";
    const std::string text = line.substr(first, last - first + 1);
    if (text.starts_with("<?") || text.starts_with("<!")) return "";
    const std::size_t open = text.find('>'), close = text.rfind('<');
    if (text.front() != '<' || text.back() != '>' || open > close) {
        const std::string tag = open == text.size() - 1 ? text.substr(1, open - 1) : "?";
        return structure.contains(tag.substr(tag.starts_with('/') ? 1 : 0)) ? "" : text;
    }
    std::string value = text.substr(open + 1, close - open - 1);
    if (value.empty() || value == "True" || value == "False") return "";  // booleans aren't unique
    char* end = nullptr;
    std::string digits = value;
    std::erase(digits, ',');  // between groups
    const double number = std::strtod(digits.c_str(), &end);
    if (*end == '\0') value = std::to_string(number);
    return value == "0.000000" ? "" : text.substr(0, open + 1) + value;
}

/// What of the old file a save didn't leave.
Lines Dropped(const Lines& before, const Lines& after) {
    std::set<std::string> now;
    for (const std::string& line : after) now.insert(Plain(line));
    Lines dropped;
    for (const std::string& line : before)
        if (const std::string plain = Plain(line); !plain.empty() && !now.contains(plain))
            dropped.push_back(plain);
    return dropped;
}

/// Writes in a file by hand.
class Hand {
public:
    explicit Hand(int seed) : dice_(static_cast<unsigned>(seed)) {}
    std::size_t Below(std::size_t most) { return dice_() % most; }
    /// As careless people do.
    void Spoil(Lines& lines) {
        static const char* const values[] = {"12.7", "abc", "+3.14159", "",
                                             "-5",   "007", "4,5",      "99999999999"};
        static const char* const tags[] = {"Foo",   "LeftX", "Caption", "ControlIndex",
                                           "Value", "Order", "Key"};
        const auto at = Choose(lines);
        const std::string line = *at;
        const std::size_t open = line.find('>') + 1, close = std::max(line.rfind('<'), open);
        const std::string value = line.substr(open, close - open);
        const std::string other = values[Below(std::size(values))], tag = tags[Below(std::size(tags))];
        switch (Below(8)) {
            case 0:
                return void(lines.erase(at));
            case 1:
                return void(lines.insert(at, other));
            case 2:
                return std::swap(*at, *Choose(lines));
            case 3:
                return void(*at = line.substr(0, open) + other + line.substr(close));
            case 4:
                return void(*at = "<" + tag + ">" + value + "</x>");
            case 5:
                return void(at->erase(Below(line.size()), 1));
            case 6:
                return void(lines.insert(Choose(lines), line));
            default:
                if (Below(10) == 0) lines.erase(at, lines.end());
        }
    }
    /// As careful ones do, so that the file means the same.
    void Respell(Lines& lines) {
        static const char* const more[] = {"", "\t\t", "<!-- a note -->", "<!DOCTYPE skin>"};
        const auto at = Choose(lines);
        const std::size_t open = at->find('>') + 1, close = at->rfind('<');
        const bool isWhole = close > open && at->find_first_not_of("-0123456789", open) == close;
        switch (Below(5)) {
            case 0:
                return void(lines.insert(at, more[Below(4)] + std::string(Below(2), '\r')));
            case 1:
                return void(at->insert(0, 1 + Below(3), ' '));
            case 2:
                return void(isWhole ? at->insert(close, ".000") : *at += " ");
            case 3:
                return void(lines.insert(at, "<Foo></Foo>"));
            default:
                lines.insert(at, std::string(*at));
        }
    }

private:
    /// A line with a value other than a boolean's, whose values aren't unique.
    Lines::iterator Choose(Lines& lines) {
        for (;;) {
            const auto at = lines.begin() + static_cast<std::ptrdiff_t>(3 + Below(lines.size() - 3));
            if (at->rfind("</") != std::string::npos && at->rfind("</") > at->find('>') &&
                at->find(">True<") == std::string::npos && !at->empty())
                return at;
        }
    }
    std::mt19937 dice_;
};

class FileLines : public ::testing::Test {
protected:
    /// What is told of a skin with this file.
    Findings Check(const Lines& lines) {
        objSkin = std::make_shared<dbSkin>();
        objSkin->SetBasePath((folder_ / "").string());
        objSkin->SkinName = "Blue";
        Findings findings = CheckLines(LoadedSkin(objSkin->BasePath(), "Blue", Joined(lines)));
        std::erase_if(findings,
                      [](const Finding& finding) { return finding.kind->severity == Severity::Hint; });
        return findings;
    }
    /// What a save of it leaves.
    Lines Saved(const Lines& lines) {
        const StepLayer unflushed;
        folder_.Write("Blue/SkinSettings.xml", Joined(lines));
        objSkin->LoadSkin();
        objSkin->SetupSkinPrefs();
        objSkin->SaveSkin(false);
        return Split(TemporaryFolder::Read(std::filesystem::path(objSkin->SkinFile())));
    }
    /// More of them by the environment.
    static int Count() {
        const char* const wanted = std::getenv("ORNAVO_WALK_EVENTS");
        return wanted ? std::atoi(wanted) : 80;
    }
    const TemporaryFolder folder_;
};

TEST_F(FileLines, TellWhatASaveDrops) {
    const Lines whole = SkinLines();
    for (int i = 0; i < Count(); ++i) {
        Hand hand(i);
        Lines lines = whole;
        for (std::size_t times = hand.Below(3); times < 3; ++times) hand.Spoil(lines);
        const Findings findings = Check(lines);
        const Lines dropped = Dropped(lines, Saved(lines));
        EXPECT_FALSE(findings.empty() && !dropped.empty()) << i << "\n" << Joined(dropped);
    }
}

TEST_F(FileLines, TellNothingOfWhatMeansTheSame) {
    const Lines whole = SkinLines();
    for (int i = 0; i < Count(); ++i) {
        Hand hand(i);
        Lines lines = whole;
        for (int times = 0; times < 5; ++times) hand.Respell(lines);
        for (const Finding& finding : Check(lines))
            ADD_FAILURE() << i << ": " << finding.text << "\n"
                          << lines[static_cast<std::size_t>(finding.line - 1)];
    }
}

}  // namespace
}  // namespace ornavo::testing
