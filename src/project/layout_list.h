// SPDX-License-Identifier: MIT
// The list of a skin's layouts, which ends in an item that makes a new one. It knows keys and names, and
// tells what the user does; what that means is for its window to say.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>

#include "document/dblayouts.h"

namespace ornavo {

class LayoutList : public QTreeWidget {
    Q_OBJECT
public:
    explicit LayoutList(QWidget* parent);

    inline static constexpr const char* AddNewKey = "<add new>";
    inline static constexpr const char* AddNewText = "<add new Layout>";

    bool ListBusy = false;  // code fills the list: nothing is told

    /// Shows the layouts and selects the one with the key.
    void Fill(const dbLayouts& layouts, std::string_view selected);
    /// Inserts the layout before the last item and selects it.
    void Add(const dbLayout& layout);
    /// Takes the item out and selects the next layout, otherwise the one before, if there is one.
    void Remove(std::string_view key);
    void Rename(std::string_view key, std::string_view name);

    /// Key and text of the selected item, "" if there is none.
    std::string SelectedKey() const;
    std::string SelectedText() const;
    bool LayoutIsSelected() const;  // a real one

    void StartLabelEdit();
    /// Takes what stands in an open label, as leaving it would.
    void FinishLabelEdit();

signals:
    void ItemClick();  // another item is selected
    void DeletePressed();
    void AfterLabelEdit(const QString& key, const QString& text);

protected:
    void keyPressEvent(QKeyEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    class LabelDelegate;
    void TellLabel();
    QTreeWidgetItem* Find(std::string_view key) const;
    QTreeWidgetItem* MakeItem(int position, std::string_view key, std::string_view name);

    QString labelKey_, labelText_;
    bool labelWaits_ = false;
};

}  // namespace ornavo
