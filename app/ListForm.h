#pragma once

#include "ListDescription.h"
#include "Page.h"

#include <memory>
#include <QPointer>

class QMenu;
class TGeneral_Search_Frame;
class TListFooter;
class TListKeys;
class TListLabels;
class TRecordCard;
class TReferenceHost;

/// A list of one kind of records: the search bar above, the grid, the condition in words and the number of
/// rows below. What it lists is told by its description.
class TListForm : public TPage
{
    Q_OBJECT

public:
    /// The host must outlive the form. Reads the list's state from the host's settings.
    TListForm(const TListDescription& list, TReferenceHost& host, QWidget* parent = nullptr);
    ~TListForm() override;

    void Enter() override;
    void SaveState() const override;
    void Reconnect() override { Refresh(); }
    QVector<TKeyHelp> Keys() const override;

    const TListDescription& Description() const { return list_; }
    TPagedDataSet& DataSet();
    TSmartDBGrid_TRV& Grid();
    TGeneral_Search_Frame& SearchFrame();
    const TListFooter& Footer() const;
    /// Tags and categories of the records; null where the list's records carry none.
    TListLabels* Labels() const;
    /// The card now open; null when none is.
    TRecordCard* Card() const;

    /// F5: reads the rows, again where they are here already; a lost connection is opened again. Throws
    /// EADOError where the list cannot be read at all.
    void Refresh();
    void FocusSearchField(); ///< F10: the field to search by
    void FocusSearchEdit();  ///< where the value is typed
    void ClearSearch();      ///< Escape: the marks of rows, and where there are none the search
    void OpenCard();         ///< of the current row; nothing happens on an empty list
    /// Reads its rows from elsewhere, with the search in force. The fields are the same.
    void SetSource(const TPagedSource& source);
    void ShowSortMenu(); ///< F7

    /// Opens the current row instead of the card to read.
    std::function<void()> OnOpenRecord;

private:
    void Lay();
    void ConnectData();
    void ConnectLabels();
    void ConnectKeys();
    void StartSearch();
    void RestoreState();
    void ShowCondition();
    void ShowSelection();
    void ReportFailure(const QString& message, const QString& serverMessage);
    void SelectFirstRow();
    void OrderBy(const QString& field);
    QString SettingKey(const QString& name) const;

    TListDescription list_;
    TReferenceHost* host_;
    struct TParts;
    std::unique_ptr<TParts> parts_;
    QPointer<TRecordCard> card_;
};
