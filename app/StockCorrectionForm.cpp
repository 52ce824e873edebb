#include "StockCorrectionForm.h"

#include "Balloon.h"
#include "Detail_Button_UNT.h"
#include "DisplayText.h"
#include "FormParts.h"
#include "KeyTip.h"
#include "Look.h"
#include "MessageDialog.h"
#include "PersianText.h"
#include "QueryOpening.h"
#include "ReferenceHost.h"
#include "ServiceRefused.h"
#include "SmartButton_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "StockCorrectionEntry.h"

#include <QDateTime>
#include <QHeaderView>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr QSize correctionFormSize{760, 480};

} // namespace

TStockCorrectionForm::TStockCorrectionForm(TReferenceHost& host, int kala, const QString& name,
                                           QWidget* parent)
    : QDialog(parent), host_(&host), kala_(kala), stock_(new TSmartLabel_TRV(this)),
      grid_(new TSmartDBGrid_TRV(this)), buttons_(new TDetial_Grid_Frame(this)),
      entry_(new TStockCorrectionEntry(host.Settings().SettingRecord().IsGregorian(), host.Clock().Today(),
                                       this))
{
    setObjectName(QStringLiteral("StockCorrectionForm"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("اصلاح موجودی"));
    AskDelete = [this] {
        TMessageDialog box(
            TMessageDialog::TKind::Question,
            QStringLiteral(
                "این اصلاح حذف شود؟ موجودی کالا به اندازهٔ آن برمی‌گردد."),
            {TMessageDialog::YesButton(), TMessageDialog::NoButton()}, this);
        box.SetDefaultButton(1);
        return box.Ask() == TMessageDialog::YesButton().Result;
    };
    Lay(name);
    ConnectButtons();
    Read();
    resize(correctionFormSize);
    StopTyping();
}

TStockCorrectionForm::~TStockCorrectionForm()
{
    // The grid outlives the source.
    grid_->SetDataSource(nullptr);
}

void TStockCorrectionForm::Lay(const QString& name)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, Look::Margin);
    column->setSpacing(0);
    auto* heading = new TSmartLabel_TRV(this);
    heading->SetCaption(QStringLiteral("اصلاح موجودی «%1»").arg(name));
    stock_->SetOnBand(true);
    FormParts::AddHeading(column, heading)->addWidget(stock_);
    grid_->SetColumns({
        {QStringLiteral("CorrectionDate"), QStringLiteral("تاریخ"), 110, TGridColumn::ckDate},
        {QStringLiteral("Quantity"), QStringLiteral("مقدار"), 120, TGridColumn::ckNumber},
        {QStringLiteral("Sharh"), QStringLiteral("شرح"), 300},
    });
    grid_->horizontalHeader()->setStretchLastSection(true);
    grid_->SetEmptyText(
        QStringLiteral("موجودی این کالا هنوز اصلاح نشده است. برای اصلاح «سطر جدید» را بزنید."));
    column->addWidget(grid_, 1);
    column->addWidget(buttons_);
    auto* margin = new QVBoxLayout;
    margin->setContentsMargins(Look::Margin, 0, Look::Margin, 0);
    margin->addWidget(entry_);
    column->addLayout(margin);
}

void TStockCorrectionForm::ConnectButtons()
{
    buttons_->NewRecord_BTN->OnClick = [this](QObject*) { Type(0); };
    buttons_->EditRecord_BTN->OnClick = [this](QObject*) { Type(CurrentId()); };
    buttons_->DeleteRecord_BTN->OnClick = [this](QObject*) { Delete(); };
    connect(entry_, &TStockCorrectionEntry::accepted, this, &TStockCorrectionForm::AcceptRow);
    connect(entry_, &TStockCorrectionEntry::rejected, this, &TStockCorrectionForm::StopTyping);
    const auto onKey = [this](Qt::Key key, TSmartButton_TRV* button) {
        auto* shortcut = new QShortcut(QKeySequence(key), grid_, nullptr, nullptr, Qt::WidgetShortcut);
        button->setToolTip(KeyTip::Of(button->text(), shortcut->key().toString()));
        connect(shortcut, &QShortcut::activated, button, &TSmartButton_TRV::Click);
    };
    onKey(Qt::Key_Insert, buttons_->NewRecord_BTN);
    onKey(Qt::Key_F2, buttons_->EditRecord_BTN);
    onKey(Qt::Key_Delete, buttons_->DeleteRecord_BTN);
    rows_.AfterOpen = [this](QObject*) { buttons_->SetEnableButton(&rows_); };
}

