#pragma once

#include "ADOQuery.h"
#include "CategoryPicker.h"
#include "DataSource.h"
#include "Frame.h"
#include "TarvaSearch.h"

#include <memory>

class TAdvListEditorPer;
class TPopupMenu;
class TSmartButton_TRV;
class TSmartLabel_TRV;

/// Filters a list by one category, picked as in TCategory_frame and started from the user's default category.
///
/// The owner adds the field to TarvaSearch1 and calls open(). The criterion's value is the id of the chosen
/// category between commas (",12,"), and the empty text where there is none. After open() and after a name
/// that was completed it is the bare id ("12"): both forms mean the same category. The first publication
/// switches the criterion on. See TCategoryPicker for what the operations do, and TCategoryTree for the
/// statements.
class BASEFRAME_EXPORT TCategorysearchframe : public TFrame
{
    Q_OBJECT

public:
    /// Of open() and DrawDefaultItems(). Intended: the kinds of active_checker() are numbered the other way
    /// round.
    enum TListKind : quint8 { PersonLists = 1, GoodsLists = 2 };
    /// Of active_checker().
    enum TRecordKind : quint8 { Goods = 1, Person = 2 };

    explicit TCategorysearchframe(QWidget* owner = nullptr);
    ~TCategorysearchframe() override;

    /// Starts from the user's default category for this kind of lists; to be called when he is signed in.
    void open(quint8 kind);
    /// Shows the user's default category, or none, publishes its bare id and fills the auto-completion.
    /// Throws std::invalid_argument for a `kind` that is no TListKind.
    void DrawDefaultItems(quint8 kind);
    /// Shows the category of a record and publishes it; a record without one empties the path. Throws
    /// std::invalid_argument for a `code` that is not made of ASCII digits, and for a `kind` that is no
    /// TRecordKind.
    void active_checker(const QString& code, quint8 kind);

    /// The id of the chosen category; 0 where none is chosen. The value of the last bubble, except for names
    /// with a comma, whose bubbles hold other texts.
    int ChosenCategory() const { return picker_->ChosenId().toInt(); }

    /// What TCategoryPicker and TCategoryTree do under the same names.
    void Runfirst() { picker_->Runfirst(); }
    void createmenuItemByCode(int code) { picker_->createmenuItemByCode(code); }
    void create_bubble(int code, quint8 mode) { picker_->create_bubble(code, mode); }
    void DrawItem(const QString& name) { picker_->DrawItem(name); }
    bool exist(const QString& text) const { return picker_->exist(text); }
    /// Whether `text` is exactly the caption of an entry now in the menu.
    bool Existinmenu(const QString& text) const;
    static QString splitter(const QString& s, quint8 field) { return TCategoryTree::splitter(s, field); }
    QStringList Fill_allPop() { return picker_->Fill_allPop(); }
    QStringList fill_pop(const QString& id) { return picker_->fill_pop(id); }
    /// The handler of the menu's items.
    void POP_click(QObject* Sender);
    /// Opens the menu at the mouse pointer.
    void select_BTNClick(QObject* Sender) const;
    /// The handler of the editor, for owners that put their own in front of it.
    void EditorKeyDown(QObject* Sender, quint16& Key, Qt::KeyboardModifiers Shift) const;

    TAdvListEditorPer* Editor = nullptr;
    TSmartButton_TRV* select_BTN = nullptr;
    TPopupMenu* PopupMenu1 = nullptr;
    TDataSource* tmpds = nullptr;
    TADOQuery* tmpqry = nullptr; ///< runs all statements of the frame and stays open on the last one
    TTarvaSearch* TarvaSearch1 = nullptr;
    TSmartLabel_TRV* CategorySearch_LBL = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void BindHandlers();

    void EditorEnter() const;
    void EditorExit() const;
    void EditorKeyPress(QChar& key) const;
    void EditorKeyUp(quint16 key);
    void EditorValueEditDone(const QString& text);
    void TakeShownName();
    void FollowRemoval();
    void OfferUnderRemoved();

    void ShowCategory(std::optional<int> category);
    QString ValueBetweenCommas() const;
    void Publish(const QString& value) const;

    std::unique_ptr<TCategoryPicker> picker_;
};
