#pragma once

#include "MenuItem.h"
#include "SuiteExport.h"

#include <QFontMetrics>
#include <QIcon>
#include <QImage>
#include <QMenu>
#include <QSet>
#include <QVector>

class QLabel;
class QWidgetAction;

/// A right-to-left menu of names that stays usable with a thousand of them: it scrolls, and what the user
/// types narrows it to the captions that hold the typed text as a Persian reader compares them. Backspace
/// widens it again, Escape first empties the typed text and then closes the menu. Captions are names: they
/// have no hot keys, and '&' is shown as it stands.
class SUITE_EXPORT TPopupMenu : public QMenu
{
    Q_OBJECT

public:
    explicit TPopupMenu(QWidget* parent = nullptr);
    ~TPopupMenu() override;

    /// The pictures of the items added from now on, by image index.
    void SetImages(const QVector<QImage>& images);
    /// Adds an item at the end, owned by the menu. An index without a picture shows none.
    TMenuItem* AddItem(const QString& caption, int tag = 0, int imageIndex = -1);
    /// Takes all items out; also from within the handler of one of them.
    void Clear();
    /// Of all items, those that typing hides too.
    int Count() const { return static_cast<int>(items_.size()); }
    /// In the order of adding; throws std::out_of_range.
    TMenuItem* Item(int index) const;

    /// Whether the menu lies in the middle under the point that it is opened at. False by default: then it
    /// lies beside it, at the mouse pointer to its left.
    void SetCentred(bool centred) { isCentred_ = centred; }
    /// Opens the menu at a point of the screen and returns at once. A menu without items stays closed.
    void Popup(const QPoint& screenPosition);
    /// What the user has typed since the menu was opened.
    QString FindText() const { return findText_; }

protected:
    bool event(QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool EditFindText(const QKeyEvent& event);
    void SetFindText(const QString& text);
    void MakeFindRow();
    QAction* ShowMatches();
    void FitToItems(QAction* active);
    void FindWidest();
    void CentreAt(int x);

    QVector<QIcon> icons_;
    QVector<TMenuItem*> items_;
    QLabel* findLabel_ = nullptr; ///< made, with its row, when something is first sought
    QWidgetAction* findRow_ = nullptr;
    QString findText_;
    QSet<const QAction*> widest_; ///< while the menu is measured: what is measured in its own font
    QFontMetrics narrow_;         ///< for all others
    int top_ = 0;                 ///< where the menu was opened, on the screen
    int right_ = 0;               ///< its right edge
    bool isBusy_ = false;
    bool isCentred_ = false;
};
