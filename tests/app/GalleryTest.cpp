#include "GalleryFixture.h"

#include "Range_Digit_Search.h"
#include "SmartCheckBox_TRV.h"
#include "TarvaSearch.h"

#include <QSet>

/// The page that shows all frames of the package.
class GalleryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        shop_ = std::make_unique<TGalleryFixture>();
        shop_->OpenGallery();
    }
    void cleanup() { shop_.reset(); }

    void everyFrameOfThePackageIsThereOnce()
    {
        const QSet<QString> package = {
            "TDetial_Grid_Frame",
            "TSelect_Entity_Frame",
            "TGeneral_Search_Frame",
            "TRange_Digit_Search_Frame",
            "TRange_Cost_Search_Frame",
            "TRange_Date_Search_Frame",
            "TTab_Search_Frame",
            "TRange_String_Search_Frame",
            "TSelect_AccountCode",
            "TPic_Get",
            "TPic_Show",
            "TSelectEntity_Search_Frame",
            "TRange_SelectEntity_Search_Frame",
            "TAccountingCodes_Search_Frame",
            "TRange_AccCodes_Search_Frame",
            "TDetailUniqueCode_FRME",
            "TListDetail_FRAME",
            "TTags",
            "TCurrency_FRAME",
            "TCategorysearchframe",
            "TTags_search_FRM",
            "TDateRange_Display_FRAM",
            "TADVSearch_Fram",
            "TGetVoucher_FRM",
            "TSaveAutoVouchers_FRME",
            "TRefreshAutoVouchers_FRME",
            "TCategory_frame",
        };
        QCOMPARE(package.size(), 27);
        QSet<QString> shown;
        QSet<QString> purposes;
        for (const TGalleryEntry& entry : shop_->Gallery->Entries()) {
            shown.insert(entry.ClassName);
            purposes.insert(entry.Purpose);
        }
        QCOMPARE(shop_->Gallery->Entries().size(), 27);
        QCOMPARE(shown, package);
        QCOMPARE(purposes.size(), 27);
    }

    void everyFrameHasItsPage()
    {
        for (const TGalleryEntry& entry : shop_->Gallery->Entries()) {
            QFile page(QFINDTESTDATA("../../docs/frames/") + entry.Unit + QStringLiteral(".md"));
            QVERIFY2(page.open(QIODevice::ReadOnly), qPrintable(page.fileName()));
            const QString text = QString::fromUtf8(page.readAll());
            const QString picture = QStringLiteral("../images/frames/%1.png").arg(entry.Unit);
            for (const QString& part :
                 {entry.ClassName, entry.Unit, QStringLiteral("![](%1)").arg(picture),
                  QStringLiteral("\n## Placing it\n"), QStringLiteral("\n## Properties and events\n"),
                  QStringLiteral("\n## Statements\n")})
                QVERIFY2(text.contains(part), qPrintable(entry.Unit + u' ' + part));
            QVERIFY2(QFile::exists(QFINDTESTDATA("../../docs/frames/") + picture), qPrintable(picture));
        }
    }

    void theListReachesEveryFrame()
    {
        QVERIFY(shop_->Gallery->List().hasFocus());
        for (const TGalleryEntry& entry : shop_->Gallery->Entries()) {
            const TFrame* frame = shop_->Gallery->ShownFrame();
            QVERIFY2(frame != nullptr, qPrintable(entry.ClassName));
            QCOMPARE(QString::fromLatin1(frame->metaObject()->className()), entry.ClassName);
            QVERIFY2(frame->isVisible(), qPrintable(entry.ClassName));
            shop_->Press(Qt::Key_Down);
        }
        QCOMPARE(shop_->Told, QStringList());
    }

    // The list of an entity is opened over its frame and has a search bar of its own.
    void aCriterionThatComesLaterIsNotTheFramesOwn()
    {
        const QString name = QStringLiteral("TRange_SelectEntity_Search_Frame");
        shop_->Gallery->Choose(shop_->EntryOf(name));
        shop_->Settle();
        const QTreeWidget& state = shop_->Gallery->Inspector().State();
        const int groups = state.topLevelItemCount();
        TTarvaSearch first(shop_->Gallery->ShownFrame());
        TTarvaSearch second(shop_->Gallery->ShownFrame());
        first.setObjectName(QStringLiteral("TarvaSearch_General"));
        shop_->Settle();
        QCOMPARE(state.topLevelItemCount(), groups);
        QCOMPARE(shop_->State(name, QStringLiteral("GetActive")), QStringLiteral("bool false"));
    }

    void framesAreMadeWhenTheyAreChosen()
    {
        const auto made = [this] {
            const QList<TFrame*> frames = shop_->Gallery->findChildren<TFrame*>();
            return std::count_if(frames.begin(), frames.end(), [](const TFrame* frame) {
                return qobject_cast<TFrame*>(frame->parentWidget()) == nullptr;
            });
        };
        QCOMPARE(made(), 1);
        shop_->Press(Qt::Key_Down);
        QCOMPARE(made(), 2);
        const TFrame* second = shop_->Gallery->ShownFrame();
        shop_->Press(Qt::Key_Up);
        shop_->Press(Qt::Key_Down);
        QCOMPARE(shop_->Gallery->ShownFrame(), second);
        QCOMPARE(made(), 2);
    }

    void controlTabGoesRoundFromAnywhere()
    {
        const int count = static_cast<int>(shop_->Gallery->Entries().size());
        shop_->Press(Qt::Key_Return);
        QVERIFY(shop_->Gallery->ShownFrame()->isAncestorOf(shop_->Focus()));
        for (int step = 1; step <= count; ++step) {
            shop_->Press(Qt::Key_Tab, Qt::ControlModifier);
            QCOMPARE(shop_->Gallery->Chosen(), step % count);
        }
        shop_->Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(shop_->Gallery->Chosen(), count - 1);
        QCOMPARE(shop_->Told, QStringList());
    }

    void theStateOfACriterionIsLive()
    {
        const QString name = QStringLiteral("TarvaSearch_Range_Digit");
        shop_->Gallery->Choose(shop_->EntryOf(QStringLiteral("TRange_Digit_Search_Frame")));
        auto* frame = qobject_cast<TRange_Digit_Search_Frame*>(shop_->Gallery->ShownFrame());
        QVERIFY(frame != nullptr);
        QTRY_COMPARE(shop_->State(name, QStringLiteral("Active")), QStringLiteral("false"));
        frame->RangeDigit_CHK->setFocus();
        shop_->Press(Qt::Key_Space);
        shop_->Press(Qt::Key_Tab);
        shop_->Type(QStringLiteral("7"));
        QTRY_COMPARE(shop_->State(name, QStringLiteral("Active")), QStringLiteral("true"));
        QTRY_COMPARE(shop_->State(name, QStringLiteral("Value1")), QStringLiteral("QString \"7\""));
        QCOMPARE(shop_->State(name, QStringLiteral("Value2")), QStringLiteral("int 2147483647"));
        QVERIFY(!shop_->State(name, QStringLiteral("Condition")).isEmpty());
        QTRY_COMPARE(shop_->State(QStringLiteral("TRange_Digit_Search_Frame"), QStringLiteral("GetActive")),
                     QStringLiteral("bool true"));
        QVERIFY(shop_->Journal().contains(name + QStringLiteral(".SetActive(true)")));
        QVERIFY(shop_->Journal().contains(name + QStringLiteral(".OnChange")));
    }

    void theTagsFrameChangesNothingOfTheOpenDatabase()
    {
        const auto tagsOfPersons = [this] {
            QStringList tags;
            for (int code = 1; code <= 3; ++code)
                tags << shop_->Text(QStringLiteral("SELECT tags FROM dbo.Persons WHERE Code = %1").arg(code));
            return tags;
        };
        const QStringList before = tagsOfPersons();
        const QString name = shop_->Text(
            QStringLiteral("SELECT TOP 1 Name FROM TagS WHERE NOT EXISTS (SELECT 1 FROM dbo.Persons WHERE "
                           "Code <= 3 AND tags LIKE N'%,' + CAST(TagS.Code AS varchar) + N',%')"));
        QVERIFY(!name.isEmpty());
        shop_->Gallery->Choose(shop_->EntryOf(QStringLiteral("TTags")));
        shop_->Press(Qt::Key_Return);
        shop_->Type(name);
        shop_->Press(Qt::Key_Return);
        QTRY_VERIFY(
            shop_->State(QStringLiteral("TTags"), QStringLiteral("Tags_editor.Values")).contains(name));
        QVERIFY(shop_->Journal().contains(QStringLiteral("update dbo.Persons set"), Qt::CaseInsensitive));
        QVERIFY(shop_->Journal().contains(QStringLiteral("tagsChanged")));
        QCOMPARE(tagsOfPersons(), before);
    }

    void statementsAndEventsAreTold()
    {
        shop_->Gallery->Choose(shop_->EntryOf(QStringLiteral("TSelect_Entity_Frame")));
        shop_->Press(Qt::Key_Return);
        QVERIFY(!shop_->Journal().contains(QStringLiteral("OnCodeChanged")));
        shop_->Type(QStringLiteral("1"));
        shop_->Press(Qt::Key_Tab);
        QTRY_VERIFY(shop_->Journal().contains(QStringLiteral("SELECT")));
        QVERIFY(shop_->Journal().contains(QStringLiteral("OnCodeChanged")));
    }

private:
    std::unique_ptr<TGalleryFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunFormTest<GalleryTest>(argc, argv);
}
#include "GalleryTest.moc"