void TStockCorrectionForm::Read()
{
    rows_.Close();
    OpenQuery(rows_, host_->Connection(),
              QStringLiteral("SELECT Id, CorrectionDate, Quantity, Sharh FROM dbo.StockCorrections "
                             "WHERE KalaCode = ? ORDER BY CorrectionDate, Id"),
              {kala_});
    if (grid_->DataSource() == nullptr) {
        source_.SetDataSet(&rows_);
        grid_->SetDataSource(&source_);
    }
    TADOQuery goods;
    OpenQuery(goods, host_->Connection(),
              QStringLiteral("SELECT Stock, UnitName FROM dbo.kala WHERE Code = ?"), {kala_});
    if (!goods.IsEmpty())
        stock_->SetCaption(QStringLiteral("موجودی: %1 %2")
                               .arg(DisplayText::FieldValue(goods.FieldValue(0), TGridColumn::ckNumber),
                                    goods.Field(1)->AsString()));
}

int TStockCorrectionForm::CurrentId()
{
    return rows_.RecNo() > 0 ? rows_.FieldByName(QStringLiteral("Id"))->AsInteger() : 0;
}

void TStockCorrectionForm::Type(int id)
{
    typedId_ = id;
    if (id == 0) {
        entry_->Clear();
    } else {
        TStockCorrection correction;
        correction.Date = rows_.FieldByName(QStringLiteral("CorrectionDate"))->AsString();
        correction.Quantity = rows_.FieldByName(QStringLiteral("Quantity"))->AsString();
        correction.Text = rows_.FieldByName(QStringLiteral("Sharh"))->AsString();
        entry_->Show(correction);
    }
    entry_->show();
    entry_->FocusFirst();
}

void TStockCorrectionForm::StopTyping()
{
    Balloon::Hide();
    entry_->hide();
    grid_->setFocus();
}

void TStockCorrectionForm::AcceptRow()
{
    TStockCorrection correction = entry_->Typed();
    if (correction.Date.isEmpty()) {
        Balloon::Show(&entry_->Date(), QStringLiteral("تاریخ را کامل و درست بنویسید."));
        return;
    }
    correction.Kala = kala_;
    correction.UserCode = host_->Settings().UserInfo().Code;
    correction.Moment = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    Write(
        [&](TStockLedger& ledger) {
            return typedId_ == 0 ? ledger.Correct(correction) : ledger.Change(typedId_, correction);
        },
        &entry_->Quantity());
}

void TStockCorrectionForm::Delete()
{
    const int id = CurrentId();
    if (id != 0 && AskDelete())
        Write([&](TStockLedger& ledger) { return ledger.Remove(id, host_->Settings().UserInfo().Code); },
              grid_);
}

void TStockCorrectionForm::Write(const std::function<int(TStockLedger& ledger)>& work, QWidget* control)
{
    try {
        TStockLedger ledger(host_->Connection());
        const int marked = work(ledger);
        StopTyping();
        Read();
        Q_EMIT corrected(marked);
    } catch (const EServiceRefused& refused) {
        Balloon::Show(control, refused.Message());
    }
}

void TStockCorrectionForm::reject()
{
    if (entry_->isVisible())
        StopTyping();
    else
        QDialog::reject();
}
