// SPDX-License-Identifier: MIT
// One row of each kind is edited through the real windows, and the saved file has these edits and nothing
// else.
#include <QRegularExpression>
#include <array>

#include "walk/sheet.h"
#include "walk/walk_test.h"

namespace ornavo::walk {
namespace {

constexpr QPoint SheetPlace = {1450, 40}, ProjectPlace = {10, 40}, CanvasPlace = {320, 40};

using Facts = QMap<QString, QString>;  // "Owner.Tag" and its value

class SheetsWalk : public WalkTest {
protected:
    /// A panel, a button, an info, a corner; and a preference that the program doesn't know, of the last
    /// kind.
    void MakeSkin() {
        WritePicture("new.bmp", {8, 8}, Qt::darkMagenta);
        SkinText skin("Walk", {1000, 700},
                      "<SkinPref><Key>SL_Own</Key><PrefType>15</PrefType><Caption>Own</Caption>"
                      "<Value>0</Value></SkinPref>");
        for (const QPoint at : {QPoint(30, 30), QPoint(970, 30), QPoint(970, 670), QPoint(30, 670)})
            skin.AddPoint(at.x(), at.y());
        skin.AddElement("Main", 0, {50, 60, 600, 560});
        skin.AddElement("Play", 1, {700, 100, 120, 60});
        skin.AddElement("Title", 4, {700, 300, 200, 40});
        WriteSkin(skin);
    }
    void Start() {
        desktop_.StartProgram({Path("")});
        main_ = desktop_.Window("^Ornavo");
        desktop_.Place(desktop_.Window("^Skin Project$"), ProjectPlace);
        desktop_.Place(main_, CanvasPlace);
        canvas_ = desktop_.Inside(main_);
    }
    void Select(QPoint onCanvas, const Captions& rows) {
        desktop_.Click(canvas_.topLeft() + onCanvas);
        sheet_.Open(SheetPlace);
        sheet_.Becomes(rows);
    }
    /// Saves, though what was just typed may not yet be drawn, and tells what the file has now.
    Facts Save() {
        const QByteArray before = Saved();
        Keys({"ctrl+s"});
        desktop_.WaitFor("a saved skin", [&] { return Saved() != before; });
        Facts facts;
        QString owner, group;
        for (const QByteArray& line : Saved().split('\n')) {
            const QRegularExpressionMatch match =
                QRegularExpression("<(/?)(\\w+)>(?:([^<]*)</)?").match(QString::fromLatin1(line));
            const QString tag = match.captured(2);
            if (tag == "Font") group = match.captured(1).isEmpty() ? "Font." : "";
            if (tag == "Key") owner = match.captured(3);
            if (tag == "Point") owner = "Point";
            if (owner == "Point" && tag == "Order") owner += match.captured(3);
            if (match.hasCaptured(3)) facts[owner + '.' + group + tag] = match.captured(3);
        }
        return facts;
    }
    void EditButton() {
        Select({760, 130}, ButtonRows);
        sheet_.Type("Name", "Go");
        Keys(QStringList(2, "Tab") + QStringList(10, "Down"));
        sheet_.Becomes(AmountRows);
        sheet_.Type("Value", "12.5");
        sheet_.Type("X", "705");
        sheet_.ClickRow("Lock Right");
        sheet_.Type("Text Color", "255");
        sheet_.ClickRow("Font");
        Keys({"F4"});
        desktop_.WaitForFocus("Font");
        desktop_.Type("Verdana");
        Keys(QStringList(4, "Tab") + QStringList{"space", "Return"});  // bold
        desktop_.WaitForFocus("Properties");
        sheet_.ChoosePicture("Normal", "new.bmp");
        sheet_.ClickRow("Name");
        Keys({"Tab", "Down"});
        sheet_.Becomes(PictureRows);
        sheet_.Type("db-Script Name", "jump");
        sheet_.ClickRow("Is Jukebox Resizer");
    }
    void EditOthers() {
        sheet_.ClickRow("Name");
        Keys({"shift+Tab", "Down"});
        sheet_.Becomes(LabelRows);
        sheet_.ClickRow("Height");
        Keys(QStringList(7, "Tab") + QStringList(2, "Down"));
        sheet_.Becomes(TitleRows);
        sheet_.Type("Scroll Speed (Pixels)", "-4");
        const QPoint place = desktop_.Inside(sheet_.window()).topLeft();
        desktop_.Click(canvas_.topLeft() + QPoint(10, 400));
        desktop_.WaitUntilGone("^Properties$");
        Select({30, 30}, CornerRows);
        EXPECT_TRUE(desktop_.Inside(sheet_.window()).topLeft() == place) << "of another height";
        sheet_.Type("Y", "33");
        Keys({"Tab", "Down", "Tab", "Down", "Down"});
        Select({150, 75}, SongRows);
        sheet_.ClickRow("Margin");
        Keys({"Tab", "Tab", "Down"});
        Select({70, 200}, LetterRows);
        sheet_.ClickRow("Width");
        Keys({"shift+Tab", "Down", "Tab", "ctrl+a"});
        desktop_.Type("41");
    }

    Sheet sheet_{desktop_};
    QRect canvas_;
};

std::string Lines(const Facts& facts) {
    QString lines;
    for (auto fact = facts.begin(); fact != facts.end(); ++fact)
        lines += fact.key() + '=' + fact.value() + '\n';
    return lines.toStdString();
}

TEST_F(SheetsWalk, Sheets) {
    MakeSkin();
    Start();
    desktop_.Activate(main_);
    Facts expected = Save();
    EditButton();
    EditOthers();
    const Facts saved = Save();
    const Facts edits = {
        {"Play.ElementName", "Go"},      {"Play.ActionType", "10"},
        {"Play.Value", "+12.5"},         {"Play.LeftX", "705"},
        {"Play.LockRight", "True"},      {"Play.TextColor", "255"},
        {"Play.Font.Name", "Verdana"},   {"Play.Font.Bold", "True"},
        {"Play.Font.Size", "8"},         {"Play.PicNormal", "new.bmp"},
        {"Play.ElementType", "2"},       {"Play.dbScript", "jump"},
        {"Play.Resizer", "True"},        {"Title.InfoType", "2"},
        {"Title.CapScrollSpeed", "4"},   {"Point1.Y", "33"},
        {"Point1.HAlign", "1"},          {"Point1.VAlign", "2"},
        {"SOD_SongCapAlign.Value", "1"}, {"SL_Own.Value", "1"},
        {"SL_Width.Value", "41"},
    };
    for (auto edit = edits.begin(); edit != edits.end(); ++edit) expected[edit.key()] = edit.value();
    EXPECT_EQ(Lines(saved), Lines(expected));
    Close();
}

}  // namespace
}  // namespace ornavo::walk
