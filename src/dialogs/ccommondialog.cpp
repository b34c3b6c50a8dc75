// SPDX-License-Identifier: MIT
#include "dialogs/ccommondialog.h"

#include "base/failure.h"
#include "base/paths.h"

namespace ornavo {
namespace {

constexpr std::size_t LongestName = 260;  // bytes
constexpr std::int32_t DialogFailed = 0xFFFF, NameTooLong = 0x3003;
constexpr CustomColours White = {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF};

}  // namespace

CustomColours cCommonDialog::customColours = White;

template <class Question, class Result>
bool cCommonDialog::Ask(Question&& question, Result& result) {
    apiReturn_ = extendedError_ = 0;
    if (!Attempt([&] {
            if (auto answer = question()) {
                result = std::move(*answer);
                apiReturn_ = 1;
            }
        }))
        extendedError_ = DialogFailed;
    return apiReturn_ != 0;
}

bool cCommonDialog::AskForFile(std::string& fileName, std::string& fileTitle, const FileOptions& options,
                               bool save) {
    if (fileName.size() > LongestName) {
        apiReturn_ = 0;
        extendedError_ = NameTooLong;
        return false;
    }
    const FileQuestion question = {options.title, options.filter, options.initialDirectory, fileName, save};
    if (!Ask([&] { return prompts().File(question); }, fileName)) return false;
    if (save && !options.defaultExtension.empty() && GetExtensionName(fileName).empty())
        fileName += "." + options.defaultExtension;
    fileTitle = VBGetFileTitle(fileName);
    return true;
}

bool cCommonDialog::VBGetOpenFileName(std::string& fileName, std::string& fileTitle,
                                      const FileOptions& options) {
    return AskForFile(fileName, fileTitle, options, false);
}

bool cCommonDialog::VBGetSaveFileName(std::string& fileName, std::string& fileTitle,
                                      const FileOptions& options) {
    return AskForFile(fileName, fileTitle, options, true);
}

std::string cCommonDialog::VBGetFileTitle(std::string_view fileName) {
    return GetFileName(fileName);
}

bool cCommonDialog::VBChooseColor(Colour& colour) {
    return Ask([&] { return prompts().ColourOf(colour, customColours); }, colour);
}

bool cCommonDialog::VBChooseFont(Font& font, const std::vector<std::string>& offered) {
    return Ask([&] { return prompts().FontOf(font, offered); }, font);
}

}  // namespace ornavo
