// SPDX-License-Identifier: MIT
// The list of a skin's layouts, with a last item that adds one. It only reports what the user does; its
// window acts on it.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>

#include "document/dblayouts.h"

namespace ornavo {

/// The list of layouts, by keys and names.
class LayoutList : public QTreeWidget {
    Q_OBJECT
public:
    explicit LayoutList(QWidget* parent);

    inline static constexpr const char* AddNewKey = "<add new>";
    inline static constexpr const char* AddNewText = "<add new Layout>";

    bool ListBusy = false;  // code changes the list: ItemClick is not emitted

    /// Shows the layouts and selects the one with the key `selected`.
    void Fill(const dbLayouts& layouts, std::string_view selected);
    /// Inserts the layout before the last item, "add new", and selects it.
    void Add(const dbLayout& layout);
    /// Removes the item and selects the next layout, or else the previous one.
    void Remove(std::string_view key);
    void Rename(std::string_view key, std::string_view name);

    /// Key and text of the selected item; "" if there is none.
    std::string SelectedKey() const;
    std::string SelectedText() const;
    bool LayoutIsSelected() const;  // not "add new"

    void StartLabelEdit();
    /// Commits the text of an open label as leaving it would.
    void FinishLabelEdit();

signals:
    void ItemClick();  // another item is selected, or the same one is clicked again
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
