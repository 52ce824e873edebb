#pragma once

#include "CategoryTreeModel.h"
#include "Page.h"

#include <QPointer>
#include <QTimer>

class QHBoxLayout;
class QVBoxLayout;
class TCategoryCard;
class TCategoryDetails;
class TMirroredTreeView;
class TReferenceHost;
class TSmartEdit_TRV;
class TSmartLabel_TRV;

/// The categories of goods and persons: a tree in which the user finds, adds, renames, moves and deletes
/// them, and chooses those that his own lists begin with. Everything is written at once, after his word.
class TCategoryForm : public TPage
{
    Q_OBJECT

public:
    /// The host must outlive the form.
    explicit TCategoryForm(TReferenceHost& host, QWidget* parent = nullptr);
    ~TCategoryForm() override;

    void Enter() override;
    void Reconnect() override { Reload(); }
    QVector<TKeyHelp> Keys() const override;

    TMirroredTreeView& Tree() { return *tree_; }
    TCategoryTreeModel& Model() { return model_; }
    TSmartEdit_TRV& SearchEdit() { return *search_; }
    TCategoryDetails& Details() { return *details_; }
    QString HintText() const;
    /// The card now open; null when none is.
    TCategoryCard* Card() const;
    int CurrentId() const; ///< 0 where there is none
    /// Makes a category the current one, with all above it open.
    void Show(int id);

    void Reload();        ///< F5
    void AddTop();        ///< Ctrl+N
    void AddChild();      ///< Insert: under the current one
    void Rename();        ///< F2
    void DeleteCurrent(); ///< Delete
    void PickUp();        ///< Ctrl+X: the current one is about to be moved
    void PutUnder();      ///< Ctrl+V: what was picked up, under the current one
    void PutOnTop();      ///< Ctrl+Shift+V

private:
    void Lay();
    QHBoxLayout* NewBar();
    QHBoxLayout* NewBody();
    void SetUpTree();
    void ConnectKeys();
    void ShowDetails();
    void ShowHint();
    void ApplySearch();
    void NextMatch();
    void Escape();
    void AddUnder(int parentId);
    void OpenCard(TCategoryCard* card);
    void Move(int id, int parentId);
    void SetDefault(TCategoryStore::TListKind kind, bool wanted);
    bool Confirm(const QString& question);
    /// Does `work`; false where a rule forbids it, which is told.
    bool Attempt(const std::function<void()>& work);
    int CurrentPlace() const;
    int User() const;

    TReferenceHost* host_;
    TCategoryStore store_;
    TCategoryTreeModel model_;
    TSmartEdit_TRV* search_;
    TMirroredTreeView* tree_;
    TCategoryDetails* details_;
    TSmartLabel_TRV* hint_;
    QPointer<TCategoryCard> card_;
    QTimer detailsDelay_;
    int pickedUp_ = 0; ///< id
    bool isRead_ = false;
};
