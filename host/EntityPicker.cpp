#include "EntityPicker.h"

#include "DisplayText.h"
#include "General_Search_UNT.h"
#include "HostApplication.h"
#include "HostServices.h"
#include "HostSettingsFile.h"
#include "Look.h"
#include "PersianText.h"
#include "SmartButton_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "TarvaSearchManager.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int firstRows = 14; ///< in sight where no size is kept
constexpr int busyTextAfter = 300;
constexpr int screenMargin = 64;

QFont SmallFont()
{
    QFont font;
    font.setPixelSize(Look::SmallFont().pixelSize());
    return font;
}

QSize BoundToScreen(const QSize& size, const QWidget& widget)
{
    const QSize room = widget.screen()->availableSize() - QSize(screenMargin, screenMargin);
    return size.boundedTo(room.expandedTo(widget.minimumSizeHint()));
}

bool IsPickKey(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// Keys of the search edit that belong to the list.
bool IsListKey(const QKeyEvent& key)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return modifiers == Qt::NoModifier;
    case Qt::Key_Home:
    case Qt::Key_End:
        return modifiers == Qt::ControlModifier;
    default:
        return false;
    }
}

} // namespace

struct TEntityPicker::TParts
{
    TPagedDataSet DataSet;
    TDataSource Source;
    TTarvaSearchManager Manager;
    QTimer BusyDelay;
    TGeneral_Search_Frame* Search = nullptr;
    TSmartDBGrid_TRV* Grid = nullptr;
    TSmartLabel_TRV* Count = nullptr;
};

TEntityPicker::TEntityPicker(const TEntityChoice& choice, TADOConnection& connection, THostSettings& settings,
                             QWidget* parent)
    : QDialog(parent), choice_(choice), settings_(&settings), parts_(std::make_unique<TParts>())
{
    parts_->DataSet.SetConnection(&connection);
    parts_->DataSet.SetSource(choice_.List->Source(choice_.Argument.Restrictions, choice_.All));
    setObjectName(QStringLiteral("EntityPicker"));
    setWindowTitle(QStringLiteral("انتخاب %1").arg(choice_.List->Title));
    setLayoutDirection(Qt::RightToLeft);
    setModal(true);
    setSizeGripEnabled(true);
    Lay();
    ConnectData();
    RestoreState();
    StartSearch();
}

TEntityPicker::~TEntityPicker()
{
    // The controls outlive parts_, with the data set and the manager that they refer to.
    parts_->Search->Refrenc_SearchManager = nullptr;
    parts_->Search->doselection = nullptr;
    parts_->Source.SetDataSet(nullptr);
    parts_->DataSet.disconnect(this);
    parts_->Manager.disconnect(this);
}

TPagedDataSet& TEntityPicker::DataSet()
{
    return parts_->DataSet;
}

TSmartDBGrid_TRV& TEntityPicker::Grid()
{
    return *parts_->Grid;
}

TGeneral_Search_Frame& TEntityPicker::SearchFrame()
{
    return *parts_->Search;
}

QString TEntityPicker::CountText() const
{
    return parts_->Count->Caption();
}

void TEntityPicker::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(NewBand());
    parts_->Grid = new TSmartDBGrid_TRV(this);
    // The caret is at home in the search edit.
    parts_->Grid->setFocusPolicy(Qt::NoFocus);
    parts_->Grid->setAccessibleName(windowTitle());
    column->addWidget(parts_->Grid, 1);
    column->addWidget(NewFooter());
}

QWidget* TEntityPicker::NewBand()
{
    auto* band = new TSmartPanel_TRV(this);
    band->SetGround(TSmartPanel_TRV::gBand);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(Look::Margin, Look::Unit, Look::Margin, Look::Unit);
    parts_->Search = new TGeneral_Search_Frame(band);
    row->addWidget(parts_->Search);
    row->addStretch(1);
    return band;
}

