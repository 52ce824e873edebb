#pragma once

#include "EntityType.h"
#include "SmartEdit_TRV.h"

#include <memory>

class QAbstractButton;

/// One-line edit for the code of an entity, with a button at its left end that opens the entity's list. The
/// button never takes the focus: clicking it leaves, or puts, the focus in the edit. From the keyboard the
/// list opens by + (of either row, as in the boxes for account codes), by F4 and by Alt+Down (as in a combo
/// box). An edit without its button, a read-only one and a disabled one open nothing.
///
/// The edit does not know the lists: its owner opens them in OnButtonClick.
class SUITE_EXPORT TSmartButtonEdit_TRV : public TSmartEdit_TRV
{
    Q_OBJECT
    Q_PROPERTY(TButtonEditType EditType READ EditType WRITE SetEditType)
    Q_PROPERTY(TEntityType EntityType READ EntityType WRITE SetEntityType)
    Q_PROPERTY(QString SelectParams READ SelectParams WRITE SetSelectParams)
    Q_PROPERTY(bool ShowButton READ ShowButton WRITE SetShowButton)

public:
    /// What the edit is for.
    enum TButtonEditType {
        betString, ///< any text; + is a character like others
        betEntity, ///< the user can bring in digits only
    };
    Q_ENUM(TButtonEditType)

    explicit TSmartButtonEdit_TRV(QWidget* parent = nullptr);
    ~TSmartButtonEdit_TRV() override;

    /// betEntity at first.
    TButtonEditType EditType() const { return type_; }
    void SetEditType(TButtonEditType type);
    /// The kind of entity whose code this is; etPersonals at first. The edit only carries it.
    TEntityType EntityType() const { return entityType_; }
    void SetEntityType(TEntityType type) { entityType_ = type; }
    /// Further parameters for the list, in the host's own form. The edit only carries them.
    QString SelectParams() const { return selectParams_; }
    void SetSelectParams(const QString& parameters) { selectParams_ = parameters; }
    /// True at first.
    bool ShowButton() const;
    void SetShowButton(bool show);

    /// The button was clicked, or a key asks for the list. May destroy the edit.
    TNotifyEvent OnButtonClick;

protected:
    bool HandleOwnKey(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool OpensList(const QKeyEvent& event) const;
    void ClickButton();
    void PlaceButton();

    TButtonEditType type_ = betEntity;
    TEntityType entityType_ = TEntityType::etPersonals;
    QString selectParams_;
    QAbstractButton* button_;
};
