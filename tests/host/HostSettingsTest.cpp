#include "HostSettingsFile.h"

#include <QTemporaryDir>
#include <QTest>

class HostSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        QVERIFY(folder_->isValid());
        file_ = folder_->filePath(QStringLiteral("settings.ini"));
    }

    void aNewInstallationIsPersianAndWritesNothing()
    {
        const THostSettings settings(file_);
        QVERIFY(!settings.SettingRecord().IsGregorian());
        QCOMPARE(settings.IniOptions().CodeLockOption, 0);
        QCOMPARE(settings.UserInfo().Code, 0);
        QVERIFY(!QFile::exists(file_));
    }

    void theCalendarSwitchSurvivesAndLeavesTheOtherBitsAlone()
    {
        {
            THostSettings settings(file_);
            settings.SetGregorian(true);
        }
        THostSettings again(file_);
        QVERIFY(again.SettingRecord().IsGregorian());
        QCOMPARE(int(again.SettingRecord().Bytes.at(11)), 4);
        again.SetGregorian(false);
        QCOMPARE(int(again.SettingRecord().Bytes.at(11)), 0);
        QVERIFY(!THostSettings(file_).SettingRecord().IsGregorian());
    }

    void optionsAndValuesOfTheApplicationSurvive()
    {
        {
            THostSettings settings(file_);
            settings.SetIniOptions({7});
            settings.SetValue(QStringLiteral("Lists/Goods/Order"), QStringLiteral("نام"));
            settings.SetValue(QStringLiteral("Window/Geometry"), QByteArray("\0\1\2", 3));
        }
        const THostSettings again(file_);
        QCOMPARE(again.IniOptions().CodeLockOption, 7);
        QCOMPARE(again.Value(QStringLiteral("Lists/Goods/Order")).toString(), QStringLiteral("نام"));
        QCOMPARE(again.Value(QStringLiteral("Window/Geometry")).toByteArray(), QByteArray("\0\1\2", 3));
        QCOMPARE(again.Value(QStringLiteral("missing"), 5).toInt(), 5);
    }

    void theLimitOfTagsIsTwoHundredUnlessTheFileSaysOtherwise()
    {
        THostSettings settings(file_);
        QCOMPARE(settings.TagLimit(), 200);
        settings.SetTagLimit(12);
        QCOMPARE(THostSettings(file_).TagLimit(), 12);
        settings.SetValue(QStringLiteral("Host/TagLimit"), QStringLiteral("many"));
        QCOMPARE(settings.TagLimit(), 200);
        settings.SetTagLimit(-3);
        QCOMPARE(settings.TagLimit(), 200);
    }

    void aRecordOfAnotherLengthIsIgnored()
    {
        {
            THostSettings settings(file_);
            settings.SetValue(QStringLiteral("Host/SettingRecord"), QStringLiteral("ffff"));
        }
        QVERIFY(!THostSettings(file_).SettingRecord().IsGregorian());
    }

    void aFileThatIsNoSettingsFileIsLeftAsItIs()
    {
        QFile file(file_);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Host\nno value\n");
        file.close();
        {
            THostSettings settings(file_);
            QVERIFY(!settings.IsReadable());
            QVERIFY(!settings.SettingRecord().IsGregorian());
            settings.SetGregorian(true);
            settings.SetValue(QStringLiteral("Window/Scheme"), 2);
            QCOMPARE(settings.Value(QStringLiteral("Window/Scheme")).toInt(), 2);
        }
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("[Host\nno value\n"));
    }

private:
    std::unique_ptr<QTemporaryDir> folder_;
    QString file_;
};

QTEST_GUILESS_MAIN(HostSettingsTest)
#include "HostSettingsTest.moc"
