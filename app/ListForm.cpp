#include "ListForm.h"

#include "FormParts.h"
#include "General_Search_UNT.h"
#include "HostApplication.h"
#include "ListFooter.h"
#include "ListKeys.h"
#include "ListLabels.h"
#include "Look.h"
#include "PersianText.h"
#include "RecordCard.h"
#include "ReferenceHost.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartPanel_TRV.h"
#include "TarvaSearchManager.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QVBoxLayout>

struct TListForm::TParts
{
    TPagedDataSet DataSet;
    TDataSource Source;
    TTarvaSearchManager Manager;
    TGeneral_Search_Frame* Search = nullptr;
    TSmartDBGrid_TRV* Grid = nullptr;
    QHBoxLayout* Body = nullptr; ///< the grid, and what stands beside it
    TListFooter* Footer = nullptr;
    TListKeys* Keys = nullptr;
    std::unique_ptr<TListLabels> Labels;
};

TListForm::TListForm(const TListDescription& list, TReferenceHost& host, QWidget* parent)
    : TPage(parent), list_(list), host_(&host), parts_(std::make_unique<TParts>())
{
    setObjectName(list_.Key + QStringLiteral("List"));
    setWindowTitle(list_.Title);
    Lay();
    ConnectData();
    if (list_.Labels)
        ConnectLabels();
    ConnectKeys();
    RestoreState();
    StartSearch();
}

TListForm::~TListForm()
{
    // The controls outlive parts_, with the data set and the manager that they refer to.
    parts_->Search->Refrenc_SearchManager = nullptr;
    parts_->Search->doselection = nullptr;
    parts_->Labels.reset();
    parts_->Source.SetDataSet(nullptr);
    delete card_;
    delete parts_->Footer;
}

void TListForm::Enter()
{
    if (parts_->Labels != nullptr)
        parts_->Labels->Enter();
    if (!parts_->DataSet.Active())
        Refresh();
    FocusSearchEdit();
}

QVector<TKeyHelp> TListForm::Keys() const
{
    QVector<TKeyHelp> keys{
        {QStringLiteral("F10"),
         QStringLiteral("رفتن به فیلد جستجو؛ با ↑ و ↓ فیلد را برگزینید و با Tab به جای نوشتن بروید")},
        {QStringLiteral("Enter"),
         QStringLiteral("جستجوی بی‌درنگ و باز کردن کارت ردیف پیدا شده")},
        {QStringLiteral("↓ ↑"), QStringLiteral("از جای نوشتن به فهرست؛ در فهرست، ردیف بعدی و قبلی")},
        {QStringLiteral("Escape"), QStringLiteral("پاک کردن جستجو، بستن کارت")},
        {QStringLiteral("Alt+ن"),
         QStringLiteral("وارونه کردن جستجو: ردیف‌هایی که چنین نیستند")},
        {QStringLiteral("F5"), QStringLiteral("خواندن دوبارهٔ فهرست")},
        {QStringLiteral("F7"),
         QStringLiteral(
             "مرتب‌سازی؛ انتخاب دوبارهٔ همان ستون ترتیب را وارونه می‌کند")},
        {QStringLiteral("PageDown PageUp"), QStringLiteral("صفحهٔ بعدی و قبلی؛ در کارت، رکورد بعدی و قبلی")},
    };
    if (parts_->Labels != nullptr)
        keys += parts_->Labels->Keys();
    return keys;
}

TPagedDataSet& TListForm::DataSet()
{
    return parts_->DataSet;
}

TSmartDBGrid_TRV& TListForm::Grid()
{
    return *parts_->Grid;
}

TGeneral_Search_Frame& TListForm::SearchFrame()
{
    return *parts_->Search;
}

const TListFooter& TListForm::Footer() const
{
    return *parts_->Footer;
}

TListLabels* TListForm::Labels() const
{
    return parts_->Labels.get();
}

TRecordCard* TListForm::Card() const
{
    return card_;
}

void TListForm::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* band = new TSmartPanel_TRV(this);
    band->SetGround(TSmartPanel_TRV::gBand);
    auto* bandRow = new QHBoxLayout(band);
    bandRow->setContentsMargins(Look::Margin, Look::Unit, Look::Margin, Look::Unit);
    parts_->Search = new TGeneral_Search_Frame(band);
    bandRow->addWidget(parts_->Search);
    bandRow->addStretch(1);
    parts_->Grid = new TSmartDBGrid_TRV(this);
    parts_->Footer = new TListFooter(parts_->DataSet, this);
    column->addWidget(band);
    parts_->Body = new QHBoxLayout;
    parts_->Body->addWidget(parts_->Grid, 1);
    column->addLayout(parts_->Body, 1);
    column->addWidget(parts_->Footer);
}

