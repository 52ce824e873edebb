#include "AdoTestCase.h"
#include "DataSet.h"

#include <limits>
#include <QSignalSpy>

namespace {

/// A data set of one value, whatever its type.
class TOneValue : public TDataSet
{
public:
    explicit TOneValue(QVariant value, TFieldType type = TFieldType::ftUnknown)
        : value_(std::move(value)), field_(this, 0, {QStringLiteral("Amount"), type, 0})
    {
    }

    bool Active() const override { return true; }
    void Open() override {}
    void Close() override {}
    bool IsEmpty() override { return false; }
    int RecordCount() override { return 1; }
    int FieldCount() const override { return 1; }
    TField* Field(int) override { return &field_; }
    TField* FindField(const QString&) override { return &field_; }
    bool Bof() const override { return true; }
    bool Eof() const override { return false; }
    void First() override {}
    void Prior() override {}
    void Next() override {}
    void Last() override {}
    int RecNo() const override { return 1; }
    void SetRecNo(int) override {}
    QVariant FieldValue(int) const override { return value_; }
    QVariant ValueAt(int, int) const override { return value_; }

private:
    QVariant value_;
    TField field_;
};

} // namespace

class FieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aValueReadsAsText_data();
    void aValueReadsAsText();
    void aValueReadsAsAWholeNumber_data();
    void aValueReadsAsAWholeNumber();
    void whatIsNoWholeNumberIsRefused_data();
    void whatIsNoWholeNumberIsRefused();
    void aNumberTooLargeForAnIntIsRefused();
    void aValueReadsAsAFloat_data();
    void aValueReadsAsAFloat();
    void aValueReadsAsABoolean_data();
    void aValueReadsAsABoolean();
    void nullReadsAsNothingOfEachKind();
    void aValueReadsAsBytes();
};

void FieldTest::aValueReadsAsText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(QStringLiteral(" متن ")) << QStringLiteral(" متن ");
    QTest::newRow("money") << QVariant(QStringLiteral("922337203685477.5807"))
                           << QStringLiteral("922337203685477.5807");
    QTest::newRow("int") << QVariant(-5) << QStringLiteral("-5");
    QTest::newRow("bigint") << QVariant(std::numeric_limits<qint64>::max())
                            << QStringLiteral("9223372036854775807");
    QTest::newRow("float") << QVariant(0.1) << QStringLiteral("0.1");
    QTest::newRow("whole float") << QVariant(3.0) << QStringLiteral("3");
    QTest::newRow("third") << QVariant(1.0 / 3) << QStringLiteral("0.3333333333333333");
    QTest::newRow("true") << QVariant(true) << QStringLiteral("1");
    QTest::newRow("false") << QVariant(false) << QStringLiteral("0");
    QTest::newRow("bytes") << QVariant(QByteArray("نام")) << QStringLiteral("نام");
}

void FieldTest::aValueReadsAsText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    TOneValue data(value);
    QCOMPARE(data.Field(0)->AsString(), text);
    QCOMPARE(data.Field(0)->Value(), value);
    QVERIFY(!data.Field(0)->IsNull());
}

void FieldTest::aValueReadsAsAWholeNumber_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<qint64>("number");
    const auto row = [](const char* name, const QVariant& value, qint64 number) {
        QTest::newRow(name) << value << number;
    };
    row("int", 7, 7);
    row("true", true, 1);
    row("text", QStringLiteral(" 42 "), 42);
    row("text with zeros", QStringLiteral("0042"), 42);
    row("money", QStringLiteral("12.4999"), 12);
    row("money rounded up", QStringLiteral("12.5"), 13);
    row("negative money rounded", QStringLiteral("-12.5"), -13);
    row("less than a half", QStringLiteral("-0.4"), 0);
    row("more than a half below zero", QStringLiteral("-0.6"), -1);
    row("float", 2.5, 3);
    row("largest", QStringLiteral("9223372036854775807"), std::numeric_limits<qint64>::max());
    row("smallest", QStringLiteral("-9223372036854775808"), std::numeric_limits<qint64>::min());
    row("17 digits", QStringLiteral("12345678901234567.4"), 12345678901234567);
}

void FieldTest::aValueReadsAsAWholeNumber()
{
    QFETCH(QVariant, value);
    QFETCH(qint64, number);
    TOneValue data(value);
    QCOMPARE(data.Field(0)->AsLargeInt(), number);
}

