#include "CategoryCard.h"

#include "CategoryStore.h"
#include "Look.h"
#include "RelativeFonts.h"
#include "SmartButton_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "UnsavedQuestion.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

namespace {

constexpr int categoryNameWidth = 420;

} // namespace

TCategoryCard::TCategoryCard(const TWords& words, TSave save, QWidget* parent)
    : QDialog(parent), loaded_(words.Name), save_(std::move(save)), name_(new TSmartEdit_TRV(this))
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(words.Heading);
    Lay(words);
    name_->SetMaxLength(TCategoryStore::LongestName);
    name_->SetText(words.Name);
    name_->OnKeyPress = [](QObject*, QChar& key) {
        if (key == u',')
            key = TCategoryStore::WithoutCommas(key).front();
    };
    name_->OnPaste = [](QObject*, QString& text) { text = TCategoryStore::WithoutCommas(text); };
    connect(name_, &QLineEdit::returnPressed, this, &TCategoryCard::Save);
    name_->selectAll();
    name_->setFocus();
}

TCategoryCard::~TCategoryCard() = default;

void TCategoryCard::Lay(const TWords& words)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, Look::GroupGap);
    column->setSpacing(Look::GroupGap);
    column->addWidget(NewBand(words.Heading));
    auto* place = new TSmartLabel_TRV(this);
    place->SetShowAccelChar(false);
    place->SetCaption(words.Place);
    place->setFixedWidth(categoryNameWidth);
    auto* label = new TSmartLabel_TRV(this);
    label->SetCaption(QStringLiteral("نا&م:"));
    label->SetFocusControl(name_);
    name_->setObjectName(QStringLiteral("CategoryName_EDT"));
    name_->setAccessibleName(QStringLiteral("نام دسته"));
    name_->setFixedSize(categoryNameWidth, Look::ControlHeight);
    auto* fields = new QVBoxLayout;
    fields->setContentsMargins(Look::GroupGap, 0, Look::GroupGap, 0);
    fields->setSpacing(Look::LineGap);
    fields->addWidget(place);
    fields->addWidget(label);
    fields->addWidget(name_);
    column->addLayout(fields);
    column->addWidget(NewButtons());
    column->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* TCategoryCard::NewBand(const QString& heading)
{
    auto* band = new TSmartPanel_TRV(this);
    band->SetGround(TSmartPanel_TRV::gBand);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(Look::GroupGap, Look::Margin, Look::GroupGap, Look::Margin);
    auto* label = new TSmartLabel_TRV(band);
    label->SetOnBand(true);
    label->setFont(RelativeFonts::Bold());
    label->SetCaption(heading);
    row->addWidget(label);
    return band;
}

QWidget* TCategoryCard::NewButtons()
{
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(Look::GroupGap, 0, Look::GroupGap, 0);
    row->addStretch(1);
    const auto add = [bar, row](const QString& name, const QString& caption, const TNotifyEvent& click) {
        auto* button = new TSmartButton_TRV(bar);
        button->setObjectName(name);
        button->setText(caption);
        button->setMinimumSize(88, Look::ControlHeight);
        button->setAutoDefault(false);
        button->OnClick = click;
        row->addWidget(button);
    };
    add(QStringLiteral("Save_BTN"), QStringLiteral("&ذخیره"), [this](QObject*) { Save(); });
    add(QStringLiteral("Cancel_BTN"), QStringLiteral("ا&نصراف"), [this](QObject*) { reject(); });
    for (const QKeySequence& key : {QKeySequence(Qt::Key_F2), QKeySequence(Qt::CTRL | Qt::Key_S)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &TCategoryCard::Save);
    return bar;
}

bool TCategoryCard::Save()
{
    try {
        save_(name_->Text());
    } catch (const ECategoryRefused& refusal) {
        name_->setFocus(Qt::OtherFocusReason);
        name_->ShowError(refusal.Message());
        return false;
    }
    accept();
    return true;
}

void TCategoryCard::reject()
{
    if (name_->Text() != loaded_) {
        const TUnsavedAnswer answer = AskAboutUnsaved(
            this, QStringLiteral("نام دسته تغییر کرده و ذخیره نشده است. پیش از بستن ذخیره شود؟"));
        if (answer == TUnsavedAnswer::Save)
            Save();
        if (answer != TUnsavedAnswer::Discard)
            return;
    }
    QDialog::reject();
}
