#include "GoodsTable.h"

#include <QTest>

TGoodsTable::TGoodsTable(int rows)
{
    TEngineOptions options;
    options.CreateMissing = true;
    connection_.SetOptions(options);
    connection_.SetConnectionString(QStringLiteral("sqlite:") + folder_.filePath(QStringLiteral("goods.db")));
    connection_.Open();
    connection_.Execute(
        QStringLiteral("CREATE TABLE dbo.kala (Code int NOT NULL PRIMARY KEY, Name nvarchar(200) NULL, "
                       "Price money NULL, Active bit NULL, SoldAt datetime NULL)"));
    connection_.BeginTrans();
    for (int code = 1; code <= rows; ++code) {
        const bool isBare = code == 4;
        const QVariant price = QString::number((code == 3 ? -1 : 1) * 1'234'500LL * code);
        connection_.Execute(
            QStringLiteral("INSERT INTO dbo.kala (Code, Name, Price, Active, SoldAt) VALUES (?, ?, ?, ?, ?)"),
            {code, isBare ? QVariant() : QVariant(NameOf(code)), isBare ? QVariant() : price, code % 2 == 1,
             QStringLiteral("2024-03-20T14:30:00")});
    }
    connection_.CommitTrans();
}

QString TGoodsTable::NameOf(int code)
{
    return QStringLiteral("F%1 کالای شماره :").arg(code);
}

std::unique_ptr<TADOQuery> TGoodsTable::Query()
{
    auto query = std::make_unique<TADOQuery>();
    query->SetConnection(&connection_);
    query->SQL.SetText(
        QStringLiteral("SELECT Code, Name, Price, Active, SoldAt FROM dbo.kala ORDER BY Code"));
    query->Open();
    return query;
}

std::unique_ptr<TPagedDataSet> TGoodsTable::Paged()
{
    auto paged = std::make_unique<TPagedDataSet>();
    paged->SetConnection(&connection_);
    paged->SetSource({{QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("Price"),
                       QStringLiteral("Active"), QStringLiteral("SoldAt")},
                      QStringLiteral("dbo.kala"),
                      QStringLiteral("Code")});
    paged->Open();
    if (!paged->WaitForFirstPage() || !QTest::qWaitFor([&paged] { return paged->CountIsExact(); }, 30000))
        qFatal("The goods do not arrive");
    return paged;
}
