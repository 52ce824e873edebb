#include "Balloon.h"
#include "TokenForm.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QListView>
#include <QMimeData>

namespace {

struct TCompletionForm : TTokenForm
{
    QStringList told;

    TCompletionForm()
    {
        int parent = 0;
        for (const char* name : {"لبنیات", "لباس کودک", "كالاي برقي", "می‌خک", "نان"})
            editor.Lookup().AddPair(QString::fromUtf8(name), {}, ++parent);
        editor.OnValueEditDone = [this](QObject*, int index, QString& text) {
            told << QStringLiteral("%1 %2").arg(index).arg(text);
        };
    }

    QListView* List() const
    {
        auto* list = editor.findChild<QListView*>();
        return list && list->isVisible() ? list : nullptr;
    }
    /// Drags a text from elsewhere over the box for typing; drops it where the box takes it.
    bool Drop(const QString& text)
    {
        QWidget* box = editor.focusProxy();
        const QPoint place = box->rect().center();
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enters(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box, &enters);
        if (!enters.isAccepted())
            return false;
        QDropEvent drops(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        drops.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(box, &drops);
        return drops.isAccepted() && drops.dropAction() == Qt::CopyAction;
    }
    QStringList Offered() const
    {
        QStringList offered;
        for (int row = 0; List() && row < List()->model()->rowCount(); ++row)
            offered << List()->model()->index(row, 0).data().toString();
        return offered;
    }
};

} // namespace

class AdvListEditorPerCompletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesThatBeginWithTheTextAreOffered_data();
    void entriesThatBeginWithTheTextAreOffered();
    void anEntryGoneToIsTakenByEnter();
    void enterWithoutAnEntryGoneToTakesNone();
    void upFromTheFirstEntryLeadsBackToTheText();
    void tabTakesAnEntryGoneToAndStays();
    void escapeClosesTheListAndNothingElse();
    void aClickTakesAnEntry();
    void theListStandsBelowTheRowsBeginning();
    void aPressElsewhereAndLeavingCloseTheList();
    void clearingTheTextClosesTheList();
    void altAndDownListsAllEntries();
    void theSeparatorTakesTheEntryThatReadsLikeTheText();
    void theSeparatorIsACharacterWhereNoEntryIsMeant();
    void freeTextBecomesAnItemAtTheSeparator();
    void anItemIsMadeWhereTheCaretStands();
    void aPastedListBecomesItemsAndLeavesTheRest();
    void aPastedTextWithoutPartsIsTyped();
    void aDroppedTextIsTakenAsAPastedOne();
    void nothingIsDroppedIntoAReadOnlyEditor();
    void theHandlerMayChangeTheItemsText();
    void theHandlerMayRebuildTheItems();
    void tooLongATextIsCutWithASentence();
};

void AdvListEditorPerCompletionTest::entriesThatBeginWithTheTextAreOffered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("offered");
    QTest::newRow("beginning") << QStringLiteral("لب")
                               << QStringList({QStringLiteral("لبنیات"), QStringLiteral("لباس کودک")});
    QTest::newRow("yeh") << QStringLiteral("لبني") << QStringList(QStringLiteral("لبنیات"));
    QTest::newRow("kaf") << QStringLiteral("کالای") << QStringList(QStringLiteral("كالاي برقي"));
    QTest::newRow("joiner") << QStringLiteral("میخ") << QStringList(QStringLiteral("می‌خک"));
    QTest::newRow("blank behind") << QStringLiteral("نان ") << QStringList(QStringLiteral("نان"));
    QTest::newRow("in the middle") << QStringLiteral("کودک") << QStringList();
    QTest::newRow("blanks only") << QStringLiteral("  ") << QStringList();
}

void AdvListEditorPerCompletionTest::entriesThatBeginWithTheTextAreOffered()
{
    QFETCH(QString, text);
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(text);
    QTEST(form.Offered(), "offered");
    QCOMPARE(form.editor.EditText(), text);
}

void AdvListEditorPerCompletionTest::anEntryGoneToIsTakenByEnter()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    QString atKeyUp = QStringLiteral("none");
    form.editor.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (key == VirtualKey::Enter)
            atKeyUp = form.editor.EditText() + u'|' + form.Row();
    };
    form.Type(QStringLiteral("لب"));
    form.Strokes(Qt::Key_Down, 2);
    form.Stroke(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QCOMPARE(form.editor.Values().Last(), (TAdvListValueItem{QStringLiteral("لباس کودک"), {}, 2}));
    QCOMPARE(atKeyUp, QStringLiteral("|لباس کودک"));
    QCOMPARE(form.told, QStringList(QStringLiteral("0 لباس کودک")));
    QVERIFY(!form.List());
}

