// SPDX-License-Identifier: MIT
#include "render/compose_report.h"

#include <algorithm>

#include "base/find_row.h"
#include "platform/prompts.h"

namespace ornavo {

ToldReport& toldReport() {
    static ToldReport told;
    return told;
}

void ComposeReport::Keep(const std::string& description) {
    if (!Contains(descriptions_, description)) descriptions_.push_back(description);
}

void ComposeReport::Show(const dbLayoutRef& layout) const {
    ToldReport& told = toldReport();
    const bool sameLayout = told.layout.lock() == layout;
    const bool known = sameLayout && told.descriptions == descriptions_;
    told = {layout, descriptions_};
    if (known || descriptions_.empty()) return;
    std::string text;
    for (const std::string& description : descriptions_) text += (text.empty() ? "" : "\n") + description;
    prompts().Message(text, "Ornavo", Icon::None, Buttons::Ok);
}

}  // namespace ornavo
