#include "RecordDetails.h"

#include "BackgroundTask.h"
#include "KeyTip.h"
#include "ListDetail_FRAME_UNT.h"
#include "ListForm.h"
#include "Look.h"
#include "NxExpandPanel.h"
#include "ReferenceHost.h"
#include "SmartButton_TRV.h"
#include "SmartDetailView_TRV.h"

#include <QHBoxLayout>
#include <QShortcut>

namespace {

constexpr int restOnRecord = 150; // milliseconds

} // namespace

TRecordDetails::TRecordDetails(TListForm& list, TReferenceHost& host)
    : QWidget(&list), list_(&list), host_(&host),
      frame_(new TListDetail_FRAME(this)), views_{frame_->DetailView_Fixed_SDV,
                                                  frame_->DetailView_Large_Top_SDV,
                                                  frame_->DetailView_Small_Top_SDV,
                                                  frame_->DetailView_Large_Bottom_SDV,
                                                  frame_->DetailView_Small_Bottom_SDV},
      facts_(RecordFacts::Of(list.Description().Key)), rows_(&list.DataSet()),
      thread_(std::make_unique<TQueryThread>(host.Connection().Clone()))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(frame_, 1);
    auto* page = static_cast<QBoxLayout*>(list.layout());
    page->insertWidget(page->count() - 1, this);
    source_.SetDataSet(rows_);
    FillViews();
    RestoreState();
    pause_.setSingleShot(true);
    pause_.setInterval(restOnRecord);
    connect(&pause_, &QTimer::timeout, this, &TRecordDetails::Ask);
    connect(&source_, &TDataSource::dataChanged, this, &TRecordDetails::FollowRow);
    connect(&source_, &TDataSource::scrolled, this, &TRecordDetails::FollowRow);
    connect(rows_, &TPagedDataSet::rowsArrived, this, &TRecordDetails::FollowRow);
    connect(thread_.get(), &TQueryThread::answered, this, [this] {
        if (const TQueryThread::TAnswer answer = thread_->TakeAnswer())
            answer();
    });
    auto* shortcut = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_1), &list, nullptr, nullptr,
                                   Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, frame_, &TListDetail_FRAME::CollapseOrExpand);
}

TRecordDetails::~TRecordDetails() = default;

bool TRecordDetails::IsBusy() const
{
    return pause_.isActive() || thread_->IsBusy();
}

void TRecordDetails::AddAction(const QString& caption, const QKeySequence& key,
                               const std::function<void()>& action)
{
    auto* button = new TSmartButton_TRV(this);
    button->setText(caption);
    button->setToolTip(KeyTip::Of(QString(caption).remove(u'&'), key.toString()));
    button->setFixedHeight(Look::ControlHeight);
    button->setFocusPolicy(Qt::TabFocus);
    button->OnClick = [action](QObject*) { action(); };
    // Off the window's edge.
    layout()->setContentsMargins(Look::Margin, 0, 0, 0);
    layout()->addWidget(button);
    layout()->setAlignment(button, Qt::AlignTop);
    auto* shortcut = new QShortcut(key, list_, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, button, &TSmartButton_TRV::Click);
}

void TRecordDetails::FillViews()
{
    for (const TRecordFact& fact : qAsConst(facts_)) {
        TDetailItem item{fact.Caption, {}, fact.Kind};
        if (fact.InList)
            item.FieldName = fact.Name;
        View(fact.Place)->AddItem(item);
    }
    for (TSmartDetailView_TRV* view : views_)
        view->SetDataSource(&source_);
    frame_->Reassgin();
}

void TRecordDetails::RestoreState()
{
    THostSettings& settings = host_->Settings();
    frame_->MoreDetail_XPNL->SetExpanded(
        settings.Value(SettingKey(QStringLiteral("Expanded")), false).toBool());
    connect(frame_->MoreDetail_XPNL, &TNxExpandPanel::expandedChanged, this, [this](bool expanded) {
        host_->Settings().SetValue(SettingKey(QStringLiteral("Expanded")), expanded);
        FollowRow();
    });
    for (int place = 0; place < Places; ++place) {
        const QString key = SettingKey(QStringLiteral("Item%1").arg(place));
        const int index = settings.Value(key, 0).toInt();
        View(place)->SetItemIndex(index < View(place)->ItemCount() ? index : 0);
        connect(View(place), &TSmartDetailView_TRV::itemChosen, this,
                [this, key](int chosen) { host_->Settings().SetValue(key, chosen); });
    }
}

QString TRecordDetails::SettingKey(const QString& name) const
{
    return QStringLiteral("Lists/%1/Details/%2").arg(list_->Description().Key, name);
}

void TRecordDetails::FollowRow()
{
    for (TSmartDetailView_TRV* view : views_)
        view->UpdateValue();
    // What nobody sees is not read.
    if (rows_ == nullptr || !frame_->MoreDetail_XPNL->Expanded())
        return;
    const int code = rows_->RecNo() > 0 ? rows_->CurrentKey().toInt() : 0;
    if (code == shownCode_)
        return;
    shownCode_ = code;
    thread_->Abandon();
    ShowValues({}, false);
    if (code != 0)
        pause_.start();
}

void TRecordDetails::ReadAgain()
{
    shownCode_ = 0;
    FollowRow();
}

void TRecordDetails::Ask()
{
    const QString key = list_->Description().Key;
    const auto read = [this, key, code = shownCode_, user = host_->Settings().UserInfo().Code](
                          TADOConnection& connection) -> TQueryThread::TAnswer {
        const bool hidesPrices = RecordFacts::HidesPurchasePrices(connection, user);
        return [this, hidesPrices, values = RecordFacts::Read(connection, key, code)] {
            ShowValues(values, hidesPrices);
        };
    };
    // The list itself tells of a lost connection; what is missing here stays empty until the next record.
    thread_->Begin(BackgroundTask::Guarded(
        read, [this](const QString&, const QString&) { shownCode_ = 0; }, true));
}

void TRecordDetails::ShowValues(const QHash<QString, QVariant>& values, bool hidesPrices)
{
    std::array<int, Places> next{};
    for (const TRecordFact& fact : qAsConst(facts_)) {
        const int index = next.at(static_cast<size_t>(fact.Place))++;
        if (fact.InList)
            continue;
        View(fact.Place)->SetValue(index, values.value(fact.Name));
        View(fact.Place)->SetDenied(index, fact.IsPurchasePrice && hidesPrices);
    }
}
