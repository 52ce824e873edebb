#include "StoredDateCriterion.h"

#include "ReportText.h"

TStoredDateCriterion::TStoredDateCriterion(const TTarvaSearch& frame, QObject* parent)
    : TTarvaSearch(parent), frame_(&frame)
{
    setObjectName(frame.objectName() + QStringLiteral("_Stored"));
    SetSearchTypes(frame.SearchTypes());
    for (int index = 0; index < frame.SearchItems.Count(); ++index)
        SearchItems.Add(frame.SearchItems.GetItem(index));
    connect(frame_, &TTarvaSearch::activeChanged, this, &TStoredDateCriterion::Follow);
    connect(frame_, &TTarvaSearch::reverstChanged, this, &TStoredDateCriterion::Follow);
    connect(frame_, &TTarvaSearch::changed, this, &TStoredDateCriterion::Follow);
    connect(frame_, &TTarvaSearch::itemIndexChanged, this, &TStoredDateCriterion::Follow);
    Follow();
}

TStoredDateCriterion::~TStoredDateCriterion() = default;

QString TStoredDateCriterion::StoredForm(const QString& date)
{
    return ReportText::Date(date, false);
}

void TStoredDateCriterion::Follow()
{
    SetItemIndex(frame_->ItemIndex());
    SetValue1(StoredForm(frame_->Value1().toString()));
    SetValue2(StoredForm(frame_->Value2().toString()));
    SetReverst(frame_->Reverst());
    SetActive(frame_->Active());
}
