#include "ListLabels.h"

#include "Balloon.h"
#include "DisplayText.h"
#include "ReferenceHost.h"

#include <QJsonDocument>

namespace {

constexpr QLatin1String filtersKey("Filters");
constexpr QLatin1String lineKey("Line");

} // namespace

TListLabels::TListLabels(const TListDescription& list, const TListSelection::TList& parts,
                         TReferenceHost& host, QWidget* form)
    : list_(list), parts_(parts), host_(&host), selection_(parts, this),
      panel_(new TListTagging(list, selection_, host, form)), filters_(new TListFilters(list, host, form))
{
    panel_->hide();
    ShowMarkColumn();
    connect(panel_, &TListTagging::written, this, &TListLabels::written);
    connect(panel_, &TListTagging::closed, this, &TListLabels::TogglePanel);
    connect(&selection_, &TListSelection::limited, this, [this](int most) {
        Balloon::Show(
            &parts_.Grid,
            QStringLiteral(
                "بیش از %1 ردیف یک‌جا برگزیده نمی‌شود؛ تنها ردیف‌های نخست برگزیده شدند. "
                "فهرست را با جستجو کوتاه‌تر کنید.")
                .arg(most));
    });
}

TListLabels::~TListLabels()
{
    // The panel refers to the selection, and the form would destroy it later.
    delete panel_;
}

void TListLabels::ShowMarkColumn()
{
    QVector<TGridColumn> columns = parts_.Grid.Columns();
    for (TGridColumn& column : columns) {
        if (column.FieldName == u"tags")
            column.Dots = [this](const QVariant& tags) { return palette_.DotsOf(tags); };
    }
    parts_.Grid.SetColumns(columns);
}

TListDescription TListLabels::CardDescription() const
{
    TListDescription list = list_;
    for (TCardField& field : list.CardFields) {
        if (field.FieldName == u"tags")
            field.Words = [palette = palette_](const QVariant& tags) { return palette.NamesOf(tags); };
    }
    return list;
}

void TListLabels::Enter()
{
    ReadPalette();
    if (isEntered_) {
        filters_->Refresh();
        return;
    }
    isEntered_ = true;
    filters_->Start();
    filters_->Restore(state_);
}

void TListLabels::ReadPalette()
{
    palette_.Read(host_->Connection());
    parts_.Grid.viewport()->update();
}

void TListLabels::TogglePanel()
{
    if (panel_->isHidden()) {
        panel_->Open();
        return;
    }
    panel_->hide();
    parts_.Grid.setFocus(Qt::ShortcutFocusReason);
}

void TListLabels::ToggleFilters()
{
    const bool shows = filters_->isHidden();
    filters_->setVisible(shows);
    if (shows)
        filters_->FocusTags();
    else
        parts_.Grid.setFocus(Qt::ShortcutFocusReason);
}

bool TListLabels::ClearMarks()
{
    if (selection_.MarkedCount() == 0)
        return false;
    parts_.Grid.ClearMarks();
    return true;
}

QVector<TKeyHelp> TListLabels::Keys() const
{
    return {
        {QStringLiteral("Space  Ctrl+کلیک"),
         QStringLiteral(
             "در فهرست: برگزیدن ردیف، یا برداشتن آن از برگزیده‌ها")},
        {QStringLiteral("Shift+↑  Shift+↓"),
         QStringLiteral(
             "برگزیدن ردیف‌های پیاپی؛ با Home، End، PageUp، PageDown و کلیک هم")},
        {QStringLiteral("Ctrl+A"),
         QStringLiteral("برگزیدن همهٔ ردیف‌های جستجو، تا %1 ردیف")
             .arg(DisplayText::Grouped(QString::number(parts_.Grid.MarkLimit())))},
        {QStringLiteral("F8"),
         QStringLiteral(
             "برچسب‌ها و دستهٔ ردیف‌های برگزیده، یا ردیف جاری")},
        {QStringLiteral("F9"), QStringLiteral("نوار فیلتر برچسب و دسته")},
    };
}

QByteArray TListLabels::State() const
{
    const QJsonObject state{{filtersKey, isEntered_ ? filters_->State() : state_},
                            {lineKey, !filters_->isHidden()}};
    return QJsonDocument(state).toJson(QJsonDocument::Compact);
}

void TListLabels::Restore(const QByteArray& state)
{
    const QJsonObject object = QJsonDocument::fromJson(state).object();
    state_ = object.value(filtersKey).toObject();
    filters_->setVisible(object.value(lineKey).toBool(true));
}
