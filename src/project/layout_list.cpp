// SPDX-License-Identifier: MIT
#include "project/layout_list.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <algorithm>

#include "base/failure.h"
#include "base/text.h"
#include "platform/control.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr int KeyRole = Qt::UserRole;

void ShowName(QTreeWidgetItem& item, std::string_view name) {
    item.setText(0, Shown(name));
    item.setToolTip(0, PlainTip(Shown(name)));
}

}  // namespace

/// Passes the label's text to the list, which decides what the item shows.
class LayoutList::LabelDelegate : public QStyledItemDelegate {
public:
    explicit LabelDelegate(LayoutList& list) : QStyledItemDelegate(&list), list_(list) {}
    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override {
        list_.labelKey_ = index.data(KeyRole).toString();
        list_.labelText_ = static_cast<QLineEdit*>(editor)->text();
        list_.labelWaits_ = true;
        // Queued, because a dialog may follow, and that must not open while the label is being closed.
        QMetaObject::invokeMethod(&list_, &LayoutList::TellLabel, Qt::QueuedConnection);
    }

private:
    LayoutList& list_;
};

LayoutList::LayoutList(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(1);
    setHeaderLabel("Layouts");
    header()->setStretchLastSection(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setItemDelegate(new LabelDelegate(*this));
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item && !ListBusy) emit ItemClick();
    });
}

QTreeWidgetItem* LayoutList::MakeItem(int position, std::string_view key, std::string_view name) {
    auto* item = new QTreeWidgetItem;
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable);
    ShowName(*item, name);
    item->setData(0, KeyRole, Shown(key));
    insertTopLevelItem(position, item);
    return item;
}

QTreeWidgetItem* LayoutList::Find(std::string_view key) const {
    for (int i = 0; i < topLevelItemCount(); ++i)
        if (EqualText(topLevelItem(i)->data(0, KeyRole).toString().toStdString(), key))
            return topLevelItem(i);
    return nullptr;
}

void LayoutList::Fill(const dbLayouts& layouts, std::string_view selected) {
    const ornavo::Raised busy(ListBusy);
    labelWaits_ = false;
    clear();
    for (const dbLayoutRef& layout : layouts) MakeItem(topLevelItemCount(), layout->Key, layout->LayoutName);
    MakeItem(topLevelItemCount(), AddNewKey, AddNewText);
    setCurrentItem(layouts.Find(selected) ? Find(selected) : nullptr);
}

void LayoutList::Add(const dbLayout& layout) {
    const ornavo::Raised busy(ListBusy);
    setCurrentItem(MakeItem(topLevelItemCount() - 1, layout.Key, layout.LayoutName));
}

void LayoutList::Remove(std::string_view key) {
    const ornavo::Raised busy(ListBusy);
    QTreeWidgetItem* gone = Find(key);
    const int row = indexOfTopLevelItem(gone), last = topLevelItemCount() - 2;  // the last item is "add new"
    delete gone;
    setCurrentItem(last > 0 ? topLevelItem(std::min(row, last - 1)) : nullptr);
    if (currentItem()) scrollToItem(currentItem());  // Qt has scrolled to its former place
}

void LayoutList::Rename(std::string_view key, std::string_view name) {
    if (QTreeWidgetItem* item = Find(key)) ShowName(*item, name);
}

std::string LayoutList::SelectedKey() const {
    return currentItem() ? currentItem()->data(0, KeyRole).toString().toStdString() : "";
}

std::string LayoutList::SelectedText() const {
    return currentItem() ? currentItem()->text(0).toStdString() : "";
}

bool LayoutList::LayoutIsSelected() const {
    return currentItem() && SelectedKey() != AddNewKey;
}

void LayoutList::StartLabelEdit() {
    if (currentItem()) editItem(currentItem(), 0);
}

void LayoutList::FinishLabelEdit() {
    if (state() == EditingState) setFocus();
    if (labelWaits_) TellLabel();
}

void LayoutList::TellLabel() {
    if (!labelWaits_) return;
    labelWaits_ = false;
    emit AfterLabelEdit(labelKey_, labelText_);
}

void LayoutList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F2) return StartLabelEdit();
    if (event->key() == Qt::Key_Delete) {
        if (LayoutIsSelected()) emit DeletePressed();
        return;
    }
    // Keys with Ctrl are for the window; the list would search them as first letters.
    if (event->modifiers() & Qt::ControlModifier) return event->ignore();
    QTreeWidget::keyPressEvent(event);
}

/// A click on the selected layout counts as selecting it again.
void LayoutList::mousePressEvent(QMouseEvent* event) {
    QTreeWidgetItem* before = currentItem();
    QTreeWidget::mousePressEvent(event);
    const bool again = before && event->button() == Qt::LeftButton && before == itemAt(event->pos());
    if (again && before == currentItem() && !ListBusy) emit ItemClick();
}

void LayoutList::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    if (currentItem() && !LayoutIsSelected()) StartLabelEdit();
}

}  // namespace ornavo
