#include "HostTestMain.h"
#include "ModalBox.h"
#include "ReferenceHost.h"

#include "ExpenseCenterLibrary.h"

#include <QDir>
#include <QTemporaryDir>

class RunTimeLibrariesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLibraryOfExpenseCentersIsInTheApplicationsFolder()
    {
        THostLibraries libraries;
        const auto handle = libraries.Tarva_LoadLibrary(QString::fromUtf16(ExpenseCenterLibrary));
        QVERIFY(handle != 0);
        QVERIFY(libraries.FindFunction(handle, ExpenseCenterFunction) != nullptr);
        libraries.Tarva_FreeLibrary(QString::fromUtf16(ExpenseCenterLibrary), handle);
    }

    void aFunctionIsFoundUntilTheLibraryIsGivenBack()
    {
        THostLibraries libraries(Folder());
        const auto handle = libraries.Tarva_LoadLibrary(QStringLiteral("AnswersSeven.dll"));
        QVERIFY(handle != 0);
        const QFunctionPointer function = libraries.FindFunction(handle, "AnswerSeven");
        QVERIFY(function != nullptr);
        QCOMPARE(reinterpret_cast<int (*)()>(function)(), 7);
        QVERIFY(libraries.FindFunction(handle, ExpenseCenterFunction) == nullptr);
        QVERIFY(libraries.FindFunction(handle, {}) == nullptr);
        libraries.Tarva_FreeLibrary(QStringLiteral("AnswersSeven.dll"), handle);
        QVERIFY(libraries.FindFunction(handle, "AnswerSeven") == nullptr);
        libraries.Tarva_FreeLibrary(QStringLiteral("AnswersSeven.dll"), handle);
        libraries.Tarva_FreeLibrary(QStringLiteral("AnswersSeven.dll"), 12345);
    }

    void eachLoadingHasAHandleOfItsOwn()
    {
        THostLibraries libraries(Folder());
        const auto first = libraries.Tarva_LoadLibrary(QStringLiteral("AnswersSeven.dll"));
        const auto second = libraries.Tarva_LoadLibrary(QStringLiteral("AnswersSeven"));
        QVERIFY(first != second);
        libraries.Tarva_FreeLibrary(QStringLiteral("AnswersSeven"), first);
        QVERIFY(libraries.FindFunction(second, "AnswerSeven") != nullptr);
    }

    void whatIsNoNameOfALibraryInTheFolderIsMissing_data()
    {
        QTest::addColumn<QString>("name");
        const QString file = QDir(Folder()).filePath(QStringLiteral("libAnswersSeven.so"));
        QTest::newRow("missing") << "NoSuchLibrary.dll";
        QTest::newRow("empty") << "";
        QTest::newRow("only the ending") << ".dll";
        QTest::newRow("absolute path") << file;
        QTest::newRow("path without ending") << QDir(Folder()).filePath(QStringLiteral("AnswersSeven"));
        QTest::newRow("relative path") << "../libraries/AnswersSeven.dll";
        QTest::newRow("with backslashes") << "libraries\\AnswersSeven.dll";
        QTest::newRow("platform's file name") << "libAnswersSeven.so";
        QTest::newRow("of the system") << "c.so.6";
        QTest::newRow("of the system by its bare name") << "dl";
        QTest::newRow("Persian") << QStringLiteral("کتابخانه.dll");
        QTest::newRow("null character") << QStringLiteral("AnswersSeven") + QChar::Null;
        QTest::newRow("no library inside") << "Broken.dll";
    }

    void whatIsNoNameOfALibraryInTheFolderIsMissing()
    {
        QFETCH(QString, name);
        if (QByteArray(QTest::currentDataTag()) == "no library inside") {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Broken")));
            QFile broken(QDir(Folder()).filePath(QStringLiteral("libBroken.so")));
            QVERIFY(broken.open(QIODevice::WriteOnly));
            broken.write("not a library");
        }
        THostLibraries libraries(Folder());
        QCOMPARE(libraries.Tarva_LoadLibrary(name), THostLibraries::THandle(0));
    }

    void runningAFunctionAnswersItsNumber()
    {
        QCOMPARE(THostLibraries(Folder()).Run_DLL_FuncReturnInt(QStringLiteral("AnswersSeven.dll"),
                                                                QStringLiteral("AnswerSeven")),
                 7);
    }

    void whatIsMissingIsToldAndAnswersZero_data()
    {
        QTest::addColumn<QString>("library");
        QTest::addColumn<QString>("function");
        QTest::addColumn<QString>("named");
        QTest::newRow("library") << "AutoVoucher_TRV.dll"
                                 << "CallSaveAutoVouchers"
                                 << "AutoVoucher_TRV.dll";
        QTest::newRow("function") << "AnswersSeven.dll"
                                  << "CallSaveAutoVouchers"
                                  << "CallSaveAutoVouchers";
    }

    void whatIsMissingIsToldAndAnswersZero()
    {
        QFETCH(QString, library);
        QFETCH(QString, function);
        QFETCH(QString, named);
        TADOConnection connection;
        QTemporaryDir folder;
        THostSettings settings(folder.filePath(QStringLiteral("settings.ini")));
        const TReferenceHost host(connection, settings);
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        QCOMPARE(THostLibraries(Folder()).Run_DLL_FuncReturnInt(library, function), 0);
        QCOMPARE(answer.Boxes(), 1);
        QVERIFY2(answer.Texts.constFirst().contains(named), qPrintable(answer.Texts.constFirst()));
    }

private:
    static QString Folder() { return QStringLiteral(TEST_LIBRARIES); }
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<RunTimeLibrariesTest>(argc, argv);
}
#include "RunTimeLibrariesTest.moc"
