#include "ADOQuery.h"
#include "AdvListEditorPer.h"
#include "CodeListItems.h"
#include "HostTestMain.h"
#include "ModalBox.h"
#include "PopupMenu.h"
#include "tags_frame.h"
#include "Tags_search_UNT.h"
#include "TagUser.h"
#include "TarvaSearchManager.h"

#include <QVBoxLayout>

/// The way of a tag through the frame, the host and the database: made by typing its name, found, put into a
/// condition, taken off.
class TagCreationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHostileNameIsCreatedShownFilteredAndTakenOff_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << QStringLiteral("او گفت 'نه' \"آری\"");
        QTest::newRow("a statement") << QStringLiteral("x'; DELETE FROM TagS; --");
        QTest::newRow("commas") << QStringLiteral(",1,2,");
        QTest::newRow("wildcards") << QStringLiteral("100%]_[a]");
        QTest::newRow("emoji") << QStringLiteral("ویژه 🌟👨‍👩‍👧");
        QTest::newRow("direction marks") << QStringLiteral("\u200Fالف\u202Eabc");
        QTest::newRow("fifty characters") << QString(50, u'م');
        QTest::newRow("digits of another script") << QStringLiteral("مدل ۲");
    }

    void aHostileNameIsCreatedShownFilteredAndTakenOff()
    {
        QFETCH(QString, name);
        TTagUser user;
        Open(user);
        const QString code = Create(user, name);
        QVERIFY(code.toInt() > 0);
        QCOMPARE(user.NameOf(code.toInt()), name);
        user.Connection->Execute(QStringLiteral("UPDATE dbo.kala SET tags = NULL"));
        user.Connection->Execute(QStringLiteral("UPDATE dbo.kala SET tags = ? WHERE Code = 4"),
                                 {QString(u',' + code + u',')});

        frame_->SetSearchble(true);
        frame_->frame_load();
        QCOMPARE(frame_->tags_list_pop->Item(frame_->tags_list_pop->Count() - 1)->Caption(), name);
        EnterName(name);
        TTarvaSearchManager manager;
        manager.Add(frame_->TarvaSearch_tags);
        QCOMPARE(manager.Condition(), QStringLiteral("[tags] LIKE '%,") + code + QStringLiteral(",%'"));
        QVERIFY(manager.ConditionInWords().contains(name));
        QCOMPARE(
            user.Value(QStringLiteral("SELECT SUM(Code) FROM dbo.kala WHERE ") + manager.Condition()).toInt(),
            4);
        QTest::keyClick(frame_->Tag_editor, Qt::Key_Backspace);
        QCOMPARE(manager.Condition(), QString());
        form_.reset();
    }

    void aNoInTheQuestionLeavesTheDatabaseAlone()
    {
        TTagUser user;
        Open(user);
        const int before = user.Value(QStringLiteral("SELECT COUNT(*) FROM dbo.TagS")).toInt();
        ModalBox::TAnswer no(ModalBox::Key(Qt::Key_Escape));
        EnterName(QStringLiteral("نخواسته"));
        QCOMPARE(no.Boxes(), 1);
        QCOMPARE(user.Value(QStringLiteral("SELECT COUNT(*) FROM dbo.TagS")).toInt(), before);
        QVERIFY(frame_->Tag_editor->Values().IsEmpty());
        form_.reset();
    }

    void aNewTagIsPutOnTheSelectedRecords()
    {
        TTagUser user;
        SelectRecords(user);
        ModalBox::TAnswer yes(ModalBox::Key(Qt::Key_Return));
        user.Play([this] { EnterNameForRecords(QStringLiteral("تازه")); },
                  [](TTagDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); });
        QCOMPARE(yes.Boxes(), 1);
        const QString code =
            user.Value(QStringLiteral("SELECT Code FROM dbo.TagS WHERE Name = N'تازه'")).toString();
        for (const int key : {4, 5})
            QCOMPARE(TagsOf(user, key), u',' + code + u',');
        QCOMPARE(records_->Tags_editor->Values().Last().Value, code);
        QCOMPARE(records_->Tags_editor->EditText(), QString());
        QCOMPARE(form_->focusWidget(), records_->Tags_editor->focusProxy());
        form_.reset();
    }

    void atTheLimitTheUserIsToldAndNothingIsWritten()
    {
        TTagUser user;
        SelectRecords(user);
        const int before = user.Value(QStringLiteral("SELECT COUNT(*) FROM dbo.TagS")).toInt();
        user.Settings.SetTagLimit(before);
        ModalBox::TAnswer yes(ModalBox::Key(Qt::Key_Return));
        EnterNameForRecords(QStringLiteral("زیادی"));
        QCOMPARE(yes.Boxes(), 2);
        QVERIFY(yes.Texts.at(0).contains(
            QStringLiteral("آیا برچسب تازه‌ای ساخته شود؟")));
        QVERIFY(yes.Texts.at(1).contains(QStringLiteral("محدودیت در تعداد تگ ها")));
        QCOMPARE(user.Value(QStringLiteral("SELECT COUNT(*) FROM dbo.TagS")).toInt(), before);
        QCOMPARE(TagsOf(user, 4), QString());
        QCOMPARE(form_->focusWidget(), records_->Tags_editor->focusProxy());
        form_.reset();
    }

