#pragma once

#include "ListDescription.h"

#include <QDialog>
#include <QVector>

class QFormLayout;
class QLineEdit;
class QPushButton;
class TPagedDataSet;
class TRecordPictures;
class TSmartLabel_TRV;

/// One record with all its fields, to read. Follows the list's current row: PageDown and PageUp (or the
/// buttons) move to the next and the previous record, Escape closes.
class TRecordCard : public QDialog
{
    Q_OBJECT

public:
    /// `dataSet` must outlive the card.
    TRecordCard(const TListDescription& list, TPagedDataSet& dataSet, QWidget* parent = nullptr);
    ~TRecordCard() override;

    /// The text that the card shows for a field; empty where it has no such field.
    QString FieldText(const QString& fieldName) const;
    /// Null where records of the list have no pictures.
    TRecordPictures* Pictures() const { return pictures_; }

private:
    void AddFields(QFormLayout* form);
    QWidget* NewButtons();
    void ShowRecord();
    void Move(int step);

    TListDescription list_;
    TPagedDataSet* dataSet_;
    TSmartLabel_TRV* heading_;
    QVector<QLineEdit*> edits_;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    TRecordPictures* pictures_ = nullptr;
};
