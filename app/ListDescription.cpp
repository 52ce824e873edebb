#include "ListDescription.h"

#include "PictureStore.h"

namespace {

constexpr int codeDigits = 9; // the longest number that always fits a 32-bit code

TSearchItem Text(const QString& title, const QString& column, const QString& folded = {})
{
    TSearchItem item;
    item.Title = title;
    item.FiledName = column;
    item.FoldedName = folded;
    return item;
}

TSearchItem Number(const QString& title, const QString& column, TSearchDataType type, int maxLength = 0)
{
    TSearchItem item = Text(title, column);
    item.DataType = type;
    item.MaxLength = maxLength;
    return item;
}

TGridColumn Column(const QString& field, const QString& title, int width,
                   TGridColumn::TKind kind = TGridColumn::ckText)
{
    TGridColumn column;
    column.FieldName = field;
    column.Title = title;
    column.Width = width;
    column.Kind = kind;
    return column;
}

QStringList FieldsOf(const QVector<TCardField>& fields)
{
    QStringList names;
    for (const TCardField& field : fields)
        names.append(field.FieldName);
    return names;
}

} // namespace

TListDescription GoodsList()
{
    TListDescription list;
    list.Key = QStringLiteral("Goods");
    list.Title = QStringLiteral("کالاها");
    list.RecordName = QStringLiteral("کالا");
    list.TitleField = QStringLiteral("Name");
    list.SearchItems = {
        Text(QStringLiteral("نام"), QStringLiteral("Name"), QStringLiteral("SearchName")),
        Number(QStringLiteral("کد"), QStringLiteral("Code"), TSearchDataType::idtDigit, codeDigits),
        Text(QStringLiteral("بارکد"), QStringLiteral("Barcode")),
        Number(QStringLiteral("قیمت"), QStringLiteral("Price"), TSearchDataType::idtMoney),
        Text(QStringLiteral("گروه"), QStringLiteral("GroupName")),
        Text(QStringLiteral("واحد"), QStringLiteral("UnitName")),
    };
    list.Columns = {
        Column(QStringLiteral("Code"), QStringLiteral("کد"), 80, TGridColumn::ckCode),
        Column(QStringLiteral("Name"), QStringLiteral("نام کالا"), 270),
        Column(QStringLiteral("tags"), QStringLiteral("برچسب"), 80),
        Column(QStringLiteral("Barcode"), QStringLiteral("بارکد"), 140, TGridColumn::ckCode),
        Column(QStringLiteral("UnitName"), QStringLiteral("واحد"), 80),
        Column(QStringLiteral("Price"), QStringLiteral("قیمت"), 130, TGridColumn::ckMoney),
        Column(QStringLiteral("Stock"), QStringLiteral("موجودی"), 100, TGridColumn::ckNumber),
        Column(QStringLiteral("GroupName"), QStringLiteral("گروه"), 140),
    };
    list.CardFields = {
        {QStringLiteral("Code"), QStringLiteral("کد"), TGridColumn::ckCode},
        {QStringLiteral("Name"), QStringLiteral("نام کالا")},
        {QStringLiteral("Barcode"), QStringLiteral("بارکد"), TGridColumn::ckCode},
        {QStringLiteral("UnitName"), QStringLiteral("واحد")},
        {QStringLiteral("GroupCode"), QStringLiteral("کد گروه"), TGridColumn::ckCode},
        {QStringLiteral("GroupName"), QStringLiteral("گروه")},
        {QStringLiteral("CategoryName"), QStringLiteral("دسته")},
        {QStringLiteral("Price"), QStringLiteral("قیمت"), TGridColumn::ckMoney},
        {QStringLiteral("Stock"), QStringLiteral("موجودی"), TGridColumn::ckNumber},
        {QStringLiteral("tags"), QStringLiteral("برچسب‌ها")},
        {QStringLiteral("Active"), QStringLiteral("فعال")},
    };
    list.Source = {FieldsOf(list.CardFields), QStringLiteral("dbo.KalaList"), QStringLiteral("Code")};
    list.Labels = {QStringLiteral("dbo.kala"), QStringLiteral("dbo.kala_category"),
                   QStringLiteral("kala_code"), TCategoryStore::TListKind::Goods};
    list.PictureGroup = TPictureOwner::Goods;
    list.OrderField = QStringLiteral("Code");
    return list;
}