private:
    /// A form with the tags of two goods, which carry none.
    void SelectRecords(TTagUser& user)
    {
        user.Connection->Execute(QStringLiteral("UPDATE dbo.kala SET tags = NULL WHERE Code IN (4, 5)"));
        form_ = std::make_unique<QWidget>();
        auto* column = new QVBoxLayout(form_.get());
        records_ = new TTags(form_.get());
        column->addWidget(records_);
        records_->Tags_editor->TableName = QStringLiteral("dbo.kala");
        records_->Tags_editor->KeyField = QStringLiteral("Code");
        records_->Tags_editor->KeyList = QStringLiteral("(4,5)");
        records_->ADOQuery2->SQL.SetText(
            QStringLiteral("SELECT tags FROM dbo.kala WHERE Code IN (4,5) ORDER BY Code"));
        records_->frame_load();
        ShowForm();
        records_->Tags_editor->setFocus();
    }
    void EnterNameForRecords(const QString& name)
    {
        records_->Tags_editor->SetEditText(name);
        QTest::keyClick(records_->Tags_editor, Qt::Key_Return);
    }
    static QString TagsOf(TTagUser& user, int key)
    {
        return user.Value(QStringLiteral("SELECT tags FROM dbo.kala WHERE Code = %1").arg(key)).toString();
    }

    void ShowForm()
    {
        form_->show();
        QVERIFY(QTest::qWaitForWindowExposed(form_.get()));
        form_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    }

    void Open(TTagUser& user)
    {
        form_ = std::make_unique<QWidget>();
        auto* column = new QVBoxLayout(form_.get());
        frame_ = new TTags_search_FRM(form_.get());
        column->addWidget(frame_);
        frame_->TarvaSearch_tags->SearchItems.Add(CodeListItems::Tags(*user.Connection));
        frame_->frame_load();
        ShowForm();
        frame_->Tag_editor->setFocus();
    }

    void EnterName(const QString& name)
    {
        frame_->Tag_editor->SetEditText(name);
        QTest::keyClick(frame_->Tag_editor, Qt::Key_Return);
    }

    /// Enters a name that is not there, says yes and saves it in the dialog; answers the code of the item.
    QString Create(TTagUser& user, const QString& name)
    {
        ModalBox::TAnswer yes(ModalBox::Key(Qt::Key_Return));
        user.Play([this, &name] { EnterName(name); },
                  [](TTagDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); });
        return frame_->Tag_editor->Values().Last().Value;
    }

    std::unique_ptr<QWidget> form_;
    TTags_search_FRM* frame_ = nullptr;
    TTags* records_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<TagCreationTest>(argc, argv);
}
#include "TagCreationTest.moc"
