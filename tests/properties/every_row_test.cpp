// SPDX-License-Identifier: MIT
// Every row of every sheet is edited once: the model has the new value at once and nothing else changed, the
// canvas shows it after the tick as a whole composition would, and the file that is saved has it too.
#include "properties/row_edit_fixture.h"
#include "render/sample_families.h"

namespace ornavo::testing {
namespace {

dbLayoutElement& Named(const char* key) {
    return *objCurrentLayout->dbLayoutElements->Item(key);
}

struct Selection {
    std::string name;           // of a sample's control, if there is no element
    const char* element = "";   // its key
    void (*prepare)() = [] {};  // what decides which rows there are
    const char* onlyRow = "";   // that the others have not
};

/// For the list of tests.
void PrintTo(const Selection& selection, std::ostream* out) {
    *out << selection.name;
}

std::vector<Selection> Selections() {
    std::vector<Selection> all = {
        {"Main", "Main"},
        {"Button", "Button1"},
        {"ButtonWithAmount", "Button1", [] { Named("Button1").ActionType = 10; }, "Value"},
        {"ButtonWithScript", "Button1", [] { Named("Button1").ActionType = 12; }, "dbScript"},
        {"Picture", "Picture1"},
        {"Volume", "Volume1"},
        {"Label", "Info1"},
        {"InfoVolume", "Info1", [] { Named("Info1").InfoType = 5; }},
        {"SongProperty", "Info1", [] { Named("Info1").InfoType = 20; }, "InfoField"},
        {"SearchBox", "SearchBox"},
        {"Scrollbar", "Scrollbar"},
        {"Corner"},
    };
    for (const SampleFamily& family : SampleFamilies())
        if (family.redraw != Redraw::Layout) all.push_back({std::string(family.control)});
    return all;
}

// What no timer draws.
const std::set<std::string> Undrawn = {"ElementName", "dbScript", "SP_SkinInformation.Value", "Resizer",
                                       "Dragger"};
// What can be seen of every element that has the row.
const std::set<std::string> Seen = {"LeftX",           "TopY",    "WidthX", "HeightY", "Visible",
                                    "BackgroundColor", "Caption", "X",      "Y"};
// The search letters follow the panel's height when it is dragged; the skin's picture is the ground of all.
const std::set<std::string> Waiting = {"Main.HeightY", "SP_BackgroundPicture.Value"};

/// What an edit of the name may also change: without the rule it is the control's, which has another one.
std::string KeyColourBeside(std::string name) {
    const std::string rule = "UseTopLeftTransparency";
    const std::size_t at = name.find(rule);
    return at == std::string::npos ? "" : name.replace(at, rule.size(), "TransparentColor");
}

class EveryRowTest : public RowEditTest, public ::testing::WithParamInterface<Selection> {
protected:
    /// The skin as it was, and the selection made.
    void Begin() {
        ReplaceFile(objSkin->SkinFile(), beginning_);
        form_->ResetSelection();
        objSkin = std::make_shared<dbSkin>(Stored());
        objCurrentLayout = objSkin->dbLayouts->Item(1);
        Compose();
        const auto& [name, element, prepare, row] = GetParam();
        if (*element) return Select(element);
        if (name == "Corner") return Select(form_->parts().points.cPointMover[1]);
        for (QWidget* widget : host().pMain.findChildren<QWidget*>()) {
            auto* sample = dynamic_cast<Control*>(widget);  // of the letters the first one that is seen
            if (sample && sample->Name == name && sample->Index == (name == "lbl_SL"))
                return SelectSample(*sample);
        }
        SelectSample(skinButton_);
    }
    std::set<std::string> Rows() {
        std::set<std::string> keys;
        RowPools& pools = panel_->parts().pools;
        for (int i = 1; i <= pools.chk_Boolean.Top(); ++i) keys.insert(pools.chk_Boolean[i].Tag);
        for (int i = 1; i <= pools.cboPic.Top(); ++i) keys.insert(pools.cboPic[i].Tag);
        for (int i = 1; i <= pools.tbx_Prop.Top(); ++i) keys.insert(pools.tbx_Prop[i].Tag);
        keys.erase("");
        return keys;
    }

