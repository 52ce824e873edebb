#include "RecordCard.h"

#include "DisplayText.h"
#include "FormParts.h"
#include "HostServices.h"
#include "Look.h"
#include "PagedDataSet.h"
#include "RecordPictures.h"
#include "SmartLabel_TRV.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr int fieldWidth = 380;

QLineEdit* NewField(const TCardField& field, QWidget* parent)
{
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(field.FieldName);
    edit->setReadOnly(true);
    edit->setMinimumSize(fieldWidth, Look::ControlHeight);
    // Right whatever the value begins with: a code alone would jump to the left.
    edit->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    return edit;
}

} // namespace

TRecordCard::TRecordCard(const TListDescription& list, TPagedDataSet& dataSet, QWidget* parent)
    : QDialog(parent), list_(list), dataSet_(&dataSet), heading_(new TSmartLabel_TRV(this))
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("کارت ") + list_.RecordName);
    auto* column = FormParts::NewCardColumn(this, heading_);
    auto* form = FormParts::NewCardFields();
    AddFields(form);
    auto* body = new QHBoxLayout;
    body->setContentsMargins(0, 0, 0, 0);
    body->addLayout(form, 1);
    if (list_.PictureGroup != 0) {
        pictures_ = new TRecordPictures(*Host().DM.ADOConnection1(), list_.PictureGroup, this);
        body->addWidget(pictures_);
        body->addSpacing(Look::GroupGap);
    }
    column->addLayout(body, 1);
    column->addWidget(NewButtons());
    connect(dataSet_, &TDataSet::scrolled, this, &TRecordCard::ShowRecord);
    connect(dataSet_, &TDataSet::dataChanged, this, &TRecordCard::ShowRecord);
    connect(dataSet_, &TPagedDataSet::rowsArrived, this, &TRecordCard::ShowRecord);
    ShowRecord();
}

TRecordCard::~TRecordCard() = default;

QString TRecordCard::FieldText(const QString& fieldName) const
{
    for (const QLineEdit* edit : edits_) {
        if (edit->objectName() == fieldName)
            return edit->text();
    }
    return {};
}

void TRecordCard::AddFields(QFormLayout* form)
{
    for (const TCardField& field : qAsConst(list_.CardFields)) {
        auto* edit = NewField(field, this);
        form->addRow(FormParts::NewLabel(field.Title, edit), edit);
        edits_.append(edit);
    }
}

QWidget* TRecordCard::NewButtons()
{
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(Look::GroupGap, 0, Look::GroupGap, 0);
    const auto add = [this, row](const QString& caption) {
        auto* button = new QPushButton(caption, this);
        button->setMinimumHeight(Look::ControlHeight);
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    previous_ = add(QStringLiteral("رکورد &قبلی"));
    next_ = add(QStringLiteral("رکورد &بعدی"));
    row->addStretch(1);
    auto* close = add(QStringLiteral("ب&ستن"));
    close->setDefault(true);
    connect(previous_, &QPushButton::clicked, this, [this] { Move(-1); });
    connect(next_, &QPushButton::clicked, this, [this] { Move(1); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence(Qt::Key_PageUp), this), &QShortcut::activated, previous_,
            &QPushButton::click);
    connect(new QShortcut(QKeySequence(Qt::Key_PageDown), this), &QShortcut::activated, next_,
            &QPushButton::click);
    return bar;
}

void TRecordCard::ShowRecord()
{
    const int row = dataSet_->RecNo();
    for (qsizetype i = 0; i < edits_.size(); ++i) {
        const TCardField& described = list_.CardFields.at(i);
        const TField* field = dataSet_->FindField(described.FieldName);
        const QVariant value = field != nullptr && row > 0 ? field->Value() : QVariant();
        QString text =
            described.Words ? described.Words(value) : DisplayText::FieldValue(value, described.Kind);
        if (field != nullptr && field->DataType() == TFieldType::ftBoolean && !value.isNull())
            text = DisplayText::FieldValue(value.toBool(), TGridColumn::ckText);
        edits_.at(i)->setText(text);
        edits_.at(i)->setCursorPosition(0);
    }
    const QString name = FieldText(list_.TitleField);
    heading_->SetCaption(QStringLiteral("%1: %2").arg(list_.RecordName, name));
    previous_->setEnabled(row > 1);
    next_->setEnabled(row > 0 && row < dataSet_->RecordCount());
    if (pictures_ != nullptr)
        pictures_->ShowRecord(row > 0 ? dataSet_->CurrentKey().toInt() : 0);
}

void TRecordCard::Move(int step)
{
    const int row = dataSet_->RecNo() + step;
    if (row >= 1 && row <= dataSet_->RecordCount())
        dataSet_->SetRecNo(row);
}
