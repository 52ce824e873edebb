#include "TagStore.h"

#include "ADOQuery.h"
#include "SplicedText.h"

#include <algorithm>
#include <QSet>

namespace {

constexpr char16_t withColor[] = u"inner join colors on TagS.color_code = colors.code";

QString WithColor()
{
    return QString::fromUtf16(withColor);
}

QString Checked(const QString& code)
{
    if (!SplicedText::IsDigits(code)) {
        throw EADOError(
            TAdoErrorKind::WrongState,
            QStringLiteral(
                "«%1» کد برچسب نیست؛ کد برچسب تنها از رقم ساخته می‌شود.")
                .arg(code));
    }
    return code;
}

/// The value of a column `tags` with the code behind the others.
QString Appended(const QString& code)
{
    return SplicedText::Quoted(u',' + code + u',') + QStringLiteral(" else tags+") +
           SplicedText::Quoted(code + u',') + QStringLiteral(" end)");
}

QString Membership(const QString& code)
{
    return SplicedText::Quoted(QStringLiteral("%,") + code + QStringLiteral(",%"));
}

/// Cuts the texts before each comma.
QStringList CutAtCommas(const QString& text, qsizetype begin)
{
    QStringList result;
    for (qsizetype comma = text.indexOf(u',', begin); comma >= 0; comma = text.indexOf(u',', begin)) {
        result.append(text.mid(begin, comma - begin));
        begin = comma + 1;
    }
    return result;
}

QStringList CodesOf(QStringView tags)
{
    QStringList codes = TagCodes::Split(tags.toString());
    codes.removeIf([](const QString& code) { return !SplicedText::IsDigits(code); });
    return codes;
}

} // namespace

QString TTaggedRecords::Unwrapped(const QString& keyList)
{
    return keyList.mid(1, std::max<qsizetype>(keyList.size() - 2, 0));
}

QString TagStatements::AllTags()
{
    return QStringLiteral(
               "SELECT TagS.Code AS ID,TagS.Name,cl_code,Colors.code,[h-img] as image FROM TagS ") +
           WithColor();
}

QString TagStatements::TagsOfForm()
{
    return QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,Colors.code,[h-img] as image FROM TagS ") +
           WithColor();
}

QString TagStatements::Suggestions(const QStringList& excluded, const QString& typed)
{
    std::for_each(excluded.begin(), excluded.end(), Checked);
    const QString codes = excluded.isEmpty() ? QStringLiteral("-1") : excluded.join(u',');
    return QStringLiteral(
               "SELECT TagS.Code AS ID,TagS.Name,[h-img] as image,Colors.code,colors.cl_code FROM TagS ") +
           WithColor() + QStringLiteral(" where tags.code not in (") + codes +
           QStringLiteral(") and TagS.name like ") + SplicedText::Quoted(typed + u'%');
}

QString TagStatements::TagByName(const QString& name)
{
    return QStringLiteral("select * from tags where name=") + SplicedText::Quoted(name);
}

QString TagStatements::TagByCode(const QString& code)
{
    return QStringLiteral(
               "select tags.code,colors.code as Color_code,TagS.Name  from TagS inner join colors on "
               "tags.color_code = colors.code where tags.code=") +
           Checked(code);
}

QString TagStatements::NewTag(const QString& code)
{
    return QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,Colors.code FROM TagS ") + WithColor() +
           QStringLiteral(" where tags.code=") + Checked(code);
}

QString TagStatements::AddShown(const TTaggedRecords& records, const QString& code)
{
    return QStringLiteral("update ") + records.TableName +
           QStringLiteral(" set tags =(case when tags is null then ") + Appended(Checked(code)) +
           QStringLiteral(" where ") + records.KeyField + QStringLiteral(" in(") + records.Keys +
           QStringLiteral(") and (tags not like ") + Membership(code) + QStringLiteral(" OR TAGS IS NULL)");
}

