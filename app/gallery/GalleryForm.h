#pragma once

#include "GalleryEntry.h"
#include "Page.h"

class QLabel;
class QListWidget;
class QStackedWidget;
class QVBoxLayout;
class TGalleryInspector;

/// The frames of the package side by side with what they hand out, for those who build forms of them: a list
/// of all frames, the chosen one at work on the open database, and beside it its criteria, its values, its
/// events and the statements that it sends. A frame is made when it is first chosen.
class TGalleryForm : public TPage
{
    Q_OBJECT

public:
    TGalleryForm(TReferenceHost& host, QWidget* parent = nullptr);
    ~TGalleryForm() override;

    void Enter() override;
    QVector<TKeyHelp> Keys() const override;

    const QVector<TGalleryEntry>& Entries() const { return entries_; }
    void Choose(int index) const;
    int Chosen() const;
    /// The frame that is shown; null where it could not be made.
    TFrame* ShownFrame() const;
    QListWidget& List() const { return *list_; }
    const TGalleryInspector& Inspector() const { return *inspector_; }

private:
    void Lay();
    void FillList();
    void ConnectKeys();
    QWidget* NewStage();
    void ShowChosen(int index);
    void MakeFrame(int index);
    void PutIntoTabOrder(TFrame* frame) const;
    void Step(int step);
    void FocusFrame() const;
    void SwitchBetweenListAndFrame() const;

    TReferenceHost* host_;
    QVector<TGalleryEntry> entries_;
    QVector<TFrame*> frames_; ///< one for each entry, null until it is made
    QListWidget* list_ = nullptr;
    QLabel* title_ = nullptr;
    QStackedWidget* stack_ = nullptr;
    TGalleryInspector* inspector_ = nullptr;
};
