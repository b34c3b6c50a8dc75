// SPDX-License-Identifier: MIT
// Every row of every sheet is edited once by window events: the model has the new value at once and nothing
// else changed, the canvas shows it after the tick as a whole composition would, and the file that is saved
// has it too.
#include "properties/row_edit_fixture.h"

namespace ornavo::testing {
namespace {

dbLayoutElement& Named(const char* key) {
    return *objCurrentLayout->dbLayoutElements->Item(key);
}

struct Selection {
    const char* name;
    Control& (*control)(CanvasParts&);
    bool isSample = false;
    void (*prepare)() = [] {};  // what decides which rows there are
};

/// For the list of tests.
void PrintTo(const Selection& selection, std::ostream* out) {
    *out << selection.name;
}

template <const char* Key>
Control& Of(CanvasParts&) {
    return ControlOf(Named(Key));
}
constexpr char Main[] = "Main", Button[] = "Button1", Graphic[] = "Picture1", Volume[] = "Volume1",
               Info[] = "Info1", SearchBox[] = "SearchBox", Scrollbar[] = "Scrollbar";

// clang-format off
const Selection Selections[] = {
    {"Main", Of<Main>},
    {"Button", Of<Button>},
    {"ButtonWithAmount", Of<Button>, false, [] { Named(Button).ActionType = 10; }},
    {"ButtonWithScript", Of<Button>, false, [] { Named(Button).ActionType = 12; }},
    {"Picture", Of<Graphic>},
    {"Volume", Of<Volume>},
    {"Label", Of<Info>},
    {"InfoVolume", Of<Info>, false, [] { Named(Info).InfoType = 5; }},
    {"SongProperty", Of<Info>, false, [] { Named(Info).InfoType = 20; }},
    {"SearchBox", Of<SearchBox>},
    {"Scrollbar", Of<Scrollbar>},
    {"Corner", [](CanvasParts& p) -> Control& { return p.points.cPointMover[1]; }},
    {"Skin", nullptr, true},
    {"AddAll", [](CanvasParts& p) -> Control& { return p.host.sample.but_AddAll; }, true},
    {"InfoButton", [](CanvasParts& p) -> Control& { return p.host.sample.but_Info; }, true},
    {"Song", [](CanvasParts& p) -> Control& { return p.host.sample.but_Song; }, true},
    {"Song2", [](CanvasParts& p) -> Control& { return p.host.sample.but_Song2; }, true},
    {"KeyN", [](CanvasParts& p) -> Control& { return p.host.sample.KeyN; }, true},
    {"KeyE", [](CanvasParts& p) -> Control& { return p.host.sample.KeyE; }, true},
    {"KeyS", [](CanvasParts& p) -> Control& { return p.host.sample.KeyS; }, true},
    {"KeyU", [](CanvasParts& p) -> Control& { return p.host.sample.KeyU; }, true},
    {"KeyB", [](CanvasParts& p) -> Control& { return p.host.sample.KeyB; }, true},
    {"Letters", [](CanvasParts& p) -> Control& { return p.host.sample.lbl_SL[1]; }, true},
    {"Cover", [](CanvasParts& p) -> Control& { return p.host.sample.but_Picture; }, true},
    {"Labels", [](CanvasParts& p) -> Control& { return p.host.sample.lbl_Kiosk; }, true},
};
// clang-format on

// What no timer draws, by the kind of row.
const std::set<std::string> Undrawn[] = {
    {"ElementName", "dbScript", "Value", "SP_SkinInformation.Value"}, {"Resizer", "Dragger"}, {}};
// What can be seen of every element that has the row.
const std::set<std::string> Seen = {"LeftX",           "TopY",    "WidthX", "HeightY", "Visible",
                                    "BackgroundColor", "Caption", "X",      "Y"};
// The search letters follow the panel's height when it is dragged; the skin's picture is the ground of all.
const std::set<std::string> Waiting = {"Main.HeightY", "SP_BackgroundPicture.Value"};

/// What an edit of the name may also change: without the rule it is the control's, which has another one.
std::string KeyColourBeside(const std::string& name) {
    const std::string rule = "UseTopLeftTransparency";
    const std::size_t at = name.find(rule);
    return at == std::string::npos ? ""
                                   : name.substr(0, at) + "TransparentColor" + name.substr(at + rule.size());
}

class EveryRowTest : public RowEditTest, public ::testing::WithParamInterface<Selection> {
protected:
    enum class Kind { Text, Tick, List };
    using Row = std::pair<std::string, Kind>;  // its key

