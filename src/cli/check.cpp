// SPDX-License-Identifier: MIT
// Tells what is wrong with a skin, for people or as JSON.
#include "check/check.h"

#include <algorithm>
#include <cstdio>

#include "base/files.h"
#include "base/text.h"
#include "cli/json.h"
#include "cli/open_skin.h"

namespace ornavo {
namespace {

/// A line of an ignore file: a code, and behind a tab each the layout, item and field; "*" and what is
/// missing at the end stand for any. "#" begins a comment.
struct Ignored {
    std::string code;
    std::vector<std::string> place;
    bool Matches(const Finding& finding) const {
        const std::string* const parts[] = {&finding.place.layout, &finding.place.item, &finding.place.field};
        if (finding.kind->code != code) return false;
        for (std::size_t i = 0; i < place.size() && i < std::size(parts); ++i)
            if (place[i] != "*" && !EqualText(place[i], *parts[i])) return false;
        return true;
    }
};

std::vector<std::string> Split(std::string_view text, char at) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::string_view part = text.substr(0, text.find(at));
        text.remove_prefix(std::min(part.size() + 1, text.size()));
        parts.emplace_back(part);
    }
    return parts;
}

std::vector<Ignored> ReadIgnored(const std::string& file) {
    std::vector<Ignored> ignored;
    if (file.empty()) return ignored;
    for (const std::string& line : Split(ReplaceAll(ReadFile(file), "\r", ""), '\n')) {
        std::vector<std::string> words = Split(line.substr(0, line.find('#')), '\t');
        if (words.empty() || TrimBlanks(words[0]).empty()) continue;
        const std::string code(TrimBlanks(words[0]));
        ignored.push_back({code, {words.begin() + 1, words.end()}});
    }
    return ignored;
}

std::string PlaceWords(const FindingPlace& place) {
    std::string words;
    for (const std::string* part : {&place.layout, &place.item, &place.field})
        if (!part->empty()) words.append(words.empty() ? "" : ", ").append(*part);
    return words;
}

void Print(const Finding& finding) {
    std::string text(NameOf(finding.kind->severity));
    if (finding.line > 0) text += ", line " + std::to_string(finding.line);
    const std::string place = PlaceWords(finding.place);
    if (!place.empty()) text += ", " + place;
    text.append(": ").append(finding.text).append(" [").append(finding.kind->code).append("]\n");
    text.append("    ").append(finding.kind->help).append("\n");
    std::fputs(text.c_str(), stdout);
}

void PrintFindings(const Findings& findings) {
    JsonWriter json;
    json.BeginObject();
    json.BeginArray("findings");
    for (const Finding& finding : findings) {
        json.BeginObject();
        json.Write("code", std::string(finding.kind->code));
        json.Write("severity", std::string(NameOf(finding.kind->severity)));
        json.Write("layout", finding.place.layout);
        json.Write("item", finding.place.item);
        json.Write("field", finding.place.field);
        json.Write("line", finding.line);
        json.Write("text", finding.text);
        json.Write("help", std::string(finding.kind->help));
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    std::fputs(json.Text().c_str(), stdout);
}

}  // namespace

int Check(const Arguments& arguments) {
    const std::vector<Ignored> ignored = ReadIgnored(arguments.Get("ignore"));
    OpenNamedSkin(arguments.operands[0]);
    Findings findings = CheckSkin(*objSkin);
    std::erase_if(findings, [&](const Finding& finding) {
        return std::ranges::any_of(ignored, [&](const Ignored& one) { return one.Matches(finding); });
    });
    if (arguments.Has("json"))
        PrintFindings(findings);
    else
        std::ranges::for_each(findings, Print);
    FlushOutput();
    const Severity most = arguments.Has("strict") ? Severity::Warning : Severity::Error;
    return !findings.empty() && findings.front().kind->severity <= most ? 1 : 0;
}

}  // namespace ornavo
