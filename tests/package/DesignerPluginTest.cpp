#include "RecordingHost.h"
#include "TestCase.h"
#include "ui_FormWithTheFrame.h"

#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

class DesignerPluginTest : public TTestCase
{
    Q_OBJECT

private:
    QList<QDesignerCustomWidgetInterface*> Offered()
    {
        auto* const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin_.instance());
        return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
    }

    QPluginLoader plugin_{QCoreApplication::applicationDirPath() + QStringLiteral("/" DESIGNER_PLUGIN_FILE)};

private Q_SLOTS:
    void exactlyTheGeneralSearchFrameIsOffered()
    {
        const QList<QDesignerCustomWidgetInterface*> widgets = Offered();
        QVERIFY2(widgets.size() == 1, qPrintable(plugin_.errorString()));
        QCOMPARE(widgets.first()->name(), QStringLiteral("TGeneral_Search_Frame"));
        QCOMPARE(widgets.first()->group(), QStringLiteral("TarvaFrames"));
        QCOMPARE(widgets.first()->includeFile(), QStringLiteral("General_Search_UNT.h"));
        QVERIFY(!widgets.first()->isContainer());
        QVERIFY(widgets.first()->domXml().contains(QStringLiteral("class=\"TGeneral_Search_Frame\"")));
    }

    void aFormOfADesignerShowsTheFrame()
    {
        const TRecordingHost host;
        QWidget form;
        Ui::FormWithTheFrame ui;
        ui.setupUi(&form);
        QCOMPARE(ui.General_Search_Frame1->objectName(), QStringLiteral("General_Search_Frame1"));
        QVERIFY(ui.General_Search_Frame1->findChild<QWidget*>(QStringLiteral("Search_EDT")));
    }

    void insideAnApplicationTheFrameTakesTheApplicationsHost()
    {
        const TRecordingHost host;
        QWidget form;
        QVERIFY(Offered().constFirst()->createWidget(&form));
        QCOMPARE(&Host().Clock, static_cast<const IClock*>(&host.Clock));
    }

    // Last, because the plugin's own host stays until the process ends.
    void outsideAnApplicationTheFrameNeedsNoHost()
    {
        QVERIFY(!HasHost());
        QWidget form;
        const QWidget* const frame = Offered().constFirst()->createWidget(&form);
        QCOMPARE(frame->parentWidget(), &form);
        QCOMPARE(QLatin1String(frame->metaObject()->className()), QLatin1String("TGeneral_Search_Frame"));
        QVERIFY(frame->findChild<QWidget*>(QStringLiteral("Search_Reverst_LBL")));
    }
};

QTEST_MAIN(DesignerPluginTest)
#include "DesignerPluginTest.moc"
