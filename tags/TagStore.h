#pragma once

#include "PackageExport.h"

#include <QStringList>

class TADOQuery;

/// The records that a tag is put on or taken off. The parts stand in the statements as they are: they are the
/// host's own words, not the user's.
struct BASEFRAME_EXPORT TTaggedRecords
{
    QString TableName; ///< has a column `tags`
    QString KeyField;  ///< its key column
    QString Keys;      ///< between commas; empty where no record is selected

    /// A host's list of keys without the one character that it is wrapped in at each end: `(3,7)` is `3,7`.
    static QString Unwrapped(const QString& keyList);
};

/// The statements of the tag frames, letter for letter. Tags are told by their codes in decimal digits; what
/// is no such code is refused with EADOError(WrongState) before there is a statement. Names are quoted here.
namespace TagStatements {

/// All tags with their colours: ID, Name, cl_code, code, image.
BASEFRAME_EXPORT QString AllTags();
/// The same without the colour's text, as it stands in forms: ID, Name, code, image.
BASEFRAME_EXPORT QString TagsOfForm();
/// The tags whose names begin with `typed` (the wildcards of LIKE count), without those of `excluded`.
BASEFRAME_EXPORT QString Suggestions(const QStringList& excluded, const QString& typed);
/// The tag of exactly this name, all columns of `tags`.
BASEFRAME_EXPORT QString TagByName(const QString& name);
/// A tag for an item of the editor: code, Color_code, Name.
BASEFRAME_EXPORT QString TagByCode(const QString& code);
/// A tag that has just been made: ID, Name, Code (the colour's).
BASEFRAME_EXPORT QString NewTag(const QString& code);
/// Puts a tag that the editor shows already on those records that do not carry it.
BASEFRAME_EXPORT QString AddShown(const TTaggedRecords& records, const QString& code);
/// The same for a tag that the editor does not show yet. Its letter case and order differ on purpose.
BASEFRAME_EXPORT QString AddUnshown(const TTaggedRecords& records, const QString& code);
/// Takes a tag off. Leaves a lone comma where it was the last one, so that ClearEmptied must follow at once.
BASEFRAME_EXPORT QString Remove(const TTaggedRecords& records, const QString& code);
/// NULL in place of the lone commas that Remove has left.
BASEFRAME_EXPORT QString ClearEmptied(const TTaggedRecords& records);
/// The colours' pictures for a tag on all of the records, and for one on some of them: code, picture.
BASEFRAME_EXPORT QString StrongPictures();
BASEFRAME_EXPORT QString LightPictures();

/// A tag by its name with its colour's picture: code, color_code, Name, H-img.
BASEFRAME_EXPORT QString TagWithPicture(const QString& name);
/// The colour pictures of all tags, tag by tag: color_code, Name, H-img.
BASEFRAME_EXPORT QString PicturesOfTags();
/// All tags for a menu: code, color_code, Name, H-img.
BASEFRAME_EXPORT QString MenuOfTags();
/// The same for the question whether there is any tag; its blanks differ on purpose.
BASEFRAME_EXPORT QString MenuOfTagsAtButton();
/// How many tags there are.
BASEFRAME_EXPORT QString CountOfTags();

} // namespace TagStatements

/// Lists of tag codes. A column `tags` is NULL, or holds the codes in the order in which the tags were put
/// on, each followed by a comma, with one more comma in front: `,5,12,3,`.
namespace TagCodes {

/// Reads a column `tags`: the texts before each comma but the first character, ordered as texts ("12" before
/// "5"). What stands behind the last comma is no code.
BASEFRAME_EXPORT QStringList Split(const QString& tags);
/// Reads a list of chosen codes, with or without a comma in front, in its order; empty where there is no
/// comma.
BASEFRAME_EXPORT QStringList SplitChosen(const QString& text);

} // namespace TagCodes

/// The tags that selected records carry. The records come from a query with one row for each and a column
/// TAGS, which is run again for each reading. Texts that are no codes are passed over.
class BASEFRAME_EXPORT TSelectedTags
{
public:
    /// Reads the codes that every record carries. One record without tags, or none at all, leaves none.
    void ReadCommon(TADOQuery& records);
    /// Reads the codes that some record carries, without those that ReadCommon has found; and the snapshot.
    void ReadPartial(TADOQuery& records);

    const QStringList& Common() const { return common_; }   ///< ordered as texts
    const QStringList& Partial() const { return partial_; } ///< in order of first appearance
    /// The codes of the last record that has tags, or the common ones where none has: only these are looked
    /// at when items have been deleted. That narrowing is intended.
    const QStringList& Snapshot() const { return snapshot_; }

private:
    QStringList common_;
    QStringList partial_;
    QStringList snapshot_;
};
