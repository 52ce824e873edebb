#include "TagDialog.h"

#include "Balloon.h"
#include "ColorSwatches.h"
#include "HostTestMain.h"
#include "ModalBox.h"
#include "TagUser.h"
#include "ToolkitLeaks.h"

#include <QLineEdit>
#include <QPushButton>

namespace {

void Press(TTagDialog& dialog, Qt::Key key)
{
    QTest::keyClick(dialog.focusWidget(), key);
}

void Type(TTagDialog& dialog, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, dialog.focusWidget(), Qt::Key_unknown, QString(letter),
                            Qt::NoModifier);
}

} // namespace

class TagDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { user_ = std::make_unique<TTagUser>(); }
    void cleanup() { user_.reset(); }

    void enterSavesTheNameThatIsFilledIn()
    {
        const int code = user_->Define(QStringLiteral("فصلی"), [](TTagDialog& dialog) {
            QCOMPARE(dialog.NameEdit().text(), QStringLiteral("فصلی"));
            QVERIFY(dialog.NameEdit().hasFocus());
            Press(dialog, Qt::Key_Return);
        });
        QCOMPARE(user_->Played, 1);
        QVERIFY(code > 0);
        QCOMPARE(user_->NameOf(code), QStringLiteral("فصلی"));
    }

    void theColourIsChosenByTheMirroredArrows()
    {
        int chosen = -1;
        const int code = user_->Define(QStringLiteral("رنگی"), [&chosen](TTagDialog& dialog) {
            Press(dialog, Qt::Key_Tab);
            QVERIFY(dialog.Swatches().hasFocus());
            Press(dialog, Qt::Key_Home);
            Press(dialog, Qt::Key_Left);
            Press(dialog, Qt::Key_Left);
            chosen = dialog.Swatches().Current();
            Press(dialog, Qt::Key_Return);
        });
        QCOMPARE(chosen, 2);
        const int stored =
            user_->Value(QStringLiteral("SELECT color_code FROM dbo.TagS WHERE Code = %1").arg(code)).toInt();
        QCOMPARE(stored, TTagDefinition(*user_->Connection, 200).Colors().at(2).Code);
    }

    void theColourThatIsUsedLeastIsProposed()
    {
        const QVector<TTagColor> colors = TTagDefinition(*user_->Connection, 200).Colors();
        user_->Define(QStringLiteral("تازه"), [&colors](TTagDialog& dialog) {
            QCOMPARE(dialog.Swatches().Count(), int(colors.size()));
            QCOMPARE(colors.at(dialog.Swatches().Current()).Uses, 0);
        });
        QCOMPARE(user_->Played, 1);
    }

    void everyColourOfThePaletteHasANameOfItsOwn()
    {
        QStringList names;
        for (const TTagColor& color : TTagDefinition(*user_->Connection, 200).Colors())
            names.append(TColorSwatches::NameOf(Look::StringToColor(color.Notation)));
        QVERIFY(names.size() >= 10);
        QCOMPARE(names.removeDuplicates(), 0);
    }

    void escapeAndTheCancelButtonCreateNothing()
    {
        const int before = Tags();
        QCOMPARE(
            user_->Define(QStringLiteral("هیچ"), [](TTagDialog& dialog) { Press(dialog, Qt::Key_Escape); }),
            0);
        QCOMPARE(user_->Define(QStringLiteral("هیچ"),
                               [](TTagDialog& dialog) {
                                   for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
                                       if (button->text() == QStringLiteral("انصراف"))
                                           QTest::mouseClick(button, Qt::LeftButton);
                                   }
                                   QVERIFY(!dialog.isVisible());
                               }),
                 0);
        QCOMPARE(Tags(), before);
    }

    void anEmptyNameIsRefusedAtTheBox_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("nothing") << QString();
        QTest::newRow("blanks") << QStringLiteral("   ");
        QTest::newRow("direction marks") << QStringLiteral("\u200F\u202E");
        QTest::newRow("a line break") << QStringLiteral("\n\t");
    }

    void anEmptyNameIsRefusedAtTheBox()
    {
        QFETCH(QString, name);
        const int code = user_->Define(name, [](TTagDialog& dialog) {
            Press(dialog, Qt::Key_Return);
            QVERIFY(dialog.isVisible());
            QVERIFY(Balloon::ShownText().contains(QStringLiteral("خالی")));
            QVERIFY(dialog.NameEdit().hasFocus());
            Type(dialog, QStringLiteral("پر"));
            QCOMPARE(Balloon::ShownText(), QString());
            Press(dialog, Qt::Key_Return);
        });
        QCOMPARE(user_->NameOf(code), QStringLiteral("پر"));
    }

    void aRepeatedNameIsRefusedAndNothingIsLost()
    {
        const QString taken = user_->NameOf(1);
        const int code = user_->Define(taken, [](TTagDialog& dialog) {
            dialog.Swatches().SetCurrent(3);
            Press(dialog, Qt::Key_Return);
            QVERIFY(dialog.isVisible());
            QVERIFY(Balloon::ShownText().contains(QStringLiteral("همین نام")));
            QCOMPARE(dialog.Swatches().Current(), 3);
            QVERIFY(dialog.NameEdit().hasSelectedText());
            Type(dialog, QStringLiteral("نام دیگر"));
            Press(dialog, Qt::Key_Return);
        });
        QCOMPARE(user_->NameOf(code), QStringLiteral("نام دیگر"));
    }

    void aNameHasFiftyCharactersAtMost_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("stored");
        QTest::newRow("fifty") << QString(50, u'م') << QString(50, u'م');
        QTest::newRow("sixty") << QString(60, u'م') << QString(50, u'م');
        QTest::newRow("cut in an emoji") << QString(49, u'م') + QStringLiteral("🌟") << QString(49, u'م');
        QTest::newRow("blanks around")
            << QStringLiteral("  ویژه‌تر ") << QStringLiteral("ویژه‌تر");
        QTest::newRow("direction marks")
            << QStringLiteral("\u200Fالف\u202Eabc") << QStringLiteral("\u200Fالف\u202Eabc");
        QTest::newRow("digits") << QStringLiteral("مدل ۲") << QStringLiteral("مدل ۲");
    }

    void aNameHasFiftyCharactersAtMost()
    {
        QFETCH(QString, name);
        QFETCH(QString, stored);
        const int code = user_->Define(name, [](TTagDialog& dialog) {
            if (dialog.NameEdit().text().size() == TTagDefinition::LongestName)
                Type(dialog, QStringLiteral("more"));
            Press(dialog, Qt::Key_Return);
        });
        QCOMPARE(user_->NameOf(code), stored);
    }

    void aNameThatIsCutIsSaidToBe()
    {
        user_->Define(QString(51, u'م'), [](TTagDialog& dialog) {
            QVERIFY(Balloon::ShownText().contains(QStringLiteral("بریده")));
            Press(dialog, Qt::Key_Escape);
        });
        QCOMPARE(user_->Played, 1);
        user_->Define(QString(50, u'م'),
                      [](TTagDialog& /*dialog*/) { QCOMPARE(Balloon::ShownText(), QString()); });
    }

    void atTheLimitThereIsNoDialog()
    {
        user_->Settings.SetTagLimit(Tags());
        QCOMPARE(user_->Define(QStringLiteral("زیادی"), [](TTagDialog& /*dialog*/) {}), -1);
        QCOMPARE(user_->Played, 0);
    }

    void aLimitThatIsReachedMeanwhileIsAnsweredToo()
    {
        user_->Settings.SetTagLimit(Tags() + 1);
        const int before = Tags();
        const int answer = user_->Define(QStringLiteral("دیرآمده"), [this](TTagDialog& dialog) {
            user_->Connection->Execute(
                QStringLiteral("INSERT INTO dbo.TagS (Name, color_code) VALUES (N'زودتر', 1)"));
            Press(dialog, Qt::Key_Return);
        });
        QCOMPARE(answer, -1);
        QCOMPARE(Tags(), before + 1);
    }

    void aDatabaseThatRefusesLeavesTheDialogAndItsNameAlone()
    {
        const int answer = user_->Define(QStringLiteral("بی‌جدول"), [this](TTagDialog& dialog) {
            const std::unique_ptr<TADOConnection> other = user_->Database.Connect();
            other->Execute(QStringLiteral("DELETE FROM dbo.TagS"));
            other->Execute(QStringLiteral("DELETE FROM dbo.colors"));
            const TToolkitLeaks leaks;
            ModalBox::TAnswer user(ModalBox::Key(Qt::Key_Return));
            Press(dialog, Qt::Key_Return);
            QTRY_COMPARE(user.Boxes(), 1);
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.NameEdit().text(), QStringLiteral("بی‌جدول"));
        });
        QCOMPARE(answer, 0);
    }

private:
    int Tags() { return user_->Value(QStringLiteral("SELECT COUNT(*) FROM dbo.TagS")).toInt(); }

    std::unique_ptr<TTagUser> user_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<TagDialogTest>(argc, argv);
}
#include "TagDialogTest.moc"
