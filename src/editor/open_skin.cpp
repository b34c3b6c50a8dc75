// SPDX-License-Identifier: MIT
#include "editor/open_skin.h"

#include <exception>

#include "editor/windows.h"
#include "platform/prompts.h"

namespace ornavo {

void OpenSkin(Windows& windows, const std::string& path) {
    try {
        windows.LoadDebug(path);
    } catch (const std::exception& failure) {
        prompts().Message(failure.what(), LoadingError, Icon::Critical, Buttons::Ok);
    }
}

}  // namespace ornavo
