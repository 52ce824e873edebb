#pragma once

#include "DetailAccountStore.h"
#include "Page.h"

#include <QPointer>

class TDetailAccountCard;
class TListForm;
class TReferenceHost;
class TSmartComboBox_TRV;

/// The detail accounts of a kind: a list to search in, and the card in which an account is created or
/// changed.
class TDetailAccountForm : public TPage
{
    Q_OBJECT

public:
    /// The host must outlive the form.
    explicit TDetailAccountForm(TReferenceHost& host, QWidget* parent = nullptr);
    ~TDetailAccountForm() override;

    void Enter() override;
    void SaveState() const override;
    void Reconnect() override;
    QVector<TKeyHelp> Keys() const override;

    TSmartComboBox_TRV& KindBox() { return *kind_; }
    TListForm& List() { return *list_; }
    /// The card now open; null when none is.
    TDetailAccountCard* Card() const;
    /// The chosen kind; 0 where the database has none.
    int Kind() const;
    void ChooseKind(int kind);

    void NewAccount();  ///< Ctrl+N
    void OpenAccount(); ///< Enter: the current one of the list

private:
    void Lay();
    void FillKinds();
    void ShowKind();
    void OpenCard(TDetailAccountCard* card);

    TReferenceHost* host_;
    TDetailAccountStore store_;
    TSmartComboBox_TRV* kind_;
    TListForm* list_;
    QPointer<TDetailAccountCard> card_;
};