void FieldTest::whatIsNoWholeNumberIsRefused_data()
{
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char* name, const QVariant& value) { QTest::newRow(name) << value; };
    row("letters", QStringLiteral("abc"));
    row("nothing", QStringLiteral(""));
    row("digits and letters", QStringLiteral("12a"));
    row("Persian digits", QStringLiteral("۱۲"));
    row("too large", QStringLiteral("9223372036854775808"));
    row("rounded too large", QStringLiteral("9223372036854775807.5"));
    row("float too large", 1e19);
    row("infinity", std::numeric_limits<double>::infinity());
    row("no number", std::numeric_limits<double>::quiet_NaN());
    row("bytes", QByteArray("12"));
}

void FieldTest::whatIsNoWholeNumberIsRefused()
{
    QFETCH(QVariant, value);
    TOneValue data(value);
    for (const auto& error :
         {ErrorOf([&] { data.Field(0)->AsLargeInt(); }), ErrorOf([&] { data.Field(0)->AsInteger(); })}) {
        QCOMPARE(error.Kind(), TAdoErrorKind::WrongState);
        QVERIFY(error.Message().contains(QStringLiteral("Amount")));
    }
}

void FieldTest::aNumberTooLargeForAnIntIsRefused()
{
    TOneValue data(qint64(3000000000));
    QCOMPARE(data.Field(0)->AsLargeInt(), 3000000000);
    QCOMPARE(ErrorOf([&] { data.Field(0)->AsInteger(); }).Kind(), TAdoErrorKind::WrongState);
    TOneValue limit(QVariant(qint64{std::numeric_limits<int>::min()}));
    QCOMPARE(limit.Field(0)->AsInteger(), std::numeric_limits<int>::min());
}

void FieldTest::aValueReadsAsAFloat_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("number");
    QTest::newRow("money") << QVariant(QStringLiteral("12.5")) << 12.5;
    QTest::newRow("exponent") << QVariant(QStringLiteral("1e3")) << 1000.0;
    QTest::newRow("int") << QVariant(-4) << -4.0;
    QTest::newRow("float") << QVariant(0.1) << 0.1;
    QTest::newRow("true") << QVariant(true) << 1.0;
}

void FieldTest::aValueReadsAsAFloat()
{
    QFETCH(QVariant, value);
    QFETCH(double, number);
    TOneValue data(value);
    QCOMPARE(data.Field(0)->AsFloat(), number);
    TOneValue text(QStringLiteral("دوازده"));
    QCOMPARE(ErrorOf([&] { text.Field(0)->AsFloat(); }).Kind(), TAdoErrorKind::WrongState);
    TOneValue bytes(QByteArray("1"));
    QCOMPARE(ErrorOf([&] { bytes.Field(0)->AsFloat(); }).Kind(), TAdoErrorKind::WrongState);
}

void FieldTest::aValueReadsAsABoolean_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("answer");
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("two") << QVariant(2) << true;
    QTest::newRow("zero") << QVariant(qint64(0)) << false;
    QTest::newRow("a little") << QVariant(0.25) << true;
    QTest::newRow("text 1") << QVariant(QStringLiteral("1")) << true;
    QTest::newRow("text 0.0") << QVariant(QStringLiteral("0.0")) << false;
    QTest::newRow("text True") << QVariant(QStringLiteral("True")) << true;
    QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
}

void FieldTest::aValueReadsAsABoolean()
{
    QFETCH(QVariant, value);
    QFETCH(bool, answer);
    TOneValue data(value);
    QCOMPARE(data.Field(0)->AsBoolean(), answer);
    TOneValue text(QStringLiteral("شاید"));
    QCOMPARE(ErrorOf([&] { text.Field(0)->AsBoolean(); }).Kind(), TAdoErrorKind::WrongState);
}

void FieldTest::nullReadsAsNothingOfEachKind()
{
    TOneValue data{QVariant()};
    TField* field = data.Field(0);
    QVERIFY(field->IsNull());
    QCOMPARE(field->AsString(), QString());
    QCOMPARE(field->AsInteger(), 0);
    QCOMPARE(field->AsLargeInt(), 0);
    QCOMPARE(field->AsFloat(), 0.0);
    QCOMPARE(field->AsBoolean(), false);
    QCOMPARE(field->AsBytes(), QByteArray());
}

void FieldTest::aValueReadsAsBytes()
{
    TOneValue bytes(QByteArray("\0\xff", 2));
    QCOMPARE(bytes.Field(0)->AsBytes(), QByteArray("\0\xff", 2));
    TOneValue text(QStringLiteral("نام"));
    QCOMPARE(text.Field(0)->AsBytes(), QByteArray("نام"));
}

QTEST_APPLESS_MAIN(FieldTest)
#include "FieldTest.moc"
