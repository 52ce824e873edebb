#include "ReportFixture.h"

#include "Balloon.h"
#include "Range_Digit_Search.h"
#include "ReportCsv.h"
#include "ReportPdf.h"
#include "SmartCheckBox_TRV.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

QVector<TGridColumn> Columns()
{
    return {{QStringLiteral("Sharh"), QStringLiteral("شرح"), 100},
            {QStringLiteral("Bed"), QStringLiteral("بدهکار"), 100, TGridColumn::ckMoney}};
}

QByteArray Bytes(const TReportTable& table)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ReportCsv::Write(buffer, table);
    return bytes;
}

QByteArray PdfBytes(const TReportTable& table)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ReportPdf::Write(buffer, table);
    return bytes;
}

QByteArray Content(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class ReportExportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TReportFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void init()
    {
        shop_->OpenReport();
        shop_->Report->AskFileName = [this](const QString& suggested, const QString& filter) {
            asked_ = suggested + u'|' + filter;
            return answer_;
        };
    }
    void cleanup() { shop_->Form.reset(); }

    void aCellCannotBecomeAFormula_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isMoney");
        QTest::addColumn<QString>("cell");
        const auto add = [](const char* name, const QString& text, bool isMoney, const QString& cell) {
            QTest::newRow(name) << text << isMoney << cell;
        };
        add("plain", QStringLiteral("فروش"), false, QStringLiteral("\"فروش\""));
        add("quote", QStringLiteral("a\"b"), false, QStringLiteral("\"a\"\"b\""));
        add("equals", QStringLiteral("=1+1"), false, QStringLiteral("\"'=1+1\""));
        add("plus", QStringLiteral("+1"), false, QStringLiteral("\"'+1\""));
        add("minus in a text", QStringLiteral("-1"), false, QStringLiteral("\"'-1\""));
        add("at", QStringLiteral("@x"), false, QStringLiteral("\"'@x\""));
        add("behind a blank", QStringLiteral(" =1"), false, QStringLiteral("\"' =1\""));
        add("behind a tab", QStringLiteral("\t=1"), false, QStringLiteral("\"'\t=1\""));
        add("behind a mark", QStringLiteral("\u200F=1"), false, QStringLiteral("\"'\u200F=1\""));
        add("wide sign", QStringLiteral("\uFF1D1"), false, QStringLiteral("\"'\uFF1D1\""));
        add("quote and formula", QStringLiteral("=\""), false, QStringLiteral("\"'=\"\"\""));
        add("negative amount", QStringLiteral("-12.5"), true, QStringLiteral("\"-12.5\""));
        add("no amount", QStringLiteral("-12+cmd"), true, QStringLiteral("\"'-12+cmd\""));
        add("half-space", QStringLiteral("نیم\u200Cفاصله"), false, QStringLiteral("\"نیم\u200Cفاصله\""));
    }
    void aCellCannotBecomeAFormula()
    {
        QFETCH(QString, text);
        QFETCH(bool, isMoney);
        const auto kind = isMoney ? TGridColumn::ckMoney : TGridColumn::ckText;
        QTEST(ReportCsv::Cell(text, kind), "cell");
    }

    void csvHasTheMarkTheTitlesAndTheNote()
    {
        TReportTable table;
        table.Question.Columns = Columns();
        table.Rows = {{QStringLiteral("=x"), QStringLiteral("-5")}};
        table.Sum.Count = 3;
        const QByteArray bytes = Bytes(table);
        QVERIFY(bytes.startsWith("\xEF\xBB\xBF"));
        const QStringList lines = QString::fromUtf8(bytes.mid(3)).split(QStringLiteral("\r\n"));
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(0), QStringLiteral("\"شرح\",\"بدهکار\""));
        QCOMPARE(lines.at(1), QStringLiteral("\"'=x\",\"-5\""));
        QVERIFY2(lines.at(2).contains(QStringLiteral("1 ردیف نخست از 3 ردیف")), qPrintable(lines.at(2)));
        table.Sum.Count = 1;
        QCOMPARE(QString::fromUtf8(Bytes(table)).split(QStringLiteral("\r\n")).size(), 3);
    }

    void theShownLinesAreSavedInTheirOrder()
    {
        answer_ = shop_->Folder.filePath(QStringLiteral("lines"));
        shop_->Report->DataSet().SetOrder(QStringLiteral("Number"), Qt::DescendingOrder);
        SwitchNumberOn(10);
        shop_->Press(Qt::Key_E, Qt::ControlModifier);
        QVERIFY2(asked_.endsWith(QStringLiteral("/report.csv|CSV (*.csv)")), qPrintable(asked_));
        shop_->Settle();
        QVERIFY2(Balloon::ShownText().contains(QStringLiteral("lines.csv")),
                 qPrintable(Balloon::ShownText()));
        const QString text = QString::fromUtf8(Content(answer_ + QStringLiteral(".csv")));
        const QStringList lines = text.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
        const auto expected = shop_->Matching([](const TPlainLine& line) { return line.Number >= 10; });
        QCOMPARE(lines.size(), expected.size() + 1);
        int last = INT_MAX;
        TDecimal debit;
        for (const QString& line : lines.mid(1)) {
            const QStringList cells = line.mid(1).split(QStringLiteral("\",\""));
            QVERIFY(cells.at(0).toInt() <= last && cells.at(0).toInt() >= 10);
            last = cells.at(0).toInt();
            QCOMPARE(cells.at(2).size(), 3);
            QCOMPARE(cells.at(4).size(), 3);
            debit = debit + TDecimal(cells.at(9));
        }
        QCOMPARE(debit.ToString(), TReportFixture::Sum(expected, &TPlainLine::Debit));
    }

    void aPdfHasAPageForEachPartOfTheLines()
    {
        answer_ = shop_->Folder.filePath(QStringLiteral("lines.pdf"));
        shop_->Press(Qt::Key_P, Qt::ControlModifier);
        shop_->Settle();
        QVERIFY2(Balloon::ShownText().contains(QStringLiteral("lines.pdf")),
                 qPrintable(Balloon::ShownText()));
        const QByteArray bytes = Content(answer_);
        QVERIFY(bytes.startsWith("%PDF"));
        const int all = Pages(bytes);
        QVERIFY(all > 1);
        SwitchNumberOn(shop_->Lines.constLast().Number);
        shop_->Press(Qt::Key_P, Qt::ControlModifier);
        shop_->Settle();
        QVERIFY(Pages(Content(answer_)) < all);
    }

    void oneFileWaitsForTheOther()
    {
        TReportQuestion question;
        question.Source = shop_->Report->DataSet().Source();
        question.Columns = shop_->Report->Grid().Columns();
        QStringList names;
        for (const char* name : {"first.csv", "second.csv", "third.csv"})
            names.append(shop_->Folder.filePath(QString::fromLatin1(name)));
        TReportExport files(shop_->Connection);
        QSignalSpy saved(&files, &TReportExport::saved);
        for (const QString& name : qAsConst(names))
            files.Save(question, TReportExport::TFormat::Csv, name);
        QTRY_VERIFY(!files.IsBusy());
        QCOMPARE(saved.count(), 3);
        QVERIFY(Content(names.at(0)).size() > 1000);
        QCOMPARE(Content(names.at(1)), Content(names.at(0)));
        QCOMPARE(Content(names.at(2)), Content(names.at(0)));
    }

    void noPageIsWithoutLines()
    {
        QCOMPARE(PagesOf(0), 1);
        int few = 1;
        int many = 200;
        while (many - few > 1) {
            const int lines = (few + many) / 2;
            (PagesOf(lines) == 1 ? few : many) = lines;
        }
        QCOMPARE(PagesOf(2 * few), 2);
        QCOMPARE(PagesOf(2 * few + 1), 3);
        // A condition that fits into its line takes no room from the lines; a longer one is not cut.
        QCOMPARE(PagesOf(few, QStringLiteral("شمارهٔ سند از ۱۰ به بالا باشد")), 1);
        QCOMPARE(PagesOf(few, QStringLiteral("شمارهٔ سند از ۱۰ به بالا باشد و ").repeated(20)), 2);
    }

    void aReportWithoutLinesIsSaved()
    {
        SwitchNumberOn(shop_->Lines.constLast().Number + 1000);
        QCOMPARE(shop_->Report->DataSet().RecordCount(), 0);
        for (const Qt::Key key : {Qt::Key_E, Qt::Key_P}) {
            answer_ = shop_->Folder.filePath(key == Qt::Key_E ? QStringLiteral("none.csv")
                                                              : QStringLiteral("none.pdf"));
            shop_->Press(key, Qt::ControlModifier);
            shop_->Settle();
        }
        const QString csv = QString::fromUtf8(Content(shop_->Folder.filePath(QStringLiteral("none.csv"))));
        QCOMPARE(csv.count(QStringLiteral("\r\n")), 1);
        QVERIFY(csv.contains(QStringLiteral("\"بدهکار\"")));
        QCOMPARE(Pages(Content(answer_)), 1);
    }

    void moreLinesThanTheLimitAreCutAndSaid()
    {
        TReportQuestion question;
        question.Source = shop_->Report->DataSet().Source();
        question.Columns = shop_->Report->Grid().Columns();
        question.MaxRows = 7;
        const TReportTable table = TReportTable::Read(shop_->Connection, question);
        QCOMPARE(table.Rows.size(), 7);
        QCOMPARE(table.Sum.Count, qint64(shop_->Lines.size()));
        QCOMPARE(TDecimal(table.Sum.Debit).ToString(), TReportFixture::Sum(shop_->Lines, &TPlainLine::Debit));
        QVERIFY(table.Note().contains(QStringLiteral("7 ردیف نخست")));
    }

    void whatCannotBeWrittenIsSaid()
    {
        answer_ = shop_->Folder.filePath(QStringLiteral("missing/lines.csv"));
        const QString told = RefusalOfSaving(Qt::Key_E);
        QVERIFY2(told.contains(QStringLiteral("نوشته نشد")), qPrintable(told));
        QVERIFY(!QFile::exists(answer_));
        QVERIFY(QDir(shop_->Folder.path()).mkdir(QStringLiteral("folder.pdf")));
        answer_ = shop_->Folder.filePath(QStringLiteral("folder.pdf"));
        QVERIFY(RefusalOfSaving(Qt::Key_P).contains(QStringLiteral("نوشته نشد")));
    }

