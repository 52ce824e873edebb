#pragma once

#include "PictureStore.h"

#include <QDialog>

class TADOConnection;
class TPic_Get;
class TSmartButton_TRV;
class TSmartLabel_TRV;

/// Chooses, exchanges or removes one picture of a record.
class TPictureCard : public QDialog
{
    Q_OBJECT

public:
    /// `id` is that of the picture to begin with, 0 for a new one. The connection must outlive the card.
    TPictureCard(TADOConnection& connection, const TPictureOwner& owner, int id, QWidget* parent = nullptr);
    ~TPictureCard() override;

    TPic_Get& Picture() { return *picture_; }
    QString Note() const;
    /// F2: saves and closes; says in the note what is wrong otherwise.
    bool Save();
    void reject() override; ///< asks first where something has changed

private:
    void Lay();
    void Load();
    void PictureChanged();
    bool IsChanged() const;
    void Tell(const QString& sentence, bool wrong);

    TADOConnection* connection_;
    TPictureOwner owner_;
    int id_;
    TPic_Get* picture_;
    TSmartLabel_TRV* note_;
    TSmartButton_TRV* save_ = nullptr;
    QString addressAtFirst_;
    QString chosenBefore_; ///< the file that was chosen last, taken or not
};
