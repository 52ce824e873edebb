#include "AccountDetailPane.h"

#include "AccountDetails.h"
#include "AccountLevels.h"
#include "DisplayText.h"
#include "HostApplication.h"
#include "Look.h"
#include "QueryOpening.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "TypeToFind.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QVBoxLayout>

namespace {

constexpr int searchDelay = 200; // milliseconds

enum TDetailField { CodeOfDetail, NameOfDetail };

QVector<TGridColumn> ColumnsOf(TFloatingAccountsType kind, int codeWidth)
{
    TGridColumn code;
    code.FieldName = AccountDetails::CodeField(kind);
    code.Title = kind == TFloatingAccountsType::fatUnique ? QStringLiteral("کد یکتا") : QStringLiteral("کد");
    code.Kind = TGridColumn::ckCode;
    code.Width = codeWidth;
    code.Digits = AccountDetails::CodeDigits(kind);
    TGridColumn name;
    name.FieldName = QStringLiteral("Name");
    name.Title = QStringLiteral("نام تفصیلی");
    return {code, name};
}

} // namespace

struct TAccountDetailPane::TParts
{
    TADOConnection* Connection = nullptr;
    TPagedDataSet DataSet;
    TDataSource Source;
    TSmartDBGrid_TRV* Grid = nullptr;
    TSmartEdit_TRV* Search = nullptr;
    TSmartLabel_TRV* Caption = nullptr;
    TSmartLabel_TRV* Count = nullptr;
};

TAccountDetailPane::TAccountDetailPane(TADOConnection& connection, QWidget* parent)
    : QWidget(parent), parts_(std::make_unique<TParts>())
{
    parts_->Connection = &connection;
    Lay();
    ConnectData();
    ShowNothing({});
}

TAccountDetailPane::~TAccountDetailPane()
{
    // The controls outlive parts_, with the data set that they refer to.
    parts_->Grid->SetDataSource(nullptr);
    parts_->Search->OnChange = nullptr;
    parts_->Search->OnEditValueChange = nullptr;
    parts_->DataSet.disconnect(this);
}

TSmartDBGrid_TRV& TAccountDetailPane::Grid()
{
    return *parts_->Grid;
}

TSmartEdit_TRV& TAccountDetailPane::SearchEdit()
{
    return *parts_->Search;
}

TPagedDataSet& TAccountDetailPane::DataSet()
{
    return parts_->DataSet;
}

QString TAccountDetailPane::CountText() const
{
    return parts_->Count->Caption();
}

void TAccountDetailPane::Lay()
{
    TParts& parts = *parts_;
    parts.Caption = new TSmartLabel_TRV(this);
    parts.Search = new TSmartEdit_TRV(this);
    parts.Count = new TSmartLabel_TRV(this);
    parts.Grid = new TSmartDBGrid_TRV(this);
    parts.Search->setObjectName(QStringLiteral("DetailSearch"));
    parts.Search->setPlaceholderText(QStringLiteral("کد یا نام تفصیلی"));
    parts.Search->setAccessibleName(QStringLiteral("جستجوی تفصیلی"));
    parts.Search->SetDelayTimeCount(searchDelay);
    parts.Grid->setObjectName(QStringLiteral("Details"));
    parts.Grid->setAccessibleName(QStringLiteral("حساب‌های تفصیلی"));
    parts.Grid->horizontalHeader()->setStretchLastSection(true);
    parts.Caption->SetFocusControl(parts.Search);
    auto* line = new QHBoxLayout;
    line->setSpacing(Look::Margin);
    line->addWidget(parts.Caption);
    line->addWidget(parts.Search, 1);
    line->addWidget(parts.Count);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Look::LineGap);
    column->addLayout(line);
    column->addWidget(parts.Grid, 1);
}

