// SPDX-License-Identifier: MIT
// The pickers as their callers know them: files, colour, font. Each gives true when the user confirmed, and
// leaves its arguments as they were otherwise.
#pragma once

#include <cstdint>

#include "platform/prompts.h"

namespace ornavo {

struct FileOptions {
    std::string filter;  // "Name|*.a;*.b|Name|*.c"
    std::string initialDirectory;
    std::string title;
    std::string defaultExtension;  // without the point; for a name that is saved without one
};

class cCommonDialog {
public:
    std::int32_t APIReturn() const { return apiReturn_; }          // of the last call: 1 confirmed, 0 not
    std::int32_t ExtendedError() const { return extendedError_; }  // 0 after Cancel

    /// One of the 16 colours that the user keeps, from 0; they live as long as the program.
    Colour CustomColor(std::size_t index) const { return customColours.at(index); }
    void SetCustomColor(std::size_t index, Colour colour) { customColours.at(index) = colour; }

    /// `fileName` is proposed, and becomes the chosen path. `fileTitle` becomes its bare name.
    bool VBGetOpenFileName(std::string& fileName, std::string& fileTitle, const FileOptions& options);
    bool VBGetSaveFileName(std::string& fileName, std::string& fileTitle, const FileOptions& options);
    static std::string VBGetFileTitle(std::string_view fileName);
    bool VBChooseColor(Colour& colour);
    /// `offered` are faces for the list besides those of this machine.
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
