#include "ReportForm.h"

#include "Balloon.h"
#include "DateRange_Display_UNT.h"
#include "DisplayText.h"
#include "FormParts.h"
#include "GregorianDateDelegate.h"
#include "HostApplication.h"
#include "KeyTip.h"
#include "ListFooter.h"
#include "Look.h"
#include "PersianText.h"
#include "ReferenceHost.h"
#include "ReportFilterPanel.h"
#include "ReportSums.h"
#include "ReportText.h"
#include "ReportTotals.h"
#include "SmartButton_TRV.h"
#include "TarvaSearchManager.h"
#include "VoucherReport.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QMenu>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

constexpr int fewestLines = 5;

constexpr QLatin1String filtersKey("Reports/VoucherLines/Filters");
constexpr QLatin1String layoutKey("Reports/VoucherLines/Layout");
constexpr QLatin1String orderKey("Reports/VoucherLines/Order");
constexpr QLatin1String descendingKey("Reports/VoucherLines/Descending");

QString Title()
{
    return QStringLiteral("گزارش ردیف‌های اسناد");
}

} // namespace

struct TReportForm::TParts
{
    explicit TParts(TADOConnection& connection)
        : Sums(connection, VoucherReport::Source().From), Export(connection)
    {
    }

    TPagedDataSet DataSet;
    TDataSource Source;
    TTarvaSearchManager Manager;
    TReportSums Sums;
    TReportExport Export;
    TReportFilterPanel* Filters = nullptr;
    TSmartDBGrid_TRV* Grid = nullptr;
    TListFooter* Footer = nullptr;
    TReportTotals* Totals = nullptr;
};

TReportForm::TReportForm(TReferenceHost& host, QWidget* parent)
    : TPage(parent), host_(&host), parts_(std::make_unique<TParts>(host.Connection()))
{
    setObjectName(QStringLiteral("ReportForm"));
    setWindowTitle(Title());
    AskFileName = [this](const QString& suggested, const QString& filter) {
        return QFileDialog::getSaveFileName(this, QStringLiteral("ذخیرهٔ گزارش"), suggested, filter);
    };
    Lay();
    ConnectData();
    ConnectSums();
    ConnectExport();
    ConnectKeys();
    RestoreState();
    ShowCondition();
}

TReportForm::~TReportForm()
{
    // The controls outlive parts_, with the data set and the manager that they refer to.
    parts_->Source.SetDataSet(nullptr);
    delete parts_->Footer;
    delete parts_->Filters;
}

void TReportForm::Lay()
{
    TParts& parts = *parts_;
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    parts.Filters = new TReportFilterPanel(this);
    parts.Grid = new TSmartDBGrid_TRV(this);
    // On a low screen the filters scroll, so that some lines stay in sight below them.
    parts.Grid->setMinimumHeight((fewestLines + 1) * Look::GridRowHeight);
    column->addWidget(parts.Filters);
    column->addWidget(parts.Grid, 1);
    parts.Footer = new TListFooter(parts.DataSet, this);
    column->addWidget(parts.Footer);
    column->addWidget(NewFooter());
}

QWidget* TReportForm::NewFooter()
{
    auto* footer = new QWidget(this);
    auto* row = new QHBoxLayout(footer);
    row->setContentsMargins(Look::Margin, 0, 0, Look::Unit);
    parts_->Totals = new TReportTotals(footer);
    row->addWidget(parts_->Totals, 1);
    auto* menu = new QMenu(footer);
    const auto add = [this, menu](const QString& caption, const QKeySequence& key,
                                  void (TReportForm::*action)()) {
        QAction* entry = menu->addAction(caption);
        entry->setShortcut(key);
        entry->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(entry, &QAction::triggered, this, action);
        addAction(entry);
    };
    add(QStringLiteral("پروندهٔ &PDF…"), QKeySequence(Qt::CTRL | Qt::Key_P), &TReportForm::SavePdf);
    add(QStringLiteral("پروندهٔ &CSV…"), QKeySequence(Qt::CTRL | Qt::Key_E), &TReportForm::SaveCsv);
    auto* button =
        FormParts::NewBarButton(footer, QStringLiteral("Save_BTN"), QStringLiteral("&ذخیرهٔ گزارش"));
    button->setToolTip(KeyTip::Of(QStringLiteral("پروندهٔ PDF یا CSV"), QStringLiteral("Ctrl+P, Ctrl+E")));
    button->OnClick = [button, menu](QObject*) {
        menu->popup(button->mapToGlobal(QPoint(0, -menu->sizeHint().height())));
    };
    row->addWidget(button);
    return footer;
}

