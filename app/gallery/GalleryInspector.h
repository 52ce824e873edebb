#pragma once

#include "GalleryEntry.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class QPlainTextEdit;
class QTreeWidget;
class QTreeWidgetItem;
class TTarvaSearch;

/// What goes on behind a frame: its criteria and values as they stand, and below them its events and the
/// statements that are sent, as they come.
class TGalleryInspector : public QWidget
{
    Q_OBJECT

public:
    explicit TGalleryInspector(QWidget* parent = nullptr);
    ~TGalleryInspector() override;

    /// Watches another frame; null for none. The journal goes on.
    void Watch(TFrame* frame, const TGalleryEntry& entry);
    void TellEvent(const QString& event);
    void TellStatement(const QString& text);

    QTreeWidget& State() const { return *state_; }
    QPlainTextEdit& Journal() const { return *journal_; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    using TRows = QVector<QPair<QString, QString>>;

    void FollowCriteria();
    void ShowState();
    static TRows RowsOf(const TTarvaSearch& criterion);
    void ShowGroup(int place, const QString& title, const TRows& rows);
    void Append(const QString& line);

    QTreeWidget* state_ = nullptr;
    QPlainTextEdit* journal_ = nullptr;
    QPointer<TFrame> frame_;
    /// The frame's own, taken down when it is chosen: a list that it opens later brings criteria of its own.
    QVector<QPointer<TTarvaSearch>> criteria_;
    TGalleryEntry entry_;
    QTimer refresh_;
};
