#pragma once

#include <functional>
#include <QString>
#include <QStringList>
#include <QVector>

class QJsonObject;
class TSmartCheckBox_TRV;
class TSmartComboBox_TRV;
class TSmartLabel_TRV;

struct TReportFilterControls
{
    TSmartCheckBox_TRV* Switch = nullptr;
    TSmartLabel_TRV* Caption = nullptr;
    TSmartComboBox_TRV* Fields = nullptr; ///< null where there is nothing to choose
    TSmartCheckBox_TRV* Reverse = nullptr;
};

/// A line of a filter panel as its owner clears, keeps and restores it; the frame behind it does the rest.
struct TReportFilterRow : TReportFilterControls
{
    QString Key;
    std::function<QStringList()> Values;
    std::function<void(const QStringList& values)> SetValues; ///< as many as Values() gives
    std::function<void()> Init;

    /// Empty and switched off.
    void Clear() const;
    QJsonObject State() const;
    /// What does not fit the line is left out.
    void Restore(const QJsonObject& state) const;
};
