#include "TagColumn.h"
#include "TagsForm.h"
#include "TestCase.h"

#include <algorithm>
#include <QRandomGenerator>
#include <QSet>

namespace {

constexpr int Goods = 200;
constexpr int Tags = 20;
constexpr int Operations = 5000;
constexpr int LongestSelection = 12;

/// Neither name begins with another one.
QString NameOf(int tag)
{
    return QStringLiteral("برچسب %1").arg(tag, 2, 10, QLatin1Char('0'));
}
int ColorOf(int tag)
{
    return 1 + tag % TTagsForm::Colors;
}

/// What the frame and the database have to show, told in other words.
class TReference
{
public:
    QVector<QVector<int>> Records = QVector<QVector<int>>(Goods);
    QList<int> Selection; ///< ascending
    QStringList Values;   ///< of the items
    QStringList Snapshot;

    void Load()
    {
        QStringList common;
        QStringList partial;
        Snapshot.clear();
        for (int tag = 1; tag <= Tags; ++tag) {
            const auto carries = [&](int key) { return Records[key - 1].contains(tag); };
            if (!Selection.isEmpty() && std::all_of(Selection.begin(), Selection.end(), carries))
                common.append(QString::number(tag));
            else if (std::any_of(Selection.begin(), Selection.end(), carries))
                partial.append(QString::number(tag));
        }
        common.sort();
        partial.sort();
        Values = common + partial;
        for (const int key : Selection) {
            if (!Records[key - 1].isEmpty())
                Snapshot = TextsOf(Records[key - 1]);
        }
        Snapshot.sort();
    }
    void Put(int tag)
    {
        for (const int key : Selection) {
            if (!Records[key - 1].contains(tag))
                Records[key - 1].append(tag);
        }
    }
    /// What deleting an item takes off: all of the snapshot that no item stands for.
    void DeleteItem(int item)
    {
        Values.removeAt(item);
        for (const QString& code : std::as_const(Snapshot)) {
            if (Values.contains(code))
                continue;
            for (const int key : Selection)
                Records[key - 1].removeAll(code.toInt());
        }
        Load();
    }
    bool IsCommon(int tag) const
    {
        return !Selection.isEmpty() && std::all_of(Selection.begin(), Selection.end(),
                                                   [&](int key) { return Records[key - 1].contains(tag); });
    }
    QStringList Columns() const
    {
        QStringList columns;
        for (const QVector<int>& tags : Records)
            columns.append(tags.isEmpty() ? QStringLiteral("NULL") : u',' + TextsOf(tags).join(u',') + u',');
        return columns;
    }

private:
    static QStringList TextsOf(const QVector<int>& tags)
    {
        QStringList texts;
        for (const int tag : tags)
            texts.append(QString::number(tag));
        return texts;
    }
};

} // namespace

/// Plays a user at random, by keys, beside the reference.
class TagsModelTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fiveThousandOperationsAgreeWithTheReference()
    {
        TTagsForm form;
        for (int tag = 1; tag <= Tags; ++tag)
            form.Tables.AddTag(tag, NameOf(tag), ColorOf(tag));
        for (int key = 1; key <= Goods; ++key)
            form.Tables.AddGoods(key, QVariant());
        TReference reference;
        Select(form, reference);
        QVERIFY(form.Show());
        for (int operation = 0; operation < Operations; ++operation) {
            const QString done = Operate(form, reference);
            const QStringList columns = form.Tables.AllTags();
            const QString place = QStringLiteral("operation %1: %2").arg(operation).arg(done);
            QVERIFY2(columns == reference.Columns(), qUtf8Printable(place));
            QVERIFY2(AreWellFormed(columns), qUtf8Printable(place));
            QVERIFY2(ValuesOf(form) == reference.Values, qUtf8Printable(place));
            QVERIFY2(form.Editor()->SnapshotCodes == reference.Snapshot, qUtf8Printable(place));
        }
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Confirm")), 0);
        for (const QString& kind : {QStringLiteral("select"), QStringLiteral("enter"), QStringLiteral("grid"),
                                    QStringLiteral("delete")})
            QVERIFY2(counts_[kind] > Operations / 20, qUtf8Printable(kind));
    }