    /// What the row's value has become; by the same way as a user, and another one than before.
    std::string Edit(const std::string& key) {
        if (RowCheck* check = Check(key)) {
            const bool after = !check->Value();
            Press(*check, Qt::Key_Space);
            return key == "Value" ? "-1" : after ? "True" : "";
        }
        if (RowCombo* combo = Combo(key)) {
            const int before = combo->ListIndex();
            const bool isLast = before + 1 == combo->count() || (key == "ElementType" && before == TypeInfo);
            Press(*combo, isLast ? Qt::Key_Up : Qt::Key_Down);
            return std::to_string(before + (isLast ? -1 : 1));
        }
        RowText& box = *Box(key);
        const int kind = box.button ? box.button->kind : 0;
        if (kind == KindFont) {
            prompts_.fonts = {Font{.Name = "DejaVu Serif", .Size = 17, .Bold = true}};
            QTest::mouseClick(box.button, Qt::LeftButton);
            return "DejaVu Serif";
        }
        const std::string now = GetRowValue(panel_->parts().BoundObject, key).ToText();
        std::string text = now == "7" ? "8" : "7";
        if (kind == KindPicture) text = "new.bmp";
        if (kind == KindColour) text = now == "255" ? "65280" : "255";
        Type(box, text);
        return text;
    }

    void ExpectOneChange(const std::string& name, const std::string& expected, const Snapshot& before) {
        const Snapshot after = SnapshotOf(*objSkin);
        for (const std::string& changed : Differences(before, after))
            EXPECT_TRUE(changed.starts_with(name) || changed == KeyColourBeside(name) ||
                        (name.ends_with("ElementType") && changed.find(".Font.") != std::string::npos))
                << changed;
        const auto value = after.find(name.ends_with(".Font") ? name + ".Name" : name);
        EXPECT_EQ(value == after.end() ? "" : value->second, expected);  // what is false has no line
        objSkin->SaveSkin(false);
        EXPECT_EQ(Differences(after, SnapshotOf(Stored())), std::set<std::string>());
    }
    void ExpectDrawn(const std::string& key, const std::string& name, const QImage& before) {
        EXPECT_EQ(objSkin->Dirty, key == "ElementType");
        Tick();
        EXPECT_TRUE(objSkin->Dirty && !timer().isActive() && panel_->isVisible());
        const QImage after = Canvas(Part());
        EXPECT_TRUE(after != before || !Seen.contains(key));
        if (Waiting.contains(name)) return;
        form_->UpdateCurrentLayout();
        EXPECT_EQ(after, Canvas(Part())) << "unlike a whole composition";
    }
    void EditOnce(const std::string& key) {
        const Snapshot before = SnapshotOf(*objSkin);
        const QImage picture = Canvas(Part());
        const std::string selected = SelKey(), preference(GetClass(key));
        const bool isDrawn = !Undrawn.contains(key) && (key != "Value" || Check(key));
        objSkin->Dirty = false;
        const std::string expected = Edit(key);
        if (key == "ShowElement") {
            EXPECT_NE(SelKey(), selected);
            return;
        }
        EXPECT_EQ(timer().isActive(), isDrawn);
        const std::string owner = preference.empty() ? selected : preference;
        const std::string name = owner + '.' + std::string(GetMethod(key));
        if (timer().isActive()) ExpectDrawn(key, name, picture);
        ExpectOneChange(name, expected, before);
    }
    /// What the edit may change. Other controls of a sample's family wait for the next composition.
    QRect Part() {
        const bool isSample = !*GetParam().element && GetParam().name != "Corner";
        if (!isSample || SelControl() == &skinButton_) return form_->rect();
        return {SelControl()->mapTo(form_.get(), QPoint()), SelControl()->size()};
    }

    Control skinButton_{nullptr, "btn_SkinProperties"};
    std::string beginning_;
};

TEST_P(EveryRowTest, EveryRow) {
    const auto& [name, element, prepare, onlyRow] = GetParam();
    prepare();
    Compose();
    objSkin->SaveSkin(false);
    beginning_ = ReadFile(objSkin->SkinFile());
    Begin();
    const std::set<std::string> rows = *onlyRow ? std::set<std::string>{onlyRow} : Rows(),
                                fixed = {"Main", "SearchBox", "Scrollbar"};
    ASSERT_GE(rows.size(), *onlyRow ? 1U : 2U);
    for (const std::string& row : rows) {
        if (row == "ElementType" && fixed.contains(name)) continue;
        SCOPED_TRACE(row);
        Begin();
        EditOnce(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Sheet, EveryRowTest, ::testing::ValuesIn(Selections()),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace ornavo::testing
