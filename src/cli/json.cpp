// SPDX-License-Identifier: MIT
#include "cli/json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <cmath>

#include "document/fields.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

/// A single value as Qt writes it: as the only member of an array, without the brackets.
std::string Scalar(const QJsonValue& value) {
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2).toStdString();
}

/// Most numbers are whole; a document for each of them takes longer than all the rest of a dump.
std::string Scalar(double value) {
    constexpr double most = 1e9;
    const bool isWhole = value > -most && value < most && value == std::trunc(value);
    return isWhole ? std::to_string(static_cast<int>(value)) : Scalar(QJsonValue(value));
}

/// Most texts have nothing to escape.
std::string Scalar(const std::string& text) {
    const auto escaped = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\'; };
    if (std::ranges::any_of(text, escaped)) return Scalar(QJsonValue(Shown(text)));
    return '"' + text + '"';
}

std::string Scalar(const Value& value) {
    if (value.IsEmpty()) return "null";
    if (value.Is<bool>()) return value.As<bool>() ? "true" : "false";
    if (value.Is<std::int32_t>()) return std::to_string(value.As<std::int32_t>());
    if (value.Is<double>()) return Scalar(value.As<double>());
    return Scalar(value.ToText());
}

}  // namespace

void JsonWriter::NextItem(std::string_view name) {
    if (depth_ > 0) text_ += first_ ? "\n" : ",\n";
    text_.append(2 * static_cast<std::size_t>(depth_), ' ');
    if (!name.empty()) text_.append("\"").append(name).append("\": ");
    first_ = false;
}

void JsonWriter::Begin(std::string_view name, char bracket) {
    NextItem(name);
    text_ += bracket;
    ++depth_;
    first_ = true;
}

void JsonWriter::End(char bracket) {
    --depth_;
    if (!first_) {
        text_ += '\n';
        text_.append(2 * static_cast<std::size_t>(depth_), ' ');
    }
    text_ += bracket;
    first_ = false;
}

void JsonWriter::WriteFont(std::string_view name, const FontRef& font) {
    BeginObject(name);
    for (const char* field : {"Name", "Size", "Bold", "Italic", "Strikethrough", "Underline"})
        Write(field, GetField(*font, field));
    EndObject();
}

void JsonWriter::Write(std::string_view name, const Value& value) {
    if (value.Is<FontRef>() && value.As<FontRef>()) return WriteFont(name, value.As<FontRef>());
    NextItem(name);
    text_ += value.Is<FontRef>() ? "null" : Scalar(value);
}

const std::string& JsonWriter::Text() {
    return text_ += '\n';
}

}  // namespace ornavo
