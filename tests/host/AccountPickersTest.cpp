#include "AccountPickerUser.h"
#include "ChartFixture.h"
#include "HostTestMain.h"
#include "SmartButton_TRV.h"

#include <QHeaderView>

namespace {

using TUser = TAccountPickerUser;

THCSelectedCode Pick(const std::function<void(TAccountPickerDialog&)>& act, const THCSelectedCode& begin = {},
                     quint8 focusLevel = 0, TSelectGroups groups = {})
{
    const auto text = [](int code) { return code == 0 ? QString() : QString::number(code); };
    const TUser user(act);
    return Host().Pickers.Select_AccountCodes(groups, text(begin.Total), text(begin.Assistant),
                                              text(begin.Detail), focusLevel);
}

QString TextOf(const THCSelectedCode& code)
{
    return QStringLiteral("%1-%2-%3").arg(code.Total).arg(code.Assistant).arg(code.Detail);
}

const QString nothing = QStringLiteral("0-0-0");

QString CurrentAccount(TAccountPickerDialog& dialog)
{
    return dialog.Chart().View().currentIndex().siblingAtColumn(0).data().toString();
}

bool IsInView(const QTreeView& view, const QModelIndex& index)
{
    return view.viewport()->rect().contains(view.visualRect(index).center());
}

} // namespace