void TAccountDetailPane::ConnectData()
{
    TParts& parts = *parts_;
    parts.DataSet.SetConnection(parts.Connection);
    parts.Source.SetDataSet(&parts.DataSet);
    parts.Grid->SetDataSource(&parts.Source);
    parts.Search->OnEditValueChange = [this](QObject* /*Sender*/) { Search(); };
    parts.Search->OnChange = [this](QObject* /*Sender*/) { choosing_ = false; };
    parts.Grid->OnDblClick = [this](QObject* /*Sender*/) { Choose(); };
    SetCodeWidth(codeWidth_);
    parts.Grid->installEventFilter(this);
    parts.Grid->viewport()->installEventFilter(this);
    const auto* keys = new TTypeToFind(parts.Search, parts.Grid, this);
    connect(keys, &TTypeToFind::chosen, this, &TAccountDetailPane::Choose);
    const TPagedDataSet* dataSet = &parts.DataSet;
    connect(dataSet, &TPagedDataSet::scrolled, this, &TAccountDetailPane::currentMoved);
    connect(dataSet, &TPagedDataSet::dataChanged, this, &TAccountDetailPane::FollowRows);
    connect(dataSet, &TPagedDataSet::rowsArrived, this, &TAccountDetailPane::FollowRows);
    connect(dataSet, &TPagedDataSet::countChanged, this, &TAccountDetailPane::FollowRows);
    connect(dataSet, &TPagedDataSet::failed, this, &TAccountDetailPane::ReportFailure);
}

void TAccountDetailPane::FollowRows()
{
    ReachWantedRow();
    ShowCount();
    Q_EMIT currentMoved();
    FinishChoice();
}

void TAccountDetailPane::ReportFailure(const QString& message, const QString& serverMessage)
{
    ForgetIntentions();
    auto* application = qobject_cast<THostApplication*>(qApp);
    if (application == nullptr)
        return;
    const QPointer<TAccountDetailPane> pane(this);
    application->Report({message, serverMessage, false, [pane] {
                             if (pane != nullptr)
                                 pane->parts_->DataSet.Refresh();
                         }});
}

void TAccountDetailPane::ShowNothing(const QString& reason)
{
    kind_ = TFloatingAccountsType::fatNone;
    ForgetIntentions();
    parts_->Search->Clear();
    parts_->DataSet.Close();
    parts_->Caption->SetCaption(QStringLiteral("تفصیلی"));
    parts_->Count->Clear();
    parts_->Search->SetEnabled(false);
    parts_->Grid->SetEmptyText(reason);
    Q_EMIT currentMoved();
}

void TAccountDetailPane::ShowKind(TFloatingAccountsType kind, const QString& kindName, int code)
{
    choosing_ = false;
    if (kind == kind_ && parts_->DataSet.Active())
        return;
    kind_ = kind;
    searched_.clear();
    parts_->Search->Clear();
    parts_->Search->SetEnabled(true);
    parts_->Caption->SetCaption(kindName.isEmpty() ? QStringLiteral("تفصیلی")
                                                   : QStringLiteral("تفصیلی: %1").arg(kindName));
    parts_->DataSet.SetSource(AccountDetails::Source(kind));
    parts_->DataSet.SetCondition(AccountDetails::Condition(kind, {}));
    SetCodeWidth(CodeWidth());
    ShowEmptyText();
    parts_->DataSet.Open();
    ShowCount();
    GoTo(code);
}

int TAccountDetailPane::CodeWidth() const
{
    return parts_->Grid->columnWidth(CodeOfDetail);
}

void TAccountDetailPane::SetCodeWidth(int width)
{
    codeWidth_ = width;
    parts_->Grid->SetColumns(ColumnsOf(kind_, codeWidth_));
}

void TAccountDetailPane::FocusList()
{
    parts_->Grid->setFocus(Qt::OtherFocusReason);
}

void TAccountDetailPane::Search()
{
    const QString typed = parts_->Search->Text();
    if (!HasList() || typed == searched_)
        return;
    searched_ = typed;
    parts_->DataSet.SetCondition(AccountDetails::Condition(kind_, typed));
    ShowEmptyText();
    // A whole code that was typed is meant before those that begin with it and the names that have it.
    GoTo(AccountLevels::CodeOf(typed.trimmed()).value_or(0));
}

int TAccountDetailPane::Ask(const QString& statement) const
{
    TADOQuery query;
    OpenQuery(query, *parts_->Connection, statement);
    return query.Field(0)->AsInteger();
}

