#pragma once

#include "ListFilters.h"
#include "ListSelection.h"
#include "ListTagging.h"
#include "Page.h"
#include "TagPalette.h"

/// What makes a list one of records that carry tags and a category: their marks in its column, the choice of
/// several rows, the panel that puts them on, and the line that filters by them.
class TListLabels : public QObject
{
    Q_OBJECT

public:
    /// `list` has labels. The panel and the line are children of `form`, which lays them out.
    TListLabels(const TListDescription& list, const TListSelection::TList& parts, TReferenceHost& host,
                QWidget* form);
    ~TListLabels() override;

    TListSelection& Selection() { return selection_; }
    TListTagging& Panel() { return *panel_; }
    TListFilters& Filters() { return *filters_; }

    /// Reads names and colours; fills the filters the first time and brings them up to date later.
    void Enter();
    void ReadPalette();
    void TogglePanel();   ///< F8
    void ToggleFilters(); ///< F9: the line is shown or hidden; hidden, it stays in force
    /// The list with the words for tags that its cards show.
    TListDescription CardDescription() const;
    /// Escape: takes the marks off; false where there are none.
    bool ClearMarks();

    QVector<TKeyHelp> Keys() const;
    QByteArray State() const;
    void Restore(const QByteArray& state);

Q_SIGNALS:
    void written(); ///< the list is to be read again

private:
    void ShowMarkColumn();

    TListDescription list_;
    TListSelection::TList parts_;
    TReferenceHost* host_;
    TTagPalette palette_;
    TListSelection selection_;
    TListTagging* panel_;
    TListFilters* filters_;
    QJsonObject state_; ///< of the filters, until they are filled
    bool isEntered_ = false;
};
