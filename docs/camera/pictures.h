// SPDX-License-Identifier: MIT
// The pages and their pictures.
#pragma once

#include "editor.h"

namespace ornavo::guide {

struct Page {
    const char* name;
    void (*take)(walk::Desktop&, Camera&);
};

void TakeGuide(walk::Desktop& desktop, Camera& camera);
void TakeFirstSkin(walk::Desktop& desktop, Camera& camera);

}  // namespace ornavo::guide
