#pragma once

#include "AccountTypes.h"
#include "HostExport.h"
#include "PagedDataSet.h"

#include <memory>
#include <QWidget>

class TADOConnection;
class TSmartDBGrid_TRV;
class TSmartEdit_TRV;
class TSmartLabel_TRV;

/// The detail accounts of one kind with their search edit. They are read by pages, however many there are.
class HOST_EXPORT TAccountDetailPane : public QWidget
{
    Q_OBJECT

public:
    /// `connection` must outlive the pane.
    explicit TAccountDetailPane(TADOConnection& connection, QWidget* parent = nullptr);
    ~TAccountDetailPane() override;

    /// Lists the accounts of a kind and makes the one with the code, where it is 0 the first one, the current
    /// one. A list of that kind that is shown already stays as it is.
    void ShowKind(TFloatingAccountsType kind, const QString& kindName, int code = 0);
    /// Shows no account and says why.
    void ShowNothing(const QString& reason);
    bool HasList() const { return kind_ != TFloatingAccountsType::fatNone; }
    void FocusList();

    /// Width of the column of codes, in pixels; the names take the rest.
    int CodeWidth() const;
    void SetCodeWidth(int width);

    int CurrentCode();         ///< 0 where there is no current row or it has not arrived
    QString CurrentCodeText(); ///< as the boxes show it; empty where there is none
    QString CurrentName();
    /// Chooses the current row as soon as it is here and what was typed last is in force, unless the user
    /// does something else meanwhile.
    void Choose();

    TSmartDBGrid_TRV& Grid();
    TSmartEdit_TRV& SearchEdit();
    TPagedDataSet& DataSet();
    QString CountText() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void currentMoved();
    void chosen(int code); ///< by Enter, a double click or Choose()
    void back();           ///< Right in the list

private:
    void Lay();
    void ConnectData();
    void Search();
    int Ask(const QString& statement) const;
    void GoTo(int code);
    int RowAmongTheFirst(int code) const;
    void ReachWantedRow();
    void FollowRows();
    void FinishChoice();
    void ForgetIntentions();
    void ReportFailure(const QString& message, const QString& serverMessage);
    void ShowCount();
    void ShowEmptyText();
    QString FieldText(int field);

    struct TParts;
    std::unique_ptr<TParts> parts_;
    TFloatingAccountsType kind_ = TFloatingAccountsType::fatNone;
    QString searched_; ///< what the list shows
    int codeWidth_ = 90;
    int wantedCode_ = 0; ///< of the row that is gone to when it is here; 0 for none
    int wantedRow_ = 0;  ///< its record number in the whole list; 0 where it is sought among the first rows
    bool choosing_ = false; ///< the current row is chosen when it is here
};
