#include "ExpenseCenterLibrary.h"
#include "HostTestMain.h"
#include "ModalBox.h"
#include "PickerFixture.h"

class ExpenseCenterLibraryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        shop_ = std::make_unique<TPickerFixture>();
        handle_ = Host().Libraries.Tarva_LoadLibrary(QString::fromUtf16(ExpenseCenterLibrary));
        QVERIFY(handle_ != 0);
        select_ = reinterpret_cast<TSelectExpenseCenter>(
            Host().Libraries.FindFunction(handle_, ExpenseCenterFunction));
        QVERIFY(select_ != nullptr);
    }

    void cleanupTestCase()
    {
        Host().Libraries.Tarva_FreeLibrary(QString::fromUtf16(ExpenseCenterLibrary), handle_);
        shop_.reset();
    }

    void theListShowsTheFourLevelsAndAnswersThePickedCode()
    {
        int expected = 0;
        const int picked = Select(u"", [&expected](TEntityPicker& picker) {
            QStringList titles;
            for (const TGridColumn& column : picker.Grid().Columns())
                titles.append(column.Title);
            for (const char16_t* level : {u"سطح اول", u"سطح دوم", u"سطح سوم", u"سطح چهارم"})
                QVERIFY(titles.contains(QString::fromUtf16(level)));
            for (const char* level : {"Level1Title", "Level2Title", "Level3Title", "Level4Title"})
                QVERIFY(!shop_->Text(picker, 1, QString::fromLatin1(level)).isEmpty());
            shop_->Press(picker, Qt::Key_Down);
            expected = picker.DataSet().CurrentKey().toInt();
            shop_->PressEnter(picker);
        });
        QVERIFY(expected > 0);
        QCOMPARE(picked, expected);
    }

    void cancellingAnswersZero()
    {
        QCOMPARE(Select(u"", [](TEntityPicker& picker) { shop_->Press(picker, Qt::Key_Escape); }), 0);
    }

    void selectionParametersRestrictTheList()
    {
        const int expected = shop_->Number(
            QStringLiteral("SELECT COUNT(*) FROM dbo.ExpenseCenters WHERE Level1Code = 2 AND Active = 1"));
        QVERIFY(expected > 0);
        Select(u"Level1Code=2",
               [expected](TEntityPicker& picker) { QCOMPARE(picker.DataSet().RecordCount(), expected); });
        QCOMPARE(shop_->Played, 1);
    }

    void noErrorLeavesTheLibrary()
    {
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        QCOMPARE(select_(u"Level1Code=1 OR 1=1"), 0);
        QCOMPARE(answer.Boxes(), 1);
        QVERIFY2(answer.Texts.constFirst().contains(QStringLiteral("OR 1=1")),
                 qPrintable(answer.Texts.constFirst()));
    }

private:
    int Select(const char16_t* parameters, const TPickerFixture::TScript& script)
    {
        return shop_->Play(script, [&] { return select_(parameters); });
    }

    static inline std::unique_ptr<TPickerFixture> shop_;
    ILibraries::THandle handle_ = 0;
    TSelectExpenseCenter select_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<ExpenseCenterLibraryTest>(argc, argv);
}
#include "ExpenseCenterLibraryTest.moc"
