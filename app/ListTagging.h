#pragma once

#include "ListDescription.h"

#include <QWidget>

class QVBoxLayout;
class TCategory_frame;
class TListSelection;
class TReferenceHost;
class TSmartLabel_TRV;
class TTags;

/// Beside a list: the tags of the chosen records, to put on and take off, and a category to give to all of
/// them. Follows the selection with a short pause while it is shown.
class TListTagging : public QWidget
{
    Q_OBJECT

public:
    /// `list` has labels. The selection and the host must outlive the panel.
    TListTagging(const TListDescription& list, TListSelection& selection, TReferenceHost& host,
                 QWidget* parent);
    ~TListTagging() override;

    /// Shows the panel with the chosen records and puts the caret into the tags.
    void Open();
    /// Reads the tags of the chosen records, where others are chosen now.
    void Follow();

    TTags& Tags() { return *tags_; }
    TCategory_frame& Category() { return *category_; }
    QString HeadingText() const;

    void AssignCategory(); ///< the one shown to all chosen records, after the user's word
    void TakeCategoryAway();

Q_SIGNALS:
    void written(); ///< tags or categories of records
    void closed();

private:
    void Lay();
    QWidget* NewHead();
    QWidget* NewCategoryLines();
    void Load();
    void SpreadCategory(const QString& question, const std::function<void(const QStringList& keys)>& write);
    int ChosenCategory() const;

    TListDescription list_;
    TListSelection* selection_;
    TReferenceHost* host_;
    TSmartLabel_TRV* heading_;
    TTags* tags_;
    TCategory_frame* category_;
    QStringList loaded_; ///< keys of the records whose tags are shown
};
