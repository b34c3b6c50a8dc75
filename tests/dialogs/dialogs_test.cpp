// SPDX-License-Identifier: MIT
// The real dialogs, worked from inside their own event loops.
#include "dialogs/qt_prompts.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "dialogs/ccommondialog.h"
#include "dialogs/font_dialog.h"
#include "support/scripted_prompts.h"

namespace ornavo::testing {
namespace {

/// Runs `work` on the dialog that opens next.
template <class Dialog, class Work>
void InNext(Work work) {
    QTimer::singleShot(0, [work] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog) return work(*dialog);
        ADD_FAILURE() << "another dialog, or none";
        if (QWidget* open = QApplication::activeModalWidget()) open->close();
    });
}

TEST(QtPrompts, ABoxShowsWhatIsSaidAndGivesTheButton) {
    QtPrompts prompts;
    using Box = QMessageBox;  // NoButton: the Escape key, Default: Return
    const std::tuple<Buttons, Box::StandardButton, Answer> rows[] = {
        {Buttons::Ok, Box::NoButton, Answer::Ok},    {Buttons::YesNo, Box::Yes, Answer::Yes},
        {Buttons::YesNo, Box::Default, Answer::No},  {Buttons::YesNoCancel, Box::Default, Answer::Yes},
        {Buttons::YesNoCancel, Box::No, Answer::No}, {Buttons::YesNoCancel, Box::NoButton, Answer::Cancel}};
    for (const auto& [buttons, pressed, answer] : rows) {
        InNext<Box>([pressed = pressed](Box& box) {
            EXPECT_EQ(box.text(), "<b>not bold</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            if (pressed == Box::NoButton) return QTest::keyClick(&box, Qt::Key_Escape);
            if (pressed == Box::Default) return QTest::keyClick(&box, Qt::Key_Return);
            box.button(pressed)->click();
        });
        EXPECT_EQ(prompts.Message("<b>not bold</b>", "Title", Icon::Question, buttons), answer);
    }
}

TEST(QtPrompts, ATextIsTypedOrCancelled) {
    QtPrompts prompts;
    InNext<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.textValue(), "Big Party");
        box.setTextValue("Hütte");
        box.accept();
    });
    EXPECT_EQ(prompts.Input("Enter a name", "Title", "Big Party"), "Hütte");
    InNext<QInputDialog>([](QInputDialog& box) { box.reject(); });
    EXPECT_EQ(prompts.Input("Enter a name", "Title", "Big Party"), std::nullopt);
}

TEST(QtPrompts, AFileIsChosenFromTheNearestFolderThatIsThere) {
    QtPrompts prompts;
    const QTemporaryDir folder;
    const QString path = folder.filePath("skinSETTINGS.XML");
    QFile(path).open(QIODevice::WriteOnly);
    const FileQuestion question = {"Open Skin", "Skin Settings|SkinSettings.xml",
                                   folder.filePath("gone/for good").toStdString(), "", false};
    InNext<QFileDialog>([&](QFileDialog& box) {
        EXPECT_EQ(box.directory(), QDir(folder.path()));
        EXPECT_TRUE(box.testOption(QFileDialog::ReadOnly)) << "it neither deletes nor renames";
        EXPECT_EQ(box.nameFilters(), QStringList{"Skin Settings (SkinSettings.xml)"});
        box.findChild<QLineEdit*>("fileNameEdit")->setText(path);
        static_cast<QDialog&>(box).accept();
    });
    EXPECT_EQ(prompts.File(question), path.toStdString());
    EXPECT_EQ(NameFilters("All Pictures|*.jpg;*.bmp|JPEG (*.jpg)|*.jpg:B|*.b"),
              (QStringList{"All Pictures (*.jpg *.bmp)", "JPEG (*.jpg)", "B (*.b)"}));
}

