#pragma once

#include "Frame.h"
#include "TagPictures.h"
#include "TarvaSearch.h"

#include <QStringList>

class TADOCommand;
class TADOQuery;
class TAdvListEditorPer;
class TPopupMenu;
class TSmartButton_TRV;
class TSmartLabel_TRV;

/// Filters a list by a tag that is typed or picked from the menu of all tags. Of several chosen tags only the
/// last one filters; that is intended. With searching switched off the frame picks tags, and creates those
/// that do not exist yet as long as there are fewer than ten.
///
/// The owner adds the field (TSearchDataType::idtCodeList) to TarvaSearch_tags, sets searchble and calls
/// frame_load(). The criterion's value is the code of the tag, or the empty text; the first key or pick
/// switches it on.
class BASEFRAME_EXPORT TTags_search_FRM : public TFrame
{
    Q_OBJECT
    Q_PROPERTY(bool searchble READ searchble WRITE SetSearchble)

public:
    explicit TTags_search_FRM(QWidget* owner = nullptr);
    ~TTags_search_FRM() override;

    /// Whether the frame filters; if not, it only picks. False until the owner says otherwise.
    bool searchble() const { return searchble_; }
    void SetSearchble(bool on) { searchble_ = on; }

    /// Starts empty, with the tags, pictures and menu as the database has them now.
    void frame_load();
    /// Writes the code of the last item, or the empty text, to the criterion and switches it on.
    void Filter();
    /// TagCodes::SplitChosen.
    static QStringList splitter(const QString& text);
    /// Whether an item of the editor has this text.
    bool Tag_Registered(const QString& name) const;
    /// Whether there is a tag of this name that an item of the editor shows; with `flag`, whether there is
    /// one at all.
    bool exist(const QString& name, bool flag);
    /// Where exist() has stopped looking: at the item it has found, else behind the last one.
    int ItemIndex() const { return itemIndex_; }
    /// Whether there is a tag of this name. Colors_qry stands on it then.
    bool exist1(const QString& name) const;
    /// Whether a tag may still be created: there are fewer than ten.
    bool AllowinsertTag() const;
    /// Fills the menu anew.
    void DrawItems();
    /// Reads the pictures of the tags' colours anew.
    void fill_imageList();
    /// The codes of the chosen tags, in the editor's order, as they were after the last key that the
    /// criterion has followed.
    const QStringList& ChosenCodes() const { return chosen_; }

    /// The handler of the menu's items.
    void POP_click(QObject* Sender);

    // Bound to nothing; forms of owners refer to them.
    void tags_CHKClick();
    void Tag_editor1KeyUp();
    void Tag_editor1Enter() const { Tag_editorEnter(); }
    void Tag_editor1Exit() const; ///< leaves what is typed alone
    void Tag_editor1ValueEditDone() { Tag_editorValueEditDone(); }

    TSmartLabel_TRV* Tags_LBL = nullptr;
    TAdvListEditorPer* Tag_editor = nullptr;
    TSmartButton_TRV* add_btn = nullptr;
    TSmartButton_TRV* TagHelp_BTN = nullptr;
    TPopupMenu* tags_list_pop = nullptr;
    TTarvaSearch* TarvaSearch_tags = nullptr;
    TADOQuery* Tags_qry = nullptr;   ///< the tags
    TADOQuery* Colors_qry = nullptr; ///< lookups and pictures
    TADOCommand* cmd = nullptr;      ///< for the owner's use

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void MakeComponents();
    void BindHandlers();

    void Tag_editorEnter() const;
    void Tag_editorExit() const;
    void Tag_editorKeyUp(quint16 key);
    void Tag_editorKeyPress(QChar key);
    void Tag_editorValueEditDone();
    void add_btnClick();
    void TagHelp_BTNClick();

    void TakeTyped();
    void CreateTag(const QString& name);
    void AddNewTag(quint8 code);
    void EndTyping() const;
    void FollowChosen();
    void ShowTooltip(QWidget& control, const QString& text, int milliseconds) const;

    bool searchble_ = false;
    int itemIndex_ = 0;
    QStringList chosen_;
    TTagPictures pictures_;
};
