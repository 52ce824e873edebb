#include "AdoTestCase.h"
#include "Engine.h"
#include "SqliteFile.h"

#include <limits>
#include <QDateTime>

namespace {

const char TableWords[] =
    "CREATE TABLE AllTypes(Flag BIT, Small TINYINT, Number INT, Large BIGINT, Real FLOAT,"
    "Amount MONEY_TEXT, Stock DECIMAL_TEXT(18,3), Day DATE_TEXT, Moment DATETIME_TEXT,"
    "Name NVARCHAR(200), Notes TEXT, Picture BLOB)";

QString Persian(int length)
{
    const QString pattern = QStringLiteral("حساب‌های دریافتنی ۱۲۳ 😀 كاف ي ");
    return pattern.repeated(length / pattern.size() + 1).left(length);
}

QByteArray Bytes(int count)
{
    QByteArray bytes(count, Qt::Uninitialized);
    for (int i = 0; i < count; ++i)
        bytes[i] = static_cast<char>((i * 31 + i / 256) & 0xff);
    return bytes;
}

} // namespace

class ValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aValueComesBackAsItWasWritten_data();
    void aValueComesBackAsItWasWritten();
    void nullIsNullInEveryColumn();
    void aColumnKnowsItsTypeAndSize();
    void anExpressionTakesTheTypeOfItsFirstValue();
    void anExpressionWithoutAValueIsAText();
    void moneyIsReadInItsOneSpelling_data();
    void moneyIsReadInItsOneSpelling();
    void aValueThatTheDeclarationDoesNotForeseeIsNotBent();
    void datesOfQtAreStoredAsIsoText();
    void aCellMayBeReadTwiceAndInSeveralWays();
    void theNumberOfParametersMustFit_data();
    void theNumberOfParametersMustFit();
    void aParameterOfAForeignTypeIsRefused();
    void aTextIsNeverTakenForAStatement();

private:
    QVariant Stored(const QString& column, const QVariant& value);

    std::unique_ptr<TSqliteFile> file_;
    std::unique_ptr<IEngine> engine_;
};

void ValuesTest::initTestCase()
{
    file_ = std::make_unique<TSqliteFile>();
    file_->Run(QString::fromLatin1(TableWords));
    engine_ = OpenEngine(file_->ConnectionString(), {});
}

void ValuesTest::init()
{
    engine_->Execute(QStringLiteral("DELETE FROM AllTypes"), {});
}

QVariant ValuesTest::Stored(const QString& column, const QVariant& value)
{
    engine_->Execute(QStringLiteral("INSERT INTO AllTypes (%1) VALUES (?)").arg(column), {value});
    const auto rows = engine_->Execute(QStringLiteral("SELECT %1 FROM AllTypes").arg(column), {});
    return rows->Next() ? rows->Value(0) : QVariant(QStringLiteral("no row"));
}

void ValuesTest::aValueComesBackAsItWasWritten_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char* name, const char* column, const QVariant& value) {
        QTest::newRow(name) << QString::fromLatin1(column) << value;
    };
    row("no character", "Name", QStringLiteral(""));
    row("a letter", "Name", QStringLiteral("ک"));
    row("zero-width non-joiner", "Name", QStringLiteral("می‌خواهم"));
    row("emoji", "Name", QStringLiteral("😀👨‍👩‍👧"));
    row("blanks at both ends", "Name", QStringLiteral("  x  "));
    row("line ends", "Notes", QStringLiteral("a\r\nb\nc\td"));
    row("a zero character within", "Notes", QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"));
    row("a byte order mark at the beginning", "Notes", QString(QChar(0xFEFF)) + QStringLiteral("متن"));
    row("4,000 characters", "Notes", Persian(4000));
    row("1,000,000 characters", "Notes", Persian(1000000));
    row("a number in a text column", "Name", QStringLiteral("007"));
    row("true", "Flag", true);
    row("false", "Flag", false);
    row("smallest int", "Number", std::numeric_limits<int>::min());
    row("largest int", "Number", std::numeric_limits<int>::max());
    row("tiny int", "Small", 255);
    row("smallest bigint", "Large", std::numeric_limits<qint64>::min());
    row("largest bigint", "Large", std::numeric_limits<qint64>::max());
    row("a third", "Real", 1.0 / 3.0);
    row("a whole float", "Real", 5.0);
    row("smallest float", "Real", std::numeric_limits<double>::denorm_min());
    row("largest float", "Real", std::numeric_limits<double>::max());
    row("largest money", "Amount", QStringLiteral("922337203685477.5807"));
    row("smallest money", "Amount", QStringLiteral("-922337203685477.5808"));
    row("decimal", "Stock", QStringLiteral("123456789012345.678"));
    row("a date", "Day", QStringLiteral("2024-02-29"));
    row("first date", "Day", QStringLiteral("0001-01-01"));
    row("a moment", "Moment", QStringLiteral("2024-02-29T23:59:59"));
    row("a moment with milliseconds", "Moment", QStringLiteral("9999-12-31T23:59:59.997"));
    row("no byte", "Picture", QByteArray(""));
    row("zero bytes", "Picture", QByteArray(3, '\0'));
    row("10 MB", "Picture", Bytes(10 * 1024 * 1024));
}

