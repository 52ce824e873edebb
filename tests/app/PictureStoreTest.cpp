#include "PictureStore.h"
#include "ADOQuery.h"
#include "DatabaseFile.h"
#include "PictureReader.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

class PictureStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TDatabaseOptions options;
        options.Size = TSampleSize::Small();
        OpenDatabase(connection_, QStringLiteral("sqlite:") + folder_.filePath(QStringLiteral("shop.db")),
                     options);
    }

    void addingWritesPathNameAndCopyWithOneStatement()
    {
        const QString path = NewPicture(QStringLiteral("قفسه.JPG"));
        QStringList statements;
        connection_.OnWillExecute = [&](TADOConnection*, const QString& text) { statements << text; };
        TPictureStore(connection_).Add({TPictureOwner::Goods, 9001}, path);
        connection_.OnWillExecute = nullptr;
        QCOMPARE(statements.size(), 1);
        TADOQuery& row = Row(9001);
        QCOMPARE(row.RecordCount(), 1);
        QCOMPARE(row.FieldByName(QStringLiteral("GRPCode"))->AsInteger(), 1);
        QCOMPARE(row.FieldByName(QStringLiteral("address"))->AsString(), path);
        // Stored copies are shown by ".jpg" in small letters.
        QCOMPARE(row.FieldByName(QStringLiteral("name"))->AsString(), QStringLiteral("قفسه.jpg"));
        QVERIFY(!PictureReader::FromBytes(row.FieldByName(QStringLiteral("picture"))->AsBytes(),
                                          PictureReader::TFormat::Jpeg)
                     .isNull());
    }

    void aPictureIsExchangedAndRemoved()
    {
        TPictureStore store(connection_);
        store.Add({TPictureOwner::Persons, 9002}, NewPicture(QStringLiteral("a.jpg")));
        const int id = Row(9002).FieldByName(QStringLiteral("Id"))->AsInteger();
        store.Replace(id, NewPicture(QStringLiteral("b.jpg")));
        QCOMPARE(Row(9002).FieldByName(QStringLiteral("name"))->AsString(), QStringLiteral("b.jpg"));
        store.Remove(id);
        QVERIFY(Row(9002).IsEmpty());
        store.Remove(id);
        QVERIFY_THROWS_EXCEPTION(EPictureRefused, store.Replace(id, NewPicture(QStringLiteral("c.jpg"))));
        QVERIFY(Row(9002).IsEmpty());
    }

    void whatIsNoPictureIsRefusedAndNothingWritten_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << QStringLiteral("missing.jpg") << QStringLiteral("خوانده نشد");
        QTest::newRow("a folder") << QStringLiteral("folder.jpg") << QStringLiteral("خوانده نشد");
        QTest::newRow("corrupt") << QStringLiteral("corrupt.jpg") << QStringLiteral("JPEG درستی نیست");
        QTest::newRow("too long") << QStringLiteral("long.jpg") << QStringLiteral("۱۰ مگابایت");
    }

    void whatIsNoPictureIsRefusedAndNothingWritten()
    {
        QFETCH(const QString, file);
        QFETCH(const QString, reason);
        QVERIFY(QDir(folder_.path()).mkpath(QStringLiteral("folder.jpg")));
        Write(QStringLiteral("corrupt.jpg"), QByteArray("\xFF\xD8\xFF corrupt"));
        Write(QStringLiteral("long.jpg"), QByteArray(TPictureStore::LargestFile + 1, '\0'));
        try {
            TPictureStore(connection_).Add({TPictureOwner::Goods, 9003}, folder_.filePath(file));
            QFAIL("the file was taken");
        } catch (const EPictureRefused& refused) {
            QVERIFY2(refused.Message().contains(reason), qPrintable(refused.Message()));
        }
        QVERIFY(Row(9003).IsEmpty());
    }

    void aPathWithoutRoomIsNotCutOff()
    {
        const QString folder = QString(120, u'f') + u'/' + QString(120, u'g') + u'/' + QString(120, u'h');
        QVERIFY(QDir(folder_.path()).mkpath(folder));
        const QString file = folder + u'/' + QString(100, u'n') + QStringLiteral(".jpg");
        TPictureStore(connection_).Add({TPictureOwner::Goods, 9004}, NewPicture(file));
        QVERIFY(Row(9004).FieldByName(QStringLiteral("address"))->IsNull());
        QCOMPARE(Row(9004).FieldByName(QStringLiteral("name"))->AsString(),
                 QString(100, u'n') + QStringLiteral(".jpg"));
    }

    void hostileNamesAreKeptAsTheyAre()
    {
        const QString name = QStringLiteral("'); DELETE FROM PhotoGallery; --.jpg");
        TPictureStore(connection_).Add({TPictureOwner::Goods, 9005}, NewPicture(name));
        QCOMPARE(Row(9005).FieldByName(QStringLiteral("name"))->AsString(), name);
        QCOMPARE(Row(9001).RecordCount(), 1);
    }

private:
    QString Write(const QString& name, const QByteArray& bytes) const
    {
        const QString path = folder_.filePath(name);
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
    }
    QString NewPicture(const QString& name) const
    {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString path = folder_.filePath(name);
        return image.save(path, "JPG") ? path : QString();
    }
    TADOQuery& Row(int item)
    {
        query_.Close();
        query_.SetConnection(&connection_);
        query_.SQL.SetText(QStringLiteral("SELECT * FROM dbo.PhotoGallery WHERE Id_Pic = %1").arg(item));
        query_.Open();
        return query_;
    }

    QTemporaryDir folder_;
    TADOConnection connection_;
    TADOQuery query_;
};

QTEST_MAIN(PictureStoreTest)
#include "PictureStoreTest.moc"
