// SPDX-License-Identifier: MIT
#include "dialogs/font_dialog.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>

#include "platform/fonts.h"
#include "platform/panel_scale.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr const char* SampleText = "The Lantern Over The Reef 0123";
constexpr int Sizes[] = {6, 7, 8, 9, 10, 11, 12, 13, 14, 16, 18, 20, 22, 24, 28, 32, 36, 48, 72};  // points
constexpr double LeastSize = 1, MostSize = 999;
constexpr QSize FaceList = {240, 180};
constexpr int SizeWidth = 64, SampleHeight = 90;  // pixels
// Faces that every jukebox has.
constexpr const char* UsualFaces[] = {"Arial",           "Courier New", "MS Sans Serif", "Symbol",   "Tahoma",
                                      "Times New Roman", "Verdana",     "Webdings",      "Wingdings"};

/// The face without its foundry: Qt lists a face of several foundries as "P052 [urw]", but a skin stores only
/// the name.
QString WithoutFoundry(const QString& face) {
    static const QRegularExpression foundry(QStringLiteral("\\s*\\[[^\\[\\]]*\\]$"));
    return QString(face).remove(foundry);
}

QString NumberText(double size) {
    return QString::number(size, 'g', 6);
}

/// Calls `take` with each line that the user chooses, but not with one that merely gets the focus.
template <class Take>
void WhenChosen(QListWidget* list, Take take) {
    QObject::connect(list, &QListWidget::itemSelectionChanged, list, [list, take] {
        for (const QListWidgetItem* chosen : list->selectedItems()) take(chosen->text());
    });
}

}  // namespace

FontDialog::FontDialog(QWidget* owner, const Font& start, const std::vector<std::string>& offered)
    : QDialog(owner),
      font_(start),
      filter_(new QLineEdit),
      faces_(new QListWidget),
      size_(new QLineEdit(NumberText(start.Size))),
      sizes_(new QListWidget),
      bold_(new QCheckBox(QStringLiteral("&Bold"))),
      italic_(new QCheckBox(QStringLiteral("&Italic"))),
      underline_(new QCheckBox(QStringLiteral("&Underline"))),
      strikethrough_(new QCheckBox(QStringLiteral("S&trikethrough"))),
      sample_(new QLabel) {
    setWindowTitle(QStringLiteral("Font"));
    font_.Name = WithoutFoundry(Shown(start.Name)).toStdString();
    ListFaces(offered);
    auto* columns = new QHBoxLayout;
    columns->addLayout(FaceColumn(), 1);
    columns->addLayout(SizeColumn());
    columns->addLayout(StyleColumn());
    auto* sampleBox = new QGroupBox(QStringLiteral("Sample"));
    (new QVBoxLayout(sampleBox))->addWidget(sample_);
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setMinimumSize(1, SampleHeight);
    sample_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* all = new QVBoxLayout(this);
    all->addLayout(columns, 1);
    all->addWidget(sampleBox);
    all->addWidget(buttons);
    filter_->setFocus();
    ShowSample();
}

void FontDialog::ListFaces(const std::vector<std::string>& offered) {
    QStringList names = QFontDatabase::families();
    for (const char* face : UsualFaces) names += QLatin1String(face);
    for (const std::string& face : offered) names += Shown(face);
    names += Shown(font_.Name);
    for (QString& name : names) name = WithoutFoundry(name);
    names.removeAll({});
    names.sort(Qt::CaseInsensitive);
    names.removeDuplicates();
    faces_->addItems(names);
    const QList<QListWidgetItem*> own = faces_->findItems(Shown(font_.Name), Qt::MatchFixedString);
    if (!own.isEmpty()) faces_->setCurrentItem(own.first());
    WhenChosen(faces_, [this](const QString& name) {
        font_.Name = name.toStdString();
        ShowSample();
    });
}

QLayout* FontDialog::FaceColumn() {
    auto* column = new QVBoxLayout;
    auto* label = new QLabel(QStringLiteral("&Font"));
    label->setBuddy(filter_);
    filter_->setPlaceholderText(QStringLiteral("Type a part of the name"));
    filter_->setClearButtonEnabled(true);
    connect(filter_, &QLineEdit::textEdited, this, &FontDialog::ShowFacesLike);
    faces_->setMinimumSize(PanelScale(*this)(FaceList.width()), FaceList.height());
    faces_->setAccessibleName(QStringLiteral("Font"));
    column->addWidget(label);
    column->addWidget(filter_);
    column->addWidget(faces_, 1);
    return column;
}

QLayout* FontDialog::SizeColumn() {
    auto* column = new QVBoxLayout;
    auto* label = new QLabel(QStringLiteral("&Size"));
    label->setBuddy(size_);
    for (const int size : Sizes) sizes_->addItem(QString::number(size));
    for (QWidget* part : {static_cast<QWidget*>(size_), static_cast<QWidget*>(sizes_)}) {
        part->setFixedWidth(PanelScale(*this)(SizeWidth));
        part->setAccessibleName(QStringLiteral("Size"));
    }
    const QList<QListWidgetItem*> own = sizes_->findItems(size_->text(), Qt::MatchExactly);
    if (!own.isEmpty()) sizes_->setCurrentItem(own.first());
    connect(size_, &QLineEdit::textEdited, this, &FontDialog::TakeSize);
    WhenChosen(sizes_, [this](const QString& size) {
        size_->setText(size);
        TakeSize();
    });
    column->addWidget(label);
    column->addWidget(size_);
    column->addWidget(sizes_, 1);
    return column;
}

QLayout* FontDialog::StyleColumn() {
    auto* column = new QVBoxLayout;
    column->addWidget(new QLabel(QStringLiteral("Style")));
    const std::pair<QCheckBox*, bool*> boxes[] = {{bold_, &font_.Bold},
                                                  {italic_, &font_.Italic},
                                                  {underline_, &font_.Underline},
                                                  {strikethrough_, &font_.Strikethrough}};
    for (const auto& [box, field] : boxes) {
        box->setChecked(*field);
        connect(box, &QCheckBox::toggled, this, [this, value = field](bool on) {
            *value = on;
            ShowSample();
        });
        column->addWidget(box);
    }
    column->addStretch(1);
    return column;
}

void FontDialog::ShowFacesLike(const QString& typed) {
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < faces_->count(); ++row) {
        QListWidgetItem* face = faces_->item(row);
        face->setHidden(!face->text().contains(typed, Qt::CaseInsensitive));
        const bool begins = face->text().startsWith(typed, Qt::CaseInsensitive);
        if (!face->isHidden() &&
            (!first || (begins && !first->text().startsWith(typed, Qt::CaseInsensitive))))
            first = face;
    }
    if (first && !typed.isEmpty()) faces_->setCurrentItem(first);
    if (faces_->currentItem()) faces_->scrollToItem(faces_->currentItem());
}

void FontDialog::TakeSize() {
    bool isNumber = false;
    const double size = size_->text().trimmed().replace(',', '.').toDouble(&isNumber);
    if (!isNumber || size < LeastSize || size > MostSize) return;
    font_.Size = size;
    ShowSample();
}

void FontDialog::ShowSample() {
    sample_->setFont(ScreenFont(font_));
    sample_->setText(ShownText(font_, SampleText));
}

Font FontDialog::Chosen() const {
    return font_;
}

}  // namespace ornavo