#ifdef Q_OS_LINUX
    /// As on a full disk.
    void aFileThatEndsTooSoonLeavesTheOldOne_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("CSV") << static_cast<int>(Qt::Key_E);
        QTest::newRow("PDF") << static_cast<int>(Qt::Key_P);
    }
    void aFileThatEndsTooSoonLeavesTheOldOne()
    {
        QFETCH(int, key);
        answer_ = shop_->Folder.filePath(QStringLiteral("old.file"));
        QFile old(answer_);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("the old report");
        old.close();
        const QStringList before = QDir(shop_->Folder.path()).entryList(QDir::Files);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit usual{};
        getrlimit(RLIMIT_FSIZE, &usual);
        rlimit small = usual;
        small.rlim_cur = 2000;
        setrlimit(RLIMIT_FSIZE, &small);
        const QString told = RefusalOfSaving(static_cast<Qt::Key>(key));
        setrlimit(RLIMIT_FSIZE, &usual);
        QVERIFY2(told.contains(QStringLiteral("نوشته نشد")), qPrintable(told));
        QCOMPARE(Content(answer_), QByteArray("the old report"));
        QCOMPARE(QDir(shop_->Folder.path()).entryList(QDir::Files), before);
    }
#endif

    void decliningTheFileSavesNothing()
    {
        answer_.clear();
        asked_.clear();
        shop_->Press(Qt::Key_E, Qt::ControlModifier);
        QVERIFY(!asked_.isEmpty());
        QVERIFY(!shop_->Report->IsBusy());
    }

