#include "Criteria.h"
#include "SearchCondition.h"
#include "TestCase.h"

using Criteria::Item;

namespace {

using enum TSearchDataType;

const QVariant none;
const TSearchItem name = Item(QStringLiteral("نام"), QStringLiteral("Name"));
const TSearchItem code = Item(QStringLiteral("کد"), QStringLiteral("Code"), idtDigit);
const TSearchItem price = Item(QStringLiteral("قیمت"), QStringLiteral("Price"), idtMoney);
const TSearchItem date = Item(QStringLiteral(" تاریخ"), QStringLiteral("D"));
const TSearchItem moment = Item(QStringLiteral("زمان"), QStringLiteral("D"), idtDateTime);
const TSearchItem tags = Item(QStringLiteral("برچسب"), QStringLiteral("tags"), idtCodeList);

QVariant Text(const char16_t* characters)
{
    return QString::fromUtf16(characters);
}

} // namespace

class SearchConditionWordsTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyConditionHasASentence_data()
    {
        using enum TSearchType;
        QTest::addColumn<TSearchItem>("item");
        QTest::addColumn<QVariant>("value1");
        QTest::addColumn<QVariant>("value2");
        QTest::addColumn<TSearchType>("type");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("reversed");
        QTest::newRow("text") << name << Text(u"شیر") << none << stGeneral
                              << QStringLiteral("نام شامل «شیر» باشد")
                              << QStringLiteral("نام شامل «شیر» نباشد");
        QTest::newRow("Latin text is isolated")
            << name << Text(u"abc") << none << stGeneral << QStringLiteral("نام شامل «\u2068abc\u2069» باشد")
            << QStringLiteral("نام شامل «\u2068abc\u2069» نباشد");
        QTest::newRow("number") << code << QVariant(12.0) << none << stGeneral
                                << QStringLiteral("کد برابر ۱۲ باشد") << QStringLiteral("کد برابر ۱۲ نباشد");
        QTest::newRow("money is grouped") << price << QVariant(1234567.5) << none << stGeneral
                                          << QStringLiteral("قیمت برابر ۱٬۲۳۴٬۵۶۷٫۵ باشد")
                                          << QStringLiteral("قیمت برابر ۱٬۲۳۴٬۵۶۷٫۵ نباشد");
        QTest::newRow("negative money")
            << price << QVariant(-123456) << none << stGeneral << QStringLiteral("قیمت برابر -۱۲۳٬۴۵۶ باشد")
            << QStringLiteral("قیمت برابر -۱۲۳٬۴۵۶ نباشد");
        QTest::newRow("range") << code << QVariant(10) << QVariant(20) << stRangeDigit
                               << QStringLiteral("کد از ۱۰ تا ۲۰ باشد")
                               << QStringLiteral("کد از ۱۰ تا ۲۰ نباشد");
        QTest::newRow("open above") << code << QVariant(10) << QVariant(2147483647) << stRangeDigit
                                    << QStringLiteral("کد از ۱۰ به بالا باشد")
                                    << QStringLiteral("کد از ۱۰ به بالا نباشد");
        QTest::newRow("open below") << price << QVariant(0.0) << QVariant(5000.0) << stRangeCost
                                    << QStringLiteral("قیمت تا ۵٬۰۰۰ باشد")
                                    << QStringLiteral("قیمت تا ۵٬۰۰۰ نباشد");
        QTest::newRow("one value") << code << QVariant(7) << QVariant(7) << stRangeDigit
                                   << QStringLiteral("کد برابر ۷ باشد") << QStringLiteral("کد برابر ۷ نباشد");
        QTest::newRow("dates") << date << Text(u"1403/01/01") << Text(u"1403/12/29") << stRangeDate
                               << QStringLiteral("تاریخ از ۱۴۰۳/۰۱/۰۱ تا ۱۴۰۳/۱۲/۲۹ باشد")
                               << QStringLiteral("تاریخ از ۱۴۰۳/۰۱/۰۱ تا ۱۴۰۳/۱۲/۲۹ نباشد");
        QTest::newRow("moment") << moment << Text(u"2024/01/02-10:30") << none << stGeneral
                                << QStringLiteral("زمان برابر ۲۰۲۴/۰۱/۰۲-۱۰:۳۰ باشد")
                                << QStringLiteral("زمان برابر ۲۰۲۴/۰۱/۰۲-۱۰:۳۰ نباشد");
        QTest::newRow("code list") << tags << Text(u",5,12,") << none << stGeneral
                                   << QStringLiteral("برچسب دارای کد ۵ یا ۱۲ باشد")
                                   << QStringLiteral("برچسب دارای کد ۵ یا ۱۲ نباشد");
        TSearchItem named = tags;
        named.Words = [](const TTarvaSearch& criterion) {
            return criterion.Value1().toInt() == 5 ? QStringLiteral("برچسب «ویژه» باشد") : QString();
        };
        QTest::newRow("owner's words")
            << named << QVariant(5) << none << stGeneral << QStringLiteral("برچسب «ویژه» باشد")
            << QStringLiteral("برچسب «ویژه» باشد");
        QTest::newRow("owner without words")
            << named << QVariant(6) << none << stGeneral << QStringLiteral("برچسب دارای کد ۶ باشد")
            << QStringLiteral("برچسب دارای کد ۶ نباشد");
        const QString refused = QStringLiteral("ردیفی پیدا نشود، چون «\u2068abc\u2069» برای کد عدد نیست");
        QTest::newRow("no number") << code << Text(u"abc") << none << stGeneral << refused << refused;
        QTest::newRow("no title") << Item({}, QStringLiteral("k.City")) << Text(u"قم") << none << stGeneral
                                  << QStringLiteral("City شامل «قم» باشد")
                                  << QStringLiteral("City شامل «قم» نباشد");
    }
    void everyConditionHasASentence()
    {
        QFETCH(TSearchItem, item);
        QFETCH(QVariant, value1);
        QFETCH(QVariant, value2);
        QFETCH(TSearchType, type);
        TTarvaSearch criterion;
        Criteria::Fill(criterion, item, value1, value2, type);
        QTEST(TSearchCondition::Of(criterion).value().Words(), "words");
        criterion.SetReverst(true);
        QTEST(TSearchCondition::Of(criterion).value().Words(), "reversed");
    }
};

QTEST_MAIN(SearchConditionWordsTest)
#include "SearchConditionWordsTest.moc"