/// What a bookkeeper does with the picker of all levels.
class AccountPickersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        chart_ = std::make_unique<TChartFixture>();
        chart_->AddDetail(1, 900001, QStringLiteral("كارخانه یکتای آزمون"), 1900001);
        chart_->AddDetail(1, 900002, QStringLiteral("کارخانهٔ کنارگذاشته"), 1900002, false);
        chart_->AddDetail(1, 899999, QStringLiteral("شعبهٔ 900003"), 1899999);
        chart_->AddDetail(1, 900003, QStringLiteral("شعبهٔ ۳۰۰۰۰ کارخانه"), 1900003);
    }

    void init() { chart_->Statements.clear(); }

    void itOpensOnTheCurrentCodeWithItsParentsInView()
    {
        const THCSelectedCode picked = Pick(
            [](TAccountPickerDialog& dialog) {
                TUser::WaitForDetails(dialog);
                QCOMPARE(QApplication::focusWidget(), &dialog.Details().Grid());
                QCOMPARE(dialog.Details().CurrentCode(), 12);
                QCOMPARE(dialog.Details().CurrentCodeText(), QStringLiteral("000012"));
                TMirroredTreeView& view = dialog.Chart().View();
                QCOMPARE(CurrentAccount(dialog), QStringLiteral("104-001"));
                QVERIFY(IsInView(view, view.currentIndex()));
                QVERIFY(IsInView(view, view.currentIndex().parent()));
                QVERIFY(IsInView(view, view.currentIndex().parent().parent()));
                QVERIFY(dialog.PathText().contains(QStringLiteral("104-001-000012")));
                QVERIFY(dialog.PathText().contains(QStringLiteral(
                    "حساب‌های دریافتنی تجاری - مشتریان داخلی - ")));
                TUser::Press(Qt::Key_Return);
            },
            {104, 1, 12}, 2);
        QCOMPARE(TextOf(picked), QStringLiteral("104-1-12"));
    }

    void theFocusLevelDecidesWhereItBegins_data()
    {
        QTest::addColumn<QStringList>("begin");
        QTest::addColumn<int>("focusLevel");
        QTest::addColumn<QString>("picked");
        QTest::newRow("total") << QStringList{"104", "2", "12"} << 0 << QStringLiteral("104-0-0");
        QTest::newRow("assistant") << QStringList{"104", "2", "12"} << 1 << QStringLiteral("104-2-0");
        QTest::newRow("detail") << QStringList{"104", "2", "12"} << 2 << QStringLiteral("104-2-12");
        QTest::newRow("first assistant") << QStringList{"104", "", ""} << 1 << QStringLiteral("104-1-0");
        QTest::newRow("first detail") << QStringList{"104", "", ""} << 2 << QStringLiteral("104-1-1");
        QTest::newRow("unknown assistant") << QStringList{"104", "9", ""} << 1 << QStringLiteral("104-1-0");
        QTest::newRow("unknown detail")
            << QStringList{"104", "1", "888888"} << 2 << QStringLiteral("104-1-1");
        QTest::newRow("no details") << QStringList{"106", "2", ""} << 2 << QStringLiteral("106-2-0");
        QTest::newRow("unknown total") << QStringList{"999", "1", "1"} << 2 << QStringLiteral("101-0-0");
        QTest::newRow("nothing") << QStringList{"", "", ""} << 0 << QStringLiteral("101-0-0");
        QTest::newRow("level beyond") << QStringList{"104", "2", "12"} << 9 << QStringLiteral("104-2-12");
        QTest::newRow("no codes") << QStringList{"1 OR 1=1", "'", "--"} << 0 << QStringLiteral("101-0-0");
    }

    void theFocusLevelDecidesWhereItBegins()
    {
        QFETCH(QStringList, begin);
        QFETCH(int, focusLevel);
        const TUser user([](TAccountPickerDialog& dialog) {
            if (dialog.Details().HasList())
                TUser::WaitForDetails(dialog);
            TUser::Press(Qt::Key_Return);
        });
        const THCSelectedCode picked = Host().Pickers.Select_AccountCodes({}, begin[0], begin[1], begin[2],
                                                                          static_cast<quint8>(focusLevel));
        QTEST(TextOf(picked), "picked");
    }

    void everyLevelIsPickedByKeys_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<QString>("picked");
        const auto row = [](const char* title, const char* typed, const QVector<int>& keys,
                            const char* picked) {
            QTest::newRow(title) << QString::fromUtf8(typed) << keys << QString::fromUtf8(picked);
        };
        row("total by code", "104", {Qt::Key_Return}, "104-0-0");
        row("total by name", "تنخواه", {Qt::Key_Enter}, "103-0-0");
        row("total with Arabic letters", "موجودي كالا", {Qt::Key_Return}, "106-0-0");
        row("assistant under a total", "104", {Qt::Key_Left, Qt::Key_Down, Qt::Key_Return}, "104-2-0");
        row("assistant by code", "۱۰۴-۲", {Qt::Key_Return}, "104-2-0");
        row("assistant by name", "چك‌هاي واخواستي", {Qt::Key_Return}, "105-3-0");
        row("back to the total", "104-2", {Qt::Key_Right, Qt::Key_Return}, "104-0-0");
        row("detail", "104-2", {Qt::Key_Left, Qt::Key_Down, Qt::Key_Return}, "104-2-2");
        row("from the details back", "104-2", {Qt::Key_Left, Qt::Key_Right, Qt::Key_Return}, "104-2-0");
        row("no details", "106-1", {Qt::Key_Left, Qt::Key_Return}, "106-1-0");
        row("a wrong letter taken back", "104x", {Qt::Key_Backspace, Qt::Key_Return}, "104-0-0");
        row("nothing found", "qqq", {Qt::Key_Return}, "0-0-0");
        row("escape", "104", {Qt::Key_Escape}, "0-0-0");
    }

    void everyLevelIsPickedByKeys()
    {
        QFETCH(QString, typed);
        QFETCH(QVector<int>, keys);
        const THCSelectedCode picked = Pick([&](TAccountPickerDialog& dialog) {
            TUser::Type(typed);
            QCOMPARE(dialog.Chart().SearchEdit().Text(), typed.contains(u'۱') ? "104-2" : typed);
            for (const int key : keys) {
                if (dialog.Details().HasList())
                    TUser::WaitForDetails(dialog);
                TUser::Press(static_cast<Qt::Key>(key));
            }
        });
        QTEST(TextOf(picked), "picked");
    }

    void aDetailIsFoundAsOneTypes_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("detail");
        QTest::newRow("name with another kaf") << QStringLiteral("کارخانه یکتای") << 900001;
        QTest::newRow("code") << QStringLiteral("900001") << 900001;
        QTest::newRow("completed code") << QStringLiteral("000012") << 12;
        QTest::newRow("Persian digits") << QStringLiteral("۹۰۰۰۰۳") << 900003;
        QTest::newRow("digits of a name") << QStringLiteral("30000 کارخانه") << 900003;
        QTest::newRow("beginning of codes, in a name before them") << QStringLiteral("90000") << 899999;
        QTest::newRow("a whole code before longer ones") << QStringLiteral("3") << 3;
    }

    void aDetailIsFoundAsOneTypes()
    {
        QFETCH(QString, typed);
        for (const bool patient : {true, false}) {
            const THCSelectedCode picked = Pick(
                [&](TAccountPickerDialog& dialog) {
                    TUser::WaitForDetails(dialog);
                    TUser::Type(typed);
                    QCOMPARE(QApplication::focusWidget(), &dialog.Details().Grid());
                    if (patient)
                        TUser::WaitForDetails(dialog);
                    TUser::Press(Qt::Key_Return);
                },
                {104, 1, 0}, 2);
            QCOMPARE(picked.Total, 104);
            QCOMPARE(picked.Assistant, 1);
            QTEST(picked.Detail, "detail");
        }
    }

    void whatIsSwitchedOffIsNotOffered()
    {
        QCOMPARE(TextOf(Pick(
                     [](TAccountPickerDialog& dialog) {
                         TUser::WaitForDetails(dialog);
                         TUser::Type(QStringLiteral("کنارگذاشته"));
                         TUser::WaitForDetails(dialog);
                         QCOMPARE(dialog.Details().DataSet().RecordCount(), 0);
                         QVERIFY(dialog.Details().Grid().EmptyText().contains(QStringLiteral("کنارگذاشته")));
                         TUser::Press(Qt::Key_Return);
                         QVERIFY(dialog.isVisible());
                         TUser::Press(Qt::Key_Escape);
                     },
                     {104, 1, 900002}, 2)),
                 nothing);
    }

    void theKindOfDetailsFollowsTheAssistant()
    {
        Pick(
            [](TAccountPickerDialog& dialog) {
                TUser::WaitForDetails(dialog);
                QVERIFY(dialog.Details().DataSet().Condition().contains(QStringLiteral("[Type] = 3")));
                TUser::Press(Qt::Key_Down);
                TUser::WaitForDetails(dialog);
                QVERIFY(dialog.Details().DataSet().Condition().contains(QStringLiteral("[Type] = 4")));
            },
            {604, 1, 0}, 1);
    }

    void uniqueCodesAreShownInEightDigitsAndReturned()
    {
        const THCSelectedCode picked = Pick(
            [](TAccountPickerDialog& dialog) {
                TUser::WaitForDetails(dialog);
                QCOMPARE(dialog.Details().CurrentCodeText(), QStringLiteral("01900001"));
                const QModelIndex code = dialog.Details().Grid().currentIndex().siblingAtColumn(0);
                QCOMPARE(code.data().toString(), QStringLiteral("01900001"));
                TUser::Type(QStringLiteral("0190000"));
                TUser::Press(Qt::Key_Down);
                TUser::WaitForDetails(dialog);
                QCOMPARE(dialog.Details().DataSet().RecordCount(), 2);
                TUser::Press(Qt::Key_Down);
                TUser::Press(Qt::Key_Return);
            },
            {108, 1, 1900001}, 2);
        QCOMPARE(TextOf(picked), QStringLiteral("108-1-1900003"));
    }

    void underATotalWithAssistantsNoDetailIsOffered()
    {
        Pick(
            [](TAccountPickerDialog& dialog) {
                QVERIFY(!dialog.Details().HasList());
                QVERIFY(dialog.Details().Grid().EmptyText().contains(QStringLiteral("معین")));
                QVERIFY(!dialog.Details().SearchEdit().isEnabled());
            },
            {104, 0, 0}, 0);
    }

    void theGroupsFilterTheChart()
    {
        TSelectGroups groups;
        groups.Include(THCSelectGroups::sgLiabilities).Include(THCSelectGroups::sgIncomes);
        Pick(
            [](TAccountPickerDialog& dialog) {
                QAbstractItemModel& model = *dialog.Chart().View().model();
                QStringList shown;
                for (int row = 0; row < model.rowCount(); ++row)
                    shown.append(model.index(row, 0).data().toString());
                QCOMPARE(shown, QStringList({"3", "4", "6"}));
                QCOMPARE(CurrentAccount(dialog), QStringLiteral("301"));
                TUser::Type(QStringLiteral("104"));
                QCOMPARE(model.rowCount(), 0);
                QVERIFY(dialog.Chart().View().EmptyText().contains(QStringLiteral("104")));
            },
            {104, 1, 12}, 2, groups);
    }

    void anEmptyChartSaysWhy()
    {
        QCOMPARE(TextOf(Pick(
                     [](TAccountPickerDialog& dialog) {
                         QCOMPARE(dialog.Chart().View().model()->rowCount(), 0);
                         QVERIFY(dialog.Chart().View().EmptyText().contains(
                             QStringLiteral("گروه‌هایی")));
                         for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return})
                             TUser::Press(key);
                     },
                     {}, 0, TSelectGroups().Include(THCSelectGroups::sgNone))),
                 nothing);
    }

    void aGroupOpensAndClosesAndIsNeverPicked()
    {
        QCOMPARE(TextOf(Pick([](TAccountPickerDialog& dialog) {
                     TUser::Press(Qt::Key_Right);
                     TUser::Press(Qt::Key_Right);
                     QCOMPARE(CurrentAccount(dialog), QStringLiteral("1"));
                     const QModelIndex group = dialog.Chart().View().currentIndex().siblingAtColumn(0);
                     QVERIFY(dialog.Chart().View().isExpanded(group));
                     TUser::Press(Qt::Key_Return);
                     QVERIFY(!dialog.Chart().View().isExpanded(group));
                     QVERIFY(dialog.isVisible());
                     TUser::Press(Qt::Key_Escape);
                 })),
                 nothing);
    }

    void theMousePicksToo()
    {
        const auto doubleClick = [](QAbstractItemView& view, const QModelIndex& index) {
            view.scrollTo(index);
            const QPoint place = view.visualRect(index).center();
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
            QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
        };
        QCOMPARE(TextOf(Pick([&](TAccountPickerDialog& dialog) {
                     QTreeView& view = dialog.Chart().View();
                     doubleClick(view, view.model()->index(1, 1, view.model()->index(0, 0)));
                 })),
                 QStringLiteral("102-0-0"));
        QCOMPARE(TextOf(Pick(
                     [&](TAccountPickerDialog& dialog) {
                         TUser::WaitForDetails(dialog);
                         TSmartDBGrid_TRV& grid = dialog.Details().Grid();
                         doubleClick(grid, grid.model()->index(3, 1));
                     },
                     {104, 1, 0}, 1)),
                 QStringLiteral("104-1-4"));
        QCOMPARE(TextOf(Pick(
                     [&](TAccountPickerDialog& dialog) {
                         auto* choose = dialog.findChild<TSmartButton_TRV*>();
                         QTest::mouseClick(choose, Qt::LeftButton);
                     },
                     {104, 1, 0}, 1)),
                 QStringLiteral("104-1-0"));
    }

    void sizesAreKept()
    {
        Pick([](TAccountPickerDialog& dialog) {
            dialog.resize(760, 511);
            dialog.Chart().View().setColumnWidth(0, 151);
            dialog.Details().SetCodeWidth(111);
        });
        Pick([](TAccountPickerDialog& dialog) {
            QCOMPARE(dialog.size(), QSize(760, 511));
            QCOMPARE(dialog.Chart().View().columnWidth(0), 151);
            QCOMPARE(dialog.Details().CodeWidth(), 111);
        });
    }

    void anAncestorThatGoesTakesTheDialogAlong()
    {
        auto* owner = new QWidget;
        owner->show();
        QVERIFY(QTest::qWaitForWindowExposed(owner));
        owner->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(owner));
        QCOMPARE(TextOf(Pick([owner](TAccountPickerDialog& dialog) {
                     QCOMPARE(dialog.parentWidget(), owner);
                     delete owner;
                 })),
                 nothing);
    }

private:
    std::unique_ptr<TChartFixture> chart_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<AccountPickersTest>(argc, argv);
}
#include "AccountPickersTest.moc"