void TListForm::ConnectData()
{
    TParts& parts = *parts_;
    parts.DataSet.SetConnection(&host_->Connection());
    parts.DataSet.SetSource(list_.Source);
    parts.Source.SetDataSet(&parts.DataSet);
    parts.Grid->SetColumns(list_.Columns);
    parts.Grid->SetDataSource(&parts.Source);
    parts.Grid->horizontalHeader()->setStretchLastSection(true);
    parts.Manager.Add(parts.Search->TarvaSearch_General);
    parts.Manager.SetDataSet(&parts.DataSet);
    connect(&parts.Manager, &TTarvaSearchManager::conditionChanged, this, &TListForm::ShowCondition);
    connect(&parts.DataSet, &TPagedDataSet::failed, this, &TListForm::ReportFailure);
}

void TListForm::ConnectLabels()
{
    TParts& parts = *parts_;
    parts.Labels = std::make_unique<TListLabels>(
        list_, TListSelection::TList{parts.DataSet, parts.Source, *parts.Grid, host_->Connection()}, *host_,
        this);
    auto* column = static_cast<QVBoxLayout*>(layout());
    column->insertWidget(1, &parts.Labels->Filters());
    parts.Body->addWidget(&parts.Labels->Panel());
    parts.Labels->Filters().AddTo(parts.Manager);
    connect(parts.Labels.get(), &TListLabels::written, this, &TListForm::Refresh);
    connect(&parts.Labels->Selection(), &TListSelection::changed, this, &TListForm::ShowSelection);
    // What is no longer listed would be written to unseen.
    connect(&parts.Manager, &TTarvaSearchManager::conditionChanged, parts.Grid,
            &TSmartDBGrid_TRV::ClearMarks);
    FormParts::OnKey(this, Qt::Key_F8, [this] { parts_->Labels->TogglePanel(); });
    FormParts::OnKey(this, Qt::Key_F9, [this] { parts_->Labels->ToggleFilters(); });
}

void TListForm::ConnectKeys()
{
    TParts& parts = *parts_;
    parts.Keys =
        new TListKeys({parts.Search->Search_EDT, parts.Search->SearchCost_EDT, parts.Search->SearchDigit_EDT},
                      parts.Grid, this);
    connect(parts.Keys, &TListKeys::rowChosen, this, &TListForm::OpenCard);
    connect(parts.Keys, &TListKeys::gridEntered, this, &TListForm::SelectFirstRow);
    parts.Grid->OnDblClick = [this](QObject* /*Sender*/) { OpenCard(); };
    FormParts::OnKey(this, Qt::Key_F10, &TListForm::FocusSearchField);
    FormParts::OnKey(this, Qt::Key_F7, &TListForm::ShowSortMenu);
    FormParts::OnKey(this, Qt::Key_F5, &TListForm::Refresh);
    FormParts::OnKey(this, Qt::Key_Escape, &TListForm::ClearSearch);
}

void TListForm::StartSearch()
{
    TParts& parts = *parts_;
    TTarvaSearch& criterion = *parts.Search->TarvaSearch_General;
    criterion.SearchItems.Clear();
    for (const TSearchItem& item : qAsConst(list_.SearchItems))
        criterion.SearchItems.Add(item);
    const int field = host_->Settings().Value(SettingKey(QStringLiteral("Field")), 0).toInt();
    criterion.SetItemIndex(field >= 0 && field < criterion.SearchItems.Count() ? field : 0);
    parts.Search->Refrenc_SearchManager = &parts.Manager;
    // The card opens from the event loop, when the frame has brought its own state in order.
    parts.Search->doselection = [this] {
        QMetaObject::invokeMethod(this, &TListForm::OpenCard, Qt::QueuedConnection);
    };
    parts.Search->init();
    ShowCondition();
}

QString TListForm::SettingKey(const QString& name) const
{
    return QStringLiteral("Lists/%1/%2").arg(list_.Key, name);
}

