#pragma once

#include "CategoryOutline.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;
class TSmartCheckBox_TRV;
class TSmartLabel_TRV;

/// Beside the tree: where the current category stands, what hangs on it, and whether the user's lists begin
/// with it.
class TCategoryDetails : public QWidget
{
    Q_OBJECT

public:
    explicit TCategoryDetails(QWidget* parent = nullptr);
    ~TCategoryDetails() override;

    /// `place` -1: no category is current.
    void Show(const TCategoryOutline& outline, int place, const TCategoryUse& use,
              const TDefaultCategories& defaults);

    TSmartCheckBox_TRV& GoodsBox() { return *goods_; }
    TSmartCheckBox_TRV& PersonsBox() { return *persons_; }
    QString UseText() const;
    QString NamesakeText() const;

Q_SIGNALS:
    /// The user has switched a box.
    void defaultWanted(TCategoryStore::TListKind kind, bool wanted);

private:
    void AddLabels(QVBoxLayout* column);
    void AddBoxes(QVBoxLayout* column);

    TSmartLabel_TRV* name_;
    QLabel* path_;
    QLabel* use_;
    QLabel* namesakes_;
    TSmartCheckBox_TRV* goods_;
    TSmartCheckBox_TRV* persons_;
};