QWidget* TEntityPicker::NewFooter()
{
    auto* footer = new QWidget(this);
    auto* row = new QHBoxLayout(footer);
    row->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    row->setSpacing(Look::GroupGap);
    const auto addLabel = [&](int stretch) {
        auto* label = new TSmartLabel_TRV(footer);
        label->setFont(SmallFont());
        row->addWidget(label, stretch);
        return label;
    };
    parts_->Count = addLabel(0);
    addLabel(1)->SetCaption(QStringLiteral("%1 همین ردیف را برمی‌گزیند")
                                .arg(PersianText::Isolated(QStringLiteral("Enter"))));
    const auto addButton = [&](TSmartButton_TRV::TButtonType type, const QString& caption) {
        auto* button = new TSmartButton_TRV(footer);
        button->setText(caption);
        button->SetButtonType(type);
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    addButton(TSmartButton_TRV::btOk, QStringLiteral("انتخاب"))->OnClick = [this](QObject*) { PickFound(); };
    addButton(TSmartButton_TRV::btCancel, QStringLiteral("انصراف"))->OnClick = [this](QObject*) { reject(); };
    return footer;
}

void TEntityPicker::ConnectData()
{
    TParts& parts = *parts_;
    parts.Source.SetDataSet(&parts.DataSet);
    parts.Grid->SetColumns(choice_.List->GridColumns());
    parts.Grid->SetDataSource(&parts.Source);
    parts.Grid->horizontalHeader()->setStretchLastSection(true);
    parts.Grid->OnDblClick = [this](QObject*) { Pick(); };
    parts.Manager.Add(parts.Search->TarvaSearch_General);
    parts.Manager.SetDataSet(&parts.DataSet);
    parts.BusyDelay.setSingleShot(true);
    parts.BusyDelay.setInterval(busyTextAfter);
    connect(&parts.BusyDelay, &QTimer::timeout, parts.Count,
            [this] { parts_->Count->SetCaption(QStringLiteral("در حال جستجو…")); });
    connect(&parts.Manager, &TTarvaSearchManager::rebuilt, this, &TEntityPicker::ShowEmptyText);
    connect(&parts.DataSet, &TPagedDataSet::countChanged, this, &TEntityPicker::ShowCount);
    connect(&parts.DataSet, &TPagedDataSet::dataChanged, this, &TEntityPicker::ShowCount);
    connect(&parts.DataSet, &TPagedDataSet::busyChanged, this, [this](bool busy) {
        if (busy) {
            parts_->BusyDelay.start();
            return;
        }
        parts_->BusyDelay.stop();
        ShowCount();
    });
    connect(&parts.DataSet, &TPagedDataSet::failed, this, &TEntityPicker::ReportFailure);
}

void TEntityPicker::StartSearch()
{
    TParts& parts = *parts_;
    TTarvaSearch& criterion = *parts.Search->TarvaSearch_General;
    criterion.SearchItems.Clear();
    const QVector<TSearchItem> items = choice_.List->SearchItems();
    for (const TSearchItem& item : items)
        criterion.SearchItems.Add(item);
    criterion.SetItemIndex(0);
    parts.Search->Refrenc_SearchManager = &parts.Manager;
    // From the event loop, when the frame has brought its own state in order.
    parts.Search->doselection = [this] {
        QMetaObject::invokeMethod(this, &TEntityPicker::FinishSearch, Qt::QueuedConnection);
    };
    parts.Search->init();
    parts.Search->Search_EDT->installEventFilter(this);
    parts.Search->Search_EDT->setFocus();
    auto* field = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(field, &QShortcut::activated, parts.Search->Search_CMB, qOverload<>(&QWidget::setFocus));
}

QString TEntityPicker::SettingKey(const QString& name) const
{
    return QStringLiteral("Pickers/%1/%2").arg(static_cast<int>(choice_.List->Part)).arg(name);
}

void TEntityPicker::RestoreState()
{
    TParts& parts = *parts_;
    parts.Grid->RestoreLayout(settings_->Value(SettingKey(QStringLiteral("Layout"))).toByteArray());
    const QString field = settings_->Value(SettingKey(QStringLiteral("Order"))).toString();
    const bool descending = settings_->Value(SettingKey(QStringLiteral("Descending")), false).toBool();
    if (parts.DataSet.Source().Fields.contains(field))
        parts.DataSet.SetOrder(field, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    int width = parts.Grid->verticalScrollBar()->sizeHint().width();
    const QVector<TGridColumn> columns = parts.Grid->Columns();
    for (const TGridColumn& column : columns)
        width += column.Width;
    const QSize first(width, sizeHint().height() + firstRows * Look::GridRowHeight -
                                 parts.Grid->sizeHint().height());
    const QSize kept = settings_->Value(SettingKey(QStringLiteral("Size"))).toSize();
    resize(BoundToScreen((kept.isValid() ? kept : first).expandedTo(minimumSizeHint()), *this));
}

void TEntityPicker::SaveState() const
{
    const TParts& parts = *parts_;
    settings_->SetValue(SettingKey(QStringLiteral("Layout")), parts.Grid->SaveLayout());
    settings_->SetValue(SettingKey(QStringLiteral("Order")), parts.DataSet.OrderField());
    settings_->SetValue(SettingKey(QStringLiteral("Descending")),
                        parts.DataSet.Order() == Qt::DescendingOrder);
    settings_->SetValue(SettingKey(QStringLiteral("Size")), size());
}

void TEntityPicker::StartReading()
{
    const std::optional<int>& current = choice_.Argument.CurrentCode;
    parts_->DataSet.OpenAt(current ? QVariant(*current) : QVariant());
    ShowEmptyText();
}

void TEntityPicker::done(int result)
{
    SaveState();
    // A search that still waits for the end of the typing would keep the caller waiting.
    parts_->Search->doselection = nullptr;
    parts_->Search->SetRet_press(true);
    QDialog::done(result);
}

// What was typed counts, even where it is not in force yet; the search ends by picking then.
void TEntityPicker::PickFound()
{
    pending_.clear();
    if (!parts_->Search->Filter_is_done()) {
        parts_->Search->SetRet_press(true);
        return;
    }
    parts_->Manager.Flush();
    if (!parts_->DataSet.IsEmpty())
        Pick();
}

// Waits for a row that has not arrived only: a row that was clicked must not give way to those of a search
// under way.
void TEntityPicker::Pick()
{
    if (code_ != 0 || !isVisible())
        return;
    const QPointer<TEntityPicker> guard(this);
    const bool isHere = parts_->DataSet.CurrentKey().isValid() || parts_->DataSet.WaitForCurrentRow();
    if (!guard || !isHere)
        return;
    code_ = parts_->DataSet.CurrentKey().toInt();
    if (code_ != 0)
        accept();
}

// What was pressed while the search was under way now meets the rows that it was meant for.
void TEntityPicker::FinishSearch()
{
    const auto pressed = std::exchange(pending_, {});
    if (pressed.empty())
        Pick();
    for (const auto& key : pressed) {
        if (IsPickKey(*key))
            Pick();
        else
            Move(*key);
    }
}

bool TEntityPicker::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool found = parts_->Search->Filter_is_done();
    if (IsListKey(key) && found) {
        Move(key);
        return true;
    }
    if (!found && (IsListKey(key) || (IsPickKey(key) && !pending_.empty()))) {
        pending_.emplace_back(key.clone());
        parts_->Search->SetRet_press(true);
        return true;
    }
    pending_.clear();
    return false;
}

void TEntityPicker::Move(const QKeyEvent& key)
{
    const std::unique_ptr<QKeyEvent> stroke(key.clone());
    QCoreApplication::sendEvent(parts_->Grid, stroke.get());
}

void TEntityPicker::keyPressEvent(QKeyEvent* event)
{
    if (IsPickKey(*event))
        PickFound();
    else
        QDialog::keyPressEvent(event);
}

void TEntityPicker::ShowEmptyText()
{
    parts_->Grid->SetEmptyText(ReasonOfEmptiness());
}

QString TEntityPicker::ReasonOfEmptiness() const
{
    const QString kind = choice_.List->Title;
    const QString words = parts_->Manager.ConditionInWords();
    if (!words.isEmpty())
        return QStringLiteral("هیچ ردیفی نیست که %1. عبارت جستجو را پاک یا اصلاح کنید.").arg(words);
    if (!choice_.Argument.Restrictions.isEmpty())
        return QStringLiteral(
                   "در این جا تنها برخی از ردیف‌های «%1» پذیرفته می‌شود و هیچ ردیفی "
                   "چنین نیست.")
            .arg(kind);
    if (choice_.List->ShowsOnlyActive({}, choice_.All))
        return QStringLiteral(
                   "برای «%1» هیچ ردیف فعالی نیست: هنوز تعریف نشده یا همه غیرفعال‌اند.")
            .arg(kind);
    return QStringLiteral("برای «%1» هنوز ردیفی تعریف نشده است.").arg(kind);
}

void TEntityPicker::ShowCount()
{
    TParts& parts = *parts_;
    if (!parts.DataSet.Active())
        parts.Count->Clear();
    else if (parts.DataSet.CountIsExact())
        parts.Count->SetCaption(DisplayText::RowCount(parts.DataSet.RecordCount()));
    else
        parts.Count->SetCaption(QStringLiteral("در حال شمارش…"));
}

void TEntityPicker::ReportFailure(const QString& message, const QString& serverMessage)
{
    auto* application = qobject_cast<THostApplication*>(qApp);
    if (application == nullptr) {
        QMetaObject::invokeMethod(
            this, [message] { Host().Messages.ShowMessage(message); }, Qt::QueuedConnection);
        return;
    }
    const QPointer<TEntityPicker> picker(this);
    application->Report({message, serverMessage, false, [picker] {
                             if (picker != nullptr)
                                 picker->parts_->DataSet.Refresh();
                         }});
}
