#pragma once

#include "AccountTree.h"

#include <QDialog>
#include <QHash>

class QSplitter;
class TADOConnection;
class TAccountChartPane;
class TAccountDetailPane;
class THostSettings;
class TSmartButton_TRV;
class TSmartLabel_TRV;

/// What an account picker offers and where it opens.
struct TAccountPicking
{
    enum TLevels { AllLevels, TotalsOnly, AssistantsOnly, DetailsOnly };
    TLevels Levels = AllLevels;
    TAccountScope Scope = {};
    THCSelectedCode Begin = {}; ///< the current row, as far as there is such an account
    int FocusLevel = 0;         ///< of AllLevels: 0 total, 1 assistant, 2 detail
};

/// The picker of the chart of accounts. At the right the groups, totals and assistants as a tree, at the left
/// the detail accounts of the current one; a picker of one level shows the part that it needs. Typing finds
/// by code or by name. Enter, a double click or the button picks the row with the accounts above it, whatever
/// its level; the line below names what would be picked. Left goes to the next level, Right back. Escape
/// cancels.
///
/// Under a total account that has assistants the detail accounts are offered from an assistant only, because
/// a code without its middle part would not be one.
class HOST_EXPORT TAccountPickerDialog : public QDialog
{
    Q_OBJECT

public:
    /// Both must outlive the dialog. Reads the upper levels; throws EADOError.
    TAccountPickerDialog(TADOConnection& connection, THostSettings& settings, const TAccountPicking& picking,
                         QWidget* parent = nullptr);
    ~TAccountPickerDialog() override;

    /// Goes to the account to begin with and starts to read. Throws EADOError.
    void Begin();
    /// What was picked; all 0 until the dialog was accepted.
    THCSelectedCode Picked() const { return picked_; }
    /// What Enter would pick now, in words.
    QString PathText() const;

    TAccountChartPane& Chart() { return *chart_; }
    TAccountDetailPane& Details() { return *details_; }

    void done(int result) override;

private:
    void Lay();
    void LayFooter(QWidget* footer);
    void Connect();
    int FirstPlace() const;
    void RestoreState();
    void ReadKinds(TADOConnection& connection);
    void FollowChart();
    void GoDeeper();
    void ShowPath();
    void Choose();
    void ChooseAccount();
    void ChooseDetail(int code);
    bool UsesDetails() const;
    bool CanPick(int place) const;
    THCSelectedCode CodesOf(int place) const;
    QString EmptyText() const;
    /// Null where there are detail accounts to show.
    QString WhyNoDetails(int place) const;
    QString SettingKey(const QString& name) const;

    THostSettings* settings_;
    TAccountPicking picking_;
    TAccountTree tree_;
    QHash<int, QString> kindNames_;
    TAccountChartPane* chart_ = nullptr;
    TAccountDetailPane* details_ = nullptr;
    QSplitter* splitter_ = nullptr;
    TSmartLabel_TRV* path_ = nullptr;
    TSmartButton_TRV* choose_ = nullptr;
    THCSelectedCode picked_;
    bool detailsAreFront_ = false;
};