private:
    /// What the user is told when a key to save is pressed.
    QString RefusalOfSaving(Qt::Key key) const
    {
        QString told;
        auto* application = qobject_cast<THostApplication*>(qApp);
        application->SetErrorDisplay([&told](const TErrorReport& report) { told = report.Text; });
        shop_->Press(key, Qt::ControlModifier);
        [&told] { QTRY_VERIFY(!told.isEmpty()); }();
        application->SetErrorDisplay({});
        return told;
    }
    void SwitchNumberOn(int from) const
    {
        TRange_Digit_Search_Frame& frame = *shop_->Report->Filters().Digit;
        frame.SetActive(true);
        frame.SetSearchValue1(from);
        shop_->Settle();
    }
    /// The pages of a PDF with so many lines.
    static int PagesOf(int lines, const QString& condition = {})
    {
        TReportTable table;
        table.Question.ConditionInWords = condition;
        table.Question.Columns = Columns();
        table.Rows.fill({QStringLiteral("شرح"), QStringLiteral("5")}, lines);
        return Pages(PdfBytes(table));
    }
    static int Pages(const QByteArray& bytes)
    {
        const qsizetype place = bytes.indexOf("/Count ");
        return bytes.mid(place + 7, 8).split('\n').constFirst().toInt();
    }

    std::unique_ptr<TReportFixture> shop_;
    QString answer_;
    QString asked_;
};

int main(int argc, char** argv)
{
    return RunFormTest<ReportExportTest>(argc, argv);
}

#include "ReportExportTest.moc"
