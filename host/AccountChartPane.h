#pragma once

#include "AccountTreeModel.h"
#include "HostExport.h"

#include <QWidget>

class TMirroredTreeView;
class TSmartEdit_TRV;

/// The upper levels of the chart of accounts with their search edit.
class HOST_EXPORT TAccountChartPane : public QWidget
{
    Q_OBJECT

public:
    /// `tree` must have been read and outlive the pane. `emptyText` says why the chart has no account.
    TAccountChartPane(TAccountTree& tree, const QString& emptyText, QWidget* parent = nullptr);

    /// Makes an account the current one, with its parents open.
    void Show(int place);
    void FocusList();
    int Current() const; ///< -1 where there is none
    /// Opens or closes what stands under the current account.
    void ToggleCurrent();

    TMirroredTreeView& View() { return *view_; }
    TSmartEdit_TRV& SearchEdit() { return *search_; }

Q_SIGNALS:
    void currentMoved();
    void chosen(); ///< Enter or double click
    void deeper(); ///< Left on an account without accounts under it

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ScrollToCurrent();
    void Lay();
    void ApplySearch();
    void OpenMatches();

    TAccountTree* tree_;
    QString emptyText_;
    TAccountTreeModel model_;
    TMirroredTreeView* view_;
    TSmartEdit_TRV* search_;
};
