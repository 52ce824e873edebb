#include "GoodsFile.h"

#include <QThread>

TGoodsFile::TGoodsFile(int rows)
{
    TEngineOptions options;
    options.CreateMissing = true;
    Connection.SetOptions(options);
    Connection.SetConnectionString(QStringLiteral("sqlite:") + folder_.filePath(QStringLiteral("goods.db")));
    Connection.Open();
    Connection.Execute(
        QStringLiteral("CREATE TABLE dbo.kala (Code int NOT NULL PRIMARY KEY, Name nvarchar(200) NULL, "
                       "Price money NOT NULL, Active bit NOT NULL)"));
    TTransaction transaction(Connection);
    for (int code = 1; code <= rows; ++code) {
        const int shuffled = code * 7919 % 10007;
        const QVariant name =
            shuffled % 10 == 0 ? QVariant() : QVariant(QStringLiteral("کالای %1").arg(shuffled % 900));
        Insert(code, name, QStringLiteral("%1.5").arg(shuffled % 500 - 100));
    }
    transaction.Commit();
}

void TGoodsFile::Insert(int code, const QVariant& name, const QString& price)
{
    Connection.Execute(QStringLiteral("INSERT INTO dbo.kala (Code, Name, Price, Active) VALUES (?, ?, ?, 1)"),
                       {code, name, price});
}

QVariantList TGoodsFile::Codes(const QString& condition, const QString& orderBy)
{
    const QString where = condition.isEmpty() ? QString() : QStringLiteral(" WHERE ") + condition;
    const auto rows = Connection.Run(QStringLiteral("SELECT Code FROM dbo.kala") + where +
                                     QStringLiteral(" ORDER BY ") + orderBy);
    QVariantList codes;
    while (rows->Next())
        codes.append(rows->Value(0));
    return codes;
}

TPagedSource TGoodsFile::Source()
{
    return {
        {QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("Price"), QStringLiteral("Active")},
        QStringLiteral("dbo.kala"),
        QStringLiteral("Code")};
}

std::unique_ptr<TPagedDataSet> TGoodsFile::DataSet(int pageSize)
{
    auto dataSet = std::make_unique<TPagedDataSet>();
    dataSet->SetConnection(&Connection);
    dataSet->SetSource(Source());
    dataSet->SetPageSize(pageSize);
    return dataSet;
}

void TGoodsFile::RegisterTick()
{
    Connection.RegisterFunction(QStringLiteral("Tick"), 1,
                                [this](IFunctionContext&, const QVariantList& arguments) {
                                    ++Ticks;
                                    QThread::msleep(1);
                                    return arguments.first();
                                });
}
