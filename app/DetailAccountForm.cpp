#include "DetailAccountForm.h"

#include "Balloon.h"
#include "DetailAccountCard.h"
#include "FormParts.h"
#include "KeyTip.h"
#include "ListForm.h"
#include "Look.h"
#include "ReferenceHost.h"
#include "SmartButton_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartLabel_TRV.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int kindWidth = 220;

} // namespace

TDetailAccountForm::TDetailAccountForm(TReferenceHost& host, QWidget* parent)
    : TPage(parent), host_(&host), store_(host.Connection()), kind_(new TSmartComboBox_TRV(this)),
      list_(new TListForm(DetailAccountsList(0), host, this))
{
    setObjectName(QStringLiteral("DetailAccountForm"));
    Lay();
    kind_->OnChange = [this](QObject*) { ShowKind(); };
    list_->OnOpenRecord = [this] { OpenAccount(); };
    FormParts::OnKey(this, Qt::CTRL | Qt::Key_N, &TDetailAccountForm::NewAccount);
    FormParts::OnKey(this, Qt::Key_Insert, &TDetailAccountForm::NewAccount);
    FormParts::OnKey(this, Qt::Key_F3, [this] { kind_->setFocus(Qt::ShortcutFocusReason); });
}

TDetailAccountForm::~TDetailAccountForm()
{
    delete card_;
}

void TDetailAccountForm::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    row->setSpacing(Look::Margin);
    kind_->setObjectName(QStringLiteral("Kind_CMB"));
    kind_->setAccessibleName(QStringLiteral("نوع حساب"));
    kind_->setFixedSize(kindWidth, Look::ControlHeight);
    auto* create = FormParts::NewBarButton(this, QStringLiteral("New_BTN"), QStringLiteral("حساب تازه"));
    create->setToolTip(KeyTip::Of(create->text(), QStringLiteral("Ctrl+N")));
    create->setFocusPolicy(Qt::NoFocus);
    create->OnClick = [this](QObject*) { NewAccount(); };
    row->addWidget(FormParts::NewLabel(QStringLiteral("نوع &حساب:"), kind_));
    row->addWidget(kind_);
    row->addStretch(1);
    row->addWidget(create);
    column->addLayout(row);
    column->addWidget(list_, 1);
    QWidget::setTabOrder(kind_, list_);
}

void TDetailAccountForm::Enter()
{
    if (kind_->Count() == 0)
        FillKinds();
    list_->Enter();
}

void TDetailAccountForm::Reconnect()
{
    FillKinds();
    list_->Refresh();
}

void TDetailAccountForm::SaveState() const
{
    list_->SaveState();
}

QVector<TKeyHelp> TDetailAccountForm::Keys() const
{
    QVector<TKeyHelp> keys{
        {QStringLiteral("Ctrl+N  Insert"), QStringLiteral("حساب تازه")},
        {QStringLiteral("Enter"), QStringLiteral("در فهرست: باز کردن حساب برای اصلاح")},
        {QStringLiteral("F3"), QStringLiteral("رفتن به نوع حساب")},
        {QStringLiteral("F2  Ctrl+S"), QStringLiteral("در کارت حساب: ذخیره")},
    };
    for (const TKeyHelp& key : list_->Keys()) {
        if (key.Key != u"Enter")
            keys.append(key);
    }
    return keys;
}

TDetailAccountCard* TDetailAccountForm::Card() const
{
    return card_;
}

int TDetailAccountForm::Kind() const
{
    return kind_->ItemIndex() < 0 ? 0 : static_cast<int>(kind_->ItemObject(kind_->ItemIndex()));
}

void TDetailAccountForm::ChooseKind(int kind)
{
    for (int index = 0; index < kind_->Count(); ++index) {
        if (kind_->ItemObject(index) == kind)
            kind_->SetItemIndex(index);
    }
    ShowKind();
}

void TDetailAccountForm::FillKinds()
{
    const QVector<TNamedCode> kinds = store_.Kinds();
    const int chosen = Kind();
    kind_->Clear();
    for (const TNamedCode& kind : kinds)
        kind_->AddItem(kind.Name, kind.Code);
    kind_->SetItemIndex(kinds.isEmpty() ? -1 : 0);
    ChooseKind(chosen == 0 ? Kind() : chosen);
}

void TDetailAccountForm::ShowKind()
{
    list_->SetSource(DetailAccountsList(Kind()).Source);
}

void TDetailAccountForm::NewAccount()
{
    if (card_ == nullptr && Kind() != 0)
        OpenCard(new TDetailAccountCard(*host_, Kind(), this));
}

void TDetailAccountForm::OpenAccount()
{
    if (card_ != nullptr || !list_->DataSet().WaitForCurrentRow())
        return;
    const auto account = store_.Find(Kind(), list_->DataSet().CurrentKey().toInt());
    if (account)
        OpenCard(new TDetailAccountCard(*host_, *account, this));
    else
        list_->Refresh(); // another user has removed it
}

void TDetailAccountForm::OpenCard(TDetailAccountCard* card)
{
    card_ = card;
    card_->setAttribute(Qt::WA_DeleteOnClose);
    connect(card_, &TDetailAccountCard::saved, this, [this](const QString& sentence) {
        list_->Refresh();
        Balloon::Show(&list_->Grid(), sentence);
    });
    card_->open();
}
