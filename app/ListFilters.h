#pragma once

#include "ListDescription.h"
#include "SmartPanel_TRV.h"

#include <QJsonArray>
#include <QJsonObject>

class TCategorysearchframe;
class TSmartCheckBox_TRV;
class TReferenceHost;
class TTags_search_FRM;
class TTarvaSearchManager;

/// The line above a list that narrows it by one tag and by one category, or to the records that have none.
class TListFilters : public TSmartPanel_TRV
{
    Q_OBJECT

public:
    /// `list` has labels.
    TListFilters(const TListDescription& list, TReferenceHost& host, QWidget* parent);
    ~TListFilters() override;

    /// All criteria of the line; the manager forgets them when the line is destroyed.
    void AddTo(TTarvaSearchManager& manager) const;
    /// Fills the frames and starts from the user's default category; to be called when he is signed in.
    void Start();
    /// Takes over what has become of tags and categories meanwhile; what is chosen stays so.
    void Refresh();
    /// Nothing of the line filters any more.
    void Clear() const;
    void FocusTags() const;

    QJsonObject State() const;
    /// After Start(). The user's default category stays in force where he has one.
    void Restore(const QJsonObject& state);

    TTags_search_FRM* Tags = nullptr;
    TCategorysearchframe* Category = nullptr;
    TSmartCheckBox_TRV* NoTag = nullptr;
    TSmartCheckBox_TRV* NoCategory = nullptr;

private:
    void Lay();
    void AddItems(TReferenceHost& host);
    TSmartCheckBox_TRV* NewBox(const QString& name, const QString& caption);
    TTarvaSearch* NewNoneCriterion(const QString& column, const QString& words);
    void SwitchNoTag();
    void SwitchNoCategory();
    QJsonArray ChosenTags() const;
    void ChooseTags(const QJsonArray& codes);
    void ChooseCategory(int id);
    int CategoryId() const;

    TListDescription list_;
    TTarvaSearch* noTag_ = nullptr;
    TTarvaSearch* noCategory_ = nullptr;
};
