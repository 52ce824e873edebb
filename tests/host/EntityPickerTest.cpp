#include "HostTestMain.h"
#include "PersianText.h"
#include "PickerFixture.h"
#include "SmartButton_TRV.h"
#include "SmartComboBox_TRV.h"

class EntityPickerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TPickerFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void cleanup() { QCOMPARE(shop_->Played, 1); }

    void itOpensOnTheFirstRowWithTheCaretInTheSearchEdit()
    {
        const int picked = shop_->Select(goods, {}, [](TEntityPicker& picker) {
            QVERIFY(picker.SearchFrame().Search_EDT->hasFocus());
            QVERIFY(picker.windowTitle().contains(QStringLiteral("کالا")));
            QCOMPARE(picker.layoutDirection(), Qt::RightToLeft);
            QVERIFY(picker.isModal());
            QCOMPARE(picker.DataSet().RecNo(), 1);
            QVERIFY(picker.CountText().contains(QString::number(picker.DataSet().RecordCount())));
        });
        QCOMPARE(picked, 0);
    }

    void itStandsOnTheCodeThatIsInTheBox_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<int>("code");
        QTest::newRow("on the first page") << "12#LC#" << 12;
        QTest::newRow("far behind") << "251#LC#Active=0,1" << 251;
        QTest::newRow("completed, in Persian digits") << QStringLiteral("۰۰۰۲۰#LC#") << 20;
        QTest::newRow("does not exist") << "999999#LC#" << 1;
        QTest::newRow("no code") << QStringLiteral("شیر#LC#") << 1;
    }

    void itStandsOnTheCodeThatIsInTheBox()
    {
        QFETCH(QString, argument);
        QFETCH(int, code);
        const int picked = shop_->Select(goods, argument, [code](TEntityPicker& picker) {
            QCOMPARE(picker.DataSet().CurrentKey().toInt(), code);
            const QModelIndex current = picker.Grid().currentIndex();
            QCOMPARE(current.row() + 1, picker.DataSet().RecNo());
            QVERIFY(picker.Grid().viewport()->rect().contains(picker.Grid().visualRect(current).center()));
            shop_->PressEnter(picker);
        });
        QCOMPARE(picked, code);
    }

    void lettersThatReadAlikeAreFoundAlike_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        const int persons = static_cast<int>(TSoftwarePart::spPersonals);
        QTest::newRow("folded names")
            << static_cast<int>(goods) << QStringLiteral("كليد") << QStringLiteral("کلید");
        QTest::newRow("half-space and kashida")
            << static_cast<int>(goods) << QStringLiteral("میلی‌متری")
            << QStringLiteral("ميليمتـري");
        QTest::newRow("persons") << persons << QStringLiteral("كريمي") << QStringLiteral("کریمی");
        QTest::newRow("names as they are")
            << static_cast<int>(TSoftwarePart::spIncomes) << QStringLiteral("ي") << QStringLiteral("ی");
    }

    void lettersThatReadAlikeAreFoundAlike()
    {
        QFETCH(int, part);
        QFETCH(QString, first);
        QFETCH(QString, second);
        shop_->Select(static_cast<TSoftwarePart>(part), {}, [&](TEntityPicker& picker) {
            shop_->Find(picker, first);
            const QVariantList found = shop_->Codes(picker);
            QVERIFY(!found.isEmpty());
            const QString name = picker.DataSet().Source().Fields.at(1);
            for (int row = 0; row < found.size(); ++row)
                QVERIFY(PersianText::Fold(shop_->Text(picker, row, name)).contains(PersianText::Fold(first)));
            picker.SearchFrame().Search_EDT->selectAll();
            shop_->Find(picker, second);
            QCOMPARE(shop_->Codes(picker), found);
        });
    }

    void aCodeIsFoundFirst_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("ASCII") << "14";
        QTest::newRow("Persian") << QStringLiteral("۱۴");
        QTest::newRow("Arabic-Indic") << QStringLiteral("١٤");
        QTest::newRow("completed") << "000014";
    }

    void aCodeIsFoundFirst()
    {
        QFETCH(QString, typed);
        const int picked = shop_->Select(goods, {}, [&](TEntityPicker& picker) {
            shop_->Find(picker, typed);
            QVERIFY(picker.DataSet().RecordCount() < 30);
            shop_->PressEnter(picker);
        });
        QCOMPARE(picked, 14);
    }

    void arrowsAndPageKeysMoveInTheListWhileTheCaretStays()
    {
        shop_->Select(goods, {}, [](TEntityPicker& picker) {
            TSmartEdit_TRV* edit = picker.SearchFrame().Search_EDT;
            shop_->Find(picker, QStringLiteral("ا"));
            const auto pressed = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
                shop_->Press(picker, key, modifiers);
                return picker.DataSet().RecNo();
            };
            QCOMPARE(pressed(Qt::Key_Down), 2);
            QCOMPARE(pressed(Qt::Key_Down), 3);
            QCOMPARE(pressed(Qt::Key_Up), 2);
            const int page = pressed(Qt::Key_PageDown) - 2;
            QVERIFY2(page > 5, qPrintable(QString::number(page)));
            QCOMPARE(pressed(Qt::Key_PageUp), 2);
            QCOMPARE(pressed(Qt::Key_Up), 1);
            QCOMPARE(pressed(Qt::Key_Up), 1);
            QCOMPARE(pressed(Qt::Key_End, Qt::ControlModifier), picker.DataSet().RecordCount());
            QCOMPARE(pressed(Qt::Key_Home, Qt::ControlModifier), 1);
            QVERIFY(edit->hasFocus());
            QCOMPARE(edit->Text(), QStringLiteral("ا"));
            shop_->Find(picker, QStringLiteral("ب"));
            QCOMPARE(edit->Text(), QStringLiteral("اب"));
        });
    }

    void enterRightBehindTheTypingPicksWhatIsFound()
    {
        const int expected = FoundAt(0);
        const int picked = shop_->Select(goods, {}, [](TEntityPicker& picker) {
            shop_->Type(picker, word);
            QVERIFY(!picker.SearchFrame().Filter_is_done());
            shop_->PressEnter(picker);
        });
        QCOMPARE(picked, expected);
    }

    void arrowAndEnterRightBehindTheTypingMeanTheFoundRows()
    {
        const int expected = FoundAt(2);
        const int picked = shop_->Select(goods, {}, [](TEntityPicker& picker) {
            shop_->Type(picker, word);
            shop_->Press(picker, Qt::Key_Down);
            shop_->Press(picker, Qt::Key_Down);
            QVERIFY(!picker.SearchFrame().Filter_is_done());
            shop_->Press(picker, Qt::Key_Enter);
            QTRY_VERIFY(picker.Code() != 0);
        });
        QCOMPARE(picked, expected);
    }

    void anArrowThatFoundNothingIsForgotten()
    {
        const int expected = FoundAt(0);
        const int picked = shop_->Select(goods, {}, [](TEntityPicker& picker) {
            shop_->Type(picker, QStringLiteral("ژژژ"));
            shop_->Press(picker, Qt::Key_Down);
            shop_->WaitForRows(picker);
            QCOMPARE(picker.DataSet().RecordCount(), 0);
            picker.SearchFrame().Search_EDT->selectAll();
            shop_->Find(picker, word);
            QCOMPARE(picker.DataSet().RecNo(), 1);
            shop_->PressEnter(picker);
        });
        QCOMPARE(picked, expected);
    }

    void enterOnNothingFoundLeavesThePickerOpenAndSaysWhy()
    {
        const int picked = shop_->Select(goods, {}, [](TEntityPicker& picker) {
            shop_->Type(picker, QStringLiteral("ژژژ"));
            shop_->Press(picker, Qt::Key_Return);
            shop_->WaitForRows(picker);
            QTest::qWait(50);
            QVERIFY(picker.isVisible());
            QCOMPARE(picker.DataSet().RecordCount(), 0);
            QVERIFY2(picker.Grid().EmptyText().contains(QStringLiteral("ژژژ")),
                     qPrintable(picker.Grid().EmptyText()));
        });
        QCOMPARE(picked, 0);
    }

    void escapeAndClosingCancel_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Escape") << true;
        QTest::newRow("close") << false;
    }

    void escapeAndClosingCancel()
    {
        QFETCH(bool, byKey);
        const int picked = shop_->Select(goods, QStringLiteral("5#LC#"), [byKey](TEntityPicker& picker) {
            shop_->Find(picker, QStringLiteral("ا"));
            shop_->Press(picker, Qt::Key_Down);
            if (byKey)
                shop_->Press(picker, Qt::Key_Escape);
            else
                picker.close();
            QVERIFY(!picker.isVisible());
        });
        QCOMPARE(picked, 0);
    }

    void aDoubleClickPicksTheRow()
    {
        int expected = 0;
        const int picked = shop_->Select(goods, {}, [&expected](TEntityPicker& picker) {
            QWidget* viewport = picker.Grid().viewport();
            const QPoint cell = picker.Grid().visualRect(picker.Grid().model()->index(3, 1)).center();
            QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, cell);
            QVERIFY(picker.SearchFrame().Search_EDT->hasFocus());
            expected = shop_->Codes(picker).at(3).toInt();
            QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, cell);
        });
        QVERIFY(expected > 0);
        QCOMPARE(picked, expected);
    }

    void theButtonsPickAndCancel()
    {
        const auto ok = [](TEntityPicker& picker) { Click(picker, TSmartButton_TRV::btOk); };
        QCOMPARE(shop_->Select(goods, QStringLiteral("5#LC#"), ok), 5);
        const auto cancel = [](TEntityPicker& picker) { Click(picker, TSmartButton_TRV::btCancel); };
        QCOMPARE(shop_->Select(goods, QStringLiteral("5#LC#"), cancel), 0);
    }

    void theButtonRightBehindTheTypingPicksWhatIsFound()
    {
        const int expected = FoundAt(0);
        const int picked = shop_->Select(goods, {}, [](TEntityPicker& picker) {
            shop_->Type(picker, word);
            Click(picker, TSmartButton_TRV::btOk);
            QTRY_VERIFY(picker.Code() != 0);
        });
        QCOMPARE(picked, expected);
    }

    void aDoubleClickRightBehindTheTypingPicksTheRowUnderTheMouse()
    {
        int expected = 0;
        const int picked = shop_->Select(goods, {}, [&expected](TEntityPicker& picker) {
            const QPoint cell = picker.Grid().visualRect(picker.Grid().model()->index(4, 1)).center();
            expected = shop_->Codes(picker).at(4).toInt();
            shop_->Type(picker, word);
            QTest::mouseClick(picker.Grid().viewport(), Qt::LeftButton, Qt::NoModifier, cell);
            QTest::mouseDClick(picker.Grid().viewport(), Qt::LeftButton, Qt::NoModifier, cell);
        });
        QVERIFY(expected > 0 && expected != FoundAt(0));
        QCOMPARE(picked, expected);
    }

    void escapeBehindEnterCancels()
    {
        const int picked = shop_->Select(goods, {}, [](TEntityPicker& picker) {
            shop_->Type(picker, word);
            shop_->Press(picker, Qt::Key_Return);
            shop_->Press(picker, Qt::Key_Escape);
            QTest::qWait(600);
        });
        QCOMPARE(picked, 0);
    }

    void f10GoesToTheFieldAndAnotherFieldIsSearched()
    {
        shop_->Select(TSoftwarePart::spPersonals, {}, [](TEntityPicker& picker) {
            const QString city = shop_->Text(picker, 4, QStringLiteral("City"));
            shop_->Press(picker, Qt::Key_F10);
            QVERIFY(picker.SearchFrame().Search_CMB->hasFocus());
            shop_->Press(picker, Qt::Key_Down);
            shop_->Press(picker, Qt::Key_Tab);
            QVERIFY(picker.SearchFrame().Search_EDT->hasFocus());
            shop_->Find(picker, city);
            QVERIFY(picker.DataSet().RecordCount() > 0);
            for (int row = 0; row < picker.DataSet().RecordCount(); ++row)
                QCOMPARE(shop_->Text(picker, row, QStringLiteral("City")), city);
        });
    }

    void nothingTypedLeavesItsLiteral()
    {
        shop_->Select(goods, {}, [](TEntityPicker& picker) {
            for (const char* typed : {"'", "%", "_", "[", "]", "--", "' OR 1=1 --", "\\"}) {
                picker.SearchFrame().Search_EDT->selectAll();
                shop_->Find(picker, QString::fromLatin1(typed));
                const QVariantList found = shop_->Codes(picker);
                for (int row = 0; row < found.size(); ++row)
                    QVERIFY2(shop_->Text(picker, row, QStringLiteral("Name")).contains(QLatin1String(typed)),
                             typed);
            }
        });
    }

private:
    static constexpr TSoftwarePart goods = TSoftwarePart::spGoods;
    static inline const QString word = QStringLiteral("شیر");

    static void Click(TEntityPicker& picker, TSmartButton_TRV::TButtonType type)
    {
        const auto buttons = picker.findChildren<TSmartButton_TRV*>();
        for (TSmartButton_TRV* button : buttons) {
            if (button->ButtonType() == type)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }

    // The n-th of the goods that the word finds, counted from 0.
    static int FoundAt(int row)
    {
        const auto rows = shop_->Connection.Run(QStringLiteral(
            "SELECT Code FROM dbo.kala WHERE SearchName LIKE N'%شیر%' AND Active = 1 ORDER BY Code"));
        for (int i = 0; i <= row; ++i) {
            if (!rows->Next())
                return -1;
        }
        return static_cast<int>(rows->Int64(0));
    }

    static inline std::unique_ptr<TPickerFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<EntityPickerTest>(argc, argv);
}
#include "EntityPickerTest.moc"
