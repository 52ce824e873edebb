#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTest>

namespace {

constexpr int patience = 120000;
constexpr int countOfCases = 92;

/// A case of a unit, and the tests that show it: "Program::slot".
struct TEdgeCase
{
    QString Place;
    QString Sentence;
    QStringList Tests;

    QString Name() const
    {
        return QStringLiteral("%1: %2 [%3]").arg(Place, Sentence, Tests.join(QStringLiteral(", ")));
    }
};

QVector<TEdgeCase> EdgeCases()
{
    QFile file(QFINDTESTDATA("edge-cases.tsv"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<TEdgeCase> cases;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList parts = line.split(u'\t');
        cases.append({parts.value(0), parts.value(1), parts.mid(2)});
    }
    return cases;
}

QString ProgramOf(const QString& test)
{
    return test.section(QStringLiteral("::"), 0, 0);
}

QString SlotOf(const QString& test)
{
    return test.section(QStringLiteral("::"), 1);
}

} // namespace

/// The edge cases that the frames must get right, and the tests that show each: the list stands in the
/// output, a line for each case, with the result of its tests in this very build.
class EdgeCasesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachOfThemIsListedOnce();
    void holds_data();
    void holds();

private:
    void Check(const QString& test);
    QString OutputOf(const QString& program);

    QHash<QString, QString> outputs_;
};

void EdgeCasesTest::eachOfThemIsListedOnce()
{
    QStringList sentences;
    for (const TEdgeCase& edge : EdgeCases()) {
        sentences.append(edge.Place + edge.Sentence);
        QVERIFY2(!edge.Tests.isEmpty(), qUtf8Printable(edge.Sentence));
    }
    QCOMPARE(sentences.size(), countOfCases);
    QCOMPARE(sentences.removeDuplicates(), 0);
}

void EdgeCasesTest::holds_data()
{
    QTest::addColumn<QStringList>("tests");
    for (const TEdgeCase& edge : EdgeCases())
        QTest::newRow(qUtf8Printable(edge.Name())) << edge.Tests;
}

void EdgeCasesTest::holds()
{
    QFETCH(const QStringList, tests);
    for (const QString& test : tests) {
        Check(test);
        if (QTest::currentTestFailed())
            return;
    }
}

void EdgeCasesTest::Check(const QString& test)
{
    const QString program = ProgramOf(test);
    const QString name = QStringLiteral("%1Test::%2(").arg(program, SlotOf(test));
    int passed = 0;
    const QStringList lines = OutputOf(program).split(u'\n');
    for (const QString& line : lines) {
        if (!line.contains(name))
            continue;
        QVERIFY2(!line.startsWith(QLatin1String("FAIL!")) && !line.startsWith(QLatin1String("SKIP")),
                 qUtf8Printable(line));
        passed += line.startsWith(QLatin1String("PASS")) ? 1 : 0;
    }
    QVERIFY2(passed > 0,
             qUtf8Printable(name + QStringLiteral(" did not run:\n") + OutputOf(program).left(2000)));
}

/// What a program says about all its tests in the list; each program runs once.
QString EdgeCasesTest::OutputOf(const QString& program)
{
    if (const auto known = outputs_.constFind(program); known != outputs_.constEnd())
        return *known;
    QStringList slotNames;
    for (const TEdgeCase& edge : EdgeCases()) {
        for (const QString& test : edge.Tests) {
            if (ProgramOf(test) == program && !slotNames.contains(SlotOf(test)))
                slotNames.append(SlotOf(test));
        }
    }
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QDir(QCoreApplication::applicationDirPath()).filePath(program + QStringLiteral("Test")),
                  slotNames);
    process.waitForFinished(patience);
    return outputs_[program] = QString::fromUtf8(process.readAll());
}

QTEST_GUILESS_MAIN(EdgeCasesTest)

#include "EdgeCasesTest.moc"
