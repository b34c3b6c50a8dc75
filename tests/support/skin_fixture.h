// SPDX-License-Identifier: MIT
// A current skin in a scratch folder, and a target without a window manager to compose it on.
#pragma once

#include <QDir>
#include <QTemporaryDir>

#include "document/current_skin.h"
#include "platform/settings.h"
#include "render/compose.h"
#include "render/layout_host.h"
#include "render/surface.h"
#include "render/view_switches.h"

namespace ornavo::testing {

class Target : public QWidget, public CompositionTarget {
public:
    Target(int width, int height) : host_(*this, nullptr) {
        resize(width, height);
        show();
    }
    int ScaleWidth() const override { return width(); }
    int ScaleHeight() const override { return height(); }
    LayoutHost& host() override { return host_; }
    void ShowGrid() override { ++gridsShown; }
    void SetShape(const QRegion&) override {}
    int gridsShown = 0;

private:
    LayoutHost host_;
};

/// objSkin is 100 x 100 with one empty layout, and its folder exists; there are no settings.
class SkinTest : public ::testing::Test {
protected:
    SkinTest() {
        UseSettingsFile(folder_.filePath("settings.ini"));
        objSkin = std::make_shared<dbSkin>();
        objSkin->SetBasePath(folder_.path().toStdString());
        objSkin->SkinName = "Blue";
        objSkin->SkinWidth = objSkin->SkinHeight = 100;
        QDir(folder_.path()).mkdir("Blue");
        objCurrentLayout = std::make_shared<dbLayout>();
        objCurrentLayout->Key = objCurrentLayout->LayoutName = "Standard";
        objSkin->dbLayouts->AddObject(objCurrentLayout);
        viewSwitches = {};
    }
    dbLayoutElement& Add(const char* key, int type, Rect at) {
        dbLayoutElements& elements = *objCurrentLayout->dbLayoutElements;
        dbLayoutElement& e = *elements.Add(elements.Count() + 1, key, type, 0);
        e.LeftX = at.left, e.TopY = at.top, e.WidthX = at.width, e.HeightY = at.height;
        e.LockLeft = e.LockTop = true;
        return e;
    }
    QString Path(const char* name) const { return folder_.filePath("Blue/") + name; }
    void Picture(const char* name, QColor colour, int width = 4, int height = 4) const {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(Path(name)));
    }
    void Compose(CompositionTarget& target) const {
        ComposeLayout(target, objCurrentLayout, objSkin->SkinWidth, objSkin->SkinHeight);
    }

private:
    QTemporaryDir folder_;
};

}  // namespace ornavo::testing
