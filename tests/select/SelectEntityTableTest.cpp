#include "EntityLine.h"
#include "TestCase.h"

namespace {

/// One row of the table of kinds, in the words of the contract.
struct TRow
{
    int type;
    const char* fields; ///< null: no lookup
    int locate;
    const char* picker; ///< null: nothing is picked; "library": the expense centers' own
    int part;
    const char* argument; ///< with "box", "sel" and "other" for what is held there
    bool all;
    int exitPad;
    int pickPad;
};

constexpr const char* List = "Select_Entity";
constexpr const char* Groups = "Select_GroupList";
constexpr const char* Typed = "box#LC#sel";

constexpr TRow Rows[] = {
    {0, nullptr, 0, nullptr, 0, "", false, 0, 0},
    {1, "Name", 6, List, 106, "sel", false, 0, 0},
    {2, "fullname", 0, List, 101, Typed, false, 0, 0},
    {3, "Name;Shobe;SH_H", 8, List, 103, Typed, false, 0, 0},
    {4, "Name", 3, List, 109, Typed, false, 0, 0},
    {5, "Name", 2, List, 110, Typed, false, 0, 0},
    {6, "Name", 1, List, 102, Typed, false, 0, 0},
    {7, "Name", 5, List, 105, "other#OP#sel", false, 0, 0},
    {8, "Title", 13, "library", 0, "sel", false, 0, 0},
    {9, "Title", 14, List, 116, "sel", false, 3, 3},
    {10, "Title", 15, List, 117, "sel", false, 3, 3},
    {11, "Title", 16, List, 118, "sel", false, 3, 0},
    {12, "Title", 17, List, 119, "sel", false, 4, 4},
    {13, "Name", 4, List, 104, "sel", false, 0, 0},
    {14, "FullName", 19, List, 806, "sel", false, 0, 0},
    {15, "Name", 20, List, 900, "sel", false, 0, 0},
    {16, "Name", 12, Groups, 122, "", false, 0, 0},
    {17, nullptr, 0, nullptr, 0, "", false, 0, 0},
    {18, "Name", 9, List, 611, "sel", false, 0, 0},
    {19, "Name", 22, Groups, 612, "", false, 0, 0},
    {20, "Name", 18, Groups, 114, "", false, 0, 0},
    {21, "Name", 23, Groups, 815, "", false, 0, 0},
    {22, "Name", 24, List, 101, "sel", true, 0, 0},
    {23, "Name", 25, Groups, 125, "", false, 0, 0},
    {24, "Name", 26, Groups, 124, "", false, 0, 0},
    {25, "TitleCountry", 27, List, 128, "sel", false, 0, 0},
    {26, "Name", 28, Groups, 139, "", false, 0, 0},
    {27, "Name", 29, Groups, 137, "", false, 0, 0},
    {28, "Name", 30, Groups, 138, "", false, 0, 0},
    {29, nullptr, 0, nullptr, 0, "", false, 0, 0},
    {-1, nullptr, 0, nullptr, 0, "", false, 0, 0},
};

const TRow& RowOf(int type)
{
    return *std::find_if(std::begin(Rows), std::end(Rows),
                         [type](const TRow& row) { return row.type == type; });
}

QString Parameters; ///< what the library's function was given
int Answer = 0;

int SelectExpenseCenter(const char16_t* parameters)
{
    Parameters = QString::fromUtf16(parameters);
    return Answer;
}

} // namespace

class SelectEntityTableTest : public TTestCase
{
    Q_OBJECT

    static void AddRows()
    {
        QTest::addColumn<int>("type");
        for (const TRow& row : Rows)
            QTest::addRow("type %d", row.type) << row.type;
    }

    static QString LookupLine(const TRow& row, const QString& code)
    {
        return QStringLiteral("LookupDBs(%1, %2, %3, Code_EDT, 0)")
            .arg(code, QString::fromLatin1(row.fields))
            .arg(row.locate);
    }

    static QString CompletionLine(const QString& code, int length)
    {
        return QStringLiteral("CompleteCode(%1, %2)").arg(code).arg(length);
    }

    static QStringList PickLines(const TRow& row)
    {
        if (!row.picker)
            return {};
        if (qstrcmp(row.picker, "library") == 0)
            return {QStringLiteral("Tarva_LoadLibrary(ExpenseCenter_TRV.dll)"),
                    QStringLiteral("FindFunction(7, Select_ExpenseCenter)"),
                    QStringLiteral("Tarva_FreeLibrary(ExpenseCenter_TRV.dll, 7)")};
        QString argument = QString::fromLatin1(row.argument);
        argument.replace(QStringLiteral("box"), QStringLiteral("007"))
            .replace(QStringLiteral("sel"), QStringLiteral("Active=1"))
            .replace(QStringLiteral("other"), QStringLiteral("Store=3"));
        const QString all =
            qstrcmp(row.picker, List) == 0 ? QStringLiteral(", %1").arg(row.all ? 1 : 0) : QString();
        return {QStringLiteral("%1(%2, %3%4)")
                    .arg(QString::fromLatin1(row.picker))
                    .arg(row.part)
                    .arg(argument, all)};
    }

