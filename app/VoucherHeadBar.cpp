#include "VoucherHeadBar.h"

#include "Balloon.h"
#include "EnterChain.h"
#include "FormParts.h"
#include "Look.h"
#include "PersianText.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"

#include <algorithm>
#include <QHBoxLayout>

namespace {

constexpr int yearWidth = 170;
constexpr int numberWidth = 90;
constexpr int numberDigits = 9; // always fits the 32-bit number
constexpr int dateWidth = 130;

TSmartEdit_TRV* NewEdit(const QString& name, int maxLength, QWidget* parent)
{
    auto* edit = new TSmartEdit_TRV(parent);
    edit->setObjectName(name);
    edit->SetMaxLength(maxLength);
    return edit;
}

} // namespace

TVoucherHeadBar::TVoucherHeadBar(QWidget* parent)
    : QWidget(parent), year_(new TSmartComboBox_TRV(this)),
      number_(NewEdit(QStringLiteral("Number_EDT"), numberDigits, this)), date_(new TSmartDateEdit_TRV(this)),
      title_(NewEdit(QStringLiteral("Title_EDT"), TVoucherDraft::LongestTitle, this))
{
    year_->setObjectName(QStringLiteral("Year_CMB"));
    date_->setObjectName(QStringLiteral("Date_EDT"));
    date_->SetCalendarButton(true);
    connect(date_, &QLineEdit::textChanged, this, [this] {
        if (const QString day = date_->GetValue(); !day.isEmpty())
            Q_EMIT dayChanged(day);
    });
    year_->OnChange = [this](QObject*) { Q_EMIT yearChosen(); };
    number_->OnKeyPress = [](QObject*, QChar& key) {
        if (key.isPrint() && !key.isDigit())
            key = QChar();
    };
    number_->OnKeyDown = [this](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (key == VirtualKey::Enter) {
            key = 0;
            EnterNumber();
        }
    };
    // What was typed and not entered is no number of this voucher.
    number_->OnExit = [this](QObject*) { ShowNumber(); };
    Lay();
    auto* chain = new TEnterChain({year_, date_, title_}, this);
    connect(chain, &TEnterChain::finished, this, &TVoucherHeadBar::finished);
}

TVoucherHeadBar::~TVoucherHeadBar() = default;

void TVoucherHeadBar::Lay()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    row->setSpacing(Look::Margin);
    FormParts::AddField(row, QStringLiteral("سال &مالی:"), year_, yearWidth);
    FormParts::AddField(row, QStringLiteral("ش&ماره:"), number_, numberWidth);
    FormParts::AddField(row, QStringLiteral("&تاریخ:"), date_, dateWidth);
    FormParts::AddField(row, QStringLiteral("&شرح سند:"), title_, 0);
}

void TVoucherHeadBar::SetCalendar(bool gregorian, std::function<QDate()> today)
{
    const auto type = gregorian ? TSmartDateEdit_TRV::ctGregorian : TSmartDateEdit_TRV::ctSolar;
    date_->SetCalendarType(type);
    date_->SetCalendarResultType(type);
    date_->SetToday(std::move(today));
}

void TVoucherHeadBar::SetYears(const QVector<TFiscalYear>& years)
{
    years_ = years;
    year_->Clear();
    for (const TFiscalYear& year : qAsConst(years_))
        year_->AddItem(year.Closed ? year.Title + QStringLiteral(" (بسته)") : year.Title, year.Code);
    const auto open =
        std::find_if(years_.cbegin(), years_.cend(), [](const TFiscalYear& year) { return !year.Closed; });
    year_->SetItemIndex(open == years_.cend() ? 0 : static_cast<int>(open - years_.cbegin()));
}

const TFiscalYear* TVoucherHeadBar::Year() const
{
    const int index = year_->ItemIndex();
    return index >= 0 && index < years_.size() ? &years_.at(index) : nullptr;
}

bool TVoucherHeadBar::ChooseYear(int code)
{
    for (int index = 0; index < years_.size(); ++index) {
        if (years_.at(index).Code == code) {
            year_->SetItemIndex(index);
            return true;
        }
    }
    return false;
}

void TVoucherHeadBar::Show(const TVoucherHead& head)
{
    head_ = head;
    ChooseYear(head.FiscalYear);
    ShowNumber();
    date_->SetText(head.Date);
    title_->SetText(head.Title);
    shownDate_ = date_->Text();
    shownTitle_ = title_->Text();
}

void TVoucherHeadBar::ShowNumber()
{
    number_->SetText(head_.Number == 0 ? QString() : QString::number(head_.Number));
}

TVoucherHead TVoucherHeadBar::Head() const
{
    TVoucherHead head = head_;
    if (head.Id == 0)
        head.FiscalYear = Year() == nullptr ? 0 : Year()->Code;
    // A day that does not exist goes on as it is typed, so that the check names it.
    const QString date = date_->GetValue();
    if (date_->Text() != shownDate_)
        head.Date = date.isEmpty() ? date_->Text() : date;
    if (title_->Text() != shownTitle_)
        head.Title = title_->Text();
    return head;
}

void TVoucherHeadBar::SetProposedNumber(int number)
{
    number_->setPlaceholderText(number == 0 ? QString() : QString::number(number));
}

void TVoucherHeadBar::SetWritable(bool writable, bool yearToo)
{
    year_->setEnabled(yearToo);
    date_->setReadOnly(!writable);
    title_->setReadOnly(!writable);
}

void TVoucherHeadBar::FocusNumber()
{
    number_->setFocus(Qt::ShortcutFocusReason);
    number_->selectAll();
}

void TVoucherHeadBar::FocusDate()
{
    date_->setFocus(Qt::ShortcutFocusReason);
    date_->selectAll();
}

void TVoucherHeadBar::ShowFault(const TVoucherFault& fault)
{
    if (fault.Field == TVoucherField::FiscalYear) {
        year_->setFocus(Qt::OtherFocusReason);
        Balloon::Show(year_, fault.Message);
        return;
    }
    if (fault.Field == TVoucherField::Date) {
        date_->setFocus(Qt::OtherFocusReason);
        date_->ShowError(fault.Message);
        return;
    }
    title_->setFocus(Qt::OtherFocusReason);
    title_->ShowError(fault.Message);
}

void TVoucherHeadBar::EnterNumber()
{
    const int number = PersianText::AsciiDigits(number_->Text()).toInt();
    if (number_->Text().isEmpty() || number == head_.Number)
        FocusDate();
    else if (number <= 0)
        number_->ShowError(QStringLiteral("شمارهٔ سند را با رقم بنویسید."));
    else
        Q_EMIT numberEntered(number);
}