void AdvListEditorPerCompletionTest::enterWithoutAnEntryGoneToTakesNone()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("نان"));
    QVERIFY(form.List());
    form.Stroke(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QVERIFY(form.editor.Values().IsEmpty());
    QCOMPARE(form.editor.EditText(), QStringLiteral("نان"));
}

void AdvListEditorPerCompletionTest::upFromTheFirstEntryLeadsBackToTheText()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("ل"));
    form.Stroke(Qt::Key_Down);
    QCOMPARE(form.List()->currentIndex().row(), 0);
    form.Stroke(Qt::Key_Up);
    QVERIFY(!form.List()->currentIndex().isValid());
    form.Stroke(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QVERIFY(form.editor.Values().IsEmpty());
}

void AdvListEditorPerCompletionTest::tabTakesAnEntryGoneToAndStays()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("ن"));
    form.Stroke(Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(form.editor.hasFocus());
    QCOMPARE(form.Row(), QStringLiteral("نان"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(form.other.hasFocus());
}

void AdvListEditorPerCompletionTest::escapeClosesTheListAndNothingElse()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("ن"));
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(QApplication::focusWidget(), &escape);
    QVERIFY(escape.isAccepted());
    QVERIFY(!form.List());
    QCOMPARE(form.editor.EditText(), QStringLiteral("ن"));
    QApplication::sendEvent(&form.editor, &escape);
    QVERIFY(!escape.isAccepted());
}

void AdvListEditorPerCompletionTest::aClickTakesAnEntry()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("لب"));
    QListView* list = form.List();
    QVERIFY(list);
    const QRect second = list->visualRect(list->model()->index(1, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
    QTRY_COMPARE(form.Row(), QStringLiteral("لباس کودک"));
    QCOMPARE(form.editor.EditText(), QString());
    QVERIFY(!form.List());
    QVERIFY(form.editor.hasFocus());
}

void AdvListEditorPerCompletionTest::theListStandsBelowTheRowsBeginning()
{
    TCompletionForm form;
    form.editor.setFixedWidth(120);
    form.window.move(300, 60);
    QVERIFY(form.Show());
    form.Type(QStringLiteral("ل"));
    QVERIFY(form.List());
    const QRect edit(form.editor.mapToGlobal(QPoint(0, 0)), form.editor.size());
    QCOMPARE(form.List()->geometry().right(), edit.right());
    QCOMPARE(form.List()->geometry().top(), edit.bottom() + 1);
    QVERIFY(form.List()->width() > edit.width());
    form.window.move(310, 80);
    QTRY_COMPARE(form.List()->geometry().top(), form.editor.mapToGlobal(QPoint(0, form.editor.height())).y());
}

void AdvListEditorPerCompletionTest::aPressElsewhereAndLeavingCloseTheList()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("لب"));
    QVERIFY(form.List());
    QTest::mousePress(&form.window, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QVERIFY(!form.List());
    form.Type(QStringLiteral("ا"));
    QVERIFY(form.List());
    form.other.setFocus();
    QVERIFY(!form.List());
}

void AdvListEditorPerCompletionTest::clearingTheTextClosesTheList()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("ن"));
    form.Stroke(Qt::Key_Backspace);
    QVERIFY(!form.List());
    form.Type(QStringLiteral("ن"));
    form.editor.clear();
    QVERIFY(!form.List());
    form.editor.SetEditText(QStringLiteral("ن"));
    QVERIFY(!form.List());
}

void AdvListEditorPerCompletionTest::altAndDownListsAllEntries()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Stroke(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(form.Offered().size(), 5);
    form.Stroke(Qt::Key_PageDown);
    form.Stroke(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QCOMPARE(form.Row(), QStringLiteral("نان"));
}

void AdvListEditorPerCompletionTest::theSeparatorTakesTheEntryThatReadsLikeTheText()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral(" کالای برقی ;"));
    QCOMPARE(form.editor.Values().Last(), (TAdvListValueItem{QStringLiteral("كالاي برقي"), {}, 3}));
    QCOMPARE(form.editor.EditText(), QString());
    QCOMPARE(form.told, QStringList(QStringLiteral("0 كالاي برقي")));
}

void AdvListEditorPerCompletionTest::theSeparatorIsACharacterWhereNoEntryIsMeant()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("لب;"));
    QCOMPARE(form.editor.EditText(), QStringLiteral("لب;"));
    QVERIFY(form.editor.Values().IsEmpty());
    QVERIFY(form.told.isEmpty());
}