    /// The skin as it was, and the selection made.
    void Begin() {
        QFile file(Path("SkinSettings.xml"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(beginning_);
        file.close();
        form_->ResetSelection();
        objSkin = std::make_shared<dbSkin>(Stored());
        objCurrentLayout = objSkin->dbLayouts->Item(1);
        Compose();
        const Selection& chosen = GetParam();
        Control& control = chosen.control ? chosen.control(form_->parts()) : skinButton_;
        chosen.isSample ? SelectSample(control) : Select(control);
    }
    std::vector<Row> Rows() {
        std::vector<Row> rows;
        RowPools& pools = panel_->parts().pools;
        for (int i = 1; i <= pools.chk_Boolean.Top(); ++i) Append(rows, pools.chk_Boolean[i].Tag, Kind::Tick);
        for (int i = 1; i <= pools.cboPic.Top(); ++i) Append(rows, pools.cboPic[i].Tag, Kind::List);
        for (int i = 1; i <= pools.tbx_Prop.Top(); ++i)
            if (!Check(pools.tbx_Prop[i].Tag)) Append(rows, pools.tbx_Prop[i].Tag, Kind::Text);
        return rows;
    }
    static void Append(std::vector<Row>& rows, const std::string& key, Kind kind) {
        if (!key.empty()) rows.emplace_back(key, kind);
    }
    std::string Now(const std::string& key) { return GetRowValue(panel_->parts().BoundObject, key).ToText(); }

    /// What the row's value has become; by the same way as a user, and another one than before.
    std::string Edit(const Row& row) {
        const auto& [key, kind] = row;
        if (kind == Kind::Tick) return EditTick(*Check(key));
        if (kind == Kind::List) return EditList(*Combo(key));
        RowText& box = *Box(key);
        const int buttonKind = box.button ? box.button->kind : 0;
        if (buttonKind == KindFont) return EditFont(*box.button);
        std::string text = Now(key) == "7" ? "8" : "7";
        if (buttonKind == KindPicture) text = "new.bmp";
        if (buttonKind == KindColour) text = Now(key) == "255" ? "65280" : "255";
        Type(box, text);
        return text;
    }
    std::string EditTick(RowCheck& check) {
        const bool after = !check.Value();
        Press(check, Qt::Key_Space);
        if (check.Tag == "Value") return "-1";
        return after ? "True" : "";
    }
    std::string EditList(RowCombo& combo) {
        const int before = combo.ListIndex();
        const bool isLast = before + 1 == combo.count() || (combo.Tag == "ElementType" && before == TypeInfo);
        const int after = before + (isLast ? -1 : 1);
        Press(combo, after > before ? Qt::Key_Down : Qt::Key_Up);
        return std::to_string(after);
    }
    std::string EditFont(TileCommand& button) {
        prompts_.fonts = {Font{.Name = "DejaVu Serif", .Size = 17, .Bold = true}};
        QTest::mouseClick(&button, Qt::LeftButton);
        return "DejaVu Serif";
    }

    void ExpectOneChange(const std::string& name, const std::string& expected, const Snapshot& before) {
        const Snapshot after = SnapshotOf(*objSkin);
        for (const std::string& changed : Differences(before, after))
            EXPECT_TRUE(changed.starts_with(name) || changed == KeyColourBeside(name) ||
                        (name.ends_with("ElementType") && changed.find(".Font.") != std::string::npos))
                << changed;
        const auto value = after.find(name.ends_with(".Font") ? name + ".Name" : name);
        EXPECT_EQ(value == after.end() ? "absent" : value->second, expected);
        objSkin->SaveSkin(false);
        EXPECT_EQ(Differences(after, SnapshotOf(Stored())), std::set<std::string>());
    }
    void ExpectDrawn(const std::string& key, const std::string& name, const QImage& before) {
        EXPECT_EQ(objSkin->Dirty, key == "ElementType");
        Tick();
        EXPECT_TRUE(objSkin->Dirty);
        EXPECT_FALSE(timer().isActive());
        const QImage after = Canvas(Part());
        if (Seen.contains(key)) {
            EXPECT_NE(after, before);
        }
        EXPECT_TRUE(panel_->isVisible());
        if (Waiting.contains(name)) return;
        form_->UpdateCurrentLayout();
        EXPECT_EQ(after, Canvas(Part())) << "unlike a whole composition";
    }
    void EditOnce(const Row& row) {
        SCOPED_TRACE(row.first);
        const Snapshot before = SnapshotOf(*objSkin);
        const QImage picture = Canvas(Part());
        const std::string selected = SelKey(), preference(GetClass(row.first));
        objSkin->Dirty = false;
        const std::string expected = Edit(row);
        if (row.first == "ShowElement") {
            EXPECT_NE(SelKey(), selected);
            return;
        }
        EXPECT_EQ(timer().isActive(), !Undrawn[static_cast<int>(row.second)].contains(row.first));
        const std::string owner = preference.empty() ? selected : preference;
        const std::string name = owner + '.' + std::string(GetMethod(row.first));
        if (timer().isActive()) ExpectDrawn(row.first, name, picture);
        ExpectOneChange(name, expected, before);
    }
    /// What the edit may change. Other controls of a sample's family wait for the next composition.
    QRect Part() {
        if (!GetParam().isSample || SelControl() == &skinButton_) return form_->rect();
        return {SelControl()->mapTo(form_.get(), QPoint()), SelControl()->size()};
    }

    Control skinButton_{nullptr, "btn_SkinProperties"};
    QByteArray beginning_;
};

TEST_P(EveryRowTest, EveryRow) {
    GetParam().prepare();
    Compose();
    objSkin->SaveSkin(false);
    QFile file(Path("SkinSettings.xml"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    beginning_ = file.readAll();
    Begin();
    const std::vector<Row> rows = Rows();
    ASSERT_GE(rows.size(), 2U);
    const std::set<std::string> fixed = {"Main", "SearchBox", "Scrollbar"};
    for (const Row& row : rows) {
        if (row.first == "ElementType" && fixed.contains(GetParam().name)) continue;
        Begin();
        EditOnce(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Sheet, EveryRowTest, ::testing::ValuesIn(Selections),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace ornavo::testing
