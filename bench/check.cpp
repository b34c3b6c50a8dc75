// SPDX-License-Identifier: MIT
// Checking the rich sample: the sizes of all its layouts, and everything.
#include <QApplication>

#include "check/check.h"
#include "check/sizes_check.h"
#include "document/current_skin.h"
#include "judge.h"
#include "platform/startup.h"

int main(int count, char** words) {
    using namespace ornavo;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    PrepareProcess();
    QApplication application(count, words);
    InitCommonControls(application);
    objSkin->SetBasePath(SKINS);
    objSkin->SkinName = "Aurora";
    objSkin->LoadSkin();
    const LoadedSkin loaded(SKINS, "Aurora");
    const auto sizes = [&] { return bench::Cpu([&] { CheckSizes(loaded); }); };
    const auto all = [&] { return bench::Cpu([&] { CheckSkin(*objSkin); }); };
    return bench::Judge({{"every window size of the rich sample's layouts", sizes, "", {}, 100},
                         {"the whole check of the rich sample", all, "", {}, 0}},
                        count, words);
}
