#pragma once

#include <QStringList>
#include <QTimer>

class TADOConnection;
class TDataSource;
class TPagedDataSet;
class TSmartDBGrid_TRV;

/// The records of a list that the user has chosen: the marked ones, and where none is marked the current one.
class TListSelection : public QObject
{
    Q_OBJECT

public:
    /// What the selection works on; all of it must outlive the selection.
    struct TList
    {
        TPagedDataSet& DataSet;
        TDataSource& Source;
        TSmartDBGrid_TRV& Grid;
        TADOConnection& Connection;
    };

    TListSelection(const TList& list, QObject* parent);
    ~TListSelection() override;

    /// The keys in ascending order; empty where the list is. All of them are whole numbers.
    QStringList Keys() const;
    /// How many there are, without the keys themselves.
    qsizetype MarkedCount() const { return markedCount_; }

Q_SIGNALS:
    void changed();         ///< at once
    void settled();         ///< a short pause after the last change
    void limited(int most); ///< only the first ones could be marked

private:
    void Follow();
    QStringList ReadKeys(int first, int count) const;

    TList list_;
    QTimer pause_;
    qsizetype markedCount_ = 0;
};
