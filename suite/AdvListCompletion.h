#pragma once

#include "AdvListMatches.h"

#include <functional>
#include <QImage>
#include <QListView>
#include <QPointer>

class TAdvListEditorPer;

/// The list of entries that complete the typed text, below its editor. The focus stays in the editor, which
/// hands over the keys; a click chooses. It goes when its editor is left or hidden and when the mouse is
/// pressed elsewhere.
class TAdvListCompletion : public QListView
{
    Q_OBJECT

public:
    TAdvListCompletion(TAdvListEditorPer* editor, const TAdvListValues& entries);
    ~TAdvListCompletion() override;

    /// Lists entries, none of them gone to; hides where there are none.
    void Offer(const QVector<int>& entries, const QVector<QImage>& images);
    /// The entry that the user has gone to; -1 where there is none.
    int Entry() const;
    /// Up, Down, PageUp, PageDown; up from the first entry leads back to the text.
    bool TakeKey(int key);

    /// An entry was clicked; raised when the click is over.
    std::function<void(int entry)> OnChosen;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    class TModel;

    void Place();
    void Watch(bool on);

    TAdvListEditorPer* editor_;
    TModel* model_;
    bool watching_ = false;
};
