#include "CategoryOutline.h"

#include "PersianText.h"
#include "TextPattern.h"

#include <utility>

void TCategoryOutline::Fill(QVector<TCategoryRow> rows)
{
    rows_ = std::move(rows);
    places_.clear();
    namesakes_.clear();
    for (int place = 0; place < Count(); ++place) {
        places_.insert(At(place).Id, place);
        ++namesakes_[PersianText::Fold(At(place).Name)];
    }
    HangUp();
    Filter({});
}

void TCategoryOutline::HangUp()
{
    parents_.fill(-1, Count());
    children_.fill({}, Count());
    for (int place = 0; place < Count(); ++place) {
        parents_[place] = At(place).ParentId > 0 ? Find(At(place).ParentId) : -1;
        if (parents_[place] >= 0)
            children_[parents_[place]].append(place);
    }
    QVector<bool> reached(Count(), false);
    for (int place = 0; place < Count(); ++place) {
        if (parents_[place] < 0)
            Reach(place, reached);
    }
    // What is left goes round in circles, and is cut where it is met first.
    for (int place = 0; place < Count(); ++place) {
        if (reached[place])
            continue;
        children_[parents_[place]].removeOne(place);
        parents_[place] = -1;
        Reach(place, reached);
    }
}

void TCategoryOutline::Reach(int top, QVector<bool>& reached) const
{
    QVector<int> waiting{top};
    while (!waiting.isEmpty()) {
        const int place = waiting.takeLast();
        reached[place] = true;
        waiting += children_[place];
    }
}

bool TCategoryOutline::IsUnder(int place, int ancestor) const
{
    while (place >= 0 && place != ancestor)
        place = ParentOf(place);
    return place == ancestor;
}

int TCategoryOutline::CountUnder(int place) const
{
    int count = 0;
    QVector<int> waiting = children_[place];
    while (!waiting.isEmpty()) {
        ++count;
        waiting += children_[waiting.takeLast()];
    }
    return count;
}

int TCategoryOutline::NamesakesOf(int place) const
{
    return namesakes_.value(PersianText::Fold(At(place).Name)) - 1;
}

QString TCategoryOutline::PathText(int place) const
{
    QStringList names;
    for (int above = place; above >= 0; above = ParentOf(above))
        names.prepend(At(above).Name);
    return names.join(QStringLiteral(" › "));
}

void TCategoryOutline::Filter(const QString& typed)
{
    const TTextPattern pattern(typed.trimmed());
    const int id = PersianText::AsciiDigits(typed).trimmed().toInt();
    shown_.fill(pattern.IsEmpty(), Count());
    matching_.fill(false, Count());
    if (pattern.IsEmpty())
        return;
    for (int place = 0; place < Count(); ++place) {
        matching_[place] = At(place).Id == id || pattern.FoundIn(At(place).Name);
        for (int above = place; matching_[place] && above >= 0 && !shown_[above]; above = ParentOf(above))
            shown_[above] = true;
    }
    for (int place = 0; place < Count(); ++place) {
        if (!shown_[place])
            shown_[place] = IsShownByAncestor(place);
    }
}

bool TCategoryOutline::IsShownByAncestor(int place) const
{
    int above = ParentOf(place);
    while (above >= 0 && !matching_[above])
        above = ParentOf(above);
    return above >= 0;
}

QVector<int> TCategoryOutline::MatchingPlaces() const
{
    QVector<int> places;
    for (int place = 0; place < Count(); ++place) {
        if (matching_[place])
            places.append(place);
    }
    return places;
}
