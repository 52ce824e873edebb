#pragma once

#include "EntityLists.h"
#include "HostExport.h"

#include <memory>
#include <QDialog>
#include <QKeyEvent>
#include <vector>

class TADOConnection;
class TGeneral_Search_Frame;
class THostSettings;

/// What a picker shows of its list.
struct TEntityChoice
{
    const TEntityList* List = nullptr;
    TEntityArgument Argument;
    bool All = false; ///< with the rows that are switched off
};

/// The list of one kind of entity, to pick a code from. The caret stays in the search edit: what is typed
/// finds by code or by name, arrows and page keys move in the list, Enter picks, Escape cancels; so do a
/// double click and the buttons. Size, columns and order are kept in the settings. The list is read by pages
/// in the background and never cut.
class HOST_EXPORT TEntityPicker : public QDialog
{
    Q_OBJECT

public:
    /// Connection and settings must outlive the dialog. Throws std::invalid_argument for a restriction that
    /// the list does not know.
    TEntityPicker(const TEntityChoice& choice, TADOConnection& connection, THostSettings& settings,
                  QWidget* parent);
    ~TEntityPicker() override;

    /// Begins to read the rows. Throws EADOError where they cannot be read at all.
    void StartReading();
    /// The picked code; 0 as long as none is.
    int Code() const { return code_; }

    TPagedDataSet& DataSet();
    TSmartDBGrid_TRV& Grid();
    TGeneral_Search_Frame& SearchFrame();
    QString CountText() const;

    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Lay();
    QWidget* NewBand();
    QWidget* NewFooter();
    void ConnectData();
    void StartSearch();
    void RestoreState();
    void SaveState() const;
    void PickFound();
    void Pick();
    void FinishSearch();
    void Move(const QKeyEvent& key);
    void ShowEmptyText();
    QString ReasonOfEmptiness() const;
    void ShowCount();
    void ReportFailure(const QString& message, const QString& serverMessage);
    QString SettingKey(const QString& name) const;

    TEntityChoice choice_;
    THostSettings* settings_;
    struct TParts;
    std::unique_ptr<TParts> parts_;
    std::vector<std::unique_ptr<QKeyEvent>> pending_; ///< keys that wait until what was typed is in force
    int code_ = 0;
};
