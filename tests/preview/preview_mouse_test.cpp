// SPDX-License-Identifier: MIT
#include "preview/preview_mouse.h"

#include "document/codes.h"
#include "support/skin_fixture.h"

namespace ornavo::testing {
namespace {

constexpr int Left = 1, Right = 2;
constexpr Rect Place = {0, 0, 100, 50};

class RecordedWindow : public PreviewWindow {
public:
    bool IsMaximised() const override { return maximised; }
    QPoint Corner() const override { return corner; }
    QSize Inside() const override { return {800, 700}; }
    void MoveCorner(const QPoint& to) override { corner = to; }
    void ShowOutline(const QSize& size) override { outline = size; }
    void EndOutline() override { done += "end "; }
    void ToggleMaximise() override { done += "toggle "; }
    void Minimise() override { done += "minimise "; }
    void Unload() override { done += "unload "; }
    bool maximised = false;
    QPoint corner = {100, 50};
    QSize outline;
    std::string done;
};

class PreviewMouseTest : public SkinTest {
protected:
    Control& Hosted(const dbLayoutElement& element) {
        ComposePreview(target_, objCurrentLayout, 100, 100);
        infos_.Begin(target_.host(), *objCurrentLayout);
        mouse_.Layout = objCurrentLayout;
        if (element.ElementType == TypeInfo) return target_.host().pInfo[element.ControlIndex];
        return target_.host().Element[element.ControlIndex];
    }
    Target target_{100, 100};
    RecordedWindow window_;
    InfoShow infos_;
    PreviewMouse mouse_{window_, infos_};
};

TEST_F(PreviewMouseTest, ButtonsAct) {
    for (const auto& [type, action, value, volume, done] : {std::tuple{TypeButton, 10, 10.5, 138, ""},
                                                            {TypePicture, 11, 200.0, 0, ""},
                                                            {TypeButton, 13, 0.0, 128, "unload "},
                                                            {TypeButton, 14, 0.0, 128, "toggle "},
                                                            {TypeButton, 15, 0.0, 128, "minimise "},
                                                            {TypeVolume, 13, 0.0, 128, ""}}) {
        dbLayoutElement& button = Add("B", type, Place);
        button.ActionType = action, button.Value = value;
        Control& control = Hosted(button);
        infos_.Volume = VolumeStart;
        window_.done.clear();
        mouse_.MouseDown(control, {Left, 0, 1, 1, 0, 0});
        mouse_.MouseUp(control, {Left, 0, 1, 1, 0, 0});
        EXPECT_EQ(infos_.Volume, volume) << type << ' ' << action;
        EXPECT_EQ(window_.done, done) << type << ' ' << action;
        mouse_.Repeat(control);  // of a volume button alone
        EXPECT_EQ(window_.done, done);
        EXPECT_EQ(infos_.Volume, value == 10.5 ? 148 : volume);
        objCurrentLayout->dbLayoutElements->Remove("B");
    }
}

TEST_F(PreviewMouseTest, ADraggerMovesTheWindow) {
    dbLayoutElement& dragger = Add("D", TypePicture, Place);
    dragger.ActionType = 13, dragger.Dragger = true;
    Control& control = Hosted(dragger);
    mouse_.MouseDown(control, {Left, 0, 5, 5, 105, 55});
    mouse_.MouseMove(control, {Left, 0, 30, 9, 145, 40});
    EXPECT_EQ(window_.corner, QPoint(140, 35));
    mouse_.MouseUp(control, {Left, 0, 5, 5, 145, 40});
    EXPECT_EQ(window_.done, "");  // the release belongs to the move
    window_.maximised = true;
    mouse_.MouseDown(control, {Left, 0, 5, 5, 145, 40});
    mouse_.MouseMove(control, {Left, 0, 9, 9, 1, 1});
    EXPECT_EQ(window_.corner, QPoint(140, 35));
    mouse_.DblClick(control, {});
    EXPECT_EQ(window_.done, "toggle ");
}

TEST_F(PreviewMouseTest, AResizerStopsAtTheLeastSize) {
    dbLayoutElement& grip = Add("R", TypeButton, Place);
    grip.Resizer = true;
    Control& control = Hosted(grip);
    for (const bool maximised : {true, false}) {
        window_.maximised = maximised;
        mouse_.MouseDown(control, {Left, 0, 5, 5, 0, 0});
        mouse_.MouseMove(control, {Left, 0, 45, -15, 0, 0});
        EXPECT_EQ(window_.outline, maximised ? QSize() : QSize(840, 680));
    }
    mouse_.MouseMove(control, {Left, 0, -900, -95, 0, 0});
    EXPECT_EQ(window_.outline, QSize(600, 600));
    mouse_.MouseUp(control, {Left, 0, 5, 5, 0, 0});
    EXPECT_EQ(window_.done, "end ");
}

TEST_F(PreviewMouseTest, DialsBarsAndPicturesFollowThePointer) {
    Control& dial = Hosted(Add("V", TypeVolume, Place));
    infos_.Volume = 250;
    mouse_.MouseDown(dial, {Left, 0, 5, 30, 0, 0});
    for (const auto& [button, y, volume] : {std::tuple{Left, 20, 255}, {Left, 50, 195}, {0, 10, 195}}) {
        mouse_.MouseMove(dial, {button, 0, 90, y, 0, 0});
        EXPECT_EQ(infos_.Volume, volume);
    }
    dbLayoutElement& info = Add("I", TypeInfo, Place);
    for (const auto& [infoType, value, seeker, volume, position] : {std::tuple{5, 0, false, 51, 60000.0},
                                                                    {5, 1, false, 204, 60000.0},
                                                                    {5, 0, true, 195, 60000.0},
                                                                    {4, 0, false, 195, 60000.0}}) {
        info.InfoType = infoType, info.Value = value, info.Seeker = seeker;
        Control& box = Hosted(info);
        infos_.Volume = 195;
        infos_.SeekPos = 1;
        mouse_.MouseMove(box, {0, 0, 90, 40, 0, 0});
        mouse_.MouseDown(box, {Right, 0, 20, 10, 0, 0});  // any button
        EXPECT_EQ(infos_.Volume, volume) << infoType << value << seeker;
        EXPECT_EQ(infos_.SeekPos, seeker ? position : 1);
    }
}

}  // namespace
}  // namespace ornavo::testing