void TReportForm::ConnectData()
{
    TParts& parts = *parts_;
    parts.DataSet.SetConnection(&host_->Connection());
    parts.DataSet.SetSource(VoucherReport::Source());
    parts.Source.SetDataSet(&parts.DataSet);
    parts.Grid->SetColumns(VoucherReport::Columns());
    parts.Grid->SetDataSource(&parts.Source);
    parts.Grid->installEventFilter(this);
    ShowDatesOfHost();
    parts.Grid->OnDblClick = [this](QObject* /*Sender*/) { OpenVoucher(); };
    parts.Filters->AddTo(parts.Manager);
    parts.Manager.SetDataSet(&parts.DataSet);
    connect(&parts.Manager, &TTarvaSearchManager::rebuilt, this, &TReportForm::ShowCondition);
    connect(&parts.DataSet, &TPagedDataSet::failed, this, &TReportForm::ReportFailure);
}

void TReportForm::ShowDatesOfHost()
{
    if (!IsGregorian())
        return;
    auto* delegate = new TGregorianDateDelegate(parts_->Grid);
    const QVector<TGridColumn> columns = VoucherReport::Columns();
    for (int column = 0; column < columns.size(); ++column) {
        if (columns.at(column).Kind == TGridColumn::ckDate)
            parts_->Grid->setItemDelegateForColumn(column, delegate);
    }
}

void TReportForm::ConnectSums()
{
    TParts& parts = *parts_;
    connect(&parts.Manager, &TTarvaSearchManager::conditionChanged, this, [this](const QString& condition) {
        if (parts_->DataSet.Active())
            parts_->Sums.Ask(condition);
    });
    connect(&parts.Sums, &TReportSums::asked, this, [this] {
        parts_->DataSet.SetCountIsGiven(true);
        parts_->Totals->ShowPending();
    });
    connect(&parts.Sums, &TReportSums::summed, this, [this](const QString& condition, const TReportSum& sum) {
        parts_->Totals->Show(sum);
        // The sum has counted the lines already.
        parts_->DataSet.GiveCount(condition, static_cast<int>(sum.Count));
    });
    connect(&parts.Sums, &TReportSums::failed, this, [this] {
        parts_->Totals->ShowFailure();
        parts_->DataSet.SetCountIsGiven(false);
    });
}

void TReportForm::ConnectExport()
{
    TReportExport& files = parts_->Export;
    connect(&files, &TReportExport::begun, this,
            [this] { Balloon::Show(parts_->Totals, QStringLiteral("گزارش در حال ذخیره است…")); });
    connect(&files, &TReportExport::saved, this,
            [this](const QString& sentence) { Balloon::Show(parts_->Totals, sentence); });
    connect(&files, &TReportExport::failed, this, &TReportForm::ReportFailure);
}

void TReportForm::ConnectKeys()
{
    FormParts::OnKey(this, Qt::Key_F10, &TReportForm::FocusPeriod);
    FormParts::OnKey(this, Qt::Key_F6, &TReportForm::SwitchBetweenFiltersAndGrid);
    FormParts::OnKey(this, Qt::Key_F5, &TReportForm::Refresh);
    FormParts::OnKey(this, Qt::Key_Escape, &TReportForm::Clear);
}