private:
    QString Operate(TTagsForm& form, TReference& reference)
    {
        const int kind = static_cast<int>(random_.bounded(10));
        QString done = QStringLiteral("select");
        if (kind < 3)
            done = PutByEnter(form, reference);
        else if (kind < 5)
            done = PutByGrid(form, reference);
        else if (kind < 8)
            done = DeleteByKey(form, reference);
        else
            Select(form, reference);
        ++counts_[done];
        return done;
    }

    void Select(TTagsForm& form, TReference& reference)
    {
        QSet<int> keys;
        const int count = 1 + static_cast<int>(random_.bounded(LongestSelection));
        // Neighbours, so that selections overlap often.
        const int first = 1 + static_cast<int>(random_.bounded(Goods));
        for (int i = 0; i < count; ++i)
            keys.insert(1 + (first + static_cast<int>(random_.bounded(LongestSelection))) % Goods);
        reference.Selection = keys.values();
        std::sort(reference.Selection.begin(), reference.Selection.end());
        form.Select(reference.Selection);
        reference.Load();
    }

    QString PutByEnter(TTagsForm& form, TReference& reference)
    {
        const int tag = 1 + static_cast<int>(random_.bounded(Tags));
        form.Enter(NameOf(tag));
        reference.Put(tag);
        reference.Load();
        return QStringLiteral("enter");
    }

    QString PutByGrid(TTagsForm& form, TReference& reference)
    {
        const int tag = 1 + static_cast<int>(random_.bounded(Tags));
        const bool isSuggested = form.Frame->Tags_qry->Locate(QStringLiteral("ID"), {tag});
        if (isSuggested == reference.IsCommon(tag))
            return QStringLiteral("suggestions are wrong");
        if (!isSuggested)
            return QStringLiteral("common");
        const bool isShown = form.Editor()->Values().IndexOfText(NameOf(tag)) >= 0;
        form.Press(Qt::Key_Up);
        form.Frame->Tags_qry->Locate(QStringLiteral("ID"), {tag});
        QTest::keyPress(form.Grid(), Qt::Key_Return);
        reference.Put(tag);
        // A new item stands for its colour until the next reload.
        if (!isShown)
            reference.Values.append(QString::number(ColorOf(tag)));
        // Sometimes the release does not arrive, as when another window comes up.
        if (random_.bounded(2) == 0) {
            QTest::keyRelease(TTagsForm::Typed(), Qt::Key_Return);
            reference.Load();
        }
        return QStringLiteral("grid");
    }

    QString DeleteByKey(TTagsForm& form, TReference& reference)
    {
        const int count = static_cast<int>(reference.Values.size());
        if (count == 0)
            return QStringLiteral("nothing to delete");
        const bool backwards = random_.bounded(2) == 0;
        const int item = static_cast<int>(random_.bounded(count));
        GoTo(form, item + (backwards ? 1 : 0), count);
        form.Press(backwards ? Qt::Key_Backspace : Qt::Key_Delete);
        reference.DeleteItem(item);
        return QStringLiteral("delete");
    }

    /// Puts the caret to a place among the items, from the nearer end.
    static void GoTo(const TTagsForm& form, int place, int count)
    {
        const bool fromBegin = place < count / 2;
        form.Press(fromBegin ? Qt::Key_Home : Qt::Key_End);
        for (int steps = fromBegin ? place : count - place; steps > 0; --steps)
            form.Press(fromBegin ? Qt::Key_Left : Qt::Key_Right);
    }

    static QStringList ValuesOf(const TTagsForm& form)
    {
        QStringList values;
        for (int i = 0; i < form.Editor()->Values().Count(); ++i)
            values.append(form.Editor()->Values()[i].Value);
        return values;
    }

    bool AreWellFormed(const QStringList& columns)
    {
        return std::all_of(columns.begin(), columns.end(), [this](const QString& column) {
            if (!wellFormed_.contains(column) && TagColumn::IsWellFormed(column))
                wellFormed_.insert(column);
            return wellFormed_.contains(column);
        });
    }

    QSet<QString> wellFormed_;
    QRandomGenerator random_{1};
    QHash<QString, int> counts_;
};

QTEST_MAIN(TagsModelTest)
#include "TagsModelTest.moc"
