// SPDX-License-Identifier: MIT
// The dialogs for files, colours and fonts. Each returns true if the user confirmed; otherwise the arguments
// are unchanged.
#pragma once

#include <cstdint>

#include "platform/prompts.h"

namespace ornavo {

/// What a file dialog starts with.
struct FileOptions {
    std::string filter;  // "Name|*.a;*.b|Name|*.c"
    std::string initialDirectory;
    std::string title;
    std::string defaultExtension;  // without the point; appended to a saved name that has no extension
};

/// Shows the dialogs and keeps the user's own colours.
class cCommonDialog {
public:
    std::int32_t APIReturn() const { return apiReturn_; }          // of the last call: 1 confirmed, 0 not
    std::int32_t ExtendedError() const { return extendedError_; }  // of the last call; 0 also after Cancel

    /// One of the user's 16 own colours, by an index from 0; kept until the program ends.
    Colour CustomColor(std::size_t index) const { return customColours.at(index); }
    void SetCustomColor(std::size_t index, Colour colour) { customColours.at(index) = colour; }

    /// `fileName` is the proposed name and then the chosen path; `fileTitle` becomes the path's last part.
    bool VBGetOpenFileName(std::string& fileName, std::string& fileTitle, const FileOptions& options);
    bool VBGetSaveFileName(std::string& fileName, std::string& fileTitle, const FileOptions& options);
    static std::string VBGetFileTitle(std::string_view fileName);
    bool VBChooseColor(Colour& colour);
    /// `offered` are faces to list in addition to the installed ones.
    bool VBChooseFont(Font& font, const std::vector<std::string>& offered = {});

private:
    bool AskForFile(std::string& fileName, std::string& fileTitle, const FileOptions& options, bool save);
    template <class Question, class Result>
    bool Ask(Question&& question, Result& result);

    static CustomColours customColours;
    std::int32_t apiReturn_ = 0;
    std::int32_t extendedError_ = 0;
};

}  // namespace ornavo
