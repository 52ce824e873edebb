#include "FormFixture.h"

#include "DetailAccountForm.h"
#include "HelpWindow.h"
#include "ListForm.h"
#include "MainWindow.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "VoucherForm.h"
#include "VoucherHeadBar.h"

/// Pages of the main window.
class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TFormFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void init()
    {
        shop_->Told.clear();
        shop_->Answers.clear();
        window_ = std::make_unique<TMainWindow>(shop_->Host, QStringLiteral("shop.db"));
        window_->show();
        TFormFixture::Activate(window_.get());
        window_->OpenPage(QStringLiteral("Goods"));
    }
    void cleanup() { window_.reset(); }

    void everyPageOpensByItsKey()
    {
        const QVector<TPageDescription> pages = WorkbenchPages();
        for (qsizetype place = 0; place < pages.size(); ++place) {
            Press(static_cast<Qt::Key>(Qt::Key_1 + place), Qt::ControlModifier);
            QVERIFY(window_->CurrentPage() != nullptr);
            QVERIFY(window_->windowTitle().startsWith(pages.at(place).Title));
            QVERIFY(!window_->CurrentPage()->Keys().isEmpty());
        }
        QVERIFY(window_->OpenPage(QStringLiteral("nowhere")) == nullptr);
    }

    void whatIsTypedStaysWhileAnotherPageIsInFront()
    {
        auto& form = OpenVoucher();
        form.HeadBar().Title().setFocus();
        Type(QStringLiteral("نیمه‌کاره"));
        Press(Qt::Key_1, Qt::ControlModifier);
        QVERIFY(window_->CurrentList() != nullptr);
        Press(Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(window_->CurrentPage(), &form);
        QCOMPARE(form.HeadBar().Title().Text(), QStringLiteral("نیمه‌کاره"));
        QVERIFY(form.HeadBar().Title().hasFocus());
        shop_->Answers = {QStringLiteral("ذخیره نکن")};
        window_->close();
    }

    void closingWithUnsavedChangesAsksWhateverPageIsInFront()
    {
        auto& form = OpenVoucher();
        form.HeadBar().Title().setFocus();
        Type(QStringLiteral("نیمه‌کاره"));
        Press(Qt::Key_1, Qt::ControlModifier);
        shop_->Answers = {QStringLiteral("انصراف")};
        QVERIFY(!window_->close());
        QVERIFY(window_->isVisible());
        QCOMPARE(shop_->Told.size(), 1);
        QCOMPARE(window_->CurrentPage(), &form); // the question is about what the user sees
        shop_->Answers = {QStringLiteral("ذخیره نکن")};
        QVERIFY(window_->close());
        QVERIFY(!window_->isVisible());
    }

    void withoutChangesTheWindowClosesAtOnce()
    {
        OpenVoucher();
        QVERIFY(window_->close());
        QCOMPARE(shop_->Told, QStringList());
    }

    void theKeysAreThoseOfThePageInFront()
    {
        OpenVoucher();
        Press(Qt::Key_F1);
        auto* help = qobject_cast<THelpWindow*>(QApplication::activeModalWidget());
        QVERIFY(help != nullptr);
        QStringList captions;
        for (const TSmartLabel_TRV* label : help->findChildren<TSmartLabel_TRV*>())
            captions.append(label->Caption());
        QVERIFY(captions.contains(QStringLiteral("صدور سند")));
        QVERIFY(captions.contains(QStringLiteral("ذخیرهٔ سند")));
        QVERIFY(!captions.contains(QStringLiteral("خواندن دوبارهٔ فهرست")));
        help->close();
    }

private:
    TVoucherForm& OpenVoucher()
    {
        Press(Qt::Key_3, Qt::ControlModifier);
        return *qobject_cast<TVoucherForm*>(window_->CurrentPage());
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        if (QApplication::activeWindow() == nullptr)
            TFormFixture::Activate(window_.get());
        QTest::keyClick(window_->focusWidget() != nullptr ? window_->focusWidget() : window_.get(), key,
                        modifiers);
        QCoreApplication::processEvents();
    }
    void Type(const QString& text) const
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, window_->focusWidget(), Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
    }

    std::unique_ptr<TFormFixture> shop_;
    std::unique_ptr<TMainWindow> window_;
};

int main(int argc, char** argv)
{
    return RunFormTest<MainWindowTest>(argc, argv);
}
#include "MainWindowTest.moc"
