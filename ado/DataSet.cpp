#include "DataSet.h"

#include "AdoError.h"

#include <utility>

TDataSet::~TDataSet() = default;

TField* TDataSet::FieldByName(const QString& name)
{
    TField* field = FindField(name);
    if (field == nullptr) {
        throw EADOError(TAdoErrorKind::WrongState, Active()
                                                       ? QStringLiteral("فیلد «%1» در نتیجه نیست.").arg(name)
                                                       : QStringLiteral("مجموعهٔ داده بسته است."));
    }
    return field;
}

void TDataSet::DisableControls()
{
    ++disabled_;
}

void TDataSet::EnableControls()
{
    if (disabled_ == 0 || --disabled_ > 0)
        return;
    const bool dataChangedMeanwhile = std::exchange(dataPending_, false);
    const bool scrolledMeanwhile = std::exchange(scrollPending_, false);
    if (dataChangedMeanwhile)
        Q_EMIT dataChanged();
    else if (scrolledMeanwhile)
        Q_EMIT scrolled();
}

bool TDataSet::ControlsDisabled() const
{
    return disabled_ > 0;
}

void TDataSet::AnnounceData()
{
    if (ControlsDisabled())
        dataPending_ = true;
    else
        Q_EMIT dataChanged();
}

void TDataSet::AnnounceScroll()
{
    if (ControlsDisabled())
        scrollPending_ = true;
    else
        Q_EMIT scrolled();
}
