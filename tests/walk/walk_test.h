// SPDX-License-Identifier: MIT
// What every walk has: the desktop, a skin to begin with, the program's end, and a picture of the desktop
// beside the build when something went wrong.
#pragma once

#include <gtest/gtest.h>

#include <QDir>

#include "walk/desktop.h"

namespace ornavo::walk {

/// A skin with one layout as its file tells it, one tag in each line. Elements and points have their places
/// from the left and the top, if `more` says nothing else.
class SkinText {
public:
    SkinText(const QString& name, const QSize& size)
        : head_(
              QString(
                  "<Skin><SkinName>%1</SkinName><SkinWidth>%2</SkinWidth><SkinHeight>%3</SkinHeight><Layouts>"
                  "<Layout><Key>Standard</Key><LayoutName>Standard</LayoutName><Points>")
                  .arg(name, Number(size.width()), Number(size.height()))) {}
    void AddPoint(int x, int y, const QString& more = {}) {
        points_ += QString("<Point><Order>%1</Order><X>%2</X><Y>%3</Y>%4</Point>")
                       .arg(Number(++pointOrder_), Number(x), Number(y), more);
    }
    void AddElement(const QString& key, int type, const QRect& at,
                    const QString& more = "<LockLeft>True</LockLeft><LockTop>True</LockTop>") {
        elements_ +=
            QString(
                "<Element><Key>%1</Key><Order>%2</Order><ElementType>%3</ElementType><LeftX>%4</LeftX>"
                "<TopY>%5</TopY><WidthX>%6</WidthX><HeightY>%7</HeightY><Visible>True</Visible>%8"
                "</Element>")
                .arg(key, Number(++elementOrder_), Number(type), Number(at.x()), Number(at.y()),
                     Number(at.width()), Number(at.height()), more);
    }
    QByteArray Bytes() const {
        QString text =
            head_ + points_ + "</Points><Elements>" + elements_ + "</Elements></Layout></Layouts></Skin>";
        return text.replace("><", ">\r\n<").toLatin1() + "\r\n";
    }

private:
    QString head_, points_, elements_;
    int pointOrder_ = 0, elementOrder_ = 0;
};

class WalkTest : public ::testing::Test {
protected:
    void TearDown() override {
        if (!HasFailure()) return;
        const QDir folder(ORNAVO_BINARY_DIR "/walk");
        const QString file = folder.filePath(
            QString(::testing::UnitTest::GetInstance()->current_test_info()->name()) + ".png");
        folder.mkpath(".");
        if (desktop_.Picture().save(file))
            std::fprintf(stderr, "the screen is kept in %s\n", qPrintable(file));
    }
    /// Of the skin that the walk works on, where the program looks for it.
    QString Path(const QString& file) const { return desktop_.Home() + "/ornavo/Skins/Walk/" + file; }
    void WriteSkin(const SkinText& text) const {
        QFile file(Path("SkinSettings.xml"));
        ASSERT_TRUE(QDir().mkpath(Path("")) && file.open(QIODevice::WriteOnly));
        ASSERT_GT(file.write(text.Bytes()), 0);
    }
    void WritePicture(const QString& name, const QSize& size, const QColor& colour) const {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        ASSERT_TRUE(QDir().mkpath(Path("")) && picture.save(Path(name)));
    }
    static QByteArray Contents(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    QByteArray Saved() const { return Contents(Path("SkinSettings.xml")); }
    void Keys(const QStringList& keys) { desktop_.Key(keys); }
    void Close() {
        desktop_.Activate(main_);
        Keys({"alt+F4"});
        EXPECT_EQ(desktop_.ProgramEnd(), 0);
    }

    Desktop desktop_{110};  // seconds: the picture is to be kept before the test's own limit
    QString main_;          // the main window
};

}  // namespace ornavo::walk
