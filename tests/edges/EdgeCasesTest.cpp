#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTest>

namespace {

constexpr int patience = 120000;

struct TEdgeCase
{
    QString Place;
    QString Sentence;
    QString Program;
    QString Slot;

    QString Name() const { return Place + QStringLiteral(": ") + Sentence; }
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
        cases.append({parts.value(0), parts.value(1), parts.value(2), parts.value(3)});
    }
    return cases;
}

} // namespace

/// The edge cases that the frames must get right, and the test that shows each: the list stands in the
/// output, a line for each case, with the result of its test in this very build.
class EdgeCasesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachOfThemIsListedOnce();
    void holds_data();
    void holds();

private:
    QString OutputOf(const QString& program);

    QHash<QString, QString> outputs_;
};

void EdgeCasesTest::eachOfThemIsListedOnce()
{
    QStringList names;
    for (const TEdgeCase& edge : EdgeCases())
        names.append(edge.Name());
    QVERIFY(!names.isEmpty());
    QCOMPARE(names.removeDuplicates(), 0);
}

void EdgeCasesTest::holds_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("slot");
    for (const TEdgeCase& edge : EdgeCases())
        QTest::newRow(qUtf8Printable(edge.Name())) << edge.Program << edge.Slot;
}

void EdgeCasesTest::holds()
{
    QFETCH(const QString, program);
    QFETCH(const QString, slot);
    const QString name = QStringLiteral("%1Test::%2(").arg(program, slot);
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
        if (edge.Program == program && !slotNames.contains(edge.Slot))
            slotNames.append(edge.Slot);
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
