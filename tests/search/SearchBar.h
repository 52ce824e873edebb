#pragma once

#include "ControlColumn.h"
#include "General_Search_UNT.h"
#include "RecordingHost.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "Typing.h"

#include <memory>
#include <QLineEdit>

/// A list form with a search bar: a text, a money and a digit item, and a control for the focus to go to.
struct TSearchBar
{
    TRecordingHost Host;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TGeneral_Search_Frame* Frame = nullptr;
    QLineEdit* Other = nullptr;
    TTarvaSearchManager Manager;
    QVariantList Applied; ///< every value that reached the criterion, in order

    explicit TSearchBar(bool withItems = true)
    {
        MakeColumn(*Form, Frame, Other);
        Frame->Refrenc_SearchManager = &Manager;
        Frame->TarvaSearch_General->SearchItems.Clear();
        if (withItems) {
            Add(QStringLiteral("نام"), TSearchDataType::idtString);
            Add(QStringLiteral("قیمت"), TSearchDataType::idtMoney);
            Add(QStringLiteral("کد"), TSearchDataType::idtDigit);
        }
        QObject::connect(Criterion(), &TTarvaSearch::changed, Form.get(),
                         [this] { Applied.append(Criterion()->Value1()); });
    }

    TTarvaSearch* Criterion() const { return Frame->TarvaSearch_General; }

    TSearchItem& Add(const QString& title, TSearchDataType type)
    {
        TSearchItem item;
        item.Title = title;
        item.FiledName = QStringLiteral("F");
        item.DataType = type;
        return Criterion()->SearchItems.Add(item);
    }

    /// init() with an item in force, shown, the focus in its edit.
    bool Start(int itemIndex = 0)
    {
        Criterion()->SetItemIndex(itemIndex);
        Frame->init();
        Applied.clear();
        const bool isActive = Typing::ShowActive(Form.get());
        Edit()->setFocus();
        return isActive;
    }

    TSmartEdit_TRV* Edit() const
    {
        for (TSmartEdit_TRV* edit : {Frame->SearchCost_EDT, Frame->SearchDigit_EDT}) {
            if (!edit->isHidden())
                return edit;
        }
        return Frame->Search_EDT;
    }
};
