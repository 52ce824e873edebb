#include "AdvListEditorPer.h"
#include "CodeListItems.h"
#include "HostTestMain.h"
#include "ModalBox.h"
#include "PopupMenu.h"
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

private:
    void Open(TTagUser& user)
    {
        form_ = std::make_unique<QWidget>();
        auto* column = new QVBoxLayout(form_.get());
        frame_ = new TTags_search_FRM(form_.get());
        column->addWidget(frame_);
        frame_->TarvaSearch_tags->SearchItems.Add(CodeListItems::Tags(*user.Connection));
        frame_->frame_load();
        form_->show();
        QVERIFY(QTest::qWaitForWindowExposed(form_.get()));
        form_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(form_.get()));
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
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<TagCreationTest>(argc, argv);
}
#include "TagCreationTest.moc"
