#pragma once

#include "ADOQuery.h"
#include "CategoryPicker.h"
#include "DataSource.h"
#include "Frame.h"

#include <memory>

class TAdvListEditorPer;
class TPopupMenu;
class TSmartButton_TRV;
class TSmartLabel_TRV;

/// Picks one category of the shared tree by going down level by level. The path from the top level to the
/// chosen category stands in the editor as bubbles; the menu always lists the categories under the last one.
/// The user may also type a name, and removing a bubble cuts the path back.
///
/// The owner calls open() and reads ChosenCategory(). See TCategoryPicker for what the operations do, and
/// TCategoryTree for the statements.
class BASEFRAME_EXPORT TCategory_frame : public TFrame
{
    Q_OBJECT

public:
    explicit TCategory_frame(QWidget* owner = nullptr);
    ~TCategory_frame() override;

    /// Fills the menu and the auto-completion; to be called before use. Clear removes the bubbles; otherwise
    /// those that the owner has put there stay.
    void open(bool Clear);

    /// The id of the chosen category; 0 where none is chosen. The value of the last bubble, except for names
    /// with a comma, whose bubbles hold other texts.
    int ChosenCategory() const { return picker_->ChosenId().toInt(); }

    /// What TCategoryPicker and TCategoryTree do under the same names.
    void Runfirst() { picker_->Runfirst(); }
    void createmenuItemByCode(int code) { picker_->createmenuItemByCode(code); }
    void create_bubble(int code, quint8 mode) { picker_->create_bubble(code, mode); }
    void DrawItem(const QString& name) { picker_->DrawItem(name); }
    bool exist(const QString& text) const { return picker_->exist(text); }
    /// Whether `text` is exactly one of all names, as the frame that was opened last has found them: the list
    /// is one for all frames of the process.
    bool Existinmenu(const QString& text) const;
    static QString splitter(const QString& s, quint8 field) { return TCategoryTree::splitter(s, field); }
    QStringList Fill_allPop() { return picker_->Fill_allPop(); }
    QStringList Fill_allPopname() { return picker_->Tree().AllNames(); }
    QStringList fill_pop(const QString& id) { return picker_->fill_pop(id); }
    /// The handler of the menu's items.
    void POP_click(QObject* Sender);

    TAdvListEditorPer* Editor = nullptr;
    /// Has no handler: the owner may set one, and "+" in the editor clicks it.
    TSmartButton_TRV* Select_btn = nullptr;
    TPopupMenu* PopupMenu1 = nullptr;
    TDataSource* tmpds = nullptr;
    TADOQuery* tmpqry = nullptr; ///< runs all statements of the frame and stays open on the last one
    TSmartLabel_TRV* SmartLabel_TRV1 = nullptr;

private:
    void BindHandlers();

    void EditorEnter() const;
    void EditorExit() const;
    void EditorMouseDown(int x, int y) const;
    void EditorKeyPress(QChar& key) const;
    void EditorKeyUp(quint16 key);
    void EditorValueEditDone(const QString& text);
    void TakeTypedName();
    void FollowRemoval();

    std::unique_ptr<TCategoryPicker> picker_;
};
