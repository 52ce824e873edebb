#include "GalleryInspector.h"

#include "AdoError.h"
#include "Look.h"
#include "SearchCondition.h"
#include "TarvaSearch.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int refreshInterval = 200; // milliseconds
constexpr int longestJournal = 2000; // lines

QString Told(const QVariant& value)
{
    if (!value.isValid())
        return QStringLiteral("Null");
    const QString type = QString::fromLatin1(value.typeName());
    if (value.typeId() == QMetaType::QString)
        return QStringLiteral("%1 \"%2\"").arg(type, value.toString());
    if (value.canConvert<QSize>() && value.typeId() == QMetaType::QSize)
        return QStringLiteral("%1 × %2").arg(value.toSize().width()).arg(value.toSize().height());
    return QStringLiteral("%1 %2").arg(type, value.toString());
}

QString Told(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString ConditionOf(const TTarvaSearch& criterion)
{
    try {
        const std::optional<TSearchCondition> condition = TSearchCondition::Of(criterion);
        return condition ? condition->Sql() : QString();
    } catch (const EADOError& error) {
        return error.Message();
    }
}

} // namespace

TGalleryInspector::TGalleryInspector(QWidget* parent)
    : QWidget(parent), state_(new QTreeWidget(this)), journal_(new QPlainTextEdit(this))
{
    state_->setObjectName(QStringLiteral("State_TREE"));
    state_->setAccessibleName(QStringLiteral("شرط‌ها و مقدارهای قاب"));
    state_->setHeaderLabels({QStringLiteral("شرط یا مقدار"), QStringLiteral("اکنون")});
    state_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    state_->setAlternatingRowColors(true);
    // Names and values are code, which is read from the left; so are statements.
    state_->setLayoutDirection(Qt::LeftToRight);
    journal_->setObjectName(QStringLiteral("Journal_EDT"));
    journal_->setAccessibleName(QStringLiteral("رویدادها و دستورهای فرستاده شده"));
    journal_->setReadOnly(true);
    journal_->setTabChangesFocus(true);
    journal_->setMaximumBlockCount(longestJournal);
    // Digits as they are in code, and not as the application's font draws them.
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    journal_->setFont(font);
    state_->setFont(font);
    state_->header()->setFont(Look::BoldFont());
    state_->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
    QTextOption option = journal_->document()->defaultTextOption();
    option.setTextDirection(Qt::LeftToRight);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    journal_->document()->setDefaultTextOption(option);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(state_, 3);
    column->addWidget(journal_, 2);
    refresh_.setInterval(refreshInterval);
    connect(&refresh_, &QTimer::timeout, this, &TGalleryInspector::ShowState);
}

TGalleryInspector::~TGalleryInspector() = default;

void TGalleryInspector::Watch(TFrame* frame, const TGalleryEntry& entry)
{
    frame_ = frame;
    entry_ = entry;
    state_->clear();
    FollowCriteria();
    ShowState();
}

void TGalleryInspector::FollowCriteria()
{
    criteria_.clear();
    if (!frame_)
        return;
    for (TTarvaSearch* criterion : frame_->findChildren<TTarvaSearch*>()) {
        criteria_.append(criterion);
        // A frame that comes again is not followed twice.
        criterion->disconnect(this);
        const auto tell = [this, criterion](const QString& what) {
            TellEvent(criterion->objectName() + u'.' + what);
        };
        connect(criterion, &TTarvaSearch::changed, this, [tell] { tell(QStringLiteral("OnChange")); });
        connect(criterion, &TTarvaSearch::itemIndexChanged, this,
                [tell] { tell(QStringLiteral("OnChangeItemIndex")); });
        connect(criterion, &TTarvaSearch::activeChanged, this,
                [tell](bool active) { tell(QStringLiteral("SetActive(%1)").arg(Told(active))); });
        connect(criterion, &TTarvaSearch::reverstChanged, this,
                [tell](bool reverst) { tell(QStringLiteral("SetReverst(%1)").arg(Told(reverst))); });
    }
}

TGalleryInspector::TRows TGalleryInspector::RowsOf(const TTarvaSearch& criterion)
{
    const TSearchItem* item = criterion.CurrentItem();
    return {
        {QStringLiteral("Active"), Told(criterion.Active())},
        {QStringLiteral("Reverst"), Told(criterion.Reverst())},
        {QStringLiteral("ItemIndex"),
         QStringLiteral("%1 %2").arg(criterion.ItemIndex()).arg(item == nullptr ? QString() : item->Title)},
        {QStringLiteral("Value1"), Told(criterion.Value1())},
        {QStringLiteral("Value2"), Told(criterion.Value2())},
        {QStringLiteral("Condition"), ConditionOf(criterion)},
    };
}

void TGalleryInspector::ShowState()
{
    if (!frame_)
        return;
    int place = 0;
    for (const QPointer<TTarvaSearch>& criterion : qAsConst(criteria_)) {
        if (criterion)
            ShowGroup(place++, criterion->objectName(), RowsOf(*criterion));
    }
    if (!entry_.Values)
        return;
    TRows rows;
    for (const auto& [name, value] : entry_.Values(*frame_))
        rows.append({name, Told(value)});
    ShowGroup(place, entry_.ClassName, rows);
}

void TGalleryInspector::ShowGroup(int place, const QString& title, const TRows& rows)
{
    QTreeWidgetItem* group = state_->topLevelItem(place);
    if (group == nullptr) {
        group = new QTreeWidgetItem(state_, {title});
        group->setExpanded(true);
    }
    for (int index = 0; index < rows.size(); ++index) {
        if (index == group->childCount())
            group->addChild(new QTreeWidgetItem({rows.at(index).first}));
        QTreeWidgetItem* item = group->child(index);
        if (item->text(1) != rows.at(index).second)
            item->setText(1, rows.at(index).second);
    }
}

void TGalleryInspector::TellEvent(const QString& event)
{
    Append(QStringLiteral("• ") + event);
}

void TGalleryInspector::TellStatement(const QString& text)
{
    Append(text);
}

void TGalleryInspector::Append(const QString& line)
{
    journal_->appendPlainText(line);
}

void TGalleryInspector::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh_.start();
}

void TGalleryInspector::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    refresh_.stop();
}
