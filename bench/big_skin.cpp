// SPDX-License-Identifier: MIT
#include "big_skin.h"

#include <cstdlib>

#include "base/files.h"
#include "document/current_skin.h"
#include "document/fields.h"

namespace ornavo::bench {

namespace fs = std::filesystem;

namespace {

std::string Numbered(const char* text, int i) {
    return std::string(text).append(std::to_string(i));
}

/// Gives each field a value that has a line in the file.
void FillElement(dbLayoutElement& element, int i) {
    for (const Field<dbLayoutElement>& field : Fields<dbLayoutElement>()) {
        const Value value = field.get(element);
        if (value.Is<bool>()) field.set(element, true);
        if (value == Value("")) field.set(element, Numbered("Text ", i));
    }
    element.LeftX = i % 1024;
    element.TopY = i * 7 % 768;
    element.WidthX = 40 + i % 100;
    element.HeightY = 30;
    element.Rotation = i % 5 == 0 ? 12.5 : 0;
    element.TextColor = 0xFFFFFF;
    element.BackgroundColor = ButtonFace;
    if (i % 6 == 0) element.Font = std::make_shared<Font>(Font{.Name = "Arial", .Size = 8.25, .Bold = true});
}

void NamePictures(dbLayoutElement& element, int first, Names names, int distinct) {
    const char* const base = names == Names::Upper ? "PICTURE" : "picture";
    std::string* const fields[] = {&element.PicNormal, &element.PicOver, &element.PicDown};
    for (int i = 0; i < 3; ++i) *fields[i] = Numbered(base, (first + i) % distinct).append(".png");
    element.PicOn = element.PicDisabled = element.PicNormal;
}

}  // namespace

BigSkin::BigSkin(int elements, Names names, int distinct) {
    std::string base = fs::temp_directory_path() / "ornavo-bench-XXXXXX";
    base_ = mkdtemp(base.data());
    skin_.SetBasePath(base_.string());
    skin_.SkinName = "Big";
    fs::create_directory(skin_.SkinFolder());
    for (int i = 0; i < distinct && names != Names::Gone; ++i)
        ReplaceFile(skin_.SkinFolder() + Numbered("picture", i).append(".png"), std::string(2000, 'p'));
    const dbLayoutRef layout = skin_.AddNewLayout("One");
    layout->AddDummyPoints();
    for (int i = layout->dbLayoutElements->Count() + 1; i <= elements; ++i) {
        dbLayoutElement& element = *layout->dbLayoutElements->Add(i, Numbered("E", i), i % 5, i % 56);
        FillElement(element, i);
        NamePictures(element, 3 * i, names, distinct);
    }
    bytes_ = skin_.FileBytes();
}

dbSkin BigSkin::Load() const {
    dbSkin anew;
    anew.SetBasePath(skin_.BasePath());
    anew.SkinName = skin_.SkinName;
    anew.LoadSkin();
    return anew;
}

dbSkin& BigSkin::LoadAnew() {
    ReplaceFile(skin_.SkinFile(), bytes_);
    *objSkin = skin_ = Load();
    return skin_;
}

}  // namespace ornavo::bench
