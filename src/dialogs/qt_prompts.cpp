// SPDX-License-Identifier: MIT
#include "dialogs/qt_prompts.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QRegularExpression>
#include <algorithm>

#include "base/find_row.h"
#include "dialogs/font_dialog.h"
#include "platform/asker.h"
#include "platform/control.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

/// The active window. Right after another dialog there is none; then the owner of that dialog, or else the
/// main window.
QWidget* Owner(QWidget* last) {
    if (QWidget* active = QApplication::activeWindow()) return active;
    if (last && last->isVisible()) return last;
    const QWidgetList windows = QApplication::topLevelWidgets();
    QWidget* const* main = FindRowIf(windows, [](const QWidget* window) {
        return window->isVisible() && window->windowType() == Qt::Window;
    });
    return main ? *main : nullptr;
}

QMessageBox::Icon BoxIcon(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Critical:
            return QMessageBox::Critical;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons BoxButtons(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

/// The answer if a message box was closed without a button.
Answer Dismissed(Buttons buttons) {
    if (buttons == Buttons::Ok) return Answer::Ok;
    return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

/// The folder, or its nearest parent that exists.
QString ExistingFolder(const std::string& folder) {
    QFileInfo place(Shown(folder));
    while (!folder.empty() && !place.isDir() && !place.isRoot()) place.setFile(place.absolutePath());
    return folder.empty() ? QString() : place.absoluteFilePath();
}

Colour PlainColour(const QColor& colour) {
    return Rgb(colour.red(), colour.green(), colour.blue());
}

}  // namespace

QWidget* QtPrompts::TakeOwner() {
    owner_ = Owner(owner_);
    return owner_;
}

Answer QtPrompts::Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) {
    const Asker asker(TakeOwner());
    QMessageBox box(BoxIcon(icon), Shown(title), Shown(text), BoxButtons(buttons), owner_);
    box.setTextFormat(Qt::PlainText);
    // A question with only Yes and No is about something that cannot be undone.
    if (buttons == Buttons::YesNo) box.setDefaultButton(QMessageBox::No);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Dismissed(buttons);
    }
}

QStringList NameFilters(std::string_view filter) {
    const QStringList parts = Shown(filter).split(QRegularExpression("[|:]"), Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // Qt would take text in brackets for the patterns.
        const QString name = parts[i].section('(', 0, 0).trimmed();
        filters += name + " (" + QString(parts[i + 1]).replace(';', ' ') + ')';
    }
    return filters;
}

std::optional<std::string> QtPrompts::Input(std::string_view text, std::string_view title,
                                            std::string_view proposal) {
    const Asker asker(TakeOwner());
    QInputDialog box(owner_);
    box.setWindowTitle(Shown(title));
    box.setLabelText(Shown(text));
    box.setTextValue(Shown(proposal));
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return box.textValue().toStdString();
}

std::optional<std::string> QtPrompts::File(const FileQuestion& question) {
    const Asker asker(TakeOwner());
    QFileDialog box(owner_, Shown(question.title), ExistingFolder(question.folder));
    // On Linux, the desktop's own file dialogs match filters with regard to case.
#ifndef Q_OS_WIN
    box.setOption(QFileDialog::DontUseNativeDialog);
#endif
    box.setOption(QFileDialog::ReadOnly);  // the dialog must not delete or rename files
    box.setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (const QStringList filters = NameFilters(question.filter); !filters.isEmpty())
        box.setNameFilters(filters);
    if (!question.name.empty()) box.selectFile(Shown(question.name));
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
    return box.selectedFiles().first().toStdString();
}

std::optional<Colour> QtPrompts::ColourOf(Colour start, CustomColours& custom) {
    for (std::size_t i = 0; i < custom.size(); ++i)
        QColorDialog::setCustomColor(static_cast<int>(i), ScreenColour(custom[i]));
    const Asker asker(TakeOwner());
    QColorDialog box(ScreenColour(start), owner_);
    box.setOption(QColorDialog::DontUseNativeDialog);
    const bool accepted = box.exec() == QDialog::Accepted;
    for (std::size_t i = 0; i < custom.size(); ++i)
        custom[i] = PlainColour(QColorDialog::customColor(static_cast<int>(i)));
    if (!accepted) return std::nullopt;
    const Colour chosen = PlainColour(box.selectedColor());
    return chosen == TranslateColor(start) ? start : chosen;
}

std::optional<Font> QtPrompts::FontOf(const Font& start, const std::vector<std::string>& offered) {
    const Asker asker(TakeOwner());
    FontDialog box(owner_, start, offered);
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return box.Chosen();
}

}  // namespace ornavo
