#include "AccountPickerDialog.h"

#include "AccountChartPane.h"
#include "AccountDetailPane.h"
#include "AccountDetails.h"
#include "AccountLevels.h"
#include "HostSettingsFile.h"
#include "Look.h"
#include "MirroredTreeView.h"
#include "PersianText.h"
#include "QueryOpening.h"
#include "SmartButton_TRV.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr QSize sizeOfAllLevels(980, 560);
constexpr QSize sizeOfOneLevel(560, 520);
constexpr int chartCodeWidth = 130;

struct TWords
{
    QString Title;
    QString Key; ///< under which the dialog's state is kept in the settings
};

TWords WordsOf(TAccountPicking::TLevels levels)
{
    switch (levels) {
    case TAccountPicking::TotalsOnly:
        return {QStringLiteral("انتخاب حساب کل"), QStringLiteral("Totals")};
    case TAccountPicking::AssistantsOnly:
        return {QStringLiteral("انتخاب حساب معین"), QStringLiteral("Assistants")};
    case TAccountPicking::DetailsOnly:
        return {QStringLiteral("انتخاب حساب تفصیلی"), QStringLiteral("Details")};
    case TAccountPicking::AllLevels:
        break;
    }
    return {QStringLiteral("انتخاب حساب"), QStringLiteral("Accounts")};
}

/// The family stays that of the application, so that a switch of the digits reaches the text.
QFont RelativeFont(const QFont& wanted)
{
    QFont font(wanted);
    font.setResolveMask(QFont::SizeResolved | QFont::WeightResolved);
    return font;
}

} // namespace

TAccountPickerDialog::TAccountPickerDialog(TADOConnection& connection, THostSettings& settings,
                                           const TAccountPicking& picking, QWidget* parent)
    : QDialog(parent), settings_(&settings), picking_(picking)
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(WordsOf(picking_.Levels).Title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    picking_.Scope.Assistants = picking_.Levels != TAccountPicking::TotalsOnly;
    tree_.Read(connection, picking_.Scope);
    if (picking_.Levels == TAccountPicking::AssistantsOnly && !tree_.Has(TAccountNode::Assistant))
        tree_.Clear();
    ReadKinds(connection);
    chart_ = new TAccountChartPane(tree_, EmptyText(), this);
    details_ = new TAccountDetailPane(connection, this);
    Lay();
    Connect();
    RestoreState();
}

TAccountPickerDialog::~TAccountPickerDialog()
{
    // The panes and the focus still tell what happens to them while they are destroyed.
    qApp->disconnect(this);
    chart_->disconnect(this);
    details_->disconnect(this);
}

void TAccountPickerDialog::ReadKinds(TADOConnection& connection)
{
    TADOQuery kinds;
    OpenQuery(kinds, connection, QStringLiteral("SELECT Code, Name FROM dbo.AccDetailTypes"));
    for (int row = 0; row < kinds.RecordCount(); ++row)
        kindNames_.insert(kinds.ValueAt(row, 0).toInt(), kinds.ValueAt(row, 1).toString());
}

void TAccountPickerDialog::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    column->setSpacing(Look::Margin);
    splitter_ = new QSplitter(this);
    splitter_->setChildrenCollapsible(false);
    splitter_->setHandleWidth(Look::Margin);
    splitter_->addWidget(chart_);
    splitter_->addWidget(details_);
    chart_->setVisible(picking_.Levels != TAccountPicking::DetailsOnly);
    details_->setVisible(UsesDetails());
    column->addWidget(splitter_, 1);
    path_ = new TSmartLabel_TRV(this);
    path_->setObjectName(QStringLiteral("Path"));
    path_->setFont(RelativeFont(Look::BoldFont()));
    path_->setTextFormat(Qt::PlainText);
    path_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    column->addWidget(path_);
    auto* footer = new QWidget(this);
    LayFooter(footer);
    column->addWidget(footer);
}

bool TAccountPickerDialog::UsesDetails() const
{
    return picking_.Levels == TAccountPicking::AllLevels || picking_.Levels == TAccountPicking::DetailsOnly;
}

