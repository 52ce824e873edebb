#include "DatabaseSchema.h"
#include "GoodsMaker.h"
#include "NationalCode.h"
#include "PersianSpelling.h"
#include "RowWriter.h"
#include "SampleContext.h"
#include "SampleRandom.h"
#include "Vocabulary.h"

namespace {

constexpr quint64 PersonStream = 30;
constexpr int PersonDetailKind = 1;

struct TPerson
{
    QString Name;
    QString FullName;
    QString NationalCode;
    QString Phone;
    QString City;
    QString Address;
    QString Tags;
    int GroupCode = 1;
    int CategoryId = 0;
    bool Active = true;
};

/// Puts persons and companies together out of the vocabulary.
class TPersonMaker
{
public:
    explicit TPersonMaker(const TSampleCategories& categories);

    TPerson Make(int code) const;

private:
    void NamePerson(TPerson& person, TSampleRandom& random) const;
    void NameCompany(TPerson& person, TSampleRandom& random) const;
    void Place(TPerson& person, TSampleRandom& random, bool company) const;

    static QStringList Words(const QString& section)
    {
        return Vocabulary::Lines(QStringLiteral("people.txt"), section);
    }

    QStringList men_ = Words(QStringLiteral("men"));
    QStringList women_ = Words(QStringLiteral("women"));
    QStringList surnames_ = Words(QStringLiteral("surnames"));
    QStringList companies_ = Words(QStringLiteral("companies"));
    QStringList endings_ = Words(QStringLiteral("company endings"));
    QStringList streets_ = Words(QStringLiteral("streets"));
    QStringList places_ = Words(QStringLiteral("places"));
    QVector<QStringList> cities_ = Vocabulary::Rows(QStringLiteral("people.txt"), QStringLiteral("cities"));
    QVector<int> categories_;
};

TPersonMaker::TPersonMaker(const TSampleCategories& categories)
    : categories_(categories.LeavesUnder(QStringLiteral("اشخاص")))
{
}

TPerson TPersonMaker::Make(int code) const
{
    TSampleRandom random(PersonStream, static_cast<quint64>(code));
    TPerson person;
    const bool company = random.Chance(15);
    if (company)
        NameCompany(person, random);
    else
        NamePerson(person, random);
    Place(person, random, company);
    person.GroupCode = random.Chance(65) ? 1 : 2 + random.Below(3);
    person.CategoryId = random.Pick(categories_);
    person.Tags = SampleTags(random, 5, 4);
    person.Active = !random.Chance(4);
    return person;
}

void TPersonMaker::NamePerson(TPerson& person, TSampleRandom& random) const
{
    const QString& firstName = random.Chance(60) ? random.Pick(men_) : random.Pick(women_);
    person.Name = PersianSpelling::AsTyped(random.Pick(surnames_), random);
    person.FullName = firstName + u' ' + person.Name;
}

void TPersonMaker::NameCompany(TPerson& person, TSampleRandom& random) const
{
    const QString name = random.Pick(companies_) + u' ' + random.Pick(endings_);
    person.Name = PersianSpelling::AsTyped(name, random);
    person.FullName = person.Name;
    if (random.Chance(50))
        person.FullName +=
            random.Chance(50) ? QStringLiteral(" (سهامی خاص)") : QStringLiteral(" (بامسئولیت محدود)");
}

void TPersonMaker::Place(TPerson& person, TSampleRandom& random, bool company) const
{
    const QStringList& city = random.Pick(cities_);
    person.City = city.at(0);
    if (company) {
        person.NationalCode = NationalCode::Company(random.Between(1010000000, 1409999999));
    } else {
        const qint64 serial = city.at(3).toLongLong() * 1000000 + random.Between(0, 999999);
        person.NationalCode = NationalCode::Person(serial);
    }
    const bool mobile = !company && random.Chance(70);
    person.Phone = mobile ? QStringLiteral("09%1").arg(random.Between(100000000, 399999999))
                          : city.at(2) + QString::number(random.Between(32000000, 88999999));
    person.Address = city.at(0) + QStringLiteral("، ") + random.Pick(streets_) + QStringLiteral("، ") +
                     random.Pick(places_) + u' ' + QString::number(random.Between(1, 320));
}

} // namespace

void SampleParts::FillPersons(TSampleContext& context)
{
    context.Progress.Begin(QStringLiteral("اشخاص"));
    const TPersonMaker maker(context.Categories);
    TRowWriter persons(context.Connection, QStringLiteral("dbo.Persons"),
                       {QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("FullName"),
                        QStringLiteral("NationalCode"), QStringLiteral("Phone"), QStringLiteral("City"),
                        QStringLiteral("Address"), QStringLiteral("GroupCode"), QStringLiteral("tags"),
                        QStringLiteral("Active")});
    TRowWriter categories(context.Connection, QStringLiteral("dbo.Person_category"),
                          {QStringLiteral("person_code"), QStringLiteral("category_code")});
    TRowWriter details(context.Connection, QStringLiteral("dbo.AccDetails"),
                       {QStringLiteral("Type"), QStringLiteral("Code"), QStringLiteral("Name"),
                        QStringLiteral("UniqueCode"), QStringLiteral("Active")});
    QVector<int> categoryOfPerson;
    categoryOfPerson.reserve(context.Size.Persons);
    for (int code = 1; code <= context.Size.Persons; ++code) {
        const TPerson person = maker.Make(code);
        persons.Add({code, person.Name, person.FullName, person.NationalCode, person.Phone, person.City,
                     person.Address, person.GroupCode,
                     person.Tags.isEmpty() ? QVariant() : QVariant(person.Tags), person.Active});
        details.Add({PersonDetailKind, code, person.FullName,
                     PersonDetailKind * DatabaseSchema::UniqueCodesPerKind + code, person.Active});
        categoryOfPerson.append(person.CategoryId);
        context.Progress.Advance();
    }
    persons.Flush();
    details.Flush();
    // Behind the persons that they refer to.
    for (int code = 1; code <= context.Size.Persons; ++code)
        categories.Add({code, categoryOfPerson.at(code - 1)});
    categories.Flush();
}
