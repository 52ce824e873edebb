#pragma once

#include "DataSource.h"
#include "RecordFacts.h"

#include <array>
#include <functional>
#include <memory>
#include <QKeySequence>
#include <QPointer>
#include <QTimer>
#include <QWidget>

class TListDetail_FRAME;
class TListForm;
class TPagedDataSet;
class TQueryThread;
class TReferenceHost;
class TSmartDetailView_TRV;

/// The area under a list that tells more about its current record. What is not in the list's rows is read in
/// the background when the user stays on a record for a moment. Alt+1 opens and closes it; what it shows is
/// kept in the settings.
class TRecordDetails : public QWidget
{
    Q_OBJECT

public:
    /// Puts itself above the list's footer. The host must outlive it.
    TRecordDetails(TListForm& list, TReferenceHost& host);
    ~TRecordDetails() override;

    TListDetail_FRAME& Frame() { return *frame_; }
    /// What is read of the current record is not here yet.
    bool IsBusy() const;
    /// A button beside the area, and a key of the list that presses it.
    void AddAction(const QString& caption, const QKeySequence& key, const std::function<void()>& action);
    void ReadAgain(); ///< the current record's values, whatever they were

private:
    static constexpr int Places = TRecordFact::SmallBottom + 1;

    void FillViews();
    void RestoreState();
    void FollowRow();
    void Ask();
    void ShowValues(const QHash<QString, QVariant>& values, bool hidesPrices);
    TSmartDetailView_TRV* View(int place) const { return views_.at(static_cast<size_t>(place)); }
    QString SettingKey(const QString& name) const;

    TListForm* list_;
    TReferenceHost* host_;
    TListDetail_FRAME* frame_;
    std::array<TSmartDetailView_TRV*, Places> views_{};
    QVector<TRecordFact> facts_;
    QPointer<TPagedDataSet> rows_;
    TDataSource source_;
    QTimer pause_;
    std::unique_ptr<TQueryThread> thread_;
    int shownCode_ = 0; ///< whose values are shown or asked for; 0 for none
};
