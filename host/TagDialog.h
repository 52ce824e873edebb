#pragma once

#include "HostExport.h"
#include "TagDefinition.h"

#include <QDialog>
#include <QVector>

class QLineEdit;
class QVBoxLayout;
class TColorSwatches;

/// Defines a tag: its name, as the user types it, and a colour of the palette. What cannot be saved is said
/// at its control, and nothing that was typed is lost.
class HOST_EXPORT TTagDialog : public QDialog
{
    Q_OBJECT

public:
    /// `definition` must outlive the dialog. A longer name than a tag can have is cut, and the user told so.
    TTagDialog(const TTagDefinition& definition, const QString& name, QWidget* parent);
    ~TTagDialog() override;

    /// Shows the dialog and waits. Answers the new tag's code, TTagDefinition::LimitReached, or 0 where the
    /// user has cancelled.
    int Define();

    QLineEdit& NameEdit() { return *name_; }
    TColorSwatches& Swatches() { return *swatches_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Lay(const QString& name);
    void AddButtons(QVBoxLayout* column);
    void FillSwatches();
    void Save();
    void Refuse(const QString& sentence);

    const TTagDefinition& definition_;
    QVector<TTagColor> colors_;
    QLineEdit* name_ = nullptr;
    TColorSwatches* swatches_ = nullptr;
    int result_ = 0;
    bool isNameCut_;
};