void TAccountPickerDialog::LayFooter(QWidget* footer)
{
    auto* hint = new TSmartLabel_TRV(footer);
    hint->setFont(RelativeFont(Look::SmallFont()));
    hint->setTextFormat(Qt::PlainText);
    hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    const QString enter = PersianText::Isolated(QStringLiteral("Enter"));
    hint->SetCaption(
        picking_.Levels == TAccountPicking::AllLevels
            ? QStringLiteral(
                  "%1 همین ردیف را برمی‌گزیند؛ ← سطح پایین‌تر، → سطح بالاتر")
                  .arg(enter)
            : QStringLiteral("%1 همین ردیف را برمی‌گزیند").arg(enter));
    choose_ = new TSmartButton_TRV(footer);
    choose_->setText(QStringLiteral("انتخاب"));
    choose_->setDefault(true);
    auto* cancel = new TSmartButton_TRV(footer);
    cancel->setText(QStringLiteral("انصراف"));
    cancel->setAutoDefault(false);
    constexpr int buttonWidth = 88;
    for (TSmartButton_TRV* button : {choose_, cancel})
        button->setMinimumSize(buttonWidth, Look::ControlHeight);
    auto* row = new QHBoxLayout(footer);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Look::Margin);
    row->addWidget(hint, 1);
    row->addWidget(choose_);
    row->addWidget(cancel);
    connect(choose_, &QPushButton::clicked, this, &TAccountPickerDialog::Choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void TAccountPickerDialog::Connect()
{
    connect(chart_, &TAccountChartPane::currentMoved, this, &TAccountPickerDialog::FollowChart);
    connect(chart_, &TAccountChartPane::chosen, this, &TAccountPickerDialog::ChooseAccount);
    connect(chart_, &TAccountChartPane::deeper, this, &TAccountPickerDialog::GoDeeper);
    connect(details_, &TAccountDetailPane::currentMoved, this, &TAccountPickerDialog::ShowPath);
    connect(details_, &TAccountDetailPane::chosen, this, &TAccountPickerDialog::ChooseDetail);
    connect(details_, &TAccountDetailPane::back, this, [this] {
        if (chart_->isVisible())
            chart_->FocusList();
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
        if (now != nullptr && (chart_->isAncestorOf(now) || details_->isAncestorOf(now)))
            detailsAreFront_ = details_->isAncestorOf(now);
        ShowPath();
    });
}

void TAccountPickerDialog::Begin()
{
    chart_->Show(FirstPlace());
    if (const int place = chart_->Current(); place >= 0 && tree_.At(place).Level == TAccountNode::Total)
        chart_->View().expand(chart_->View().currentIndex());
    FollowChart();
    detailsAreFront_ =
        picking_.Levels == TAccountPicking::DetailsOnly || (picking_.FocusLevel >= 2 && details_->HasList());
    if (detailsAreFront_)
        details_->FocusList();
    else
        chart_->FocusList();
    ShowPath();
}

int TAccountPickerDialog::FirstPlace() const
{
    const THCSelectedCode& begin = picking_.Begin;
    const int total = tree_.Find(begin.Total, 0);
    if (total < 0)
        return tree_.Count() > 1 ? 1 : -1;
    if (picking_.Levels == TAccountPicking::AllLevels && picking_.FocusLevel == 0)
        return total;
    if (const int assistant = tree_.Find(begin.Total, begin.Assistant); assistant >= 0 && assistant != total)
        return assistant;
    const bool toFirst = picking_.Levels != TAccountPicking::DetailsOnly && tree_.HasChildren(total);
    return toFirst ? total + 1 : total;
}

void TAccountPickerDialog::FollowChart()
{
    const int place = chart_->Current();
    const QString reason = WhyNoDetails(place);
    if (!UsesDetails()) {
        ShowPath();
        return;
    }
    if (!reason.isNull()) {
        details_->ShowNothing(reason);
    } else {
        const THCSelectedCode codes = CodesOf(place);
        const TFloatingAccountsType kind =
            AccountLevels::DetailKind(tree_.At(place).DetailType, codes.Assistant);
        const THCSelectedCode& begin = picking_.Begin;
        const bool isBegin = codes.Total == begin.Total && codes.Assistant == begin.Assistant;
        details_->ShowKind(kind, kindNames_.value(static_cast<int>(kind)), isBegin ? begin.Detail : 0);
    }
    ShowPath();
}

THCSelectedCode TAccountPickerDialog::CodesOf(int place) const
{
    const TAccountNode& node = tree_.At(place);
    switch (node.Level) {
    case TAccountNode::Assistant:
        return {tree_.At(node.Parent).Code, node.Code, 0};
    case TAccountNode::Total:
        // A picker of details alone works for an assistant account that its caller answers for.
        return {node.Code, picking_.Levels == TAccountPicking::DetailsOnly ? picking_.Begin.Assistant : 0, 0};
    case TAccountNode::Group:
        break;
    }
    return {};
}

QString TAccountPickerDialog::WhyNoDetails(int place) const
{
    if (place < 0)
        return tree_.Count() == 0 ? EmptyText() : QStringLiteral("");
    const TAccountNode& node = tree_.At(place);
    if (node.Level == TAccountNode::Group)
        return QStringLiteral("نخست حساب کل را برگزینید.");
    if (AccountLevels::DetailKind(node.DetailType, 0) == TFloatingAccountsType::fatNone)
        return QStringLiteral("این حساب تفصیلی ندارد.");
    if (picking_.Levels != TAccountPicking::DetailsOnly && tree_.HasChildren(place))
        return QStringLiteral(
            "نخست حساب معین را برگزینید. کلید ← به معین‌های این حساب می‌رود.");
    return {};
}

QString TAccountPickerDialog::EmptyText() const
{
    if (picking_.Scope.OnlyTotal == 0)
        return QStringLiteral("نخست حساب کل را برگزینید.");
    if (picking_.Scope.OnlyTotal) {
        const QString total =
            QString::number(*picking_.Scope.OnlyTotal).rightJustified(AccountLevels::TotalDigits, u'0');
        return picking_.Levels == TAccountPicking::AssistantsOnly
                   ? QStringLiteral("حساب کل %1 معینی ندارد.").arg(total)
                   : QStringLiteral("حساب کل %1 وجود ندارد.").arg(total);
    }
    if (!picking_.Scope.Groups.isEmpty())
        return QStringLiteral(
            "در گروه‌هایی که این‌جا پذیرفته می‌شوند حسابی تعریف نشده است.");
    return QStringLiteral(
        "هنوز حسابی تعریف نشده است. نخست حساب‌های کل را تعریف کنید.");
}

void TAccountPickerDialog::GoDeeper()
{
    if (details_->HasList())
        details_->FocusList();
}

QString TAccountPickerDialog::PathText() const
{
    const int place = chart_->Current();
    if (place < 0 || tree_.At(place).Level == TAccountNode::Group)
        return {};
    QString code = tree_.CodeText(place);
    QStringList names{tree_.At(place).Name};
    if (tree_.At(place).Level == TAccountNode::Assistant)
        names.prepend(tree_.At(tree_.At(place).Parent).Name);
    if (const QString detail = details_->CurrentCodeText(); detailsAreFront_ && !detail.isEmpty()) {
        code += u'-' + detail;
        names.append(details_->CurrentName());
    }
    return PersianText::Isolated(code) + QLatin1String("  ") + names.join(QLatin1String(" - "));
}

void TAccountPickerDialog::ShowPath()
{
    path_->SetCaption(PathText());
    choose_->setEnabled(detailsAreFront_ ? details_->CurrentCode() != 0 : CanPick(chart_->Current()));
}

bool TAccountPickerDialog::CanPick(int place) const
{
    if (place < 0 || tree_.At(place).Level == TAccountNode::Group)
        return false;
    return tree_.At(place).Level == TAccountNode::Assistant ||
           picking_.Levels != TAccountPicking::AssistantsOnly;
}

void TAccountPickerDialog::Choose()
{
    if (detailsAreFront_)
        details_->Choose();
    else
        ChooseAccount();
}

void TAccountPickerDialog::ChooseAccount()
{
    const int place = chart_->Current();
    if (!CanPick(place)) {
        chart_->ToggleCurrent();
        return;
    }
    picked_ = CodesOf(place);
    accept();
}

void TAccountPickerDialog::ChooseDetail(int code)
{
    if (chart_->Current() < 0)
        return;
    picked_ = CodesOf(chart_->Current());
    picked_.Detail = code;
    accept();
}

QString TAccountPickerDialog::SettingKey(const QString& name) const
{
    return QStringLiteral("Pickers/%1/%2").arg(WordsOf(picking_.Levels).Key, name);
}

void TAccountPickerDialog::RestoreState()
{
    const QSize usualSize = picking_.Levels == TAccountPicking::AllLevels ? sizeOfAllLevels : sizeOfOneLevel;
    const QSize kept = settings_->Value(SettingKey(QStringLiteral("Size"))).toSize();
    resize((kept.isValid() ? kept : usualSize).boundedTo(screen()->availableSize()));
    const QByteArray parts = settings_->Value(SettingKey(QStringLiteral("Parts"))).toByteArray();
    if (!splitter_->restoreState(parts))
        splitter_->setSizes({1, 1});
    const auto width = [this](const QString& name, int usual) {
        constexpr int least = 40;
        constexpr int greatest = 400;
        return qBound(least, settings_->Value(SettingKey(name), usual).toInt(), greatest);
    };
    chart_->View().setColumnWidth(TAccountTreeModel::CodeColumn,
                                  width(QStringLiteral("ChartCode"), chartCodeWidth));
    details_->SetCodeWidth(width(QStringLiteral("DetailCode"), details_->CodeWidth()));
}

void TAccountPickerDialog::done(int result)
{
    settings_->SetValue(SettingKey(QStringLiteral("Size")), size());
    settings_->SetValue(SettingKey(QStringLiteral("Parts")), splitter_->saveState());
    settings_->SetValue(SettingKey(QStringLiteral("ChartCode")),
                        chart_->View().columnWidth(TAccountTreeModel::CodeColumn));
    settings_->SetValue(SettingKey(QStringLiteral("DetailCode")), details_->CodeWidth());
    QDialog::done(result);
}
