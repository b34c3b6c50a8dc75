// SPDX-License-Identifier: MIT
#include "render/kiosk_panel.h"

#include "document/codes.h"
#include "render/sample_families.h"
#include "render/standard_elements.h"
#include "render/style_builders.h"
#include "support/scripted_prompts.h"
#include "support/skin_fixture.h"

namespace ornavo::testing {
namespace {

class KioskPanelTest : public SkinTest {
protected:
    KioskPanelTest() { NewPanel(); }
    ~KioskPanelTest() override { TargetLayout.reset(); }
    /// A panel of that size with equal margins, composed.
    void NewPanel(int width = 700, int height = 420) {
        objCurrentLayout->dbLayoutElements = std::make_shared<dbLayoutElements>();
        dbLayoutElement& main = Add("Main", TypeMain, {0, 0, width, height});
        main.MarginLeft = main.MarginTop = main.MarginRight = main.MarginBottom = 10;
        Compose(target_);
    }
    static void Set(std::string_view key, Value value) {
        objSkin->dbSkinPrefs->Item(key)->value = std::move(value);
    }
    static std::string Layers(const TileButton& button) {
        std::string keys;
        for (const TileLayer& layer : button.Elements) keys += layer.Key + ' ';
        return keys;
    }

    ScriptedPrompts prompts_;
    Target target_{800, 700};
    LayoutHost& host_ = target_.host();
    SamplePanel& sample_ = host_.sample;
};

TEST_F(KioskPanelTest, EverythingFollowsFromTheMarginsAndAFewPreferences) {
    Set("IN_Margin", 5);
    Set("PI_HeightFactor", 2);
    const int keys = sample_.pKeyb.Bounds().height, rowsLeft = 10 + 40;
    const struct {
        int width, height, adSpace, pictureSize, songWidth, infoLeft, middle, keyTop;
    } cases[] = {
        {700, 420, 0, 200, 375, rowsLeft + 380, 200, 410 - keys},
        {700, 420, 100, 150, 425, rowsLeft + 430, 150, 310 - keys},
        {325, 420, 0, 200, 300, rowsLeft + 305, 200, 410 - keys},  // no row is left: a usual one
        {324, 420, 0, 200, 300, rowsLeft + 4, 200, 410 - keys},    // less than none: the row keeps its width
    };
    for (const auto& c : cases) {
        Set("SP_KioskAdSpace", c.adSpace);
        NewPanel(c.width, c.height);
        const int pictureLeft = c.width - c.pictureSize - 10;
        EXPECT_EQ(sample_.but_Picture.Bounds(), (Rect{pictureLeft, 10, c.pictureSize, c.pictureSize}));
        EXPECT_EQ(sample_.but_Shadow.Bounds(), (Rect{pictureLeft + 4, 14, c.pictureSize, c.pictureSize}));
        EXPECT_EQ(sample_.but_Song.Bounds(), (Rect{rowsLeft, 10, c.songWidth, 41}));
        EXPECT_EQ(sample_.but_Song2.Bounds(), (Rect{rowsLeft, 52, c.songWidth, 41}));
        EXPECT_EQ(sample_.but_Info.Bounds(), (Rect{c.infoLeft, 10, 40, 41}));
        EXPECT_EQ(sample_.lbl_Kiosk.Bounds().top, c.middle);
        EXPECT_EQ(sample_.pKeyb.Bounds(), (Rect{rowsLeft, c.keyTop, 384, keys}));
        EXPECT_EQ(sample_.kLine[1].Y1(), c.height - c.adSpace - 20);
        EXPECT_EQ(sample_.but_AddAll.Bounds(),
                  (Rect{pictureLeft + c.pictureSize - 39, c.pictureSize - 30, 40, 40}));
    }
    EXPECT_TRUE(sample_.but_Label.isVisible());
    Set("PI_HeightFactor", 1);
    LayoutKioskPanel();
    EXPECT_FALSE(sample_.but_Label.isVisible()) << "no room for it";
}

TEST_F(KioskPanelTest, AStatementThatFailsIsLeftOutAlone) {
    const Rect addAll = sample_.but_AddAll.Bounds();
    objSkin->dbSkinPrefs->Remove("IN_Width");
    Set("IN_ShadowColor", "no colour");
    Set("IN_ShadowDistance", 7);
    Set("PI_TextAlign", "no number");
    Set("PI_HeightFactor", 0);
    Compose(target_);
    EXPECT_EQ(sample_.but_Info.Bounds().width, 40);
    EXPECT_EQ(sample_.but_Info.State.ShadowDistance, 7);
    EXPECT_EQ(sample_.but_Picture.Bounds(), (Rect{690, 10, 0, 0}));
    EXPECT_EQ(sample_.but_Label.Bounds(), (Rect{690, 14, 0, 0})) << "comes before what fails";
    EXPECT_EQ(sample_.but_AddAll.Bounds(), addAll) << "comes after it";
    EXPECT_TRUE(sample_.pKeyb.isVisible() && prompts_.asked.empty());
}

TEST_F(KioskPanelTest, EachFamilyTakesItsPreferences) {
    Picture("tile.bmp", Qt::red);
    const struct {
        TileButton& button;
        std::string prefix, pictures, layers;
        bool border, size, smooth;
    } families[] = {{sample_.but_Info, "IN", "IN", "Caption ", true, true, true},
                    {sample_.but_Song, "SO", "SO",
                     "Song Icon Artist Favorite Party Star0 Star1 Star2 Star3 Star4 ", true, false, true},
                    {sample_.lbl_SL[2], "SL", "SL", "Caption ", true, false, true},
                    {sample_.KeyE, "KB", "KBE", "Key ", false, false, false}};
    for (const auto& f : families) {
        const auto set = [&](const char* name, Value value) { Set(f.prefix + '_' + name, std::move(value)); };
        set("Shadow", f.prefix == "KB");
        set("ShadowDistance", 9);
        set("ShadowColor", 1234);
        set("Transparency", true);
        if (f.border)
            set("ShowBorder", true), set("BorderColor", 4321), set("Smooth", true), set("Rotation", 30);
        if (f.size) set("Width", 50), set("Height", 51);
        for (const char* name : {"_Picture", "_PictureOver", "_PictureDown"})
            Set(f.pictures + name, "tile.bmp");
        Compose(target_);
        const TileState& state = f.button.State;
        EXPECT_EQ(state.UseShadow, f.prefix == "KB") << f.prefix;
        EXPECT_TRUE(state.ShadowDistance == 9 && state.ShadowColor == 1234) << f.prefix;
        EXPECT_TRUE(state.UseTransparency && state.BackStyle == 0) << f.prefix;
        EXPECT_TRUE(state.ShowBorder == f.border && (state.BorderColor == 4321) == f.border) << f.prefix;
        EXPECT_EQ(state.ShowSmooth, f.smooth) << f.prefix;
        EXPECT_EQ(state.UseRotation ? state.Rotation : 0, f.border ? 30 : 0) << f.prefix;
        EXPECT_EQ(f.button.Bounds().width == 50, f.size) << f.prefix;
        for (const PictureRef& picture : {f.button.Picture, f.button.PictureOver, f.button.PictureDown})
            EXPECT_TRUE(picture) << f.prefix;
        EXPECT_EQ(Layers(f.button), f.layers) << f.prefix;
    }
}

TEST_F(KioskPanelTest, ARowOfOneLineHasNoMarksAndStarsGrowFromTheirEnd) {
    EXPECT_EQ(Layers(sample_.but_Song2), "Song Icon ");
    EXPECT_EQ(sample_.but_Song2.Elements.Item("Song").Text, "Trance");
    Set("SOD_IconsRateX", 100);
    for (const auto& [alignment, first, last] :
         {std::tuple{0, 100.0F, 156.0F}, {1, 156.0F, 100.0F}, {2, 79.0F, 135.0F}}) {
        Set("SOD_IconsRateAlign", alignment);
        StyleButton(sample_, *FindSample("but_Song"));
        EXPECT_EQ(sample_.but_Song.Elements.Item("Star0").Left, first) << alignment;
        EXPECT_EQ(sample_.but_Song.Elements.Item("Star4").Left, last) << alignment;
    }
}

TEST_F(KioskPanelTest, AFontThatIsShownFirstStaysInItsPreference) {
    const std::pair<const char*, double> sizes[] = {
        {"AA_Font", 22}, {"IN_Font", 18},       {"KBB_Font", 16}, {"LA_Font", 16},
        {"PI_Font", 8},  {"SOD_SongFontD", 13}, {"SL_Font", 8},   {"SOD_ArtistFont", 7}};
    for (const auto& [key, size] : sizes) {
        const dbSkinPref& pref = *objSkin->dbSkinPrefs->Item(key);
        EXPECT_TRUE(pref.Font && *pref.Font == (Font{pref.value.ToText(), size})) << key;
    }
    EXPECT_FALSE(objSkin->dbSkinPrefs->Item("SP_ListFont")->Font) << "nobody shows it";
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(KioskPanelTest, WithoutTheTopLeftRuleTheStoredColourFollowsTheControl) {
    const Colour key = 0x030201;
    Picture("key.bmp", QColor(1, 2, 3));
    Set("IN_Transparency", true);
    Set("IN_Picture", "key.bmp");
    const auto storedAfter = [&](int stored) {
        Set("IN_TransparentColor", stored);
        Compose(target_);
        return objSkin->dbSkinPrefs->Item("IN_TransparentColor")->value;
    };
    EXPECT_EQ(storedAfter(77), Value(77)) << "with the rule it stays";
    Set("IN_UseTopLeftTransparency", false);
    EXPECT_EQ(storedAfter(77), Value(key));
    EXPECT_EQ(storedAfter(55), Value(key)) << "the control's wins";
    TakeTransparentColor(sample_, "IN");
    EXPECT_EQ(storedAfter(55), Value(55)) << "an edit does";
    EXPECT_EQ(sample_.but_Info.State.TransparentColor, 55);
}

TEST_F(KioskPanelTest, TheBarsColourGoesToItsElementButToNoOtherLayouts) {
    dbLayoutElement& bar = Add("Scrollbar", TypeScrollbar, {720, 0, 40, 400});
    bar.TransparentColor = 11;
    Compose(target_);
    bar.TransparentColor = 22;
    SetupScrollBar(host_.ScrollBar, bar);
    EXPECT_EQ(bar.TransparentColor, 11);
    objCurrentLayout = objSkin->AddNewLayout("Other");
    dbLayoutElement& other = *objCurrentLayout->dbLayoutElements->Item("Scrollbar");
    other.TransparentColor = 44;
    Compose(target_);
    EXPECT_EQ(other.TransparentColor, 44);
}

TEST_F(KioskPanelTest, TheLettersFillTheColumn) {
    const struct {
        int height, adSpace;
        bool border;
        int rowHeight, fillerTop, fillerHeight;
    } cases[] = {{261, 0, false, 10, 260, 1}, {520, 0, true, 19, 494, 26}, {561, 300, true, 10, 260, 1}};
    for (const auto& c : cases) {
        Set("SL_ShowBorder", c.border);
        Set("SP_KioskAdSpace", c.adSpace);
        NewPanel(700, c.height);
        ASSERT_EQ(sample_.lbl_SL.Top(), 27);
        for (const int row : {1, 2, 26})
            EXPECT_EQ(sample_.lbl_SL[row].Bounds(),
                      (Rect{0, (row - 1) * c.rowHeight, 40, c.rowHeight + c.border}));
        EXPECT_EQ(sample_.lbl_SL[27].Bounds(), (Rect{0, c.fillerTop, 40, c.fillerHeight}));
        EXPECT_FALSE(sample_.lbl_SL[0].isVisible());
    }
}

TEST_F(KioskPanelTest, TheSampleOfASelectedLetterIsT) {
    Picture("row.bmp", Qt::red);
    Picture("on.bmp", Qt::green);
    for (const char* key : {"SL_Picture", "SL_PictureOver"}) Set(key, "row.bmp");
    Set("SL_PictureOn", "on.bmp");
    Set("SL_TextColor", 1);
    Set("SL_SelTextColor", 2);
    Set("SL_FontSizeFactor", 0.75);
    NewPanel(700, 521);
    std::string letters;
    for (int row = 1; row <= 27; ++row) {
        const TileLayer& layer = sample_.lbl_SL[row].Elements.Item("Caption");
        letters += layer.Text;
        EXPECT_EQ(layer.ForeColor, row == 20 ? 2 : 1);
        EXPECT_EQ(layer.Font.Size, 10);
        EXPECT_EQ(sample_.lbl_SL[row].Picture->image().pixelColor(0, 0),
                  QColor(row == 20 ? Qt::green : Qt::red));
    }
    EXPECT_EQ(letters, " A  B  C  D  E  F  G  H  I  J  K  L  M  N  O  P  Q  R  S  T  U  V  W  X  Y  Z ");
    EXPECT_FALSE(sample_.lbl_SL[27].PictureOver);
}

}  // namespace
}  // namespace ornavo::testing