void ValuesTest::aValueComesBackAsItWasWritten()
{
    QFETCH(QString, column);
    QFETCH(QVariant, value);
    const QVariant stored = Stored(column, value);
    QCOMPARE(stored.typeId(), value.typeId());
    QVERIFY(stored == value);
    QCOMPARE(stored.isNull(), false);
}

void ValuesTest::nullIsNullInEveryColumn()
{
    engine_->Execute(QStringLiteral("INSERT INTO AllTypes (Flag, Notes) VALUES (?, ?)"),
                     {QVariant(), QVariant::fromValue(nullptr)});
    const auto rows = engine_->Execute(QStringLiteral("SELECT * FROM AllTypes"), {});
    QVERIFY(rows->Next());
    QCOMPARE(rows->Columns().size(), 12);
    for (int i = 0; i < rows->Columns().size(); ++i) {
        QVERIFY(rows->IsNull(i));
        QVERIFY(!rows->Value(i).isValid());
        QVERIFY(rows->Text(i).isNull());
        QVERIFY(rows->Blob(i).isNull());
        QCOMPARE(rows->Int64(i), 0);
        QCOMPARE(rows->Double(i), 0.0);
    }
    QVERIFY(!rows->Next());
}

void ValuesTest::aColumnKnowsItsTypeAndSize()
{
    using enum TFieldType;
    const auto rows = engine_->Execute(QStringLiteral("SELECT * FROM AllTypes"), {});
    const QVector<TFieldType> types{ftBoolean, ftInteger, ftInteger,  ftLargeint,   ftFloat,    ftBCD,
                                    ftBCD,     ftDate,    ftDateTime, ftWideString, ftWideMemo, ftBlob};
    QCOMPARE(rows->Columns().size(), types.size());
    for (int i = 0; i < types.size(); ++i)
        QCOMPARE(rows->Columns()[i].Type, types[i]);
    QCOMPARE(rows->Columns()[9].Name, QStringLiteral("Name"));
    QCOMPARE(rows->Columns()[9].Size, 200);
}

void ValuesTest::anExpressionTakesTheTypeOfItsFirstValue()
{
    const QString text = QStringLiteral("SELECT MAX(Large), MAX(Real), MAX(Picture) FROM AllTypes");
    const QVector<TColumnInfo> empty = engine_->Execute(text, {})->Columns();
    QCOMPARE(empty[0].Type == TFieldType::ftBlob, false);
    Stored(QStringLiteral("Large"), qint64(7));
    Stored(QStringLiteral("Real"), 2.5);
    Stored(QStringLiteral("Picture"), QByteArray("x"));
    const auto filled = engine_->Execute(text, {});
    QVERIFY(filled->Next());
    QCOMPARE(filled->Columns()[0].Type, TFieldType::ftLargeint);
    QCOMPARE(filled->Columns()[1].Type, TFieldType::ftFloat);
    QCOMPARE(filled->Columns()[2].Type, TFieldType::ftBlob);
    QCOMPARE(filled->Value(0), QVariant(qint64(7)));
    QCOMPARE(filled->Value(1), QVariant(2.5));
}

void ValuesTest::anExpressionWithoutAValueIsAText()
{
    const auto rows = engine_->Execute(QStringLiteral("SELECT NULL AS Vacant"), {});
    QVERIFY(rows->Next());
    QCOMPARE(rows->Columns()[0].Name, QStringLiteral("Vacant"));
    QCOMPARE(rows->Columns()[0].Type, TFieldType::ftWideString);
    QVERIFY(!rows->Value(0).isValid());
}

void ValuesTest::moneyIsReadInItsOneSpelling_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("text");
    QTest::newRow("float") << QStringLiteral("5.0") << QStringLiteral("5");
    QTest::newRow("whole number") << QStringLiteral("1200") << QStringLiteral("1200");
    QTest::newRow("zeros behind") << QStringLiteral("'12.5000'") << QStringLiteral("12.5");
    QTest::newRow("no whole part") << QStringLiteral("'-.25'") << QStringLiteral("-0.25");
}