void TAccountDetailPane::GoTo(int code)
{
    const bool isThere = code != 0 && Ask(AccountDetails::PresenceStatement(kind_, code)) > 0;
    wantedCode_ = isThere ? code : 0;
    // Counting among what a search finds would take as long as the search.
    wantedRow_ = isThere && searched_.isEmpty() ? Ask(AccountDetails::PlaceStatement(kind_, code)) + 1 : 0;
}

void TAccountDetailPane::ReachWantedRow()
{
    TPagedDataSet& dataSet = parts_->DataSet;
    // The announcement may still be that of the list before.
    if (wantedCode_ == 0 || !dataSet.WaitForFirstPage(0) || dataSet.RecordCount() < wantedRow_)
        return;
    const int row = wantedRow_ > 0 ? wantedRow_ : RowAmongTheFirst(wantedCode_);
    wantedCode_ = 0;
    if (row > 0)
        dataSet.SetRecNo(row);
}

/// A code that begins with itself and no other is one of the first, unless a hundred names before it have its
/// digits.
int TAccountDetailPane::RowAmongTheFirst(int code) const
{
    constexpr int rowsOfPage = 100;
    TPagedDataSet& dataSet = parts_->DataSet;
    const int rows = qMin(rowsOfPage, dataSet.RecordCount());
    for (int row = 0; row < rows; ++row) {
        if (dataSet.ValueAt(row, CodeOfDetail).toInt() == code)
            return row + 1;
    }
    return 0;
}

void TAccountDetailPane::Choose()
{
    if (!HasList())
        return;
    Search();
    choosing_ = true;
    FinishChoice();
}

void TAccountDetailPane::FinishChoice()
{
    TPagedDataSet& dataSet = parts_->DataSet;
    // What was typed last is not in force yet; its first rows will call again.
    if (!choosing_ || !dataSet.WaitForFirstPage(0))
        return;
    const int code = wantedCode_ != 0 ? wantedCode_ : CurrentCode();
    choosing_ = code == 0 && dataSet.RecordCount() > 0;
    if (code != 0)
        Q_EMIT chosen(code);
}

void TAccountDetailPane::ForgetIntentions()
{
    wantedCode_ = 0;
    choosing_ = false;
}

QString TAccountDetailPane::FieldText(int field)
{
    const QVariant value = parts_->DataSet.FieldValue(field);
    return HasList() && parts_->DataSet.RecNo() > 0 ? value.toString() : QString();
}

int TAccountDetailPane::CurrentCode()
{
    return FieldText(CodeOfDetail).toInt();
}

QString TAccountDetailPane::CurrentCodeText()
{
    const QString text = FieldText(CodeOfDetail);
    return text.isEmpty() ? text : text.rightJustified(AccountDetails::CodeDigits(kind_), u'0');
}

QString TAccountDetailPane::CurrentName()
{
    return FieldText(NameOfDetail);
}

void TAccountDetailPane::ShowCount()
{
    TPagedDataSet& dataSet = parts_->DataSet;
    if (!dataSet.Active())
        parts_->Count->Clear();
    else if (!dataSet.CountIsExact())
        parts_->Count->SetCaption(QStringLiteral("در حال شمارش…"));
    else
        parts_->Count->SetCaption(
            QStringLiteral("%1 حساب").arg(DisplayText::Grouped(QString::number(dataSet.RecordCount()))));
}

void TAccountDetailPane::ShowEmptyText()
{
    parts_->Grid->SetEmptyText(
        searched_.trimmed().isEmpty()
            ? QStringLiteral("هنوز حساب تفصیلی فعالی از این نوع تعریف نشده است.")
            : QStringLiteral(
                  "هیچ حساب تفصیلی با «%1» جور نیست. متن جستجو را کوتاه‌تر کنید.")
                  .arg(searched_.trimmed()));
}

bool TAccountDetailPane::eventFilter(QObject* watched, QEvent* event)
{
    // The user goes elsewhere by himself.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress)
        ForgetIntentions();
    if (watched != parts_->Grid || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (key->key() != Qt::Key_Right || (key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    Q_EMIT back();
    return true;
}