void TListForm::RestoreState()
{
    const THostSettings& settings = host_->Settings();
    parts_->Grid->RestoreLayout(settings.Value(SettingKey(QStringLiteral("Layout"))).toByteArray());
    const QString field = settings.Value(SettingKey(QStringLiteral("Order")), list_.OrderField).toString();
    const bool known = list_.Source.Fields.contains(field);
    const bool descending = settings.Value(SettingKey(QStringLiteral("Descending")), false).toBool();
    parts_->DataSet.SetOrder(known ? field : list_.OrderField,
                             descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    if (parts_->Labels != nullptr)
        parts_->Labels->Restore(settings.Value(SettingKey(QStringLiteral("Labels"))).toByteArray());
}

void TListForm::SaveState() const
{
    THostSettings& settings = host_->Settings();
    settings.SetValue(SettingKey(QStringLiteral("Layout")), parts_->Grid->SaveLayout());
    settings.SetValue(SettingKey(QStringLiteral("Order")), parts_->DataSet.OrderField());
    settings.SetValue(SettingKey(QStringLiteral("Descending")),
                      parts_->DataSet.Order() == Qt::DescendingOrder);
    if (parts_->Labels != nullptr)
        settings.SetValue(SettingKey(QStringLiteral("Labels")), parts_->Labels->State());
    settings.SetValue(SettingKey(QStringLiteral("Field")), parts_->Search->TarvaSearch_General->ItemIndex());
}

void TListForm::Refresh()
{
    if (parts_->DataSet.Active())
        parts_->DataSet.Refresh();
    else
        parts_->DataSet.Open();
    if (parts_->Labels != nullptr && !host_->Connection().IsLost())
        parts_->Labels->ReadPalette();
}

void TListForm::ReportFailure(const QString& message, const QString& serverMessage)
{
    auto* application = qobject_cast<THostApplication*>(qApp);
    if (application == nullptr)
        return;
    // A lost connection is opened again only when the user says so; reading again does it.
    const QPointer<TListForm> form(this);
    application->Report({message, serverMessage, false, [form] {
                             if (form != nullptr)
                                 form->Refresh();
                         }});
}

void TListForm::ShowCondition()
{
    const QString words = parts_->Manager.ConditionInWords();
    parts_->Footer->SetConditionInWords(words.isEmpty() ? QStringLiteral("همهٔ %1").arg(list_.Title) : words);
    parts_->Grid->SetEmptyText(
        words.isEmpty()
            ? QStringLiteral("این فهرست هنوز ردیفی ندارد.")
            : QStringLiteral(
                  "هیچ ردیفی با این جستجو جور نیست. برای دیدن همهٔ ردیف‌ها کلید %1 را بزنید.")
                  .arg(PersianText::Isolated(QStringLiteral("Escape"))));
}

void TListForm::ShowSelection()
{
    parts_->Footer->SetMarkedCount(parts_->Labels->Selection().MarkedCount());
}

void TListForm::FocusSearchField()
{
    parts_->Search->Search_CMB->setFocus(Qt::ShortcutFocusReason);
}

void TListForm::FocusSearchEdit()
{
    parts_->Keys->FocusEdit();
}

void TListForm::ClearSearch()
{
    if (parts_->Labels != nullptr && parts_->Labels->ClearMarks())
        return;
    parts_->Search->Clear();
    if (parts_->Labels != nullptr)
        parts_->Labels->Filters().Clear();
    FocusSearchEdit();
}

void TListForm::SelectFirstRow()
{
    if (parts_->DataSet.RecNo() == 0 && parts_->DataSet.RecordCount() > 0)
        parts_->DataSet.First();
}

void TListForm::OpenCard()
{
    if (card_ != nullptr || parts_->Manager.DataSet()->IsEmpty())
        return;
    SelectFirstRow();
    if (OnOpenRecord) {
        OnOpenRecord();
        return;
    }
    card_ = new TRecordCard(parts_->Labels != nullptr ? parts_->Labels->CardDescription() : list_,
                            parts_->DataSet, this);
    card_->setAttribute(Qt::WA_DeleteOnClose);
    card_->open();
}

void TListForm::SetSource(const TPagedSource& source)
{
    TPagedDataSet& dataSet = parts_->DataSet;
    const QString order = dataSet.OrderField();
    const Qt::SortOrder direction = dataSet.Order();
    list_.Source = source;
    dataSet.SetSource(source);
    dataSet.SetOrder(order, direction);
    dataSet.Open();
}

void TListForm::ShowSortMenu()
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* columns = new QActionGroup(menu);
    for (const TGridColumn& column : qAsConst(list_.Columns)) {
        QAction* action = menu->addAction(column.Title);
        action->setCheckable(true);
        columns->addAction(action);
        action->setChecked(column.FieldName == parts_->DataSet.OrderField());
        connect(action, &QAction::triggered, this, [this, field = column.FieldName] { OrderBy(field); });
    }
    const QWidget* header = parts_->Grid->horizontalHeader();
    menu->popup(header->mapToGlobal(header->rect().bottomRight()) - QPoint(menu->sizeHint().width(), 0));
}

void TListForm::OrderBy(const QString& field)
{
    const bool turn = field == parts_->DataSet.OrderField() && parts_->DataSet.Order() == Qt::AscendingOrder;
    parts_->DataSet.SetOrder(field, turn ? Qt::DescendingOrder : Qt::AscendingOrder);
}