void ValuesTest::moneyIsReadInItsOneSpelling()
{
    QFETCH(QString, words);
    QFETCH(QString, text);
    file_->Run(QStringLiteral("INSERT INTO AllTypes (Amount) VALUES (%1)").arg(words));
    const auto rows = engine_->Execute(QStringLiteral("SELECT Amount FROM AllTypes"), {});
    QVERIFY(rows->Next());
    QCOMPARE(rows->Value(0), QVariant(text));
    QCOMPARE(rows->Text(0), text);
}

void ValuesTest::aValueThatTheDeclarationDoesNotForeseeIsNotBent()
{
    file_->Run(QStringLiteral("INSERT INTO AllTypes (Number, Flag, Real) VALUES (12.5, 'نه', 'x')"));
    {
        const auto rows = engine_->Execute(QStringLiteral("SELECT Number, Flag, Real FROM AllTypes"), {});
        QVERIFY(rows->Next());
        QCOMPARE(rows->Value(0), QVariant(12.5));
        QCOMPARE(rows->Value(1), QVariant(QStringLiteral("نه")));
        QCOMPARE(rows->Value(2), QVariant(QStringLiteral("x")));
    }
    init();
    file_->Run(QStringLiteral("INSERT INTO AllTypes (Number) VALUES (3000000000)"));
    const auto rows = engine_->Execute(QStringLiteral("SELECT Number FROM AllTypes"), {});
    QVERIFY(rows->Next());
    QCOMPARE(rows->Value(0), QVariant(qint64(3000000000)));
}

void ValuesTest::datesOfQtAreStoredAsIsoText()
{
    QCOMPARE(Stored(QStringLiteral("Day"), QDate(1403, 2, 9)), QVariant(QStringLiteral("1403-02-09")));
    init();
    const QDate day(2024, 3, 20);
    QCOMPARE(Stored(QStringLiteral("Moment"), QDateTime(day, QTime(6, 36))),
             QVariant(QStringLiteral("2024-03-20T06:36:00")));
    init();
    QCOMPARE(Stored(QStringLiteral("Moment"), QDateTime(day, QTime(6, 36, 1, 5))),
             QVariant(QStringLiteral("2024-03-20T06:36:01.005")));
}

void ValuesTest::aCellMayBeReadTwiceAndInSeveralWays()
{
    Stored(QStringLiteral("Name"), QStringLiteral("42"));
    const auto rows = engine_->Execute(QStringLiteral("SELECT Name FROM AllTypes"), {});
    QVERIFY(rows->Next());
    QCOMPARE(rows->Text(0), QStringLiteral("42"));
    QCOMPARE(rows->Int64(0), 42);
    QCOMPARE(rows->Double(0), 42.0);
    QCOMPARE(rows->Blob(0), QByteArray("42"));
    QCOMPARE(rows->Text(0), QStringLiteral("42"));
}

void ValuesTest::theNumberOfParametersMustFit_data()
{
    QTest::addColumn<QVariantList>("parameters");
    QTest::newRow("none") << QVariantList();
    QTest::newRow("too many") << QVariantList{1, 2};
}

void ValuesTest::theNumberOfParametersMustFit()
{
    QFETCH(QVariantList, parameters);
    const QString text =
        QStringLiteral("SELECT Code FROM (SELECT Number AS Code FROM AllTypes) x WHERE Code = ?");
    const EADOError error = ErrorOf([&] { engine_->Execute(text, parameters); });
    QCOMPARE(error.Kind(), TAdoErrorKind::WrongState);
    QCOMPARE(error.Statement(), text);
}

void ValuesTest::aParameterOfAForeignTypeIsRefused()
{
    const EADOError error = ErrorOf([&] { Stored(QStringLiteral("Name"), QVariant(QStringList{})); });
    QCOMPARE(error.Kind(), TAdoErrorKind::WrongState);
    QCOMPARE(error.ServerMessage(), QStringLiteral("QStringList"));
}

void ValuesTest::aTextIsNeverTakenForAStatement()
{
    const QString hostile = QStringLiteral("'); DELETE FROM AllTypes; --");
    QCOMPARE(Stored(QStringLiteral("Name"), hostile), QVariant(hostile));
}

QTEST_APPLESS_MAIN(ValuesTest)
#include "ValuesTest.moc"
