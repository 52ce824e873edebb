#include "ListFormFixture.h"

#include "DisplayText.h"
#include "ListFooter.h"
#include "PersianText.h"

#include <QHeaderView>

class ListFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TListFormFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void init() { shop_->OpenList(GoodsList()); }
    void cleanup() { shop_->List.reset(); }

    void aListOpensWithItsRowsAndTheirNumber()
    {
        const int rows = List().DataSet().RecordCount();
        QCOMPARE(rows, TSampleSize::Small().Goods);
        QCOMPARE(List().Footer().CountText(), DisplayText::RowCount(rows));
        QVERIFY(!List().Footer().ShowsBusy());
        QVERIFY(List().SearchFrame().Search_EDT->hasFocus());
    }

    void f10GoesToTheFieldAndTabToTheEdit()
    {
        shop_->Press(Qt::Key_F10);
        QVERIFY(List().SearchFrame().Search_CMB->hasFocus());
        shop_->Press(Qt::Key_Tab);
        QVERIFY(List().SearchFrame().Search_EDT->hasFocus());
    }

    void typingFiltersAndTheConditionIsSaidInWords()
    {
        const QString word = shop_->Text(5, QStringLiteral("Name")).section(u' ', 0, 0);
        shop_->Type(word);
        QVERIFY(!List().SearchFrame().Filter_is_done());
        shop_->WaitForRows();
        QVERIFY(List().DataSet().RecordCount() > 0);
        QVERIFY(List().DataSet().RecordCount() < TSampleSize::Small().Goods);
        for (int row = 0; row < qMin(20, List().DataSet().RecordCount()); ++row)
            QVERIFY(PersianText::Fold(shop_->Text(row, QStringLiteral("Name")))
                        .contains(PersianText::Fold(word)));
        QVERIFY2(List().Footer().ConditionInWords().contains(word),
                 qPrintable(List().Footer().ConditionInWords()));
    }

    void enterInTheEditOpensTheFoundRow()
    {
        const QString code = shop_->Text(9, QStringLiteral("Code"));
        shop_->Press(Qt::Key_F10);
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Tab);
        QVERIFY(List().SearchFrame().SearchDigit_EDT->hasFocus());
        shop_->Type(code);
        shop_->Press(Qt::Key_Return);
        TRecordCard* card = shop_->WaitForCard();
        QVERIFY(card != nullptr);
        QCOMPARE(card->FieldText(QStringLiteral("Code")), shop_->Text(0, QStringLiteral("Code")));
        QVERIFY(card->FieldText(QStringLiteral("Code")).contains(code));
        QTest::keyClick(card, Qt::Key_Escape);
        QTRY_VERIFY(List().Card() == nullptr);
    }

    void enterOnASearchWithoutRowsOpensNothing()
    {
        shop_->Type(QStringLiteral("ژژژژ"));
        shop_->Press(Qt::Key_Return);
        shop_->WaitForRows();
        QTest::qWait(100);
        QVERIFY(List().Card() == nullptr);
        QCOMPARE(List().DataSet().RecordCount(), 0);
        QVERIFY(List().Grid().EmptyText().contains(QStringLiteral("Escape")));
    }

    void enterAndDoubleClickInTheGridOpenTheCurrentRow()
    {
        shop_->Press(Qt::Key_Down);
        QVERIFY(List().Grid().hasFocus());
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Return);
        TRecordCard* card = shop_->WaitForCard();
        QVERIFY(card != nullptr);
        QCOMPARE(card->FieldText(QStringLiteral("Code")),
                 List().DataSet().FieldByName(QStringLiteral("Code"))->AsString());
        QTest::keyClick(card, Qt::Key_Escape);
        QTRY_VERIFY(List().Card() == nullptr);
        shop_->Activate(&List());
        const QRect cell = List().Grid().visualRect(List().Grid().model()->index(3, 1));
        QTest::mouseClick(List().Grid().viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
        QTest::mouseDClick(List().Grid().viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
        card = shop_->WaitForCard();
        QVERIFY(card != nullptr);
        QCOMPARE(card->FieldText(QStringLiteral("Code")), shop_->Text(3, QStringLiteral("Code")));
        card->close();
        QTRY_VERIFY(List().Card() == nullptr);
    }

    void theCardGoesToTheNextAndThePreviousRecord()
    {
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Return);
        TRecordCard* card = shop_->WaitForCard();
        QVERIFY(card != nullptr);
        QTest::keyClick(card, Qt::Key_PageUp);
        QCOMPARE(List().DataSet().RecNo(), 1);
        QTest::keyClick(card, Qt::Key_PageDown);
        QTest::keyClick(card, Qt::Key_PageDown);
        QCOMPARE(List().DataSet().RecNo(), 3);
        QCOMPARE(card->FieldText(QStringLiteral("Name")), shop_->Text(2, QStringLiteral("Name")));
        QTest::keyClick(card, Qt::Key_PageUp);
        QCOMPARE(card->FieldText(QStringLiteral("Name")), shop_->Text(1, QStringLiteral("Name")));
        card->close();
    }

    void typingInTheGridGoesOnInTheEdit()
    {
        shop_->Press(Qt::Key_Down);
        shop_->Type(QStringLiteral("کا"));
        QVERIFY(List().SearchFrame().Search_EDT->hasFocus());
        QCOMPARE(List().SearchFrame().Search_EDT->Text(), QStringLiteral("کا"));
        shop_->Press(Qt::Key_Up);
        QVERIFY(List().Grid().hasFocus());
        shop_->Press(Qt::Key_Backspace);
        QCOMPARE(List().SearchFrame().Search_EDT->Text(), QStringLiteral("ک"));
    }

    void typingInTheGridReplacesTheZeroOfANumberEdit()
    {
        shop_->Press(Qt::Key_F10);
        shop_->Press(Qt::Key_Down);
        List().FocusSearchEdit();
        shop_->Press(Qt::Key_Down);
        QVERIFY(List().Grid().hasFocus());
        shop_->Type(QStringLiteral("۱۲"));
        QCOMPARE(List().SearchFrame().SearchDigit_EDT->Text(), QStringLiteral("12"));
    }

    void escapeClearsTheSearch()
    {
        shop_->Type(shop_->Text(5, QStringLiteral("Name")).left(3));
        shop_->WaitForRows();
        QVERIFY(List().DataSet().RecordCount() < TSampleSize::Small().Goods);
        List().SearchFrame().Search_Reverst_CHK->setChecked(true);
        shop_->Press(Qt::Key_Escape);
        shop_->WaitForRows();
        QCOMPARE(List().DataSet().RecordCount(), TSampleSize::Small().Goods);
        QVERIFY(List().SearchFrame().Search_EDT->Text().isEmpty());
        QVERIFY(!List().SearchFrame().Search_Reverst_CHK->Checked());
        QVERIFY(List().SearchFrame().Search_EDT->hasFocus());
    }

    void sortFieldAndWidthSurviveClosing()
    {
        List().Grid().horizontalHeader()->resizeSection(1, 222);
        List().DataSet().SetOrder(QStringLiteral("Name"), Qt::DescendingOrder);
        shop_->Press(Qt::Key_F10);
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Down);
        List().SaveState();
        shop_->OpenList(GoodsList());
        QCOMPARE(List().Grid().horizontalHeader()->sectionSize(1), 222);
        QCOMPARE(List().DataSet().OrderField(), QStringLiteral("Name"));
        QCOMPARE(List().DataSet().Order(), Qt::DescendingOrder);
        QCOMPARE(List().SearchFrame().Search_CMB->ItemIndex(), 2);
        List().DataSet().SetOrder(QStringLiteral("Code"), Qt::AscendingOrder);
        List().SearchFrame().TarvaSearch_General->SetItemIndex(0);
        List().SaveState();
    }

    void theSortMenuOrdersAndTurnsTheOrder()
    {
        for (const Qt::SortOrder expected : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            List().FocusSearchEdit();
            shop_->Press(Qt::Key_F7);
            QWidget* menu = QApplication::activePopupWidget();
            QVERIFY(menu != nullptr);
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
            QCOMPARE(List().DataSet().OrderField(), QStringLiteral("Name"));
            QCOMPARE(List().DataSet().Order(), expected);
        }
        List().DataSet().SetOrder(QStringLiteral("Code"), Qt::AscendingOrder);
    }

    void personsAreTheSameFormWithOtherColumns()
    {
        shop_->OpenList(PersonsList());
        QCOMPARE(List().DataSet().RecordCount(), TSampleSize::Small().Persons);
        const QString city = shop_->Text(4, QStringLiteral("City"));
        shop_->Press(Qt::Key_F10);
        for (int i = 0; i < 4; ++i)
            shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Tab);
        shop_->Type(city);
        shop_->WaitForRows();
        for (int row = 0; row < List().DataSet().RecordCount(); ++row)
            QCOMPARE(shop_->Text(row, QStringLiteral("City")), city);
    }

private:
    TListForm& List() { return *shop_->List; }

    std::unique_ptr<TListFormFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunFormTest<ListFormTest>(argc, argv);
}
#include "ListFormTest.moc"