void AdvListEditorPerCompletionTest::freeTextBecomesAnItemAtTheSeparator()
{
    TCompletionForm form;
    form.editor.SetFreeItems(true);
    form.editor.SetSeparator(u'،');
    QVERIFY(form.Show());
    form.Type(QStringLiteral("، شیر تازه ،نان،"));
    QCOMPARE(form.editor.Values()[0], (TAdvListValueItem{QStringLiteral("شیر تازه"), {}, -1}));
    QCOMPARE(form.editor.Values()[1], (TAdvListValueItem{QStringLiteral("نان"), {}, 5}));
    QCOMPARE(form.editor.EditText(), QString());
}

void AdvListEditorPerCompletionTest::anItemIsMadeWhereTheCaretStands()
{
    TCompletionForm form;
    QVERIFY(form.Show(QStringLiteral("یک دو")));
    form.Stroke(Qt::Key_Right);
    form.Type(QStringLiteral("نان;"));
    QCOMPARE(form.Row(), QStringLiteral("یک نان دو"));
    QCOMPARE(form.told, QStringList(QStringLiteral("1 نان")));
    QCOMPARE(form.Place(), 2);
}

void AdvListEditorPerCompletionTest::aPastedListBecomesItemsAndLeavesTheRest()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    QApplication::clipboard()->setText(QStringLiteral("نان; پنیر;\r\nلبنیات\nماست"));
    form.Stroke(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form.Row(), QStringLiteral("نان لبنیات"));
    QCOMPARE(form.editor.EditText(), QStringLiteral("پنیر;ماست"));
    QCOMPARE(form.told, QStringList({QStringLiteral("0 نان"), QStringLiteral("1 لبنیات")}));
}

void AdvListEditorPerCompletionTest::aPastedTextWithoutPartsIsTyped()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("اب"));
    form.Stroke(Qt::Key_Right);
    QApplication::clipboard()->setText(QStringLiteral("\u202Bنا\tن\u202C\u0001۱\n"));
    form.Stroke(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form.editor.EditText(), QStringLiteral("ا\u202Bنا ن\u202C۱ب"));
    QVERIFY(form.editor.Values().IsEmpty());
}

void AdvListEditorPerCompletionTest::aDroppedTextIsTakenAsAPastedOne()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    QVERIFY(form.Drop(QStringLiteral("نان;پنیر")));
    QCOMPARE(form.Row(), QStringLiteral("نان"));
    QCOMPARE(form.editor.EditText(), QStringLiteral("پنیر"));
    QCOMPARE(form.told, QStringList(QStringLiteral("0 نان")));
    form.editor.clear();
    QVERIFY(form.Drop(QStringLiteral("ماست\r\nکره")));
    QCOMPARE(form.editor.EditText(), QStringLiteral("ماست کره"));
    QCOMPARE(form.Row(), QStringLiteral("نان"));
}

void AdvListEditorPerCompletionTest::nothingIsDroppedIntoAReadOnlyEditor()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.editor.SetReadOnly(true);
    QVERIFY(!form.Drop(QStringLiteral("نان;پنیر")));
    QCOMPARE(form.Row(), QString());
    QCOMPARE(form.editor.EditText(), QString());
}

void AdvListEditorPerCompletionTest::theHandlerMayChangeTheItemsText()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.editor.OnValueEditDone = [](QObject*, int, QString& text) { text += u'!'; };
    form.Type(QStringLiteral("نان;"));
    QCOMPARE(form.Row(), QStringLiteral("نان!"));
}

void AdvListEditorPerCompletionTest::theHandlerMayRebuildTheItems()
{
    TCompletionForm form;
    QVERIFY(form.Show());
    form.editor.OnValueEditDone = [&](QObject*, int, QString& text) {
        form.Fill(QStringLiteral("کالا خوراکی"));
        text = QStringLiteral("نه این");
    };
    form.Type(QStringLiteral("نان;"));
    QCOMPARE(form.Row(), QStringLiteral("کالا خوراکی"));
    QCOMPARE(form.Place(), 2);
}

void AdvListEditorPerCompletionTest::tooLongATextIsCutWithASentence()
{
    TCompletionForm form;
    form.editor.SetMaxLength(5);
    QVERIFY(form.Show());
    QApplication::clipboard()->setText(QStringLiteral("abcd😀ef"));
    form.Stroke(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form.editor.EditText(), QStringLiteral("abcd"));
    QCOMPARE(Balloon::ShownText(), QStringLiteral("این کادر تا ۵ نویسه جا دارد؛ باقی متن چسبانده نشد."));
    Balloon::Hide();
}

QTEST_MAIN(AdvListEditorPerCompletionTest)
#include "AdvListEditorPerCompletionTest.moc"
