#pragma once

#include "DataSource.h"
#include "NotifyEvent.h"
#include "SmartDBGrid_TRV.h"
#include "SuiteExport.h"

#include <QFrame>
#include <QVariant>
#include <QVector>

class QMenu;

/// A value that a TSmartDetailView_TRV can show.
struct SUITE_EXPORT TDetailItem
{
    QString Caption;                               ///< before the value and in the menu
    QVariant Value;                                ///< where no field gives it
    TGridColumn::TKind Kind = TGridColumn::ckText; ///< how the value is shown
    QString FieldName = {}; ///< of the data source, whose current row then gives the value; empty for none
    bool Selectable = true; ///< offered by the popup menu
    bool Denied = false;    ///< the user may not see the value
};

/// Shows one of several values with its caption, item 0 first. Which one, the user chooses from the popup
/// menu (right click, the arrow, Enter, Space, Alt+Down) or with Up and Down; Ctrl+C copies the value.
class SUITE_EXPORT TSmartDetailView_TRV : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int ItemIndex READ ItemIndex WRITE SetItemIndex)
    Q_PROPERTY(QString AccessDeniedText READ AccessDeniedText WRITE SetAccessDeniedText)
    Q_PROPERTY(bool OneLine READ OneLine WRITE SetOneLine)
    Q_PROPERTY(int Tag READ Tag WRITE SetTag)

public:
    explicit TSmartDetailView_TRV(QWidget* parent = nullptr);
    ~TSmartDetailView_TRV() override;

    int AddItem(const TDetailItem& item);                             ///< returns its index
    void ClearItems();                                                ///< shows nothing then
    int ItemCount() const { return static_cast<int>(items_.size()); } ///< of the items, shown or not
    /// Throws std::out_of_range where there is no such item; so do the setters below.
    const TDetailItem& Item(int index) const;
    void SetValue(int index, const QVariant& value); ///< shown at once where the item is
    void SetDenied(int index, bool denied);          ///< whether the user may not see the value
    /// After the items have been changed: rebuilds the popup menu of the selectable ones. An item shown that
    /// is gone, or cannot be selected any more, gives way to item 0.
    void Fill_PopMenu();
    QMenu* PopupMenu(); ///< of the selectable items; made when first asked for, owned by the view

    int ItemIndex() const { return itemIndex_; } ///< of the item shown
    void SetItemIndex(int index);                ///< raises nothing; below 0 counts as 0
    QString AccessDeniedText() const { return deniedText_; }
    void SetAccessDeniedText(const QString& text); ///< in the place of a value the user may not see
    bool OneLine() const { return oneLine_; }
    void SetOneLine(bool oneLine); ///< caption and value beside each other, otherwise the value below
    int Tag() const { return tag_; }
    void SetTag(int tag) { tag_ = tag; } ///< the owner's own number

    void SetDataSource(TDataSource* source); ///< not owned; may be null
    TDataSource* DataSource() const { return source_; }
    /// Shows the current row again, for rows that arrive without a move.
    void UpdateValue();

    QString ShownCaption() const; ///< empty where there is no item
    QString ShownValue() const;   ///< as painted: grouped thousands, solar dates, words for yes and no
    void CopyValue() const;       ///< to the clipboard, numbers ungrouped; a denied value is not copied

    TNotifyEvent OnChange; ///< the user has chosen another item

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void itemChosen(int index); ///< with OnChange

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const TDetailItem* Current() const;
    TDetailItem& ItemAt(int index);
    QVariant CurrentValue() const;
    void Choose(int index);
    void Step(int step);
    void OpenMenu();
    QRect ArrowRect() const;
    QRect CaptionRect() const;
    QRect ValueRect() const;
    void PaintValue(QPainter& painter) const;
    void PaintText(QPainter& painter, const QRect& area, const QString& text, Qt::TextFlag direction) const;

    QVector<TDetailItem> items_;
    QMenu* menu_ = nullptr;
    QPointer<TDataSource> source_;
    QString deniedText_;
    int itemIndex_ = 0;
    int tag_ = 0;
    bool oneLine_ = false;
};
