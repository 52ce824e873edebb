#pragma once

#include "DetailAccountStore.h"

#include <QDialog>

class TDetailUniqueCode_FRME;
class TReferenceHost;
class TSmartCheckBox_TRV;
class TSmartComboBox_TRV;
class TSmartEdit_TRV;

/// One detail account, to create or to change. While the card is open it holds the account's unique code, so
/// that no other user gets it; closing releases it.
class TDetailAccountCard : public QDialog
{
    Q_OBJECT

public:
    /// A card for a new account; the host must outlive it.
    TDetailAccountCard(TReferenceHost& host, int kind, QWidget* parent);
    /// A card for an account that is there.
    TDetailAccountCard(TReferenceHost& host, const TDetailAccount& account, QWidget* parent);
    ~TDetailAccountCard() override;

    /// The account as it is typed.
    TDetailAccount Account() const;
    bool IsChanged() const;
    /// Saves and closes; false where that was refused and told at its control.
    bool Save();
    /// Closes, after the user has been asked about unsaved changes.
    void reject() override;

    TSmartComboBox_TRV& KindBox() { return *kind_; }
    TSmartEdit_TRV& Code() { return *code_; }
    TSmartEdit_TRV& Name() { return *name_; }
    TSmartComboBox_TRV& Currency() { return *currency_; }
    TSmartCheckBox_TRV& Active() { return *active_; }
    TDetailUniqueCode_FRME& UniqueCode() { return *uniqueCode_; }

Q_SIGNALS:
    void saved(const QString& sentence);

private:
    void Lay();
    void FillBoxes();
    void ProposeCodes();
    void Show(const TDetailAccount& account);
    void Write(const TDetailAccount& account);
    void ShowFault(const EDetailRefused& fault);

    TReferenceHost* host_;
    TDetailAccountStore store_;
    TDetailAccount loaded_;
    bool isNew_;
    int loadedNumber_ = 0;
    TSmartComboBox_TRV* kind_;
    TSmartEdit_TRV* code_;
    TSmartEdit_TRV* name_;
    TSmartComboBox_TRV* currency_;
    TSmartCheckBox_TRV* active_;
    TDetailUniqueCode_FRME* uniqueCode_;
};
