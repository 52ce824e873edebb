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

#include <QListWidget>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QToolButton>

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

    void theFirstWindowAndTheHelpFitTheScreen()
    {
        const QSize room = window_->screen()->availableSize();
        shop_->Settings.SetValue(QStringLiteral("Window/Geometry"), QVariant());
        const TMainWindow first(shop_->Host, QStringLiteral("shop.db"));
        QVERIFY(first.width() <= room.width());
        QVERIFY(first.height() <= room.height());
        // More keys than any page has.
        THelpWindow help(QStringLiteral("صفحه"),
                         QVector<TKeyHelp>(100, {QStringLiteral("F1"), QStringLiteral("راهنما")}),
                         window_.get());
        help.show();
        QVERIFY(help.height() <= room.height());
        QVERIFY(help.findChild<QScrollArea*>()->verticalScrollBar()->maximum() > 0);
        QCOMPARE(help.findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
    }

    void everyEntryOfAMenuHasALetterOfItsOwn()
    {
        const QList<QAction*> menus = window_->menuBar()->actions();
        QCOMPARE(menus.size(), 4);
        for (const QAction* entry : menus) {
            QSet<QChar> letters;
            for (const QAction* action : entry->menu()->actions()) {
                if (action->isSeparator())
                    continue;
                const qsizetype mark = action->text().indexOf(u'&');
                QVERIFY2(mark >= 0, qUtf8Printable(action->text()));
                const QChar letter = action->text().at(mark + 1);
                QVERIFY2(!letters.contains(letter), qUtf8Printable(action->text()));
                letters.insert(letter);
            }
        }
    }

    void aPageOpensByTheLettersOfTheMenus()
    {
        QMenu* forms = window_->menuBar()->actions().at(1)->menu();
        forms->popup(QPoint(0, 0));
        QTest::sendKeyEvent(QTest::Click, forms, static_cast<Qt::Key>(u'ص'), QStringLiteral("ص"),
                            Qt::NoModifier);
        QVERIFY(qobject_cast<TVoucherForm*>(window_->CurrentPage()) != nullptr);
    }

    void buttonsTellTheirKeys_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("key");
        const auto add = [](const char* page, const char* button, const char* key) {
            QTest::addRow("%s %s", page, button)
                << QString::fromLatin1(page) << QString::fromLatin1(button) << QString::fromLatin1(key);
        };
        add("Goods", "CloseTagging_BTN", "F8");
        add("Voucher", "New_BTN", "Ctrl+N");
        add("Voucher", "Save_BTN", "F2");
        add("DetailAccounts", "New_BTN", "Ctrl+N");
        add("VoucherLines", "Save_BTN", "Ctrl+P");
        add("Categories", "AddTop_BTN", "Ctrl+N");
        add("Categories", "AddChild_BTN", "Insert");
        add("Categories", "Rename_BTN", "F2");
        add("Categories", "PickUp_BTN", "Ctrl+X");
        add("Categories", "Delete_BTN", "Delete");
    }
    void buttonsTellTheirKeys()
    {
        QFETCH(const QString, page);
        QFETCH(const QString, button);
        QFETCH(const QString, key);
        const auto* found = window_->OpenPage(page)->findChild<QAbstractButton*>(button);
        QVERIFY(found != nullptr);
        QVERIFY2(found->toolTip().contains(key), qUtf8Printable(found->toolTip()));
        const bool isInHelp = [this, &key] {
            for (const TKeyHelp& help : window_->CurrentPage()->Keys() + window_->CurrentPage()->MoreKeys) {
                if (help.Key.contains(key))
                    return true;
            }
            return false;
        }();
        QVERIFY2(isInHelp, qUtf8Printable(key));
    }

    void navigationTellsItsKeys()
    {
        const auto buttons = window_->findChildren<QToolButton*>();
        int told = 0;
        for (const QToolButton* button : buttons) {
            if (button->defaultAction() == nullptr)
                continue;
            QVERIFY(!button->text().contains(u'&'));
            told += button->toolTip().contains(QStringLiteral("Ctrl+%1").arg(told + 1)) ? 1 : 0;
        }
        QCOMPARE(told, WorkbenchPages().size());
    }

    void theGalleryBeginsWithAChosenFrame()
    {
        const TPage* gallery = window_->OpenPage(QStringLiteral("Gallery"));
        QCOMPARE(gallery->findChild<QListWidget*>()->selectedItems().size(), 1);
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