QString TagStatements::AddUnshown(const TTaggedRecords& records, const QString& code)
{
    return QStringLiteral("update ") + records.TableName +
           QStringLiteral(" set Tags =(case when tags is null then ") + Appended(Checked(code)) +
           QStringLiteral(" where (TagS not like ") + Membership(code) +
           QStringLiteral(" or tags is null) and (") + records.KeyField + QStringLiteral(" in (") +
           records.Keys + QStringLiteral("))");
}

QString TagStatements::Remove(const TTaggedRecords& records, const QString& code)
{
    return QStringLiteral("update ") + records.TableName + QStringLiteral(" set tags = REPLACE(tags,") +
           SplicedText::Quoted(u',' + Checked(code) + u',') + u',' +
           SplicedText::Quoted(QStringLiteral(",")) + QStringLiteral(") where ") + records.KeyField +
           QStringLiteral(" in(") + records.Keys + QStringLiteral(") ");
}

QString TagStatements::ClearEmptied(const TTaggedRecords& records)
{
    return QStringLiteral("update ") + records.TableName + QStringLiteral(" set tags = NULL where ") +
           records.KeyField + QStringLiteral(" in(") + records.Keys + QStringLiteral(") and tags=") +
           SplicedText::Quoted(QStringLiteral(","));
}

QString TagStatements::StrongPictures()
{
    return QStringLiteral("select code,[h-img] from colors");
}

QString TagStatements::LightPictures()
{
    return QStringLiteral("select code,[l-img] from colors");
}

QString TagStatements::TagWithPicture(const QString& name)
{
    return QStringLiteral("select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS ") + WithColor() +
           QStringLiteral(" where tags.name =") + SplicedText::Quoted(name);
}

QString TagStatements::PicturesOfTags()
{
    return QStringLiteral("select TagS.color_code,TagS.Name,[H-img] from TagS ") + WithColor() + u' ';
}

QString TagStatements::MenuOfTags()
{
    return QStringLiteral("select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS ") + WithColor() +
           u' ';
}

QString TagStatements::MenuOfTagsAtButton()
{
    return QStringLiteral(
        " select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner  join colors on "
        "TagS.color_code = colors.code ");
}

QString TagStatements::CountOfTags()
{
    return QStringLiteral("select count(code) from tags");
}

QStringList TagCodes::Split(const QString& tags)
{
    QStringList codes = CutAtCommas(tags.trimmed(), 1);
    codes.sort();
    return codes;
}

QStringList TagCodes::SplitChosen(const QString& text)
{
    const QString chosen = text.trimmed();
    return CutAtCommas(chosen, chosen.startsWith(u',') ? 1 : 0);
}

void TSelectedTags::ReadCommon(TADOQuery& records)
{
    records.Requery();
    const int tags = records.FieldByName(QStringLiteral("TAGS"))->Index();
    const int count = records.RecordCount();
    QStringList members = CodesOf(records.TextAt(0, tags));
    for (QString& code : members)
        code = u',' + code + u',';
    for (int row = 0; row < count && !members.isEmpty(); ++row) {
        const QStringView text = records.TextAt(row, tags);
        members.removeIf([text](const QString& member) { return !text.contains(member); });
    }
    common_.clear();
    for (const QString& member : std::as_const(members))
        common_.append(member.mid(1, member.size() - 2));
}

void TSelectedTags::ReadPartial(TADOQuery& records)
{
    records.Requery();
    const int tags = records.FieldByName(QStringLiteral("TAGS"))->Index();
    const int count = records.RecordCount();
    partial_.clear();
    snapshot_ = common_;
    QSet<QStringView> seen;
    QStringView last;
    for (int row = 0; row < count; ++row) {
        const QStringView text = records.TextAt(row, tags);
        if (text.isNull())
            continue;
        last = text;
        if (seen.contains(text))
            continue;
        seen.insert(text);
        for (const QString& code : CodesOf(text)) {
            if (!partial_.contains(code))
                partial_.append(code);
        }
    }
    if (!last.isNull())
        snapshot_ = CodesOf(last);
    partial_.removeIf([this](const QString& code) { return common_.contains(code); });
}
