#include "FormParts.h"

#include "Look.h"
#include "RelativeFonts.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"

#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int leastSaveButtonWidth = 88;

TSmartButton_TRV* NewSaveButton(QDialog* card, const QString& name, const QString& caption)
{
    auto* button = new TSmartButton_TRV(card);
    button->setObjectName(name);
    button->setText(caption);
    button->setMinimumSize(leastSaveButtonWidth, Look::ControlHeight);
    button->setAutoDefault(false);
    return button;
}

} // namespace

TSmartLabel_TRV* FormParts::NewLabel(const QString& caption, QWidget* control)
{
    auto* label = new TSmartLabel_TRV(control->parentWidget());
    label->SetCaption(caption);
    label->SetFocusControl(control);
    return label;
}

void FormParts::AddField(QHBoxLayout* row, const QString& caption, QWidget* control, int width)
{
    row->addWidget(NewLabel(caption, control));
    control->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    control->setFixedHeight(Look::ControlHeight);
    if (width > 0)
        control->setFixedWidth(width);
    row->addWidget(control, width > 0 ? 0 : 1);
}

TSmartButton_TRV* FormParts::NewBarButton(QWidget* bar, const QString& name, const QString& caption)
{
    auto* button = new TSmartButton_TRV(bar);
    button->setObjectName(name);
    button->SetAutoWidth(true);
    button->setText(caption);
    button->setFixedHeight(Look::ControlHeight);
    return button;
}

QVBoxLayout* FormParts::NewCardColumn(QDialog* card, TSmartLabel_TRV* heading)
{
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(0, 0, 0, Look::GroupGap);
    column->setSpacing(Look::GroupGap);
    AddHeading(column, heading);
    return column;
}

QHBoxLayout* FormParts::AddHeading(QVBoxLayout* column, TSmartLabel_TRV* heading)
{
    auto* band = new TSmartPanel_TRV(heading->parentWidget());
    band->SetGround(TSmartPanel_TRV::gBand);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(Look::GroupGap, Look::Margin, Look::GroupGap, Look::Margin);
    heading->SetOnBand(true);
    // A heading may hold a name, and a name may hold an ampersand.
    heading->SetShowAccelChar(false);
    heading->setFont(RelativeFonts::Bold());
    row->addWidget(heading, 1);
    column->addWidget(band);
    return row;
}

QFormLayout* FormParts::NewCardFields()
{
    auto* fields = new QFormLayout;
    fields->setContentsMargins(Look::GroupGap, 0, Look::GroupGap, 0);
    fields->setVerticalSpacing(Look::LineGap);
    fields->setHorizontalSpacing(Look::GroupGap);
    return fields;
}

TSmartButton_TRV* FormParts::AddSaveButtons(QHBoxLayout* row, QDialog* card,
                                            const std::function<void()>& save)
{
    auto* saving = NewSaveButton(card, QStringLiteral("Save_BTN"), QStringLiteral("&ذخیره"));
    auto* closing = NewSaveButton(card, QStringLiteral("Cancel_BTN"), QStringLiteral("ا&نصراف"));
    saving->OnClick = [save](QObject*) { save(); };
    closing->OnClick = [card](QObject*) { card->reject(); };
    row->addStretch(1);
    row->addWidget(saving);
    row->addWidget(closing);
    for (const QKeySequence& key : {QKeySequence(Qt::Key_F2), QKeySequence(Qt::CTRL | Qt::Key_S)})
        QObject::connect(new QShortcut(key, card), &QShortcut::activated, card, save);
    return saving;
}