QVector<TKeyHelp> TReportForm::Keys() const
{
    return {
        {QStringLiteral("F10"), QStringLiteral("رفتن به بازهٔ زمانی؛ با ↑ و ↓ بازه را برگزینید")},
        {QStringLiteral("Ctrl+F10"), QStringLiteral("نشان دادن فیلترهای پیشرفته")},
        {QStringLiteral("Alt+س"), QStringLiteral("نشان دادن و پنهان کردن فیلترهای پیشرفته")},
        {QStringLiteral("Tab  Space"), QStringLiteral("فیلتر بعدی؛ روشن و خاموش کردن آن")},
        {QStringLiteral("F6"),
         QStringLiteral("رفت و برگشت میان فیلترها و ردیف‌ها")},
        {QStringLiteral("Enter"), QStringLiteral("در ردیف‌ها: باز کردن سند ردیف")},
        {QStringLiteral("Escape"), QStringLiteral("پاک کردن همهٔ فیلترها")},
        {QStringLiteral("F5"), QStringLiteral("خواندن دوبارهٔ گزارش")},
        {QStringLiteral("Ctrl+P"), QStringLiteral("ذخیرهٔ ردیف‌ها در پروندهٔ PDF")},
        {QStringLiteral("Ctrl+E"), QStringLiteral("ذخیرهٔ ردیف‌ها در پروندهٔ CSV")},
    };
}

void TReportForm::Enter()
{
    if (!parts_->DataSet.Active())
        Refresh();
    if (focusWidget() == nullptr)
        FocusPeriod();
    else
        focusWidget()->setFocus(Qt::OtherFocusReason);
}

void TReportForm::Refresh()
{
    TParts& parts = *parts_;
    // A period counts from today, which may be another day by now.
    parts.Filters->Period->SetRangeValue();
    parts.Manager.Flush();
    if (parts.DataSet.Active())
        parts.DataSet.Refresh();
    else
        parts.DataSet.Open();
    parts.Sums.Ask(parts.DataSet.Condition(), true);
}

void TReportForm::Clear()
{
    parts_->Filters->Clear();
    FocusPeriod();
}

void TReportForm::FocusPeriod()
{
    parts_->Filters->FocusPeriod();
}

void TReportForm::SwitchBetweenFiltersAndGrid()
{
    if (parts_->Grid->hasFocus()) {
        FocusPeriod();
        return;
    }
    parts_->Grid->setFocus(Qt::ShortcutFocusReason);
    if (parts_->DataSet.RecNo() == 0 && parts_->DataSet.RecordCount() > 0)
        parts_->DataSet.First();
}

bool TReportForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != parts_->Grid || event->type() != QEvent::KeyPress)
        return TPage::eventFilter(watched, event);
    const int key = static_cast<const QKeyEvent&>(*event).key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    OpenVoucher();
    return true;
}

void TReportForm::OpenVoucher()
{
    TPagedDataSet& lines = parts_->DataSet;
    if (lines.RecNo() == 0 || !lines.WaitForCurrentRow())
        return;
    const int year = lines.FieldByName(QStringLiteral("FiscalYear"))->AsInteger();
    const int number = lines.FieldByName(QStringLiteral("Number"))->AsInteger();
    Q_EMIT voucherWanted(year, number);
}

bool TReportForm::IsGregorian() const
{
    return host_->Settings().SettingRecord().IsGregorian();
}

QString TReportForm::ConditionInWords()
{
    return ReportText::Condition(parts_->Manager.ConditionInWords(), parts_->Filters->DateCriteria(),
                                 IsGregorian());
}

