// SPDX-License-Identifier: MIT
#include "picture/frm_pictureeditor.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

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
    QStringList PresetNames() const {
        QStringList names;
        for (int i = 0; i < form_->lstPresets->count(); ++i) names += form_->lstPresets->item(i)->text();
        return names;
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
    for (const QPoint corner : {QPoint(0, 0), QPoint(301, 77), QPoint(9999, 9999)}) {
        form_->picResult->horizontalScrollBar()->setValue(corner.x());
        form_->picResult->verticalScrollBar()->setValue(corner.y());
        const QPoint at(form_->picSource->horizontalScrollBar()->value(),
                        form_->picSource->verticalScrollBar()->value());
        for (const QPoint place : {QPoint(0, 0), QPoint(17, 60), QPoint(80, 3)}) {
            const QRgb pixel = large.pixel(at + place);
            EXPECT_EQ(Seen(form_->picSource, place.x(), place.y()), pixel);
            EXPECT_EQ(Seen(form_->picResult, place.x(), place.y()), Recoloured(pixel, 100, 100));
        }
    }
    EXPECT_EQ(form_->picSource->horizontalScrollBar()->value(), 1101 - form_->picSource->viewport()->width());
}

TEST_F(PictureEditorTest, SlidersGoByKeys) {
    Picture("a.png", QColor(90, 30, 200));
    settings::PictureHue.Write(40);
    settings::PictureSaturation.Write(999);
    Open();
    EXPECT_EQ(Sliders(), (std::array{40, 255}));
    const auto expect = [&](int hue) {
        EXPECT_EQ(form_->lblHueValue->text().toInt(), hue);
        EXPECT_EQ(Seen(form_->picResult, 1, 1), Recoloured(qRgb(90, 30, 200), hue, 255)) << hue;
    };
    for (const auto& [key, hue] :
         {std::pair{Qt::Key_Right, 41}, {Qt::Key_PageUp, 49}, {Qt::Key_End, 255}, {Qt::Key_Home, 0}}) {
        QTest::keyClick(form_->hscHue, key);
        expect(hue);
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
    Click(form_->btn_SavePreset);
    EXPECT_EQ(PresetNames(), (QStringList{"Sea", "Rust"}));
    for (int times = 0; times < 2; ++times) {
        ClickPreset(0);  // also the one that is selected
        EXPECT_EQ(Sliders(), (std::array{170, 100}));
        form_->hscHue->setValue(3);
    }
    QTest::keyClick(form_->lstPresets, Qt::Key_Down);
    EXPECT_EQ(Sliders(), (std::array{170, 20}));
    Click(form_->btn_SavePreset);  // cancelled
    EXPECT_EQ(prompts_.asked.front(), "Save preset: Enter name for Color preset []");
    EXPECT_EQ(prompts_.asked.back(), "Save preset: Enter name for Color preset [Rust]");
    ClickPreset(0);
    for (int times = 0; times < 2; ++times) {
        Click(form_->btn_DeletePreset);  // and with none selected
        EXPECT_EQ(PresetNames(), QStringList{"Rust"});
    }
}

TEST_F(PictureEditorTest, SavesOrStaysOpen) {
    Picture("a.png", QColor(90, 30, 200));
    Open("a.png", "b");
    form_->hscHue->setValue(7);
    form_->optJPG->setChecked(true);
    form_->tbx_FinalName->setText(" ../c ");
    Click(form_->btn_Save);
    EXPECT_EQ(Notice(), "\"../c\" can't be the name of a file.");
    form_->tbx_FinalName->setText("  ");
    {
        const FullDisk disk(2);
        QTest::keyClick(form_->tbx_FinalName, Qt::Key_Return);
    }
    EXPECT_TRUE(Notice().contains("No space left on device")) << Notice().toStdString();
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
    form_->tbx_FinalName->setText("b");
    EXPECT_EQ(Notice(), "The skin has a picture \"b.jpg\"; saving replaces it.");
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_TRUE(form_->IsCanceled() && !form_->isVisible());
    Open("gone.png");
    EXPECT_EQ(Notice(), "\"gone.png\" can't be opened as a picture.");
    EXPECT_FALSE(form_->btn_Save->isEnabled());
    form_->hscHue->setValue(9);  // nothing to recolour
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
    for (const auto& [selected, ground] : {std::pair{"E1", qRgb(0, 0, 20)}, {"", qRgb(255, 255, 255)}}) {
        selKey_ = selected;
        open({red, qRgba(255, 0, 0, 0), red, red});
        EXPECT_TRUE(Notice().contains("transparent")) << selected;
        EXPECT_EQ(Seen(form_->picSource, 0, 0), red);
        EXPECT_EQ(Seen(form_->picSource, 1, 0), ground);
    }
    selKey_ = "E1";
    element.UseTransparency = true;
    const auto result = [&](int x) { return Seen(form_->picResult, x, 0); };
    open({red, clear, seeThrough, key});
    EXPECT_TRUE(Notice().contains("A JPEG can't keep that.")) << Notice().toStdString();
    const QRgb expected[] = {qRgb(255, 0, 255), key, Recoloured(half, 0, 255), key};
    for (int x = 0; x < 4; ++x) EXPECT_EQ(result(x), expected[x]) << x;
    EXPECT_EQ(Seen(form_->picSource, 1, 0), key);
    element.UseTopLeftTransparency = true;
    open({red, clear, seeThrough, key});
    EXPECT_EQ(result(1), result(0));
    EXPECT_EQ(result(3), Recoloured(key, 0, 255));
    open({clear, red, seeThrough, key});
    for (int x = 1; x < 4; ++x) EXPECT_NE(result(0), result(x)) << x;
}

TEST_F(PictureEditorTest, PresetsAreStoredAndCloseUpWhenOneGoes) {
    const auto stored = [](const char* key) { return GetSetting("Picture-Editor", key, "-"); };
    const std::vector<Preset> added = {
        {"Sea", "170", "90"}, {"Rust = 1; \"x\"", "42", "0"}, {"Sea", "0", "255"}};
    for (const Preset& preset : added)
        AddPreset(preset.name, std::stoi(preset.hue), std::stoi(preset.saturation));
    for (const int index : {-1, 3}) DeletePreset(index);
    EXPECT_EQ(ReadPresets(), added);
    DeletePreset(1);
    EXPECT_EQ(ReadPresets(), (std::vector{added[0], added[2]}));
    EXPECT_EQ(stored("PresetCount") + stored("PresetName2") + stored("HUE2") + stored("Sat2"), "2Sea0255");
    EXPECT_EQ(stored("PresetName3") + stored("HUE3") + stored("Sat3"), "---");
    for (int times = 0; times < 2; ++times) DeletePreset(0);
    EXPECT_EQ(stored("PresetCount"), "0");
    SaveSetting("Picture-Editor", "PresetCount", "2");
    SaveSetting("Picture-Editor", "hue1", "much");
    EXPECT_EQ(ReadPresets(), (std::vector<Preset>{{"<empty>", "much", "100"}, {"<empty>", "100", "100"}}));
    for (const auto& [text, count] : {std::pair{"-4", 0}, {"many", 0}, {"2000000000", MostPresets}}) {
        SaveSetting("Picture-Editor", "PresetCount", text);
        EXPECT_EQ(ReadPresets().size(), count) << text;
    }
    EXPECT_EQ(FailureNumber([] { AddPreset("one more", 1, 1); }), 513);
}

}  // namespace
}  // namespace ornavo::testing
