#include "CategoryCard.h"

#include "CategoryStore.h"
#include "FormParts.h"
#include "Look.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "UnsavedQuestion.h"

#include <QHBoxLayout>
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
    auto* heading = new TSmartLabel_TRV(this);
    heading->SetCaption(words.Heading);
    auto* column = FormParts::NewCardColumn(this, heading);
    auto* place = new TSmartLabel_TRV(this);
    place->SetShowAccelChar(false);
    place->SetCaption(words.Place);
    place->setFixedWidth(categoryNameWidth);
    name_->setObjectName(QStringLiteral("CategoryName_EDT"));
    name_->setAccessibleName(QStringLiteral("نام دسته"));
    name_->setFixedSize(categoryNameWidth, Look::ControlHeight);
    auto* fields = new QVBoxLayout;
    fields->setContentsMargins(Look::GroupGap, 0, Look::GroupGap, 0);
    fields->setSpacing(Look::LineGap);
    fields->addWidget(place);
    fields->addWidget(FormParts::NewLabel(QStringLiteral("نا&م:"), name_));
    fields->addWidget(name_);
    column->addLayout(fields);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(Look::GroupGap, 0, Look::GroupGap, 0);
    FormParts::AddSaveButtons(buttons, this, [this] { Save(); });
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
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
