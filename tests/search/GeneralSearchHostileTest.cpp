#include "ADOQuery.h"
#include "RandomTexts.h"
#include "SearchBar.h"
#include "TestCase.h"

namespace {

constexpr QLatin1String Before("SELECT Code FROM dbo.kala WHERE [SearchName] LIKE N'%");
constexpr QLatin1String After("%'");

/// The text is one literal from its first to its last character: quotes stand in pairs only.
bool IsOneLiteral(QString text)
{
    text.remove(QStringLiteral("''"));
    return !text.contains(QLatin1Char('\''));
}

/// A search bar whose condition goes into a statement, as an application that queries anew does it.
struct TQueryingForm : TSearchBar
{
    TADOConnection Connection;
    QStringList Statements;

    TQueryingForm()
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        Connection.Execute(
            QStringLiteral("CREATE TABLE dbo.kala (Code int NOT NULL, SearchName nvarchar(200) NULL)"));
        TSearchItem& item = Criterion()->SearchItems.GetItem(0);
        item.FoldedName = QStringLiteral("SearchName");
        item.FilterType = TSearchFilterType::iftQuery;
        Manager.Add(Criterion());
        Connection.OnWillExecute = [this](TADOConnection*, const QString& text) { Statements.append(text); };
        QObject::connect(
            &Manager, &TTarvaSearchManager::conditionChanged, Form.get(), [this](const QString& condition) {
                if (!condition.isEmpty())
                    Connection.Run(QStringLiteral("SELECT Code FROM dbo.kala WHERE ") + condition);
            });
    }

    /// Types the text in place of the one before and presses Enter.
    void Search(const QString& text)
    {
        Edit()->selectAll();
        Typing::Type(Edit(), text);
        Typing::Press(Edit(), Qt::Key_Return);
        QCoreApplication::processEvents();
        Manager.Flush();
    }
};

} // namespace

class GeneralSearchHostileTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTypedTextNeverLeavesItsLiteral_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("like");
        QTest::newRow("statement") << "'; drop table kala; --"
                                   << "''; drop table kala; --";
        QTest::newRow("percent") << "%"
                                 << "[%]";
        QTest::newRow("underscore") << "_"
                                    << "[_]";
        QTest::newRow("bracket") << "["
                                 << "[[]";
        QTest::newRow("quotes") << QStringLiteral("'\"`´‘’«»") << QStringLiteral("''\"`´‘’«»");
        QTest::newRow("union") << "x' UNION SELECT 1 --"
                               << "x'' union select 1 --";
    }
    void aTypedTextNeverLeavesItsLiteral()
    {
        QFETCH(QString, typed);
        QFETCH(QString, like);
        TQueryingForm form;
        QVERIFY(form.Start());
        form.Search(typed);
        QCOMPARE(form.Statements, QStringList{Before + like + After});
    }

    void tenThousandRandomTextsAreSentInTheSameShape()
    {
        TQueryingForm form;
        QVERIFY(form.Start());
        form.Form->hide(); // painting letters of every script would take most of the time
        TRandomTexts texts(5);
        for (int round = 0; round < 10000; ++round)
            form.Search(texts.Unicode(3));
        QVERIFY2(form.Statements.size() > 9000, qPrintable(QString::number(form.Statements.size())));
        for (const QString& statement : std::as_const(form.Statements)) {
            QVERIFY2(statement.startsWith(Before) && statement.endsWith(After), qPrintable(statement));
            const qsizetype length = statement.size() - Before.size() - After.size();
            QVERIFY2(IsOneLiteral(statement.mid(Before.size(), length)), qPrintable(statement));
        }
    }
};

QTEST_MAIN(GeneralSearchHostileTest)
#include "GeneralSearchHostileTest.moc"
