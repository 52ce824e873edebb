#pragma once

#include "Frame.h"
#include "SmartDBGrid_TRV.h"
#include "TagPictures.h"
#include "TagStore.h"

#include <QPointer>

class TADOCommand;
class TADOQuery;
class TAdvListEditorPer;
class TDataSource;
class TSmartLabel_TRV;
class TSmartPanel_TRV;

/// Puts coloured tags on the records that the host has selected, and takes them off. The editor shows the
/// tags of the selection, strong those that all records carry, light those that only some do; the grid above
/// it offers the tags whose names begin with what is typed. Every change is written to the records at once.
///
/// The owner sets Tags_editor's TableName, KeyField and KeyList (the keys between commas, wrapped in one
/// character at each end), gives ADOQuery2 a statement with one row for each selected record and a column
/// TAGS, and calls frame_load().
class BASEFRAME_EXPORT TTags : public TFrame
{
    Q_OBJECT
    Q_PROPERTY(TSmartDBGrid_TRV* grid READ grid WRITE SetGrid)

public:
    explicit TTags(QWidget* owner = nullptr);
    ~TTags() override;

    /// Reads pictures, tags and the records' tags anew. The frame calls it after every change that the editor
    /// has made.
    void frame_load();

    /// The host's grid of the records; may be null, is not owned. Its data set is reset through the host when
    /// a tag that some of the records carried was put on the others from the grid of suggestions.
    TSmartDBGrid_TRV* grid() const { return FGrid; }
    void SetGrid(TSmartDBGrid_TRV* grid) { FGrid = grid; }

    /// Reads the records and gives the codes, between commas, of the tags that all of them carry (mode 1) or
    /// that some of them do (mode 2, after mode 1).
    void Fill_x(int mode, QString& list);
    /// TagCodes::Split.
    static QStringList splitter(const QString& text);
    /// Whether an item of the editor has the code as its value.
    bool finder(const QString& code) const;
    /// Reads the suggestions for what is typed.
    void exec_sql();
    void fill_imageList(); ///< reads the pictures of the colours anew
    /// Adds the items of one mode of Fill_x to the editor.
    void fill_adveditor(int mode);
    /// Lays the grid of suggestions out, and gives the frame the height for their number: 120 and 20 for each
    /// of up to nine, 200 for more.
    void Rearrang();

    /// For a host that shows the suggestions in a grid of its own, bound to DataSource1: put the tag of the
    /// current row on the records, like Enter in Tags_grid (a double click in which does nothing).
    void Tags_GRDDblClick(QObject* sender);
    void Tags_GRDKeyDown(QObject* sender, quint16& key, Qt::KeyboardModifiers shift);

    TSmartPanel_TRV* SmartPanel_TRV1 = nullptr;
    TAdvListEditorPer* Tags_editor = nullptr;
    /// Around the grid; hidden until the first frame_load().
    TSmartPanel_TRV* Tags_panel = nullptr;
    TSmartDBGrid_TRV* Tags_grid = nullptr;
    /// Tags and suggestions.
    TADOQuery* Tags_qry = nullptr;
    TDataSource* DataSource1 = nullptr;
    /// The selected records; the owner gives it its statement, the frame runs it whenever it needs their
    /// tags.
    TADOQuery* ADOQuery2 = nullptr;
    TADOQuery* tmp_qry = nullptr;
    TADOQuery* Colors_qry = nullptr;
    TADOCommand* cmd = nullptr;

Q_SIGNALS:
    /// The tags of the records have been written. For owners whose list of records is not a TADOQuery.
    void tagsChanged();

private:
    void MakeData();
    void BindHandlers();

    void Tags_editorEnter() const;
    void Tags_editorExit() const;
    void Tags_editorKeyUp(quint16 key);
    void Tags_gridKeyDown(quint16 key);
    void Tags_qryAfterOpen();

    // Each tells whether it has written to the records.
    bool AddTyped();
    bool AddExisting(const QString& name);
    bool AddNew(const QString& name);
    bool AddCurrentRow();
    bool RemoveDeleted();

    QString CurrentRow(const QString& field) const;
    TTaggedRecords Records() const;
    void AddStrong(const QString& name, const QString& color);
    void TurnStrong(int item) const;
    void Write(const QString& statement) const;
    void ResetGrid() const;

    QPointer<TSmartDBGrid_TRV> FGrid;
    TSmartLabel_TRV* nothingToShow_ = nullptr;
    TTagPictures pictures_;
    TSelectedTags tags_;
    int colorCount_ = 0;
};
