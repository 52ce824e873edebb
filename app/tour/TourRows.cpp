#include "TourRows.h"

#include "ListForm.h"
#include "PersianText.h"

#include <algorithm>

namespace TourRows {

QStringList FirstTexts(TListForm& list, const QString& fieldName, int count)
{
    QStringList texts;
    const TField* field = list.DataSet().FindField(fieldName);
    const int rows = field == nullptr ? 0 : std::min(count, list.DataSet().RecordCount());
    for (int row = 0; row < rows; ++row) {
        const QVariant value = list.DataSet().ValueAt(row, field->Index());
        if (value.isValid())
            texts.append(value.toString());
    }
    return texts;
}

bool EachContains(TListForm& list, const QString& fieldName, const QString& text)
{
    const QStringList texts = FirstTexts(list, fieldName);
    return !texts.isEmpty() && std::all_of(texts.begin(), texts.end(), [&text](const QString& value) {
        return PersianText::Fold(value).contains(PersianText::Fold(text));
    });
}

bool NoneContains(TListForm& list, const QString& fieldName, const QString& text)
{
    const QStringList texts = FirstTexts(list, fieldName);
    return !texts.isEmpty() && std::none_of(texts.begin(), texts.end(), [&text](const QString& value) {
        return PersianText::Fold(value).contains(PersianText::Fold(text));
    });
}

QString CurrentText(TListForm& list, const QString& fieldName)
{
    return list.DataSet().FieldByName(fieldName)->AsString();
}

} // namespace TourRows