TListDescription PersonsList()
{
    TListDescription list;
    list.Key = QStringLiteral("Persons");
    list.Title = QStringLiteral("اشخاص");
    list.RecordName = QStringLiteral("شخص");
    list.TitleField = QStringLiteral("FullName");
    list.SearchItems = {
        Text(QStringLiteral("نام"), QStringLiteral("FullName"), QStringLiteral("SearchName")),
        Number(QStringLiteral("کد"), QStringLiteral("Code"), TSearchDataType::idtDigit, codeDigits),
        Text(QStringLiteral("کد ملی"), QStringLiteral("NationalCode")),
        Text(QStringLiteral("تلفن"), QStringLiteral("Phone")),
        Text(QStringLiteral("شهر"), QStringLiteral("City")),
        Number(QStringLiteral("مانده"), QStringLiteral("Balance"), TSearchDataType::idtMoney),
    };
    list.Columns = {
        Column(QStringLiteral("Code"), QStringLiteral("کد"), 80, TGridColumn::ckCode),
        Column(QStringLiteral("FullName"), QStringLiteral("نام"), 260),
        Column(QStringLiteral("tags"), QStringLiteral("برچسب"), 90),
        Column(QStringLiteral("NationalCode"), QStringLiteral("کد ملی"), 120, TGridColumn::ckCode),
        Column(QStringLiteral("Phone"), QStringLiteral("تلفن"), 130, TGridColumn::ckCode),
        Column(QStringLiteral("City"), QStringLiteral("شهر"), 120),
        Column(QStringLiteral("Balance"), QStringLiteral("مانده"), 150, TGridColumn::ckMoney),
    };
    list.CardFields = {
        {QStringLiteral("Code"), QStringLiteral("کد"), TGridColumn::ckCode},
        {QStringLiteral("Name"), QStringLiteral("نام کوتاه")},
        {QStringLiteral("FullName"), QStringLiteral("نام کامل")},
        {QStringLiteral("NationalCode"), QStringLiteral("کد ملی"), TGridColumn::ckCode},
        {QStringLiteral("Phone"), QStringLiteral("تلفن"), TGridColumn::ckCode},
        {QStringLiteral("City"), QStringLiteral("شهر")},
        {QStringLiteral("Address"), QStringLiteral("نشانی")},
        {QStringLiteral("GroupName"), QStringLiteral("گروه")},
        {QStringLiteral("CategoryName"), QStringLiteral("دسته")},
        {QStringLiteral("Balance"), QStringLiteral("مانده"), TGridColumn::ckMoney},
        {QStringLiteral("tags"), QStringLiteral("برچسب‌ها")},
        {QStringLiteral("Active"), QStringLiteral("فعال")},
    };
    list.Source = {FieldsOf(list.CardFields), QStringLiteral("dbo.PersonList"), QStringLiteral("Code")};
    list.Labels = {QStringLiteral("dbo.Persons"), QStringLiteral("dbo.Person_category"),
                   QStringLiteral("person_code"), TCategoryStore::TListKind::Persons};
    list.PictureGroup = TPictureOwner::Persons;
    list.OrderField = QStringLiteral("Code");
    return list;
}

TListDescription DetailAccountsList(int kind)
{
    TListDescription list;
    list.Key = QStringLiteral("DetailAccounts");
    list.Title = QStringLiteral("حساب‌های تفصیلی");
    list.RecordName = QStringLiteral("حساب تفصیلی");
    list.TitleField = QStringLiteral("Name");
    list.SearchItems = {
        Text(QStringLiteral("نام"), QStringLiteral("Name")),
        Number(QStringLiteral("کد"), QStringLiteral("Code"), TSearchDataType::idtDigit, codeDigits),
        Number(QStringLiteral("کد یکتا"), QStringLiteral("UniqueCode"), TSearchDataType::idtDigit,
               codeDigits),
    };
    list.Columns = {
        Column(QStringLiteral("Code"), QStringLiteral("کد"), 90, TGridColumn::ckCode),
        Column(QStringLiteral("Name"), QStringLiteral("نام حساب"), 380),
        Column(QStringLiteral("UniqueCode"), QStringLiteral("کد یکتا"), 130, TGridColumn::ckCode),
        Column(QStringLiteral("CurTitle"), QStringLiteral("ارز"), 130),
        Column(QStringLiteral("Active"), QStringLiteral("فعال"), 80),
    };
    for (const TGridColumn& column : qAsConst(list.Columns))
        list.CardFields.append({column.FieldName, column.Title, column.Kind});
    list.Source = {
        FieldsOf(list.CardFields),
        QStringLiteral("(SELECT d.Code, d.Name, d.UniqueCode, d.Active, c.CurTitle FROM dbo.AccDetails AS d "
                       "LEFT JOIN dbo.AccCurrency AS c ON c.CurCode = d.CurrCode WHERE d.[Type] = %1) AS a")
            .arg(kind),
        QStringLiteral("Code")};
    list.OrderField = QStringLiteral("Code");
    return list;
}