    static void SetUp(TEntityLine& line, int type)
    {
        line.SetType(static_cast<TEntityType>(type));
        line.Frame->Code_EDT->SetSelectParams(QStringLiteral("Active=1"));
        line.Frame->OtherParams = QStringLiteral("Store=3");
        line.Host.Libraries.Loadable[QStringLiteral("ExpenseCenter_TRV.dll")] = 7;
        line.Host.Libraries.Functions["Select_ExpenseCenter"] =
            reinterpret_cast<QFunctionPointer>(&SelectExpenseCenter);
        Parameters.clear();
        Answer = 0;
    }

    static QVariant Found(int type)
    {
        return type == 3 ? QVariant(QVariantList{QStringLiteral("ملت"), QStringLiteral("ونک"),
                                                 QStringLiteral("0104-55/2")})
                         : QVariant(QStringLiteral("نام"));
    }

private Q_SLOTS:
    void leavingLooksUpWhatWasTypedAndThenCompletesIt_data() { AddRows(); }

    void leavingLooksUpWhatWasTypedAndThenCompletesIt()
    {
        QFETCH(int, type);
        const TRow& row = RowOf(type);
        TEntityLine line;
        SetUp(line, type);
        line.Know(static_cast<LocateDBsOptions>(row.locate), QStringLiteral("7"), Found(type));
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("۷"));
        QStringList expected;
        if (row.fields)
            expected << LookupLine(row, QStringLiteral("7"));
        if (row.exitPad > 0)
            expected << CompletionLine(QStringLiteral("7"), row.exitPad);
        QCOMPARE(line.Host.Log.Lines(), expected);
        const QString code = row.fields ? QStringLiteral("7").rightJustified(row.exitPad, u'0') : QString();
        QCOMPARE(line.Code(), code);
        const QString name = type == 3 ? QStringLiteral("ملت ونک - 0104-55/2") : QStringLiteral("نام");
        QCOMPARE(line.Name(), row.fields ? name : QString());
        QCOMPARE(line.Raised.size(), row.fields ? 1 : 0);
        QCOMPARE(line.After->hasFocus(), row.fields != nullptr);
    }

    void theButtonOpensTheListOfTheKind_data() { AddRows(); }

    void theButtonOpensTheListOfTheKind()
    {
        QFETCH(int, type);
        TEntityLine line;
        SetUp(line, type);
        QVERIFY(line.Start());
        line.Frame->Code_EDT->SetText(QStringLiteral("007"));
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QCOMPARE(line.Host.Log.Lines(), PickLines(RowOf(type)));
        QCOMPARE(Parameters, type == 8 ? QStringLiteral("Active=1") : QString());
        QCOMPARE(line.Code(), QStringLiteral("007"));
        QVERIFY(line.Raised.isEmpty());
        QVERIFY(line.Frame->Code_EDT->hasFocus());
    }

    void aPickedCodeIsLookedUpPlainAndThenCompleted_data() { AddRows(); }

    void aPickedCodeIsLookedUpPlainAndThenCompleted()
    {
        QFETCH(int, type);
        const TRow& row = RowOf(type);
        TEntityLine line;
        SetUp(line, type);
        line.Know(static_cast<LocateDBsOptions>(row.locate), QStringLiteral("7"), Found(type));
        QVERIFY(line.Start());
        line.Before->setFocus();
        line.Raised.clear();
        line.Frame->Code_EDT->SetText(QStringLiteral("007"));
        line.Host.Pickers.Picked = 7;
        Answer = 7;
        line.Frame->Code_EDTPropertiesButtonClick(nullptr);
        QStringList expected = PickLines(row);
        if (row.pickPad > 0)
            expected << CompletionLine(QStringLiteral("7"), row.pickPad);
        if (row.picker)
            expected << LookupLine(row, QStringLiteral("7"));
        if (row.exitPad > 0)
            expected << CompletionLine(QStringLiteral("7"), row.exitPad);
        QCOMPARE(line.Host.Log.Lines(), expected);
        QCOMPARE(line.Code(),
                 row.picker ? QStringLiteral("7").rightJustified(row.exitPad, u'0') : QStringLiteral("007"));
        QCOMPARE(line.Raised.size(), row.picker ? 1 : 0);
    }
};

QTEST_MAIN(SelectEntityTableTest)
#include "SelectEntityTableTest.moc"
