// SPDX-License-Identifier: MIT
#include "cli/command_line.h"

#include <QCommandLineParser>
#include <algorithm>

#include "base/find_row.h"

namespace ornavo {
namespace {

constexpr std::size_t HelpColumn = 8, LineWidth = 100;

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

std::string WordsOf(const Option& option) {
    std::string words = std::string("--").append(option.name);
    if (!option.value.empty()) words.append(" ").append(option.value);
    if (!option.isNeeded) words = "[" + words + "]";
    return option.isRepeated ? words + "..." : words;
}

/// Appends the words, in lines that begin at `indent` from the second one on.
void AppendWrapped(std::string& text, std::span<const std::string> words, std::size_t indent) {
    std::size_t width = text.size() - (text.rfind('\n') + 1);
    for (const std::string& word : words) {
        if (width + 1 + word.size() > LineWidth) {
            text.append("\n").append(indent, ' ');
            width = indent;
        } else if (width > 0 && text.back() != ' ') {
            text += ' ';
            ++width;
        }
        text += word;
        width += word.size();
    }
    text += '\n';
}

std::vector<std::string> SplitAtBlanks(std::string_view text) {
    std::vector<std::string> words;
    for (const QString& word : Text(text).split(' ')) words.push_back(word.toStdString());
    return words;
}

void AppendUsage(std::string& text, const Command& command) {
    std::vector<std::string> words = {std::string(command.name)};
    words.insert(words.end(), command.operands.begin(), command.operands.end());
    for (const Option& option : command.options) words.push_back(WordsOf(option));
    text.append(2, ' ');
    AppendWrapped(text, words, 2 + command.name.size() + 1);
    text.append(HelpColumn, ' ');
    AppendWrapped(text, SplitAtBlanks(command.help), HelpColumn);
}

/// "name IN and OUT"
std::string OperandsWanted(const Command& command) {
    std::string text = "name";
    for (std::size_t i = 0; i < command.operands.size(); ++i)
        text.append(i == 0 ? " " : " and ").append(command.operands[i]);
    return text;
}

}  // namespace

std::string Arguments::Get(const std::string& name, const std::string& standard) const {
    const auto found = options.find(name);
    return found == options.end() ? standard : found->second.back();
}

std::vector<std::string> Arguments::All(const std::string& name) const {
    const auto found = options.find(name);
    return found == options.end() ? std::vector<std::string>() : found->second;
}

std::string Arguments::Need(const std::string& name) const {
    if (!Has(name)) throw UsageError("--" + name + " is missing");
    return Get(name);
}

Arguments Parse(const Command& command, const QStringList& words) {
    QCommandLineParser parser;
    for (const Option& option : command.options)
        parser.addOption(QCommandLineOption(Text(option.name), {}, Text(option.value)));
    if (!parser.parse(words)) throw UsageError(parser.errorText().toStdString());
    Arguments arguments;
    for (const QString& word : parser.positionalArguments()) arguments.operands.push_back(word.toStdString());
    if (arguments.operands.size() != command.operands.size() || Contains(arguments.operands, std::string()))
        throw UsageError(OperandsWanted(command));
    for (const Option& option : command.options) {
        const std::string name(option.name);
        if (parser.isSet(Text(name))) {
            for (const QString& value : parser.values(Text(name)))
                arguments.options[name].push_back(value.toStdString());
            if (option.value.empty()) arguments.options[name] = {""};
        } else if (option.isNeeded) {
            throw UsageError("--" + name + " is missing");
        }
    }
    return arguments;
}

std::string UsageOf(std::span<const Command> commands) {
    std::string text;
    for (const Command& command : commands) AppendUsage(text, command);
    return text;
}

}  // namespace ornavo
