#include "ReportFilterRow.h"

#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

constexpr QLatin1String isOnKey("on");
constexpr QLatin1String fieldKey("field");
constexpr QLatin1String notKey("not");
constexpr QLatin1String valuesKey("values");
constexpr qsizetype longestValue = 100;

} // namespace

void TReportFilterRow::Clear() const
{
    Switch->SetChecked(false);
    Reverse->SetChecked(false);
    SetValues(QStringList(Values().size(), QString()));
    Init();
}

QJsonObject TReportFilterRow::State() const
{
    QJsonObject state;
    state.insert(isOnKey, Switch->Checked());
    state.insert(notKey, Reverse->Checked());
    state.insert(fieldKey, Fields == nullptr ? 0 : Fields->ItemIndex());
    state.insert(valuesKey, QJsonArray::fromStringList(Values()));
    return state;
}

void TReportFilterRow::Restore(const QJsonObject& state) const
{
    const int field = state.value(fieldKey).toInt();
    if (Fields != nullptr && field > 0 && field < Fields->Count()) {
        Fields->SetItemIndex(field);
        Fields->OnChange(Fields);
    }
    QStringList values;
    const QJsonArray kept = state.value(valuesKey).toArray();
    for (const auto& value : kept)
        values.append(value.toString().left(longestValue));
    if (values.size() == Values().size())
        SetValues(values);
    Reverse->SetChecked(state.value(notKey).toBool());
    Switch->SetChecked(state.value(isOnKey).toBool());
}
