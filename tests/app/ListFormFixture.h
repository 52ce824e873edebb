#pragma once

#include "General_Search_UNT.h"
#include "ListForm.h"
#include "RecordCard.h"
#include "ShopFixture.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"

/// A shop, and a list that a user has before him.
class TListFormFixture : public TShopFixture
{
public:
    explicit TListFormFixture(const TSampleSize& size = TSampleSize::Small()) : TShopFixture(size) {}

    /// Opens the list afresh in an active window, its first rows and their number there.
    TListForm& OpenList(const TListDescription& description)
    {
        List = std::make_unique<TListForm>(description, Host);
        List->resize(1100, 600);
        List->show();
        Activate(List.get());
        List->Refresh();
        List->FocusSearchEdit();
        WaitForRows();
        return *List;
    }

    /// Until what was typed is in force and answered.
    void WaitForRows()
    {
        QTRY_VERIFY(List->SearchFrame().Filter_is_done());
        List->SearchFrame().Refrenc_SearchManager->Flush();
        QVERIFY(List->DataSet().WaitForFirstPage());
        QTRY_VERIFY(List->DataSet().CountIsExact());
    }

    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    static void Type(const QString& text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown,
                                QString(character), Qt::NoModifier);
    }

    QString Text(int row, const QString& field) const
    {
        return List->DataSet().ValueAt(row, List->DataSet().FieldByName(field)->Index()).toString();
    }

    TRecordCard* WaitForCard() const
    {
        [this] { QTRY_VERIFY(List->Card() != nullptr); }();
        if (List->Card() != nullptr)
            Activate(List->Card());
        return List->Card();
    }

    std::unique_ptr<TListForm> List;
};