void TReportForm::ShowCondition()
{
    const QString words = ConditionInWords();
    parts_->Footer->SetConditionInWords(
        words.isEmpty() ? QStringLiteral("همهٔ ردیف‌های اسناد") : words);
    parts_->Grid->SetEmptyText(
        words.isEmpty()
            ? QStringLiteral("هنوز سندی ثبت نشده است.")
            : QStringLiteral(
                  "هیچ ردیفی با این فیلترها جور نیست. برای دیدن همهٔ ردیف‌ها کلید %1 را بزنید.")
                  .arg(PersianText::Isolated(QStringLiteral("Escape"))));
}

void TReportForm::RestoreState()
{
    const THostSettings& settings = host_->Settings();
    parts_->Grid->RestoreLayout(settings.Value(layoutKey).toByteArray());
    const QString order = settings.Value(orderKey).toString();
    const bool descending = settings.Value(descendingKey, false).toBool();
    parts_->DataSet.SetOrder(VoucherReport::FieldIndex(order) >= 0 ? order : QStringLiteral("Id"),
                             descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    const QByteArray filters = settings.Value(filtersKey).toString().toUtf8();
    if (!filters.isEmpty())
        parts_->Filters->Restore(QJsonDocument::fromJson(filters).object());
}

void TReportForm::SaveState() const
{
    THostSettings& settings = host_->Settings();
    const QJsonDocument filters(parts_->Filters->State());
    settings.SetValue(filtersKey, QString::fromUtf8(filters.toJson(QJsonDocument::Compact)));
    settings.SetValue(layoutKey, parts_->Grid->SaveLayout());
    settings.SetValue(orderKey, parts_->DataSet.OrderField());
    settings.SetValue(descendingKey, parts_->DataSet.Order() == Qt::DescendingOrder);
}

void TReportForm::SavePdf()
{
    SaveAs(TReportExport::TFormat::Pdf);
}

void TReportForm::SaveCsv()
{
    SaveAs(TReportExport::TFormat::Csv);
}

void TReportForm::SaveAs(TReportExport::TFormat format)
{
    const bool isPdf = format == TReportExport::TFormat::Pdf;
    const QString suffix = isPdf ? QStringLiteral("pdf") : QStringLiteral("csv");
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QString fileName = AskFileName(folder.filePath(QStringLiteral("report.") + suffix),
                                   QStringLiteral("%1 (*.%2)").arg(suffix.toUpper(), suffix));
    if (fileName.isEmpty())
        return;
    if (QFileInfo(fileName).suffix().isEmpty())
        fileName += u'.' + suffix;
    parts_->Export.Save(Question(), format, fileName);
}

TReportQuestion TReportForm::Question()
{
    TReportQuestion question;
    question.Source = VoucherReport::Source();
    question.Condition = parts_->Manager.Condition();
    question.OrderField = parts_->DataSet.OrderField();
    question.Order = parts_->DataSet.Order();
    for (const TGridColumn& column : parts_->Grid->Columns()) {
        if (column.Visible)
            question.Columns.append(column);
    }
    question.Title = Title();
    question.ConditionInWords = ConditionInWords();
    question.Gregorian = IsGregorian();
    question.Today = DisplayText::DayInWords(host_->Clock().Today(), question.Gregorian);
    return question;
}

void TReportForm::ReportFailure(const QString& message, const QString& details)
{
    auto* application = qobject_cast<THostApplication*>(qApp);
    if (application != nullptr)
        application->Report({message, details});
}

TReportFilterPanel& TReportForm::Filters()
{
    return *parts_->Filters;
}

TTarvaSearchManager& TReportForm::Manager()
{
    return parts_->Manager;
}

TPagedDataSet& TReportForm::DataSet()
{
    return parts_->DataSet;
}

TSmartDBGrid_TRV& TReportForm::Grid()
{
    return *parts_->Grid;
}

const TListFooter& TReportForm::Footer() const
{
    return *parts_->Footer;
}

const TReportTotals& TReportForm::Totals() const
{
    return *parts_->Totals;
}

bool TReportForm::IsBusy() const
{
    return parts_->Sums.IsBusy() || parts_->Export.IsBusy();
}