TEST(QtPrompts, AColourAndTheCustomOnesComeBack) {
    QtPrompts prompts;
    CustomColours custom = {};
    custom[3] = Rgb(1, 2, 3);
    InNext<QColorDialog>([](QColorDialog& box) {
        EXPECT_EQ(QColorDialog::customColor(3), QColor(1, 2, 3));
        EXPECT_EQ(box.currentColor(), QColor(10, 20, 30));
        QColorDialog::setCustomColor(4, QColor(7, 8, 9));
        box.setCurrentColor(QColor(40, 50, 60));
        box.accept();
    });
    EXPECT_EQ(prompts.ColourOf(Rgb(10, 20, 30), custom), Rgb(40, 50, 60));
    EXPECT_EQ(custom[4], Rgb(7, 8, 9));
    InNext<QColorDialog>([](QColorDialog& box) { box.accept(); });
    EXPECT_EQ(prompts.ColourOf(ButtonFace, custom), ButtonFace) << "a system colour that is kept stays one";
}

TEST(QtPrompts, OfAFontOnlyWhatWasPickedChanges) {
    QtPrompts prompts;
    const Font start = {"No Such Face [maker]", 8.25, true};
    InNext<FontDialog>([](FontDialog& box) {
        for (QCheckBox* style : box.findChildren<QCheckBox*>())
            if (style->text() == "&Underline") style->click();
        // A list that the Tab key comes to takes its first line where none is chosen.
        for (int i = 0; i < 12; ++i) QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
        box.accept();
    });
    EXPECT_TRUE(prompts.FontOf(start, {"P052 [urw]"}) == (Font{"No Such Face", 8.25, true, false, true}));
    InNext<FontDialog>([](FontDialog& box) {
        for (QLineEdit* edit : box.findChildren<QLineEdit*>())
            if (edit->text() == "8.25") edit->selectAll(), QTest::keyClicks(edit, "24");
        box.accept();
    });
    EXPECT_TRUE(prompts.FontOf(start, {}) == (Font{"No Such Face", 24, true}));
}

struct Dialogs : public ::testing::Test, public ScriptedPrompts {
    cCommonDialog dialog;
};

TEST_F(Dialogs, AFileIsGivenWithItsTitleAndASavedOneWithTheExtensionItLacks) {
    std::string file = "old.jpg", title = "old";
    files = {"/skins/Blue/back.jpg"};
    EXPECT_TRUE(dialog.VBGetOpenFileName(file, title, {"A|*.a", "/skins", "Open Picture", "bmp"}));
    EXPECT_EQ(file + ' ' + title, "/skins/Blue/back.jpg back.jpg");
    const FileQuestion question = questions.at(0);
    EXPECT_EQ(question.title + ' ' + question.filter + ' ' + question.folder + ' ' + question.name,
              "Open Picture A|*.a /skins old.jpg");
    EXPECT_FALSE(dialog.VBGetOpenFileName(file, title, {}) || question.save) << "cancelled";
    EXPECT_EQ(file + ' ' + title, "/skins/Blue/back.jpg back.jpg");
    for (const auto& [typed, saved] : {std::pair{"/a.b/c", "/a.b/c.bmp"}, {"/a/c.jpg", "/a/c.jpg"}}) {
        files = {typed};
        EXPECT_TRUE(dialog.VBGetSaveFileName(file, title, {"", "", "", "bmp"}));
        EXPECT_EQ(file, saved);
    }
    EXPECT_TRUE(questions.back().save);
}

TEST_F(Dialogs, CustomColoursLiveAsLongAsTheProgram) {
    Colour colour = Rgb(1, 2, 3);
    cCommonDialog().SetCustomColor(15, Rgb(9, 9, 9));
    EXPECT_TRUE(!dialog.VBChooseColor(colour) && colour == Rgb(1, 2, 3));
    EXPECT_EQ(customColours[15], Rgb(9, 9, 9));
    colours = {Rgb(4, 5, 6)};
    EXPECT_TRUE(dialog.VBChooseColor(colour) && colour == Rgb(4, 5, 6));
}

}  // namespace
}  // namespace ornavo::testing
