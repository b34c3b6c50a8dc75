// SPDX-License-Identifier: MIT
#include "picture/frm_pictureeditor.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>

#include "editor/settings_keys.h"
#include "picture/presets.h"
#include "support/failure_number.h"
#include "support/scripted_prompts.h"
#include "support/skin_fixture.h"
#include "support/step_layer.h"

namespace ornavo::testing {
namespace {

class PictureEditorTest : public SkinTest {
protected:
    void Open(const char* picture = "a.png", const char* finalName = "a") {
        form_ = std::make_unique<frm_PictureEditor>(nullptr);
        form_->SetSelKey(selKey_);
        form_->SetFinalName(finalName);
        form_->SetEditPicture(picture);
        form_->Form_Load();
        form_->resize(900, 600);
        form_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    static void Click(TileCommand* button) { QTest::mouseClick(button, Qt::LeftButton); }
    std::array<int, 2> Sliders() const { return {form_->hscHue->value(), form_->hscSaturation->value()}; }
    void ClickPreset(int row) const {
        const QRect place = form_->lstPresets->visualItemRect(form_->lstPresets->item(row));
        QTest::mouseClick(form_->lstPresets->viewport(), Qt::LeftButton, {}, place.center());
    }
    static QRgb Seen(const DibView* box, int x, int y) {
        return box->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32).pixel(x, y);
    }
    QString Notice() const { return form_->lbl_Notice->text(); }
    ScriptedPrompts prompts_;
    std::string selKey_;
    std::unique_ptr<frm_PictureEditor> form_;
};

QRgb Recoloured(QRgb pixel, int hue, int saturation) {
    cDIBSection dib;
    dib.CreateFromPicture(reinterpret_cast<const std::uint8_t*>(&pixel), 1, 1, 4);
    cColourise engine;
    engine.Hue = hue;
    engine.Saturation = saturation;
    engine.ProcessByRule(dib, dib);
    const std::uint8_t* bits = dib.DIBSectionBitsPtr();
    return qRgb(bits[2], bits[1], bits[0]);
}

TEST_F(PictureEditorTest, BothBoxesShowTheirPixelsWhereverTheyAreScrolled) {
    QImage large(1101, 903, QImage::Format_RGB32);  // rows that are padded
    for (int y = 0; y < large.height(); ++y)
        for (int x = 0; x < large.width(); ++x) large.setPixel(x, y, qRgb(x & 255, y & 255, (x + y) / 9));
    ASSERT_TRUE(large.save(Path("a.png")));
    Open();
    form_->picResult->horizontalScrollBar()->setValue(301);
    form_->picResult->verticalScrollBar()->setValue(77);
    const QRgb pixel = large.pixel(301 + 17, 77 + 60);
    EXPECT_EQ(Seen(form_->picSource, 17, 60), pixel);
    EXPECT_EQ(Seen(form_->picResult, 17, 60), Recoloured(pixel, 100, 100));
    const QSize room = form_->picSource->viewport()->size();
    EXPECT_EQ(form_->picSource->horizontalScrollBar()->maximum(), 1101 - room.width());
    EXPECT_EQ(form_->picSource->verticalScrollBar()->maximum(), 903 - room.height());
}

TEST_F(PictureEditorTest, SlidersGoByKeys) {
    Picture("a.png", QColor(90, 30, 200));
    settings::PictureHue.Write(40);
    settings::PictureSaturation.Write(999);
    Open();
    EXPECT_EQ(Sliders(), (std::array{40, 255}));
    for (const auto& [key, hue] : {std::pair{Qt::Key_Right, 41}, {Qt::Key_PageUp, 49}, {Qt::Key_Home, 0}}) {
        QTest::keyClick(form_->hscHue, key);
        EXPECT_EQ(form_->lblHueValue->text().toInt(), hue);
        EXPECT_EQ(Seen(form_->picResult, 1, 1), Recoloured(qRgb(90, 30, 200), hue, 255)) << hue;
    }
}

TEST_F(PictureEditorTest, PresetsAreSavedPickedAndDeleted) {
    Picture("a.png", Qt::red);
    Open();
    EXPECT_FALSE(form_->btn_DeletePreset->isEnabled());
    prompts_.inputs = {"  Sea ", "   ", "Rust"};
    form_->hscHue->setValue(170);
    for (int times = 0; times < 2; ++times) Click(form_->btn_SavePreset);
    form_->hscSaturation->setValue(20);
    for (int times = 0; times < 2; ++times) Click(form_->btn_SavePreset);  // at last cancelled
    for (int times = 0; times < 2; ++times) {
        ClickPreset(0);  // also the one that is selected
        EXPECT_EQ(Sliders(), (std::array{170, 100}));
        form_->hscHue->setValue(3);
    }
    QTest::keyClick(form_->lstPresets, Qt::Key_Down);
    EXPECT_EQ(Sliders(), (std::array{170, 20}));
    ClickPreset(0);
    for (int times = 0; times < 2; ++times) Click(form_->btn_DeletePreset);  // at last with none selected
    ASSERT_EQ(form_->lstPresets->count(), 1);
    EXPECT_EQ(form_->lstPresets->item(0)->text(), "Rust");
}

TEST_F(PictureEditorTest, SavesOrStaysOpen) {
    Picture("a.png", QColor(90, 30, 200));
    Open("a.png", "b");
    form_->hscHue->setValue(7);
    form_->optJPG->setChecked(true);
    form_->tbx_FinalName->setText(" ../c ");
    Click(form_->btn_Save);
    form_->tbx_FinalName->setText("  ");
    {
        const FullDisk disk(2);
        QTest::keyClick(form_->tbx_FinalName, Qt::Key_Return);
    }
    EXPECT_TRUE(Notice().contains("No space left on device"));
    EXPECT_TRUE(form_->isVisible() && form_->IsCanceled());
    EXPECT_EQ(form_->EditPicture(), Path("a.png").toStdString());
    Click(form_->btn_Save);
    EXPECT_FALSE(form_->isVisible() || form_->IsCanceled());
    EXPECT_EQ(form_->EditPicture(), Path("b.jpg").toStdString());
    EXPECT_TRUE(settings::PictureHue.Read() == 7 && !settings::SaveAsBMP.Read());
    Picture("a.png", Qt::green);  // what is kept is opened, and the settings with it
    Open();
    EXPECT_EQ(Seen(form_->picSource, 0, 0), qRgb(90, 30, 200));
    EXPECT_TRUE(form_->optJPG->isChecked());
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_TRUE(form_->IsCanceled() && !form_->isVisible());
    Open("gone.png");
    EXPECT_FALSE(form_->btn_Save->isEnabled());
}

/// A pixel that is red, one that is clear, one that is half so, one of the key colour.
TEST_F(PictureEditorTest, WhatIsClearStaysClearForItsElement) {
    const QRgb key = qRgb(1, 254, 3), red = qRgb(255, 0, 0), half = qRgb(100, 100, 110);
    dbLayoutElement& element = Add("E1", 1, {0, 0, 10, 10});
    element.TransparentColor = Rgb(1, 254, 3);
    element.BackgroundColor = Rgb(0, 0, 20);
    const auto open = [&](std::initializer_list<QRgb> pixels) {
        QImage picture(4, 1, QImage::Format_ARGB32);
        for (int x = 0; x < 4; ++x) picture.setPixel(x, 0, pixels.begin()[x]);
        ASSERT_TRUE(picture.save(Path("a.png")));
        Open();
        form_->hscHue->setValue(0);  // red becomes magenta
        form_->hscSaturation->setValue(255);
    };
    const QRgb clear = qRgba(0, 0, 0, 127), seeThrough = qRgba(200, 200, 200, 128);
    for (const auto& [selected, ground] : {std::pair{"", qRgb(255, 255, 255)}, {"E1", qRgb(0, 0, 20)}}) {
        selKey_ = selected;
        open({red, qRgba(255, 0, 0, 0), red, red});
        EXPECT_EQ(Seen(form_->picSource, 1, 0), ground);
    }
    element.UseTransparency = true;
    const QRgb magenta = qRgb(255, 0, 255), light = Recoloured(half, 0, 255);
    for (const auto& expected :
         {std::array{magenta, key, light, key}, {magenta, magenta, light, Recoloured(key, 0, 255)}}) {
        open({red, clear, seeThrough, key});
        for (int x = 0; x < 4; ++x) EXPECT_EQ(Seen(form_->picResult, x, 0), expected[x]) << x;
        element.UseTopLeftTransparency = true;
    }
}

TEST_F(PictureEditorTest, PresetsAreStoredAndCloseUpWhenOneGoes) {
    const auto stored = [](const char* key) { return GetSetting("Picture-Editor", key, "-"); };
    const std::vector<Preset> added = {{"Sea", "170", "90"}, {"Rust = 1", "42", "0"}, {"Sea", "0", "255"}};
    for (const Preset& preset : added)
        AddPreset(preset.name, std::stoi(preset.hue), std::stoi(preset.saturation));
    for (const int index : {-1, 3}) DeletePreset(index);
    EXPECT_EQ(ReadPresets(), added);
    DeletePreset(1);
    EXPECT_EQ(ReadPresets(), (std::vector{added[0], added[2]}));
    EXPECT_EQ(stored("PresetCount") + stored("PresetName2") + stored("HUE2") + stored("Sat2"), "2Sea0255");
    EXPECT_EQ(stored("PresetName3") + stored("HUE3") + stored("Sat3"), "---");
    for (int times = 0; times < 2; ++times) DeletePreset(0);
    SaveSetting("Picture-Editor", "PresetCount", "2");
    SaveSetting("Picture-Editor", "hue1", "much");
    EXPECT_EQ(ReadPresets(), (std::vector<Preset>{{"<empty>", "much", "100"}, {"<empty>", "100", "100"}}));
    SaveSetting("Picture-Editor", "PresetCount", "2000000000");
    EXPECT_EQ(ReadPresets().size(), MostPresets);
    EXPECT_EQ(FailureNumber([] { AddPreset("one more", 1, 1); }), 513);
}

}  // namespace
}  // namespace ornavo::testing
