// SPDX-License-Identifier: MIT
// A skin is read and written back, also under another name.
#include "base/paths.h"
#include "cli/open_skin.h"

namespace ornavo {

int Save(const Arguments& arguments) {
    OpenNamedSkin(arguments);
    if (arguments.Has("as")) {
        const std::string name = CleanFileName(arguments.Get("as"));
        if (!IsPlainName(name)) throw UsageError("--as takes the name of a folder");
        objSkin->SkinName = name;
    }
    objSkin->SaveSkin(arguments.Has("keep-existing"));
    return 0;
}

}  // namespace ornavo
